#include "OrvKvMainPanel.h"

#include "CATApplicationFrame.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "OrvKvForward.h"
#include "OrvKvGroupAndGeometrySub.h"
#include "OrvKvLayout.h"
#include "OrvKvNewIn.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterListSub.h"
#include "OrvKvParameterSetListSub.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvStoredPlace.h"
#include "OrvKvTabContainer.h"
#include "OrvKvTriggerStateChangeToInvalidNotification.h"
#include "OrvKvTriggerStateChangeToValidNotification.h"
#include "OrvKvTypeAndParameterSetSub.h"

#include <utility>

static const char SourceFile[] = "OrvKv9DialogWindows.m/src/OrvKvMainPanel";

static constexpr unsigned char ParameterSetMode = 1;

static constexpr CATDlgStyle DialogStyle = 0x443C00; // with OK, Cancel, Apply and Help
static constexpr CATULong NoDefaultButton = 0;
static constexpr CATDlgStyle FlatButton = 0x80000;
static constexpr CATDlgStyle MessageEditor = 0x4080000; // read-only, several lines

static constexpr int UnfoldedHeight = 640;
static constexpr int FoldedHeight = 340;
static constexpr int DialogWidth = 670;

static constexpr int VisibleMessages = 5;
static constexpr int VisibleMessageWidth = 5;
static constexpr int LastLine = -1;

// States of the rules.
static constexpr int RulesBroken = 1;
static constexpr int RulesWarn = 2;

static constexpr const char* MoreTitle = "BottomFrm.MoreTitle";
static constexpr const char* LessTitle = "BottomFrm.LessTitle";

static constexpr const char* NoGroups = "Group and geometry sub panel doesn't exist.";
static constexpr const char* NoTypes = "_pTypeAndParameterSetSub panel doesn't exist.";
static constexpr const char* BadParameters =
    "Error in setting the parameters to the parameters list sub panel.";
static constexpr const char* BadNames =
    "Error in setting the parameter names to the parameters list sub panel.";
static constexpr const char* BadFitting =
    "Error in setting the fitting infor to the parameters list sub panel.";

unsigned char OrvKvMainPanel::_Expanded = 1;

OrvKvImplementResourceName(OrvKvMainPanel, CATDialog);

namespace {

// The names of the dialog, of the key of its long help, and of its parts. No widget has one of the three
// names of logos; they are reserved.
struct Names {
    const CATString dialog = "MainPanel";
    const CATString longHelp = "LongHelp";
    const CATString logoFrame = "LogoFrm";
    const CATString companyLogo = "CompanyLogoLab";
    const CATString departmentLogo = "DepartmentLogoLab";
    const CATString groupFrame = "GroupFrm";
    const CATString combineLowerFrame = "CombineLowerFrm";
    const CATString bottomFrame = "BottomFrm";
    const CATString rulesFrame = "Applicative Rules   ";
    const CATString spacer = "               ";
    const CATString moreLessButton = "MoreLessButton";
};

const Names& DialogNames() {
    static const Names names;
    return names;
}

// All parts of the dialog reach from its left to its right side.
OrvKvFrom AcrossTheDialog() {
    return OrvKvFrom(0).StretchTo(1);
}

void SetShown(CATDialog* iWidget, CATULong iVisibility) {
    if (iWidget != nullptr)
        iWidget->SetVisibility(iVisibility);
}

template<class Panel>
void BuildPanel(Panel* iPanel) {
    if (iPanel != nullptr)
        iPanel->Build();
}

template<class Panel>
void BuildAndShow(Panel* iPanel) {
    BuildPanel(iPanel);
    SetShown(iPanel, CATDlgShow);
}

// The callee's own result where it failed.
long PassOn(long iResult, const OrvKvSource& iWhere) {
    return FAILED(iResult) ? iResult : OrvKvReport::Success(iWhere);
}

// The name with that number, from 1; empty where there is none.
CATUnicodeString NameAt(const CATListValCATUnicodeString& iNames, int iNumber) {
    return iNumber < 1 || iNumber > iNames.Size() ? CATUnicodeString() : iNames[iNumber];
}

const char* IconOf(int iState) {
    if (iState == RulesBroken)
        return "KelvaneRulesKO";
    return iState == RulesWarn ? "KelvaneRulesYellow" : "KelvaneRulesOK";
}

} // namespace

OrvKvMainPanel::OrvKvMainPanel(unsigned char iMode, unsigned char iListFlag)
    : CATDlgDialog(CATApplicationFrame::GetFrame()->GetMainWindow(), DialogNames().dialog, DialogStyle),
      _Mode(iMode), _pGroupAndGeometrySub(nullptr), _pTypeAndParameterSetSub(nullptr),
      _pCombineLowerFrm(nullptr), _pTabContainer(nullptr), _pParameterSetListSub(nullptr),
      _pParameterListSub(nullptr), _pRulesFrm(nullptr), _pRulesEditor(nullptr), _pRulesLightLab(nullptr),
      _pBottomFrm(nullptr), _pBottomSpacerLab(nullptr), _pMoreLessButton(nullptr), _WantMoreLess(0),
      _ListFlag(iListFlag) {
    SetDefaultButton(NoDefaultButton);
    _WantMoreLess = 1;
}

OrvKvMainPanel::OrvKvMainPanel(const OrvKvMainPanel& iOther) = default;

OrvKvMainPanel& OrvKvMainPanel::operator=(const OrvKvMainPanel& iOther) = default;

OrvKvMainPanel::~OrvKvMainPanel() {
    _pGroupAndGeometrySub = nullptr;
    _pTypeAndParameterSetSub = nullptr;
    _pCombineLowerFrm = _pRulesFrm = _pBottomFrm = nullptr;
    _pTabContainer = nullptr;
    _pParameterSetListSub = nullptr;
    _pParameterListSub = nullptr;
    _pRulesEditor = nullptr;
    _pRulesLightLab = _pBottomSpacerLab = nullptr;
    _pMoreLessButton = nullptr;
    RemoveAnalyseNotificationCB(this, GetWindSizeNotification(), nullptr);
    RemoveAnalyseNotificationCB(this, GetWindMoveNotification(), nullptr);
}

void OrvKvMainPanel::Build() {
    if (_pCombineLowerFrm != nullptr || _pBottomFrm != nullptr || _pRulesFrm != nullptr)
        return;
    AddAnalyseNotificationCB(this, GetWindMoveNotification(),
                             static_cast<CATCommandMethod>(&OrvKvMainPanel::ActOnWinMove), nullptr);
    CATUnicodeString longHelp;
    if (GetResourceValueFromKey(DialogNames().longHelp, longHelp) != 0)
        SetLongHelp(longHelp);
    auto* const groupFrame = new CATDlgFrame(this, DialogNames().groupFrame);
    _pCombineLowerFrm = new CATDlgFrame(this, DialogNames().combineLowerFrame, OrvKvPlainFrame);
    BuildList();
    _pTabContainer = OrvKvNewIn<OrvKvTabContainer>(_pCombineLowerFrm, 0);
    BuildPanel(_pTabContainer);
    BuildBottom();
    BuildRules();
    LayOutDialog(groupFrame);
    LayOutLowerPart();
    BuildUpperPart(groupFrame);
    OrvKvStoredPlace::Restore(*this, UnfoldedHeight, DialogWidth);
    ListenToMoreLess();
}

void OrvKvMainPanel::BuildList() {
    if (_Mode == ParameterSetMode) {
        _pParameterSetListSub = OrvKvNewIn<OrvKvParameterSetListSub>(_pCombineLowerFrm);
        BuildPanel(_pParameterSetListSub);
    } else {
        _pParameterListSub = OrvKvNewIn<OrvKvParameterListSub>(_pCombineLowerFrm, _ListFlag);
        BuildPanel(_pParameterListSub);
    }
}

void OrvKvMainPanel::BuildBottom() {
    _pBottomFrm = new CATDlgFrame(this, DialogNames().bottomFrame, OrvKvPlainFrame);
    _pBottomSpacerLab = OrvKvNewIn<CATDlgLabel>(_pBottomFrm, DialogNames().spacer);
    if (_pBottomSpacerLab != nullptr)
        _pBottomSpacerLab->SetTitle(DialogNames().spacer); // blanks in every language
    if (_WantMoreLess == 1)
        _pMoreLessButton =
            OrvKvNewIn<CATDlgPushButton>(_pBottomFrm, DialogNames().moreLessButton, FlatButton);
    TitleMoreLess(LessTitle);
    if (_pBottomFrm == nullptr)
        return;
    OrvKvLayout(_pBottomFrm)
        .Rows(_pBottomSpacerLab, OrvKvFrom(0))
        .Columns(_pBottomSpacerLab, OrvKvFrom(0).StretchTo(1))
        .Rows(_pMoreLessButton, OrvKvFrom(0))
        .Columns(_pMoreLessButton, OrvKvFrom(2));
    _pBottomFrm->SetVisibility(CATDlgShow);
}

void OrvKvMainPanel::BuildRules() {
    _pRulesFrm = new CATDlgFrame(this, DialogNames().rulesFrame);
    _pRulesEditor = OrvKvNewIn<CATDlgEditor>(_pRulesFrm, "KelvaneRules", MessageEditor);
    if (_pRulesEditor != nullptr) {
        _pRulesEditor->SetVisibleTextHeight(VisibleMessages);
        _pRulesEditor->SetVisibleTextWidth(VisibleMessageWidth);
        _pRulesEditor->SetGridConstraints(0, 0, 1, 1, CATGRID_4SIDES);
    }
    _pRulesLightLab = OrvKvNewIn<CATDlgLabel>(_pRulesFrm, "Label003");
    if (_pRulesLightLab != nullptr)
        _pRulesLightLab->SetIconName("I_GreenLightXML");
    if (_pRulesFrm == nullptr)
        return;
    OrvKvLayout(_pRulesFrm)
        .Rows(_pRulesEditor, OrvKvFrom(0))
        .Columns(_pRulesEditor, OrvKvFrom(0).StretchTo(1))
        .Rows(_pRulesLightLab, OrvKvFrom(0))
        .Columns(_pRulesLightLab, OrvKvUntil(1));
}

void OrvKvMainPanel::LayOutDialog(CATDlgFrame* iGroupFrame) {
    OrvKvLayout(this)
        .Columns(iGroupFrame, AcrossTheDialog())
        .Columns(_pCombineLowerFrm, AcrossTheDialog())
        .Columns(_pBottomFrm, AcrossTheDialog())
        .Columns(_pRulesFrm, AcrossTheDialog())
        .Rows(iGroupFrame, OrvKvFrom(0))
        .Rows(_pCombineLowerFrm, OrvKvFrom(1).StretchTo(2))
        .Rows(_pBottomFrm, OrvKvFrom(3).To(4))
        .Rows(_pRulesFrm, OrvKvFrom(5));
}

void OrvKvMainPanel::LayOutLowerPart() {
    if (_pCombineLowerFrm == nullptr)
        return;
    CATDialog* list = _pParameterListSub;
    if (list == nullptr)
        list = _pParameterSetListSub;
    OrvKvLayout(_pCombineLowerFrm)
        .Rows(list, OrvKvFrom(0).StretchTo(1))
        .Columns(list, OrvKvFrom(0).StretchTo(1))
        .Rows(_pTabContainer, OrvKvFrom(0).StretchTo(1))
        .Columns(_pTabContainer, OrvKvFrom(2));
    _pCombineLowerFrm->SetVisibility(CATDlgShow);
}

void OrvKvMainPanel::BuildUpperPart(CATDlgFrame* iGroupFrame) {
    _pGroupAndGeometrySub = OrvKvNewIn<OrvKvGroupAndGeometrySub>(iGroupFrame);
    BuildAndShow(_pGroupAndGeometrySub);
    _pTypeAndParameterSetSub = OrvKvNewIn<OrvKvTypeAndParameterSetSub>(iGroupFrame, _Mode);
    BuildAndShow(_pTypeAndParameterSetSub);
    if (iGroupFrame == nullptr)
        return;
    OrvKvLayout(iGroupFrame)
        .Rows(_pGroupAndGeometrySub, OrvKvFrom(0).StretchTo(1))
        .Columns(_pGroupAndGeometrySub, OrvKvFrom(0))
        .Rows(_pTypeAndParameterSetSub, OrvKvFrom(0).StretchTo(1))
        .Columns(_pTypeAndParameterSetSub, OrvKvFrom(1).StretchTo(2));
}

void OrvKvMainPanel::ListenToMoreLess() {
    if (_pMoreLessButton == nullptr)
        return;
    AddAnalyseNotificationCB(_pMoreLessButton, _pMoreLessButton->GetPushBActivateNotification(),
                             static_cast<CATCommandMethod>(&OrvKvMainPanel::ActOnMoreLessSelection), nullptr);
    if (_Expanded == 0)
        Fold();
}

void OrvKvMainPanel::ActOnWinMove(CATCommand*, CATNotification*, void*) {
    OrvKvStoredPlace::Store(*this);
}

void OrvKvMainPanel::ActOnMoreLessSelection(CATCommand*, CATNotification*, void*) {
    if (_pMoreLessButton == nullptr)
        return;
    if (_Expanded == 1) {
        Fold();
        _Expanded = 0;
    } else {
        Unfold();
        _Expanded = 1;
    }
}

void OrvKvMainPanel::Fold() {
    TitleMoreLess(MoreTitle);
    SetShown(_pCombineLowerFrm, CATDlgHide);
    DetachLowerFrames();
    OrvKvLayout(this)
        .Columns(_pBottomFrm, AcrossTheDialog())
        .Columns(_pRulesFrm, AcrossTheDialog())
        .Rows(_pBottomFrm, OrvKvFrom(3).To(4))
        .Rows(_pRulesFrm, OrvKvFrom(5).To(6));
    OrvKvStoredPlace::Restore(*this, FoldedHeight, DialogWidth);
    if (_Mode == ParameterSetMode && _pTypeAndParameterSetSub != nullptr)
        _pTypeAndParameterSetSub->ShowParameterSetSelector();
}

void OrvKvMainPanel::Unfold() {
    TitleMoreLess(LessTitle);
    SetShown(_pCombineLowerFrm, CATDlgShow);
    DetachLowerFrames();
    OrvKvLayout(this)
        .Columns(_pCombineLowerFrm, AcrossTheDialog())
        .Columns(_pBottomFrm, AcrossTheDialog())
        .Columns(_pRulesFrm, AcrossTheDialog())
        .Rows(_pCombineLowerFrm, OrvKvFrom(2).StretchTo(3))
        .Rows(_pBottomFrm, OrvKvFrom(4).To(5))
        .Rows(_pRulesFrm, OrvKvUntil(6));
    OrvKvStoredPlace::Restore(*this, UnfoldedHeight, DialogWidth);
    if (_Mode == ParameterSetMode && _pTypeAndParameterSetSub != nullptr)
        _pTypeAndParameterSetSub->HideParameterSetSelector();
}

void OrvKvMainPanel::TitleMoreLess(const CATString& iKey) {
    if (_pMoreLessButton == nullptr)
        return;
    CATUnicodeString title(_pMoreLessButton->GetName()); // shown where the text is missing
    GetResourceValueFromKey(iKey, title);
    _pMoreLessButton->SetTitle(title);
}

void OrvKvMainPanel::DetachLowerFrames() {
    OrvKvLayout(this).Reset(_pCombineLowerFrm).Reset(_pBottomFrm).Reset(_pRulesFrm);
}

long OrvKvMainPanel::SetGroups(const CATListValCATString* const iGroupKeys, int iSelected) {
    if (_pGroupAndGeometrySub == nullptr)
        return OrvKvReport::Failure(NoGroups, OrvKvHere);
    return PassOn(_pGroupAndGeometrySub->SetGroupKeys(iGroupKeys, iSelected), OrvKvHere);
}

long OrvKvMainPanel::SetFeatureTypes(int iGroupNo, int iTypeNo, const CATListValCATString* const iTypes) {
    if (_pTypeAndParameterSetSub == nullptr)
        return OrvKvReport::Failure(NoTypes, OrvKvHere);
    return PassOn(_pTypeAndParameterSetSub->SetFeatureTypes(iGroupNo, iTypeNo, iTypes), OrvKvHere);
}

long OrvKvMainPanel::SetFeatureDrawing(const CATPixelImage* iImage, const CATUnicodeString& iText) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetFeatureDrawing(iImage, iText);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvMainPanel::SetParameterSetNames(const CATListValCATUnicodeString& iNames, int iSelected) {
    if (_pTypeAndParameterSetSub != nullptr)
        return PassOn(_pTypeAndParameterSetSub->SetParameterSetNames(iNames, iSelected), OrvKvHere);
    if (_pParameterSetListSub != nullptr)
        return PassOn(_pParameterSetListSub->SetSelectedParameterSet(iNames, NameAt(iNames, iSelected)),
                      OrvKvHere);
    return OrvKvReport::Failure(NoTypes, OrvKvHere);
}

long OrvKvMainPanel::UnselectParameterSet(unsigned char iFlag) {
    if (_pTypeAndParameterSetSub == nullptr)
        return OrvKvReport::Failure(NoTypes, OrvKvHere);
    _pTypeAndParameterSetSub->UnselectParameterSet(iFlag);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvMainPanel::SetParameters(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                                   const CATListValCATBaseUnknown_var& iParms,
                                   const CATListValCATUnicodeString& iValues, const CATRawCollint& iA,
                                   const CATRawCollint& iB, const CATRawCollint& iC,
                                   const CATRawCollint& iD) {
    if (_Mode == ParameterSetMode)
        return OrvKvForward(_pParameterSetListSub, BadParameters, OrvKvHere,
                            [&](OrvKvParameterSetListSub& ioList) {
                                return ioList.SetCurrentParameters(iSetName, iNames, iParms, iValues);
                            });
    return OrvKvForward(_pParameterListSub, BadParameters, OrvKvHere, [&](OrvKvParameterListSub& ioList) {
        return ioList.SetParameters(iParms, iNames, iValues, iA, iB, iC, iD);
    });
}

long OrvKvMainPanel::SetParameterNames(const CATListValCATBaseUnknown_var& iParms,
                                       const CATListValCATString& iNames, const CATRawCollint& iA,
                                       const CATRawCollint& iB, const CATRawCollint& iC,
                                       const CATRawCollint& iD) {
    if (_Mode != ParameterSetMode)
        return OrvKvReport::Success(OrvKvHere);
    return OrvKvForward(_pParameterSetListSub, BadNames, OrvKvHere, [&](OrvKvParameterSetListSub& ioList) {
        return ioList.SetParameterNames(iParms, iNames, iA, iB, iC, iD);
    });
}

long OrvKvMainPanel::SetParameterSet(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                                     const CATListValCATBaseUnknown_var& iParms,
                                     const CATListValCATUnicodeString& iValues) {
    if (_Mode != ParameterSetMode)
        return OrvKvReport::Success(OrvKvHere);
    return OrvKvForward(_pParameterSetListSub, BadNames, OrvKvHere, [&](OrvKvParameterSetListSub& ioList) {
        return ioList.SetParameterSet(iSetName, iNames, iParms, iValues);
    });
}

long OrvKvMainPanel::SetFittingInfo(const CATString& iKey, const CATUnicodeString& iText) {
    if (_pParameterListSub == nullptr)
        return OrvKvReport::Success(OrvKvHere);
    return OrvKvForward(_pParameterListSub, BadFitting, OrvKvHere,
                        [&](OrvKvParameterListSub& ioList) { return ioList.SetFittingInfo(iKey, iText); });
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): commands call it as it is
long OrvKvMainPanel::SetGeometryText(int, CATUnicodeString) {
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvMainPanel::SetInputGeometryUI(int iIndex, unsigned long iFlags, CATUnicodeString iText) {
    if (_pGroupAndGeometrySub != nullptr)
        _pGroupAndGeometrySub->SetGeometryText(iIndex, std::move(iText), iFlags);
    return 0;
}

CATUnicodeString OrvKvMainPanel::GetSelectedParameterSetName() {
    if (_Mode == ParameterSetMode && _Expanded == 1)
        return _pParameterSetListSub == nullptr ? CATUnicodeString()
                                                : _pParameterSetListSub->GetSelectedParameterSetName();
    return _pTypeAndParameterSetSub == nullptr ? CATUnicodeString()
                                               : _pTypeAndParameterSetSub->GetSelectedParameterSetName();
}

void OrvKvMainPanel::DisableGroupAndType(const unsigned long& iWhat) {
    if (_pGroupAndGeometrySub != nullptr)
        _pGroupAndGeometrySub->DisableGroup(iWhat);
    if (_pTypeAndParameterSetSub != nullptr)
        _pTypeAndParameterSetSub->DisableTypes(iWhat);
}

void OrvKvMainPanel::DisableInsertionDirection() {
    if (_pGroupAndGeometrySub != nullptr)
        _pGroupAndGeometrySub->DisableDirection();
}

void OrvKvMainPanel::SetThread(unsigned char iThreadActive, unsigned char iSecond) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThread(iThreadActive, iSecond);
}

void OrvKvMainPanel::SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected,
                                    unsigned char iNotify) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThreadTypes(iTypes, iSelected, iNotify);
}

void OrvKvMainPanel::SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected,
                                   unsigned char iNotify) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThreadDims(iDims, iSelected, iNotify);
}

void OrvKvMainPanel::SetThreadValues(const CATRawColldouble& iPitches,
                                     const CATRawColldouble& iInternalDiameters,
                                     const CATRawColldouble& iDiameters) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThreadValues(iPitches, iInternalDiameters, iDiameters);
}

void OrvKvMainPanel::SetThreadDirection(const CATUnicodeString& iDirection) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThreadDirection(iDirection);
}

void OrvKvMainPanel::SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter,
                                              const CATICkeParm_var& iDiameter,
                                              const CATICkeParm_var& iLength, const CATICkeParm_var& iPitch) {
    if (_pTabContainer != nullptr)
        _pTabContainer->SetThreadPanelParameters(iInternalDiameter, iDiameter, iLength, iPitch);
}

void OrvKvMainPanel::RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                                        const CATListValCATUnicodeString& iDims, int iSelectedDim) {
    if (_pTabContainer != nullptr)
        _pTabContainer->RebuildThreadPanel(iTypes, iSelectedType, iDims, iSelectedDim);
}

void OrvKvMainPanel::TriggerStateChangeToValid() {
    SendNotification(GetFather(), new OrvKvTriggerStateChangeToValidNotification());
}

void OrvKvMainPanel::TriggerStateChangeToInvalid() {
    SendNotification(GetFather(), new OrvKvTriggerStateChangeToInvalidNotification());
}

void OrvKvMainPanel::UpdateRuleEditor(CATListValCATUnicodeString iLines) {
    if (_pRulesEditor == nullptr)
        return;
    while (_pRulesEditor->GetLineCount() > 0)
        _pRulesEditor->ClearLine(LastLine);
    for (int line = 1; line <= iLines.Size(); ++line)
        _pRulesEditor->SetLine(iLines[line], line - 1);
}

void OrvKvMainPanel::SetColorIcon(int iState) {
    if (_pRulesLightLab != nullptr)
        _pRulesLightLab->SetIconName(IconOf(iState));
}
