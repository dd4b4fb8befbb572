#ifndef host_Inspector_H
#define host_Inspector_H

#include "CATDialog.h"
#include "CATDlgDefine.h"
#include "CATDlgGridConstraints.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class CATDlgCombo;
class CATDlgDialog;
class CATDlgEditor;
class CATDlgMultiList;
class CATDlgProgress;
class CATDlgSpinner;
class CATDlgWindow;

namespace host {

// One side of a child on one tabulation line of its parent.
struct Attachment {
    const CATDialog* child = nullptr;
    bool vertical = false; // on a vertical line, which fixes left or right
    int tab = 0;
    CATDlgAttachment mode = CATDlgTopOrLeft;
};

// File names of the icons of the four states, without suffix.
struct IconNames {
    std::string normal;
    std::string selected;
    std::string focus;
    std::string disabled;
};

// Reads what a widget holds and the platform does not tell. Changes nothing.
class Inspector {
  public:
    // The tree. Widgets that wait for their destruction are not in it.
    static CATDialog* Parent(const CATDialog& iWidget);
    static std::vector<CATDialog*> Children(const CATDialog& iWidget);
    static CATDialog* FirstChild(const CATDialog& iWidget);
    static CATDialog* NextSibling(const CATDialog& iWidget);
    // The nearest window: the widget itself or a parent; null for a widget without one.
    static CATDlgWindow* WindowOf(const CATDialog& iWidget);
    // All windows below the main window, in order of creation.
    static std::vector<CATDlgWindow*> Windows();

    // Whether the widget is a window, and whether it is a tab container.
    static bool IsWindow(const CATDialog& iWidget);
    static bool HoldsPages(const CATDialog& iWidget);

    static CATDlgStyle Style(const CATDialog& iWidget);
    // Whether the widget and all its parents are shown or enabled; the main window counts as both.
    static bool IsShownWithParents(const CATDialog& iWidget);
    static bool IsEnabledWithParents(const CATDialog& iWidget);
    // Whether the widget draws its title. A label with an icon draws the icon alone.
    static bool ShowsTitle(const CATDialog& iWidget);
    // The names set by the program, or those of the resource file.
    static IconNames Icons(const CATDialog& iWidget);
    // Where a picture of that name lies, looked for beside the message folders; empty when it is nowhere.
    static std::string IconFile(const std::string& iName);

    // Layout as it was asked for.
    static std::vector<Attachment> Attachments(const CATDialog& iContainer);
    static std::vector<Attachment> AttachmentsOf(const CATDialog& iChild);
    // The attachments of a child in one direction, without a list.
    typedef CATDialog::TabPlace TabSpan;
    static TabSpan ColumnsOf(const CATDialog& iChild);
    static TabSpan RowsOf(const CATDialog& iChild);
    static bool HasGridConstraints(const CATDialog& iChild);
    static CATDlgGridConstraints GridConstraints(const CATDialog& iChild);
    static bool IsGridRowResizable(const CATDialog& iContainer, int iRow);
    static bool IsGridColumnResizable(const CATDialog& iContainer, int iColumn);
    static CATDlgOrientation DefaultOrientation(const CATDialog& iContainer);

    // Sizes in lines and characters as they were asked for; 0 when they were not.
    static int VisibleTextHeight(const CATDialog& iControl);
    static int VisibleTextWidth(const CATDialog& iControl);
    static int MaxTextWidth(const CATDlgEditor& iEditor);

    // Standard buttons of a dialog, as CATDlgWnd... bits in the order in which they are shown; the default
    // button, or 0; and whether it is modal.
    static std::vector<CATULong> StandardButtons(const CATDlgDialog& iDialog);
    static std::vector<CATULong> ButtonsOfStyle(CATDlgStyle iStyle);
    // The default button that a dialog starts with.
    static CATULong FirstDefaultButton(CATDlgStyle iStyle);
    static CATULong DefaultButton(const CATDlgDialog& iDialog);
    static bool IsModal(const CATDlgWindow& iWindow);
    static int PowerInputUpdates(const CATDlgDialog& iDialog);
    static bool IsPowerInputLinked(const CATDlgDialog& iDialog);
    static const CATDlgDialog* PowerInputOwner();

    static int VisibleColumnCount(const CATDlgMultiList& iList);
    static int ColumnTextWidth(const CATDlgMultiList& iList, int iColumn);
    static bool IsMultiSelection(const CATDlgMultiList& iList);
    // How often all lines of a list were taken away together; the lines that are there came after that.
    static int Clearings(const CATDlgMultiList& iList);
    // Memory that the lines of a list take, in bytes.
    static std::size_t BytesOfLines(const CATDlgMultiList& iList);

    struct Range {
        double minimum = 0.0;
        double maximum = 0.0;
        double step = 0.0;
        int precision = -1;
    };
    static Range RangeOf(const CATDlgSpinner& iSpinner);
    static Range RangeOf(const CATDlgProgress& iProgress);
    // The value as a person reads it: with the digits behind the point that the precision asks for.
    static std::string ShownText(const CATDlgSpinner& iSpinner);

  private:
    // The name of the icon of a state, in the order of IconNames.
    static std::string_view IconOf(const CATDialog& iWidget, std::size_t iState);
};

} // namespace host

#endif
