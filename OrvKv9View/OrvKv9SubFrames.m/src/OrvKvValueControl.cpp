#include "OrvKvValueControl.h"

#include "CATDlgFrame.h"
#include "CATDlgSpinner.h"
#include "OrvKvLayout.h"

// Values are typed, and have digits behind the point.
static constexpr CATDlgStyle TypedNumber = 0x60000;

static constexpr double Minimum = 0.0;
static constexpr double Maximum = 9999.0;
static constexpr double Step = 1.0;
static constexpr int ApplyStep = 1;

static constexpr int EditorOptions = CATCkeNoRename | CATCkeNoFormula | CATCkeNoLabel | CATCkeWithSpinner;

void OrvKvFill(CATDlgFrame* iFrame, CATDialog* iControl) {
    OrvKvLayout(iFrame)
        .Columns(iControl, OrvKvFrom(0).StretchTo(1))
        .Rows(iControl, OrvKvFrom(0).StretchTo(1));
}

CATDialog* OrvKvNewSpinner(CATDlgFrame* iFrame, const char* iName) {
    auto* const spinner = iFrame == nullptr ? nullptr : new CATDlgSpinner(iFrame, iName, TypedNumber);
    if (spinner == nullptr)
        return nullptr;
    spinner->SetMinMaxStep(Minimum, Maximum, Step, ApplyStep);
    spinner->SetPrecision(0, 0);
    OrvKvFill(iFrame, spinner);
    return spinner;
}

void OrvKvDiscard(CATDialog*& ioControl) {
    if (ioControl != nullptr)
        ioControl->RequestDelayedDestruction();
    ioControl = nullptr;
}

void OrvKvReplaceByEditor(CATDlgFrame* iFrame, CATDialog*& ioControl,
                          const CATICkeParamFrame_var& iParameter) {
    if (iFrame == nullptr)
        return;
    CATDlgFrame* const editor =
        iParameter->BuildFrame(CATIParmPublisher_var(), iFrame, EditorOptions, CATUnicodeString());
    if (editor == nullptr)
        return;
    OrvKvDiscard(ioControl);
    ioControl = editor;
    OrvKvFill(iFrame, editor);
}
