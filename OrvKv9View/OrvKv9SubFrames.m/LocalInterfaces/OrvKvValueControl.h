#ifndef OrvKvValueControl_H
#define OrvKvValueControl_H

#include "CATICkeParamFrame.h"

class CATDialog;
class CATDlgFrame;

// The one control of a frame, which shows a value: a spinner, or the editor of a parameter. A frame or
// control that could not be made (null) is left out.

// Lets the control fill its frame.
void OrvKvFill(CATDlgFrame* iFrame, CATDialog* iControl);

// A spinner for 0 to 9999 in steps of 1 that fills the frame. Null where memory is short.
CATDialog* OrvKvNewSpinner(CATDlgFrame* iFrame, const char* iName);

// Takes the control off its frame and forgets it; it may be the one whose event is being answered.
void OrvKvDiscard(CATDialog*& ioControl);

// Puts the editor of a parameter in place of the control. Where memory is short the control stays; a null
// handle raises the platform's null-handle error before anything changes.
void OrvKvReplaceByEditor(CATDlgFrame* iFrame, CATDialog*& ioControl,
                          const CATICkeParamFrame_var& iParameter);

#endif
