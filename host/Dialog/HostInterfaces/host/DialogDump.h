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
//       ParameterFrame T spinner text="12.5mm"
//       ParameterFrame D label="D" text="wide" problem="'wide' is not a number"
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

    // Tells what a widget of another framework holds, in the form "key=value key=value"; empty for a widget
    // that the function does not know.
    typedef std::string (*Describer)(const CATDialog& iWidget);
    // Asks iDescriber too about the widgets that have no text of their own here. A describer that is known
    // already changes nothing.
    static void DescribeBy(Describer iDescriber);
};

} // namespace host

#endif
