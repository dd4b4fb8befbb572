#ifndef CATDlgProgress_H
#define CATDlgProgress_H

#include "CATDlgControl.h"

// A bar that fills. Range 0 to 100, step 1 at start. It sends nothing.
class CATDlgProgress : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgProgress(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // The position moves to the minimum. A maximum below the minimum counts as the minimum.
    void SetRange(int iMinimum, int iMaximum);
    void SetStep(int iStep);
    // Adds the step and stays within the range.
    void StepIt();
    int GetPos() const { return _position; }

  private:
    friend class host::Inspector;

    int _minimum = 0;
    int _maximum = 100;
    int _step = 1;
    int _position = 0;
};

#endif
