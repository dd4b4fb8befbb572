#ifndef CATDlgFrame_H
#define CATDlgFrame_H

#include "CATDlgBox.h"

// Without title; without border and title.
const CATDlgStyle CATDlgFraNoTitle = 0x40000;
const CATDlgStyle CATDlgFraNoFrame = 0x80000;

// A group of widgets, with border and title unless the style says otherwise. It sends nothing.
class CATDlgFrame : public CATDlgBox {
    CATDeclareClass;

  public:
    CATDlgFrame(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
};

#endif
