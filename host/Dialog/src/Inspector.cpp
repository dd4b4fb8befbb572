#include "host/Inspector.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgProgress.h"
#include "CATDlgSpinner.h"
#include "DialogExtras.h"
#include "MultiListState.h"
#include "PowerInput.h"
#include "ResourceTexts.h"
#include "WidgetTree.h"
#include "host/DelayedDestruction.h"
#include "host/MessageCatalogs.h"

#include <algorithm>
#include <filesystem>

namespace host {

namespace {

constexpr std::size_t normalIcon = 0;

bool Contains(const std::vector<int>& iNumbers, int iNumber) {
    return std::find(iNumbers.begin(), iNumbers.end(), iNumber) != iNumbers.end();
}

// Whether the way upwards ends at iWidget.
bool IsTop(const CATDialog* iWidget) {
    return iWidget == nullptr || iWidget == WidgetTree::Root();
}

} // namespace

CATDialog* Inspector::Parent(const CATDialog& iWidget) {
    return iWidget._parent;
}

CATDialog* Inspector::FirstChild(const CATDialog& iWidget) {
    CATDialog* const child = iWidget._firstChild;
    return child == nullptr || !DelayedDestruction::IsDoomed(*child) ? child : NextSibling(*child);
}

CATDialog* Inspector::NextSibling(const CATDialog& iWidget) {
    CATDialog* sibling = iWidget._nextSibling;
    while (sibling != nullptr && DelayedDestruction::IsDoomed(*sibling))
        sibling = sibling->_nextSibling;
    return sibling;
}

std::vector<CATDialog*> Inspector::Children(const CATDialog& iWidget) {
    std::vector<CATDialog*> children;
    for (CATDialog* child = FirstChild(iWidget); child != nullptr; child = NextSibling(*child))
        children.push_back(child);
    return children;
}

CATDlgWindow* Inspector::WindowOf(const CATDialog& iWidget) {
    for (const CATDialog* widget = &iWidget; widget != nullptr; widget = widget->_parent)
        if (const auto* window = dynamic_cast<const CATDlgWindow*>(widget))
            return const_cast<CATDlgWindow*>(window);
    return nullptr;
}

std::vector<CATDlgWindow*> Inspector::Windows() {
    std::vector<CATDlgWindow*> windows;
    for (CATDlgWindow* window : WidgetTree::Windows())
        if (WidgetTree::IsReachable(*window))
            windows.push_back(window);
    return windows;
}

bool Inspector::IsWindow(const CATDialog& iWidget) {
    return iWidget._isWindow;
}

bool Inspector::HoldsPages(const CATDialog& iWidget) {
    return iWidget._holdsPages;
}

CATDlgStyle Inspector::Style(const CATDialog& iWidget) {
    return iWidget._style;
}

bool Inspector::IsShownWithParents(const CATDialog& iWidget) {
    for (const CATDialog* widget = &iWidget; !IsTop(widget); widget = widget->_parent)
        if (!widget->_isShown)
            return false;
    return true;
}

bool Inspector::IsEnabledWithParents(const CATDialog& iWidget) {
    for (const CATDialog* widget = &iWidget; !IsTop(widget); widget = widget->_parent)
        if (!widget->_isEnabled)
            return false;
    return true;
}

bool Inspector::ShowsTitle(const CATDialog& iWidget) {
    if (!iWidget._drawsTitle)
        return false;
    return dynamic_cast<const CATDlgLabel*>(&iWidget) == nullptr || IconOf(iWidget, normalIcon).empty();
}

IconNames Inspector::Icons(const CATDialog& iWidget) {
    return IconNames{std::string(IconOf(iWidget, normalIcon)), std::string(IconOf(iWidget, 1)),
                     std::string(IconOf(iWidget, 2)), std::string(IconOf(iWidget, 3))};
}

std::string_view Inspector::IconOf(const CATDialog& iWidget, std::size_t iState) {
    static const char* const keywords[4] = {"Icon.Normal", "Icon.Selected", "Icon.Focused", "Icon.Disabled"};
    const char* const set = iWidget._extras == nullptr ? "" : iWidget._extras->icons[iState].ConvertToChar();
    if (*set != '\0')
        return set;
    const std::string* const value = ResourceTexts::Value(iWidget, keywords[iState]);
    return value == nullptr ? std::string_view() : std::string_view(*value);
}

std::string Inspector::IconFile(const std::string& iName) {
    if (iName.empty() || iName.find('/') != std::string::npos)
        return std::string();
    for (const std::string& folder : MessageCatalogs::Folders())
        for (const char* suffix : {".svg", ".png", ".bmp"}) {
            std::string file = folder;
            file.append("/../graphic/icons/normal/").append(iName).append(suffix);
            std::error_code ignored;
            if (std::filesystem::is_regular_file(file, ignored))
                return file;
        }
    return std::string();
}

std::vector<Attachment> Inspector::Attachments(const CATDialog& iContainer) {
    std::vector<Attachment> all;
    for (const CATDialog* child : Children(iContainer))
        for (const Attachment& attachment : AttachmentsOf(*child))
            all.push_back(attachment);
    return all;
}

std::vector<Attachment> Inspector::AttachmentsOf(const CATDialog& iChild) {
    std::vector<Attachment> attachments;
    for (const bool vertical : {true, false}) {
        const TabSpan span = vertical ? ColumnsOf(iChild) : RowsOf(iChild);
        if (span.hasLeading)
            attachments.push_back(
                Attachment{&iChild, vertical, span.leading, span.isCentred ? CATDlgCenter : CATDlgTopOrLeft});
        if (span.hasTrailing)
            attachments.push_back(
                Attachment{&iChild, vertical, span.trailing,
                           span.stretches ? CATDlgRightOrBottomRelative : CATDlgRightOrBottom});
    }
    return attachments;
}

Inspector::TabSpan Inspector::ColumnsOf(const CATDialog& iChild) {
    return iChild._columns;
}

Inspector::TabSpan Inspector::RowsOf(const CATDialog& iChild) {
    return iChild._rows;
}

bool Inspector::HasGridConstraints(const CATDialog& iChild) {
    return iChild._extras != nullptr && iChild._extras->gridConstraints.has_value();
}

CATDlgGridConstraints Inspector::GridConstraints(const CATDialog& iChild) {
    return HasGridConstraints(iChild) ? *iChild._extras->gridConstraints : CATDlgGridConstraints();
}

bool Inspector::IsGridRowResizable(const CATDialog& iContainer, int iRow) {
    return iContainer._extras != nullptr && Contains(iContainer._extras->resizableRows, iRow);
}

bool Inspector::IsGridColumnResizable(const CATDialog& iContainer, int iColumn) {
    return iContainer._extras != nullptr && Contains(iContainer._extras->resizableColumns, iColumn);
}

CATDlgOrientation Inspector::DefaultOrientation(const CATDialog& iContainer) {
    return iContainer._orientation;
}

int Inspector::VisibleTextHeight(const CATDialog& iControl) {
    if (const auto* combo = dynamic_cast<const CATDlgCombo*>(&iControl))
        return combo->_visibleHeight;
    if (const auto* editor = dynamic_cast<const CATDlgEditor*>(&iControl))
        return editor->_visibleHeight;
    if (const auto* list = dynamic_cast<const CATDlgMultiList*>(&iControl))
        return list->_state->visibleHeight;
    return 0;
}

int Inspector::VisibleTextWidth(const CATDialog& iControl) {
    if (const auto* combo = dynamic_cast<const CATDlgCombo*>(&iControl))
        return combo->_visibleWidth;
    if (const auto* editor = dynamic_cast<const CATDlgEditor*>(&iControl))
        return editor->_visibleWidth;
    if (const auto* list = dynamic_cast<const CATDlgMultiList*>(&iControl))
        return list->_state->visibleWidth;
    return 0;
}

int Inspector::MaxTextWidth(const CATDlgEditor& iEditor) {
    return iEditor._maximumWidth;
}

std::vector<CATULong> Inspector::ButtonsOfStyle(CATDlgStyle iStyle) {
    std::vector<CATULong> buttons;
    if ((iStyle & CATDlgWndNoButton) != 0)
        return buttons;
    for (const CATULong button :
         {CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL, CATDlgWndCLOSE, CATDlgWndHELP})
        if ((iStyle & button) != 0)
            buttons.push_back(button);
    if (buttons.empty())
        buttons = {CATDlgWndOK, CATDlgWndCANCEL, CATDlgWndHELP};
    return buttons;
}

CATULong Inspector::FirstDefaultButton(CATDlgStyle iStyle) {
    const std::vector<CATULong> buttons = ButtonsOfStyle(iStyle);
    return !buttons.empty() && buttons.front() == CATDlgWndOK ? CATDlgWndOK : 0;
}

std::vector<CATULong> Inspector::StandardButtons(const CATDlgDialog& iDialog) {
    return ButtonsOfStyle(Style(iDialog));
}

CATULong Inspector::DefaultButton(const CATDlgDialog& iDialog) {
    return iDialog._defaultButton;
}

bool Inspector::IsModal(const CATDlgWindow& iWindow) {
    return (Style(iWindow) & CATDlgWndModal) != 0 && dynamic_cast<const CATDlgDialog*>(&iWindow) != nullptr;
}

int Inspector::PowerInputUpdates(const CATDlgDialog& iDialog) {
    return iDialog._powerInputUpdates;
}

bool Inspector::IsPowerInputLinked(const CATDlgDialog& iDialog) {
    return iDialog._powerInputLinked != 0;
}

const CATDlgDialog* Inspector::PowerInputOwner() {
    return PowerInput::Owner();
}

int Inspector::VisibleColumnCount(const CATDlgMultiList& iList) {
    return iList._state->visibleColumns;
}

int Inspector::ColumnTextWidth(const CATDlgMultiList& iList, int iColumn) {
    const std::vector<int>& widths = iList._state->columnWidths;
    const bool isThere = iColumn >= 0 && iColumn < static_cast<int>(widths.size());
    return isThere ? widths[static_cast<std::size_t>(iColumn)] : 0;
}

bool Inspector::IsMultiSelection(const CATDlgMultiList& iList) {
    return (Style(iList) & CATDlgLstMultisel) != 0;
}

int Inspector::Clearings(const CATDlgMultiList& iList) {
    return iList._state->clearings;
}

std::size_t Inspector::BytesOfLines(const CATDlgMultiList& iList) {
    return iList._state->cells.Bytes();
}

Inspector::Range Inspector::RangeOf(const CATDlgSpinner& iSpinner) {
    return Range{iSpinner._minimum, iSpinner._maximum, iSpinner._step, iSpinner._precision};
}

Inspector::Range Inspector::RangeOf(const CATDlgProgress& iProgress) {
    return Range{static_cast<double>(iProgress._minimum), static_cast<double>(iProgress._maximum),
                 static_cast<double>(iProgress._step), 0};
}

std::string Inspector::ShownText(const CATDlgSpinner& iSpinner) {
    constexpr int mostDigits = 15;
    const int precision = std::min(iSpinner._precision, mostDigits);
    const std::string format = precision < 0 ? "%g" : "%." + std::to_string(precision) + "f";
    CATUnicodeString number;
    number.BuildFromNum(iSpinner._value, format.c_str());
    const std::string text = number.ConvertToChar();
    const bool isMinusZero = text.front() == '-' && text.find_first_of("123456789") == std::string::npos;
    return isMinusZero ? text.substr(1) : text;
}

} // namespace host
