#include "host/DialogUser.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "LifeWatch.h"
#include "MultiListState.h"
#include "WidgetTree.h"
#include "host/DelayedDestruction.h"
#include "host/DialogPath.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Messages.h"
#include "host/ValueFrame.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

Outcome Refuse(const CATDialog& iWidget, const std::string& iReason) {
    return Outcome::Refused(DialogPath::Of(iWidget) + " " + iReason);
}

bool IsBelow(const CATDialog& iWidget, const CATDialog& iParent) {
    const CATDialog* widget = &iWidget;
    while (widget != nullptr && widget != &iParent)
        widget = Inspector::Parent(*widget);
    return widget != nullptr;
}

// The modal window that was made last among those that are shown, or null.
const CATDlgWindow* TopModalWindow() {
    const CATDlgWindow* top = nullptr;
    for (const CATDlgWindow* window : WidgetTree::Windows())
        if (Inspector::IsModal(*window) && WidgetTree::IsReachable(*window) &&
            Inspector::IsShownWithParents(*window))
            top = window;
    return top;
}

void KeepFirst(const CATDialog*& ioFirst, const CATDialog& iWidget, bool iIsObstacle) {
    if (iIsObstacle && ioFirst == nullptr)
        ioFirst = &iWidget;
}

std::string NameOfButton(CATULong iButton) {
    switch (iButton) {
    case CATDlgWndOK:
        return "OK";
    case CATDlgWndCANCEL:
        return "Cancel";
    case CATDlgWndAPPLY:
        return "Apply";
    case CATDlgWndCLOSE:
        return "Close";
    case CATDlgWndHELP:
        return "Help";
    default:
        return "unknown";
    }
}

CATNotification* EventOfButton(CATDlgDialog& ioDialog, CATULong iButton) {
    switch (iButton) {
    case CATDlgWndOK:
        return ioDialog.GetDiaOKNotification();
    case CATDlgWndCANCEL:
        return ioDialog.GetDiaCANCELNotification();
    case CATDlgWndAPPLY:
        return ioDialog.GetDiaAPPLYNotification();
    case CATDlgWndCLOSE:
        return ioDialog.GetDiaCLOSENotification();
    default:
        return ioDialog.GetDiaHELPNotification();
    }
}

std::string NoLine(int iLine, int iCount) {
    return "has no line " + std::to_string(iLine) + ", it has " + std::to_string(iCount);
}

} // namespace

DialogUser::Obstacles DialogUser::FindObstacles(const CATDialog& iWidget) {
    Obstacles found;
    const CATDialog* const root = WidgetTree::Root();
    const CATDialog* widget = &iWidget;
    for (; widget != nullptr && widget != root; widget = widget->_parent) {
        KeepFirst(found.doomed, *widget, DelayedDestruction::IsDoomed(*widget));
        KeepFirst(found.hidden, *widget, !widget->_isShown);
        KeepFirst(found.behind, *widget, IsPageBehind(*widget));
        KeepFirst(found.disabled, *widget, !widget->_isEnabled);
    }
    found.isInWindow = widget != nullptr;
    return found;
}

bool DialogUser::IsPageBehind(const CATDialog& iWidget) {
    const CATDialog* const parent = iWidget._parent;
    if (parent == nullptr || !parent->_holdsPages)
        return false;
    const auto* const pages = dynamic_cast<const CATDlgTabContainer*>(parent);
    if (pages == nullptr)
        return false;
    const std::vector<CATDialog*> all = Inspector::Children(*pages);
    const int front = pages->GetSelectedPage();
    return front < 0 || all[static_cast<std::size_t>(front)] != &iWidget;
}

Outcome DialogUser::CanUse(const CATDialog& iWidget) {
    const Obstacles found = FindObstacles(iWidget);
    if (found.doomed != nullptr)
        return Refuse(iWidget, "is on its way out");
    if (!found.isInWindow)
        return Refuse(iWidget, "is in no window");
    if (Messages::IsWaiting())
        return Refuse(iWidget, "is blocked by a message that waits for its answer");
    if (found.hidden == &iWidget)
        return Refuse(iWidget, "is hidden");
    if (found.hidden != nullptr)
        return Refuse(iWidget, "is hidden with " + DialogPath::Of(*found.hidden));
    if (found.behind != nullptr)
        return Refuse(iWidget, "is on the page " + DialogPath::Of(*found.behind) + ", which is not in front");
    if (found.disabled == &iWidget)
        return Refuse(iWidget, "is disabled");
    if (found.disabled != nullptr)
        return Refuse(iWidget, "is disabled with " + DialogPath::Of(*found.disabled));
    const CATDlgWindow* const modal = TopModalWindow();
    if (modal != nullptr && !IsBelow(iWidget, *modal))
        return Refuse(iWidget, "is blocked by the modal window " + DialogPath::Of(*modal));
    return Outcome::Done();
}

bool DialogUser::CanSee(const CATDialog& iWidget) {
    const Obstacles found = FindObstacles(iWidget);
    return found.isInWindow && found.hidden == nullptr && found.doomed == nullptr && found.behind == nullptr;
}

Outcome DialogUser::Press(CATDlgPushButton& ioButton) {
    Outcome use = CanUse(ioButton);
    if (!use)
        return use;
    const EventScope event;
    ioButton.SendEvent(ioButton.GetPushBActivateNotification());
    return use;
}

Outcome DialogUser::PressStandardButton(CATDlgDialog& ioDialog, CATULong iButton) {
    Outcome use = CanUse(ioDialog);
    if (!use)
        return use;
    const std::vector<CATULong> buttons = Inspector::StandardButtons(ioDialog);
    if (std::find(buttons.begin(), buttons.end(), iButton) == buttons.end())
        return Refuse(ioDialog, "has no button " + NameOfButton(iButton));
    const EventScope event;
    static_cast<CATDialog&>(ioDialog).SendEvent(EventOfButton(ioDialog, iButton));
    return use;
}

Outcome DialogUser::PressEnter(CATDlgDialog& ioDialog) {
    const CATULong button = Inspector::DefaultButton(ioDialog);
    if (button == 0)
        return Refuse(ioDialog, "has no default button");
    return PressStandardButton(ioDialog, button);
}

Outcome DialogUser::PressEscape(CATDlgDialog& ioDialog) {
    const std::vector<CATULong> buttons = Inspector::StandardButtons(ioDialog);
    if (std::find(buttons.begin(), buttons.end(), CATDlgWndCANCEL) != buttons.end())
        return PressStandardButton(ioDialog, CATDlgWndCANCEL);
    return Close(ioDialog);
}

Outcome DialogUser::PressEscape(CATDlgDocument& ioMainWindow) {
    Outcome use = CanUse(ioMainWindow);
    if (!use)
        return use;
    const EventScope event;
    static_cast<CATDialog&>(ioMainWindow).SendEvent(ioMainWindow.GetEscapeNotification());
    return use;
}

Outcome DialogUser::OpenList(CATDlgCombo& ioCombo) {
    Outcome use = CanUse(ioCombo);
    if (!use)
        return use;
    const EventScope event;
    static_cast<CATDialog&>(ioCombo).SendEvent(ioCombo.GetComboDropNotification());
    return use;
}

Outcome DialogUser::Choose(CATDlgCombo& ioCombo, int iLine) {
    Outcome use = CanUse(ioCombo);
    if (!use)
        return use;
    if (iLine < 0 || iLine >= ioCombo.GetLineCount())
        return Refuse(ioCombo, NoLine(iLine, ioCombo.GetLineCount()));
    const EventScope event;
    ioCombo.SetSelect(iLine, CATDlgWithNotification);
    return use;
}

Outcome DialogUser::ChooseText(CATDlgCombo& ioCombo, const std::string& iText) {
    for (int line = 0; line < ioCombo.GetLineCount(); ++line) {
        CATUnicodeString text;
        ioCombo.GetLine(text, line);
        if (iText == text.ConvertToChar())
            return Choose(ioCombo, line);
    }
    Outcome use = CanUse(ioCombo);
    return use ? Refuse(ioCombo, "has no line '" + iText + "'") : use;
}

namespace {

Outcome SetChecked(CATDialog& ioButton, CATULong iState) {
    Outcome use = DialogUser::CanUse(ioButton);
    if (!use)
        return use;
    auto* const radio = dynamic_cast<CATDlgRadioButton*>(&ioButton);
    auto* const check = dynamic_cast<CATDlgCheckButton*>(&ioButton);
    if (radio == nullptr && check == nullptr)
        return Refuse(ioButton, "is no radio or check button");
    if (radio != nullptr && iState == CATDlgUncheck)
        return Refuse(ioButton, "is a radio button and cannot be unchecked by hand");
    const EventScope event;
    if (radio != nullptr)
        radio->SetState(iState, CATDlgWithNotification);
    else
        check->SetState(iState, CATDlgWithNotification);
    return use;
}

} // namespace

Outcome DialogUser::Check(CATDialog& ioButton) {
    return SetChecked(ioButton, CATDlgCheck);
}

Outcome DialogUser::Uncheck(CATDialog& ioButton) {
    return SetChecked(ioButton, CATDlgUncheck);
}

Outcome DialogUser::Type(CATDlgEditor& ioEditor, const std::string& iText) {
    Outcome use = CanUse(ioEditor);
    if (!use)
        return use;
    const CATDlgStyle style = Inspector::Style(ioEditor);
    if ((style & CATDlgEdtReadOnly) != 0)
        return Refuse(ioEditor, "is read-only");
    if ((style & CATDlgEdtMultiline) == 0 && iText.find('\n') != std::string::npos)
        return Refuse(ioEditor, "takes one line");
    const CATUnicodeString text(iText.c_str());
    const int longest = Inspector::MaxTextWidth(ioEditor);
    if (longest > 0 && text.GetLengthInChar() > longest)
        return Refuse(ioEditor, "takes at most " + std::to_string(longest) + " characters");
    const EventScope event;
    if (ioEditor.GetText() == text)
        return use;
    ioEditor.SetText(text);
    static_cast<CATDialog&>(ioEditor).SendEvent(ioEditor.GetEditModifyNotification());
    return use;
}

Outcome DialogUser::LeaveField(CATDlgEditor& ioEditor) {
    Outcome use = CanUse(ioEditor);
    if (!use)
        return use;
    const EventScope event;
    static_cast<CATDialog&>(ioEditor).SendEvent(ioEditor.GetEditFocusOutNotification());
    return use;
}

Outcome DialogUser::Spin(CATDlgSpinner& ioSpinner, int iSteps) {
    Outcome use = CanUse(ioSpinner);
    if (!use)
        return use;
    const EventScope event;
    const Inspector::Range range = Inspector::RangeOf(ioSpinner);
    const double wanted = ioSpinner.GetValue() + iSteps * range.step;
    ioSpinner.SetValue(std::clamp(wanted, range.minimum, range.maximum), CATDlgWithNotification);
    return use;
}

Outcome DialogUser::TypeValue(CATDlgSpinner& ioSpinner, const std::string& iText) {
    Outcome use = CanUse(ioSpinner);
    if (!use)
        return use;
    if ((Inspector::Style(ioSpinner) & CATDlgSpnEntry) == 0)
        return Refuse(ioSpinner, "has no field to type in");
    std::string number = iText;
    std::replace(number.begin(), number.end(), ',', '.');
    double value = 0.0;
    if (CATUnicodeString(number.c_str()).ConvertToNum(&value) != 0)
        return Refuse(ioSpinner, "takes numbers, and '" + iText + "' is none");
    if ((Inspector::Style(ioSpinner) & CATDlgSpnDouble) == 0 && std::trunc(value) != value)
        return Refuse(ioSpinner, "takes whole numbers, and '" + iText + "' is none");
    const Inspector::Range range = Inspector::RangeOf(ioSpinner);
    if (value < range.minimum || value > range.maximum)
        return Refuse(ioSpinner, "does not take " + iText + ", which is out of its range");
    const EventScope event;
    ioSpinner.SetValue(value, CATDlgWithNotification);
    return use;
}

Outcome DialogUser::CanEdit(const ValueFrame& iFrame) {
    Outcome use = CanUse(iFrame);
    return use && !iFrame.IsEditable() ? Refuse(iFrame, "is read-only") : use;
}

Outcome DialogUser::Type(ValueFrame& ioFrame, const std::string& iText) {
    Outcome edit = CanEdit(ioFrame);
    if (!edit)
        return edit;
    if (iText.find('\n') != std::string::npos)
        return Refuse(ioFrame, "takes one line");
    const EventScope event;
    ioFrame.Enter(iText);
    return edit;
}

Outcome DialogUser::Spin(ValueFrame& ioFrame, int iSteps) {
    Outcome edit = CanEdit(ioFrame);
    if (!edit)
        return edit;
    if (!ioFrame.HasSpinner())
        return Refuse(ioFrame, "has no arrows");
    const EventScope event;
    return ioFrame.Step(iSteps);
}

Outcome DialogUser::Restore(ValueFrame& ioFrame) {
    Outcome use = CanUse(ioFrame);
    if (!use)
        return use;
    const EventScope event;
    ioFrame.Restore();
    return use;
}

Outcome DialogUser::Select(CATDlgMultiList& ioList, const std::vector<int>& iLines) {
    Outcome use = CanUse(ioList);
    if (!use)
        return use;
    for (const int line : iLines)
        if (line < 0 || line >= ioList.GetLineCount())
            return Refuse(ioList, NoLine(line, ioList.GetLineCount()));
    if (iLines.size() > 1 && !Inspector::IsMultiSelection(ioList))
        return Refuse(ioList, "takes one selected line");
    const EventScope event;
    std::vector<int> lines = iLines;
    ioList.SetSelect(lines.data(), static_cast<int>(lines.size()), CATDlgWithNotification);
    return use;
}

// The list may be gone after each of the three notifications.
Outcome DialogUser::Activate(CATDlgMultiList& ioList, int iLine, int iColumn) {
    Outcome use = CanUse(ioList);
    if (!use)
        return use;
    if (iLine < 0 || iLine >= ioList.GetLineCount())
        return Refuse(ioList, NoLine(iLine, ioList.GetLineCount()));
    if (iColumn < 0 || iColumn >= ioList.GetColumnCount())
        return Refuse(ioList, "has no column " + std::to_string(iColumn));
    const EventScope event;
    const LifeWatch watch(ioList);
    CATDialog& widget = ioList;
    ioList.SetSelect(&iLine, 1, CATDlgWithNotification);
    if (watch.IsAlive())
        widget.SendEvent(ioList.GetListActivateNotification());
    if (!watch.IsAlive())
        return use;
    ioList._state->activatedColumn = iColumn;
    widget.SendEvent(ioList.GetListColumnActivateNotification());
    return use;
}

Outcome DialogUser::ShowPage(CATDlgTabPage& ioPage) {
    CATDialog* const parent = Inspector::Parent(ioPage);
    auto* const pages = dynamic_cast<CATDlgTabContainer*>(parent);
    if (pages == nullptr)
        return Refuse(ioPage, "is in no tab container");
    if (DelayedDestruction::IsDoomed(ioPage))
        return Refuse(ioPage, "is on its way out");
    if (ioPage.GetVisibility() == CATDlgHide)
        return Refuse(ioPage, "is hidden");
    Outcome use = CanUse(*pages);
    if (!use)
        return use;
    const std::vector<CATDialog*> all = Inspector::Children(*pages);
    const int number =
        static_cast<int>(std::find(all.begin(), all.end(), static_cast<CATDialog*>(&ioPage)) - all.begin());
    if (number == pages->GetSelectedPage())
        return use;
    const EventScope event;
    pages->SetSelectedPage(number, CATDlgWithNotification);
    return use;
}

Outcome DialogUser::Move(CATDlgWindow& ioWindow, int iX, int iY) {
    Outcome use = CanUse(ioWindow);
    if (!use)
        return use;
    int height = 0;
    int width = 0;
    ioWindow.GetRectDimensions(nullptr, nullptr, &height, &width);
    const EventScope event;
    ioWindow.SetRectDimensions(iX, iY, height, width);
    static_cast<CATDialog&>(ioWindow).SendEvent(ioWindow.GetWindMoveNotification());
    return use;
}

Outcome DialogUser::Resize(CATDlgWindow& ioWindow, int iHeight, int iWidth) {
    Outcome use = CanUse(ioWindow);
    if (!use)
        return use;
    if (iHeight < 0 || iWidth < 0)
        return Refuse(ioWindow, "cannot have a negative extent");
    int x = 0;
    int y = 0;
    ioWindow.GetRectDimensions(&x, &y, nullptr, nullptr);
    const EventScope event;
    ioWindow.SetRectDimensions(x, y, iHeight, iWidth);
    static_cast<CATDialog&>(ioWindow).SendEvent(ioWindow.GetWindSizeNotification());
    return use;
}

Outcome DialogUser::Close(CATDlgWindow& ioWindow) {
    Outcome use = CanUse(ioWindow);
    if (!use)
        return use;
    const EventScope event;
    static_cast<CATDialog&>(ioWindow).SendEvent(ioWindow.GetWindCloseNotification());
    return use;
}

} // namespace host
