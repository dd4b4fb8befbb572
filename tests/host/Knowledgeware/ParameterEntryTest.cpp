// What a person types as the value of a parameter.

#include "host/ParameterEntry.h"

#include "CATIParmAsStored.h"
#include "CATIParmTolerance.h"
#include "NewParameter.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"
#include "support/ParameterWatcher.h"

#include <cmath>
#include <numbers>
#include <random>

using host::ParameterEntry;
using host::Parameters;
using support::Events;
using support::ParameterWatcher;

namespace {

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

INSTANTIATE_TEST_SUITE_P(
    Computations, GoodEntryTest,
    testing::Values(Good{"LENGTH", "3+4", 7.0}, Good{"LENGTH", "10 -0.5", 9.5}, Good{"LENGTH", "3*4", 12.0},
                    Good{"LENGTH", "25,4/2", 12.7}, Good{"LENGTH", "10+2*3", 16.0},
                    Good{"LENGTH", "(3+4)/2", 3.5}, Good{"LENGTH", "10-4-3", 3.0},
                    Good{"LENGTH", "24/4/3", 2.0}, Good{"LENGTH", "2*(3+(4-1)*2)", 18.0},
                    Good{"LENGTH", " ( 3 + 4 ) * 2 ", 14.0}, Good{"LENGTH", "3*-2", -6.0},
                    Good{"LENGTH", "3--2", 5.0}, Good{"LENGTH", "3-+2", 1.0}, Good{"LENGTH", "-(3+4)", -7.0},
                    Good{"LENGTH", "+(3)", 3.0}, Good{"LENGTH", "- (3)*2", -6.0},
                    Good{"LENGTH", "2*-(3+1)", -8.0}, Good{"LENGTH", "((((5))))", 5.0},
                    Good{"LENGTH", "1e1+2E+1-3e-1", 29.7}, Good{"LENGTH", "1,5+1.5", 3.0},
                    Good{"LENGTH", "0*-1", 0.0}, Good{"REAL", "(1+2)*3", 9.0}, Good{"INTEGER", "7/2*2", 7.0},
                    Good{"INTEGER", "1/3*3", 1.0}, Good{"ANGLE", "360/5", 72.0}));

INSTANTIATE_TEST_SUITE_P(
    ComputationsWithOneUnit, GoodEntryTest,
    testing::Values(Good{"LENGTH", "10+2*3 mm", 16.0}, Good{"LENGTH", "10+2*3 cm", 160.0},
                    Good{"LENGTH", "2*3 cm+10", 160.0}, Good{"LENGTH", "10mm+2", 12.0},
                    Good{"LENGTH", "1/2 in", 12.7}, Good{"LENGTH", "1 + 3/4 in", 44.45},
                    Good{"LENGTH", "(1+2) cm", 30.0}, Good{"LENGTH", "(1cm+2cm)/2", 15.0},
                    Good{"LENGTH", "(10mm)", 10.0}, Good{"LENGTH", "10 mm / 4", 2.5},
                    Good{"LENGTH", "2*(3 cm)", 60.0}, Good{"LENGTH", "3 cm*5cm/2cm", 75.0},
                    Good{"LENGTH", "3-1 m", 2000.0}, Good{"LENGTH", "-(1+1) cm", -20.0},
                    Good{"ANGLE", "90/4deg", 22.5}, Good{"ANGLE", "(1+1) rad", 114.591559026165}));

INSTANTIATE_TEST_SUITE_P(ComputationsWithSeveralUnits, GoodEntryTest,
                         testing::Values(Good{"LENGTH", "2*3mm + 1cm", 16.0}, Good{"LENGTH", "1in+1mm", 26.4},
                                         Good{"LENGTH", "1/2 in + 3 mm", 15.7},
                                         Good{"LENGTH", "2*(1cm-1mm)", 18.0},
                                         Good{"LENGTH", "10mm*(1cm/5mm)", 20.0},
                                         Good{"LENGTH", "(1+1)*2cm + (4+1)mm", 45.0},
                                         Good{"ANGLE", "180deg-1 rad", 122.704220486918}));

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
        Bad{"LENGTH", "-", "'-' is not a number"}, Bad{"LENGTH", "+-3", "'+-3' has no number behind '+'"},
        Bad{"LENGTH", "--3", "'--3' has no number behind '-'"}, Bad{"LENGTH", "- 3", "'- 3' is not a number"},
        Bad{"LENGTH", ".", "'.' is not a number"}, Bad{"LENGTH", ",mm", "',mm' is not a number"},
        Bad{"LENGTH", "%s", "'%s' is not a number"},
        Bad{"LENGTH", "\xC2\xB2", "'\xC2\xB2' is not a number"}));

INSTANTIATE_TEST_SUITE_P(SeveralNumbers, BadEntryTest,
                         testing::Values(Bad{"LENGTH", "1,234.5", "'1,234.5' is more than one number"},
                                         Bad{"LENGTH", "1.234,5", "'1.234,5' is more than one number"},
                                         Bad{"LENGTH", "1,234,5", "'1,234,5' is more than one number"},
                                         Bad{"LENGTH", "1 000", "'1 000' is more than one number"},
                                         Bad{"LENGTH", "3 4", "'3 4' is more than one number"},
                                         Bad{"LENGTH", "3 mm 4 mm", "'3 mm 4 mm' is more than one number"}));

INSTANTIATE_TEST_SUITE_P(
    WrongUnits, BadEntryTest,
    testing::Values(Bad{"LENGTH", "3 deg", "'deg' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 km", "'km' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 MM", "'MM' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 m m", "'m m' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "3 m2", "'m2' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "0x10", "'x10' is not a unit of LENGTH, which has mm, cm, m, in"},
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

INSTANTIATE_TEST_SUITE_P(
    BrokenComputations, BadEntryTest,
    testing::Values(Bad{"LENGTH", "10+", "'10+' has no number behind '+'"},
                    Bad{"LENGTH", "3*/4", "'3*/4' has no number behind '*'"},
                    Bad{"LENGTH", "3 - - 2", "'- 2' is not a number"},
                    Bad{"LENGTH", "*3", "'*3' has no number before '*'"},
                    Bad{"LENGTH", ")", "')' has no number before ')'"},
                    Bad{"LENGTH", "()", "'()' has no number behind '('"},
                    Bad{"LENGTH", "(", "'(' has no number behind '('"},
                    Bad{"LENGTH", "2*-(", "'2*-(' has no number behind '('"},
                    Bad{"LENGTH", "(3+4", "'(3+4' leaves a parenthesis open"},
                    Bad{"LENGTH", "3+4)", "'3+4)' closes a parenthesis that is not open"},
                    Bad{"LENGTH", "2(3+4)", "'2(3+4)' has no operator before '('"},
                    Bad{"LENGTH", "(3)(4)", "'(3)(4)' has no operator before '('"},
                    Bad{"LENGTH", "(3)4", "'(3)4' has no operator behind ')'"},
                    Bad{"LENGTH", "3+wide", "'wide' is not a number"},
                    Bad{"LENGTH", "3^2", "'^2' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "1,5+1.234,5", "'1.234,5' is more than one number"}));

INSTANTIATE_TEST_SUITE_P(ComputationsWithoutSense, BadEntryTest,
                         testing::Values(Bad{"LENGTH", "1/0", "'1/0' divides by zero"},
                                         Bad{"LENGTH", "0/0", "'0/0' divides by zero"},
                                         Bad{"LENGTH", "1/(2-2)", "'1/(2-2)' divides by zero"},
                                         Bad{"LENGTH", "1e308*10", "'1e308*10' is too large"},
                                         Bad{"LENGTH", "1e308+1e308", "'1e308+1e308' is too large"},
                                         Bad{"LENGTH", "1/1e-309", "'1/1e-309' is too large"},
                                         Bad{"LENGTH", "1e308*1 in", "'1e308*1 in' is too large"},
                                         Bad{"LENGTH", "1e-200*1e-200", "'1e-200*1e-200' is too small"},
                                         Bad{"LENGTH", "1e-300/1e300", "'1e-300/1e300' is too small"},
                                         Bad{"LENGTH", "1+1e999", "'1e999' is outside the range of numbers"},
                                         Bad{"INTEGER", "7/2",
                                             "'7/2' is not a whole number from -2147483648 to 2147483647"}));

INSTANTIATE_TEST_SUITE_P(
    ComputationsOfOtherThings, BadEntryTest,
    testing::Values(Bad{"LENGTH", "10mm/2mm", "'10mm/2mm' gives no LENGTH"},
                    Bad{"LENGTH", "2mm*3mm", "'2mm*3mm' gives no LENGTH"},
                    Bad{"LENGTH", "1/(2 in)", "'1/(2 in)' gives no LENGTH"},
                    Bad{"LENGTH", "10mm/2mm+3", "'10mm/2mm+3' gives no LENGTH"},
                    Bad{"ANGLE", "1deg/1rad", "'1deg/1rad' gives no ANGLE"},
                    Bad{"LENGTH", "1mm+10mm/5mm", "'1mm+10mm/5mm' adds what does not belong together"},
                    Bad{"LENGTH", "1mm+2mm*3mm", "'1mm+2mm*3mm' adds what does not belong together"},
                    Bad{"LENGTH", "3+2mm*3mm", "'3+2mm*3mm' adds what does not belong together"},
                    Bad{"LENGTH", "1cm+1mm+1", "'1cm+1mm+1' has several units, and a number without one"},
                    Bad{"LENGTH", "(3mm) mm", "'(3mm) mm' has a unit behind what has one already"},
                    Bad{"LENGTH", "3mm+2deg", "'deg' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"LENGTH", "(3) deg", "'deg' is not a unit of LENGTH, which has mm, cm, m, in"},
                    Bad{"REAL", "(3) mm", "'mm' is not a unit of REAL, which has none"}));

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

TEST_F(ParameterEntryTest, ComputesWithoutTheNoiseOfBinaryNumbers) {
    const CATICkeParm_var ratio = Parameters::NewReal("RATIO", 0.0);
    const CATIParmAsStored_var stored(ratio);
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "0.1+0.2"));
    EXPECT_EQ(stored->GetValue(), 0.3);
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "1-0.9"));
    EXPECT_EQ(stored->GetValue(), 0.1);
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "0.3-6*0.05"));
    EXPECT_EQ(stored->GetValue(), 0.0);
    EXPECT_EQ(ParameterEntry::Type(*ratio, "1/(0.3-6*0.05)").reason, "'1/(0.3-6*0.05)' divides by zero");
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "1000000.1-1000000"));
    EXPECT_EQ(stored->GetValue(), 0.1);
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "1/3+1/3"));
    EXPECT_EQ(stored->GetValue(), 0.666666666666667);
    EXPECT_TRUE(ParameterEntry::Type(*ratio, "0.30000000000000004"));
    EXPECT_EQ(stored->GetValue(), 0.30000000000000004) << "a plain number is taken with all its digits";
}

TEST_F(ParameterEntryTest, TakesAHundredParenthesesInOneAnotherAndNoMore) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    const auto nested = [](std::size_t iCount) {
        return std::string(iCount, '(') + "8" + std::string(iCount, ')');
    };
    EXPECT_TRUE(ParameterEntry::Type(*depth, nested(100)));
    EXPECT_STREQ(depth->Show().ConvertToChar(), "8mm");
    const std::string reason =
        "'" + std::string(60, '(') + "...' has more than 100 parentheses in one another";
    EXPECT_EQ(ParameterEntry::Type(*depth, nested(101)).reason, reason);
    EXPECT_EQ(ParameterEntry::Type(*depth, nested(100000)).reason, reason);
    EXPECT_EQ(ParameterEntry::Type(*depth, std::string(100000, '(')).reason, reason);
}

TEST_F(ParameterEntryTest, ComputesLongTexts) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    std::string text = "1";
    for (int count = 1; count < 100000; ++count)
        text += "+1";
    EXPECT_TRUE(ParameterEntry::Type(*depth, text));
    EXPECT_EQ(CATIParmAsStored_var(depth)->GetValue(), 100000.0);
}

TEST_F(ParameterEntryTest, HostileEveryTextIsTakenOrRefusedWithAReason) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    const CATIParmAsStored_var stored(depth);
    const std::string pieces = "0123456789..,,++--**//(((())))  eEmcin";
    std::mt19937 random(20240229);
    int taken = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t length = random() % 14; length > 0; --length)
            text.push_back(pieces[random() % pieces.size()]);
        const double before = stored->GetValue();
        const host::Outcome outcome = ParameterEntry::Type(*depth, text);
        ASSERT_EQ(outcome.done, outcome.reason.empty()) << text;
        ASSERT_TRUE(outcome.done || stored->GetValue() == before) << text;
        ASSERT_TRUE(std::isfinite(stored->GetValue())) << text;
        taken += outcome.done ? 1 : 0;
    }
    EXPECT_GT(taken, 500);
}

TEST_F(ParameterEntryTest, QuotesTheBeginningOfALongTextInItsReason) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 7.0);
    const std::string sixty(60, 'x');
    EXPECT_EQ(ParameterEntry::Type(*depth, sixty).reason, "'" + sixty + "' is not a number");
    EXPECT_EQ(ParameterEntry::Type(*depth, sixty + "x").reason, "'" + sixty + "...' is not a number");
    const std::string umlautAtTheCut = std::string(59, 'x') + "\xC3\xA4x";
    EXPECT_EQ(ParameterEntry::Type(*depth, umlautAtTheCut).reason,
              "'" + std::string(59, 'x') + "...' is not a number");
}

TEST_F(ParameterEntryTest, StepsANumberWithoutTheNoiseOfBinaryNumbers) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 0.0);
    const CATIParmAsStored_var stored(depth);
    ParameterWatcher watcher(depth);
    for (const double expected : {0.05, 0.1, 0.15, 0.2, 0.25, 0.3}) {
        EXPECT_TRUE(ParameterEntry::Step(*depth, 1, 0.05));
        EXPECT_EQ(stored->GetValue(), expected);
        EXPECT_EQ(watcher.Take(), Events({"value of DEPTH"}));
    }
    EXPECT_TRUE(ParameterEntry::Step(*depth, -6, 0.05));
    EXPECT_EQ(stored->GetValue(), 0.0);
    watcher.Take();
    EXPECT_TRUE(ParameterEntry::Step(*depth, 0, 0.05));
    EXPECT_EQ(watcher.Take(), Events());
}

TEST_F(ParameterEntryTest, RefusesStepsThatLeadNowhere) {
    const CATICkeParm_var count = Parameters::NewInteger("COUNT", 2147483646);
    const CATICkeParm_var ratio = Parameters::NewReal("RATIO", 1e300);
    const CATICkeParm_var flag = Parameters::NewBoolean("FLAG", false);
    const CATICkeParm_var thread = Parameters::NewString("THREAD", "M5");
    ParameterWatcher watcher(count);
    for (const CATICkeParm_var& parameter : {ratio, flag, thread})
        watcher.Watch(parameter);
    EXPECT_EQ(ParameterEntry::Step(*count, 2, 1.0).reason, "COUNT does not take 2147483648");
    EXPECT_EQ(ParameterEntry::Step(*count, -1, 0.5).reason, "COUNT does not take 2147483645.5");
    EXPECT_EQ(ParameterEntry::Step(*ratio, 1, 1.0).reason, "RATIO is too large for steps of 1");
    EXPECT_EQ(ParameterEntry::Step(*ratio, 2, 1e308).reason, "RATIO would be too large");
    EXPECT_EQ(ParameterEntry::Step(*flag, 1, 1.0).reason, "FLAG has no steps");
    EXPECT_EQ(ParameterEntry::Step(*thread, 1, 1.0).reason, "THREAD has no steps");
    count->SetUserAccessMode(1);
    EXPECT_EQ(ParameterEntry::Step(*count, 1, 1.0).reason, "COUNT is read-only");
    EXPECT_EQ(watcher.Take(), Events());
    count->SetUserAccessMode(3);
    EXPECT_TRUE(ParameterEntry::Step(*count, 1, 1.0));
    EXPECT_EQ(count->AsInteger(), 2147483647);
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
