#include "OrvKvDeviationEditor.h"

#include "CATICkeParamFrame.h"
#include "CATICkeParmManipulator.h"
#include "OrvKvInterfaceOf.h"

static constexpr int EditorOptions = CATCkeNoLabel | CATCkeWithSpinner | CATCkeNoRename | CATCkeNoFormula;
static constexpr double Step = 0.05;

CATICkeParm_var OrvKvNewLiteral(const CATICkeParmFactory_var& iFactory, const CATICkeParm_var& iParm,
                                const char* iName, const char* iMissing) {
    CATICkeParm_var literal = iFactory->CreateParameter(iParm->Type(), iName);
    if (!literal)
        OrvKvErr::Throw_Description(iMissing);
    return literal;
}

CATDlgFrame* OrvKvNewLiteralEditor(CATDialog* iParent, const CATICkeParm_var& iLiteral) {
    return OrvKvInterfaceOf<CATICkeParamFrame_var>(iLiteral)->BuildFrame(
        CATIParmPublisher_var(iLiteral), iParent, EditorOptions, CATUnicodeString());
}

void OrvKvSetDeviationStep(const CATICkeParm_var& iLiteral) {
    OrvKvInterfaceOf<CATICkeParmManipulator_var>(iLiteral)->SetIncrement(Step);
}
