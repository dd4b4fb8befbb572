#ifndef OrvKvParameterListSub_H
#define OrvKvParameterListSub_H

#include "CATDlgFrame.h"
#include "CATEventSubscriber.h"
#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawCollint.h"
#include "OrvIKvFeatureParameters.h"

class CATDlgMultiList;
class OrvKvNameIndex;

// Lists the parameters of the feature that is edited: modified marker, name, value, tolerance or fit, and
// description. The rows follow the parameters. A changed value is reported with
// OrvKvModifiedParameterInMultiListNotification, a double click with
// OrvKvParameterListDoubleClickedNotification.
//
// The parent owns it. A copy shares the list of the original and must not outlive it; it hears no parameter.
class OrvKvParameterListSub : public CATDlgFrame {
  public:
    // iNoToleranceColumn other than 0: no column for the description.
    OrvKvParameterListSub(CATDialog* iParent, unsigned char iNoToleranceColumn);
    OrvKvParameterListSub(const OrvKvParameterListSub& iOther);
    OrvKvParameterListSub& operator=(const OrvKvParameterListSub& iOther);
    ~OrvKvParameterListSub() override;

    // Makes the list. Called once; a second call makes nothing.
    void Build();

    // Lists the parameters anew. Entry i of every list describes parameter i; a parameter has a row when its
    // value or its tolerance is shown (flag 1 or more). An empty tolerance text shows the deviations of the
    // parameter itself. Fails, and changes nothing, when the lists differ in length or before Build; an error
    // that a parameter raises becomes the failing result, and the rows written before it stay.
    HRESULT SetParameters(const CATListValCATBaseUnknown_var& iParameters, const CATListValCATString& iNames,
                          const CATListValCATUnicodeString& iTolerances, const CATRawCollint& iValueShown,
                          const CATRawCollint& iValueEditable, const CATRawCollint& iToleranceShown,
                          const CATRawCollint& iToleranceEditable);
    // Shows a fit in the tolerance column of the first row of that parameter. A name without row changes
    // nothing and succeeds.
    HRESULT SetFittingInfo(const CATString& iName, const CATUnicodeString& iFitting);
    // The feature whose temporary modifications decide the marker; may be null. The rows stay as they are
    // until the next SetParameters, but follow their parameters no longer.
    HRESULT SetFeatureParameters(const OrvIKvFeatureParameters_var& iFeature);
    // Other than 0: changed values are shown but not reported.
    void StopParameterValueChangedNotification(unsigned char iStop);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnParameterListActivateNotification(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    // The client data is the number of the row, from 1. What a parameter raises meanwhile is traced, and the
    // rest is left out.
    void OnParameterValueChanged(const char* iEvent, void* iPublisher, CATNotification* iNotification,
                                 void* iRow, int iId);
    void OnToleranceValue(const char* iEvent, void* iPublisher, CATNotification* iNotification, void* iRow,
                          int iId);

    // Rows and positions count from 1: a row is a line of the list, a position an entry of the parameters.
    bool HasRow(int iPosition) const;
    bool HasCells() const;
    // The first position of the name that stands in the row; OrvKvNameIndex::Absent when there is none.
    int PositionOfRow(int iRow) const;
    // What stands before a parameter: the marker when it has a temporary modification.
    CATUnicodeString MarkerOf(const CATString& iName) const;
    void SetItem(int iRow, int iColumn, const CATUnicodeString& iText);

    void IndexNames();
    void Refill(const CATListValCATUnicodeString& iTolerances);
    void AppendRow(int iRow, int iPosition, const CATUnicodeString& iTolerance);
    void AppendTolerance(int iRow, int iPosition, const CATUnicodeString& iTolerance);
    // Writes the deviations of the parameter at iLocated, the first of the name in the row, as the flags of
    // iPosition ask for.
    void UpdateTolerance(int iRow, int iPosition, int iLocated);

    void Follow(const CATBaseUnknown_var& iParameter, int iRow);
    void Unfollow();
    void ForgetParameters();

    CATDlgMultiList* _pParameterMul; // child of this frame; null before Build
    CATListValCATBaseUnknown_var _Parameters;
    CATUnicodeString _ModifiedMarker;
    CATListValCATString _Names; // this list and the following ones: entry i describes parameter i
    CATRawCollint _ValueShown;
    CATRawCollint _ToleranceShown;
    CATRawCollint _ValueEditable;
    CATRawCollint _ToleranceEditable;
    unsigned char _NoToleranceColumn;
    OrvIKvFeatureParameters_var _FeatureParameters;
    unsigned char _StopNotification;
    OrvKvNameIndex* _pPositions;            // name to first position in _Names; owned
    CATRawCollint _FirstPositions;          // per position the first one of the same name
    CATRawCollint _FirstRows;               // per first position the first row of the name; 0 for none
    CATListValCATBaseUnknown_var _Followed; // the publishers on which this panel has subscriptions
    int _Refills;                           // tells a refill that another one came in between
};

#endif
