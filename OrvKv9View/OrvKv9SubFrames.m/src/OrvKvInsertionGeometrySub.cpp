#include "OrvKvInsertionGeometrySub.h"

#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvLayout.h"
#include "OrvKvPanelValues.h"
#include "OrvKvPressEvents.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSetInputGeometryNotification.h"

#include <cstdint>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvInsertionGeometrySub";

// An editor that a person reads and cannot type into.
static constexpr CATDlgStyle ReadOnlyEditor = 0x4000000;

static constexpr int InvertRow = 10;

OrvKvImplementResourceName(OrvKvInsertionGeometrySub, CATDlgFrame);

namespace {

// The number of an input as data of a callback, and back.
CATCommandClientData AsData(int iInputNo) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the data of a callback is a pointer that stands for a number
    return reinterpret_cast<CATCommandClientData>(static_cast<std::intptr_t>(iInputNo));
}

int AsInputNo(CATCommandClientData iData) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(iData));
}

long ShowInput(CATDlgPushButton* iButton, CATDlgEditor* iEditor, const CATUnicodeString& iText,
               unsigned long iVisibility, const char* iMissing) {
    if (iButton == nullptr || iEditor == nullptr)
        return OrvKvReport::Failure(iMissing, OrvKvHere);
    iEditor->SetText(iText);
    iButton->SetVisibility(iVisibility);
    iEditor->SetVisibility(iVisibility);
    iEditor->SetShortHelp(iText);
    return OrvKvReport::Success(OrvKvHere);
}

} // namespace

OrvKvInsertionGeometrySub::OrvKvInsertionGeometrySub(CATDialog* iFather)
    : CATDlgFrame(iFather, "InsertionEditorSub", OrvKvPlainFrame), _pInput1Pbt(nullptr), _pInput1Edt(nullptr),
      _pInput2Pbt(nullptr), _pInput2Edt(nullptr), _pInput3Pbt(nullptr), _pInput3Edt(nullptr),
      _pInvertPbt(nullptr) {}

OrvKvInsertionGeometrySub::OrvKvInsertionGeometrySub(const OrvKvInsertionGeometrySub& iOther) = default;

OrvKvInsertionGeometrySub&
OrvKvInsertionGeometrySub::operator=(const OrvKvInsertionGeometrySub& iOther) = default;

OrvKvInsertionGeometrySub::~OrvKvInsertionGeometrySub() {
    OrvKvUnsubscribePress(*this, _pInput1Pbt, AsData(1));
    OrvKvUnsubscribePress(*this, _pInput2Pbt, AsData(2));
    OrvKvUnsubscribePress(*this, _pInput3Pbt, AsData(3));
    OrvKvUnsubscribePress(*this, _pInvertPbt);
    _pInput1Pbt = _pInput2Pbt = _pInput3Pbt = _pInvertPbt = nullptr;
    _pInput1Edt = _pInput2Edt = _pInput3Edt = nullptr;
}

void OrvKvInsertionGeometrySub::Build() {
    if (HasWidgets())
        return;
    BuildSpacer();
    BuildInput(1, "Input1Pbt", "Input1Edt", _pInput1Pbt, _pInput1Edt);
    BuildInput(2, "Input2Pbt", "Input2Edt", _pInput2Pbt, _pInput2Edt);
    BuildInput(3, "Input3Pbt", "Input3Edt", _pInput3Pbt, _pInput3Edt);
    BuildInvertButton();
}

bool OrvKvInsertionGeometrySub::HasWidgets() const {
    return _pInput1Pbt != nullptr || _pInput1Edt != nullptr || _pInput2Pbt != nullptr ||
           _pInput2Edt != nullptr || _pInput3Pbt != nullptr || _pInput3Edt != nullptr ||
           _pInvertPbt != nullptr;
}

void OrvKvInsertionGeometrySub::BuildSpacer() {
    auto* const spacer = new CATDlgLabel(this, "N");
    OrvKvLayout(this).Columns(spacer, OrvKvFrom(0).StretchTo(3)).Rows(spacer, OrvKvFrom(0).To(1));
    if (spacer != nullptr)
        spacer->SetVisibility(CATDlgHide);
}

void OrvKvInsertionGeometrySub::BuildInput(int iInputNo, const char* iButtonName, const char* iEditorName,
                                           CATDlgPushButton*& oButton, CATDlgEditor*& oEditor) {
    const OrvKvFrom row(2 * iInputNo);
    oButton = new CATDlgPushButton(this, iButtonName);
    oEditor = new CATDlgEditor(this, iEditorName, ReadOnlyEditor);
    OrvKvLayout(this)
        .Columns(oButton, OrvKvFrom(0).To(1))
        .Rows(oButton, row)
        .Columns(oEditor, OrvKvFrom(2).StretchTo(3))
        .Rows(oEditor, row);
    OrvKvSubscribePress(
        *this, oButton,
        static_cast<CATCommandMethod>(&OrvKvInsertionGeometrySub::OnInitInputGeometrySelection),
        AsData(iInputNo));
}

void OrvKvInsertionGeometrySub::BuildInvertButton() {
    CATUnicodeString title;
    const bool isTitleFound = GetResourceValueFromKey("InvertPbt.Title", title) != 0;
    _pInvertPbt = new CATDlgPushButton(this, "InvertPbt");
    if (_pInvertPbt != nullptr && isTitleFound)
        _pInvertPbt->SetTitle(title);
    OrvKvLayout(this).Columns(_pInvertPbt, OrvKvFrom(2).StretchTo(3)).Rows(_pInvertPbt, OrvKvFrom(InvertRow));
    OrvKvSubscribePress(*this, _pInvertPbt,
                        static_cast<CATCommandMethod>(&OrvKvInsertionGeometrySub::OnInvertFeature));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): commands call it as it is
long OrvKvInsertionGeometrySub::SetGeometryText(int iEditorNo, CATUnicodeString iText,
                                                unsigned long iVisibility) {
    switch (iEditorNo) {
    case 1:
        return ShowInput(_pInput1Pbt, _pInput1Edt, iText, iVisibility, "Invalid data memeber _pInput1Edt");
    case 2:
        return ShowInput(_pInput2Pbt, _pInput2Edt, iText, iVisibility, "Invalid data memeber _pInput2Edt");
    case 3:
        return ShowInput(_pInput3Pbt, _pInput3Edt, iText, iVisibility, "Invalid data memeber _pInput3Edt");
    default:
        return OrvKvReport::Failure("error: iEditorNo out of range", OrvKvHere);
    }
}

void OrvKvInsertionGeometrySub::SetLimitingVisibility(unsigned long) {}

void OrvKvInsertionGeometrySub::DisableDirectionButton() {
    if (_pInvertPbt != nullptr)
        _pInvertPbt->SetSensitivity(CATDlgDisable);
}

void OrvKvInsertionGeometrySub::OnInitInputGeometrySelection(CATCommand*, CATNotification*, void* iInputNo) {
    SendNotification(GetFather(), new OrvKvSetInputGeometryNotification(AsInputNo(iInputNo)));
}

void OrvKvInsertionGeometrySub::OnInvertFeature(CATCommand*, CATNotification*, void*) {
    SendNotification(GetFather(), new OrvKvInvertFeatureNotification());
}
