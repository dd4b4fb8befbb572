#pragma once

#include "CommandTest.h"

#include <string>
#include <vector>

class CATDlgDialog;

namespace command {

// A person who edits one parameter of the feature in its own dialog.
//
//     StartWithCounterbore();
//     ASSERT_TRUE(Edit("D"));
//     ASSERT_TRUE(Check("PlusMinusRdb"));
//     EXPECT_EQ(Tolerance(), "plus/minus|0.1mm|-0.1mm");
class EditingTest : public CommandTest {
  protected:
    // A counterbore for an M6 screw: DH 6.4 H12, D 11 H13, T 6.4 without tolerance.
    void StartWithCounterbore(FeatureCommand::Mode iMode = FeatureCommand::Mode::Parameters);

    // A double click on the row of a parameter.
    [[nodiscard]] host::Outcome Edit(const std::string& iParameter);
    static bool IsOpen();
    static CATDlgDialog& Panel();

    // A radio or check button of the panel.
    static host::Outcome Check(const std::string& iButton);
    static host::Outcome Uncheck(const std::string& iButton);
    // A text for the value, named by the parameter, or for the deviation "Max" or "Min".
    static host::Outcome Type(const std::string& iField, const std::string& iText);
    static host::Outcome Spin(const std::string& iField, int iSteps);
    static std::string ShownIn(const std::string& iField);
    static host::Outcome ChooseFit(const std::string& iGroup, const std::string& iField);
    static host::Outcome Press(CATULong iButton);

    // What the tolerance area shows: "none", or mode, deviations and, for a fit, group and field, with a bar
    // between them; "(hidden)" behind the mode when its button cannot be seen.
    static std::string Tolerance();
};

} // namespace command
