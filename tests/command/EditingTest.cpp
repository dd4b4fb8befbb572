#include "EditingTest.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgMultiList.h"
#include "CATDlgRadioButton.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/ValueFrame.h"

#include <stdexcept>

namespace command {

namespace {

constexpr const char* panelName = "OrvKvParameterEditPanel";

template<class Widget>
Widget& InPanel(const std::string& iName) {
    for (CATDialog* found : host::DialogPath::Named(iName))
        if (auto* const widget = dynamic_cast<Widget*>(found))
            return *widget;
    throw std::runtime_error("there is no " + iName);
}

bool IsChecked(const std::string& iButton) {
    return InPanel<CATDlgRadioButton>(iButton).GetState() == CATDlgCheck;
}

std::string Mode() {
    if (IsChecked("ISOFittingRdb"))
        return "fit";
    return IsChecked("PlusMinusSymmetricalRdb") ? "symmetric" : "plus/minus";
}

std::string Chosen(const std::string& iCombo) {
    const auto& combo = InPanel<CATDlgCombo>(iCombo);
    CATUnicodeString text;
    if (combo.GetSelect() < 0 || !host::DialogUser::CanSee(combo))
        return "-";
    combo.GetLine(text, combo.GetSelect());
    return text.ConvertToUTF8();
}

} // namespace

void EditingTest::StartWithCounterbore(FeatureCommand::Mode iMode) {
    ASSERT_TRUE(Start(iMode));
    ASSERT_TRUE(ChooseType(1));
    if (iMode == FeatureCommand::Mode::Parameters) {
        ASSERT_TRUE(ChooseText("ParameterSetCmb", "DIN 974-1 M6 series 1 fine"));
    }
    TakeHeard();
}

host::Outcome EditingTest::Edit(const std::string& iParameter) {
    CATDlgMultiList& list = List("ParameterMul");
    for (int row = 0; row < list.GetLineCount(); ++row)
        if (Row("ParameterMul", row).find("|" + iParameter + "|") != std::string::npos)
            return host::DialogUser::Activate(list, row, 1);
    return host::Outcome::Refused("no row of " + iParameter);
}

bool EditingTest::IsOpen() {
    return host::DialogPath::Find(panelName).widget != nullptr;
}

CATDlgDialog& EditingTest::Panel() {
    return InPanel<CATDlgDialog>(panelName);
}

host::Outcome EditingTest::Check(const std::string& iButton) {
    return host::DialogUser::Check(InPanel<CATDialog>(iButton));
}

host::Outcome EditingTest::Uncheck(const std::string& iButton) {
    return host::DialogUser::Uncheck(InPanel<CATDialog>(iButton));
}

host::Outcome EditingTest::Type(const std::string& iField, const std::string& iText) {
    return host::DialogUser::Type(InPanel<host::ValueFrame>(iField), iText);
}

host::Outcome EditingTest::Spin(const std::string& iField, int iSteps) {
    return host::DialogUser::Spin(InPanel<host::ValueFrame>(iField), iSteps);
}

std::string EditingTest::ShownIn(const std::string& iField) {
    return InPanel<host::ValueFrame>(iField).Text();
}

host::Outcome EditingTest::ChooseFit(const std::string& iGroup, const std::string& iField) {
    host::Outcome outcome = ChooseText("ToleranceGroupCmb", iGroup);
    return outcome ? ChooseText("ToleranceFieldCmb", iField) : outcome;
}

host::Outcome EditingTest::Press(CATULong iButton) {
    return host::DialogUser::PressStandardButton(Panel(), iButton);
}

std::string EditingTest::Tolerance() {
    const auto& area = InPanel<CATDialog>("OrvKvToleranceSub");
    if (!host::DialogUser::CanSee(area))
        return "none";
    std::string shown = Mode() + "|" + ShownIn("Max") + "|" + ShownIn("Min");
    if (IsChecked("ISOFittingRdb"))
        shown += "|" + Chosen("ToleranceGroupCmb") + "|" + Chosen("ToleranceFieldCmb");
    return shown;
}

} // namespace command
