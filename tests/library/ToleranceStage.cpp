#include "ToleranceStage.h"

#include "OrvKvToleranceSub.h"

#include "OrvKvToleranceSubTest.h"

#include "CATCallbackManager.h"
#include "CATDlgCombo.h"
#include "CATDlgDocument.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgRadioButton.h"
#include "CATErrorMacros.h"
#include "CATICkeParamFrame.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "host/Application.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Messages.h"
#include "host/ParameterEditor.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"

#include <algorithm>
#include <stdexcept>

namespace tolerance {

using toleranceSub::ListOf;

namespace {

CATICkeParm_var NewParameter(const Start& iStart) {
    const CATICkeParm_var parameter = iStart.isAngle ? host::Parameters::NewAngle("D", iStart.nominal)
                                                     : host::Parameters::NewLength("D", iStart.nominal);
    if (iStart.hasTolerance) {
        const CATIParmTolerance_var tolerance(parameter);
        tolerance->SetMaxTolerance(iStart.maximum);
        tolerance->SetMinTolerance(iStart.minimum);
    }
    return parameter;
}

std::string Answer(const host::Outcome& iOutcome) {
    return iOutcome ? "done" : "refused";
}

std::string Answer(long iResult) {
    return SUCCEEDED(iResult) ? "S_OK" : "E_FAIL";
}

Sight::Editor SightOf(const host::ValueFrame& iFrame) {
    return {iFrame.Text(), iFrame.IsRefused(), iFrame.GetSensitivity() == CATDlgEnable};
}

Sight::List SightOf(const CATDlgCombo& iCombo) {
    return {LinesOf(iCombo), iCombo.GetSelect(), host::Inspector::VisibleTextHeight(iCombo)};
}

// Apart from those of the watcher, which hears two events of each.
int SubscriptionsOn(const CATICkeParm_var& iParameter) {
    return host::CommandInspection::SubscriptionsOn(*CATIParmEvents_var(iParameter)->GetPublisher()) - 2;
}

// Sends an event that belongs to the widget.
void Send(CATDialog& ioWidget, CATNotification* iEvent) {
    const host::EventScope event;
    iEvent->AddRef(); // the sending takes one over
    ioWidget.SendNotification(ioWidget.GetFather(), iEvent);
}

bool IsShown(const CATDialog& iWidget) {
    return iWidget.GetVisibility() == CATDlgShow;
}

} // namespace

CATNotifPropagationMode Stage::Command::AnalyseNotification(CATCommand*, CATNotification* iNotification) {
    _stage.Hear(*iNotification);
    return CATNotifDontTransmitToFather;
}

Stage::Stage(CATDlgDocument& ioWindow, const Start& iStart)
    : _command(std::make_unique<Command>(*this)), _activeBefore(host::Application::ActiveCommand()),
      _parameter(NewParameter(iStart)), _father(new CATDlgFrame(&ioWindow, "Father")),
      _panel(new OrvKvToleranceSub(_father, _parameter)) {
    host::Application::SetActiveCommand(_command.get());
    host::Trace::AddSink(_traces);
    _panel->Build();
    _nominal = dynamic_cast<host::ValueFrame*>(
        CATICkeParamFrame_var(_parameter)
            ->BuildFrame(CATIParmPublisher_var(), &ioWindow, CATCkeNoLabel | CATCkeWithSpinner, "Nominal"));
    _maximum = &Child<host::ValueFrame>("Max");
    _minimum = &Child<host::ValueFrame>("Min");
    _watcher.Watch(_parameter);
    _watcher.Watch(host::ParameterEditor::ParameterOf(*_maximum));
    _watcher.Watch(host::ParameterEditor::ParameterOf(*_minimum));
    _radios = {&Child<CATDlgRadioButton>("PlusMinusRdb"),
               &Child<CATDlgRadioButton>("PlusMinusSymmetricalRdb"),
               &Child<CATDlgRadioButton>("ISOFittingRdb")};
    _groups = &Child<CATDlgCombo>("ToleranceGroupCmb");
    _fields = &Child<CATDlgCombo>("ToleranceFieldCmb");
    _fitWidgets = {&Child<CATDlgLabel>("ToleranceGroupLab"), _groups,
                   &Child<CATDlgLabel>("ToleranceFieldLab"), _fields};
}

Stage::~Stage() {
    _father->RequestDelayedDestruction();
    _nominal->RequestDelayedDestruction();
    host::EventScope::RunIdle();
    host::Trace::RemoveSink(_traces);
    host::Application::SetActiveCommand(_activeBefore);
    host::Messages::ClearJournal();
}

template<class Class>
Class& Stage::Child(const std::string& iName) const {
    for (CATDialog* child : host::Inspector::Children(*_panel))
        if (iName == child->GetName().ConvertToChar())
            return dynamic_cast<Class&>(*child);
    throw std::runtime_error("the panel has no " + iName);
}

std::string Stage::Run(const std::function<long()>& iCall) {
    const host::EventScope event;
    std::string answer;
    CATTry {
        answer = Answer(iCall());
    }
    CATCatch(CATBaseUnknown, pRaised) {
        answer = std::string("raised ") + pRaised->IsA();
        pRaised->Release();
    }
    CATEndTry;
    return answer;
}

void Stage::Act(const std::function<void()>& iCall) {
    const host::EventScope event;
    iCall();
}

// ---- A person

std::string Stage::Check(Mode iRadio) {
    return Answer(host::DialogUser::Check(Radio(iRadio)));
}

std::string Stage::Type(Limit iLimit, const std::string& iText) {
    return Answer(host::DialogUser::Type(Editor(iLimit), iText));
}

std::string Stage::Spin(Limit iLimit, int iSteps) {
    return Answer(host::DialogUser::Spin(Editor(iLimit), iSteps));
}

std::string Stage::Restore(Limit iLimit) {
    return Answer(host::DialogUser::Restore(Editor(iLimit)));
}

std::string Stage::TypeNominal(const std::string& iText) {
    return Answer(host::DialogUser::Type(*_nominal, iText));
}

std::string Stage::SpinNominal(int iSteps) {
    return Answer(host::DialogUser::Spin(*_nominal, iSteps));
}

std::string Stage::Choose(Combo iCombo, int iLine) {
    return Answer(host::DialogUser::Choose(List(iCombo), iLine));
}

// ---- Programs

void Stage::SetRadio(Mode iRadio, bool iIsChecked, bool iNotifies) {
    Act([&] {
        Radio(iRadio).SetState(iIsChecked ? CATDlgCheck : CATDlgUncheck,
                               iNotifies ? CATDlgWithNotification : CATDlgNoNotification);
    });
}

void Stage::Report(Mode iRadio) {
    Send(Radio(iRadio), Radio(iRadio).GetRadBModifyNotification());
}

void Stage::Report(Combo iCombo) {
    Send(List(iCombo), List(iCombo).GetComboSelectNotification());
}

void Stage::SelectSilently(Combo iCombo, int iLine) {
    Act([&] { List(iCombo).SetSelect(iLine, CATDlgNoNotification); });
}

void Stage::ShowPanel(bool iIsShown) {
    Act([&] { _panel->SetVisibility(iIsShown ? CATDlgShow : CATDlgHide); });
}

void Stage::ShowFather(bool iIsShown) {
    Act([&] { _father->SetVisibility(iIsShown ? CATDlgShow : CATDlgHide); });
}

void Stage::SetNominal(double iValue, bool iRaises) {
    Act([&] {
        CATIParmAsStored_var(_parameter)->SetValue(iValue);
        if (iRaises)
            CATIParmEvents_var(_parameter)->RaiseChange(1);
    });
}

void Stage::SetTolerance(double iMaximum, double iMinimum) {
    const CATIParmTolerance_var tolerance(_parameter);
    tolerance->SetMaxTolerance(iMaximum);
    tolerance->SetMinTolerance(iMinimum);
}

void Stage::UnsetTolerance() {
    CATIParmTolerance_var(_parameter)->Unset();
}

// ---- The command

std::string Stage::InitTolerance() {
    return Run([&] { return _panel->InitTolerance(); });
}

void Stage::SetTolGroupAndField(const std::string& iGroup, const std::string& iField) {
    Act([&] { _panel->SetTolGroupAndField(iGroup.c_str(), iField.c_str()); });
}

std::string Stage::SetToleranceGroups(const Texts& iGroups, const std::string& iGroup,
                                      const std::string& iField) {
    return Run([&] { return _panel->SetToleranceGroups(ListOf(iGroups), iGroup.c_str(), iField.c_str()); });
}

std::string Stage::SetToleranceFields(const Texts& iFields) {
    return Run([&] { return _panel->SetToleranceFields(ListOf(iFields)); });
}

std::string Stage::SetToleranceValues(double iMaximum, double iMinimum, bool iIsMaximumEditable,
                                      bool iIsMinimumEditable, bool iWritesMinimum) {
    return Run([&] {
        return _panel->SetToleranceValues(iMaximum, iMinimum, iIsMaximumEditable ? 1 : 0,
                                          iIsMinimumEditable ? 1 : 0, iWritesMinimum ? 1 : 0);
    });
}

std::string Stage::SetFittingVals(double iMaximum, double iMinimum) {
    return Run([&] { return _panel->SetFittingVals(iMaximum, iMinimum); });
}

void Stage::Hear(CATNotification& ioNotification) {
    const News news = NewsOf(ioNotification);
    _notifications.push_back(news.InWords());
    _clerk.Hear(news, *this);
}

News Stage::NewsOf(CATNotification& ioNotification) const {
    CATUnicodeString group;
    CATUnicodeString field;
    News news;
    if (auto* const mode = dynamic_cast<OrvKvParameterEditISOFittingNotification*>(&ioNotification)) {
        CATICkeParm_var parameter;
        CATString storedGroup;
        CATString storedField;
        mode->GetFittingInfo(&parameter, &storedGroup, &storedField);
        news.isAboutParm = parameter == _parameter;
        group = storedGroup.CastToCharPtr();
        field = storedField.CastToCharPtr();
    } else if (auto* const ofGroup =
                   dynamic_cast<OrvKvParameterEditISOFittingGroupSelectNotification*>(&ioNotification)) {
        news.kind = News::Kind::Group;
        ofGroup->GetSelectedToleranceGroup(&group, &news.value);
    } else if (auto* const ofField =
                   dynamic_cast<OrvKvParameterEditISOFittingFieldSelectNotification*>(&ioNotification)) {
        news.kind = News::Kind::Field;
        ofField->GetSelectedFittingValues(&group, &field, &news.value);
    } else if (auto* const update =
                   dynamic_cast<OrvKvParameterEditUpdateISOFittingValuesNotification*>(&ioNotification)) {
        news.kind = News::Kind::Update;
        update->GetFittingInfo(&group, &field, &news.value);
    } else {
        throw std::runtime_error(std::string("the panel sent ") + ioNotification.IsA());
    }
    news.group = group.ConvertToChar();
    news.field = field.ConvertToChar();
    return news;
}

bool Stage::IsFitWidget(const CATDialog& iWidget) const {
    return std::find(_fitWidgets.begin(), _fitWidgets.end(), &iWidget) != _fitWidgets.end();
}

Texts Stage::Unusable() const {
    Texts names;
    for (const CATDialog* child : host::Inspector::Children(*_panel)) {
        const bool mayBeHidden = child == &Radio(Mode::Fit) || IsFitWidget(*child);
        const bool mayBeDisabled = child == _maximum || child == _minimum;
        if ((!mayBeHidden && !IsShown(*child)) || (!mayBeDisabled && child->GetSensitivity() != CATDlgEnable))
            names.emplace_back(child->GetName().ConvertToChar());
    }
    return names;
}

Sight Stage::Look() {
    Sight sight;
    sight.isPanelShown = IsShown(*_panel);
    for (std::size_t index = 0; index < _radios.size(); ++index)
        sight.checkedRadios[index] = _radios[index]->GetState() == CATDlgCheck;
    sight.isFitRadioShown = IsShown(Radio(Mode::Fit));
    for (std::size_t index = 0; index < _fitWidgets.size(); ++index)
        sight.shownFitWidgets[index] = IsShown(*_fitWidgets[index]);
    sight.unusable = Unusable();
    sight.maximum = SightOf(*_maximum);
    sight.minimum = SightOf(*_minimum);
    sight.nominal = SightOf(*_nominal);
    sight.value = CATIParmAsStored_var(_parameter)->GetValue();
    const CATIParmTolerance_var tolerance(_parameter);
    sight.isToleranceSet = tolerance->GetTypeOfTolerance() == 1;
    sight.toleranceMaximum = tolerance->GetMaxTolerance();
    sight.toleranceMinimum = tolerance->GetMinTolerance();
    sight.groups = SightOf(*_groups);
    sight.fields = SightOf(*_fields);
    CATString group;
    CATString field;
    _panel->GetFittingInfo(nullptr, nullptr, &group, &field);
    sight.group = group.CastToCharPtr();
    sight.field = field.CastToCharPtr();
    sight.subscriptionsOnParameter = SubscriptionsOn(_parameter);
    sight.subscriptionsOnMaximum = SubscriptionsOn(host::ParameterEditor::ParameterOf(*_maximum));
    sight.subscriptionsOnMinimum = SubscriptionsOn(host::ParameterEditor::ParameterOf(*_minimum));
    sight.events = _watcher.Take();
    sight.notifications.swap(_notifications);
    for (const host::Message& message : host::Messages::Journal())
        sight.messages.push_back(message.name + (message.text.empty() ? " without text" : ""));
    host::Messages::ClearJournal();
    for (const host::TraceLine& line : _traces.Lines())
        sight.traces.push_back(line.channel + " " + std::to_string(line.level) + ": " + line.text);
    _traces.Clear();
    return sight;
}

} // namespace tolerance
