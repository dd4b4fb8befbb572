#include "FitClerk.h"

#include "CATListValCATUnicodeString.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditPanel.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "host/Application.h"

#include <utility>

namespace desktop_test {

namespace {

CATListValCATUnicodeString ListOf(const std::vector<std::string>& iTexts) {
    CATListValCATUnicodeString texts;
    for (const std::string& text : iTexts)
        texts.Append(text.c_str());
    return texts;
}

} // namespace

CATImplementClass(FitClerk, Implementation, CATCommand, CATNull);

FitClerk::FitClerk() : CATCommand(nullptr, "FitClerk"), _before(host::Application::ActiveCommand()) {
    host::Application::SetActiveCommand(this);
}

FitClerk::~FitClerk() {
    host::Application::SetActiveCommand(_before);
}

std::vector<std::string> FitClerk::TakeHeard() {
    return std::exchange(_heard, {});
}

CATNotifPropagationMode FitClerk::AnalyseNotification(CATCommand*, CATNotification* iNotification) {
    const std::string heard = iNotification->IsA();
    const bool isOfDialog = heard.find("CATDlgDia") == 0 || heard.find("CATDlgWind") == 0;
    const bool isOfPanel = heard.find("OrvKv") == 0;
    if (isOfDialog || isOfPanel)
        _heard.push_back(heard);
    if (isOfPanel)
        Answer(*iNotification);
    if (_destroysOnOk && heard == "CATDlgDiaOKNotification")
        std::exchange(_panel, nullptr)->RequestDelayedDestruction();
    return CATNotifDontTransmitToFather;
}

// A list that is filled by the command chooses a line as the user would, which asks again.
void FitClerk::Answer(CATNotification& iNotification) {
    CATUnicodeString group;
    CATUnicodeString field;
    double size = 0.0;
    if (auto* entered = dynamic_cast<OrvKvParameterEditISOFittingNotification*>(&iNotification)) {
        CATICkeParm_var parameter;
        CATString knownGroup;
        CATString knownField;
        entered->GetFittingInfo(&parameter, &knownGroup, &knownField);
        const bool isKnown = knownGroup != "";
        ListGroups(isKnown ? knownGroup.CastToCharPtr() : "E", knownField.CastToCharPtr());
    } else if (auto* chosen =
                   dynamic_cast<OrvKvParameterEditISOFittingGroupSelectNotification*>(&iNotification)) {
        chosen->GetSelectedToleranceGroup(&group, &size);
        if (_isListing)
            ListFields(group.ConvertToChar());
        else
            ListGroups(group.ConvertToChar(), "");
    } else if (auto* picked =
                   dynamic_cast<OrvKvParameterEditISOFittingFieldSelectNotification*>(&iNotification)) {
        picked->GetSelectedFittingValues(&group, &field, &size);
        Give(field.ConvertToChar(), size);
    } else if (auto* changed =
                   dynamic_cast<OrvKvParameterEditUpdateISOFittingValuesNotification*>(&iNotification)) {
        unsigned char hasTolerance = 0;
        _panel->HasTolerance(&hasTolerance);
        if (hasTolerance == 0)
            return; // it has just been taken away
        changed->GetFittingInfo(&group, &field, &size);
        Give(field.ConvertToChar(), size);
    }
}

void FitClerk::ListGroups(const std::string& iGroup, const std::string& iField) {
    const bool wasListing = std::exchange(_isListing, true);
    _panel->SetToleranceGroups(ListOf({"E", "H", "ZC"}), iGroup.c_str(), iField.c_str());
    _isListing = wasListing;
}

void FitClerk::ListFields(const std::string& iGroup) {
    _panel->SetToleranceFields(ListOf({iGroup + "6", iGroup + "7", iGroup + "11"}));
}

// Giving values raises the change of the parameter, which asks for them again.
void FitClerk::Give(const std::string& iField, double iSize) {
    if (_isGiving)
        return;
    _isGiving = true;
    const std::size_t digits = iField.find_first_of("0123456789");
    const double width = std::stoi(iField.substr(digits)) * iSize / 1000;
    const std::string letters = iField.substr(0, digits);
    const double lower = letters == "E" ? iSize / 1000 : letters == "H" ? 0.0 : -iSize / 500 - width;
    _panel->SetFittingVals(lower + width, lower);
    _isGiving = false;
}

} // namespace desktop_test
