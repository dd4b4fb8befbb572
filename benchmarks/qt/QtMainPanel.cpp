#include "QtMainPanel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

template<class Class>
Class* Named(const char* iName, Class* iWidget) {
    iWidget->setObjectName(QLatin1String(iName));
    return iWidget;
}

// A widget with the helps that the panel's widgets have.
template<class Class>
Class* Helped(const char* iName, Class* iWidget, const QString& iHelp) {
    iWidget->setToolTip(iHelp);
    iWidget->setWhatsThis(iHelp + QStringLiteral("\nExplains what the control is for and what follows."));
    return Named(iName, iWidget);
}

// A frame without border whose content lies in the layout.
template<class Layout>
QFrame* Frame(const char* iName, Layout* iLayout) {
    auto* const frame = Named(iName, new QFrame);
    iLayout->setContentsMargins(0, 0, 0, 0);
    frame->setLayout(iLayout);
    return frame;
}

// An empty place of a fixed size.
QWidget* Spacer(const char* iName, int iWidth, int iHeight) {
    auto* const spacer = Named(iName, new QWidget);
    spacer->setFixedSize(iWidth, iHeight);
    return spacer;
}

QTreeWidget* MakeTable(const char* iName, const QStringList& iTitles) {
    auto* const table = Helped(iName, new QTreeWidget, QObject::tr("Parameters of the feature"));
    table->setColumnCount(static_cast<int>(iTitles.size()));
    table->setHeaderLabels(iTitles);
    table->setRootIsDecorated(false);
    return table;
}

QGroupBox* Box(const char* iName, const QString& iTitle, QLayout* iLayout) {
    auto* const box = Named(iName, new QGroupBox(iTitle));
    box->setLayout(iLayout);
    return box;
}

} // namespace

QtMainPanel::QtMainPanel(bool iWithSets) {
    setObjectName(QStringLiteral("MainPanel"));
    setWindowTitle(tr("Feature"));
    setWhatsThis(tr("Chooses a feature and its parameters."));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(MakeFeaturePart());
    layout->addWidget(MakeLowerPart(iWithSets), 1);
    layout->addWidget(MakeFoldingPart());
    layout->addWidget(MakeRules());
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply |
                                           QDialogButtonBox::Cancel | QDialogButtonBox::Help));
    resize(670, 640);
}

QWidget* QtMainPanel::MakeFeaturePart() {
    auto* const inputs = new QGridLayout;
    auto* const title = Named("N", new QLabel(tr("Insertion geometry")));
    title->hide();
    inputs->addWidget(title, 0, 0, 1, 2);
    for (int input = 0; input < 3; ++input) {
        auto* const editor = Helped("InputEdt", new QLineEdit, tr("Selected element"));
        editor->setReadOnly(true);
        inputs->addWidget(Helped("InputPbt", new QPushButton(tr("Insertion point")), tr("Select an element")),
                          input + 1, 0);
        inputs->addWidget(editor, input + 1, 1);
    }
    inputs->addWidget(
        Helped("InvertPbt", new QPushButton(tr("Invert direction")), tr("Turn the feature round")), 4, 1);
    auto* const left = new QVBoxLayout;
    left->addWidget(Helped("GroupCmb", new QComboBox, tr("Feature group")));
    left->addWidget(Frame("InsertionEditorSub", inputs));
    auto* const types = new QVBoxLayout;
    types->addWidget(Helped("TypeSelectCombo", new QListWidget, tr("Feature type")));
    auto* const right = new QVBoxLayout;
    right->addWidget(Frame("TypeSub", types));
    right->addWidget(Helped("ParameterSetCmb", new QComboBox, tr("Parameter set")));
    auto* const both = new QHBoxLayout;
    both->addWidget(Frame("GroupAndGeometrySub", left));
    both->addWidget(Frame("TypeAndParameterSetSub", right), 1);
    return Box("GroupFrm", tr("Feature"), both);
}

QWidget* QtMainPanel::MakeLowerPart(bool iWithSets) {
    auto* const pages = Named("TabContainer", new QTabWidget);
    pages->addTab(MakeDrawingPage(), tr("Drawing"));
    pages->addTab(MakeSetPage(), tr("Parameter sets"));
    pages->addTab(MakeThreadPage(), tr("Thread"));
    auto* const inPages = new QVBoxLayout;
    inPages->addWidget(pages);
    auto* const layout = new QHBoxLayout;
    layout->addWidget(iWithSets ? MakeSetTables() : MakeParameterList(), 1);
    layout->addWidget(Frame("TabContainerSub", inPages));
    return Frame("CombineLowerFrm", layout);
}

QWidget* QtMainPanel::MakeParameterList() {
    auto* const layout = new QVBoxLayout;
    layout->addWidget(MakeTable(
        "ParameterMul", {tr("Mod."), tr("Parameter"), tr("Value"), tr("Tolerance"), tr("Description")}));
    return Box("ParameterListSub", tr("Parameters"), layout);
}

QWidget* QtMainPanel::MakeSetTables() {
    auto* const layout = new QVBoxLayout;
    for (const char* name : {"ParameterSetMul", "CurrentParameterMul"}) {
        auto* const inBox = new QVBoxLayout;
        inBox->addWidget(MakeTable(name, {tr("Parameter set")}));
        layout->addWidget(Box("ParameterSetFrame", tr("Parameter sets"), inBox));
    }
    return Frame("ParameterListSub", layout);
}

QWidget* QtMainPanel::MakeDrawingPage() {
    auto* const drawing = Helped("Viewer", new QLabel, tr("Feature drawing"));
    drawing->setMinimumSize(360, 360);
    drawing->setAutoFillBackground(true);
    auto* const inSub = new QVBoxLayout;
    inSub->addWidget(drawing);
    auto* const layout = new QVBoxLayout;
    layout->addWidget(Frame("SketchSub", inSub));
    return Frame("SketchPge", layout);
}

QWidget* QtMainPanel::MakeSetPage() {
    auto* const label = Named("ParameterSetNameDescriptionLab", new QLabel(tr("Name")));
    auto* const editor = Helped("ParameterSetNameEdt", new QLineEdit, tr("Name of the parameter set"));
    label->hide();
    editor->hide();
    auto* const buttons = new QHBoxLayout;
    for (const QString& title : {tr("New..."), tr("Rename..."), tr("Delete...")})
        buttons->addWidget(
            Helped("ParameterSetPbt", new QPushButton(title), tr("Parameter sets of the type")));
    auto* const inSub = new QVBoxLayout;
    inSub->addWidget(label);
    inSub->addWidget(editor);
    inSub->addWidget(Frame("ButtonFrm", buttons));
    auto* const layout = new QVBoxLayout;
    layout->addWidget(Frame("ParameterSetSub", inSub));
    return Frame("ParameterSetEditorPge", layout);
}

QWidget* QtMainPanel::MakeThreadPage() {
    auto* const rows = new QGridLayout;
    int row = 0;
    const auto addRow = [&](const QString& iTitle, QWidget* iControl) {
        rows->addWidget(Named("Lab", new QLabel(iTitle)), row, 0);
        rows->addWidget(Spacer("SepCon", 10, 10), row, 1);
        rows->addWidget(iControl, row++, 2);
    };
    addRow(tr("Type"), _threadTypes = Helped("ThreadTypeCmb", new QComboBox, tr("Thread type")));
    auto* const inDiameter = new QVBoxLayout;
    inDiameter->addWidget(_threadDiameters = Helped("DiameterCmb", new QComboBox, tr("Thread diameter")));
    addRow(tr("Diameter"), Frame("ThreadDiaFrm", inDiameter));
    for (const QString& title : {tr("Internal diameter"), tr("Length"), tr("Pitch")}) {
        auto* const value = Helped("Spn", new QDoubleSpinBox, title);
        value->setRange(0.0, 9999.0);
        value->setSuffix(QStringLiteral("mm"));
        _threadValues.append(value);
        auto* const inValue = new QVBoxLayout;
        inValue->addWidget(value);
        addRow(title, Frame("ValueFrm", inValue));
    }
    auto* const direction = new QHBoxLayout;
    direction->addWidget(
        Helped("LeftHandedRdb", new QRadioButton(tr("Left handed")), tr("Direction of the thread")));
    direction->addWidget(
        Helped("RightHandedRdb", new QRadioButton(tr("Right handed")), tr("Direction of the thread")));
    addRow(tr("Direction"), Frame("ThreadDirectionFrm", direction));
    auto* const inSub = new QVBoxLayout;
    inSub->addWidget(Spacer("SepStandardThreadCkbFromFrmCon", 10, 10));
    inSub->addWidget(Box("StandardThreadFrm", tr("Thread"), rows));
    auto* const layout = new QVBoxLayout;
    layout->addWidget(Frame("ThreadSub", inSub));
    return Frame("ThreadPge", layout);
}

QWidget* QtMainPanel::MakeRules() {
    auto* const editor = Helped("KelvaneRules", new QPlainTextEdit, tr("Messages of the rules"));
    editor->setReadOnly(true);
    editor->setFixedHeight(5 * editor->fontMetrics().lineSpacing());
    auto* const light = Helped("Label003", new QLabel, tr("State of the rules"));
    light->setPixmap(QPixmap(QStringLiteral(KELVANE_LIBRARY_ICONS "/KelvaneRulesOK.svg")));
    auto* const layout = new QHBoxLayout;
    layout->addWidget(editor, 1);
    layout->addWidget(light);
    return Box("RulesFrm", tr("Rules"), layout);
}

QWidget* QtMainPanel::MakeFoldingPart() {
    auto* const layout = new QHBoxLayout;
    layout->addWidget(Named("SpacerLab", new QLabel(QStringLiteral("               "))), 1);
    layout->addWidget(Helped("MoreLessButton", new QPushButton(tr("Less")), tr("Show less")));
    return Frame("BottomFrm", layout);
}

void QtMainPanel::ShowThread(const QStringList& iDesignations, double iValue) {
    const QSignalBlocker quiet(_threadDiameters);
    _threadDiameters->clear();
    _threadDiameters->addItems(iDesignations);
    _threadDiameters->setCurrentIndex(0);
    for (QDoubleSpinBox* value : _threadValues)
        value->setValue(iValue);
}
