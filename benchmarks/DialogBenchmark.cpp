// A dialog of 75 widgets, built and destroyed: the host's, without and with the placement of every container,
// and as the floor a tree of plain nodes with the same names.

#include "SampleDialog.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "host/Application.h"
#include "host/EventScope.h"
#include "host/LayoutPlan.h"
#include "host/LiveObjects.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

CATDialog* MakeWidget(CATDialog* iParent, const SampleWidget& iWidget) {
    const CATString name(iWidget.name.c_str());
    switch (iWidget.kind) {
    case WidgetKind::Dialog:
        return new CATDlgDialog(iParent, name, CATDlgWndOK | CATDlgWndCANCEL);
    case WidgetKind::Frame:
        return new CATDlgFrame(iParent, name);
    case WidgetKind::TabContainer:
        return new CATDlgTabContainer(iParent, name);
    case WidgetKind::TabPage:
        return new CATDlgTabPage(iParent, name);
    case WidgetKind::Label:
        return new CATDlgLabel(iParent, name);
    case WidgetKind::Combo:
        return new CATDlgCombo(iParent, name, CATDlgCmbDropDown);
    case WidgetKind::Button:
        return new CATDlgPushButton(iParent, name);
    case WidgetKind::Editor:
        return new CATDlgEditor(iParent, name);
    }
    return nullptr;
}

// Fills oBuilt with the widgets in the order of the sample; the first is the dialog.
void BuildHostDialog(CATDialog& ioMainWindow, std::vector<CATDialog*>& oBuilt) {
    oBuilt.clear();
    for (const SampleWidget& widget : SampleDialog()) {
        CATDialog* const parent =
            widget.parent < 0 ? &ioMainWindow : oBuilt[static_cast<std::size_t>(widget.parent)];
        CATDialog* const built = MakeWidget(parent, widget);
        parent->SetHorizontalAttachment(widget.row, CATDlgTopOrLeft, built, nullptr);
        parent->SetVerticalAttachment(widget.column, CATDlgTopOrLeft, built, nullptr);
        oBuilt.push_back(built);
    }
}

// The number of cells that all containers together place their children in.
std::size_t PlaceAll(const std::vector<CATDialog*>& iBuilt) {
    std::size_t cells = 0;
    for (std::size_t index = 0; index < iBuilt.size(); ++index)
        if (HoldsWidgets(SampleDialog()[index].kind))
            cells += host::PlanLayout(*iBuilt[index]).cells.size();
    return cells;
}

void Destroy(CATDialog& ioDialog) {
    ioDialog.RequestDelayedDestruction();
    host::EventScope::RunIdle();
}

void BuildAndDestroy(benchmark::State& ioState, bool iIsPlaced) {
    const host::Application application;
    std::vector<CATDialog*> built;
    BuildHostDialog(application.MainWindow(), built);
    if (PlaceAll(built) + 1 != SampleDialog().size())
        ioState.SkipWithError("not every widget has its cell");
    Destroy(*built.front());
    const std::size_t before = host::LiveObjects::All().size();
    for (auto _ : ioState) {
        BuildHostDialog(application.MainWindow(), built);
        if (iIsPlaced)
            benchmark::DoNotOptimize(PlaceAll(built));
        Destroy(*built.front());
    }
    if (host::LiveObjects::All().size() != before)
        ioState.SkipWithError("the dialog is not destroyed");
}

void BuildHost(benchmark::State& ioState) {
    BuildAndDestroy(ioState, false);
}

void BuildAndPlaceHost(benchmark::State& ioState) {
    BuildAndDestroy(ioState, true);
}

struct Node {
    std::string name;
    std::vector<std::unique_ptr<Node>> children;
};

// As above, with plain nodes.
std::unique_ptr<Node> BuildPlainTree(std::vector<Node*>& oBuilt) {
    oBuilt.clear();
    std::unique_ptr<Node> root;
    for (const SampleWidget& widget : SampleDialog()) {
        auto node = std::make_unique<Node>();
        node->name = widget.name;
        oBuilt.push_back(node.get());
        if (widget.parent < 0)
            root = std::move(node);
        else
            oBuilt[static_cast<std::size_t>(widget.parent)]->children.push_back(std::move(node));
    }
    return root;
}

void BuildPlain(benchmark::State& ioState) {
    std::vector<Node*> built;
    for (auto _ : ioState) {
        std::unique_ptr<Node> root = BuildPlainTree(built);
        benchmark::DoNotOptimize(root.get());
        root.reset();
    }
}

BENCHMARK(BuildHost)->Name("Dialog/Ours");
BENCHMARK(BuildAndPlaceHost)->Name("Dialog/OursPlaced");
BENCHMARK(BuildPlain)->Name("Dialog/Floor");

} // namespace
