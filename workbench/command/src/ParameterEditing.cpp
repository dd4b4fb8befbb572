#include "ParameterEditing.h"

#include "CATCallbackManager.h"
#include "CATDlgCheckButton.h"
#include "CATDlgRadioButton.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "CommandTexts.h"
#include "EditedFeature.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditPanel.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvPrompt.h"
#include "OrvKvToleranceSub.h"
#include "ParameterMaking.h"
#include "WidgetSearch.h"
#include "host/ParameterEditor.h"
#include "host/ValueFrame.h"

namespace workbench {

namespace {

using engineering::Tolerance;
using engineering::ToleranceClass;

/// Sizes for which the panel offers fits, in mm: above the first, up to the second.
constexpr double fitsAbove = 1.0;
constexpr double fitsUpTo = 500.0;

bool HasFits(double nominal) {
    return nominal > fitsAbove && nominal <= fitsUpTo;
}

bool IsSame(const CATListValCATUnicodeString& left, const CATListValCATUnicodeString& right) {
    if (left.Size() != right.Size())
        return false;
    for (int i = 1; i <= left.Size(); ++i)
        if (left[i] != right[i])
            return false;
    return true;
}

bool Has(const CATListValCATUnicodeString& texts, const std::string& text) {
    return texts.Locate(text.c_str()) > 0;
}

CATDlgCheckButton* ToleranceBox(const CATDialog& panel) {
    return FirstIn<CATDlgCheckButton>(panel, Named("ToleranceCkb"));
}

} // namespace

ParameterEditing::ParameterEditing(DialogCommand& command, EditedFeature& feature,
                                   const engineering::LimitsAndFits& fits, ParameterRequest request)
    : _dialog(command), _feature(feature), _fits(fits, feature.Type().FindParameter(request.parameter)->side),
      _request(std::move(request)) {}

bool ParameterEditing::Start() {
    _before = _feature.ValueOf(_request.parameter);
    const std::optional<ToleranceClass> fit = FitToShow();
    const std::string letters = fit ? fit->letters : std::string();
    const std::string field = fit ? engineering::ToText(*fit) : std::string();
    _panel = new OrvKvParameterEditPanel(_feature.Parameter(_request.parameter), _request.parameter.c_str(),
                                         letters.c_str(), field.c_str(), _request.editsValue ? 1 : 0,
                                         _request.editsTolerance ? 1 : 0);
    if (_panel == nullptr)
        return false;
    const Tolerance limits = LimitsOf(_feature.Parameter(_request.parameter));
    _panel->Build();
    if (!ListenToPanel()) {
        Close();
        return false;
    }
    ShowTolerance();
    if (!fit && LimitsOf(_feature.Parameter(_request.parameter)) != limits)
        ShowLimits(limits);
    KeepValue();
    _panel->SetVisibility(CATDlgShow);
    return true;
}

// The panel makes a negative value 0 as soon as it shows the tolerance; to open it must not change anything.
void ParameterEditing::KeepValue() {
    const CATIParmAsStored_var stored(_feature.Parameter(_request.parameter));
    const auto* const before = _before.value ? std::get_if<double>(&*_before.value) : nullptr;
    if (before != nullptr && !!stored && stored->GetValue() != *before)
        stored->SetValue(*before);
}

// For a size without fits the panel shows the limits of a class.
std::optional<ToleranceClass> ParameterEditing::FitToShow() const {
    const double nominal = Nominal();
    const std::optional<ToleranceClass> fit = _fits.Read(_before.tolerance.fitClass);
    const bool canShow = HasFits(nominal) && fit && _fits.Deviations(nominal, *fit);
    return canShow ? fit : std::nullopt;
}

bool ParameterEditing::ListenToPanel() {
    auto* const area = FirstIn<OrvKvToleranceSub>(*_panel);
    return (area == nullptr ||
            _dialog.ListenTo(area, area->GetVisibilityNotification(), [this] { OnAreaChanged(); })) &&
           _dialog.ListenTo(_panel, _panel->GetDiaOKNotification(), [this] { OnAccept(); }) &&
           _dialog.ListenTo(_panel, _panel->GetDiaAPPLYNotification(), [this] { OnApply(); }) &&
           _dialog.ListenTo(_panel, _panel->GetDiaCANCELNotification(), [this] { OnCancel(); }) &&
           _dialog.ListenTo(_panel, _panel->GetWindCloseNotification(), [this] { OnCancel(); });
}

// The panel hears its box only once it is built, and a box that is checked already sends nothing.
void ParameterEditing::ShowTolerance() {
    CATDlgCheckButton* const box = ToleranceBox(*_panel);
    if (box == nullptr || box->GetState() != CATDlgCheck)
        return;
    box->SetState(CATDlgUncheck, CATDlgNoNotification);
    box->SetState(CATDlgCheck, CATDlgWithNotification);
}

// A size without fits has put the panel into its symmetric mode. What is entered into its editors raises no
// event of the parameter, so that two deviations stay two.
void ParameterEditing::ShowLimits(const Tolerance& limits) {
    auto* const plusMinus = FirstIn<CATDlgRadioButton>(*_panel, Named("PlusMinusRdb"));
    if (plusMinus == nullptr)
        return;
    plusMinus->SetState(CATDlgCheck, CATDlgWithNotification);
    Enter("Max", limits.upper);
    Enter("Min", limits.lower);
}

void ParameterEditing::Enter(const char* literal, double deviation) {
    const auto edits = [literal](const CATDialog& widget) {
        const CATICkeParm_var parameter = host::ParameterEditor::ParameterOf(widget);
        return !!parameter && parameter->Name() == literal;
    };
    const CATDialog* const editor = FirstIn<CATDialog>(*_panel, edits);
    if (editor != nullptr)
        static_cast<void>(Write(host::ParameterEditor::ParameterOf(*editor), deviation));
}

// The panel hides its area before it takes the tolerance away, and shows it before it looks for one.
void ParameterEditing::OnAreaChanged() {
    const Tolerance limits = LimitsOf(_feature.Parameter(_request.parameter));
    if (!HasTolerance())
        _unchecked = limits;
    else if (limits.kind == Tolerance::Kind::None)
        RestoreTolerance();
}

void ParameterEditing::RestoreTolerance() {
    if (!FieldOfPanel().empty())
        return Offer(CurrentFit());
    StoreLimits(_feature.Parameter(_request.parameter), _unchecked);
    _feature.Settle(_request.parameter);
    _taken();
}

bool ParameterEditing::HasTolerance() const {
    unsigned char state = 0;
    return SUCCEEDED(_panel->HasTolerance(&state)) && state == 1;
}

double ParameterEditing::Nominal() const {
    const CATIParmAsStored_var stored(_feature.Parameter(_request.parameter));
    return !stored ? 0.0 : stored->GetValue();
}

void ParameterEditing::OnFit(OrvKvParameterEditISOFittingNotification&) {
    if (IsOpen() && HasTolerance())
        Offer(CurrentFit());
}

void ParameterEditing::OnFitGroup(OrvKvParameterEditISOFittingGroupSelectNotification& notification) {
    CATUnicodeString text;
    double nominal = 0;
    if (!IsOpen() || !HasTolerance() || FAILED(notification.GetSelectedToleranceGroup(&text, &nominal)))
        return;
    const std::string group = text.ConvertToUTF8();
    const ToleranceClass current = CurrentFit();
    const CATListValCATUnicodeString fields = _fits.Fields(nominal, group, current);
    if (Has(fields, FieldOfPanel())) {
        _fields = fields;
        _panel->SetToleranceFields(_fields);
        return;
    }
    if (const std::optional<ToleranceClass> nearest = _fits.InGroup(nominal, group, current))
        ListGroups(*nearest);
}

void ParameterEditing::OnFitField(OrvKvParameterEditISOFittingFieldSelectNotification& notification) {
    CATUnicodeString group;
    CATUnicodeString field;
    double nominal = 0;
    if (IsOpen() && HasTolerance() &&
        SUCCEEDED(notification.GetSelectedFittingValues(&group, &field, &nominal)))
        GiveFit(field.ConvertToUTF8());
}

void ParameterEditing::OnFitUpdate(OrvKvParameterEditUpdateISOFittingValuesNotification&) {
    if (!IsOpen() || _isGivingFit || !HasTolerance())
        return;
    const ToleranceClass current = CurrentFit();
    if (ListsFit(current))
        GiveFit(engineering::ToText(current));
    else
        Offer(current);
}

// The panel leaves fits by itself at a size for which it offers none, once it hears of the size.
void ParameterEditing::Offer(const ToleranceClass& wanted) {
    const double nominal = Nominal();
    if (!HasFits(nominal))
        return _feature.Announce(_request.parameter);
    const std::optional<ToleranceClass> chosen = _fits.AtSize(nominal, wanted);
    if (!chosen)
        return;
    ListGroups(*chosen);
    if (*chosen != wanted)
        TellReplaced(wanted, *chosen);
}

void ParameterEditing::ListGroups(const ToleranceClass& chosen) {
    _groups = _fits.Groups(Nominal(), chosen);
    _panel->SetToleranceGroups(_groups, chosen.letters.c_str(), engineering::ToText(chosen).c_str());
}

bool ParameterEditing::ListsFit(const ToleranceClass& fit) const {
    const double nominal = Nominal();
    return _fits.Deviations(nominal, fit) && IsSame(_groups, _fits.Groups(nominal, fit)) &&
           IsSame(_fields, _fits.Fields(nominal, fit.letters, fit));
}

void ParameterEditing::GiveFit(const std::string& field) {
    const std::optional<ToleranceClass> fit = _fits.Read(field);
    const std::optional<engineering::Deviations> limits =
        fit ? _fits.Deviations(Nominal(), *fit) : std::nullopt;
    if (!limits)
        return;
    _isGivingFit = true;
    _feature.UseFit(_request.parameter, field);
    _panel->SetFittingVals(limits->upper, limits->lower);
    _isGivingFit = false;
}

std::string ParameterEditing::FieldOfPanel() const {
    CATICkeParm_var parameter;
    CATString key;
    CATString group;
    CATString field;
    const long result = _panel->GetModifiedParameter(&parameter, &key, nullptr, nullptr, &group, &field);
    return FAILED(result) ? std::string() : field.ConvertToChar();
}

ToleranceClass ParameterEditing::CurrentFit() const {
    return _fits.Read(FieldOfPanel()).value_or(_fits.Usual());
}

void ParameterEditing::TellReplaced(const ToleranceClass& missing, const ToleranceClass& instead) const {
    OrvKvPrompt::Warning(CommandText("FitReplaced", {engineering::ToText(missing).c_str(),
                                                     _feature.Parameter(_request.parameter)->Show(),
                                                     engineering::ToText(instead).c_str()}));
}

CATUnicodeString ParameterEditing::Obstacle() const {
    const auto isRefused = [](const host::ValueFrame& frame) {
        return frame.IsRefused() && host::Inspector::Parent(frame)->GetVisibility() == CATDlgShow;
    };
    if (const auto* const frame = FirstIn<host::ValueFrame>(*_panel, isRefused))
        return CommandText("ValueRefused", {frame->Problem().c_str()});
    const Tolerance limits = LimitsOf(_feature.Parameter(_request.parameter));
    return limits.upper < limits.lower ? CommandText("LimitsReversed") : CATUnicodeString();
}

bool ParameterEditing::MayBeTaken() const {
    const CATUnicodeString obstacle = Obstacle();
    if (obstacle == "")
        return true;
    OrvKvPrompt::Warning(obstacle);
    return false;
}

void ParameterEditing::TakeOver() {
    const std::string field = FieldOfPanel();
    if (HasTolerance() && !field.empty())
        _feature.UseFit(_request.parameter, field);
    else
        _feature.Settle(_request.parameter);
    if (HasTolerance() && field.empty() && !_request.editsTolerance)
        KeepTolerance();
    _before = _feature.ValueOf(_request.parameter);
}

// A size without fits has made it symmetric.
void ParameterEditing::KeepTolerance() {
    engineering::ParameterValue kept = _feature.ValueOf(_request.parameter);
    if (kept.tolerance == _before.tolerance)
        return;
    kept.tolerance = _before.tolerance;
    _feature.Give(_request.parameter, kept);
    const Tolerance limits = LimitsOf(_feature.Parameter(_request.parameter));
    if (limits.kind == Tolerance::Kind::Limits)
        ShowLimits(limits);
}

bool ParameterEditing::Apply() {
    if (!MayBeTaken())
        return false;
    TakeOver();
    return true;
}

bool ParameterEditing::Accept() {
    if (!Apply())
        return false;
    Close();
    _feature.Announce(_request.parameter);
    return true;
}

// The panel must not answer what happens to the parameter afterwards; its widgets go only later.
void ParameterEditing::Close() {
    _dialog.Stop();
    OrvKvParameterEditPanel* const panel = _panel;
    _panel = nullptr;
    const CATIParmEvents_var events(_feature.Parameter(_request.parameter));
    auto* const area = FirstIn<OrvKvToleranceSub>(*panel);
    if (area != nullptr && !!events)
        RemoveSubscriberCallbacks(area, events->GetPublisher());
    panel->SetVisibility(CATDlgHide);
    panel->RequestDelayedDestruction();
}

void ParameterEditing::OnAccept() {
    if (Accept())
        _taken();
}

void ParameterEditing::OnApply() {
    if (Apply())
        _taken();
}

void ParameterEditing::OnCancel() {
    Close();
    _feature.Give(_request.parameter, _before);
    _taken();
}

} // namespace workbench
