// CATString: 8-bit text.

#include "CATString.h"

#include "Samples.h"

namespace {

class Strings : public PlatformTest {};

} // namespace

ASSUMED(Strings, ATextIsMadeFromAPointerAndGivenBackAsOne, "recalled: usual use of the class") {
    const CATString text("Label003");
    EXPECT_STREQ("Label003", text.ConvertToChar());
    EXPECT_STREQ("Label003", text.CastToCharPtr());
    EXPECT_EQ(8, text.GetLengthInChar());
    EXPECT_EQ(0, CATString().GetLengthInChar());
    EXPECT_STREQ("", CATString().ConvertToChar());
}

ASSUMED(Strings, ANullPointerIsTheEmptyText, "open: taken as empty rather than crashed on") {
    EXPECT_STREQ("", CATString(static_cast<const char*>(nullptr)).ConvertToChar());
    EXPECT_TRUE(CATString() == static_cast<const char*>(nullptr));
}

ASSUMED(Strings, EqualMeansTheSameBytes, "recalled: usual use of the class") {
    EXPECT_TRUE(CATString("Max") == CATString("Max"));
    EXPECT_FALSE(CATString("Max") == CATString("max"));
    EXPECT_TRUE(CATString("Max") != CATString("Maxi"));
    EXPECT_TRUE(CATString("Max") == "Max");
    EXPECT_TRUE(CATString("Max") != "Min");
}

ASSUMED(Strings, TextsAreJoined, "recalled: usual use of the class") {
    CATString text("Thread");
    text += "Frame";
    text.Append(CATString("1"));
    EXPECT_STREQ("ThreadFrame1", text.ConvertToChar());
    EXPECT_STREQ("ab", (CATString("a") + CATString("b")).ConvertToChar());
    text += text;
    EXPECT_STREQ("ThreadFrame1ThreadFrame1", text.ConvertToChar());
}

ASSUMED(Strings, ACopyIsIndependent, "recalled: usual use of the class") {
    CATString text("a");
    const CATString copy(text);
    text += "b";
    EXPECT_STREQ("a", copy.ConvertToChar());
}
