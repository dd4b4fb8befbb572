#ifndef CATICkeParamFrame_H
#define CATICkeParamFrame_H

#include "CATIParmPublisher.h"
#include "CATMacForInterfaces.h"
#include "CATUnicodeString.h"

class CATDialog;
class CATDlgFrame;

// Options of an edition frame; they may be combined.
const int CATCkeNoLabel = 1;     // the name of the parameter is not shown
const int CATCkeWithSpinner = 2; // arrows step the value
const int CATCkeNoRename = 4;    // the user cannot give the parameter another name
const int CATCkeNoFormula = 8;   // the user cannot give the parameter a formula

// Makes edition frames for a parameter. The same object as its CATICkeParm.
class CATICkeParamFrame : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // A frame in iParent, which owns it, that shows the value with its unit, follows the parameter and gives
    // it what the user enters, with its change event. It keeps the parameter alive. iOptions are CATCke...
    // options; the publisher may be null; the frame is called iName, or like the parameter when iName is
    // empty. Null where memory is short and without a parent.
    virtual CATDlgFrame* BuildFrame(const CATIParmPublisher_var& iPublisher, CATDialog* iParent, int iOptions,
                                    const CATUnicodeString& iName) = 0;
};

CATDeclareHandler(CATICkeParamFrame, CATBaseUnknown);

#endif
