#include "KeyboardAccess.h"

#include "CATDlgWindow.h"
#include "LabelPeer.h"
#include "Names.h"
#include "PeerTree.h"
#include "StandardButtons.h"
#include "Texts.h"
#include "WindowPeer.h"
#include "host/Inspector.h"

#include <algorithm>

namespace desktop {

namespace {

bool IsRightOf(const host::Cell& iCell, const host::Cell& iLabel) {
    return iCell.row <= iLabel.row && iLabel.row < iCell.row + iCell.rowSpan &&
           iCell.column >= iLabel.column + iLabel.columnSpan;
}

bool IsBelow(const host::Cell& iCell, const host::Cell& iLabel) {
    return iCell.column == iLabel.column && iCell.row >= iLabel.row + iLabel.rowSpan;
}

// From left to right.
std::vector<host::Cell> CellsRightOf(const host::LayoutPlan& iPlan, const host::Cell& iLabel) {
    std::vector<host::Cell> right;
    for (const host::Cell& cell : iPlan.cells)
        if (IsRightOf(cell, iLabel))
            right.push_back(cell);
    std::stable_sort(right.begin(), right.end(),
                     [](const host::Cell& a, const host::Cell& b) { return a.column < b.column; });
    return right;
}

// From top to bottom.
std::vector<host::Cell> CellsBelow(const host::LayoutPlan& iPlan, const host::Cell& iLabel) {
    std::vector<host::Cell> below;
    for (const host::Cell& cell : iPlan.cells)
        if (IsBelow(cell, iLabel))
            below.push_back(cell);
    std::stable_sort(below.begin(), below.end(),
                     [](const host::Cell& a, const host::Cell& b) { return a.row < b.row; });
    return below;
}

// A label with a text; blank labels only keep the distance.
LabelPeer* AsText(Peer* iPeer) {
    auto* const label = dynamic_cast<LabelPeer*>(iPeer);
    return label == nullptr || label->Caption().trimmed().isEmpty() ? nullptr : label;
}

bool IsPage(const CATDialog& iWidget) {
    const CATDialog* const parent = host::Inspector::Parent(iWidget);
    return parent != nullptr && host::Inspector::HoldsPages(*parent);
}

// The innermost page that a widget is on; null for none.
const CATDialog* PageOf(const CATDialog& iWidget) {
    const CATDialog* widget = host::Inspector::Parent(iWidget);
    while (widget != nullptr && !IsPage(*widget))
        widget = host::Inspector::Parent(*widget);
    return widget;
}

} // namespace

KeyboardAccess::KeyboardAccess(const PeerTree& iTree, WindowPeer& ioWindow)
    : _tree(iTree), _window(ioWindow) {}

void KeyboardAccess::Provide() {
    Collect(*_window.Dialog());
    ShowCaptions();
    NameFields();
}

void KeyboardAccess::Collect(const CATDialog& iContainer) {
    for (CATDialog* child : host::Inspector::Children(iContainer)) {
        Peer* const peer = _tree.PeerOf(*child);
        if (peer == nullptr || peer->Widget()->isWindow())
            continue;
        _peers.push_back(peer);
        Collect(*child);
    }
    PairLabels(iContainer);
}

// A label stands for what is beside it, and where that is nothing or another label for what is below it, if
// that is a field without a caption of its own. What is beside a field comes first.
void KeyboardAccess::PairLabels(const CATDialog& iContainer) {
    const host::LayoutPlan plan = host::PlanLayout(iContainer);
    std::vector<const host::Cell*> headings;
    for (const host::Cell& cell : plan.cells) {
        Peer* const peer = _tree.PeerOf(*cell.child);
        if (auto* const label = dynamic_cast<LabelPeer*>(peer))
            label->SetField(nullptr);
        LabelPeer* const text = AsText(peer);
        if (text == nullptr)
            continue;
        Peer* const beside = FirstThingIn(CellsRightOf(plan, cell));
        if (beside == nullptr || AsText(beside) != nullptr)
            headings.push_back(&cell);
        else
            Pair(*text, *beside);
    }
    for (const host::Cell* heading : headings)
        if (Peer* const below = FirstThingIn(CellsBelow(plan, *heading)))
            Pair(*AsText(_tree.PeerOf(*heading->child)), *below);
}

// Empty boxes between them only keep the distance, like blank labels. Null for nothing else.
Peer* KeyboardAccess::FirstThingIn(const std::vector<host::Cell>& iCells) const {
    for (const host::Cell& cell : iCells) {
        if (Peer* const text = AsText(_tree.PeerOf(*cell.child)))
            return text;
        if (Peer* const field = FirstFieldIn(*cell.child))
            return field;
    }
    return nullptr;
}

void KeyboardAccess::Pair(LabelPeer& ioLabel, const Peer& iField) {
    QWidget* const field = iField.Field();
    if (field == nullptr || !iField.Caption().isEmpty() || _labels.contains(field))
        return;
    ioLabel.SetField(field);
    _labels.insert(field, &ioLabel);
}

Peer* KeyboardAccess::FirstFieldIn(CATDialog& ioWidget) const {
    Peer* const peer = _tree.PeerOf(ioWidget);
    if (peer == nullptr)
        return nullptr;
    if (peer->Field() != nullptr)
        return peer;
    for (CATDialog* child : host::Inspector::Children(ioWidget))
        if (child->GetVisibility() == CATDlgShow)
            if (Peer* const field = FirstFieldIn(*child))
                return field;
    return nullptr;
}

void KeyboardAccess::ShowCaptions() {
    Mnemonics mnemonics;
    _window.Buttons().ShowCaptions(mnemonics);
    ShowCaptionsOn(nullptr, mnemonics);
}

// Of pages behind one another only one is seen, so that each has the letters that are left around them. Null
// for what is on no page.
void KeyboardAccess::ShowCaptionsOn(const CATDialog* iPage, Mnemonics iMnemonics) {
    for (Peer* peer : _peers) {
        if (PageOf(*peer->Dialog()) != iPage)
            continue;
        const QString caption = peer->Caption();
        peer->ShowCaption(peer->TakesMnemonic() && !caption.isEmpty() ? iMnemonics.Take(caption) : -1);
    }
    for (const Peer* peer : _peers)
        if (IsPage(*peer->Dialog()) && PageOf(*peer->Dialog()) == iPage)
            ShowCaptionsOn(peer->Dialog(), iMnemonics);
}

void KeyboardAccess::NameFields() const {
    for (const Peer* peer : _peers)
        if (QWidget* const part = peer->Named())
            part->setAccessibleName(NameOf(*peer));
}

// The widget's identifier says least.
QString KeyboardAccess::NameOf(const Peer& iPeer) const {
    const LabelPeer* const label = _labels.value(iPeer.Field());
    const QString names[] = {GivenTitle(*iPeer.Dialog()),
                             label == nullptr ? QString() : label->Caption().trimmed(),
                             GivenText(*iPeer.Dialog(), iPeer.Caption()),
                             ToQt(iPeer.Dialog()->GetShortHelp()), TitleAround(*iPeer.Dialog())};
    for (const QString& name : names)
        if (!name.isEmpty())
            return name;
    return ToQt(iPeer.Dialog()->GetName());
}

} // namespace desktop
