// Edition frames of parameters, as far as the platform's own operations show them.

#include "CATICkeParamFrame.h"
#include "CATICkeParmManipulator.h"

#include "CATDlgFrame.h"
#include "Panels.h"
#include "ParameterFacts.h"

#include <limits>

namespace {

const int allOptions = CATCkeNoLabel | CATCkeWithSpinner | CATCkeNoRename | CATCkeNoFormula;

class ParameterFrames : public DialogTest {
  protected:
    CATDlgFrame* Build(const CATICkeParm_var& iParameter, int iOptions = allOptions, const char* iName = "") {
        return CATICkeParamFrame_var(iParameter)->BuildFrame(CATIParmPublisher_var(), panel, iOptions, iName);
    }

    const CATICkeParmFactory_var factory = CATCkeGlobalFunctions::GetVolatileFactory();
    CATICkeParm_var length = factory->CreateLength("DIAMETER", 0.01);
};

} // namespace

CERTAIN(ParameterFrames, EveryOptionHasABitOfItsOwn) {
    EXPECT_EQ(15, CATCkeNoLabel + CATCkeWithSpinner + CATCkeNoRename + CATCkeNoFormula);
    EXPECT_EQ(15, allOptions);
}

ASSUMED(ParameterFrames, TheOptionsHaveTheseValues, "open: distinct bits, no page gives them") {
    EXPECT_EQ(1, CATCkeNoLabel);
    EXPECT_EQ(2, CATCkeWithSpinner);
    EXPECT_EQ(4, CATCkeNoRename);
    EXPECT_EQ(8, CATCkeNoFormula);
}

CERTAIN(ParameterFrames, EveryKindOfParameterHasThem) {
    const CATICkeParm_var parameters[] = {length,
                                          factory->CreateAngle("COUNTERSINK", 1.5),
                                          factory->CreateReal("RATIO", 2.5),
                                          factory->CreateInteger("COUNT", 3),
                                          factory->CreateBoolean("CHAMFER", 1),
                                          factory->CreateString("THREAD", "M10")};
    for (const CATICkeParm_var& parameter : parameters) {
        const CATICkeParamFrame_var builder(parameter);
        ASSERT_FALSE(!builder);
        EXPECT_TRUE(builder == parameter);
        EXPECT_NE(nullptr, Build(parameter)) << parameter->Name().ConvertToChar();
    }
}

CERTAIN(ParameterFrames, AFrameIsAChildOfItsParentWithTheNameThatIsGiven) {
    CATDlgFrame* const frame = Build(length, allOptions, "ParmFrm");
    EXPECT_NE(0, frame->IsAKindOf("CATDlgFrame"));
    EXPECT_EQ(panel, frame->GetFather());
    EXPECT_STREQ("ParmFrm", frame->GetName().ConvertToChar());
}

ASSUMED(ParameterFrames, AFrameWithoutANameIsCalledLikeItsParameter, "open: the panels give no name") {
    EXPECT_STREQ("DIAMETER", Build(length)->GetName().ConvertToChar());
}

CERTAIN(ParameterFrames, AnyOptionsAreAccepted) {
    for (int options = 0; options <= allOptions; ++options)
        EXPECT_NE(nullptr, Build(length, options)) << options;
}

ASSUMED(ParameterFrames, WithoutParentThereIsNoFrame, "open: a frame without window is of no use") {
    EXPECT_EQ(nullptr,
              CATICkeParamFrame_var(length)->BuildFrame(CATIParmPublisher_var(), nullptr, allOptions, ""));
}

CERTAIN(ParameterFrames, AFrameIsShownEnabledAndHonoursItsSensitivity) {
    CATDlgFrame* const frame = Build(length);
    EXPECT_EQ(CATDlgShow, frame->GetVisibility());
    EXPECT_EQ(CATDlgEnable, frame->GetSensitivity());
    frame->SetSensitivity(CATDlgDisable);
    EXPECT_EQ(CATDlgDisable, frame->GetSensitivity());
    length->SetUserAccessMode(1);
    length->SetUserAccessMode(3);
    EXPECT_EQ(CATDlgDisable, frame->GetSensitivity()) << "the access of the parameter is another thing";
}

CERTAIN(ParameterFrames, ReadOnlyParametersHaveThemToo) {
    length->SetUserAccessMode(1);
    EXPECT_NE(nullptr, Build(length));
    EXPECT_EQ(1, length->GetUserAccessMode());
}

CERTAIN(ParameterFrames, AFrameIsReplacedByAnotherOfTheSameName) {
    CATDlgFrame* const first = Build(length);
    CATDlgFrame* const second = Build(length);
    first->RequestDelayedDestruction();
    EXPECT_STREQ("DIAMETER", second->GetName().ConvertToChar());
    EXPECT_EQ(S_OK, length->Valuate(0.02));
}

CERTAIN(ParameterFrames, AParameterChangesWhileItIsShownAndWhenItsFrameIsGone) {
    CATDlgFrame* const frame = Build(length);
    EXPECT_EQ(S_OK, CATIParmAsStored_var(length)->SetValue(20.0));
    EXPECT_STREQ("20mm", length->Show().ConvertToChar());
    delete frame;
    EXPECT_EQ(S_OK, CATIParmAsStored_var(length)->SetValue(30.0));
    EXPECT_STREQ("30mm", length->Show().ConvertToChar());
}

ASSUMED(ParameterFrames, AFrameOutlivesTheLastHandleOfItsParameter,
        "open: a literal that is edited must not vanish under its editor") {
    CATDlgFrame* const frame = Build(length);
    length = CATICkeParm_var();
    frame->SetSensitivity(CATDlgDisable);
    EXPECT_STREQ("DIAMETER", frame->GetName().ConvertToChar());
}

CERTAIN(ParameterFrames, AnIncrementIsAcceptedBeforeAndAfterTheFrameIsThere) {
    const CATICkeParmManipulator_var manipulator(length);
    ASSERT_FALSE(!manipulator);
    EXPECT_TRUE(manipulator == length);
    manipulator->SetIncrement(0.05);
    EXPECT_NE(nullptr, Build(length));
    manipulator->SetIncrement(0.5);
    EXPECT_STREQ("10mm", length->Show().ConvertToChar());
}

ASSUMED(ParameterFrames, AnIncrementThatMakesNoSenseIsIgnored, "open: refused rather than guessed at") {
    const CATICkeParmManipulator_var manipulator(length);
    for (const double increment :
         {0.0, -1.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        manipulator->SetIncrement(increment);
    EXPECT_NE(nullptr, Build(length));
    EXPECT_STREQ("10mm", length->Show().ConvertToChar());
}
