#ifndef host_DialogDump_H
#define host_DialogDump_H

#include <string>

class CATDialog;

namespace host {

// A readable picture of a dialog tree, one widget a line, children indented by two blanks:
//
//     CATDlgDialog FeatureDlg title="Feature" buttons=OK*,Cancel
//       CATDlgCombo TypeSelectCombo lines=["Hole", "Counterbore"] selected=1
//       CATDlgEditor Input1Edt hidden read-only text="Point.1"
//
// Only what differs from a widget's plain state is written, so that the text is stable enough for golden
// files.
class DialogDump {
  public:
    // What a person and a programmer would want to see.
    enum Detail { Content = 0, WithLayout = 1 };

    static std::string Of(const CATDialog& iWidget, Detail iDetail = Content);
    // All windows below the main window.
    static std::string OfAll(Detail iDetail = Content);
};

} // namespace host

#endif
