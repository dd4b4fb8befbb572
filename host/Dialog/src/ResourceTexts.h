#ifndef ResourceTexts_H
#define ResourceTexts_H

#include <optional>
#include <string>

class CATDialog;

namespace host {

// Texts and values of widgets in the resource files of their panels.
//
// The panel that answers for a widget is the nearest one, the widget itself included, whose class names a
// resource file. The key is the path of names from below the panel to the widget and a keyword,
// "ButtonFrm.NewPbt.Title"; failing that the name of the widget and the keyword. What the file of a class
// lacks is taken from that of the class above it.
class ResourceTexts {
  public:
    // One file's answer to one key.
    typedef std::optional<std::string> (*Search)(const std::string& iFile, const std::string& iKey);

    // Text of a widget; a miss is recorded when iIsWanted.
    static std::optional<std::string> Text(const CATDialog& iWidget, const std::string& iKeyword,
                                           bool iIsWanted);
    // Value from the resource files without language.
    static std::optional<std::string> Value(const CATDialog& iWidget, const std::string& iKeyword);
    // Text of a plain key of the panel that answers for the widget.
    static std::optional<std::string> PanelText(const CATDialog& iWidget, const std::string& iKey);

  private:
    static std::optional<std::string> Find(const CATDialog& iWidget, const std::string& iKeyword,
                                           Search iSearch);
    static const CATDialog* PanelOf(const CATDialog& iWidget);
    static std::string PathBelow(const CATDialog& iPanel, const CATDialog& iWidget);
};

} // namespace host

#endif
