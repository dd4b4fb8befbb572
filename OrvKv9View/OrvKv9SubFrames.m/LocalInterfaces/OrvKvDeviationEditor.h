#ifndef OrvKvDeviationEditor_H
#define OrvKvDeviationEditor_H

#include "CATICkeParmFactory.h"

class CATDialog;
class CATDlgFrame;

// The literal in which the user edits a deviation of a parameter, and its editor.

// A volatile literal of the parameter's own magnitude. Raises an error with the text iMissing where none can
// be made; a null parameter raises the platform's null-handle error.
CATICkeParm_var OrvKvNewLiteral(const CATICkeParmFactory_var& iFactory, const CATICkeParm_var& iParm,
                                const char* iName, const char* iMissing);

// The editor of a literal, with arrows; it belongs to the parent. Null where memory is short.
CATDlgFrame* OrvKvNewLiteralEditor(CATDialog* iParent, const CATICkeParm_var& iLiteral);

// Lets one step of the arrows be 0.05, in mm or degrees.
void OrvKvSetDeviationStep(const CATICkeParm_var& iLiteral);

#endif
