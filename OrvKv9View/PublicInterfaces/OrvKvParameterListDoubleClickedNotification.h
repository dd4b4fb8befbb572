#ifndef OrvKvParameterListDoubleClickedNotification_H
#define OrvKvParameterListDoubleClickedNotification_H

#include "CATNotification.h"
#include "CATString.h"

// The user has double-clicked a parameter in order to edit it.
//
// Sent by OrvKvParameterListSub for a row, and by OrvKvParameterSetListSub for a cell of its list of current
// parameters; there the column decides what is edited. A copy carries the same values.
class OrvKvParameterListDoubleClickedNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iRowIndex is the parameter's position in the list, from 1, or -1 where rows mean nothing. A flag is 0
    // or 1.
    OrvKvParameterListDoubleClickedNotification(const CATString& iParameterName, const int& iRowIndex,
                                                const unsigned char& iEditParameter,
                                                const unsigned char& iEditToleranceOrFitting);
    OrvKvParameterListDoubleClickedNotification(const OrvKvParameterListDoubleClickedNotification& iOther);
    OrvKvParameterListDoubleClickedNotification&
    operator=(const OrvKvParameterListDoubleClickedNotification& iOther);
    ~OrvKvParameterListDoubleClickedNotification() override;

    // Writes the name and the row. Fails, and writes nothing, when either pointer is null.
    HRESULT GetParameterName(CATString* oParameterName, int* oRowIndex);
    // Whether the value, and whether the tolerance or fit is to be edited: 0 or 1. Both always succeed.
    HRESULT GetEditParameterFlag(unsigned char& oEditParameter);
    HRESULT GetEditToleranceOrFittingFlag(unsigned char& oEditToleranceOrFitting);

  private:
    CATString _parameterName;
    int _rowIndex; // from 1, or -1
    unsigned char _editParameter;
    unsigned char _editToleranceOrFitting;
};

#endif
