#include "OrvKvGroupAndGeometrySub.h"

#include "CATDlgCombo.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvGuard.h"
#include "OrvKvInsertionGeometrySub.h"
#include "OrvKvKeyCombo.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"

#include <utility>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvGroupAndGeometrySub";

static constexpr int VisibleCharacters = 12;

OrvKvImplementResourceName(OrvKvGroupAndGeometrySub, CATDialog);

OrvKvGroupAndGeometrySub::OrvKvGroupAndGeometrySub(CATDialog* iFather)
    : CATDlgFrame(iFather, "OrvKvGroupAndGeometrySub", OrvKvPlainFrame), _pGroupCmb(nullptr),
      _pInsertionGeometrySub(nullptr) {}

OrvKvGroupAndGeometrySub::OrvKvGroupAndGeometrySub(const OrvKvGroupAndGeometrySub& iOther) = default;

OrvKvGroupAndGeometrySub&
OrvKvGroupAndGeometrySub::operator=(const OrvKvGroupAndGeometrySub& iOther) = default;

OrvKvGroupAndGeometrySub::~OrvKvGroupAndGeometrySub() {
    if (_pGroupCmb != nullptr)
        RemoveAnalyseNotificationCB(_pGroupCmb, _pGroupCmb->GetComboSelectNotification(), nullptr);
    _pGroupCmb = nullptr;
    _pInsertionGeometrySub = nullptr;
}

void OrvKvGroupAndGeometrySub::Build() {
    if (_pGroupCmb != nullptr || _pInsertionGeometrySub != nullptr)
        return;
    _pGroupCmb = new CATDlgCombo(this, "GroupCmb", OrvKvDropDownCombo);
    if (_pGroupCmb != nullptr)
        _pGroupCmb->SetVisibleTextWidth(VisibleCharacters);
    _pInsertionGeometrySub = new OrvKvInsertionGeometrySub(this);
    if (_pInsertionGeometrySub != nullptr) {
        _pInsertionGeometrySub->Build();
        _pInsertionGeometrySub->SetVisibility(CATDlgShow);
    }
    OrvKvLayout(this)
        .Columns(_pGroupCmb, OrvKvFrom(0).StretchTo(1))
        .Columns(_pInsertionGeometrySub, OrvKvFrom(0).StretchTo(1));
    if (_pGroupCmb == nullptr)
        return;
    AddAnalyseNotificationCB(
        _pGroupCmb, _pGroupCmb->GetComboSelectNotification(),
        static_cast<CATCommandMethod>(&OrvKvGroupAndGeometrySub::OnGroupCmbSelectNotification), nullptr);
}

long OrvKvGroupAndGeometrySub::SetGroupKeys(const CATListValCATString* iGroupKeys, int iSelectedGroup) {
    if (_pGroupCmb == nullptr || iGroupKeys == nullptr)
        return OrvKvReport::Failure("Invalid data memeber _pGroupCmb .", OrvKvHere);
    const long result = OrvKvGuard::Run("OrvKvGroupAndGeometrySub::SetGroupKeys", OrvKvHere, [&]() -> long {
        _pGroupCmb->ClearLine(OrvKvAllLines);
        _pGroupCmb->SetVisibility(CATDlgHide);
        OrvKvAppendKeys(*_pGroupCmb, *iGroupKeys);
        OrvKvSelectKey(*_pGroupCmb, iSelectedGroup);
        _pGroupCmb->SetVisibility(CATDlgShow);
        return OrvKvReport::Success(OrvKvHere);
    });
    if (FAILED(result))
        _pGroupCmb->SetVisibility(CATDlgShow); // a caught error has left it hidden
    return result;
}

void OrvKvGroupAndGeometrySub::DisableGroup(const unsigned long& iSensitivity) {
    if (_pGroupCmb != nullptr)
        _pGroupCmb->SetSensitivity(iSensitivity);
}

void OrvKvGroupAndGeometrySub::DisableDirection() {
    if (_pInsertionGeometrySub != nullptr)
        _pInsertionGeometrySub->DisableDirectionButton();
}

long OrvKvGroupAndGeometrySub::SetGeometryText(int iEditorNo, CATUnicodeString iText,
                                               unsigned long iVisibility) {
    if (_pInsertionGeometrySub == nullptr)
        return OrvKvReport::Failure("Invalid data memeber _pInsertionGeometrySub", OrvKvHere);
    _pInsertionGeometrySub->SetGeometryText(iEditorNo, std::move(iText), iVisibility);
    return OrvKvReport::Success(OrvKvHere);
}

void OrvKvGroupAndGeometrySub::OnGroupCmbSelectNotification(CATCommand* iFrom, CATNotification*, void*) {
    if (iFrom == nullptr || _pGroupCmb == nullptr)
        return;
    SendNotification(GetFather(), new OrvKvGroupChangedNotification(_pGroupCmb->GetSelect() + 1));
}
