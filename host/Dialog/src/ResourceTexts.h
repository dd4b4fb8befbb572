#ifndef ResourceTexts_H
#define ResourceTexts_H

#include <string>
#include <string_view>

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
    // One file's answer to a key, or else to the other one; null for none.
    typedef const std::string* (*Search)(std::string_view iFile, std::string_view iKey,
                                         std::string_view iOtherKey);

    // Each gives null where no file has the text; a text is valid until the path or language changes.

    static const std::string* Text(const CATDialog& iWidget, const char* iKeyword);
    // Value from the resource files without language.
    static const std::string* Value(const CATDialog& iWidget, const char* iKeyword);
    // Text of a plain key of the panel that answers for the widget.
    static const std::string* PanelText(const CATDialog& iWidget, const char* iKey);

    // Notes that a text which a person would see is missing.
    static void RecordMissing(const CATDialog& iWidget, const char* iKeyword);

  private:
    // Where a widget's texts are looked for.
    struct Place {
        const CATDialog* widget = nullptr;
        const char* file = nullptr;       // named by the widget's own class
        unsigned tree = 0;                // revision of the dialog tree
        const CATDialog* panel = nullptr; // null where no panel answers
        std::string path; // the names from below the panel to the widget, each with a dot behind it
    };

    static const std::string* Find(const CATDialog& iWidget, const char* iKeyword, Search iSearch);
    static Place& PlaceOf(const CATDialog& iWidget);
    static const CATDialog* PanelOf(const CATDialog& iWidget);
    static void AppendPath(const CATDialog& iPanel, const CATDialog& iWidget, std::string& ioPath);
};

} // namespace host

#endif
