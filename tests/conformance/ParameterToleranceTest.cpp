// Tolerances of parameters.

#include "CATIParmTolerance.h"

#include "ParameterFacts.h"

#include <limits>

namespace {

class ParameterTolerances : public ParameterFixture {
  protected:
    const CATIParmTolerance_var tolerance{length};
};

} // namespace

CERTAIN(ParameterTolerances, ANewParameterHasNone) {
    EXPECT_NE(1, tolerance->GetTypeOfTolerance());
}

ASSUMED(ParameterTolerances, NoToleranceIsZeroThroughout, "open: the kind and both deviations") {
    EXPECT_EQ(0, tolerance->GetTypeOfTolerance());
    EXPECT_EQ(0.0, tolerance->GetMaxTolerance());
    EXPECT_EQ(0.0, tolerance->GetMinTolerance());
}

CERTAIN(ParameterTolerances, DeviationsOfALengthAreInMillimetres) {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(-0.05));
    EXPECT_EQ(1, tolerance->GetTypeOfTolerance());
    EXPECT_EQ(0.1, tolerance->GetMaxTolerance());
    EXPECT_EQ(-0.05, tolerance->GetMinTolerance());
    EXPECT_EQ(10.0, Stored(length));
}

ASSUMED(ParameterTolerances, DeviationsOfAnAngleAreInDegrees, "open: storage units, as for lengths") {
    const CATIParmTolerance_var ofAngle(angle);
    EXPECT_EQ(S_OK, ofAngle->SetMaxTolerance(0.5));
    EXPECT_EQ(0.5, ofAngle->GetMaxTolerance());
    EXPECT_EQ(0.0, ofAngle->GetMinTolerance());
}

CERTAIN(ParameterTolerances, EachDeviationMakesTheToleranceSet) {
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.0));
    EXPECT_EQ(1, tolerance->GetTypeOfTolerance());
    const CATIParmTolerance_var ofAngle(angle);
    EXPECT_EQ(S_OK, ofAngle->SetMaxTolerance(0.0));
    EXPECT_EQ(1, ofAngle->GetTypeOfTolerance());
}

CERTAIN(ParameterTolerances, EachDeviationLeavesTheOther) {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    EXPECT_EQ(0.0, tolerance->GetMinTolerance());
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.02));
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.3));
    EXPECT_EQ(0.02, tolerance->GetMinTolerance());
}

CERTAIN(ParameterTolerances, AToleranceIsTakenBack) {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.05));
    EXPECT_EQ(S_OK, tolerance->Unset());
    EXPECT_NE(1, tolerance->GetTypeOfTolerance());
}

ASSUMED(ParameterTolerances, NothingIsLeftOfAToleranceThatWasTakenBack, "open") {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.05));
    EXPECT_EQ(S_OK, tolerance->Unset());
    EXPECT_EQ(0.0, tolerance->GetMaxTolerance());
    EXPECT_EQ(0.0, tolerance->GetMinTolerance());
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.02));
    EXPECT_EQ(0.0, tolerance->GetMaxTolerance());
}

ASSUMED(ParameterTolerances, TakingNoToleranceBackIsNoFailure, "open") {
    EXPECT_EQ(S_OK, tolerance->Unset());
    EXPECT_EQ(0, tolerance->GetTypeOfTolerance());
}

ASSUMED(ParameterTolerances, TheMaximumMayLieBelowTheMinimum, "open: one is written before the other") {
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(0.2));
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(-0.2));
    EXPECT_EQ(-0.2, tolerance->GetMaxTolerance());
    EXPECT_EQ(0.2, tolerance->GetMinTolerance());
}

ASSUMED(ParameterTolerances, ANumberThatIsNotFiniteIsRefused, "open: an invalid value is never kept") {
    for (const double number :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(FAILED(tolerance->SetMaxTolerance(number)));
        EXPECT_TRUE(FAILED(tolerance->SetMinTolerance(-number)));
    }
    EXPECT_EQ(0, tolerance->GetTypeOfTolerance());
    EXPECT_EQ(0.0, tolerance->GetMaxTolerance());
}

ASSUMED(ParameterTolerances, MinusZeroIsZero, "open: a deviation is shown with its sign") {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(-0.0));
    CATUnicodeString text;
    text.BuildFromNum(tolerance->GetMaxTolerance());
    EXPECT_STREQ("0", text.ConvertToChar());
}

CERTAIN(ParameterTolerances, AParameterHasItsOwn) {
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    const CATIParmTolerance_var other(factory->CreateLength("DEPTH", 0.01));
    EXPECT_NE(1, other->GetTypeOfTolerance());
    EXPECT_EQ(1, CATIParmTolerance_var(length)->GetTypeOfTolerance());
}

ASSUMED(ParameterTolerances, OnlyLengthsAndAnglesHaveThem, "open: the magnitudes that a drawing tolerances") {
    EXPECT_FALSE(!CATIParmTolerance_var(angle));
    for (const CATICkeParm_var& parameter : {real, integer, boolean, string})
        EXPECT_TRUE(!CATIParmTolerance_var(parameter)) << parameter->Name().ConvertToChar();
}
