#include "PeerFactory.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "CATViewer.h"
#include "CheckButtonPeer.h"
#include "ContainerPeer.h"
#include "DropDownPeer.h"
#include "FramePeer.h"
#include "LabelPeer.h"
#include "LineEditorPeer.h"
#include "ListPeer.h"
#include "PlaceholderPeer.h"
#include "PushButtonPeer.h"
#include "RadioButtonPeer.h"
#include "SpinnerPeer.h"
#include "TabContainerPeer.h"
#include "TabPagePeer.h"
#include "TablePeer.h"
#include "TextEditorPeer.h"
#include "ValueFramePeer.h"
#include "ViewerPeer.h"
#include "WindowPeer.h"
#include "host/Inspector.h"
#include "host/ValueFrame.h"

namespace desktop {

namespace {

bool HasStyle(const CATDialog& iDialog, CATDlgStyle iStyle) {
    return (host::Inspector::Style(iDialog) & iStyle) != 0;
}

// The main window is there without being drawn; a message is shown while it waits for its answer, by the
// desktop itself.
bool IsDrawnElsewhere(const CATDlgWindow& iWindow) {
    return dynamic_cast<const CATDlgDocument*>(&iWindow) != nullptr ||
           dynamic_cast<const CATDlgNotify*>(&iWindow) != nullptr;
}

} // namespace

Peer* MakePeer(PeerTree& ioTree, CATDialog& ioDialog, Peer* iContainer) {
    if (auto* window = dynamic_cast<CATDlgWindow*>(&ioDialog))
        return IsDrawnElsewhere(*window) ? nullptr : new WindowPeer(ioTree, *window, iContainer);
    QWidget* const parent = iContainer == nullptr ? nullptr : iContainer->Inside();
    if (parent == nullptr)
        return nullptr;
    if (auto* value = dynamic_cast<host::ValueFrame*>(&ioDialog))
        return new ValueFramePeer(ioTree, *value, parent);
    if (auto* viewer = dynamic_cast<CATViewer*>(&ioDialog))
        return new ViewerPeer(ioTree, *viewer, parent);
    if (auto* frame = dynamic_cast<CATDlgFrame*>(&ioDialog))
        return new FramePeer(ioTree, *frame, parent);
    if (auto* container = dynamic_cast<CATDlgContainer*>(&ioDialog))
        return new ContainerPeer(ioTree, *container, parent);
    if (auto* tabs = dynamic_cast<CATDlgTabContainer*>(&ioDialog))
        return new TabContainerPeer(ioTree, *tabs, parent);
    if (auto* page = dynamic_cast<CATDlgTabPage*>(&ioDialog))
        return new TabPagePeer(ioTree, *page, parent);
    if (auto* label = dynamic_cast<CATDlgLabel*>(&ioDialog))
        return new LabelPeer(ioTree, *label, parent);
    if (auto* button = dynamic_cast<CATDlgPushButton*>(&ioDialog))
        return new PushButtonPeer(ioTree, *button, parent);
    if (auto* radio = dynamic_cast<CATDlgRadioButton*>(&ioDialog))
        return new RadioButtonPeer(ioTree, *radio, parent);
    if (auto* check = dynamic_cast<CATDlgCheckButton*>(&ioDialog))
        return new CheckButtonPeer(ioTree, *check, parent);
    if (auto* combo = dynamic_cast<CATDlgCombo*>(&ioDialog)) {
        if (HasStyle(*combo, CATDlgCmbDropDown))
            return new DropDownPeer(ioTree, *combo, parent);
        return new ListPeer(ioTree, *combo, parent);
    }
    if (auto* list = dynamic_cast<CATDlgMultiList*>(&ioDialog))
        return new TablePeer(ioTree, *list, parent);
    if (auto* spinner = dynamic_cast<CATDlgSpinner*>(&ioDialog))
        return new SpinnerPeer(ioTree, *spinner, parent);
    if (auto* editor = dynamic_cast<CATDlgEditor*>(&ioDialog)) {
        if (HasStyle(*editor, CATDlgEdtMultiline))
            return new TextEditorPeer(ioTree, *editor, parent);
        return new LineEditorPeer(ioTree, *editor, parent);
    }
    return new PlaceholderPeer(ioTree, ioDialog, parent);
}

} // namespace desktop
