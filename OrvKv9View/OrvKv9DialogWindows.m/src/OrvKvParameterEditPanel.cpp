#include "OrvKvParameterEditPanel.h"

#include "CATApplicationFrame.h"
#include "CATDlgCheckButton.h"
#include "CATDlgContainer.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATICkeParamFrame.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "CATMsgCatalog.h"
#include "OrvKvDescription.h"
#include "OrvKvGuard.h"
#include "OrvKvInterfaceOf.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvPrompt.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSpacer.h"
#include "OrvKvToleranceSub.h"

static const char SourceFile[] = "OrvKv9DialogWindows.m/src/OrvKvParameterEditPanel";

static constexpr CATDlgStyle DialogStyle = 0x601C00; // with OK, Cancel and Apply

static constexpr int EditorOptions = CATCkeNoFormula | CATCkeNoLabel | CATCkeWithSpinner | CATCkeNoRename;

static constexpr int Linked = 1;
static constexpr int Unlinked = 0;

static constexpr int RaiseNow = 1;

static constexpr unsigned char EditorsDisabled = 0;
static constexpr unsigned char WithMinimum = 1;

OrvKvImplementResourceName(OrvKvParameterEditPanel, CATDlgDialog);

namespace {

void DisableUnless(unsigned char iEditable, CATDialog* iWidget) {
    if (iEditable == 0 && iWidget != nullptr)
        iWidget->SetSensitivity(CATDlgDisable);
}

// Null where the command is no check button.
CATDlgCheckButton* AsCheckButton(CATCommand* iFrom) {
    if (iFrom == nullptr || iFrom->IsAKindOf(CATDlgCheckButton::ClassName()) == 0)
        return nullptr;
    return static_cast<CATDlgCheckButton*>(iFrom);
}

void RemoveTolerance(const CATICkeParm_var& iParameter) {
    const HRESULT result = OrvKvInterfaceOf<CATIParmTolerance_var>(iParameter)->Unset();
    if (FAILED(result))
        OrvKvErr::Throw(result);
    OrvKvInterfaceOf<CATIParmEvents_var>(iParameter)->RaiseChange(RaiseNow);
}

} // namespace

OrvKvParameterEditPanel::OrvKvParameterEditPanel(const CATICkeParm_var& iParm, const CATString& iParmKey,
                                                 const CATString& iGroup, const CATString& iField,
                                                 const unsigned char& iValueEditable,
                                                 const unsigned char& iToleranceEditable)
    : CATDlgDialog(CATApplicationFrame::GetFrame()->GetMainWindow(), "OrvKvParameterEditPanel", DialogStyle),
      _pNameLab(nullptr), _pParmFrm(nullptr), _pToleranceCkb(nullptr), _pToleranceSub(nullptr),
      _hIParm(iParm), _ParmKey(iParmKey), _pSeparateParamFromToleranceCon(nullptr), _TolGroup(iGroup),
      _TolField(iField), _ValueEditable(iValueEditable), _ToleranceEditable(iToleranceEditable) {}

OrvKvParameterEditPanel::OrvKvParameterEditPanel(const OrvKvParameterEditPanel& iOther) = default;

OrvKvParameterEditPanel& OrvKvParameterEditPanel::operator=(const OrvKvParameterEditPanel& iOther) = default;

OrvKvParameterEditPanel::~OrvKvParameterEditPanel() {
    SetPowerInputLink(Unlinked);
    UpdatePowerInput();
    ReleasePowerInputFocus();
    if (_pToleranceCkb != nullptr)
        RemoveAnalyseNotificationCB(_pToleranceCkb, _pToleranceCkb->GetChkBModifyNotification(), nullptr);
    _pNameLab = nullptr;
    _pParmFrm = nullptr;
    _pToleranceCkb = nullptr;
    _pToleranceSub = nullptr;
    _pSeparateParamFromToleranceCon = nullptr;
}

void OrvKvParameterEditPanel::Build() {
    if (_pNameLab != nullptr || _pParmFrm != nullptr || _pToleranceCkb != nullptr)
        return;
    OrvKvGuard::RunShowing("OrvKvParameterEditPanel::Build", [this] {
        BuildTexts();
        BuildEditor();
        _pToleranceCkb = new CATDlgCheckButton(this, "ToleranceCkb");
        DisableUnless(_ToleranceEditable, _pToleranceCkb);
        SetPowerInputLink(Linked);
        UpdatePowerInput();
        _pSeparateParamFromToleranceCon = OrvKvNewSpacer(this, "SeparateParamFromToleranceCon");
        if (HasToleranceArea())
            BuildToleranceArea();
        else
            LeaveToleranceOut();
        // A tolerance that is set already is checked by now: only later changes are answered.
        if (_pToleranceCkb != nullptr)
            AddAnalyseNotificationCB(
                _pToleranceCkb, _pToleranceCkb->GetChkBModifyNotification(),
                static_cast<CATCommandMethod>(&OrvKvParameterEditPanel::COMToleranceOnOffCheck), nullptr);
        TakePowerInputFocus();
    });
}

void OrvKvParameterEditPanel::BuildTexts() {
    const CATUnicodeString key(_ParmKey);
    SetTitle(CATMsgCatalog::BuildMessage("OrvKvParameterEditPanel", "Title", &key, 1, OrvKvNoText));
    _pNameLab = new CATDlgLabel(this, "No Name");
    if (_pNameLab != nullptr)
        _pNameLab->SetTitle(OrvKvDescriptionOf(_ParmKey, key));
}

void OrvKvParameterEditPanel::BuildEditor() {
    _pParmFrm = OrvKvInterfaceOf<CATICkeParamFrame_var>(_hIParm)->BuildFrame(
        CATIParmPublisher_var(_hIParm), this, EditorOptions, CATUnicodeString(_ParmKey));
    DisableUnless(_ValueEditable, _pParmFrm);
}

void OrvKvParameterEditPanel::BuildToleranceArea() {
    _pToleranceSub = new OrvKvToleranceSub(this, _hIParm);
    if (_pToleranceSub != nullptr) {
        _pToleranceSub->Build();
        _pToleranceSub->SetTolGroupAndField(_TolGroup, _TolField);
    }
    DisableUnless(_ToleranceEditable, _pToleranceSub);
    LayOutValueAndTolerance();
    if (_pToleranceSub != nullptr)
        _pToleranceSub->SetVisibility(CATDlgHide);
    ActivateToleranceIfAvailable();
}

void OrvKvParameterEditPanel::LeaveToleranceOut() {
    LayOutValue();
    if (_pToleranceCkb != nullptr)
        _pToleranceCkb->SetVisibility(CATDlgHide);
}

void OrvKvParameterEditPanel::LayOutValue() {
    OrvKvLayout(this)
        .Rows(_pNameLab, OrvKvFrom(0))
        .Rows(_pSeparateParamFromToleranceCon, OrvKvFrom(0))
        .Rows(_pParmFrm, OrvKvFrom(0))
        .Columns(_pNameLab, OrvKvFrom(0))
        .Columns(_pSeparateParamFromToleranceCon, OrvKvFrom(1))
        .Columns(_pParmFrm, OrvKvFrom(2));
}

void OrvKvParameterEditPanel::LayOutValueAndTolerance() {
    LayOutValue();
    OrvKvLayout(this).Rows(_pToleranceCkb, OrvKvFrom(1)).Columns(_pToleranceCkb, OrvKvFrom(2));
}

void OrvKvParameterEditPanel::ResetLayout() {
    OrvKvLayout(this)
        .Reset(_pNameLab)
        .Reset(_pSeparateParamFromToleranceCon)
        .Reset(_pParmFrm)
        .Reset(_pToleranceCkb)
        .Reset(_pToleranceSub);
}

bool OrvKvParameterEditPanel::HasToleranceArea() const {
    const CATUnicodeString magnitude = _hIParm->Type()->Name();
    return magnitude == "LENGTH" || magnitude == "ANGLE";
}

void OrvKvParameterEditPanel::ActivateToleranceIfAvailable() {
    const CATIParmTolerance_var tolerance(_hIParm);
    const bool isSet = !!tolerance && tolerance->GetTypeOfTolerance() == OrvKvToleranceIsSet;
    if (isSet && _pToleranceCkb != nullptr)
        _pToleranceCkb->SetState(CATDlgCheck, OrvKvNotifying);
}

void OrvKvParameterEditPanel::COMToleranceOnOffCheck(CATCommand* iFrom, CATNotification*, void*) {
    const CATDlgCheckButton* const button = AsCheckButton(iFrom);
    if (button == nullptr || _pToleranceSub == nullptr)
        return;
    OrvKvGuard::RunShowing("OrvKvParameterEditPanel::COMToleranceOnOffCheck", [&] {
        if (button->GetState() == CATDlgCheck)
            ShowTolerance();
        else
            HideTolerance();
    });
}

void OrvKvParameterEditPanel::ShowTolerance() {
    ResetLayout();
    LayOutValueAndTolerance();
    OrvKvLayout(this).Rows(_pToleranceSub, OrvKvFrom(2));
    _pToleranceSub->SetVisibility(CATDlgShow);
    const long result = _pToleranceSub->InitTolerance();
    if (FAILED(result)) // an area that could not be built
        OrvKvPrompt::Error(result);
}

void OrvKvParameterEditPanel::HideTolerance() {
    _pToleranceSub->SetVisibility(CATDlgHide);
    ResetLayout();
    LayOutValueAndTolerance();
    RemoveTolerance(_hIParm);
}

long OrvKvParameterEditPanel::GetModifiedParameter(CATICkeParm_var* oParm, CATString* oParmKey, double* oMax,
                                                   double* oMin, CATString* oGroup, CATString* oField) {
    if (oParm == nullptr || oParmKey == nullptr || oGroup == nullptr || oField == nullptr)
        return OrvKvReport::Success(OrvKvHere);
    *oParm = _hIParm;
    *oParmKey = _ParmKey;
    double maximum = 0.0;
    double minimum = 0.0;
    CATString group;
    CATString field;
    if (_pToleranceSub != nullptr) {
        const long result = _pToleranceSub->GetFittingInfo(&maximum, &minimum, &group, &field);
        if (FAILED(result))
            return OrvKvReport::FailureAfter(result, "Error in getting the fitting info.", OrvKvHere);
    }
    if (oMax != nullptr)
        *oMax = maximum;
    if (oMin != nullptr)
        *oMin = minimum;
    *oGroup = group;
    *oField = field;
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvParameterEditPanel::HasTolerance(unsigned char* pState) {
    if (pState == nullptr)
        return OrvKvReport::Failure("pState is invalid.", OrvKvHere);
    *pState = _pToleranceCkb != nullptr && _pToleranceCkb->GetState() == CATDlgCheck ? 1 : 0;
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvParameterEditPanel::SetToleranceGroups(const CATListValCATUnicodeString& iGroups,
                                                 const CATString& iGroup, const CATString& iField) {
    if (_pToleranceSub == nullptr)
        return OrvKvReport::SilentFailure();
    return OrvKvGuard::Run("OrvKvParameterEditPanel::SetToleranceGroups", OrvKvHere, [&]() -> long {
        const long result = _pToleranceSub->SetToleranceGroups(iGroups, iGroup, iField);
        if (FAILED(result))
            return OrvKvReport::FailureAfter(result, "Error in setting the tolerances to the group.",
                                             OrvKvHere);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvParameterEditPanel::SetToleranceFields(const CATListValCATUnicodeString& iFields) {
    if (_pToleranceSub == nullptr)
        return OrvKvReport::SilentFailure();
    return OrvKvGuard::Run("OrvKvParameterEditPanel::SetToleranceFields", OrvKvHere,
                           [&] { return _pToleranceSub->SetToleranceFields(iFields); });
}

long OrvKvParameterEditPanel::SetToleranceValues(double iMax, double iMin) {
    if (_pToleranceSub == nullptr)
        return OrvKvReport::SilentFailure();
    return OrvKvGuard::Run("OrvKvParameterEditPanel::SetToleranceValues", OrvKvHere, [&]() -> long {
        _pToleranceSub->SetToleranceValues(iMax, iMin, EditorsDisabled, EditorsDisabled, WithMinimum);
        return OrvKvReport::Success(OrvKvHere);
    });
}

void OrvKvParameterEditPanel::SetFittingVals(double iMax, double iMin) {
    if (_pToleranceSub == nullptr)
        return;
    OrvKvGuard::RunShowing("OrvKvParameterEditPanel::SetFittingVals",
                           [&] { _pToleranceSub->SetFittingVals(iMax, iMin); });
}
