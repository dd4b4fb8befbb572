#include "OrvKvParameterSetListSub.h"

#include "CATDlgMultiList.h"
#include "OrvKvAsMultiList.h"
#include "OrvKvGuard.h"
#include "OrvKvLayout.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvNameIndex.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvSetCells.h"
#include "OrvKvTrace.h"

#include <vector>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvParameterSetListSub";

static constexpr const char* NoTables = "The tables of the parameter sets are missing.";

static constexpr CATDlgStyle FrameWithoutTitle = OrvKvPlainFrame | 0x40000;
static constexpr int VisibleSets = 18;
static constexpr int VisibleCurrentSets = 2;
static constexpr int VisibleTextWidth = 20;
static constexpr int MaximumVisibleColumns = 10;
static constexpr int ValueTextWidth = 3;

// Values of the notifications about a double click.
static constexpr int NoRow = -1;
static constexpr unsigned char EditsTolerance = 1;

OrvKvImplementResourceName(OrvKvParameterSetListSub, CATDlgFrame);

namespace {

// A table that fills its frame; null where one of them could not be made.
CATDlgMultiList* NewTable(CATDlgFrame* iFrame, const char* iName, int iVisibleLines) {
    CATDlgMultiList* const table = iFrame == nullptr ? nullptr : new CATDlgMultiList(iFrame, iName);
    if (table == nullptr)
        return nullptr;
    table->SetVisibleTextHeight(iVisibleLines);
    table->SetVisibleTextWidth(VisibleTextWidth);
    OrvKvLayout(iFrame).Rows(table, OrvKvFrom(0).StretchTo(1)).Columns(table, OrvKvFrom(0).StretchTo(1));
    return table;
}

CATDlgMultiList* NewSetTable(CATDlgFrame* iFrame) {
    return NewTable(iFrame, "ParameterSetMul", VisibleSets);
}

CATDlgMultiList* NewCurrentTable(CATDlgFrame* iFrame) {
    return NewTable(iFrame, "CurrentParameterMul", VisibleCurrentSets);
}

// Takes a table out of its frame for good.
void Discard(CATDlgFrame* iFrame, CATDlgMultiList* iTable) {
    if (iTable == nullptr)
        return;
    CATDialog* const endOfList = nullptr;
    iFrame->ResetAttachment(iTable, endOfList);
    iTable->RequestDelayedDestruction();
}

// The panel's own text of that key.
CATUnicodeString TextOr(const CATDialog& iPanel, const char* iKey, const char* iDefault) {
    CATUnicodeString text(iDefault);
    iPanel.GetResourceValueFromKey(iKey, text);
    return text;
}

CATUnicodeString ToleranceMark(const CATDialog& iPanel) {
    return TextOr(iPanel, "ToleranceString", "_Tol");
}

// An empty mark marks nothing.
bool IsMarked(const CATUnicodeString& iTitle, const CATUnicodeString& iMark) {
    return iMark.GetLengthInByte() > 0 && iTitle.SearchSubString(iMark) >= 0;
}

// Gives a table its columns, and no lines.
void ShowColumns(CATDlgMultiList& ioTable, const std::vector<CATUnicodeString>& iTitles) {
    const int count = static_cast<int>(iTitles.size());
    ioTable.SetVisibleColumnCount(count < MaximumVisibleColumns ? count : MaximumVisibleColumns);
    ioTable.SetColumnTitles(count, iTitles.data());
    ioTable.ClearLine(OrvKvAllLines);
    for (int column = 1; column < count; ++column)
        ioTable.SetColumnTextWidth(column, ValueTextWidth);
}

void WriteLine(CATDlgMultiList& ioTable, const std::vector<CATUnicodeString>& iTexts, int iLine) {
    for (int column = 0; column < static_cast<int>(iTexts.size()); ++column)
        ioTable.SetColumnItem(column, iTexts[static_cast<std::size_t>(column)], iLine, OrvKvAppend);
}

// The name in the first selected line; empty when there is none.
CATUnicodeString SelectedName(const CATDlgMultiList& iList) {
    int line = 0;
    iList.GetSelect(&line, 1);
    CATUnicodeString name;
    iList.GetColumnItem(0, name, line);
    return name;
}

} // namespace

OrvKvParameterSetListSub::OrvKvParameterSetListSub(CATDialog* iParent)
    : CATDlgFrame(iParent, "OrvKvParameterListSub", FrameWithoutTitle), _pParameterSetFrame(nullptr),
      _pParameterSetMul(nullptr), _pCurrentParameterFrame(nullptr), _pCurrentParameterMul(nullptr),
      _FirstRefresh(1), _pSetLines(new OrvKvNameIndex), _pPositions(new OrvKvNameIndex) {}

OrvKvParameterSetListSub::OrvKvParameterSetListSub(const OrvKvParameterSetListSub& iOther)
    : CATDlgFrame(iOther), _pParameterSetFrame(iOther._pParameterSetFrame),
      _pParameterSetMul(iOther._pParameterSetMul), _pCurrentParameterFrame(iOther._pCurrentParameterFrame),
      _pCurrentParameterMul(iOther._pCurrentParameterMul), _Parameters(iOther._Parameters),
      _ParameterNames(iOther._ParameterNames), _ShowValue(iOther._ShowValue),
      _ValueEditable(iOther._ValueEditable), _ShowTolerance(iOther._ShowTolerance),
      _ToleranceEditable(iOther._ToleranceEditable), _FirstRefresh(iOther._FirstRefresh),
      _pSetLines(new OrvKvNameIndex(*iOther._pSetLines)),
      _pPositions(new OrvKvNameIndex(*iOther._pPositions)) {}

OrvKvParameterSetListSub& OrvKvParameterSetListSub::operator=(const OrvKvParameterSetListSub& iOther) {
    CATDlgFrame::operator=(iOther);
    _pParameterSetFrame = iOther._pParameterSetFrame;
    _pParameterSetMul = iOther._pParameterSetMul;
    _pCurrentParameterFrame = iOther._pCurrentParameterFrame;
    _pCurrentParameterMul = iOther._pCurrentParameterMul;
    _Parameters = iOther._Parameters;
    _ParameterNames = iOther._ParameterNames;
    _ShowValue = iOther._ShowValue;
    _ValueEditable = iOther._ValueEditable;
    _ShowTolerance = iOther._ShowTolerance;
    _ToleranceEditable = iOther._ToleranceEditable;
    _FirstRefresh = iOther._FirstRefresh;
    *_pSetLines = *iOther._pSetLines;
    *_pPositions = *iOther._pPositions;
    return *this;
}

OrvKvParameterSetListSub::~OrvKvParameterSetListSub() {
    LeaveSetTable();
    LeaveCurrentTable();
    _pParameterSetFrame = nullptr;
    _pParameterSetMul = nullptr;
    _pCurrentParameterFrame = nullptr;
    _pCurrentParameterMul = nullptr;
    _Parameters.RemoveAll();
    _ParameterNames.RemoveAll();
    _ShowValue.RemoveAll();
    _ValueEditable.RemoveAll();
    _ShowTolerance.RemoveAll();
    _ToleranceEditable.RemoveAll();
    delete _pSetLines;
    delete _pPositions;
}

void OrvKvParameterSetListSub::Build() {
    if (_pParameterSetFrame != nullptr || _pCurrentParameterFrame != nullptr)
        return;
    _pParameterSetFrame = new CATDlgFrame(this, "ParameterSetFrame");
    UseSetTable(NewSetTable(_pParameterSetFrame));
    _pCurrentParameterFrame = new CATDlgFrame(this, "CurrentParameterFrame");
    UseCurrentTable(NewCurrentTable(_pCurrentParameterFrame));
    OrvKvLayout(this)
        .Rows(_pParameterSetFrame, OrvKvFrom(0).StretchTo(2))
        .Rows(_pCurrentParameterFrame, OrvKvFrom(3).To(4))
        .Columns(_pParameterSetFrame, OrvKvFrom(0).StretchTo(1))
        .Columns(_pCurrentParameterFrame, OrvKvFrom(0).StretchTo(1));
}

long OrvKvParameterSetListSub::SetParameterNames(const CATListValCATBaseUnknown_var&,
                                                 const CATListValCATString& iNames,
                                                 const CATRawCollint& iShowValue,
                                                 const CATRawCollint& iValueEditable,
                                                 const CATRawCollint& iShowTolerance,
                                                 const CATRawCollint& iToleranceEditable) {
    if (!HasTables())
        return OrvKvReport::Failure(NoTables, OrvKvHere);
    const int count = iNames.Size();
    if (iShowValue.Size() != count || iValueEditable.Size() != count || iShowTolerance.Size() != count ||
        iToleranceEditable.Size() != count)
        return OrvKvReport::Failure("The names and flags of the parameters differ in number.", OrvKvHere);
    const long refreshed = RefreshMultiLists();
    if (FAILED(refreshed))
        return OrvKvReport::FailureAfter(refreshed, "Failed to update the multilists", OrvKvHere);

    _ParameterNames = iNames;
    _ShowValue = iShowValue;
    _ValueEditable = iValueEditable;
    _ShowTolerance = iShowTolerance;
    _ToleranceEditable = iToleranceEditable;
    IndexNames();
    _pSetLines->Clear();
    ShowTitles();
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvParameterSetListSub::SetParameterSet(const CATUnicodeString& iSetName, const CATListValCATString&,
                                               const CATListValCATBaseUnknown_var& iParameters,
                                               const CATListValCATUnicodeString& iTolerances) {
    if (!HasTables())
        return OrvKvReport::Failure(NoTables, OrvKvHere);
    return OrvKvGuard::Run("OrvKvParameterSetListSub::SetParameterSet", OrvKvHere, [&]() -> long {
        const std::vector<CATUnicodeString> texts = Cells().Line(iSetName, iParameters, iTolerances);
        const int line = _pParameterSetMul->GetLineCount();
        WriteLine(*_pParameterSetMul, texts, line + 1);
        _pSetLines->Add(iSetName.ConvertToChar(), line);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvParameterSetListSub::SetCurrentParameters(const CATUnicodeString& iSetName,
                                                    const CATListValCATString&,
                                                    const CATListValCATBaseUnknown_var& iParameters,
                                                    const CATListValCATUnicodeString& iTolerances) {
    if (!HasTables())
        return OrvKvReport::Failure(NoTables, OrvKvHere);
    return OrvKvGuard::Run("OrvKvParameterSetListSub::SetCurrentParameters", OrvKvHere, [&]() -> long {
        const std::vector<CATUnicodeString> texts = Cells().Line(iSetName, iParameters, iTolerances);
        _pCurrentParameterMul->ClearLine(OrvKvAllLines);
        _pCurrentParameterMul->SetVisibleTextHeight(VisibleCurrentSets);
        WriteLine(*_pCurrentParameterMul, texts, 1);
        int line = _pSetLines->Find(iSetName.ConvertToChar());
        if (line != OrvKvNameIndex::Absent)
            _pParameterSetMul->SetSelect(&line, 1, OrvKvSilently);
        return OrvKvReport::Success(OrvKvHere);
    });
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): commands call it as it is
long OrvKvParameterSetListSub::SetSelectedParameterSet(CATListValCATUnicodeString, CATUnicodeString) {
    return OrvKvReport::Success(OrvKvHere);
}

CATUnicodeString OrvKvParameterSetListSub::GetSelectedParameterSetName() {
    if (_pParameterSetMul == nullptr || _pParameterSetMul->GetSelectCount() != 1)
        return CATUnicodeString();
    return SelectedName(*_pParameterSetMul);
}

void OrvKvParameterSetListSub::OnParameterSetSelection(CATCommand* iFrom, CATNotification*, void*) {
    const CATDlgMultiList* const list = OrvKvAsMultiList(iFrom);
    if (list == nullptr) {
        OrvKvTrace::Print(OrvKvTraceSubFrames, OrvKvTraceEvent,
                          "OrvKvParameterSetListSub::OnParameterSetSelection bad event source");
        return;
    }
    SendNotification(GetFather(), new OrvKvParameterSetSelectedNotification(SelectedName(*list)));
    SendNotification(GetFather(), new OrvKvModifiedParameterInMultiListNotification(""));
}

void OrvKvParameterSetListSub::OnCurrentParameterEdit(CATCommand* iFrom, CATNotification*, void*) {
    OrvKvTrace::Print(OrvKvTraceSubFrames, OrvKvTraceEvent,
                      "OrvKvParameterSetListSub::OnCurrentParameterEdit");
    const CATDlgMultiList* const list = OrvKvAsMultiList(iFrom);
    const int column = list == nullptr ? 0 : list->GetActivatedColumn();
    if (column < 1)
        return;
    CATUnicodeString title;
    list->GetColumnTitle(column, title);
    const CATUnicodeString mark = ToleranceMark(*this);
    const bool isTolerance = IsMarked(title, mark);
    // The mark counts wherever it stands in the title, and yet it is taken off the end.
    const CATUnicodeString name =
        isTolerance ? title.SubString(0, title.GetLengthInChar() - mark.GetLengthInChar()) : title;
    const int parameter = _pPositions->Find(name.ConvertToChar());
    if (parameter == OrvKvNameIndex::Absent)
        return;
    if ((isTolerance ? _ToleranceEditable : _ValueEditable)[parameter] < 1)
        return;
    const unsigned char editsValue = isTolerance ? 0 : 1;
    SendNotification(GetFather(), new OrvKvParameterListDoubleClickedNotification(
                                      _ParameterNames[parameter], NoRow, editsValue, EditsTolerance));
}

long OrvKvParameterSetListSub::RefreshMultiLists() {
    if (_FirstRefresh == 1) {
        _FirstRefresh = 0;
        return OrvKvReport::Success(OrvKvHere);
    }
    // Both new tables are there before an old one goes, so that a failure changes nothing.
    CATDlgMultiList* const currentTable = NewCurrentTable(_pCurrentParameterFrame);
    CATDlgMultiList* const setTable = NewSetTable(_pParameterSetFrame);
    if (currentTable == nullptr || setTable == nullptr) {
        Discard(_pCurrentParameterFrame, currentTable);
        Discard(_pParameterSetFrame, setTable);
        return OrvKvReport::SilentFailure();
    }
    LeaveCurrentTable();
    Discard(_pCurrentParameterFrame, _pCurrentParameterMul);
    UseCurrentTable(currentTable);
    LeaveSetTable();
    Discard(_pParameterSetFrame, _pParameterSetMul);
    UseSetTable(setTable);
    return OrvKvReport::Success(OrvKvHere);
}

bool OrvKvParameterSetListSub::HasTables() const {
    return _pParameterSetMul != nullptr && _pCurrentParameterMul != nullptr;
}

OrvKvSetCells OrvKvParameterSetListSub::Cells() const {
    return OrvKvSetCells(_ShowValue, _ValueEditable, _ShowTolerance, _ToleranceEditable);
}

void OrvKvParameterSetListSub::IndexNames() {
    _pPositions->Clear();
    _pPositions->Reserve(_ParameterNames.Size());
    for (int parameter = 1; parameter <= _ParameterNames.Size(); ++parameter)
        _pPositions->Add(_ParameterNames[parameter].ConvertToChar(), parameter);
}

void OrvKvParameterSetListSub::ShowTitles() {
    const std::vector<CATUnicodeString> titles = Cells().Titles(
        TextOr(*this, "ParamSetName", "Parameter Set Name"), _ParameterNames, ToleranceMark(*this));
    ShowColumns(*_pParameterSetMul, titles);
    ShowColumns(*_pCurrentParameterMul, titles);
}

void OrvKvParameterSetListSub::UseSetTable(CATDlgMultiList* iTable) {
    _pParameterSetMul = iTable;
    if (iTable == nullptr)
        return;
    const auto onSelection =
        static_cast<CATCommandMethod>(&OrvKvParameterSetListSub::OnParameterSetSelection);
    AddAnalyseNotificationCB(iTable, iTable->GetListSelectNotification(), onSelection, nullptr);
    AddAnalyseNotificationCB(iTable, iTable->GetListActivateNotification(), onSelection, nullptr);
}

void OrvKvParameterSetListSub::UseCurrentTable(CATDlgMultiList* iTable) {
    _pCurrentParameterMul = iTable;
    if (iTable == nullptr)
        return;
    AddAnalyseNotificationCB(iTable, iTable->GetListColumnActivateNotification(),
                             static_cast<CATCommandMethod>(&OrvKvParameterSetListSub::OnCurrentParameterEdit),
                             nullptr);
}

void OrvKvParameterSetListSub::LeaveSetTable() {
    if (_pParameterSetMul == nullptr)
        return;
    RemoveAnalyseNotificationCB(_pParameterSetMul, _pParameterSetMul->GetListSelectNotification(), nullptr);
    RemoveAnalyseNotificationCB(_pParameterSetMul, _pParameterSetMul->GetListActivateNotification(), nullptr);
}

void OrvKvParameterSetListSub::LeaveCurrentTable() {
    if (_pCurrentParameterMul == nullptr)
        return;
    RemoveAnalyseNotificationCB(_pCurrentParameterMul,
                                _pCurrentParameterMul->GetListColumnActivateNotification(), nullptr);
}
