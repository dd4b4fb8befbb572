#ifndef CATDlgSpinner_H
#define CATDlgSpinner_H

#include "CATDlgControl.h"

// Values are typed; values are floating-point numbers.
const CATDlgStyle CATDlgSpnEntry = 0x40000;
const CATDlgStyle CATDlgSpnDouble = 0x20000;

// A number that is stepped with arrows. Range 0 to 10 in ten steps at start.
class CATDlgSpinner : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgSpinner(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // A range or step that is not finite, crossed ends and a step that is not positive change nothing.
    // The value is moved into the new range; with iApply it is moved to a whole number of steps as well.
    void SetMinMaxStep(float iMinimum, float iMaximum, int iStepCount);
    void SetMinMaxStep(double iMinimum, double iMaximum, double iStep, int iApply);
    // Digits behind the point for the two display forms; -1 for as many as needed.
    void SetPrecision(int iFixed, int iScientific);

    double GetValue() const { return _value; }
    // A value outside the range, or one that is no number, is refused and the value kept.
    void SetValue(double iValue, int iNotify = CATDlgNoNotification);

    // Sent when the value changes, by arrow or typing.
    CATNotification* GetSpinnerModifyNotification();

  private:
    friend class host::Inspector;

    double _minimum = 0.0;
    double _maximum = 10.0;
    double _step = 1.0;
    double _value = 0.0;
    int _precision = -1;
};

#endif
