// Which parameter a widget edits.

#include "host/ParameterEditor.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgFrame.h"
#include "CATICkeParamFrame.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"
#include "support/ApplicationTest.h"

using host::ParameterEditor;
using host::Parameters;

namespace {

class ParameterEditorTest : public support::ApplicationTest {
  protected:
    CATDlgFrame& Build(const CATICkeParm_var& iParameter) {
        return *CATICkeParamFrame_var(iParameter)->BuildFrame(NULL_var, dialog, CATCkeWithSpinner, "Edt");
    }

    CATDlgDialog* const dialog = new CATDlgDialog(MainWindow(), "Dlg");
};

TEST_F(ParameterEditorTest, IsTheOneOfTheParameterThatBuiltIt) {
    for (const CATICkeParm_var& parameter :
         {Parameters::NewLength("DEPTH", 12.5), Parameters::NewAngle("TIP", 118.0),
          Parameters::NewBoolean("FLAG", true), Parameters::NewString("THREAD", "M10")})
        EXPECT_TRUE(ParameterEditor::ParameterOf(Build(parameter)) == parameter)
            << parameter->Name().ConvertToChar();
}

TEST_F(ParameterEditorTest, TellsParametersOfEqualNameAndValueApart) {
    const CATICkeParm_var first = Parameters::NewLength("Max", 0.1);
    const CATICkeParm_var second = Parameters::NewLength("Max", 0.1);
    const CATDlgFrame& editor = Build(first);
    const CATDlgFrame& another = Build(first);
    const CATDlgFrame& other = Build(second);
    EXPECT_TRUE(ParameterEditor::ParameterOf(editor) == ParameterEditor::ParameterOf(another));
    EXPECT_TRUE(ParameterEditor::ParameterOf(editor) != ParameterEditor::ParameterOf(other));
}

TEST_F(ParameterEditorTest, GivesALiveParameterWhenNobodyElseHasItAnyMore) {
    const CATDlgFrame& editor = Build(Parameters::NewLength("Max", 0.1));
    const int before = host::LiveObjects::Count("Parameter");
    EXPECT_STREQ(ParameterEditor::ParameterOf(editor)->Show().ConvertToChar(), "0.1mm");
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), before);
    CATICkeParm_var kept = ParameterEditor::ParameterOf(editor);
    delete &editor;
    EXPECT_STREQ(kept->Name().ConvertToChar(), "Max") << "the handle is a reference of its own";
    kept = CATICkeParm_var();
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), before - 1);
}

TEST_F(ParameterEditorTest, HasNoParameterForAnyOtherWidget) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 12.5);
    Build(depth);
    CATDlgFrame frame(dialog, "DEPTH");
    CATDlgCombo combo(&frame, "Cmb");
    const CATDialog* const others[] = {dialog, MainWindow(), &frame, &combo};
    for (const CATDialog* other : others)
        EXPECT_TRUE(!ParameterEditor::ParameterOf(*other)) << other->GetName().ConvertToChar();
}

} // namespace
