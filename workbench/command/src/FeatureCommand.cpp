#include "workbench/FeatureCommand.h"

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"
#include "CommandTexts.h"
#include "DrawingBook.h"
#include "EditedFeature.h"
#include "InputSelection.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvMainPanel.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterListSub.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvPrompt.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "OrvKvTypeSelectedNotification.h"
#include "ParameterEditing.h"
#include "RuleWatch.h"
#include "SetTable.h"
#include "ThreadPage.h"
#include "WidgetSearch.h"
#include "engineering/FeatureCatalogue.h"
#include "host/ParameterEntry.h"

namespace workbench {

CATImplementClass(FeatureCommand, Implementation, CATCommand, CATNull);

namespace {

constexpr unsigned char parameterMode = 0; ///< of the main panel, like the next two
constexpr unsigned char setMode = 1;
constexpr unsigned char withDescriptions = 0;
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
    : DialogCommand("FeatureCommand"), _catalogue(catalogue), _mode(mode), _dialog(*this),
      _inputs(std::make_unique<InputSelection>(part)),
      _thread(std::make_unique<ThreadPage>(catalogue.Threads(), [this] { CheckRules(); })),
      _rules(std::make_unique<RuleWatch>()), _drawings(std::make_unique<DrawingBook>(DrawingBook::Finder())) {
}

FeatureCommand::~FeatureCommand() = default;

void FeatureCommand::UseDrawings(std::function<std::filesystem::path(const std::string&)> finder) {
    _drawings = std::make_unique<DrawingBook>(std::move(finder));
}

bool FeatureCommand::Start() {
    auto* const panel = new OrvKvMainPanel(_mode == Mode::Sets ? setMode : parameterMode, withDescriptions);
    if (panel == nullptr)
        return false;
    AttachTo(panel);
    panel->Build();
    // The main panel hands neither the feature's modifications nor the silence during a change of sets on.
    _list = FirstIn<OrvKvParameterListSub>(*panel);
    if (!ListenToDialog()) {
        AttachTo(nullptr);
        _dialog.Stop();
        panel->RequestDelayedDestruction();
        return false;
    }
    _state = State::Running;
    if (_threadPageWaits)
        _thread->Attach(panel);
    UseType(nullptr);
    const CATListValCATString groups = ListOf(_catalogue.Groups());
    ShowFailure(panel->SetGroups(&groups, 1));
    panel->SetVisibility(CATDlgShow);
    return true;
}

void FeatureCommand::AttachTo(OrvKvMainPanel* panel) {
    _panel = panel;
    _rules->Attach(panel);
    if (panel != nullptr)
        return;
    _list = nullptr;
    _thread->Attach(nullptr);
}

bool FeatureCommand::ListenToDialog() {
    return _dialog.ListenTo(_panel, _panel->GetDiaOKNotification(), [this] { OnAccept(); }) &&
           _dialog.ListenTo(_panel, _panel->GetDiaAPPLYNotification(), [this] { OnApply(); }) &&
           _dialog.ListenTo(_panel, _panel->GetDiaCANCELNotification(), [this] { End(State::Cancelled); }) &&
           _dialog.ListenTo(_panel, _panel->GetWindCloseNotification(), [this] { End(State::Cancelled); }) &&
           _dialog.ListenTo(_panel, _panel->GetDiaHELPNotification(), [this] { OnHelp(); });
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
        {OrvKvParameterListDoubleClickedNotification::ClassName(), &FeatureCommand::OnParameterDoubleClicked},
        {OrvKvParameterEditISOFittingNotification::ClassName(),
         &FeatureCommand::ToEditing<OrvKvParameterEditISOFittingNotification, &ParameterEditing::OnFit>},
        {OrvKvParameterEditISOFittingGroupSelectNotification::ClassName(),
         &FeatureCommand::ToEditing<OrvKvParameterEditISOFittingGroupSelectNotification,
                                    &ParameterEditing::OnFitGroup>},
        {OrvKvParameterEditISOFittingFieldSelectNotification::ClassName(),
         &FeatureCommand::ToEditing<OrvKvParameterEditISOFittingFieldSelectNotification,
                                    &ParameterEditing::OnFitField>},
        {OrvKvParameterEditUpdateISOFittingValuesNotification::ClassName(),
         &FeatureCommand::ToEditing<OrvKvParameterEditUpdateISOFittingValuesNotification,
                                    &ParameterEditing::OnFitUpdate>},
        {OrvKvSetInputGeometryNotification::ClassName(), &FeatureCommand::OnInputWanted},
        {OrvKvInvertFeatureNotification::ClassName(), &FeatureCommand::OnInverted},
        {OrvKvThreadInitNotification::ClassName(), &FeatureCommand::OnThreadInit},
        {OrvKvThreadTypeNotification::ClassName(), &FeatureCommand::OnThreadType},
        {OrvKvThreadDiameterNotification::ClassName(), &FeatureCommand::OnThreadDiameter},
        {OrvKvThreadTakeNotification::ClassName(), &FeatureCommand::OnThreadTake},
    };
    for (const auto& each : answers)
        if (notification.IsAKindOf(each.heard) != 0)
            return each.answer;
    return nullptr;
}

CATNotifPropagationMode FeatureCommand::AnalyseNotification(CATCommand*, CATNotification* notification) {
    const Answer answer = _panel == nullptr || notification == nullptr ? nullptr : AnswerTo(*notification);
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
    UseType(nullptr);
    const std::string& key = _catalogue.Groups()[static_cast<std::size_t>(group - 1)];
    const CATListValCATString types = ListOf(*_catalogue.TypesOf(key));
    ShowFailure(_panel->SetFeatureTypes(group, 1, &types));
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
    UseType(_catalogue.Type(key.ConvertToChar()));
}

void FeatureCommand::UseType(const engineering::FeatureType* type) {
    Change([this, type] { ShowType(type); });
}

// A type without sets sends no set, so what the type before has left is cleared first.
void FeatureCommand::ShowType(const engineering::FeatureType* type) {
    EndEditing();
    _typeKey = type == nullptr ? std::string() : type->Description().key;
    _setName.clear();
    auto feature = type == nullptr
                       ? nullptr
                       : std::make_unique<EditedFeature>(*type, _catalogue.Fits(), [this] { CheckRules(); });
    if (_list != nullptr)
        ShowFailure(
            _list->SetFeatureParameters(feature ? feature->Modifications() : OrvIKvFeatureParameters_var()));
    _feature = std::move(feature);
    _rules->UseType(type);
    _inputs->UseType(type);
    ShowInputs();
    ShowDrawing();
    const bool getsThreadOfSet =
        type != nullptr && !type->Sets().empty() && !type->Description().thread.empty();
    if (!getsThreadOfSet)
        ShowThread();
    if (_mode == Mode::Sets)
        ShowSets(type);
    ShowParameters();
    const CATListValCATUnicodeString names =
        type == nullptr ? CATListValCATUnicodeString() : NamesOf(type->Sets());
    ShowFailure(_panel->SetParameterSetNames(names, 0));
}

void FeatureCommand::ShowDrawing() {
    const DrawingBook::Page& page = _drawings->Of(_typeKey);
    _rules->UseProblem(page.problem);
    ShowFailure(_panel->SetFeatureDrawing(page.image.get(), _typeKey.c_str()));
}

void FeatureCommand::ShowThread() {
    if (!_feature || _feature->Type().Description().thread.empty())
        return _thread->ShowNone();
    _thread->Show(_feature->TextOf(_feature->Type().Description().thread));
}

void FeatureCommand::ShowSets(const engineering::FeatureType* type) {
    const ParameterLists columns = type == nullptr ? ParameterLists() : ColumnsOf(*type);
    ShowFailure(_panel->SetParameterNames(columns.parameters, columns.names, columns.valueShown,
                                          columns.valueEditable, columns.toleranceShown,
                                          columns.toleranceEditable));
    if (type == nullptr)
        return;
    for (const engineering::ParameterSet& set : type->Sets()) {
        const ParameterLists cells = CellsOf(*type, set.values);
        ShowFailure(
            _panel->SetParameterSet(set.name.c_str(), cells.names, cells.parameters, cells.tolerances));
    }
}

void FeatureCommand::OnParameterSetSelected(CATNotification& notification) {
    CATUnicodeString name;
    static_cast<OrvKvParameterSetSelectedNotification&>(notification).GetParameterSetName(&name);
    const engineering::ParameterSet* const set =
        !_feature ? nullptr : _feature->Type().FindSet(name.ConvertToUTF8());
    if (set == nullptr)
        return;
    EndEditing();
    _setName = set->name;
    Change([this, set] {
        TakeSet(*set);
        ShowThread();
    });
}

// Where the rows stay, the list follows the parameters by itself.
void FeatureCommand::TakeSet(const engineering::ParameterSet& set) {
    const bool keepsRows = _list != nullptr && _feature->KeepsRowsWith(set);
    if (keepsRows)
        _list->StopParameterValueChangedNotification(silent);
    _feature->Take(set);
    if (keepsRows)
        _list->StopParameterValueChangedNotification(reporting);
    if (keepsRows)
        ShowFits();
    else
        ShowParameters();
}

void FeatureCommand::Change(const std::function<void()>& steps) {
    ++_changes;
    steps();
    --_changes;
    CheckRules();
}

void FeatureCommand::CheckRules() {
    if (_changes > 0 || _panel == nullptr)
        return;
    auto values = _feature ? _feature->Numbers() : std::map<std::string, double, std::less<>>();
    _thread->AddTo(values);
    _rules->Check(values);
}

bool FeatureCommand::IsValid() const {
    return _rules->IsValid();
}

const TakenThread* FeatureCommand::Thread() const {
    return _thread->HasThread() ? &_thread->Taken() : nullptr;
}

engineering::ParameterValue FeatureCommand::ValueOf(const std::string& parameter) const {
    return _feature ? _feature->ValueOf(parameter) : engineering::ParameterValue();
}

void FeatureCommand::ShowParameters() {
    if (_mode == Mode::Sets && (!_feature || _setName.empty()))
        return;
    const ParameterLists lists = !_feature             ? ParameterLists()
                                 : _mode == Mode::Sets ? CellsOf(_feature->Type(), _feature->Values())
                                                       : _feature->Lists();
    ShowFailure(_panel->SetParameters(_setName.c_str(), lists.names, lists.parameters, lists.tolerances,
                                      lists.valueShown, lists.valueEditable, lists.toleranceShown,
                                      lists.toleranceEditable));
    ShowFits();
}

// The list itself knows the limits of a parameter only, and shows them again whenever a value changes.
void FeatureCommand::ShowFits() {
    if (!_feature || _mode == Mode::Sets)
        return;
    for (const engineering::Parameter& parameter : _feature->Type().Parameters())
        ShowFit(parameter.name);
}

void FeatureCommand::ShowFit(const std::string& parameter) {
    const CATUnicodeString fit = _feature ? _feature->Fit(parameter) : CATUnicodeString();
    if (fit != "")
        ShowFailure(_panel->SetFittingInfo(parameter.c_str(), fit));
}

void FeatureCommand::OnParameterModified(CATNotification& notification) {
    CATString name;
    static_cast<OrvKvModifiedParameterInMultiListNotification&>(notification).GetParameterName(name);
    ShowFit(name.ConvertToChar());
}

// The tables of sets let every tolerance be edited; the catalogue has the last word.
void FeatureCommand::OnParameterDoubleClicked(CATNotification& notification) {
    auto& clicked = static_cast<OrvKvParameterListDoubleClickedNotification&>(notification);
    CATString name;
    int row = 0;
    unsigned char editsValue = 0;
    unsigned char editsTolerance = 0;
    if (FAILED(clicked.GetParameterName(&name, &row)) || FAILED(clicked.GetEditParameterFlag(editsValue)) ||
        FAILED(clicked.GetEditToleranceOrFittingFlag(editsTolerance)))
        return;
    const engineering::Parameter* const definition =
        _feature ? _feature->Type().FindParameter(name.ConvertToChar()) : nullptr;
    if (definition != nullptr)
        EditParameter({definition->name, editsValue != 0 && definition->valueEditable,
                       editsTolerance != 0 && definition->toleranceEditable});
}

// What is edited already is taken over first, so that nothing typed is lost.
void FeatureCommand::EditParameter(const ParameterRequest& request) {
    if (!_feature->Parameter(request.parameter))
        return OrvKvPrompt::Warning(
            CommandText("NotTabulated", {CATUnicodeString(request.parameter.c_str())}));
    if (IsEditing()) {
        if (_editing->Request() == request || !_editing->Accept())
            return;
        OnParameterTaken();
    }
    _editing = std::make_unique<ParameterEditing>(*this, *_feature, _catalogue.Fits(), request);
    _editing->WhenTaken([this] { OnParameterTaken(); });
    if (!_editing->Start())
        _editing.reset();
}

// A closed panel has told the change already; the table of sets shows a copy of the parameter.
void FeatureCommand::OnParameterTaken() {
    if (IsEditing() || _mode == Mode::Sets)
        ShowParameters();
}

bool FeatureCommand::IsEditing() const {
    return _editing && _editing->IsOpen();
}

void FeatureCommand::EndEditing() {
    if (IsEditing())
        _editing->Close();
    _editing.reset();
}

template<class Heard, void (ParameterEditing::*answer)(Heard&)>
void FeatureCommand::ToEditing(CATNotification& notification) {
    if (IsEditing())
        (_editing.get()->*answer)(static_cast<Heard&>(notification));
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

// The page asks while the panel is being built, when it cannot take its data yet.
void FeatureCommand::OnThreadInit(CATNotification&) {
    _threadPageWaits = true;
}

void FeatureCommand::OnThreadType(CATNotification& notification) {
    _thread->OnType(static_cast<OrvKvThreadTypeNotification&>(notification));
}

void FeatureCommand::OnThreadDiameter(CATNotification& notification) {
    _thread->OnDiameter(static_cast<OrvKvThreadDiameterNotification&>(notification));
}

void FeatureCommand::OnThreadTake(CATNotification& notification) {
    _thread->OnTake(static_cast<OrvKvThreadTakeNotification&>(notification));
}

host::Outcome FeatureCommand::Pick(const std::string& element) {
    if (_panel == nullptr)
        return host::Outcome::Refused(CommandText("NoInputWaits").ConvertToUTF8());
    host::Outcome outcome = _inputs->Pick(element);
    if (outcome)
        ShowInputs();
    return outcome;
}

void FeatureCommand::ShowInputs() {
    for (int input = 1; input <= InputSelection::maximum; ++input)
        _panel->SetInputGeometryUI(input, _inputs->Has(input) ? CATDlgShow : CATDlgHide, TextOfInput(input));
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

void FeatureCommand::OnAccept() {
    if (MayBeTaken())
        End(State::Accepted);
}

// The values that are there are those that the feature starts with from now on.
void FeatureCommand::OnApply() {
    if (!_feature || !MayBeTaken())
        return;
    _feature->Apply();
    ShowParameters();
}

void FeatureCommand::OnHelp() {
    auto* const message = new CATDlgNotify(_panel, "HelpMessage");
    if (message == nullptr)
        return;
    message->DisplayBlocked(CommandText("HelpText"), CommandText("HelpTitle"));
    message->RequestDelayedDestruction();
}

bool FeatureCommand::MayBeTaken() const {
    if (!IsValid()) {
        OrvKvPrompt::Warning(CommandText("BreaksRules"));
        return false;
    }
    return !IsEditing() || _editing->Apply();
}

void FeatureCommand::End(State state) {
    _state = state;
    EndEditing();
    _dialog.Stop();
    OrvKvMainPanel* const panel = _panel;
    AttachTo(nullptr);
    panel->SetVisibility(CATDlgHide);
    panel->RequestDelayedDestruction();
    if (_ended)
        _ended();
}

} // namespace workbench
