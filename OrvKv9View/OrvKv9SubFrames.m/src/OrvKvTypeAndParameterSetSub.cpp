#include "OrvKvTypeAndParameterSetSub.h"

#include "CATDlgCombo.h"
#include "OrvKvComboLines.h"
#include "OrvKvGuard.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvTypeSub.h"

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvTypeAndParameterSetSub";

static constexpr int MaximumVisibleSets = 8;

OrvKvImplementResourceName(OrvKvTypeAndParameterSetSub, CATDlgFrame);

OrvKvTypeAndParameterSetSub::OrvKvTypeAndParameterSetSub(CATDialog* iParent, unsigned char iMode)
    : CATDlgFrame(iParent, "OrvKvTypeAndParameterSetSub", OrvKvPlainFrame), _Mode(iMode), _pTypeSub(nullptr),
      _pParameterSetCmb(nullptr) {}

OrvKvTypeAndParameterSetSub::OrvKvTypeAndParameterSetSub(const OrvKvTypeAndParameterSetSub& iOther) = default;

OrvKvTypeAndParameterSetSub&
OrvKvTypeAndParameterSetSub::operator=(const OrvKvTypeAndParameterSetSub& iOther) = default;

OrvKvTypeAndParameterSetSub::~OrvKvTypeAndParameterSetSub() {
    if (_pParameterSetCmb != nullptr)
        RemoveAnalyseNotificationCB(_pParameterSetCmb, _pParameterSetCmb->GetComboSelectNotification(),
                                    nullptr);
}

void OrvKvTypeAndParameterSetSub::Build() {
    if (_pTypeSub != nullptr || _pParameterSetCmb != nullptr)
        return;
    _pTypeSub = new OrvKvTypeSub(this);
    if (_pTypeSub != nullptr) {
        _pTypeSub->Build();
        _pTypeSub->SetVisibility(CATDlgShow);
    }
    _pParameterSetCmb = new CATDlgCombo(this, "ParameterSetCmb", OrvKvDropDownCombo);
    OrvKvLayout(this)
        .Rows(_pTypeSub, OrvKvFrom(0).StretchTo(1))
        .Rows(_pParameterSetCmb, OrvKvFrom(3))
        .Columns(_pTypeSub, OrvKvFrom(0).StretchTo(1))
        .Columns(_pParameterSetCmb, OrvKvFrom(0).StretchTo(1));
    if (_pParameterSetCmb == nullptr)
        return;
    AddAnalyseNotificationCB(_pParameterSetCmb, _pParameterSetCmb->GetComboSelectNotification(),
                             static_cast<CATCommandMethod>(&OrvKvTypeAndParameterSetSub::OnParmSetCmbSel),
                             nullptr);
    if (_Mode != 0)
        HideParameterSetSelector();
}

long OrvKvTypeAndParameterSetSub::SetFeatureTypes(int iGroupNo, int iTypeNo,
                                                  const CATListValCATString* const iTypes) {
    if (_pTypeSub == nullptr || iGroupNo < 1)
        return OrvKvReport::Failure("Invalid data members _pTypeSub, iGroupNo, iTypeNo ", OrvKvHere);
    _pTypeSub->SetTypes(iGroupNo, iTypeNo, iTypes);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvTypeAndParameterSetSub::SetParameterSetNames(const CATListValCATUnicodeString& iNames,
                                                       int iSelected) {
    if (_pParameterSetCmb == nullptr)
        return OrvKvReport::Failure("parameter set combo is NULL.", OrvKvHere);
    return OrvKvGuard::Run("OrvKvTypeAndParameterSetSub::SetParameterSetNames", OrvKvHere, [&]() -> long {
        _pParameterSetCmb->ClearLine(OrvKvAllLines);
        OrvKvAppendLines(*_pParameterSetCmb, iNames);
        AdjustTextHeight(_pParameterSetCmb, iNames.Size());
        SelectCombo(_pParameterSetCmb, iSelected);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvTypeAndParameterSetSub::UnselectParameterSet(unsigned char) {
    return OrvKvGuard::Run("OrvKvTypeAndParameterSetSub::UnselectParameterSet", OrvKvHere, [this]() -> long {
        if (_pParameterSetCmb != nullptr)
            _pParameterSetCmb->SetSelect(0, OrvKvSilently);
        return OrvKvReport::Success(OrvKvHere);
    });
}

void OrvKvTypeAndParameterSetSub::DisableTypes(const unsigned long& iWhat) {
    if (_pTypeSub != nullptr)
        _pTypeSub->DisableTypes(iWhat);
}

CATUnicodeString OrvKvTypeAndParameterSetSub::GetSelectedParameterSetName() {
    return OrvKvSelectedText(_pParameterSetCmb);
}

void OrvKvTypeAndParameterSetSub::ShowParameterSetSelector() {
    if (_pParameterSetCmb != nullptr)
        _pParameterSetCmb->SetVisibility(CATDlgShow);
}

void OrvKvTypeAndParameterSetSub::HideParameterSetSelector() {
    if (_pParameterSetCmb != nullptr)
        _pParameterSetCmb->SetVisibility(CATDlgHide);
}

void OrvKvTypeAndParameterSetSub::OnParmSetCmbSel(CATCommand*, CATNotification*, void*) {
    SendNotification(GetFather(), new OrvKvParameterSetSelectedNotification(GetSelectedParameterSetName()));
}

void OrvKvTypeAndParameterSetSub::AdjustTextHeight(CATDlgCombo* iCombo, int iCount) {
    iCombo->SetVisibleTextHeight(iCount < MaximumVisibleSets ? iCount : MaximumVisibleSets);
}

void OrvKvTypeAndParameterSetSub::SelectCombo(CATDlgCombo* iCombo, int iIndex) {
    iCombo->SetSelect(iIndex < 0 ? 0 : iIndex, OrvKvNotifying);
}
