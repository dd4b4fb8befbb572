#include "OrvKvParameterListSub.h"

#include "CATCallbackManager.h"
#include "CATDlgMultiList.h"
#include "CATICkeParm.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "CATMsgCatalog.h"
#include "IsTempParameterModified.h"
#include "OrvKvAsMultiList.h"
#include "OrvKvCellText.h"
#include "OrvKvDescription.h"
#include "OrvKvGuard.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvNameIndex.h"
#include "OrvKvPanelValues.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"
#include "OrvKvTrace.h"

#include <cstdint>

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvParameterListSub";

static constexpr const char* Catalog = "OrvKvParameterListSub";
static constexpr int NoLine = -1;
static constexpr int NoRow = 0;

enum Column { MarkerColumn, NameColumn, ValueColumn, ToleranceColumn, DescriptionColumn, AllColumns };

// The title of each column. The keys of tolerance and description are crossed.
static constexpr struct {
    const char* key;
    const char* defaultText;
} ColumnTitles[AllColumns] = {{"ParameterMul.ColumnTitle0", "*"},
                              {"ParameterMul.ColumnTitle1", "*Short"},
                              {"ParameterMul.ColumnTitle2", "*Value"},
                              {"ParameterMul.ColumnTitle4", "*Name"},
                              {"ParameterMul.ColumnTitle3", "*Tolerance"}};

static CATUnicodeString ShownValue(const CATBaseUnknown_var& iParameter, bool iEditable) {
    const CATUnicodeString value = CATICkeParm_var(iParameter)->Show();
    return iEditable ? value : OrvKvInParentheses(value);
}

// "+0.1/-0.05"; empty when the parameter has no tolerance or both deviations are 0.
static CATUnicodeString DeviationsOf(const CATBaseUnknown_var& iParameter) {
    const CATIParmTolerance_var tolerance(iParameter);
    if (!tolerance || tolerance->GetTypeOfTolerance() != OrvKvToleranceIsSet)
        return CATUnicodeString();
    const double maximum = tolerance->GetMaxTolerance();
    const CATUnicodeString upper = OrvKvDeviationText(maximum);
    const CATUnicodeString lower = OrvKvDeviationText(tolerance->GetMinTolerance());
    if (upper == "0" && lower == "0")
        return CATUnicodeString();
    CATUnicodeString deviations(maximum > 0.0 ? "+" : "");
    deviations += upper;
    deviations += "/";
    deviations += lower;
    return deviations;
}

// Rows travel as the client data of the subscriptions, which is never followed.
static CATSubscriberData DataOf(int iRow) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<CATSubscriberData>(static_cast<std::intptr_t>(iRow));
}

static int RowOf(CATSubscriberData iData) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(iData));
}

OrvKvImplementResourceName(OrvKvParameterListSub, CATDlgFrame);

OrvKvParameterListSub::OrvKvParameterListSub(CATDialog* iParent, unsigned char iNoToleranceColumn)
    : CATDlgFrame(iParent, "OrvKvParameterListSub"), _pParameterMul(nullptr),
      _NoToleranceColumn(iNoToleranceColumn), _StopNotification(0), _pPositions(new OrvKvNameIndex),
      _Refills(0) {}

OrvKvParameterListSub::OrvKvParameterListSub(const OrvKvParameterListSub& iOther)
    : CATDlgFrame(iOther), _pParameterMul(iOther._pParameterMul), _Parameters(iOther._Parameters),
      _ModifiedMarker(iOther._ModifiedMarker), _Names(iOther._Names), _ValueShown(iOther._ValueShown),
      _ToleranceShown(iOther._ToleranceShown), _ValueEditable(iOther._ValueEditable),
      _ToleranceEditable(iOther._ToleranceEditable), _NoToleranceColumn(iOther._NoToleranceColumn),
      _FeatureParameters(iOther._FeatureParameters), _StopNotification(iOther._StopNotification),
      _pPositions(new OrvKvNameIndex(*iOther._pPositions)), _FirstPositions(iOther._FirstPositions),
      _FirstRows(iOther._FirstRows), _Refills(0) {}

OrvKvParameterListSub& OrvKvParameterListSub::operator=(const OrvKvParameterListSub& iOther) {
    if (this == &iOther)
        return *this;
    Unfollow();
    CATDlgFrame::operator=(iOther);
    _pParameterMul = iOther._pParameterMul;
    _Parameters = iOther._Parameters;
    _ModifiedMarker = iOther._ModifiedMarker;
    _Names = iOther._Names;
    _ValueShown = iOther._ValueShown;
    _ToleranceShown = iOther._ToleranceShown;
    _ValueEditable = iOther._ValueEditable;
    _ToleranceEditable = iOther._ToleranceEditable;
    _NoToleranceColumn = iOther._NoToleranceColumn;
    _FeatureParameters = iOther._FeatureParameters;
    _StopNotification = iOther._StopNotification;
    *_pPositions = *iOther._pPositions;
    _FirstPositions = iOther._FirstPositions;
    _FirstRows = iOther._FirstRows;
    return *this;
}

OrvKvParameterListSub::~OrvKvParameterListSub() {
    if (_pParameterMul != nullptr)
        RemoveAnalyseNotificationCB(_pParameterMul, _pParameterMul->GetListActivateNotification(), nullptr);
    ForgetParameters();
    _pParameterMul = nullptr;
    delete _pPositions;
}

void OrvKvParameterListSub::Build() {
    if (_pParameterMul != nullptr)
        return;
    _pParameterMul = new CATDlgMultiList(this, "ParameterMul");
    if (_pParameterMul == nullptr)
        return;
    Attach4Sides(_pParameterMul);
    const int columns = _NoToleranceColumn != 0 ? AllColumns - 1 : AllColumns;
    CATUnicodeString titles[AllColumns];
    for (int column = 0; column < columns; ++column)
        titles[column] = CATMsgCatalog::BuildMessage(Catalog, ColumnTitles[column].key, nullptr, 0,
                                                     ColumnTitles[column].defaultText);
    _pParameterMul->SetColumnTitles(columns, titles);
    _pParameterMul->SetVisibleColumnCount(columns);
    _ModifiedMarker =
        CATMsgCatalog::BuildMessage(Catalog, "ParameterMul.ModifiedParameterDisplay", nullptr, 0, "x");
    AddAnalyseNotificationCB(
        _pParameterMul, _pParameterMul->GetListActivateNotification(),
        static_cast<CATCommandMethod>(&OrvKvParameterListSub::OnParameterListActivateNotification), nullptr);
}

HRESULT OrvKvParameterListSub::SetParameters(const CATListValCATBaseUnknown_var& iParameters,
                                             const CATListValCATString& iNames,
                                             const CATListValCATUnicodeString& iTolerances,
                                             const CATRawCollint& iValueShown,
                                             const CATRawCollint& iValueEditable,
                                             const CATRawCollint& iToleranceShown,
                                             const CATRawCollint& iToleranceEditable) {
    if (_pParameterMul == nullptr)
        return OrvKvReport::Failure("Invalid data member _pParameterMul", OrvKvHere);
    const int count = iParameters.Size();
    if (iNames.Size() != count || iTolerances.Size() != count || iValueShown.Size() != count ||
        iValueEditable.Size() != count || iToleranceShown.Size() != count ||
        iToleranceEditable.Size() != count)
        return OrvKvReport::Failure("The lists of the parameters differ in length.", OrvKvHere);
    static const char operation[] = "OrvKvParameterListSub::SetParameters";
    const long result = OrvKvGuard::RunIgnoringOthers(operation, OrvKvHere, [&]() -> long {
        Unfollow();
        _Parameters = iParameters;
        _Names = iNames;
        _ValueShown = iValueShown;
        _ToleranceShown = iToleranceShown;
        _ValueEditable = iValueEditable;
        _ToleranceEditable = iToleranceEditable;
        IndexNames();
        Refill(iTolerances);
        return OrvKvReport::Success(OrvKvHere);
    });
    // After a caught error as well.
    OrvKvGuard::RunQuietly(operation, [this] { _pParameterMul->SetVisibility(CATDlgShow); });
    return result;
}

HRESULT OrvKvParameterListSub::SetFittingInfo(const CATString& iName, const CATUnicodeString& iFitting) {
    if (_pParameterMul == nullptr)
        return OrvKvReport::Failure("Invalid data member _pParameterMul", OrvKvHere);
    return OrvKvGuard::RunIgnoringOthers("OrvKvParameterListSub::SetFittingInfo", OrvKvHere, [&]() -> long {
        const int position = _pPositions->Find(iName.ConvertToChar());
        const int row = position == OrvKvNameIndex::Absent ? NoRow : _FirstRows[position];
        if (row != NoRow)
            SetItem(row, ToleranceColumn, iFitting);
        return OrvKvReport::Success(OrvKvHere);
    });
}

HRESULT OrvKvParameterListSub::SetFeatureParameters(const OrvIKvFeatureParameters_var& iFeature) {
    _FeatureParameters = iFeature;
    ForgetParameters();
    return S_OK;
}

void OrvKvParameterListSub::StopParameterValueChangedNotification(unsigned char iStop) {
    _StopNotification = iStop;
}

void OrvKvParameterListSub::OnParameterListActivateNotification(CATCommand* iFrom, CATNotification*, void*) {
    CATDlgMultiList* const list = OrvKvAsMultiList(iFrom);
    if (list == nullptr) {
        OrvKvTrace::Print(OrvKvTraceSubFrames, OrvKvTraceEvent,
                          "OrvKvParameterListSub::OnParameterListSelectNotification bad event source");
        return;
    }
    int line = NoLine;
    list->GetSelect(&line, 1);
    const int position = PositionOfRow(line + 1);
    if (position == OrvKvNameIndex::Absent)
        return;
    const unsigned char editsValue = _ValueEditable[position] >= 1 ? 1 : 0;
    const unsigned char editsTolerance = _ToleranceEditable[position] >= 1 ? 1 : 0;
    SendNotification(GetFather(), new OrvKvParameterListDoubleClickedNotification(
                                      _Names[position], position, editsValue, editsTolerance));
}

void OrvKvParameterListSub::OnParameterValueChanged(const char*, void*, CATNotification*, void* iRow, int) {
    const int row = RowOf(iRow);
    const int position = PositionOfRow(row);
    if (position == OrvKvNameIndex::Absent)
        return;
    const CATString name = _Names[position];
    const bool isShown = OrvKvGuard::RunQuietly("OrvKvParameterListSub::OnParameterValueChanged", [&] {
        const int refill = _Refills;
        const CATUnicodeString value = ShownValue(_Parameters[position], _ValueEditable[position] >= 1);
        if (_Refills != refill || !HasCells())
            return;
        SetItem(row, ValueColumn, value);
        SetItem(row, MarkerColumn, MarkerOf(name));
        UpdateTolerance(row, position, position);
    });
    if (isShown && _StopNotification == 0)
        SendNotification(GetFather(), new OrvKvModifiedParameterInMultiListNotification(name));
}

void OrvKvParameterListSub::OnToleranceValue(const char*, void*, CATNotification*, void* iRow, int) {
    const int row = RowOf(iRow);
    const int position = PositionOfRow(row);
    if (position == OrvKvNameIndex::Absent || !HasCells())
        return;
    OrvKvGuard::RunQuietly("OrvKvParameterListSub::OnToleranceValue", [&] {
        SetItem(row, MarkerColumn, _ModifiedMarker);
        UpdateTolerance(row, position, position);
    });
}

bool OrvKvParameterListSub::HasRow(int iPosition) const {
    return _ValueShown[iPosition] >= 1 || _ToleranceShown[iPosition] >= 1;
}

bool OrvKvParameterListSub::HasCells() const {
    return _pParameterMul->GetColumnCount() >= 1 && _pParameterMul->GetLineCount() >= 1;
}

int OrvKvParameterListSub::PositionOfRow(int iRow) const {
    if (iRow <= 0)
        return OrvKvNameIndex::Absent;
    CATUnicodeString name;
    _pParameterMul->GetColumnItem(NameColumn, name, iRow - 1);
    return _pPositions->Find(name.ConvertToChar());
}

CATUnicodeString OrvKvParameterListSub::MarkerOf(const CATString& iName) const {
    unsigned char isModified = 0;
    IsTempParameterModified(_FeatureParameters, iName, isModified);
    return isModified != 0 ? _ModifiedMarker : CATUnicodeString();
}

void OrvKvParameterListSub::SetItem(int iRow, int iColumn, const CATUnicodeString& iText) {
    _pParameterMul->SetColumnItem(iColumn, iText, iRow - 1, CATDlgDataModify);
}

void OrvKvParameterListSub::IndexNames() {
    _pPositions->Clear();
    _pPositions->Reserve(_Names.Size());
    _FirstPositions.RemoveAll();
    _FirstRows.RemoveAll();
    for (int position = 1; position <= _Names.Size(); ++position) {
        _FirstPositions.Append(_pPositions->Add(_Names[position].ConvertToChar(), position));
        _FirstRows.Append(NoRow);
    }
}

void OrvKvParameterListSub::Refill(const CATListValCATUnicodeString& iTolerances) {
    const int refill = ++_Refills;
    _pParameterMul->SetVisibility(CATDlgHide);
    if (_Refills != refill)
        return; // who heard that the list is hidden has filled it with other parameters already
    _pParameterMul->ClearLine(OrvKvAllLines);
    int row = 0;
    for (int position = 1; _Refills == refill && position <= _Parameters.Size(); ++position)
        if (HasRow(position))
            AppendRow(++row, position, iTolerances[position]);
    _pParameterMul->SetVisibility(CATDlgShow);
}

void OrvKvParameterListSub::AppendRow(int iRow, int iPosition, const CATUnicodeString& iTolerance) {
    const CATBaseUnknown_var parameter = _Parameters[iPosition];
    const CATString name = _Names[iPosition];
    _pParameterMul->SetColumnItem(MarkerColumn, MarkerOf(name));
    _pParameterMul->SetColumnItem(NameColumn, name);
    int& firstRow = _FirstRows[_FirstPositions[iPosition]];
    if (firstRow == NoRow)
        firstRow = iRow;
    if (_ValueShown[iPosition] >= 1) {
        const int refill = _Refills;
        const CATUnicodeString value = ShownValue(parameter, _ValueEditable[iPosition] != 0);
        if (_Refills != refill)
            return; // who was asked for the value has filled the list with other parameters
        _pParameterMul->SetColumnItem(ValueColumn, value);
    }
    if (_NoToleranceColumn == 0)
        _pParameterMul->SetColumnItem(DescriptionColumn, OrvKvDescriptionOf(name, " "));
    if (_ToleranceShown[iPosition] >= 1)
        AppendTolerance(iRow, iPosition, iTolerance);
    Follow(parameter, iRow);
}

void OrvKvParameterListSub::AppendTolerance(int iRow, int iPosition, const CATUnicodeString& iTolerance) {
    if (iTolerance == "")
        UpdateTolerance(iRow, iPosition, _FirstPositions[iPosition]);
    else if (_ToleranceEditable[iPosition] != 0)
        _pParameterMul->SetColumnItem(ToleranceColumn, iTolerance);
    else // in place of the value
        _pParameterMul->SetColumnItem(ValueColumn, OrvKvInParentheses(iTolerance));
}

void OrvKvParameterListSub::UpdateTolerance(int iRow, int iPosition, int iLocated) {
    CATUnicodeString text;
    if (_ToleranceEditable[iPosition] != 0)
        text = DeviationsOf(_Parameters[iLocated]);
    else if (_ToleranceShown[iPosition] != 0)
        text = OrvKvInParentheses(DeviationsOf(_Parameters[iLocated]));
    if (_pParameterMul->GetColumnCount() == 0 && text == "" && iRow < 2)
        return;
    SetItem(iRow, ToleranceColumn, text);
}

void OrvKvParameterListSub::Follow(const CATBaseUnknown_var& iParameter, int iRow) {
    const CATIParmEvents_var events(iParameter);
    CATBaseUnknown* const publisher = events->GetPublisher();
    _Followed.Append(publisher);
    AddCallback(this, publisher, events->GetValueChangedEvent(),
                static_cast<CATSubscriberMethod>(&OrvKvParameterListSub::OnParameterValueChanged),
                DataOf(iRow));
    AddCallback(this, publisher, events->GetToleranceChangedEvent(),
                static_cast<CATSubscriberMethod>(&OrvKvParameterListSub::OnToleranceValue), DataOf(iRow));
}

void OrvKvParameterListSub::Unfollow() {
    for (int number = 1; number <= _Followed.Size(); ++number)
        RemoveSubscriberCallbacks(this, _Followed[number]);
    _Followed.RemoveAll();
}

void OrvKvParameterListSub::ForgetParameters() {
    Unfollow();
    _Parameters.RemoveAll();
    _Names.RemoveAll();
    _ValueShown.RemoveAll();
    _ToleranceShown.RemoveAll();
    _ValueEditable.RemoveAll();
    _ToleranceEditable.RemoveAll();
    _pPositions->Clear();
    _FirstPositions.RemoveAll();
    _FirstRows.RemoveAll();
}
