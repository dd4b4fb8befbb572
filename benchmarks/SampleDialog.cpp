#include "SampleDialog.h"

namespace {

typedef std::vector<SampleWidget> Widgets;

int Add(Widgets& ioWidgets, WidgetKind iKind, const std::string& iName, int iParent, int iRow, int iColumn) {
    ioWidgets.push_back(SampleWidget{iKind, iName, iParent, iRow, iColumn});
    return static_cast<int>(ioWidgets.size()) - 1;
}

void AddFields(Widgets& ioWidgets, int iFrame) {
    Add(ioWidgets, WidgetKind::Label, "ValueLbl", iFrame, 0, 0);
    Add(ioWidgets, WidgetKind::Editor, "ValueEdt", iFrame, 0, 1);
    Add(ioWidgets, WidgetKind::Button, "ValueMeasurePbt", iFrame, 0, 2);
    Add(ioWidgets, WidgetKind::Label, "ToleranceLbl", iFrame, 1, 0);
    Add(ioWidgets, WidgetKind::Combo, "ToleranceSelectCombo", iFrame, 1, 1);
    Add(ioWidgets, WidgetKind::Button, "ToleranceMorePbt", iFrame, 1, 2);
}

void AddPage(Widgets& ioWidgets, int iPages, const std::string& iName) {
    const int page = Add(ioWidgets, WidgetKind::TabPage, iName, iPages, 0, 0);
    for (int group = 0; group < 2; ++group) {
        const int frame =
            Add(ioWidgets, WidgetKind::Frame, "Group" + std::to_string(group) + "Frm", page, group, 0);
        for (int part = 0; part < 2; ++part)
            AddFields(ioWidgets, Add(ioWidgets, WidgetKind::Frame, "Parameter" + std::to_string(part) + "Frm",
                                     frame, part, 0));
    }
}

Widgets Make() {
    Widgets widgets;
    const int dialog = Add(widgets, WidgetKind::Dialog, "FeatureDlg", -1, 0, 0);
    const int type = Add(widgets, WidgetKind::Frame, "TypeFrm", dialog, 0, 0);
    Add(widgets, WidgetKind::Label, "GroupLbl", type, 0, 0);
    Add(widgets, WidgetKind::Combo, "GroupSelectCombo", type, 0, 1);
    Add(widgets, WidgetKind::Label, "TypeLbl", type, 1, 0);
    Add(widgets, WidgetKind::Combo, "TypeSelectCombo", type, 1, 1);
    const int definition = Add(widgets, WidgetKind::Frame, "DefinitionFrm", dialog, 1, 0);
    const int pages = Add(widgets, WidgetKind::TabContainer, "DefinitionTabCont", definition, 0, 0);
    AddPage(widgets, pages, "ParametersTabPage");
    AddPage(widgets, pages, "PositionTabPage");
    const int bottom = Add(widgets, WidgetKind::Frame, "BottomFrm", dialog, 2, 0);
    const char* const buttons[] = {"NewPbt", "EditPbt", "DeletePbt", "MorePbt"};
    for (int button = 0; button < 4; ++button)
        Add(widgets, WidgetKind::Button, buttons[button], bottom, 0, button);
    return widgets;
}

} // namespace

const std::vector<SampleWidget>& SampleDialog() {
    static const Widgets widgets = Make();
    return widgets;
}
