// The factory of volatile parameters.

#include "CATCkeGlobalFunctions.h"

#include "ParameterFacts.h"

#include <limits>

namespace {

class ParameterFactories : public ParameterFixture {};

} // namespace

CERTAIN(ParameterFactories, ThereIsAFactoryOfVolatileParameters) {
    EXPECT_FALSE(!CATCkeGlobalFunctions::GetVolatileFactory());
}

CERTAIN(ParameterFactories, AParameterOutlivesTheFactory) {
    CATICkeParmFactory_var another = CATCkeGlobalFunctions::GetVolatileFactory();
    const CATICkeParm_var made = another->CreateReal("RATIO", 0.5);
    another = CATICkeParmFactory_var();
    EXPECT_EQ(0.5, made->AsReal());
}

CERTAIN(ParameterFactories, EachCallMakesAnotherParameter) {
    const CATICkeParm_var made = factory->CreateLength("DIAMETER", 0.01);
    EXPECT_FALSE(made == length);
    EXPECT_EQ(S_OK, made->Valuate(0.5));
    EXPECT_EQ(10.0, Stored(length));
}

CERTAIN(ParameterFactories, AParameterIsMadeOfTheTypeOfAnother) {
    for (const CATICkeParm_var& parameter : {length, angle, real, integer, boolean, string}) {
        const CATICkeParm_var made = factory->CreateParameter(parameter->Type(), "Max");
        ASSERT_FALSE(!made);
        EXPECT_STREQ("Max", made->Name().ConvertToChar());
        EXPECT_TRUE(made->Type()->Name() == parameter->Type()->Name());
    }
}

ASSUMED(ParameterFactories, AParameterOfATypeStartsAtZeroFalseOrEmpty, "open: it is valuated afterwards") {
    const char* const shown[] = {"0mm", "0deg", "0", "0", "false", ""};
    int index = 0;
    for (const CATICkeParm_var& parameter : {length, angle, real, integer, boolean, string})
        EXPECT_STREQ(shown[index++],
                     factory->CreateParameter(parameter->Type(), "Min")->Show().ConvertToChar());
}

CERTAIN(ParameterFactories, ADimensionIsMadeOfAMagnitudeANameAndAValue) {
    const CATICkeParm_var depth = factory->CreateDimension(length->Type(), "DEPTH", 0.012);
    EXPECT_STREQ("DEPTH", depth->Name().ConvertToChar());
    EXPECT_TRUE(depth->Type()->Name() == length->Type()->Name());
    EXPECT_DOUBLE_EQ(12.0, Stored(depth));
    EXPECT_DOUBLE_EQ(180.0, Stored(factory->CreateDimension(angle->Type(), "TIP", 3.141592653589793)));
}

ASSUMED(ParameterFactories, ADimensionIsANumberThatItsMagnitudeCanHave, "open: a null handle otherwise") {
    EXPECT_STREQ("4", factory->CreateDimension(integer->Type(), "N", 4.0)->Show().ConvertToChar());
    EXPECT_TRUE(!factory->CreateDimension(integer->Type(), "N", 4.5));
    EXPECT_TRUE(!factory->CreateDimension(length->Type(), "D", 1e306));
    EXPECT_TRUE(!factory->CreateDimension(string->Type(), "S", 0.0));
}

ASSUMED(ParameterFactories, NoTypeGivesNoParameter, "open: a null handle") {
    EXPECT_TRUE(!factory->CreateParameter(CATICkeType_var(), "Max"));
    EXPECT_TRUE(!factory->CreateDimension(CATICkeType_var(), "Max", 1.0));
}

ASSUMED(ParameterFactories, ANumberThatTheTypeCannotHaveGivesNoParameter, "open: a null handle") {
    for (const double number :
         {std::numeric_limits<double>::infinity(), -1e306, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(!factory->CreateLength("D", number));
        EXPECT_TRUE(!factory->CreateAngle("A", number * 1e10));
    }
    EXPECT_TRUE(!factory->CreateReal("R", std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(!factory->CreateReal("R", 1e306));
    EXPECT_TRUE(!factory->CreateBoolean("B", 2));
    EXPECT_FALSE(!factory->CreateBoolean("B", 0));
}

CERTAIN(ParameterFactories, VolatileParametersAreReadAndChangedLikeOthers) {
    EXPECT_EQ(S_OK, length->Valuate(0.05));
    EXPECT_DOUBLE_EQ(50.0, Stored(length));
    EXPECT_EQ(S_OK, CATIParmTolerance_var(length)->SetMaxTolerance(0.1));
    EXPECT_EQ(1, CATIParmTolerance_var(length)->GetTypeOfTolerance());
}
