#include "OrvKvTabContainer.h"

#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "OrvKvForward.h"
#include "OrvKvGuard.h"
#include "OrvKvNewIn.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterSetSub.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSketchSub.h"
#include "OrvKvThreadSub.h"

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvTabContainer";

OrvKvImplementResourceName(OrvKvTabContainer, CATDialog);

namespace {

CATDlgTabPage* NewPage(CATDlgTabContainer* iContainer, const char* iName) {
    auto* const page = OrvKvNewIn<CATDlgTabPage>(iContainer, iName);
    if (page != nullptr)
        page->SetVisibility(CATDlgShow);
    return page;
}

// Lets a panel fill its page.
template<class Panel>
void BuildOn(CATDlgTabPage* iPage, Panel* iPanel) {
    if (iPanel == nullptr)
        return;
    iPanel->SetVisibility(CATDlgShow);
    iPanel->Build();
    iPage->Attach4Sides(iPanel);
}

// Hands a call on to the thread panel. An error that is raised there is a failure like any other. iOperation
// is "Class::Operation".
template<class Call>
long Forward(OrvKvThreadSub* iThreadSub, const char* iOperation, const char* iMessage,
             const OrvKvSource& iWhere, Call iCall) {
    return OrvKvForward(iThreadSub, iMessage, iWhere, [&](OrvKvThreadSub& ioThread) {
        return OrvKvGuard::Run(iOperation, iWhere, [&] { return iCall(ioThread); });
    });
}

} // namespace

OrvKvTabContainer::OrvKvTabContainer(CATDialog* iFather, int iParameterSetMode)
    : CATDlgFrame(iFather, "TabContainerSub", OrvKvPlainFrame), _pTabContainer(nullptr),
      _pSketchPage(nullptr), _pParameterSetEditorPage(nullptr), _pThreadPage(nullptr), _pSketchSub(nullptr),
      _pParameterSetSub(nullptr), _pThreadSub(nullptr), _iParameterSetMode(iParameterSetMode) {
    _iReserved = 0; // nothing reads it; a member that is initialised alone counts as forgotten
}

OrvKvTabContainer::OrvKvTabContainer(const OrvKvTabContainer& iOther) = default;

OrvKvTabContainer& OrvKvTabContainer::operator=(const OrvKvTabContainer& iOther) = default;

OrvKvTabContainer::~OrvKvTabContainer() {
    _pTabContainer = nullptr;
    _pSketchPage = _pParameterSetEditorPage = _pThreadPage = nullptr;
    _pSketchSub = nullptr;
    _pParameterSetSub = nullptr;
    _pThreadSub = nullptr;
}

void OrvKvTabContainer::Build() {
    if (_pTabContainer != nullptr)
        return;
    _pTabContainer = new CATDlgTabContainer(this, "TabContainer");
    _pSketchPage = NewPage(_pTabContainer, "SketchPge");
    _pParameterSetEditorPage = NewPage(_pTabContainer, "ParameterSetEditorPge");
    _pThreadPage = NewPage(_pTabContainer, "ThreadPge");
    _pSketchSub = OrvKvNewIn<OrvKvSketchSub>(_pSketchPage);
    BuildOn(_pSketchPage, _pSketchSub);
    _pParameterSetSub = OrvKvNewIn<OrvKvParameterSetSub>(_pParameterSetEditorPage, _iParameterSetMode);
    BuildOn(_pParameterSetEditorPage, _pParameterSetSub);
    _pThreadSub = OrvKvNewIn<OrvKvThreadSub>(_pThreadPage);
    BuildOn(_pThreadPage, _pThreadSub);
}

long OrvKvTabContainer::SetFeatureDrawing(const CATPixelImage* iImage, const CATUnicodeString& iText) {
    if (_pSketchSub == nullptr)
        return OrvKvReport::Failure("Invalid data member _pSketchSub ", OrvKvHere);
    _pSketchSub->SetImage(iImage, iText);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvTabContainer::SetThread(unsigned char iThreadActive, unsigned char) {
    if (_pThreadPage == nullptr)
        return OrvKvReport::Failure("Invalid data member _pThreadPage ", OrvKvHere);
    return OrvKvGuard::Run("OrvKvTabContainer::SetThread", OrvKvHere, [&]() -> long {
        _pThreadPage->SetSensitivity(iThreadActive != 0 ? CATDlgEnable : CATDlgDisable);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvTabContainer::SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected,
                                       unsigned char iNotify) {
    return Forward(
        _pThreadSub, "OrvKvTabContainer::SetThreadTypes", "Error in setting the thread type.", OrvKvHere,
        [&](OrvKvThreadSub& ioThread) { return ioThread.SetThreadTypes(iTypes, iSelected, iNotify); });
}

long OrvKvTabContainer::SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected,
                                      unsigned char iNotify) {
    return Forward(
        _pThreadSub, "OrvKvTabContainer::SetThreadDims", "Error in setting the thread dims.", OrvKvHere,
        [&](OrvKvThreadSub& ioThread) { return ioThread.SetThreadDims(iDims, iSelected, iNotify); });
}

long OrvKvTabContainer::SetThreadValues(const CATRawColldouble& iPitches,
                                        const CATRawColldouble& iInternalDiameters,
                                        const CATRawColldouble& iDiameters) {
    return Forward(_pThreadSub, "OrvKvTabContainer::SetThreadValues", "Error in setting the thread values.",
                   OrvKvHere, [&](OrvKvThreadSub& ioThread) {
                       return ioThread.SetThreadValues(iPitches, iInternalDiameters, iDiameters);
                   });
}

long OrvKvTabContainer::SetThreadDirection(const CATUnicodeString& iDirection) {
    return Forward(_pThreadSub, "OrvKvTabContainer::SetThreadDirection",
                   "Error in setting the thread direction.", OrvKvHere,
                   [&](OrvKvThreadSub& ioThread) { return ioThread.SetThreadDirection(iDirection); });
}

long OrvKvTabContainer::SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter,
                                                 const CATICkeParm_var& iDiameter,
                                                 const CATICkeParm_var& iLength,
                                                 const CATICkeParm_var& iPitch) {
    return Forward(
        _pThreadSub, "OrvKvTabContainer::SetThreadPanelParameters",
        "Error in setting the thread parameteres panel.", OrvKvHere, [&](OrvKvThreadSub& ioThread) {
            return ioThread.SetThreadPanelParameters(iInternalDiameter, iDiameter, iLength, iPitch);
        });
}

long OrvKvTabContainer::RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                                           const CATListValCATUnicodeString& iDims, int iSelectedDim) {
    return Forward(_pThreadSub, "OrvKvTabContainer::RebuildThreadPanel",
                   "Error in the thread panel regeneration.", OrvKvHere, [&](OrvKvThreadSub& ioThread) {
                       return ioThread.RebuildThreadPanel(iTypes, iSelectedType, iDims, iSelectedDim);
                   });
}

CATDlgPushButton* OrvKvTabContainer::GetCreatePSPB() {
    return _pParameterSetSub == nullptr ? nullptr : _pParameterSetSub->GetCreatePSPB();
}

CATDlgPushButton* OrvKvTabContainer::GetDeletePSPB() {
    return _pParameterSetSub == nullptr ? nullptr : _pParameterSetSub->GetDeletePSPB();
}

CATDlgPushButton* OrvKvTabContainer::GetRenamePSPB() {
    return _pParameterSetSub == nullptr ? nullptr : _pParameterSetSub->GetRenamePSPB();
}
