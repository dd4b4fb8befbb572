#include "PeerTree.h"

#include "CATDlgWindow.h"
#include "KeyboardAccess.h"
#include "Peer.h"
#include "PeerFactory.h"
#include "WindowPeer.h"
#include "host/Inspector.h"
#include "host/Messages.h"

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace desktop {

PeerTree::PeerTree() {
    _commitLater.setSingleShot(true);
    QObject::connect(&_commitLater, &QTimer::timeout, &_commitLater, [this] { CommitText(nullptr); });
}

// A field that goes with its window loses the focus; that is nobody's doing.
PeerTree::~PeerTree() {
    _isApplying = true;
    for (const auto& [widget, peer] : _peers)
        peer->Detach();
}

void PeerTree::AddAll() {
    const QScopedValueRollback<bool> applying(_isApplying, true);
    for (CATDlgWindow* window : host::Inspector::Windows())
        if (PeerOf(*window) == nullptr)
            AddWithChildren(*window);
    Settle();
}

void PeerTree::Apply(const host::DialogChanges& iChanges) {
    const QScopedValueRollback<bool> applying(_isApplying, true);
    for (CATDialog* widget : iChanges.created)
        Add(*widget);
    for (const auto& [widget, kinds] : iChanges.changed)
        Refresh(*widget, kinds);
    Settle();
}

void PeerTree::Remove(const CATDialog& iWidget) {
    const auto found = _peers.find(&iWidget);
    if (found == _peers.end())
        return;
    const QScopedValueRollback<bool> applying(_isApplying, true);
    Peer* const peer = found->second;
    _peers.erase(found);
    _windows.erase(std::remove(_windows.begin(), _windows.end(), peer), _windows.end());
    NoteTypingEnded(*peer);
    peer->Detach();
    peer->deleteLater();
}

void PeerTree::RefreshAll() {
    const QScopedValueRollback<bool> applying(_isApplying, true);
    for (const auto& [widget, peer] : _peers)
        Refresh(*peer->Dialog(), everything);
    Settle();
}

Peer* PeerTree::PeerOf(const CATDialog& iWidget) const {
    const auto found = _peers.find(&iWidget);
    return found == _peers.end() ? nullptr : found->second;
}

void PeerTree::NoteTypingEnded(const Peer& iPeer) {
    if (_typing == &iPeer)
        _typing = nullptr;
}

void PeerTree::CommitText(const Peer* iExcept) {
    if (_typing != nullptr && _typing != iExcept && !host::Messages::IsWaiting())
        _typing->CommitText();
}

void PeerTree::CommitAll(const Peer* iExcept) {
    CommitText(iExcept);
    for (WindowPeer* window : std::vector<WindowPeer*>(_windows))
        window->ReportPlace();
}

Peer* PeerTree::FirstRefused(const CATDialog& iContainer) const {
    for (const CATDialog* child : host::Inspector::Children(iContainer)) {
        if (host::Inspector::IsWindow(*child))
            continue;
        Peer* const peer = PeerOf(*child);
        const bool canBeMended = peer != nullptr && peer->HoldsRefusedText() && peer->Field()->isVisible() &&
                                 peer->Field()->isEnabled();
        Peer* const refused = canBeMended ? peer : FirstRefused(*child);
        if (refused != nullptr)
            return refused;
    }
    return nullptr;
}

void PeerTree::WarnOnce(const QString& iText) {
    if (_warnings.contains(iText))
        return;
    _warnings.insert(iText);
    qWarning("%s", qUtf8Printable(iText));
}

void PeerTree::AddWithChildren(CATDialog& ioWidget) {
    Add(ioWidget);
    for (CATDialog* child : host::Inspector::Children(ioWidget))
        AddWithChildren(*child);
}

void PeerTree::Add(CATDialog& ioWidget) {
    CATDialog* const parent = host::Inspector::Parent(ioWidget);
    Peer* const container = parent == nullptr ? nullptr : PeerOf(*parent);
    Peer* const peer = MakePeer(*this, ioWidget, container);
    if (peer == nullptr)
        return;
    peer->setParent(&_owner);
    _peers.emplace(&ioWidget, peer);
    if (peer->Widget()->isWindow())
        _windows.push_back(static_cast<WindowPeer*>(peer));
    else
        NoteContentOf(parent);
    if (peer->Inside() != nullptr)
        NoteContentOf(&ioWidget);
    NoteWindowOf(ioWidget);
    peer->Refresh(everything);
}

void PeerTree::Refresh(CATDialog& ioWidget, unsigned int iKinds) {
    Peer* const peer = PeerOf(ioWidget);
    if (peer == nullptr)
        return;
    peer->Refresh(iKinds);
    if ((iKinds & host::ChangeLayout) != 0 && peer->Inside() != nullptr)
        NoteContentOf(&ioWidget);
    constexpr unsigned int placing = host::ChangeVisibility | host::ChangeLayout;
    if ((iKinds & placing) != 0)
        NoteContentOf(host::Inspector::Parent(ioWidget));
    constexpr unsigned int naming = placing | host::ChangeTitle | host::ChangeHelp | host::ChangeIcon;
    const unsigned int named = iKinds & naming;
    // A window that is shown or hidden as it is has been brought up to date before.
    const bool isShownAsItIs = host::Inspector::IsWindow(ioWidget) && named == host::ChangeVisibility;
    if (peer->TakeNeedsRoom() || (named != 0 && !isShownAsItIs))
        NoteWindowOf(ioWidget);
}

void PeerTree::NoteContentOf(CATDialog* iContainer) {
    if (iContainer != nullptr && _isUnarranged.insert(iContainer).second)
        _unarranged.push_back(iContainer);
}

void PeerTree::NoteWindowOf(const CATDialog& iWidget) {
    const CATDlgWindow* const window = host::Inspector::WindowOf(iWidget);
    if (window != nullptr)
        _changedWindows.insert(window);
}

// Places first, then keyboard and names, which follow from the places, and last the windows, which then come
// up complete.
void PeerTree::Settle() {
    for (CATDialog* container : _unarranged)
        if (Peer* const peer = PeerOf(*container))
            peer->Arrange();
    _unarranged.clear();
    _isUnarranged.clear();
    for (WindowPeer* window : _windows)
        if (_changedWindows.count(window->Dialog()) != 0)
            Present(*window);
    _changedWindows.clear();
    for (WindowPeer* window : std::vector<WindowPeer*>(_windows))
        window->ShowOrHide();
    CommitTextLater();
}

void PeerTree::Present(WindowPeer& ioWindow) {
    KeyboardAccess(*this, ioWindow).Provide();
    ioWindow.FitToContent();
}

// A field may have lost the focus while the windows were brought up to date.
void PeerTree::CommitTextLater() {
    if (_typing != nullptr && !_typing->Field()->hasFocus())
        _commitLater.start(0);
}

} // namespace desktop
