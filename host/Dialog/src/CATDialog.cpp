#include "CATDialog.h"

#include "ChangeLog.h"
#include "DialogExtras.h"
#include "LifeWatch.h"
#include "WidgetEvents.h"
#include "WidgetTree.h"
#include "host/FaultPoints.h"

CATImplementClass(CATDialog, Implementation, CATCommand, CATNull);

bool CATDialog::_isWatched = false;

host::LifeWatch* host::LifeWatch::_innermost = nullptr;

CATDialog::CATDialog(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATCommand(iParent, iName), _parent(iParent), _style(iStyle) {
    host::WidgetTree::Join(*this);
}

CATDialog::CATDialog(const CATDialog& iOther)
    : CATCommand(nullptr, iOther.GetName()), _parent(nullptr),
      _extras(iOther._extras == nullptr ? nullptr : new host::DialogExtras(*iOther._extras)),
      _style(iOther._style), _isShown(iOther._isShown), _isEnabled(iOther._isEnabled),
      _takesChildren(iOther._takesChildren), _isWindow(iOther._isWindow), _holdsPages(iOther._holdsPages),
      _drawsTitle(iOther._drawsTitle), _orientation(iOther._orientation) {
    host::WidgetTree::Announce(*this);
}

CATDialog& CATDialog::operator=(const CATDialog& iOther) {
    if (this == &iOther)
        return *this;
    delete _extras;
    _extras = iOther._extras == nullptr ? nullptr : new host::DialogExtras(*iOther._extras);
    _style = iOther._style;
    _isShown = iOther._isShown;
    _isEnabled = iOther._isEnabled;
    _orientation = iOther._orientation;
    NoteChange(host::ChangeAll);
    return *this;
}

CATDialog::~CATDialog() {
    while (_lastChild != nullptr)
        delete _lastChild; // takes itself off the list
    host::LifeWatch::NoteEnd(*this);
    host::WidgetTree::Leave(*this);
    while (_events != nullptr) {
        host::WidgetEvent* const event = _events;
        _events = event->next;
        event->notification->Release();
        delete event;
    }
    delete _extras;
}

void* CATDialog::operator new(std::size_t iSize) noexcept {
    if (host::FaultPoints::Fails("widget allocation"))
        return nullptr;
    return ::operator new(iSize, std::nothrow);
}

void CATDialog::operator delete(void* iMemory) noexcept {
    ::operator delete(iMemory);
}

void CATDialog::SetVisibility(CATULong iVisibility) {
    if ((iVisibility != CATDlgShow && iVisibility != CATDlgHide) || iVisibility == GetVisibility())
        return;
    _isShown = iVisibility == CATDlgShow;
    NoteChange(host::ChangeVisibility);
    SendEvent(FindEvent(CATDlgVisibilityNotification::ClassName()));
}

CATULong CATDialog::GetVisibility() const {
    return _isShown ? CATDlgShow : CATDlgHide;
}

void CATDialog::SetSensitivity(CATULong iSensitivity) {
    if ((iSensitivity != CATDlgEnable && iSensitivity != CATDlgDisable) || iSensitivity == GetSensitivity())
        return;
    _isEnabled = iSensitivity == CATDlgEnable;
    NoteChange(host::ChangeSensitivity);
}

CATULong CATDialog::GetSensitivity() const {
    return _isEnabled ? CATDlgEnable : CATDlgDisable;
}

CATNotification* CATDialog::GetVisibilityNotification() {
    return Event<CATDlgVisibilityNotification>();
}

void CATDialog::SetIconName(const CATString& iNormal, const CATString& iSelected, const CATString& iFocus,
                            const CATString& iDisabled) {
    CATString* const icons = Extras().icons;
    Store(icons[0], iNormal, host::ChangeIcon);
    Store(icons[1], iSelected, host::ChangeIcon);
    Store(icons[2], iFocus, host::ChangeIcon);
    Store(icons[3], iDisabled, host::ChangeIcon);
}

void CATDialog::SetRectDimensions(int iX, int iY, int iHeight, int iWidth) {
    host::DialogExtras& extras = Extras();
    if (extras.x == iX && extras.y == iY && extras.height == iHeight && extras.width == iWidth)
        return;
    extras.x = iX;
    extras.y = iY;
    extras.height = iHeight;
    extras.width = iWidth;
    NoteChange(host::ChangeGeometry);
}

void CATDialog::GetRectDimensions(int* oX, int* oY, int* oHeight, int* oWidth) const {
    const host::DialogExtras none;
    const host::DialogExtras& extras = _extras == nullptr ? none : *_extras;
    if (oX != nullptr)
        *oX = extras.x;
    if (oY != nullptr)
        *oY = extras.y;
    if (oHeight != nullptr)
        *oHeight = extras.height;
    if (oWidth != nullptr)
        *oWidth = extras.width;
}

char* CATDialog::GetResourceFilename(int) const {
    return nullptr;
}

void CATDialog::RequestDelayedDestruction() {
    if (_parent != nullptr)
        _parent->NoteChange(host::ChangeLayout);
    NoteChange(host::ChangeVisibility);
    CATCommand::RequestDelayedDestruction();
}

CATNotification* CATDialog::FindEvent(const char* iClassName) const {
    for (const host::WidgetEvent* event = _events; event != nullptr; event = event->next)
        if (event->notification->IsA() == iClassName)
            return event->notification;
    return nullptr;
}

void CATDialog::KeepEvent(CATNotification* iEvent) {
    _events = new host::WidgetEvent{iEvent, _events};
}

void CATDialog::SendEvent(CATNotification* iEvent) {
    if (iEvent == nullptr)
        return;
    iEvent->AddRef(); // sending gives one reference away
    SendNotification(GetFather() == nullptr ? this : GetFather(), iEvent);
}

host::DialogExtras& CATDialog::Extras() {
    if (_extras == nullptr)
        _extras = new host::DialogExtras;
    return *_extras;
}

void CATDialog::RecordChange(unsigned int iKind) {
    host::ChangeLog::NoteChange(*this, iKind);
}
