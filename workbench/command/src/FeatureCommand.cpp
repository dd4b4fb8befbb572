#include "workbench/FeatureCommand.h"

#include "CATApplicationFrame.h"
#include "CATDlgCombo.h"
#include "DisplayNames.h"
#include "FeatureDialog.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvPrompt.h"
#include "OrvKvTypeAndParameterSetSub.h"
#include "OrvKvTypeSelectedNotification.h"
#include "SetDescription.h"
#include "engineering/FeatureCatalogue.h"

namespace workbench {

CATImplementClass(FeatureCommand, Implementation, CATCommand, CATNull);

namespace {

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

FeatureCommand::FeatureCommand(const engineering::FeatureCatalogue& catalogue, Mode mode)
    : CATCommand(nullptr, "FeatureCommand"), _catalogue(catalogue), _mode(mode) {}

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
    ShowGroups();
    _dialog->SetVisibility(CATDlgShow);
    return true;
}

bool FeatureCommand::ListenToDialog() {
    CATDlgCombo* const groups = _dialog->GroupCombo();
    const auto accept = static_cast<CATCommandMethod>(&FeatureCommand::OnAccept);
    const auto cancel = static_cast<CATCommandMethod>(&FeatureCommand::OnCancel);
    return ListenTo(groups, groups->GetComboSelectNotification(),
                    static_cast<CATCommandMethod>(&FeatureCommand::OnGroupChosen)) &&
           ListenTo(_dialog, _dialog->GetDiaOKNotification(), accept) &&
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

void FeatureCommand::ShowGroups() {
    CATDlgCombo& combo = *_dialog->GroupCombo();
    for (const std::string& group : _catalogue.Groups())
        combo.SetLine(DisplayNameOf(group));
    combo.SetVisibleTextHeight(combo.GetLineCount());
    ShowSetsOf(nullptr);
    combo.SetSelect(0, CATDlgWithNotification);
}

CATNotifPropagationMode FeatureCommand::AnalyseNotification(CATCommand*, CATNotification* notification) {
    if (_dialog == nullptr || notification == nullptr)
        return CATNotifTransmitToFather;
    if (notification->IsAKindOf(OrvKvTypeSelectedNotification::ClassName()) != 0)
        OnTypeSelected(*notification);
    else if (notification->IsAKindOf(OrvKvParameterSetSelectedNotification::ClassName()) != 0)
        OnParameterSetSelected(*notification);
    else
        return CATNotifTransmitToFather;
    return CATNotifDontTransmitToFather;
}

// A group without types sends no type, so what the group before has left is cleared first.
void FeatureCommand::OnGroupChosen(CATCommand*, CATNotification*, CATCommandClientData) {
    const int line = _dialog->GroupCombo()->GetSelect();
    if (line < 0)
        return;
    ShowSetsOf(nullptr);
    const std::string& group = _catalogue.Groups()[static_cast<std::size_t>(line)];
    const CATListValCATString types = ListOf(*_catalogue.TypesOf(group));
    ShowFailure(_dialog->Selector()->SetFeatureTypes(line + 1, 1, &types));
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
    ShowSetsOf(_catalogue.Type(key.ConvertToChar()));
}

void FeatureCommand::OnParameterSetSelected(CATNotification& notification) {
    CATUnicodeString name;
    static_cast<OrvKvParameterSetSelectedNotification&>(notification).GetParameterSetName(&name);
    const engineering::FeatureType* const type = _catalogue.Type(_typeKey);
    const engineering::ParameterSet* const set =
        type == nullptr ? nullptr : type->FindSet(name.ConvertToUTF8());
    _setName = set == nullptr ? std::string() : set->name;
    _dialog->Acknowledge(set == nullptr ? NoSetChosen() : Describe(*type, *set));
}

// A type without sets sends no set, so the acknowledgement is emptied first.
void FeatureCommand::ShowSetsOf(const engineering::FeatureType* type) {
    _typeKey = type == nullptr ? std::string() : type->Description().key;
    _setName.clear();
    _dialog->Acknowledge(NoSetChosen());
    const CATListValCATUnicodeString names =
        type == nullptr ? CATListValCATUnicodeString() : NamesOf(type->Sets());
    ShowFailure(_dialog->Selector()->SetParameterSetNames(names, 0));
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
