#include "host/DialogUser.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
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

#include <algorithm>

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
    for (const CATDlgWindow* window : Inspector::Windows())
        if (Inspector::IsModal(*window) && Inspector::IsShownWithParents(*window))
            top = window;
    return top;
}

// The first widget, from iWidget upwards, that iIsBad holds for; null for none.
template<class Test>
const CATDialog* FirstUpwards(const CATDialog& iWidget, const Test& iIsBad) {
    for (const CATDialog* widget = &iWidget; widget != nullptr; widget = Inspector::Parent(*widget))
        if (iIsBad(*widget))
            return widget;
    return nullptr;
}

bool IsPageBehind(const CATDialog& iWidget) {
    const CATDialog* const parent = Inspector::Parent(iWidget);
    const auto* const pages = dynamic_cast<const CATDlgTabContainer*>(parent);
    if (pages == nullptr)
        return false;
    const std::vector<CATDialog*> all = Inspector::Children(*pages);
    const int front = pages->GetSelectedPage();
    return front < 0 || all[static_cast<std::size_t>(front)] != &iWidget;
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

Outcome DialogUser::CanUse(const CATDialog& iWidget) {
    if (FirstUpwards(iWidget, [](const CATDialog& iEach) { return DelayedDestruction::IsDoomed(iEach); }) !=
        nullptr)
        return Refuse(iWidget, "is on its way out");
    if (WidgetTree::Root() == nullptr || !IsBelow(iWidget, *WidgetTree::Root()))
        return Refuse(iWidget, "is in no window");
    if (Messages::IsWaiting())
        return Refuse(iWidget, "is blocked by a message that waits for its answer");
    const CATDialog* const hidden =
        FirstUpwards(iWidget, [](const CATDialog& iEach) { return iEach.GetVisibility() == CATDlgHide; });
    if (hidden == &iWidget)
        return Refuse(iWidget, "is hidden");
    if (hidden != nullptr)
        return Refuse(iWidget, "is hidden with " + DialogPath::Of(*hidden));
    const CATDialog* const behind = FirstUpwards(iWidget, IsPageBehind);
    if (behind != nullptr)
        return Refuse(iWidget, "is on the page " + DialogPath::Of(*behind) + ", which is not in front");
    const CATDialog* const disabled =
        FirstUpwards(iWidget, [](const CATDialog& iEach) { return iEach.GetSensitivity() == CATDlgDisable; });
    if (disabled == &iWidget)
        return Refuse(iWidget, "is disabled");
    if (disabled != nullptr)
        return Refuse(iWidget, "is disabled with " + DialogPath::Of(*disabled));
    const CATDlgWindow* const modal = TopModalWindow();
    if (modal != nullptr && !IsBelow(iWidget, *modal))
        return Refuse(iWidget, "is blocked by the modal window " + DialogPath::Of(*modal));
    return Outcome::Done();
}

bool DialogUser::CanSee(const CATDialog& iWidget) {
    const auto isUnseen = [](const CATDialog& iEach) {
        return iEach.GetVisibility() == CATDlgHide || DelayedDestruction::IsDoomed(iEach) ||
               IsPageBehind(iEach);
    };
    const CATDialog* const root = WidgetTree::Root();
    return root != nullptr && IsBelow(iWidget, *root) && FirstUpwards(iWidget, isUnseen) == nullptr;
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
    const EventScope event;
    if (auto* radio = dynamic_cast<CATDlgRadioButton*>(&ioButton)) {
        if (iState == CATDlgUncheck)
            return Refuse(ioButton, "is a radio button and cannot be unchecked by hand");
        radio->SetState(iState, CATDlgWithNotification);
    } else if (auto* check = dynamic_cast<CATDlgCheckButton*>(&ioButton)) {
        check->SetState(iState, CATDlgWithNotification);
    } else {
        return Refuse(ioButton, "is no radio or check button");
    }
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
    double value = 0.0;
    if (CATUnicodeString(iText.c_str()).ConvertToNum(&value) != 0)
        return Refuse(ioSpinner, "takes numbers, and '" + iText + "' is none");
    const Inspector::Range range = Inspector::RangeOf(ioSpinner);
    if (value < range.minimum || value > range.maximum)
        return Refuse(ioSpinner, "does not take " + iText + ", which is out of its range");
    const EventScope event;
    ioSpinner.SetValue(value, CATDlgWithNotification);
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
