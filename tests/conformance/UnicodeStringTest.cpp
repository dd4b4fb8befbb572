// CATUnicodeString: text that a person sees.

#include "CATUnicodeString.h"

#include "DecimalComma.h"
#include "Samples.h"

#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace {

class UnicodeStrings : public PlatformTest {};

// What the C library makes of a number in the locale of the process.
std::string Printed(double iNumber) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", iNumber);
    return text;
}

} // namespace

ASSUMED(UnicodeStrings, ATextIsMadeFromAPointerAndGivenBackAsOne, "recalled: usual use of the class") {
    EXPECT_STREQ("Name", CATUnicodeString("Name").ConvertToChar());
    EXPECT_STREQ("Name", CATUnicodeString(CATString("Name")).ConvertToChar());
    EXPECT_STREQ("", CATUnicodeString().ConvertToChar());
    EXPECT_STREQ("", CATUnicodeString(static_cast<const char*>(nullptr)).ConvertToChar());
}

CERTAIN(UnicodeStrings, TheLengthCountsCharactersNotBytes) {
    EXPECT_EQ(0, CATUnicodeString().GetLengthInChar());
    EXPECT_EQ(4, CATUnicodeString("Name").GetLengthInChar());
    EXPECT_EQ(5, CATUnicodeString("\xC3\x98"
                                  "10\xC2\xB5m")
                     .GetLengthInChar());
    EXPECT_EQ(1, CATUnicodeString("\xE5\xAF\xB8").GetLengthInChar());
}

CERTAIN(UnicodeStrings, WideTextIsTaken) {
    CATUnicodeString text;
    EXPECT_EQ(3, text.BuildFromWChar(L"\u00D810"));
    EXPECT_TRUE(text == CATUnicodeString("\xC3\x98"
                                         "10"));
    EXPECT_TRUE(CATUnicodeString(L"\u5BF8") == CATUnicodeString("\xE5\xAF\xB8"));
}

CERTAIN(UnicodeStrings, EncodedTextIsTakenByItsLength) {
    CATUnicodeString text;
    EXPECT_EQ(2, text.BuildFromUTF8("\xC3\x98"
                                    "10",
                                    3));
    EXPECT_STREQ("\xC3\x98"
                 "1",
                 text.ConvertToUTF8());
}

CERTAIN(UnicodeStrings, ANumberBecomesText) {
    CATUnicodeString text;
    text.BuildFromNum(-12);
    EXPECT_STREQ("-12", text.ConvertToChar());
    text.BuildFromNum(0.021);
    EXPECT_STREQ("0.021", text.ConvertToChar());
    text.BuildFromNum(7, "%03d");
    EXPECT_STREQ("007", text.ConvertToChar());
    text.BuildFromNum(1.5, "%.3f");
    EXPECT_STREQ("1.500", text.ConvertToChar());
}

CERTAIN(UnicodeStrings, GeneralFormatDropsZerosAndRoundsToSixDigits) {
    CATUnicodeString text;
    text.BuildFromNum(0.1 + 0.2, "%g");
    EXPECT_STREQ("0.3", text.ConvertToChar());
    text.BuildFromNum(10.0, "%g");
    EXPECT_STREQ("10", text.ConvertToChar());
    text.BuildFromNum(1234567.0, "%g");
    EXPECT_STREQ("1.23457e+06", text.ConvertToChar());
}

// Many of them, of every size and with few digits and many.
CERTAIN(UnicodeStrings, GeneralFormatIsThatOfTheLanguage) {
    std::mt19937_64 random(1);
    CATUnicodeString text;
    char expected[64];
    for (int round = 0; round < 200000; ++round) {
        const auto whole = static_cast<double>(random() % 2000000);
        const auto power = static_cast<int>(random() % 24) - 12;
        const double number = (round % 2 == 0 ? whole : whole / 1048576.0) * std::pow(10.0, power);
        std::snprintf(expected, sizeof expected, "%g", number);
        text.BuildFromNum(number, "%g");
        ASSERT_STREQ(expected, text.ConvertToChar());
        text.BuildFromNum(-number, "%g");
        std::snprintf(expected, sizeof expected, "%g", -number);
        ASSERT_STREQ(expected, text.ConvertToChar());
    }
}

ASSUMED(UnicodeStrings, NumbersHaveAPointWhateverTheLocale,
        "open: what is written must be readable again, whoever's locale the process has") {
    const DecimalComma comma;
    if (!DecimalComma::IsThere())
        GTEST_SKIP() << "no locale with a decimal comma can be had";
    EXPECT_EQ("0,25", Printed(0.25));
    CATUnicodeString text;
    text.BuildFromNum(0.25);
    EXPECT_STREQ("0.25", text.ConvertToChar());
    double number = 0.0;
    EXPECT_EQ(0, CATUnicodeString("0.25").ConvertToNum(&number));
    EXPECT_DOUBLE_EQ(0.25, number);
}

ASSUMED(UnicodeStrings, TextBecomesANumberWhenAllOfItIsOne,
        "documented is that text converts to a number; 0 for done and -1 for refused are the choice") {
    for (const char* good : {"1.5", "+1.5", "15e-1", "1.50"}) {
        double number = 0.0;
        EXPECT_EQ(0, CATUnicodeString(good).ConvertToNum(&number)) << good;
        EXPECT_DOUBLE_EQ(1.5, number) << good;
    }
    double number = 0.0;
    EXPECT_EQ(0, CATUnicodeString("-2").ConvertToNum(&number));
    EXPECT_DOUBLE_EQ(-2.0, number);
    for (const char* bad : {"", " ", "1,5", "1.5mm", "mm", "--1", "+-1", "++1", "+", "nan", "inf", "1e999"}) {
        number = 7.0;
        EXPECT_NE(0, CATUnicodeString(bad).ConvertToNum(&number)) << bad;
        EXPECT_DOUBLE_EQ(7.0, number) << bad;
    }
}

CERTAIN(UnicodeStrings, EqualMeansTheIdenticalText) {
    EXPECT_TRUE(CATUnicodeString("M10") == CATUnicodeString("M10"));
    EXPECT_FALSE(CATUnicodeString("M10") == CATUnicodeString("m10"));
    EXPECT_FALSE(CATUnicodeString("M10") == CATUnicodeString("M10 "));
    EXPECT_TRUE(CATUnicodeString("M10") != CATUnicodeString("M1"));
    EXPECT_TRUE(CATUnicodeString("M10") == "M10");
}

CERTAIN(UnicodeStrings, InsertingAtOneGoesBehindTheFirstCharacter) {
    CATUnicodeString text("()");
    text.Insert(1, "H7");
    EXPECT_STREQ("(H7)", text.ConvertToChar());
}

CERTAIN(UnicodeStrings, InsertingCountsCharacters) {
    CATUnicodeString text("\xC3\x98"
                          "10");
    text.Insert(1, " ");
    EXPECT_STREQ("\xC3\x98 10", text.ConvertToChar());
    text.Insert(0, text);
    EXPECT_STREQ("\xC3\x98 10\xC3\x98 10", text.ConvertToChar());
}

ASSUMED(UnicodeStrings, InsertingOutsideGoesToTheNearerEnd, "open: nothing is lost that way") {
    CATUnicodeString text("b");
    text.Insert(9, "c");
    text.Insert(-1, "a");
    EXPECT_STREQ("abc", text.ConvertToChar());
}

ASSUMED(UnicodeStrings, APartIsTakenFromAPositionCountedFromZero, "recalled: usual use of the class") {
    const CATUnicodeString text("\xC3\x98"
                                "10 H7");
    EXPECT_STREQ("10", text.SubString(1, 2).ConvertToChar());
    EXPECT_STREQ("\xC3\x98", text.SubString(0, 1).ConvertToChar());
    EXPECT_STREQ("H7", text.SubString(4, 99).ConvertToChar());
    EXPECT_STREQ("", text.SubString(6, 1).ConvertToChar());
    EXPECT_STREQ("", text.SubString(99, 1).ConvertToChar());
    EXPECT_STREQ("", text.SubString(-1, 2).ConvertToChar());
    EXPECT_STREQ("", text.SubString(1, 0).ConvertToChar());
    EXPECT_STREQ("10 H7", text.SubString(1, 2147483647).ConvertToChar());
}

ASSUMED(UnicodeStrings, AFoundTextIsToldByItsPosition, "recalled: 0-based position, or -1") {
    const CATUnicodeString text("\xC3\x98"
                                "10 10");
    EXPECT_EQ(1, text.SearchSubString("10"));
    EXPECT_EQ(4, text.SearchSubString("10", 2));
    EXPECT_EQ(-1, text.SearchSubString("10", 5));
    EXPECT_EQ(-1, text.SearchSubString("11"));
}

ASSUMED(UnicodeStrings, TextsAreJoined, "recalled: usual use of the class") {
    CATUnicodeString text("10");
    text += "mm";
    text.Append(CATUnicodeString("!"));
    EXPECT_STREQ("10mm!", text.ConvertToChar());
    EXPECT_STREQ("ab", (CATUnicodeString("a") + CATUnicodeString("b")).ConvertToChar());
    text.Append(text);
    EXPECT_STREQ("10mm!10mm!", text.ConvertToChar());
}
