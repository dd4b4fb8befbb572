#include "OrvKvParameterEditPanelTest.h"

#include "CATError.h"

#include <sstream>

namespace editPanel {

std::string ToleranceOf(const CATICkeParm_var& iParameter) {
    const CATIParmTolerance_var tolerance(iParameter);
    if (!tolerance || tolerance->GetTypeOfTolerance() == 0)
        return "none";
    std::ostringstream text;
    text << std::showpos << tolerance->GetMaxTolerance() << '/' << tolerance->GetMinTolerance();
    return text.str();
}

std::vector<CATICkeParm_var> ParametersWithoutTolerance() {
    return {host::Parameters::NewReal("X", 2.5), host::Parameters::NewInteger("N", 3),
            host::Parameters::NewBoolean("W", true), host::Parameters::NewString("F", "A")};
}

} // namespace editPanel

OrvKvParameterEditPanelTest::OrvKvParameterEditPanelTest() {
    _resources.Write("OrvKvParametersDescription.CATNls", "D = \"Diameter\";\n"
                                                          "Plug.K = \"Key of a plug\";\n"
                                                          "Unlucky = \"*resource error\";\n"
                                                          "Ratio = \"Ratio D/p1\";\n"
                                                          "a b = \"Apple\";\n"
                                                          "Blank = \"\";\n");
}

OrvKvParameterEditPanel& OrvKvParameterEditPanelTest::Make(const editPanel::Opened& iOpened) {
    Destroy();
    _panel =
        new OrvKvParameterEditPanel(iOpened.parameter, iOpened.key.c_str(), iOpened.group.c_str(),
                                    iOpened.field.c_str(), iOpened.valueEditable, iOpened.toleranceEditable);
    return *_panel;
}

OrvKvParameterEditPanel& OrvKvParameterEditPanelTest::MakeBuilt(const editPanel::Opened& iOpened) {
    Make(iOpened).Build();
    _panel->SetVisibility(CATDlgShow);
    Command().Forget();
    return *_panel;
}

void OrvKvParameterEditPanelTest::Destroy() {
    delete _panel;
    _panel = nullptr;
}

void OrvKvParameterEditPanelTest::GiveUp() {
    _panel->RequestDelayedDestruction();
    _panel = nullptr;
}

void OrvKvParameterEditPanelTest::CheckAnew() {
    const host::EventScope event;
    CheckButton().SetState(CATDlgUncheck, CATDlgNoNotification);
    CheckButton().SetState(CATDlgCheck, CATDlgWithNotification);
}

int OrvKvParameterEditPanelTest::HasTolerance() {
    unsigned char state = 7;
    EXPECT_EQ(Observed([&](auto& panel) { return panel.HasTolerance(&state); }),
              support::SuccessIn(editPanel::source));
    return state;
}

support::Report
OrvKvParameterEditPanelTest::Observed(const std::function<long(OrvKvParameterEditPanel&)>& iCall) {
    const host::EventScope event;
    return support::Observe([&] { return iCall(*_panel); });
}
