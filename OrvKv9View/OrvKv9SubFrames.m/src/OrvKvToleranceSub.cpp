#include "OrvKvToleranceSub.h"

#include "CATCkeGlobalFunctions.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgLabel.h"
#include "CATDlgRadioButton.h"
#include "CATIParmAsStored.h"
#include "CATIParmTolerance.h"
#include "OrvKvCellText.h"
#include "OrvKvComboLines.h"
#include "OrvKvDeviationEditor.h"
#include "OrvKvGuard.h"
#include "OrvKvInterfaceOf.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSpacer.h"
#include "OrvKvValueEvents.h"

#include <initializer_list>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvToleranceSub";

static constexpr int NoSubscription = -1;
static constexpr int FirstLine = 0;

// Deviations of a tolerance that was not there before.
static constexpr double DefaultMax = 0.1;
static constexpr double DefaultMin = -0.1;
// A maximum that is closer to zero counts as none.
static constexpr double Negligible = 1e-5;

OrvKvImplementResourceName(OrvKvToleranceSub, CATDlgFrame);

namespace {

// The widget, which must be there.
template<class Widget>
Widget* Made(Widget* iWidget) {
    if (iWidget == nullptr)
        OrvKvErr::Throw_Description("There is not enough memory for the tolerance area.");
    return iWidget;
}

CATIParmTolerance_var ToleranceOf(const CATICkeParm_var& iParm) {
    return OrvKvInterfaceOf<CATIParmTolerance_var>(iParm);
}

CATIParmAsStored_var StoredIn(const CATICkeParm_var& iParm) {
    return OrvKvInterfaceOf<CATIParmAsStored_var>(iParm);
}

// The same for the publisher of an event.
CATIParmAsStored_var StoredIn(void* iPublisher) {
    CATIParmAsStored_var stored(static_cast<CATBaseUnknown*>(iPublisher));
    if (!stored)
        OrvKvErr::Throw_NoInterface();
    return stored;
}

// The outcome of a subscription that had to end.
void MustHaveEnded(bool iHasEnded) {
    if (!iHasEnded)
        OrvKvErr::Throw_NoInterface();
}

// ISO 286 is offered for these nominal sizes, in mm.
bool HasFits(double iNominalSize) {
    return iNominalSize > 1.0 && iNominalSize <= 500.0;
}

void Fill(CATDlgCombo& ioCombo, const CATListValCATUnicodeString& iTexts) {
    ioCombo.ClearLine(OrvKvAllLines);
    OrvKvAppendLines(ioCombo, iTexts);
    ioCombo.SetVisibleTextHeight(iTexts.Size());
}

} // namespace

OrvKvToleranceSub::OrvKvToleranceSub(CATDialog* iParent, const CATICkeParm_var& iParm)
    : CATDlgFrame(iParent, "OrvKvToleranceSub"), _pISOFittingRdb(nullptr), _pPlusMinusSymmetricalRdb(nullptr),
      _pPlusMinusRdb(nullptr), _pToleranceGroupLab(nullptr), _pToleranceGroupCmb(nullptr),
      _pToleranceFieldLab(nullptr), _pToleranceFieldCmb(nullptr), _pMaxLab(nullptr), _pMaxFrm(nullptr),
      _pMinLab(nullptr), _pMinFrm(nullptr), _hIParm(iParm), _CBMaxValPMSym(NoSubscription),
      _CBMaxVal(NoSubscription), _CBMinVal(NoSubscription), _TolMode(TolModeNone), _CBParmVal(NoSubscription),
      _CBParmValFitting(NoSubscription), _EnteredMode(TolModeNone), _Entries(0) {}

OrvKvToleranceSub::OrvKvToleranceSub(const OrvKvToleranceSub& iOther) = default;

OrvKvToleranceSub& OrvKvToleranceSub::operator=(const OrvKvToleranceSub& iOther) = default;

// The subscription _CBMaxValPMSym is left to the base class, which ends what is left.
OrvKvToleranceSub::~OrvKvToleranceSub() {
    for (CATDlgRadioButton* const radio : {_pISOFittingRdb, _pPlusMinusSymmetricalRdb, _pPlusMinusRdb})
        if (radio != nullptr)
            RemoveAnalyseNotificationCB(radio, radio->GetRadBModifyNotification(), nullptr);
    for (CATDlgCombo* const combo : {_pToleranceGroupCmb, _pToleranceFieldCmb})
        if (combo != nullptr)
            RemoveAnalyseNotificationCB(combo, combo->GetComboSelectNotification(), nullptr);
    OrvKvUnsubscribeValue(*this, _hIParm, _CBParmVal);
    OrvKvUnsubscribeValue(*this, _hIMaxLiteral, _CBMaxVal);
    OrvKvUnsubscribeValue(*this, _hIMinLiteral, _CBMinVal);
    OrvKvUnsubscribeValue(*this, _hIParm, _CBParmValFitting);
    _pISOFittingRdb = _pPlusMinusSymmetricalRdb = _pPlusMinusRdb = nullptr;
    _pToleranceGroupLab = _pToleranceFieldLab = _pMaxLab = _pMinLab = nullptr;
    _pToleranceGroupCmb = _pToleranceFieldCmb = nullptr;
    _pMaxFrm = _pMinFrm = nullptr;
}

void OrvKvToleranceSub::Build() {
    if (_pISOFittingRdb != nullptr)
        return;
    OrvKvGuard::RunShowing("OrvKvToleranceSub::Build", [this] {
        BuildChoices();
        auto* const choiceGap = Made(OrvKvNewSpacer(this, "SeparateISOFromPlusMinusCon"));
        auto* const rowGap = Made(OrvKvNewSpacer(this, "SeparatePlusMinusFromMaxCon"));
        BuildEditors();
        LayOut(choiceGap, rowGap);
        Subscribe();
    });
}

void OrvKvToleranceSub::BuildChoices() {
    _pISOFittingRdb = Made(new CATDlgRadioButton(this, "ISOFittingRdb"));
    _pPlusMinusSymmetricalRdb = Made(new CATDlgRadioButton(this, "PlusMinusSymmetricalRdb"));
    _pPlusMinusRdb = Made(new CATDlgRadioButton(this, "PlusMinusRdb"));
    _pToleranceGroupLab = Made(new CATDlgLabel(this, "ToleranceGroupLab"));
    _pToleranceGroupCmb = Made(new CATDlgCombo(this, "ToleranceGroupCmb", OrvKvDropDownCombo));
    _pToleranceFieldLab = Made(new CATDlgLabel(this, "ToleranceFieldLab"));
    _pToleranceFieldCmb = Made(new CATDlgCombo(this, "ToleranceFieldCmb", OrvKvDropDownCombo));
}

void OrvKvToleranceSub::BuildEditors() {
    const CATICkeParmFactory_var factory = CATCkeGlobalFunctions::GetVolatileFactory();
    if (!factory)
        OrvKvErr::Throw_NoInterface();
    _pMaxLab = Made(new CATDlgLabel(this, "MaxLab"));
    _hIMaxLiteral = OrvKvNewLiteral(factory, _hIParm, "Max", "NULL_var == _hIMaxLiteral");
    StoredIn(_hIMaxLiteral)->SetValue(ToleranceOf(_hIParm)->GetMaxTolerance());
    _pMaxFrm = Made(OrvKvNewLiteralEditor(this, _hIMaxLiteral));
    _pMinLab = Made(new CATDlgLabel(this, "MinLab"));
    _hIMinLiteral = OrvKvNewLiteral(factory, _hIParm, "Min", "NULL_var == _hIMinLiteral");
    StoredIn(_hIMinLiteral)->SetValue(ToleranceOf(_hIParm)->GetMinTolerance());
    _pMinFrm = Made(OrvKvNewLiteralEditor(this, _hIMinLiteral));
}

void OrvKvToleranceSub::LayOut(CATDialog* iChoiceGap, CATDialog* iRowGap) {
    OrvKvLayout layout(this);
    const auto row = [&layout](int iRow, std::initializer_list<CATDialog*> iWidgets) {
        for (CATDialog* const widget : iWidgets)
            layout.Rows(widget, OrvKvFrom(iRow));
    };
    row(0, {_pPlusMinusSymmetricalRdb, iChoiceGap, _pISOFittingRdb});
    row(1, {iRowGap});
    row(2, {_pMaxLab, _pToleranceGroupLab});
    row(3, {_pMaxFrm, _pToleranceGroupCmb});
    row(4, {_pMinLab, _pToleranceFieldLab});
    row(5, {_pMinFrm, _pToleranceFieldCmb});
    const auto column = [&layout](int iColumn, std::initializer_list<CATDialog*> iWidgets) {
        for (CATDialog* const widget : iWidgets)
            layout.Columns(widget, OrvKvFrom(iColumn));
    };
    column(0, {_pPlusMinusSymmetricalRdb, _pPlusMinusRdb, _pMaxLab, _pMaxFrm, _pMinLab, _pMinFrm});
    column(1, {iChoiceGap});
    column(2, {_pISOFittingRdb, _pToleranceGroupLab, _pToleranceGroupCmb, _pToleranceFieldLab,
               _pToleranceFieldCmb});
}

void OrvKvToleranceSub::Subscribe() {
    const auto onModify = [this](CATDlgRadioButton* iRadio, CATCommandMethod iMethod) {
        AddAnalyseNotificationCB(iRadio, iRadio->GetRadBModifyNotification(), iMethod, nullptr);
    };
    onModify(_pISOFittingRdb, static_cast<CATCommandMethod>(&OrvKvToleranceSub::OnFittingSelect));
    onModify(_pPlusMinusSymmetricalRdb, static_cast<CATCommandMethod>(&OrvKvToleranceSub::OnPMSymSelect));
    onModify(_pPlusMinusRdb, static_cast<CATCommandMethod>(&OrvKvToleranceSub::OnPMSelect));
    const auto onSelect = [this](CATDlgCombo* iCombo, CATCommandMethod iMethod) {
        AddAnalyseNotificationCB(iCombo, iCombo->GetComboSelectNotification(), iMethod, nullptr);
    };
    onSelect(_pToleranceGroupCmb, static_cast<CATCommandMethod>(&OrvKvToleranceSub::OnFittingGroupSelNotif));
    onSelect(_pToleranceFieldCmb, static_cast<CATCommandMethod>(&OrvKvToleranceSub::OnFittingFieldSelNotif));
    _CBParmValFitting = OrvKvSubscribeValue(
        *this, _hIParm, static_cast<CATSubscriberMethod>(&OrvKvToleranceSub::OnChangeParmValFitting));
}

long OrvKvToleranceSub::InitTolerance() {
    const bool isAngle = IsAngle(); // raises for a null parameter
    if (!IsBuilt())
        return OrvKvReport::Failure("The tolerance area is not built.", OrvKvHere);
    if (isAngle)
        _pISOFittingRdb->SetVisibility(CATDlgHide);
    if (_TolGroup != "" && _TolField != "")
        _pISOFittingRdb->SetState(CATDlgCheck, OrvKvNotifying);
    else if (IsToleranceSym(_hIParm) != 0)
        _pPlusMinusSymmetricalRdb->SetState(CATDlgCheck, OrvKvNotifying);
    else
        _pPlusMinusRdb->SetState(CATDlgCheck, OrvKvNotifying);
    return OrvKvReport::Success(OrvKvHere);
}

void OrvKvToleranceSub::SetTolGroupAndField(const CATString& iGroup, const CATString& iField) {
    _TolGroup = iGroup;
    _TolField = iField;
}

long OrvKvToleranceSub::GetFittingInfo(double*, double*, CATString* pTolGroup, CATString* pTolField) {
    if (pTolGroup == nullptr && pTolField == nullptr)
        return OrvKvReport::Failure("(pTolGroup == NULL) \n->or (pTolField == NULL)", OrvKvHere);
    if (pTolGroup != nullptr)
        *pTolGroup = _TolGroup;
    if (pTolField != nullptr)
        *pTolField = _TolField;
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvToleranceSub::SetToleranceGroups(const CATListValCATUnicodeString& iGroups, const CATString& iGroup,
                                           const CATString& iField) {
    if (_pToleranceGroupCmb == nullptr)
        return OrvKvReport::SilentFailure();
    SetTolGroupAndField(iGroup, iField);
    Fill(*_pToleranceGroupCmb, iGroups);
    _pToleranceGroupCmb->SetSelect(CATUnicodeString(_TolGroup), OrvKvNotifying);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvToleranceSub::SetToleranceFields(const CATListValCATUnicodeString& iFields) {
    if (_pToleranceFieldCmb == nullptr)
        return OrvKvReport::SilentFailure();
    Fill(*_pToleranceFieldCmb, iFields);
    if (_TolField != "")
        _pToleranceFieldCmb->SetSelect(CATUnicodeString(_TolField), OrvKvNotifying);
    else
        _pToleranceFieldCmb->SetSelect(FirstLine, OrvKvNotifying);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvToleranceSub::SetToleranceValues(double iMax, double iMin, unsigned char iMaxEditable,
                                           unsigned char iMinEditable, unsigned char iWriteMin) {
    if (!IsBuilt())
        return OrvKvReport::Failure("The tolerance area is not built.", OrvKvHere);
    EnterDeviations(iMax, iMin, iMaxEditable != 0, iMinEditable != 0, iWriteMin != 0);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvToleranceSub::SetFittingVals(double iMax, double iMin) {
    if (!IsBuilt())
        return OrvKvReport::Failure("The tolerance area is not built.", OrvKvHere);
    const int entry = EntryUnderWay();
    StoredIn(_hIMaxLiteral)->SetValue(iMax);
    StoredIn(_hIMinLiteral)->SetValue(iMin);
    ToleranceOf(_hIParm)->SetMaxTolerance(iMax);
    ToleranceOf(_hIParm)->SetMinTolerance(iMin);
    OrvKvRaiseValue(_hIParm);
    if (!IsOvertaken(entry))
        SetEditorsSensitivity(CATDlgDisable, CATDlgDisable);
    return OrvKvReport::Success(OrvKvHere);
}

void OrvKvToleranceSub::OnFittingSelect(CATCommand*, CATNotification*, void*) {
    SelectMode("OrvKvToleranceSub::OnFittingSelect", _pISOFittingRdb, TolModeFitting);
}

void OrvKvToleranceSub::OnPMSymSelect(CATCommand*, CATNotification*, void*) {
    SelectMode("OrvKvToleranceSub::OnPMSymSelect", _pPlusMinusSymmetricalRdb, TolModePMSym);
}

void OrvKvToleranceSub::OnPMSelect(CATCommand*, CATNotification*, void*) {
    SelectMode("OrvKvToleranceSub::OnPMSelect", _pPlusMinusRdb, TolModePM);
}

void OrvKvToleranceSub::SelectMode(const char* iOperation, const CATDlgRadioButton* iRadio, int iMode) {
    OrvKvGuard::RunShowing(iOperation, [this, iRadio, iMode] {
        if (iRadio->GetState() != CATDlgCheck)
            return;
        const int from = _EnteredMode != TolModeNone ? _EnteredMode : _TolMode;
        long result = S_FALSE; // the mode is there already
        if (from != iMode)
            result = EnterMode(from, iMode);
        else if (iMode == TolModeFitting) // refused on purpose
            result = OrvKvReport::SilentFailure();
        if (FAILED(result))
            OrvKvErr::Throw(result);
    });
}

long OrvKvToleranceSub::EnterMode(int iFrom, int iMode) {
    typedef long (OrvKvToleranceSub::*Transition)();
    typedef OrvKvToleranceSub Sub;
    // By the mode that is left, then by the one that is entered.
    static const Transition transitions[TolModes][TolModes] = {
        {nullptr, &Sub::InitPM, &Sub::InitPMSym, &Sub::InitFitting},
        {nullptr, nullptr, &Sub::OnPMToPMSym, &Sub::OnPMToFitting},
        {nullptr, &Sub::OnPMSymToPM, nullptr, &Sub::OnPMSymToFitting},
        {nullptr, &Sub::OnFittingToPM, &Sub::OnFittingToPMSym, nullptr}};
    struct End {
        Sub& panel;
        const int mode;
        const int entry;
        ~End() {
            if (panel.IsOvertaken(entry))
                return;
            panel._TolMode = mode;
            panel._EnteredMode = TolModeNone;
        }
    };
    const bool overtakes = _EnteredMode != TolModeNone;
    _EnteredMode = iMode;
    const End end{*this, iMode, ++_Entries};
    const long result = (this->*transitions[iFrom][iMode])();
    if (overtakes && !IsOvertaken(end.entry))
        ShowAsIn(iMode);
    return result;
}

// The entry that stopped may not have come as far as the widgets.
void OrvKvToleranceSub::ShowAsIn(int iMode) {
    const bool isFit = iMode == TolModeFitting;
    SetEditorsSensitivity(isFit ? CATDlgDisable : CATDlgEnable,
                          iMode == TolModePM ? CATDlgEnable : CATDlgDisable);
    SetFitWidgetsVisibility(isFit ? CATDlgShow : CATDlgHide);
}

long OrvKvToleranceSub::InitPM() {
    if (!SetFitWidgetsVisibility(CATDlgHide))
        return S_FALSE;
    SetSpinnerSteps();
    SetEditorsSensitivity(CATDlgEnable, CATDlgEnable);
    const CATIParmTolerance_var tolerance = ToleranceOf(_hIParm);
    const bool isSet = tolerance->GetTypeOfTolerance() == OrvKvToleranceIsSet;
    const double maximum = isSet ? tolerance->GetMaxTolerance() : DefaultMax;
    const double minimum = isSet ? tolerance->GetMinTolerance() : DefaultMin;
    if (!EnterDeviations(maximum, minimum, true, true, true))
        return S_FALSE;
    ReactOnPMModifications(1);
    ClearFit();
    return S_OK;
}

long OrvKvToleranceSub::InitPMSym() {
    StoredIn(_hIMinLiteral)->SetValue(-StoredIn(_hIMaxLiteral)->GetValue());
    if (!SetFitWidgetsVisibility(CATDlgHide))
        return S_FALSE;
    SubscribeSymmetry();
    const CATIParmTolerance_var tolerance = ToleranceOf(_hIParm);
    const bool isSet = tolerance->GetTypeOfTolerance() == OrvKvToleranceIsSet;
    const double maximum = isSet ? tolerance->GetMaxTolerance() : DefaultMax;
    if (!EnterDeviations(maximum, -maximum, true, false, true))
        return S_FALSE;
    SetSpinnerSteps();
    SetEditorsSensitivity(CATDlgEnable, CATDlgDisable);
    ClearFit();
    return S_OK;
}

long OrvKvToleranceSub::InitFitting() {
    SetEditorsSensitivity(CATDlgDisable, CATDlgDisable);
    if (!SetFitWidgetsVisibility(CATDlgShow))
        return S_FALSE;
    SetSpinnerSteps();
    return AskForFit();
}

long OrvKvToleranceSub::OnPMToPMSym() {
    const int entry = EntryUnderWay();
    UnsubscribeDeviations();
    SubscribeSymmetry();
    const CATIParmAsStored_var maximum = StoredIn(_hIMaxLiteral);
    if (maximum->GetValue() > -Negligible && maximum->GetValue() < Negligible)
        maximum->SetValue(DefaultMax);
    OrvKvRaiseValue(_hIMaxLiteral);
    if (IsOvertaken(entry))
        return S_FALSE;
    _pMinFrm->SetSensitivity(CATDlgDisable);
    ClearFit();
    return S_OK;
}

long OrvKvToleranceSub::OnPMToFitting() {
    UnsubscribeDeviations();
    SetEditorsSensitivity(CATDlgDisable, CATDlgDisable);
    return SetFitWidgetsVisibility(CATDlgShow) ? AskForFit() : S_FALSE;
}

long OrvKvToleranceSub::OnPMSymToPM() {
    UnsubscribeSymmetry();
    ReactOnPMModifications(1);
    _pMinFrm->SetSensitivity(CATDlgEnable);
    ClearFit();
    return S_OK;
}

long OrvKvToleranceSub::OnPMSymToFitting() {
    UnsubscribeSymmetry();
    _pMaxFrm->SetSensitivity(CATDlgDisable);
    return SetFitWidgetsVisibility(CATDlgShow) ? AskForFit() : S_FALSE;
}

long OrvKvToleranceSub::OnFittingToPM() {
    MustHaveEnded(OrvKvUnsubscribeValue(*this, _hIParm, _CBParmVal));
    if (!EnterDeviations(DefaultMax, DefaultMin, true, true, true))
        return S_FALSE;
    ReactOnPMModifications(1);
    if (!SetFitWidgetsVisibility(CATDlgHide))
        return S_FALSE;
    SetEditorsSensitivity(CATDlgEnable, CATDlgEnable);
    ClearFit();
    return S_OK;
}

long OrvKvToleranceSub::OnFittingToPMSym() {
    MustHaveEnded(OrvKvUnsubscribeValue(*this, _hIParm, _CBParmVal));
    SetEditorsSensitivity(CATDlgEnable, CATDlgDisable);
    SubscribeSymmetry();
    if (!EnterDeviations(DefaultMax, DefaultMin, true, false, true))
        return S_FALSE;
    if (!SetFitWidgetsVisibility(CATDlgHide))
        return S_FALSE;
    ClearFit();
    return S_OK;
}

void OrvKvToleranceSub::ReactOnPMModifications(unsigned char iSubscribe) {
    if (iSubscribe == 0 || _CBMaxVal >= 0 || _CBMinVal >= 0) {
        UnsubscribeDeviations();
        return;
    }
    _CBMaxVal = OrvKvSubscribeValue(*this, _hIMaxLiteral,
                                    static_cast<CATSubscriberMethod>(&OrvKvToleranceSub::OnChangeMaxVal));
    _CBMinVal = OrvKvSubscribeValue(*this, _hIMinLiteral,
                                    static_cast<CATSubscriberMethod>(&OrvKvToleranceSub::OnChangeMinVal));
}

void OrvKvToleranceSub::UpdateFittingValuesOnChangeParmEvent(unsigned char iSubscribe) {
    if (iSubscribe == 0 || _CBParmVal >= 0)
        MustHaveEnded(OrvKvUnsubscribeValue(*this, _hIParm, _CBParmVal));
    else
        _CBParmVal = OrvKvSubscribeValue(
            *this, _hIParm, static_cast<CATSubscriberMethod>(&OrvKvToleranceSub::OnChangeParmVal));
}

void OrvKvToleranceSub::UnsubscribeDeviations() {
    const bool hasMaximumEnded = OrvKvUnsubscribeValue(*this, _hIMaxLiteral, _CBMaxVal);
    const bool hasMinimumEnded = OrvKvUnsubscribeValue(*this, _hIMinLiteral, _CBMinVal);
    MustHaveEnded(hasMaximumEnded && hasMinimumEnded);
}

void OrvKvToleranceSub::SubscribeSymmetry() {
    _CBMaxValPMSym = OrvKvSubscribeValue(
        *this, _hIMaxLiteral, static_cast<CATSubscriberMethod>(&OrvKvToleranceSub::OnChangeMaxValPMSym),
        _hIMinLiteral.Object());
}

void OrvKvToleranceSub::UnsubscribeSymmetry() {
    if (_CBMaxValPMSym >= 0)
        MustHaveEnded(OrvKvUnsubscribeValue(*this, _hIMaxLiteral, _CBMaxValPMSym));
}

bool OrvKvToleranceSub::SetFitWidgetsVisibility(CATULong iVisibility) {
    const int entry = EntryUnderWay();
    const std::initializer_list<CATDialog*> widgets = {_pToleranceGroupLab, _pToleranceGroupCmb,
                                                       _pToleranceFieldLab, _pToleranceFieldCmb};
    for (CATDialog* const widget : widgets) {
        widget->SetVisibility(iVisibility);
        if (IsOvertaken(entry))
            return false;
    }
    return true;
}

void OrvKvToleranceSub::SetEditorsSensitivity(CATULong iMaximum, CATULong iMinimum) {
    _pMaxFrm->SetSensitivity(iMaximum);
    _pMinFrm->SetSensitivity(iMinimum);
}

void OrvKvToleranceSub::SetSpinnerSteps() {
    OrvKvSetDeviationStep(_hIMaxLiteral);
    OrvKvSetDeviationStep(_hIMinLiteral);
}

void OrvKvToleranceSub::ClearFit() {
    SetTolGroupAndField("", "");
}

bool OrvKvToleranceSub::EnterDeviations(double iMax, double iMin, bool iMaxEditable, bool iMinEditable,
                                        bool iWriteMin) {
    const int entry = EntryUnderWay();
    if (iWriteMin) {
        StoredIn(_hIMinLiteral)->SetValue(iMin);
        OrvKvRaiseValue(_hIMinLiteral);
        if (IsOvertaken(entry))
            return false;
        ToleranceOf(_hIParm)->SetMinTolerance(iMin);
    }
    StoredIn(_hIMaxLiteral)->SetValue(iMax);
    OrvKvRaiseValue(_hIMaxLiteral);
    if (IsOvertaken(entry))
        return false;
    ToleranceOf(_hIParm)->SetMaxTolerance(iMax);
    OrvKvRaiseValue(_hIParm);
    if (IsOvertaken(entry))
        return false;
    if (!iMaxEditable)
        _pMaxFrm->SetSensitivity(CATDlgDisable);
    if (!iMinEditable)
        _pMinFrm->SetSensitivity(CATDlgDisable);
    return true;
}

// The answer of the command may choose another mode; nothing follows here.
long OrvKvToleranceSub::AskForFit() {
    UpdateFittingValuesOnChangeParmEvent(1);
    SendNotification(GetFather(),
                     new OrvKvParameterEditISOFittingNotification(_hIParm, _TolGroup, _TolField));
    return S_OK;
}

void OrvKvToleranceSub::OnFittingGroupSelNotif(CATCommand*, CATNotification*, void*) {
    OrvKvGuard::RunShowing("OrvKvToleranceSub::OnFittingGroupSelNotif", [this] {
        CATUnicodeString group = OrvKvSelectedText(_pToleranceGroupCmb);
        const double value = ParmValue();
        SendNotification(GetFather(), new OrvKvParameterEditISOFittingGroupSelectNotification(group, value));
    });
}

void OrvKvToleranceSub::OnFittingFieldSelNotif(CATCommand*, CATNotification*, void*) {
    OrvKvGuard::RunShowing("OrvKvToleranceSub::OnFittingFieldSelNotif", [this] {
        CATUnicodeString group = OrvKvSelectedText(_pToleranceGroupCmb);
        CATUnicodeString field = OrvKvSelectedText(_pToleranceFieldCmb);
        WriteFittingInfo(group, field);
        const double value = ParmValue();
        SendNotification(GetFather(),
                         new OrvKvParameterEditISOFittingFieldSelectNotification(group, field, value));
    });
}

void OrvKvToleranceSub::OnChangeParmValFitting(CATCallbackEvent, void* iPublisher, CATNotification*,
                                               CATSubscriberData, CATCallback) {
    OrvKvGuard::RunShowing("OrvKvToleranceSub::OnChangeParmValFitting", [this, iPublisher] {
        const CATIParmAsStored_var stored = StoredIn(iPublisher);
        const double value = stored->GetValue();
        if (HasFits(value)) {
            if (!IsAngle())
                _pISOFittingRdb->SetVisibility(CATDlgShow);
        } else if (GetVisibility() == CATDlgShow) {
            _pPlusMinusSymmetricalRdb->SetState(CATDlgCheck, OrvKvNotifying);
            _pISOFittingRdb->SetVisibility(CATDlgHide);
        }
        if (value < 0.0)
            stored->SetValue(0.0);
    });
}

void OrvKvToleranceSub::OnChangeParmVal(CATCallbackEvent, void* iPublisher, CATNotification*,
                                        CATSubscriberData, CATCallback) {
    OrvKvGuard::RunShowing("OrvKvToleranceSub::OnChangeParmVal", [this, iPublisher] {
        if (!HasFits(StoredIn(iPublisher)->GetValue()) || _TolMode != TolModeFitting)
            return;
        CATUnicodeString group = OrvKvSelectedText(_pToleranceGroupCmb);
        CATUnicodeString field = OrvKvSelectedText(_pToleranceFieldCmb);
        const double value = ParmValue();
        SendNotification(GetFather(),
                         new OrvKvParameterEditUpdateISOFittingValuesNotification(group, field, value));
    });
}

// Its errors are traced under the name of the field callback.
void OrvKvToleranceSub::OnChangeMaxValPMSym(CATCallbackEvent, void* iFrom, CATNotification*,
                                            CATSubscriberData iInfo, CATCallback) {
    OrvKvGuard::RunShowing("OrvKvToleranceSub::OnFittingFieldSelNotif", [this, iFrom, iInfo] {
        const CATICkeParm_var maximum(static_cast<CATBaseUnknown*>(iFrom));
        const CATICkeParm_var minimum(static_cast<CATBaseUnknown*>(iInfo));
        if (!minimum || !maximum)
            OrvKvErr::Throw_Description("(NULL == iInfo) or (NULL == iFrom)");
        if (_CBMaxValPMSym < 0) // left, but the subscription could not be ended
            return;
        StoredIn(minimum)->SetValue(StoredIn(maximum)->GetValue() * -1.0);
        OrvKvRaiseValue(minimum);
        _pMinFrm->SetSensitivity(CATDlgDisable);
        ToleranceOf(_hIParm)->SetMaxTolerance(StoredIn(_hIMaxLiteral)->GetValue());
        ToleranceOf(_hIParm)->SetMinTolerance(StoredIn(_hIMinLiteral)->GetValue());
    });
}

void OrvKvToleranceSub::OnChangeMaxVal(CATCallbackEvent, void*, CATNotification*, CATSubscriberData,
                                       CATCallback) {
    const CATULong sensitivity = _pMaxFrm->GetSensitivity();
    ToleranceOf(_hIParm)->SetMaxTolerance(StoredIn(_hIMaxLiteral)->GetValue());
    _pMaxFrm->SetSensitivity(sensitivity);
}

void OrvKvToleranceSub::OnChangeMinVal(CATCallbackEvent, void*, CATNotification*, CATSubscriberData,
                                       CATCallback) {
    const CATULong sensitivity = _pMinFrm->GetSensitivity();
    ToleranceOf(_hIParm)->SetMinTolerance(StoredIn(_hIMinLiteral)->GetValue());
    _pMinFrm->SetSensitivity(sensitivity);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is a fixed one
void OrvKvToleranceSub::WriteFittingInfo(CATUnicodeString iGroup, CATUnicodeString iField) {
    SetTolGroupAndField(iGroup.ConvertToChar(), iField.ConvertToChar());
}

unsigned char OrvKvToleranceSub::IsToleranceSym(const CATICkeParm_var& iParm) {
    const CATIParmTolerance_var tolerance(iParm);
    if (!tolerance || tolerance->GetTypeOfTolerance() != OrvKvToleranceIsSet)
        return 0;
    return OrvKvDeviationText(tolerance->GetMaxTolerance()) ==
                   OrvKvDeviationText(-tolerance->GetMinTolerance())
               ? 1
               : 0;
}

double OrvKvToleranceSub::ParmValue() const {
    return StoredIn(_hIParm)->GetValue();
}

bool OrvKvToleranceSub::IsAngle() const {
    return _hIParm->Type()->Name() == "ANGLE";
}
