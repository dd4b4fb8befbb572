#include "workbench/FeatureCommand.h"

#include "CATApplicationFrame.h"
#include "CommandTexts.h"
#include "EditedFeature.h"
#include "FeatureDialog.h"
#include "InputSelection.h"
#include "OrvKvGroupAndGeometrySub.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterListSub.h"
#include "OrvKvParameterSetListSub.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvPrompt.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "OrvKvTypeAndParameterSetSub.h"
#include "OrvKvTypeSelectedNotification.h"
#include "SetTable.h"
#include "engineering/FeatureCatalogue.h"
#include "host/ParameterEntry.h"

namespace workbench {

CATImplementClass(FeatureCommand, Implementation, CATCommand, CATNull);

namespace {

constexpr int directionInput = 2; ///< the input along which the feature can be turned round
constexpr unsigned char silent = 1;
constexpr unsigned char reporting = 0;

/// Shows the error behind a failing result to the user.
void ShowFailure(long result) {
    if (FAILED(result))
        OrvKvPrompt::Error(result);
}

CATListValCATString ListOf(const std::vector<std::string>& keys) {
    CATListValCATString list;
    for (const std::string& key : keys)
        list.Append(key.c_str());
    return list;
}

CATListValCATUnicodeString NamesOf(const std::vector<engineering::ParameterSet>& sets) {
    CATListValCATUnicodeString names;
    for (const engineering::ParameterSet& set : sets)
        names.Append(set.name.c_str());
    return names;
}

} // namespace

FeatureCommand::FeatureCommand(const engineering::FeatureCatalogue& catalogue, const engineering::Part& part,
                               Mode mode)
    : CATCommand(nullptr, "FeatureCommand"), _catalogue(catalogue), _mode(mode),
      _inputs(std::make_unique<InputSelection>(part)) {}

FeatureCommand::~FeatureCommand() = default;

bool FeatureCommand::Start() {
    CATDialog* const mainWindow = CATApplicationFrame::GetFrame()->GetMainWindow();
    _dialog = mainWindow == nullptr ? nullptr : new FeatureDialog(mainWindow, _mode);
    if (_dialog == nullptr)
        return false;
    if (!_dialog->Build() || !ListenToDialog()) {
        _dialog->RequestDelayedDestruction();
        _dialog = nullptr;
        _subscriptions.clear();
        return false;
    }
    _state = State::Running;
    ShowType(nullptr);
    const CATListValCATString groups = ListOf(_catalogue.Groups());
    ShowFailure(_dialog->GroupAndGeometry()->SetGroupKeys(&groups, 1));
    _dialog->SetVisibility(CATDlgShow);
    return true;
}

bool FeatureCommand::ListenToDialog() {
    const auto accept = static_cast<CATCommandMethod>(&FeatureCommand::OnAccept);
    const auto cancel = static_cast<CATCommandMethod>(&FeatureCommand::OnCancel);
    return ListenTo(_dialog, _dialog->GetDiaOKNotification(), accept) &&
           ListenTo(_dialog, _dialog->GetDiaCANCELNotification(), cancel) &&
           ListenTo(_dialog, _dialog->GetWindCloseNotification(), cancel);
}

// Without its notification a widget would be heard with everything that it sends.
bool FeatureCommand::ListenTo(CATCommand* publisher, CATNotification* notification, CATCommandMethod answer) {
    if (notification == nullptr)
        return false;
    AddAnalyseNotificationCB(publisher, notification, answer, nullptr);
    _subscriptions.push_back({publisher, notification});
    return true;
}

FeatureCommand::Answer FeatureCommand::AnswerTo(const CATNotification& notification) {
    const struct {
        const char* heard;
        Answer answer;
    } answers[] = {
        {OrvKvGroupChangedNotification::ClassName(), &FeatureCommand::OnGroupChanged},
        {OrvKvTypeSelectedNotification::ClassName(), &FeatureCommand::OnTypeSelected},
        {OrvKvParameterSetSelectedNotification::ClassName(), &FeatureCommand::OnParameterSetSelected},
        {OrvKvModifiedParameterInMultiListNotification::ClassName(), &FeatureCommand::OnParameterModified},
        {OrvKvSetInputGeometryNotification::ClassName(), &FeatureCommand::OnInputWanted},
        {OrvKvInvertFeatureNotification::ClassName(), &FeatureCommand::OnInverted},
    };
    for (const auto& each : answers)
        if (notification.IsAKindOf(each.heard) != 0)
            return each.answer;
    return nullptr;
}

CATNotifPropagationMode FeatureCommand::AnalyseNotification(CATCommand*, CATNotification* notification) {
    const Answer answer = _dialog == nullptr || notification == nullptr ? nullptr : AnswerTo(*notification);
    if (answer == nullptr)
        return CATNotifTransmitToFather;
    (this->*answer)(*notification);
    return CATNotifDontTransmitToFather;
}

// A group without types sends no type, so what the group before has left is cleared first.
void FeatureCommand::OnGroupChanged(CATNotification& notification) {
    int group = 0;
    static_cast<OrvKvGroupChangedNotification&>(notification).GetGroup(&group);
    if (group < 1 || static_cast<std::size_t>(group) > _catalogue.Groups().size())
        return;
    ShowType(nullptr);
    const std::string& key = _catalogue.Groups()[static_cast<std::size_t>(group - 1)];
    const CATListValCATString types = ListOf(*_catalogue.TypesOf(key));
    ShowFailure(_dialog->Selector()->SetFeatureTypes(group, 1, &types));
}

void FeatureCommand::OnTypeSelected(CATNotification& notification) {
    int group = 0;
    int number = 0;
    CATString key;
    CATUnicodeString name;
    const long result = static_cast<OrvKvTypeSelectedNotification&>(notification)
                            .GetFeatureInformation(&group, &number, &key, &name);
    if (FAILED(result))
        return OrvKvPrompt::Error(result);
    ShowType(_catalogue.Type(key.ConvertToChar()));
}

// A type without sets sends no set, so what the type before has left is cleared first.
void FeatureCommand::ShowType(const engineering::FeatureType* type) {
    _typeKey = type == nullptr ? std::string() : type->Description().key;
    _setName.clear();
    auto feature = type == nullptr ? nullptr : std::make_unique<EditedFeature>(*type);
    if (OrvKvParameterListSub* const list = _dialog->ParameterList())
        ShowFailure(
            list->SetFeatureParameters(feature ? feature->Modifications() : OrvIKvFeatureParameters_var()));
    _feature = std::move(feature);
    _inputs->UseType(type);
    ShowInputs();
    if (_mode == Mode::Sets)
        ShowSets(type);
    ShowParameters();
    const CATListValCATUnicodeString names =
        type == nullptr ? CATListValCATUnicodeString() : NamesOf(type->Sets());
    ShowFailure(_dialog->Selector()->SetParameterSetNames(names, 0));
}

void FeatureCommand::ShowSets(const engineering::FeatureType* type) {
    OrvKvParameterSetListSub& table = *_dialog->SetList();
    const ParameterLists columns = type == nullptr ? ParameterLists() : ColumnsOf(*type);
    ShowFailure(table.SetParameterNames(columns.parameters, columns.names, columns.valueShown,
                                        columns.valueEditable, columns.toleranceShown,
                                        columns.toleranceEditable));
    if (type == nullptr)
        return;
    for (const engineering::ParameterSet& set : type->Sets()) {
        const ParameterLists cells = CellsOf(*type, set.values);
        ShowFailure(table.SetParameterSet(set.name.c_str(), cells.names, cells.parameters, cells.tolerances));
    }
}

void FeatureCommand::OnParameterSetSelected(CATNotification& notification) {
    CATUnicodeString name;
    static_cast<OrvKvParameterSetSelectedNotification&>(notification).GetParameterSetName(&name);
    const engineering::ParameterSet* const set =
        !_feature ? nullptr : _feature->Type().FindSet(name.ConvertToUTF8());
    if (set == nullptr)
        return;
    _setName = set->name;
    OrvKvParameterListSub* const list = _dialog->ParameterList();
    if (list == nullptr || !_feature->KeepsRowsWith(*set)) {
        _feature->Take(*set);
        return ShowParameters();
    }
    list->StopParameterValueChangedNotification(silent);
    _feature->Take(*set);
    list->StopParameterValueChangedNotification(reporting);
    ShowFits();
}

void FeatureCommand::ShowParameters() {
    if (OrvKvParameterSetListSub* const table = _dialog->SetList()) {
        if (!_feature || _setName.empty())
            return;
        const ParameterLists cells = CellsOf(_feature->Type(), _feature->Values());
        return ShowFailure(
            table->SetCurrentParameters(_setName.c_str(), cells.names, cells.parameters, cells.tolerances));
    }
    const ParameterLists lists = _feature ? _feature->Lists() : ParameterLists();
    ShowFailure(_dialog->ParameterList()->SetParameters(lists.parameters, lists.names, lists.tolerances,
                                                        lists.valueShown, lists.valueEditable,
                                                        lists.toleranceShown, lists.toleranceEditable));
    ShowFits();
}

// The list itself knows the limits of a parameter only, and shows them again whenever a value changes.
void FeatureCommand::ShowFits() {
    if (!_feature)
        return;
    for (const engineering::Parameter& parameter : _feature->Type().Parameters()) {
        const CATUnicodeString fit = _feature->Fit(parameter.name);
        if (fit != "")
            ShowFailure(_dialog->ParameterList()->SetFittingInfo(parameter.name.c_str(), fit));
    }
}

void FeatureCommand::OnParameterModified(CATNotification& notification) {
    CATString name;
    static_cast<OrvKvModifiedParameterInMultiListNotification&>(notification).GetParameterName(name);
    OrvKvParameterListSub* const list = _dialog->ParameterList();
    const CATUnicodeString fit = _feature ? _feature->Fit(name.ConvertToChar()) : CATUnicodeString();
    if (list != nullptr && fit != "")
        ShowFailure(list->SetFittingInfo(name, fit));
}

host::Outcome FeatureCommand::SetValue(const std::string& parameter, const std::string& text) {
    const CATICkeParm_var found = _feature ? _feature->Parameter(parameter) : CATICkeParm_var();
    if (!found)
        return host::Outcome::Refused(
            CommandText("NoSuchParameter", {CATUnicodeString(parameter.c_str())}).ConvertToUTF8());
    host::Outcome outcome = host::ParameterEntry::Type(*found, text);
    if (outcome && _mode == Mode::Sets)
        ShowParameters();
    return outcome;
}

void FeatureCommand::OnInputWanted(CATNotification& notification) {
    _inputs->Await(static_cast<OrvKvSetInputGeometryNotification&>(notification).GetInputGeometryNo());
    if (_inputsChanged)
        _inputsChanged();
}

void FeatureCommand::OnInverted(CATNotification&) {
    _inputs->Invert();
    ShowInputs();
}

host::Outcome FeatureCommand::Pick(const std::string& element) {
    if (_dialog == nullptr)
        return host::Outcome::Refused(CommandText("NoInputWaits").ConvertToUTF8());
    host::Outcome outcome = _inputs->Pick(element);
    if (outcome)
        ShowInputs();
    return outcome;
}

void FeatureCommand::ShowInputs() {
    for (int input = 1; input <= InputSelection::maximum; ++input)
        ShowFailure(_dialog->GroupAndGeometry()->SetGeometryText(
            input, TextOfInput(input), _inputs->Has(input) ? CATDlgShow : CATDlgHide));
    if (_inputsChanged)
        _inputsChanged();
}

CATUnicodeString FeatureCommand::TextOfInput(int input) const {
    const engineering::Element* const element = _inputs->ElementOf(input);
    const CATUnicodeString name =
        element == nullptr ? CommandText("NoElement") : CATUnicodeString(element->name.c_str());
    return input == directionInput && _inputs->IsInverted() ? CommandText("Inverted", {name}) : name;
}

int FeatureCommand::AwaitedInput() const {
    return _inputs->Awaited();
}

std::set<engineering::ElementKind> FeatureCommand::AwaitedKinds() const {
    return _inputs->AwaitedKinds();
}

std::vector<std::string> FeatureCommand::PickedElements() const {
    return _inputs->PickedNames();
}

void FeatureCommand::OnAccept(CATCommand*, CATNotification*, CATCommandClientData) {
    End(State::Accepted);
}

void FeatureCommand::OnCancel(CATCommand*, CATNotification*, CATCommandClientData) {
    End(State::Cancelled);
}

void FeatureCommand::End(State state) {
    _state = state;
    for (const Subscription& each : _subscriptions)
        RemoveAnalyseNotificationCB(each.publisher, each.notification, nullptr);
    _subscriptions.clear();
    _dialog->SetVisibility(CATDlgHide);
    _dialog->RequestDelayedDestruction();
    _dialog = nullptr;
    if (_ended)
        _ended();
}

} // namespace workbench
