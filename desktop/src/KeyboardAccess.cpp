#include "KeyboardAccess.h"

#include "CATDlgWindow.h"
#include "LabelPeer.h"
#include "Names.h"
#include "PeerTree.h"
#include "StandardButtons.h"
#include "Texts.h"
#include "WindowPeer.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"

#include <QtWidgets/QPushButton>

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

// The cells right of a label from left to right, then those below it from top to bottom.
std::vector<host::Cell> CellsAfter(const host::LayoutPlan& iPlan, const host::Cell& iLabel) {
    std::vector<host::Cell> right;
    std::vector<host::Cell> below;
    for (const host::Cell& cell : iPlan.cells) {
        if (IsRightOf(cell, iLabel))
            right.push_back(cell);
        else if (IsBelow(cell, iLabel))
            below.push_back(cell);
    }
    std::stable_sort(right.begin(), right.end(),
                     [](const host::Cell& a, const host::Cell& b) { return a.column < b.column; });
    std::stable_sort(below.begin(), below.end(),
                     [](const host::Cell& a, const host::Cell& b) { return a.row < b.row; });
    right.insert(right.end(), below.begin(), below.end());
    return right;
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
    OrderTabs();
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

// A label stands for the first thing after it, if that is a field without a caption of its own; blank labels
// and empty boxes between them only keep the distance.
void KeyboardAccess::PairLabels(const CATDialog& iContainer) {
    const host::LayoutPlan plan = host::PlanLayout(iContainer);
    for (const host::Cell& cell : plan.cells) {
        auto* const label = dynamic_cast<LabelPeer*>(_tree.PeerOf(*cell.child));
        if (label == nullptr)
            continue;
        label->SetField(nullptr);
        if (label->Caption().trimmed().isEmpty())
            continue;
        for (const host::Cell& next : CellsAfter(plan, cell)) {
            const auto* const other = dynamic_cast<LabelPeer*>(_tree.PeerOf(*next.child));
            if (other != nullptr && !other->Caption().trimmed().isEmpty())
                break;
            Peer* const field = FirstFieldIn(*next.child);
            if (field == nullptr)
                continue;
            if (field->Caption().isEmpty() && !_labels.contains(field->Field())) {
                label->SetField(field->Field());
                _labels.insert(field->Field(), label);
            }
            break;
        }
    }
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

void KeyboardAccess::OrderTabs() const {
    std::vector<QWidget*> fields;
    for (const Peer* peer : _peers)
        if (peer->Field() != nullptr)
            fields.push_back(peer->Field());
    for (QPushButton* button : _window.Buttons().All())
        fields.push_back(button);
    for (std::size_t next = 1; next < fields.size(); ++next)
        QWidget::setTabOrder(fields[next - 1], fields[next]);
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
