// Tolerance texts: classes of ISO 286 and ISO 965, limits, and what is neither.

#include "engineering/Tolerance.h"

#include <gtest/gtest.h>

namespace {

using namespace engineering;

TEST(ToleranceTest, AnEmptyTextIsNoTolerance) {
    EXPECT_EQ(ParseTolerance("", Magnitude::Length).value, Tolerance{});
    EXPECT_EQ(ParseTolerance("", Magnitude::String).value, Tolerance{});
}

TEST(ToleranceTest, ClassesOfIso286AreReadAsWritten) {
    for (const char* text :
         {"H13", "h10", "js9", "JS9", "P9", "N9", "zc11", "CD5", "a18", "H01", "h0", "FG1"}) {
        EXPECT_EQ(ParseTolerance(text, Magnitude::Length).value,
                  (Tolerance{Tolerance::Kind::FitClass, text, 0, 0}))
            << text;
    }
}

TEST(ToleranceTest, ClassesOfIso965AreReadAsWritten) {
    for (const char* text : {"6H", "6g", "4h", "5G", "8e"}) {
        EXPECT_EQ(ParseTolerance(text, Magnitude::Length).value,
                  (Tolerance{Tolerance::Kind::ThreadClass, text, 0, 0}))
            << text;
    }
}

TEST(ToleranceTest, LimitsAreUpperThenLowerInTheBaseUnit) {
    EXPECT_EQ(ParseTolerance("+0.25/0", Magnitude::Length).value,
              (Tolerance{Tolerance::Kind::Limits, "", 0.25, 0}));
    EXPECT_EQ(ParseTolerance("-0.1/-0.3", Magnitude::Length).value,
              (Tolerance{Tolerance::Kind::Limits, "", -0.1, -0.3}));
    EXPECT_EQ(ParseTolerance("1/-0.5", Magnitude::Length, 25.4).value,
              (Tolerance{Tolerance::Kind::Limits, "", 25.4, -12.7}));
}

TEST(ToleranceTest, TextsThatAreNeitherAreRefusedWithAReason) {
    // i, l, o, q and w are no letters of ISO 286; grades end at 18; both letters have one case.
    for (const char* text :
         {"H",  "13", "i7",  "L8",    "o5", "q9", "W9", "H19", "H02", "Js9",   "jS9",   "H7x",   "H-7", "6",
          "2H", "6J", "6Hx", "+0.25", "/",  "1/", "/1", "1/1", "0/1", "1/0/0", "H7/g6", "inf/0", "+-1"}) {
        const Parsed<Tolerance> parsed = ParseTolerance(text, Magnitude::Length);
        EXPECT_FALSE(parsed.value) << text;
        EXPECT_TRUE(parsed.error.starts_with("bad tolerance '" + std::string(text) + "': ")) << parsed.error;
    }
}

TEST(ToleranceTest, OnlyLengthsCarryClassesAndOnlyLengthsAndAnglesLimits) {
    EXPECT_TRUE(ParseTolerance("H7", Magnitude::Length).value);
    EXPECT_FALSE(ParseTolerance("H7", Magnitude::Angle).value);
    EXPECT_TRUE(ParseTolerance("+1/-1", Magnitude::Angle).value);
    for (const Magnitude magnitude :
         {Magnitude::Real, Magnitude::Integer, Magnitude::String, Magnitude::Boolean}) {
        EXPECT_FALSE(ParseTolerance("+1/-1", magnitude).value) << NameOf(magnitude);
    }
}

} // namespace
