// Tolerance classes of ISO 286 as they are written, and what is none.

#include "engineering/ToleranceClass.h"

#include <gtest/gtest.h>

namespace {

using namespace engineering;

TEST(ToleranceClassTest, AClassIsReadWithSideLettersAndGrade) {
    EXPECT_EQ(ParseToleranceClass("H7").value, (ToleranceClass{FitSide::Hole, "H", {8}}));
    EXPECT_EQ(ParseToleranceClass("js01").value, (ToleranceClass{FitSide::Shaft, "js", {0}}));
    EXPECT_EQ(ParseToleranceClass("ZC0").value, (ToleranceClass{FitSide::Hole, "ZC", {1}}));
    EXPECT_EQ(ParseToleranceClass("a18").value, (ToleranceClass{FitSide::Shaft, "a", {19}}));
}

TEST(ToleranceClassTest, EveryLetterWithEveryGradeIsReadAsWritten) {
    for (const FitSide side : {FitSide::Hole, FitSide::Shaft}) {
        for (const std::string& letters : LettersOf(side)) {
            for (int position = 0; position < gradeCount; ++position) {
                const ToleranceClass expected{side, letters, {position}};
                EXPECT_EQ(ParseToleranceClass(ToText(expected)).value, expected) << ToText(expected);
            }
        }
    }
}

TEST(ToleranceClassTest, TheLettersStandInTheOrderOfTheStandard) {
    EXPECT_EQ(LettersOf(FitSide::Hole),
              (std::vector<std::string>{"A", "B",  "C", "CD", "D", "E",  "EF", "F", "FG", "G",
                                        "H", "JS", "J", "K",  "M", "N",  "P",  "R", "S",  "T",
                                        "U", "V",  "X", "Y",  "Z", "ZA", "ZB", "ZC"}));
    EXPECT_EQ(LettersOf(FitSide::Shaft),
              (std::vector<std::string>{"a", "b",  "c", "cd", "d", "e",  "ef", "f", "fg", "g",
                                        "h", "js", "j", "k",  "m", "n",  "p",  "r", "s",  "t",
                                        "u", "v",  "x", "y",  "z", "za", "zb", "zc"}));
}

TEST(ToleranceClassTest, TheGradesGoFromIT01ToIT18) {
    std::string texts;
    for (int position = 0; position < gradeCount; ++position) {
        texts += ToText(Grade{position}) + " ";
        EXPECT_EQ(GradeNamed(ToText(Grade{position})), Grade{position});
    }
    EXPECT_EQ(texts, "01 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 ");
    EXPECT_LT(*GradeNamed("01"), *GradeNamed("0"));
    EXPECT_LT(*GradeNamed("9"), *GradeNamed("10"));
}

TEST(ToleranceClassTest, OutsideTheGradesThereIsNone) {
    EXPECT_EQ(ToText(Grade{-1}), "");
    EXPECT_EQ(ToText(Grade{20}), "");
    for (const char* text : {"", "19", "02", "00", "1.", "-1", " 7", "7 ", "+7", "IT7"}) {
        EXPECT_EQ(GradeNamed(text), std::nullopt) << text;
    }
}

TEST(ToleranceClassTest, SidesAreNamedInSmallLetters) {
    EXPECT_EQ(FitSideNamed("hole"), FitSide::Hole);
    EXPECT_EQ(FitSideNamed("shaft"), FitSide::Shaft);
    for (const char* text : {"", "Hole", "SHAFT", "bore", "hole "}) {
        EXPECT_EQ(FitSideNamed(text), std::nullopt) << text;
    }
}

TEST(ToleranceClassTest, WhatIsNoClassIsRefusedWithAReason) {
    struct Refused {
        const char* text;
        const char* reason;
    };
    const Refused table[] = {
        {"", "it begins with a letter, such as H in H7"},
        {"7", "it begins with a letter, such as H in H7"},
        {"7H", "it begins with a letter, such as H in H7"},
        {"H", "a grade is missing, such as 7 in H7"},
        {"js", "a grade is missing, such as 7 in H7"},
        {"H19", "there is no grade '19', only 01, 0 and 1 to 18"},
        {"H07", "there is no grade '07', only 01, 0 and 1 to 18"},
        {"H7x", "there is no grade '7x', only 01, 0 and 1 to 18"},
        {"H7 ", "there is no grade '7 ', only 01, 0 and 1 to 18"},
        {"H7/g6", "there is no grade '7/g6', only 01, 0 and 1 to 18"},
        {"H 7", "there is no letter 'H '"},
        {" H7", "there is no letter ' H'"},
        {"H-7", "there is no letter 'H-'"},
        {"Js7", "there is no letter 'Js'"},
        {"jS7", "there is no letter 'jS'"},
        {"abc", "there is no letter 'abc'"},
        {"IT7", "there is no letter 'IT'"},
    };
    for (const Refused& each : table) {
        const Parsed<ToleranceClass> read = ParseToleranceClass(each.text);
        EXPECT_FALSE(read.value) << each.text;
        EXPECT_EQ(read.error, "'" + std::string(each.text) + "' is no class of ISO 286: " + each.reason);
    }
}

TEST(ToleranceClassTest, LettersThatTheStandardLeavesOutAreRefused) {
    for (const char* letter : {"i", "I", "l", "L", "o", "O", "q", "Q", "w", "W", "zd", "ZD", "\xC3\x84"}) {
        EXPECT_EQ(ParseToleranceClass(letter + std::string("7")).error,
                  "'" + std::string(letter) + "7' is no class of ISO 286: there is no letter '" + letter +
                      "'");
    }
}

} // namespace
