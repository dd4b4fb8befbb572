#include "WidgetTree.h"

#include "CATDlgWindow.h"
#include "ChangeLog.h"
#include "host/DelayedDestruction.h"
#include "host/Misuse.h"

#include <algorithm>
#include <unordered_map>

namespace host {

namespace {

typedef std::unordered_map<std::string, std::vector<CATDialog*>> NameIndex;

CATDialog* root = nullptr;
bool isIndexed = false;

NameIndex& Names() {
    static auto* names = new NameIndex;
    return *names;
}

std::vector<CATDlgWindow*>& AllWindows() {
    static auto* windows = new std::vector<CATDlgWindow*>;
    return *windows;
}

template<class Widget>
void Erase(std::vector<Widget*>& ioWidgets, const Widget* iWidget) {
    const auto found = std::find(ioWidgets.rbegin(), ioWidgets.rend(), iWidget);
    if (found != ioWidgets.rend())
        ioWidgets.erase(std::next(found).base());
}

std::string Quoted(const CATString& iName) {
    return std::string("'") + iName.ConvertToChar() + "'";
}

} // namespace

unsigned WidgetTree::_revision = 1;

void WidgetTree::Join(CATDialog& ioWidget) {
    ++_revision;
    CATDialog* const parent = ioWidget._parent;
    if (parent != nullptr) {
        ioWidget._previousSibling = parent->_lastChild;
        (parent->_lastChild == nullptr ? parent->_firstChild : parent->_lastChild->_nextSibling) = &ioWidget;
        parent->_lastChild = &ioWidget;
        if (!parent->_takesChildren)
            Misuse::Record("the widget " + Quoted(ioWidget.GetName()) + " was made in " +
                           Quoted(parent->GetName()) + ", which takes no children");
    } else if (root != nullptr) {
        Misuse::Record("the widget " + Quoted(ioWidget.GetName()) + " was made without a parent");
    }
    if (ioWidget.GetName().GetLengthInChar() == 0)
        Misuse::Record("a widget was made without a name");
    Announce(ioWidget);
}

void WidgetTree::Announce(CATDialog& ioWidget) {
    if (isIndexed)
        Names()[ioWidget.GetName().ConvertToChar()].push_back(&ioWidget);
    if (CATDialog::_isWatched)
        ChangeLog::NoteCreation(ioWidget);
}

void WidgetTree::Leave(CATDialog& ioWidget) {
    ++_revision;
    CATDialog* const parent = ioWidget._parent;
    if (parent != nullptr) {
        CATDialog* const before = ioWidget._previousSibling;
        CATDialog* const after = ioWidget._nextSibling;
        (before == nullptr ? parent->_firstChild : before->_nextSibling) = after;
        (after == nullptr ? parent->_lastChild : after->_previousSibling) = before;
    }
    if (isIndexed)
        Erase(Names()[ioWidget.GetName().ConvertToChar()], &ioWidget);
    if (CATDialog::_isWatched)
        ChangeLog::NoteDestruction(ioWidget);
    if (root == &ioWidget)
        SetRoot(nullptr);
}

void WidgetTree::JoinWindow(CATDlgWindow& ioWindow) {
    AllWindows().push_back(&ioWindow);
}

void WidgetTree::LeaveWindow(CATDlgWindow& ioWindow) {
    Erase(AllWindows(), &ioWindow);
}

const std::vector<CATDlgWindow*>& WidgetTree::Windows() {
    return AllWindows();
}

std::vector<CATDialog*> WidgetTree::Named(const std::string& iName) {
    if (!isIndexed && root != nullptr) {
        isIndexed = true;
        Index(*root);
    }
    std::vector<CATDialog*> widgets;
    const auto found = Names().find(iName);
    if (found == Names().end())
        return widgets;
    std::copy_if(found->second.begin(), found->second.end(), std::back_inserter(widgets),
                 [](const CATDialog* iWidget) { return IsReachable(*iWidget); });
    return widgets;
}

void WidgetTree::SetRoot(CATDialog* iRoot) {
    root = iRoot;
    isIndexed = false;
    Names().clear();
}

CATDialog* WidgetTree::Root() {
    return root;
}

void WidgetTree::Index(CATDialog& ioWidget) {
    Names()[ioWidget.GetName().ConvertToChar()].push_back(&ioWidget);
    for (CATDialog* child = ioWidget._firstChild; child != nullptr; child = child->_nextSibling)
        Index(*child);
}

bool WidgetTree::IsReachable(const CATDialog& iWidget) {
    const CATDialog* widget = &iWidget;
    for (; widget != nullptr && widget != root; widget = widget->_parent)
        if (DelayedDestruction::IsDoomed(*widget))
            return false;
    return widget != nullptr && &iWidget != root;
}

} // namespace host
