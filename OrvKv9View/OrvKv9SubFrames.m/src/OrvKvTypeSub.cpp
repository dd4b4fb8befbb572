#include "OrvKvTypeSub.h"

#include "CATDlgCombo.h"
#include "OrvKvGuard.h"
#include "OrvKvKeyCombo.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvTypeSelectedNotification.h"

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvTypeSub";

static constexpr int VisibleTypes = 7;
static constexpr int NoLine = -1;

OrvKvImplementResourceName(OrvKvTypeSub, CATDlgFrame);

OrvKvTypeSub::OrvKvTypeSub(CATDialog* iParent)
    : CATDlgFrame(iParent, "OrvKvTypeSub", OrvKvPlainFrame), _GroupNo(1), _pTypeCombo(nullptr) {}

OrvKvTypeSub::OrvKvTypeSub(const OrvKvTypeSub& iOther) = default;

OrvKvTypeSub& OrvKvTypeSub::operator=(const OrvKvTypeSub& iOther) = default;

OrvKvTypeSub::~OrvKvTypeSub() {
    _TypeKeys.RemoveAll();
}

void OrvKvTypeSub::Build() {
    if (_pTypeCombo != nullptr)
        return;
    _pTypeCombo = new CATDlgCombo(this, "TypeSelectCombo");
    if (_pTypeCombo == nullptr)
        return;
    _pTypeCombo->SetVisibleTextHeight(VisibleTypes);
    OrvKvLayout(this).Rows(_pTypeCombo, OrvKvFrom(0)).Columns(_pTypeCombo, OrvKvFrom(0).StretchTo(1));
    AddAnalyseNotificationCB(_pTypeCombo, _pTypeCombo->GetComboSelectNotification(),
                             static_cast<CATCommandMethod>(&OrvKvTypeSub::OnTypeComboSelNotification),
                             nullptr);
}

long OrvKvTypeSub::SetTypes(int iGroupNo, int iTypeNo, const CATListValCATString* iTypes) {
    if (iTypes == nullptr || _pTypeCombo == nullptr)
        return OrvKvReport::SilentFailure();
    return OrvKvGuard::Run("OrvKvTypeSub::SetTypes", OrvKvHere, [&]() -> long {
        _GroupNo = iGroupNo;
        _TypeKeys = *iTypes;
        _pTypeCombo->ClearLine(OrvKvAllLines);
        OrvKvAppendKeys(*_pTypeCombo, _TypeKeys);
        OrvKvSelectKey(*_pTypeCombo, iTypeNo);
        return OrvKvReport::Success(OrvKvHere);
    });
}

void OrvKvTypeSub::DisableTypes(const unsigned long& iWhat) {
    if (_pTypeCombo != nullptr)
        _pTypeCombo->SetSensitivity(iWhat);
}

void OrvKvTypeSub::OnTypeComboSelNotification(CATCommand*, CATNotification*, void*) {
    const int line = _pTypeCombo == nullptr ? NoLine : _pTypeCombo->GetSelect();
    if (line < 0 || line >= _TypeKeys.Size())
        return;
    CATUnicodeString text;
    _pTypeCombo->GetLine(text, line);
    auto* const selected = new OrvKvTypeSelectedNotification();
    if (selected != nullptr)
        selected->SetFeatureInformation(_GroupNo, line + 1, _TypeKeys[line + 1], text);
    SendNotification(GetFather(), selected);
}
