#include "OrvKvParameterSetSub.h"

#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "OrvKvDeleteParameterSetNotification.h"
#include "OrvKvLayout.h"
#include "OrvKvNewParameterSetNotification.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParmSetRenameNotif.h"
#include "OrvKvPressEvents.h"
#include "OrvKvResourceName.h"

static constexpr CATDlgStyle NameLabel = 0x100000;
static constexpr CATDlgStyle NameEditor = 0x2000000;

OrvKvImplementResourceName(OrvKvParameterSetSub, CATDlgFrame);

OrvKvParameterSetSub::OrvKvParameterSetSub(CATDialog* iParent, int iReadOnly)
    : CATDlgFrame(iParent, "OrvKvParameterSetSub", OrvKvPlainFrame), _pParameterSetNameEdt(nullptr),
      _pNewParameterSetPbt(nullptr), _pRenameParameterSetPbt(nullptr), _pDeleteParameterSetPbt(nullptr),
      _ReadOnly(iReadOnly) {}

OrvKvParameterSetSub::OrvKvParameterSetSub(const OrvKvParameterSetSub& iOther) = default;

OrvKvParameterSetSub& OrvKvParameterSetSub::operator=(const OrvKvParameterSetSub& iOther) = default;

OrvKvParameterSetSub::~OrvKvParameterSetSub() {
    if (_ReadOnly == 0) {
        OrvKvUnsubscribePress(*this, _pNewParameterSetPbt);
        OrvKvUnsubscribePress(*this, _pRenameParameterSetPbt);
        OrvKvUnsubscribePress(*this, _pDeleteParameterSetPbt);
        if (_pParameterSetNameEdt != nullptr) // nothing listens to it; the removal changes nothing
            RemoveAnalyseNotificationCB(_pParameterSetNameEdt,
                                        _pParameterSetNameEdt->GetEditModifyNotification(), nullptr);
    }
    _pParameterSetNameEdt = nullptr;
    _pNewParameterSetPbt = _pRenameParameterSetPbt = _pDeleteParameterSetPbt = nullptr;
}

void OrvKvParameterSetSub::Build() {
    if (_pParameterSetNameEdt != nullptr || _pNewParameterSetPbt != nullptr ||
        _pRenameParameterSetPbt != nullptr || _pDeleteParameterSetPbt != nullptr)
        return;
    auto* const label = new CATDlgLabel(this, "ParameterSetNameDescriptionLab", NameLabel);
    _pParameterSetNameEdt = new CATDlgEditor(this, "ParameterSetNameEdt", NameEditor);
    auto* const buttonFrame = new CATDlgFrame(this, "ButtonFrm", OrvKvPlainFrame);
    OrvKvLayout(this)
        .Columns(label, OrvKvFrom(0).StretchTo(1))
        .Columns(_pParameterSetNameEdt, OrvKvFrom(0).StretchTo(1))
        .Columns(buttonFrame, OrvKvFrom(0).StretchTo(1));
    if (buttonFrame != nullptr)
        BuildButtons(buttonFrame);
    if (label != nullptr)
        label->SetVisibility(CATDlgHide);
    if (_pParameterSetNameEdt != nullptr)
        _pParameterSetNameEdt->SetVisibility(CATDlgHide);
}

void OrvKvParameterSetSub::BuildButtons(CATDlgFrame* iFrame) {
    _pNewParameterSetPbt = new CATDlgPushButton(iFrame, "NewParameterSetPbt");
    _pRenameParameterSetPbt = new CATDlgPushButton(iFrame, "RenameParameterSetPbt");
    _pDeleteParameterSetPbt = new CATDlgPushButton(iFrame, "DeleteParameterSetPbt");
    OrvKvLayout(iFrame)
        .Columns(_pNewParameterSetPbt, OrvKvFrom(0).StretchTo(1))
        .Columns(_pRenameParameterSetPbt, OrvKvFrom(2).StretchTo(3))
        .Columns(_pDeleteParameterSetPbt, OrvKvFrom(4).StretchTo(5));
    if (_ReadOnly != 0)
        return;
    OrvKvSubscribePress(*this, _pNewParameterSetPbt,
                        static_cast<CATCommandMethod>(&OrvKvParameterSetSub::OnPSNew));
    OrvKvSubscribePress(*this, _pRenameParameterSetPbt,
                        static_cast<CATCommandMethod>(&OrvKvParameterSetSub::OnPSRename));
    OrvKvSubscribePress(*this, _pDeleteParameterSetPbt,
                        static_cast<CATCommandMethod>(&OrvKvParameterSetSub::OnPSDelete));
}

CATDlgPushButton* OrvKvParameterSetSub::GetCreatePSPB() {
    return _pNewParameterSetPbt;
}

CATDlgPushButton* OrvKvParameterSetSub::GetRenamePSPB() {
    return _pRenameParameterSetPbt;
}

CATDlgPushButton* OrvKvParameterSetSub::GetDeletePSPB() {
    return _pDeleteParameterSetPbt;
}

void OrvKvParameterSetSub::OnPSNew(CATCommand*, CATNotification*, void*) {
    SendNotification(GetFather(), new OrvKvNewParameterSetNotification());
}

void OrvKvParameterSetSub::OnPSRename(CATCommand*, CATNotification*, void*) {
    SendNotification(GetFather(), new OrvKvParmSetRenameNotif());
}

void OrvKvParameterSetSub::OnPSDelete(CATCommand*, CATNotification*, void*) {
    SendNotification(GetFather(), new OrvKvDeleteParameterSetNotification());
}
