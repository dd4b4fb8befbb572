#include "OrvKvParameterSetListSub.h"

#include "CATDlgMultiList.h"
#include "CATICkeParm.h"
#include "CATIParmTolerance.h"
#include "OrvKvGuard.h"
#include "OrvKvLayout.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvNameIndex.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvTrace.h"

#include <vector>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvParameterSetListSub";

static constexpr const char* NoTables = "The tables of the parameter sets are missing.";

static constexpr CATDlgStyle FrameWithoutTitle = OrvKvPlainFrame | 0x40000;
static constexpr int VisibleSets = 18;
static constexpr int VisibleCurrentSets = 2;
static constexpr int VisibleTextWidth = 20;
static constexpr int MaximumColumns = 100;
static constexpr int MaximumVisibleColumns = 10;
static constexpr int ValueTextWidth = 3;

static constexpr int ToleranceIsSet = 1;
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

// A column behind that of the set names.
struct Column {
    int parameter; // position, from 1
    bool isTolerance;
};

// What the columns show, as far as the tables hold them.
std::vector<Column> ColumnsOf(const CATRawCollint& iShowValue, const CATRawCollint& iShowTolerance) {
    std::vector<Column> columns;
    for (int parameter = 1; parameter <= iShowValue.Size(); ++parameter) {
        if (iShowValue[parameter] > 0)
            columns.push_back(Column{parameter, false});
        if (iShowTolerance[parameter] > 0)
            columns.push_back(Column{parameter, true});
    }
    if (columns.size() >= MaximumColumns)
        columns.resize(MaximumColumns - 1);
    return columns;
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

void WriteLine(CATDlgMultiList& ioTable, const CATListValCATUnicodeString& iTexts, int iLine) {
    for (int column = 0; column < iTexts.Size(); ++column)
        ioTable.SetColumnItem(column, iTexts[column + 1], iLine, OrvKvAppend);
}

// What cannot be edited stands in parentheses.
CATUnicodeString Cell(const CATUnicodeString& iText, int iEditable) {
    return iEditable < 1 ? "(" + iText + ")" : iText;
}

CATUnicodeString LimitText(double iDeviation) {
    CATUnicodeString text;
    text.BuildFromNum(iDeviation == 0.0 ? 0.0 : iDeviation, "%g"); // no "-0"
    return text;
}

// The limits that the parameter itself has, the maximum first; empty when it has none.
CATUnicodeString LimitsOf(const CATBaseUnknown_var& iParameter) {
    const CATIParmTolerance_var tolerance(iParameter);
    if (tolerance->GetTypeOfTolerance() != ToleranceIsSet)
        return CATUnicodeString();
    return LimitText(tolerance->GetMaxTolerance()) + "/" + LimitText(tolerance->GetMinTolerance());
}

CATUnicodeString ValueCell(const CATListValCATBaseUnknown_var& iParameters, int iPosition, int iEditable) {
    if (iPosition > iParameters.Size())
        return CATUnicodeString();
    const CATICkeParm_var parameter(iParameters[iPosition]);
    return Cell(parameter->Show(), iEditable);
}

CATUnicodeString ToleranceCell(const CATListValCATBaseUnknown_var& iParameters,
                               const CATListValCATUnicodeString& iTolerances, int iPosition, int iEditable) {
    if (iPosition > iTolerances.Size())
        return CATUnicodeString();
    if (iTolerances[iPosition].GetLengthInByte() > 0)
        return Cell(iTolerances[iPosition], iEditable);
    if (iPosition > iParameters.Size())
        return CATUnicodeString();
    return Cell(LimitsOf(iParameters[iPosition]), iEditable);
}

// The list that sent a notification; null for any other sender.
const CATDlgMultiList* AsList(const CATCommand* iFrom) {
    const bool isList = iFrom != nullptr && iFrom->IsAKindOf(CATDlgMultiList::ClassName()) != 0;
    return isList ? static_cast<const CATDlgMultiList*>(iFrom) : nullptr;
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
    _pPositions->Clear();
    _pPositions->Reserve(count);
    for (int parameter = 1; parameter <= count; ++parameter)
        _pPositions->Add(_ParameterNames[parameter].ConvertToChar(), parameter);
    _pSetLines->Clear();

    const CATUnicodeString mark = ToleranceMark(*this);
    std::vector<CATUnicodeString> titles(1, TextOr(*this, "ParamSetName", "Parameter Set Name"));
    for (const Column& column : ColumnsOf(_ShowValue, _ShowTolerance)) {
        const CATUnicodeString name(_ParameterNames[column.parameter]);
        titles.push_back(column.isTolerance ? name + mark : name);
    }
    ShowColumns(*_pParameterSetMul, titles);
    ShowColumns(*_pCurrentParameterMul, titles);
    return OrvKvReport::Success(OrvKvHere);
}

long OrvKvParameterSetListSub::SetParameterSet(const CATUnicodeString& iSetName, const CATListValCATString&,
                                               const CATListValCATBaseUnknown_var& iParameters,
                                               const CATListValCATUnicodeString& iTolerances) {
    if (!HasTables())
        return OrvKvReport::Failure(NoTables, OrvKvHere);
    return OrvKvGuard::Run("OrvKvParameterSetListSub::SetParameterSet", OrvKvHere, [&]() -> long {
        const CATListValCATUnicodeString texts = LineOf(iSetName, iParameters, iTolerances);
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
        const CATListValCATUnicodeString texts = LineOf(iSetName, iParameters, iTolerances);
        _pCurrentParameterMul->ClearLine(OrvKvAllLines);
        _pCurrentParameterMul->SetVisibleTextHeight(VisibleCurrentSets);
        WriteLine(*_pCurrentParameterMul, texts, 1);
        int line = _pSetLines->Find(iSetName.ConvertToChar());
        if (line != OrvKvNameIndex::Absent)
            _pParameterSetMul->SetSelect(&line, 1, OrvKvSilently);
        return OrvKvReport::Success(OrvKvHere);
    });
}

long OrvKvParameterSetListSub::SetSelectedParameterSet(CATListValCATUnicodeString, CATUnicodeString) {
    return OrvKvReport::Success(OrvKvHere);
}

CATUnicodeString OrvKvParameterSetListSub::GetSelectedParameterSetName() {
    if (_pParameterSetMul == nullptr || _pParameterSetMul->GetSelectCount() != 1)
        return CATUnicodeString();
    return SelectedName(*_pParameterSetMul);
}

void OrvKvParameterSetListSub::OnParameterSetSelection(CATCommand* iFrom, CATNotification*, void*) {
    const CATDlgMultiList* const list = AsList(iFrom);
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
    const CATDlgMultiList* const list = AsList(iFrom);
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

CATListValCATUnicodeString
OrvKvParameterSetListSub::LineOf(const CATUnicodeString& iSetName,
                                 const CATListValCATBaseUnknown_var& iParameters,
                                 const CATListValCATUnicodeString& iTolerances) const {
    CATListValCATUnicodeString texts;
    texts.Append(iSetName);
    for (const Column& column : ColumnsOf(_ShowValue, _ShowTolerance)) {
        const int parameter = column.parameter;
        texts.Append(column.isTolerance
                         ? ToleranceCell(iParameters, iTolerances, parameter, _ToleranceEditable[parameter])
                         : ValueCell(iParameters, parameter, _ValueEditable[parameter]));
    }
    return texts;
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
