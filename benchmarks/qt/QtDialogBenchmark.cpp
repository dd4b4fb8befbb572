// The dialog of 75 widgets with Qt, built and destroyed without being shown.

#include "SampleDialog.h"

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

QWidget* MakeWidget(const SampleWidget& iWidget, const QString& iName) {
    switch (iWidget.kind) {
    case WidgetKind::Dialog:
        return new QDialog;
    case WidgetKind::Frame:
        return new QGroupBox(iName);
    case WidgetKind::TabContainer:
        return new QTabWidget;
    case WidgetKind::TabPage:
        return new QWidget;
    case WidgetKind::Label:
        return new QLabel(iName);
    case WidgetKind::Combo:
        return new QComboBox;
    case WidgetKind::Button:
        return new QPushButton(iName);
    case WidgetKind::Editor:
        return new QLineEdit;
    }
    return nullptr;
}

void Insert(QWidget& ioParent, QWidget* iChild, const SampleWidget& iWidget, const QString& iName) {
    if (auto* const pages = qobject_cast<QTabWidget*>(&ioParent))
        pages->addTab(iChild, iName);
    else
        static_cast<QGridLayout*>(ioParent.layout())->addWidget(iChild, iWidget.row, iWidget.column);
}

std::unique_ptr<QWidget> BuildDialog(std::vector<QWidget*>& oBuilt) {
    oBuilt.clear();
    for (const SampleWidget& widget : SampleDialog()) {
        const QString name = QString::fromUtf8(widget.name.c_str());
        QWidget* const built = MakeWidget(widget, name);
        built->setObjectName(name);
        if (HoldsWidgets(widget.kind) && widget.kind != WidgetKind::TabContainer)
            new QGridLayout(built);
        if (widget.parent >= 0)
            Insert(*oBuilt[static_cast<std::size_t>(widget.parent)], built, widget, name);
        oBuilt.push_back(built);
    }
    return std::unique_ptr<QWidget>(oBuilt.front());
}

void BuildAndDestroy(benchmark::State& ioState) {
    std::vector<QWidget*> built;
    for (auto _ : ioState)
        BuildDialog(built).reset();
}

BENCHMARK(BuildAndDestroy)->Name("Dialog/Qt");

} // namespace
