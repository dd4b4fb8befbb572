#ifndef host_DialogUser_H
#define host_DialogUser_H

#include "CATDlgDialog.h"
#include "host/Outcome.h"

#include <string>
#include <vector>

class CATDlgCheckButton;
class CATDlgCombo;
class CATDlgDocument;
class CATDlgEditor;
class CATDlgMultiList;
class CATDlgPushButton;
class CATDlgRadioButton;
class CATDlgSpinner;
class CATDlgTabPage;

namespace host {

class ValueFrame;

// A person in front of the dialogs. This is the only place that acts as one: tests, replayed sessions and
// real windows all go through it.
//
//     const Outcome outcome = DialogUser::Choose(combo, 2);
//     if (!outcome) std::cerr << outcome.reason;
//
// Each operation is one event of the main loop: notifications are sent at once, delayed destructions run when
// the operation ends. It is refused, and nothing happens, where a person could not do it: the widget or a
// parent is hidden or disabled, a page is behind another, a modal window or a message is in front, the line
// is not there.
class DialogUser {
  public:
    static Outcome Press(CATDlgPushButton& ioButton);
    // A standard button of a dialog: CATDlgWndOK, CATDlgWndCANCEL, CATDlgWndAPPLY, CATDlgWndCLOSE or
    // CATDlgWndHELP.
    static Outcome PressStandardButton(CATDlgDialog& ioDialog, CATULong iButton);
    // Enter presses the default button, where there is one; Escape presses Cancel or else closes the window.
    static Outcome PressEnter(CATDlgDialog& ioDialog);
    static Outcome PressEscape(CATDlgDialog& ioDialog);
    // Escape where no dialog takes the key.
    static Outcome PressEscape(CATDlgDocument& ioMainWindow);

    // Opens the list of a combo; choosing a line does not need it.
    static Outcome OpenList(CATDlgCombo& ioCombo);
    static Outcome Choose(CATDlgCombo& ioCombo, int iLine);
    static Outcome ChooseText(CATDlgCombo& ioCombo, const std::string& iText);

    // A radio button cannot be unchecked by hand. A button that is in the wanted state already stays silent.
    static Outcome Check(CATDialog& ioButton);
    static Outcome Uncheck(CATDialog& ioButton);

    // Replaces the text of an editor; the text that is there already is no change.
    static Outcome Type(CATDlgEditor& ioEditor, const std::string& iText);
    // Goes on to another field.
    static Outcome LeaveField(CATDlgEditor& ioEditor);

    static Outcome Spin(CATDlgSpinner& ioSpinner, int iSteps);
    // With a decimal point or comma. Refused for a spinner without field and for a value outside its range.
    static Outcome TypeValue(CATDlgSpinner& ioSpinner, const std::string& iText);

    // Replaces the text in the field. A text that is no value can be typed too: it stays there with the
    // problem beside it. The value that is shown already is no change.
    static Outcome Type(ValueFrame& ioFrame, const std::string& iText);
    // Steps the value with the arrows. Refused where a step leads out of what the value may be.
    static Outcome Spin(ValueFrame& ioFrame, int iSteps);
    // Escape in the field: a text that is not taken gives way to the value.
    static Outcome Restore(ValueFrame& ioFrame);

    // Replaces the selection of a list.
    static Outcome Select(CATDlgMultiList& ioList, const std::vector<int>& iLines);
    // Double click on a cell: selects the line, activates it, then the cell.
    static Outcome Activate(CATDlgMultiList& ioList, int iLine, int iColumn);

    static Outcome ShowPage(CATDlgTabPage& ioPage);

    static Outcome Move(CATDlgWindow& ioWindow, int iX, int iY);
    static Outcome Resize(CATDlgWindow& ioWindow, int iHeight, int iWidth);
    // Presses the window's close box. The window stays until the program hides or destroys it.
    static Outcome Close(CATDlgWindow& ioWindow);

    // Whether a person could use the widget at all, with the reason if not.
    static Outcome CanUse(const CATDialog& iWidget);
    // Whether a person sees the widget: it and all its parents are shown, and its page is in front.
    static bool CanSee(const CATDialog& iWidget);

  private:
    // What keeps a person from using a widget: the first of each kind, from the widget up to below the main
    // window; null for none.
    struct Obstacles {
        const CATDialog* doomed = nullptr;
        const CATDialog* hidden = nullptr;
        const CATDialog* behind = nullptr; // a page that is not in front
        const CATDialog* disabled = nullptr;
        bool isInWindow = false; // the way up ends at the main window
    };
    static Obstacles FindObstacles(const CATDialog& iWidget);
    static bool IsPageBehind(const CATDialog& iWidget);
    static Outcome CanEdit(const ValueFrame& iFrame);
};

} // namespace host

#endif
