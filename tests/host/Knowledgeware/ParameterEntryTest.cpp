// What a person types as the value of a parameter.

#include "host/ParameterEntry.h"

#include "CATIParmAsStored.h"
#include "CATIParmTolerance.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"
#include "support/ParameterWatcher.h"

#include <numbers>

using host::ParameterEntry;
using host::Parameters;
using support::Events;
using support::ParameterWatcher;

namespace {

CATICkeParm_var NewParameter(const std::string& iMagnitude) {
    if (iMagnitude == "LENGTH")
        return Parameters::NewLength("P", 7.0);
    if (iMagnitude == "ANGLE")
        return Parameters::NewAngle("P", 7.0);
    if (iMagnitude == "REAL")
        return Parameters::NewReal("P", 7.0);
    if (iMagnitude == "INTEGER")
        return Parameters::NewInteger("P", 7);
    return Parameters::NewBoolean("P", true);
}

struct Good {
    const char* magnitude;
    const char* typed;
    double stored;
};

void PrintTo(const Good& iGood, std::ostream* ioStream) {
    *ioStream << iGood.magnitude << " '" << iGood.typed << "'";
}

class GoodEntryTest : public support::AuditedTest, public testing::WithParamInterface<Good> {};

TEST_P(GoodEntryTest, BecomesTheValueAndRaisesTheChangeOnce) {
    const CATICkeParm_var parameter = NewParameter(GetParam().magnitude);
    ParameterWatcher watcher(parameter);
    const host::Outcome outcome = ParameterEntry::Type(*parameter, GetParam().typed);
    EXPECT_TRUE(outcome) << outcome.reason;
    EXPECT_EQ(outcome.reason, "");
    EXPECT_DOUBLE_EQ(CATIParmAsStored_var(parameter)->GetValue(), GetParam().stored);
    EXPECT_EQ(watcher.Take(), Events({"value of P"}));
}

INSTANTIATE_TEST_SUITE_P(Lengths, GoodEntryTest,
                         testing::Values(Good{"LENGTH", "12", 12.0}, Good{"LENGTH", "12.5", 12.5},
                                         Good{"LENGTH", "12,5", 12.5}, Good{"LENGTH", "12.5mm", 12.5},
                                         Good{"LENGTH", "12,5 mm", 12.5}, Good{"LENGTH", "1.25cm", 12.5},
                                         Good{"LENGTH", "1,25 cm", 12.5}, Good{"LENGTH", "0.5 m", 500.0},
                                         Good{"LENGTH", "2in", 50.8}, Good{"LENGTH", "0,5 in", 12.7},
                                         Good{"LENGTH", "  3 \t mm  ", 3.0}, Good{"LENGTH", "+3", 3.0},
                                         Good{"LENGTH", "-3 mm", -3.0}, Good{"LENGTH", "-0", 0.0},
                                         Good{"LENGTH", ".5", 0.5}, Good{"LENGTH", ",5", 0.5},
                                         Good{"LENGTH", "5.", 5.0}, Good{"LENGTH", "-.5cm", -5.0},
                                         Good{"LENGTH", "1e3", 1000.0}, Good{"LENGTH", "1.5E-2m", 15.0},
                                         Good{"LENGTH", "2e+1 mm", 20.0}, Good{"LENGTH", "1,234", 1.234},
                                         Good{"LENGTH", "007", 7.0}));

INSTANTIATE_TEST_SUITE_P(Angles, GoodEntryTest,
                         testing::Values(Good{"ANGLE", "90", 90.0}, Good{"ANGLE", "90deg", 90.0},
                                         Good{"ANGLE", "118,5 deg", 118.5},
                                         Good{"ANGLE", "2 rad", 360.0 / std::numbers::pi},
                                         Good{"ANGLE", "-0.5rad", -90.0 / std::numbers::pi}));

INSTANTIATE_TEST_SUITE_P(NumbersWithoutUnit, GoodEntryTest,
                         testing::Values(Good{"REAL", "2,5", 2.5}, Good{"REAL", "1e308", 1e308},
                                         Good{"INTEGER", "12", 12.0}, Good{"INTEGER", " -12 ", -12.0},
                                         Good{"INTEGER", "2.0", 2.0},
                                         Good{"INTEGER", "2147483647", 2147483647.0}));

INSTANTIATE_TEST_SUITE_P(Booleans, GoodEntryTest,
                         testing::Values(Good{"BOOLEAN", "true", 1.0}, Good{"BOOLEAN", "false", 0.0},
                                         Good{"BOOLEAN", "1", 1.0}, Good{"BOOLEAN", "0", 0.0},
                                         Good{"BOOLEAN", " false ", 0.0}));

struct Bad {
    const char* magnitude;
    const char* typed;
    const char* reason;
};

void PrintTo(const Bad& iBad, std::ostream* ioStream) {
    *ioStream << iBad.magnitude << " '" << iBad.typed << "'";
}

class BadEntryTest : public support::AuditedTest, public testing::WithParamInterface<Bad> {};

TEST_P(BadEntryTest, IsRefusedWithItsReasonAndLeavesTheValue) {
    const CATICkeParm_var parameter = NewParameter(GetParam().magnitude);
    const double before = CATIParmAsStored_var(parameter)->GetValue();
    ParameterWatcher watcher(parameter);
    const host::Outcome outcome = ParameterEntry::Type(*parameter, GetParam().typed);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.reason, GetParam().reason);
    EXPECT_EQ(CATIParmAsStored_var(parameter)->GetValue(), before);
    EXPECT_EQ(watcher.Take(), Events());
}

INSTANTIATE_TEST_SUITE_P(
    NoNumbers, BadEntryTest,
    testing::Values(
        Bad{"LENGTH", "", "no number is typed"}, Bad{"LENGTH", " \t ", "no number is typed"},
        Bad{"ANGLE", "", "no number is typed"}, Bad{"INTEGER", "", "no number is typed"},
        Bad{"LENGTH", "mm", "'mm' is not a number"}, Bad{"LENGTH", " wide ", "'wide' is not a number"},
        Bad{"LENGTH", "nan", "'nan' is not a number"}, Bad{"LENGTH", "inf", "'inf' is not a number"},
        Bad{"LENGTH", "-inf", "'-inf' is not a number"},
        Bad{"LENGTH", "infinity", "'infinity' is not a number"}, Bad{"LENGTH", "+", "'+' is not a number"},
        Bad{"LENGTH", "-", "'-' is not a number"}, Bad{"LENGTH", "+-3", "'+-3' is not a number"},
        Bad{"LENGTH", "--3", "'--3' is not a number"}, Bad{"LENGTH", "- 3", "'- 3' is not a number"},
        Bad{"LENGTH", ".", "'.' is not a number"}, Bad{"LENGTH", ",mm", "',mm' is not a number"},
        Bad{"LENGTH", "(10mm)", "'(10mm)' is not a number"}, Bad{"LENGTH", "%s", "'%s' is not a number"},
        Bad{"LENGTH", "\xC2\xB2", "'\xC2\xB2' is not a number"}));

INSTANTIATE_TEST_SUITE_P(SeveralNumbers, BadEntryTest,
                         testing::Values(Bad{"LENGTH", "1,234.5", "'1,234.5' is more than one number"},
                                         Bad{"LENGTH", "1.234,5", "'1.234,5' is more than one number"},
                                         Bad{"LENGTH", "1,234,5", "'1,234,5' is more than one number"},
                                         Bad{"LENGTH", "1 000", "'1 000' is more than one number"},
                                         Bad{"LENGTH", "3 4", "'3 4' is more than one number"},
                                         Bad{"LENGTH", "3 mm 4 mm", "'3 mm 4 mm' is more than one number"},
                                         Bad{"LENGTH", "3+4", "'3+4' is more than one number"},
                                         Bad{"LENGTH", "10 -0.5", "'10 -0.5' is more than one number"}));

INSTANTIATE_TEST_SUITE_P(
    WrongUnits, BadEntryTest,
    testing::Values(Bad{"LENGTH", "3 deg", "'deg' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 km", "'km' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 MM", "'MM' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 m m", "'m m' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 m2", "'m2' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "0x10", "'x10' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3/4 in", "'/4 in' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "50 %", "'%' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3\u00A0mm", "'\u00A0mm' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "1e", "'e' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"ANGLE", "3 mm", "'mm' is not a unit of ANGLE, which has deg, rad"},
                    Bad{"REAL", "3 mm", "'mm' is not a unit of REAL, which has none"},
                    Bad{"INTEGER", "3 deg", "'deg' is not a unit of INTEGER, which has none"}));

INSTANTIATE_TEST_SUITE_P(
    NumbersOutsideTheRange, BadEntryTest,
    testing::Values(Bad{"LENGTH", "1e999", "'1e999' is outside the range of numbers"},
                    Bad{"LENGTH", "-1e999", "'-1e999' is outside the range of numbers"},
                    Bad{"LENGTH", "1e-999", "'1e-999' is outside the range of numbers"},
                    Bad{"LENGTH", "1e306 m", "'1e306 m' is too large"},
                    Bad{"ANGLE", "-1e308rad", "'-1e308rad' is too large"},
                    Bad{"INTEGER", "2.5", "'2.5' is not a whole number from -2147483648 to 2147483647"},
                    Bad{"INTEGER", "2147483648",
                        "'2147483648' is not a whole number from -2147483648 to 2147483647"}));

INSTANTIATE_TEST_SUITE_P(NeitherTrueNorFalse, BadEntryTest,
                         testing::Values(Bad{"BOOLEAN", "yes", "'yes' is neither true nor false"},
                                         Bad{"BOOLEAN", "2", "'2' is neither true nor false"},
                                         Bad{"BOOLEAN", "", "'' is neither true nor false"},
                                         Bad{"BOOLEAN", "TRUE", "'TRUE' is neither true nor false"}));

class ParameterEntryTest : public support::AuditedTest {};

TEST_F(ParameterEntryTest, TakesATextAsItIs) {
    const CATICkeParm_var thread = Parameters::NewString("THREAD", "M10");
    ParameterWatcher watcher(thread);
    for (const char* typed : {" M12 x 1,5 ", "", "7 mm",
                              "Gr\xC3\xB6\xC3\x9F"
                              "e"}) {
        EXPECT_TRUE(ParameterEntry::Type(*thread, typed));
        EXPECT_STREQ(thread->Show().ConvertToChar(), typed);
        EXPECT_EQ(watcher.Take(), Events({"value of THREAD"}));
    }
}

TEST_F(ParameterEntryTest, RefusesWhatTheUserMayNotEditUntilItIsEditableAgain) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    const CATICkeParm_var thread = Parameters::NewString("THREAD", "M10");
    ParameterWatcher watcher(depth);
    watcher.Watch(thread);
    for (const CATICkeParm_var& parameter : {depth, thread})
        parameter->SetUserAccessMode(1);
    EXPECT_EQ(ParameterEntry::Type(*depth, "8").reason, "DEPTH is read-only");
    EXPECT_EQ(ParameterEntry::Type(*thread, "M12").reason, "THREAD is read-only");
    EXPECT_STREQ(depth->Show().ConvertToChar(), "7mm");
    EXPECT_STREQ(thread->Show().ConvertToChar(), "M10");
    EXPECT_EQ(watcher.Take(), Events());
    depth->SetUserAccessMode(3);
    EXPECT_TRUE(ParameterEntry::Type(*depth, "8"));
    EXPECT_STREQ(depth->Show().ConvertToChar(), "8mm");
}

TEST_F(ParameterEntryTest, KeepsTheToleranceOfTheParameter) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    const CATIParmTolerance_var tolerance(depth);
    ASSERT_EQ(tolerance->SetMaxTolerance(0.1), S_OK);
    EXPECT_TRUE(ParameterEntry::Type(*depth, "8"));
    EXPECT_EQ(tolerance->GetTypeOfTolerance(), 1);
    EXPECT_EQ(tolerance->GetMaxTolerance(), 0.1);
}

TEST_F(ParameterEntryTest, SurvivesThatACallbackLetsGoOfTheParameter) {
    for (CATICkeParm_var parameter : {Parameters::NewLength("P", 7.0), Parameters::NewString("P", "M7")}) {
        ParameterWatcher watcher(parameter);
        CATICkeParm* const plain = parameter;
        watcher.onEvent = [&] { parameter = CATICkeParm_var(); };
        EXPECT_TRUE(ParameterEntry::Type(*plain, "8"));
        EXPECT_TRUE(!parameter);
        EXPECT_EQ(watcher.Take(), Events({"value of P"}));
    }
}

} // namespace
