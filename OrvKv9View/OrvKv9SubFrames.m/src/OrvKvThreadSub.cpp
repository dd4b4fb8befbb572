#include "OrvKvThreadSub.h"

#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgLabel.h"
#include "CATDlgRadioButton.h"
#include "CATIParmAsStored.h"
#include "OrvKvComboLines.h"
#include "OrvKvGuard.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSpacer.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadRows.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "OrvKvValueControl.h"

#include <climits>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvThreadSub";

static constexpr const char* NoStandard = "No Standard"; // the first line of the types
static constexpr int NoType = -1;
static constexpr int NoLine = -1;
static constexpr int VisibleLines = 5;
static constexpr unsigned char InitMode = 1;

// Who may change a parameter.
static constexpr int Nobody = 1;
static constexpr int TheUser = 3;

OrvKvImplementResourceName(OrvKvThreadSub, CATDialog);

namespace {

bool IsStandard(const CATUnicodeString& iType) {
    return iType != NoStandard && iType.GetLengthInChar() > 0;
}

// Raises the platform's error for a type that is not there.
CATUnicodeString NameOfType(const CATListValCATUnicodeString& iTypes, int iType) {
    if (iType == NoType)
        return NoStandard;
    return iTypes[iType == INT_MAX ? INT_MAX : iType + 1];
}

void LimitHeight(CATDlgCombo& ioCombo, int iEntries) {
    if (iEntries >= VisibleLines)
        ioCombo.SetVisibleTextHeight(VisibleLines);
}

bool IsLeftHanded(const CATUnicodeString& iDirection) {
    return iDirection == "LH" || iDirection == "Left_Threaded";
}

bool IsRightHanded(const CATUnicodeString& iDirection) {
    return iDirection == "RH" || iDirection == "Right_Threaded";
}

// A parameter that refuses the value, and one that is missing, stays as it is.
void StoreFirst(const CATICkeParamFrame_var& iParameter, const CATRawColldouble& iValues) {
    const CATIParmAsStored_var stored(iParameter);
    if (!!stored)
        stored->SetValue(iValues[1]);
}

} // namespace

OrvKvThreadSub::OrvKvThreadSub(CATDialog* iFather)
    : CATDlgFrame(iFather, "ThreadSub", OrvKvPlainFrame), _pStandardThreadFrm(nullptr),
      _pThreadTypeLab(nullptr), _pThreadTypeCmb(nullptr), _pThreadDiaFrm(nullptr), _pDiameterLab(nullptr),
      _pDiameterCmb(nullptr), _pDiameterEditor(nullptr), _pPitchFrm(nullptr), _pThreadPitchLab(nullptr),
      _pPitchEditor(nullptr), _pLeftHandedRdb(nullptr), _pRightHandedRdb(nullptr), _pThreadLengthFrm(nullptr),
      _pLengthLab(nullptr), _pLengthEditor(nullptr), _pInternalDiaFrm(nullptr), _pIntDiamLab(nullptr),
      _pInternalDiameterEditor(nullptr) {}

OrvKvThreadSub::OrvKvThreadSub(const OrvKvThreadSub& iOther) = default;

OrvKvThreadSub& OrvKvThreadSub::operator=(const OrvKvThreadSub& iOther) = default;

OrvKvThreadSub::~OrvKvThreadSub() {
    UnsubscribeSelect(_pThreadTypeCmb);
    UnsubscribeSelect(_pDiameterCmb);
    UnsubscribeModify(_pLeftHandedRdb);
    UnsubscribeModify(_pRightHandedRdb);
    _pStandardThreadFrm = _pThreadDiaFrm = _pPitchFrm = _pThreadLengthFrm = _pInternalDiaFrm = nullptr;
    _pThreadTypeLab = _pDiameterLab = _pThreadPitchLab = _pLengthLab = _pIntDiamLab = nullptr;
    _pThreadTypeCmb = _pDiameterCmb = nullptr;
    _pDiameterEditor = _pPitchEditor = _pLengthEditor = _pInternalDiameterEditor = nullptr;
    _pLeftHandedRdb = _pRightHandedRdb = nullptr;
    _spDiameterParm = _spInternalDiameterParm = _spLengthParm = _spPitchParm = CATICkeParamFrame_var();
}

void OrvKvThreadSub::Build() {
    if (_pStandardThreadFrm != nullptr)
        return;
    auto* const gap = OrvKvNewSpacer(this, "SepStandardThreadCkbFromFrmCon");
    _pStandardThreadFrm = new CATDlgFrame(this, "StandardThreadFrm");
    if (_pStandardThreadFrm == nullptr) { // a later call starts again
        if (gap != nullptr)
            gap->RequestDelayedDestruction();
        return;
    }
    OrvKvLayout(this)
        .Columns(gap, OrvKvFrom(0).StretchTo(1))
        .Rows(gap, OrvKvFrom(1))
        .Columns(_pStandardThreadFrm, OrvKvFrom(0).StretchTo(1))
        .Rows(_pStandardThreadFrm, OrvKvFrom(2).StretchTo(3));
    BuildRows();
    SendNotification(GetFather(), new OrvKvThreadInitNotification(InitMode));
}

void OrvKvThreadSub::BuildRows() {
    OrvKvThreadRows rows(_pStandardThreadFrm);
    rows.AddTopGap("SepTypeFromTopCon", 15, 10);
    rows.AddColumnGap("SepLabFromCmbCon", 8, 24);
    _pThreadTypeLab = new CATDlgLabel(_pStandardThreadFrm, "ThreadTypeLab");
    _pThreadTypeCmb = new CATDlgCombo(_pStandardThreadFrm, "ThreadTypeCmb", OrvKvDropDownCombo);
    rows.Add(_pThreadTypeLab, _pThreadTypeCmb);
    SubscribeSelect(_pThreadTypeCmb, static_cast<CATCommandMethod>(&OrvKvThreadSub::OnSelectThreadType));
    OrvKvNewSpacer(_pStandardThreadFrm, "SepTypeFromCodeLetterCon"); // has no place in the layout
    rows.AddValue("ThreadDiaFrm", "DiameterLab", "IntDiamSpn", _pThreadDiaFrm, _pDiameterLab,
                  _pDiameterEditor);
    rows.AddGap("SepTypeFromDiameterCon");
    rows.AddGap("SepLengthFromDiameterCon");
    rows.AddValue("InternalDiaFrm", "IntDiamLab", "IntDiamSpn", _pInternalDiaFrm, _pIntDiamLab,
                  _pInternalDiameterEditor);
    rows.AddGap("SepIntDiamFromLengthCon");
    rows.AddValue("ThreadLengthFrm", "LengthLab", "LengthSpn", _pThreadLengthFrm, _pLengthLab,
                  _pLengthEditor);
    rows.AddGap("SepLengthFromPitchCon");
    rows.AddValue("PitchFrm", "ThreadPitchLab", "IntDiamSpn", _pPitchFrm, _pThreadPitchLab, _pPitchEditor);
    rows.AddGap("SepPitchFromDirectionCon");
    auto* const directionLab = new CATDlgLabel(_pStandardThreadFrm, "ThreadDirectionLab");
    auto* const directionFrm = new CATDlgFrame(_pStandardThreadFrm, "ThreadDirectionFrm", OrvKvPlainFrame);
    rows.Add(directionLab, directionFrm);
    if (directionFrm != nullptr)
        BuildDirections(directionFrm);
}

void OrvKvThreadSub::BuildDirections(CATDlgFrame* iFrame) {
    _pLeftHandedRdb = new CATDlgRadioButton(iFrame, "LeftHandedRdb");
    _pRightHandedRdb = new CATDlgRadioButton(iFrame, "RightHandedRdb");
    OrvKvLayout(iFrame)
        .Columns(_pLeftHandedRdb, OrvKvFrom(0).StretchTo(1))
        .Columns(_pRightHandedRdb, OrvKvFrom(2).StretchTo(3))
        .Rows(_pLeftHandedRdb, OrvKvFrom(0).StretchTo(1))
        .Rows(_pRightHandedRdb, OrvKvFrom(0).StretchTo(1));
    SubscribeModify(_pLeftHandedRdb);
    SubscribeModify(_pRightHandedRdb);
}

long OrvKvThreadSub::SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected,
                                    unsigned char iNotify) {
    if (_pThreadTypeCmb == nullptr)
        return OrvKvReport::Failure("thread type combo is NULL.", OrvKvHere);
    return OrvKvGuard::Run("OrvKvThreadSub::SetThreadTypes", OrvKvHere, [&]() -> long {
        const CATUnicodeString type = NameOfType(iTypes, iSelected); // before anything changes
        _pThreadTypeCmb->ClearLine(OrvKvAllLines);
        _pThreadTypeCmb->SetLine(NoStandard, OrvKvAtEnd, OrvKvAppend);
        OrvKvAppendLines(*_pThreadTypeCmb, iTypes);
        const int line = iSelected + 1; // below "No Standard"
        _pThreadTypeCmb->SetSelect(line, iSelected == NoType ? OrvKvSilently : iNotify);
        _ThreadType = type; // not sooner: what is reported depends on the one before
        LimitHeight(*_pThreadTypeCmb, iTypes.Size());
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvThreadSub::SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected,
                                   unsigned char iNotify) {
    return OrvKvGuard::Run("OrvKvThreadSub::SetThreadDims", OrvKvHere, [&]() -> long {
        if (_pDiameterCmb != nullptr) {
            _pDiameterCmb->ClearLine(OrvKvAllLines);
            OrvKvAppendLines(*_pDiameterCmb, iDims);
            LimitHeight(*_pDiameterCmb, iDims.Size());
            _pDiameterCmb->SetSelect(iSelected, iNotify);
        }
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvThreadSub::SetThreadValues(const CATRawColldouble& iPitches,
                                     const CATRawColldouble& iInternalDiameters,
                                     const CATRawColldouble& iDiameters) {
    if (iPitches.Size() > 0 && iInternalDiameters.Size() > 0 && iDiameters.Size() > 0) {
        StoreFirst(_spDiameterParm, iDiameters);
        StoreFirst(_spInternalDiameterParm, iInternalDiameters);
        StoreFirst(_spPitchParm, iPitches);
        OnActivateTake();
    }
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvThreadSub::SetThreadDirection(const CATUnicodeString& iDirection) {
    if (_pLeftHandedRdb == nullptr || _pRightHandedRdb == nullptr)
        return OrvKvReport::Failure("thread direction buttons are NULL.", OrvKvHere);
    return OrvKvGuard::Run("OrvKvThreadSub::SetThreadDirection", OrvKvHere, [&]() -> long {
        if (IsLeftHanded(iDirection))
            _pLeftHandedRdb->SetState(CATDlgCheck, OrvKvNotifying);
        else if (IsRightHanded(iDirection))
            _pRightHandedRdb->SetState(CATDlgCheck, OrvKvNotifying);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvThreadSub::SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter,
                                              const CATICkeParm_var& iDiameter,
                                              const CATICkeParm_var& iLength, const CATICkeParm_var& iPitch) {
    if (!iInternalDiameter || !iDiameter || !iLength)
        return OrvKvReport::SilentFailure();
    if (_pStandardThreadFrm == nullptr)
        return OrvKvReport::Failure("thread frame is NULL.", OrvKvHere);
    _spLengthParm = iLength;
    _spInternalDiameterParm = iInternalDiameter;
    _spDiameterParm = iDiameter;
    _spPitchParm = iPitch;
    OrvKvReplaceByEditor(_pThreadLengthFrm, _pLengthEditor, _spLengthParm);
    OrvKvReplaceByEditor(_pInternalDiaFrm, _pInternalDiameterEditor, _spInternalDiameterParm);
    OrvKvReplaceByEditor(_pPitchFrm, _pPitchEditor, _spPitchParm);
    UpdatePanelAccordingToThreadType();
    const int access = IsStandard(_ThreadType) ? Nobody : TheUser;
    iPitch->SetUserAccessMode(access);
    iDiameter->SetUserAccessMode(access);
    iInternalDiameter->SetUserAccessMode(access);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvThreadSub::RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                                        const CATListValCATUnicodeString& iDims, int iSelectedDim) {
    if (_pStandardThreadFrm != nullptr) {
        SetThreadTypes(iTypes, iSelectedType, OrvKvSilently);
        UpdatePanelAccordingToThreadType();
        if (iSelectedDim >= 0)
            SetThreadDims(iDims, iSelectedDim, OrvKvSilently);
    }
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvThreadSub::SetAsStandardThread() {
    OnActivateTake();
    return OrvKvReport::Success(OrvKvHere);
}

void OrvKvThreadSub::UpdatePanelAccordingToThreadType() {
    if (IsStandard(_ThreadType))
        ShowDiameterCombo();
    else
        ShowDiameterEditor();
}

void OrvKvThreadSub::ShowDiameterCombo() {
    if (_pDiameterLab != nullptr)
        _pDiameterLab->SetTitle("DescriptionLab"); // the key stands for itself
    if (_pDiameterCmb != nullptr || _pThreadDiaFrm == nullptr)
        return;
    _pDiameterCmb = new CATDlgCombo(_pThreadDiaFrm, "DiameterCmb", OrvKvDropDownCombo);
    if (_pDiameterCmb == nullptr)
        return;
    OrvKvDiscard(_pDiameterEditor);
    OrvKvFill(_pThreadDiaFrm, _pDiameterCmb);
    SubscribeSelect(_pDiameterCmb, static_cast<CATCommandMethod>(&OrvKvThreadSub::OnSelectThreadDiameter));
}

// The combo goes last, so that one control is there whatever fails.
void OrvKvThreadSub::ShowDiameterEditor() {
    OrvKvReplaceByEditor(_pThreadDiaFrm, _pDiameterEditor, _spDiameterParm);
    if (_pDiameterCmb != nullptr && _pDiameterEditor != nullptr) {
        UnsubscribeSelect(_pDiameterCmb);
        _pDiameterCmb->RequestDelayedDestruction();
        _pDiameterCmb = nullptr;
    }
    _Diameter = "";
}

void OrvKvThreadSub::OnSelectThreadType(CATCommand*, CATNotification*, void*) {
    if (_pThreadTypeCmb == nullptr || _pThreadTypeCmb->GetSelect() == NoLine)
        return;
    const CATUnicodeString previous = _ThreadType;
    _ThreadType = OrvKvSelectedText(_pThreadTypeCmb);
    const bool isNoStandard = _ThreadType == NoStandard;
    if (!isNoStandard && _ThreadType == previous)
        return;
    if (!isNoStandard)
        UpdatePanelAccordingToThreadType();
    const CATUnicodeString reported = isNoStandard ? CATUnicodeString() : _ThreadType;
    SendNotification(GetFather(), new OrvKvThreadTypeNotification(InitMode, reported));
    OnActivateTake();
}

void OrvKvThreadSub::OnSelectThreadDiameter(CATCommand*, CATNotification*, void*) {
    if (_pDiameterCmb == nullptr || _pDiameterCmb->GetSelect() == NoLine)
        return;
    const CATUnicodeString previous = _Diameter;
    _Diameter = OrvKvSelectedText(_pDiameterCmb);
    if (_Diameter != previous)
        SendNotification(GetFather(), new OrvKvThreadDiameterNotification(InitMode, _ThreadType, _Diameter));
}

void OrvKvThreadSub::OnModifyThreadDirection(CATCommand* iFrom, CATNotification*, void*) {
    if (iFrom == nullptr || iFrom->IsAKindOf(CATDlgRadioButton::ClassName()) == 0)
        return;
    const auto& button = static_cast<const CATDlgRadioButton&>(*iFrom);
    if (button.GetState() != CATDlgCheck)
        return;
    if (button.GetResourceName() == "RightHandedRdb")
        _Direction = "RH";
    else if (button.GetResourceName() == "LeftHandedRdb")
        _Direction = "LH";
    OnActivateTake();
}

void OrvKvThreadSub::OnActivateTake() {
    const CATIParmAsStored_var diameter(_spDiameterParm);
    const CATIParmAsStored_var internalDiameter(_spInternalDiameterParm);
    const CATIParmAsStored_var pitch(_spPitchParm);
    if (!diameter || !internalDiameter || !pitch)
        return;
    SendNotification(GetFather(), new OrvKvThreadTakeNotification(
                                      _Diameter, pitch->GetValue(), internalDiameter->GetValue(),
                                      diameter->GetValue(), _Direction, _ThreadType));
}

void OrvKvThreadSub::SubscribeSelect(CATDlgCombo* iCombo, CATCommandMethod iMethod) {
    if (iCombo != nullptr)
        AddAnalyseNotificationCB(iCombo, iCombo->GetComboSelectNotification(), iMethod, nullptr);
}

void OrvKvThreadSub::UnsubscribeSelect(CATDlgCombo* iCombo) {
    if (iCombo != nullptr)
        RemoveAnalyseNotificationCB(iCombo, iCombo->GetComboSelectNotification(), nullptr);
}

void OrvKvThreadSub::SubscribeModify(CATDlgRadioButton* iButton) {
    if (iButton != nullptr)
        AddAnalyseNotificationCB(iButton, iButton->GetRadBModifyNotification(),
                                 static_cast<CATCommandMethod>(&OrvKvThreadSub::OnModifyThreadDirection),
                                 nullptr);
}

void OrvKvThreadSub::UnsubscribeModify(CATDlgRadioButton* iButton) {
    if (iButton != nullptr)
        RemoveAnalyseNotificationCB(iButton, iButton->GetRadBModifyNotification(), nullptr);
}
