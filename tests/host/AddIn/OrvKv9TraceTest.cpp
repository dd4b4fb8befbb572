#include "OrvKv9Trace.h"

#include "host/Trace.h"

#include <gtest/gtest.h>

namespace {

using host::Trace;
using host::TraceLine;

typedef std::vector<TraceLine> Lines;

class OrvKv9TraceTest : public testing::Test {
  protected:
    OrvKv9TraceTest() { Trace::AddSink(sink); }
    ~OrvKv9TraceTest() override { Trace::Reset(); }

    // The add-in's trace takes texts that it could change; it does not.
    static char* Text(const char* iText) { return const_cast<char*>(iText); }

    host::RecorderSink sink;
};

TEST_F(OrvKv9TraceTest, PrintsATextAsItIs) {
    OrvKv9Trace::Print(Text("OrvKv9Errors"), 1, Text("100%s of %d\n"));
    EXPECT_EQ(sink.Lines(), (Lines{{"OrvKv9Errors", 1, "100%s of %d\n"}}));
}

TEST_F(OrvKv9TraceTest, PrintsArgumentsByAFormat) {
    OrvKv9Trace::PrintV(Text("C"), 2, Text("%s has %d lines, %5.2f%% and %x"), "Mul", 3, 12.345, 255U);
    OrvKv9Trace::PrintV(Text("C"), 2, Text("no arguments"));
    OrvKv9Trace::PrintV(Text("C"), 2, Text(""));
    EXPECT_EQ(sink.Lines(),
              (Lines{{"C", 2, "Mul has 3 lines, 12.35% and ff"}, {"C", 2, "no arguments"}, {"C", 2, ""}}));
}

TEST_F(OrvKv9TraceTest, TakesNullPointersForEmptyTexts) {
    OrvKv9Trace::Print(nullptr, 1, Text("text"));
    OrvKv9Trace::Print(Text("C"), 1, nullptr);
    OrvKv9Trace::PrintV(nullptr, 1, Text("%d"), 5);
    OrvKv9Trace::PrintV(Text("C"), 1, nullptr, 5);
    EXPECT_EQ(sink.Lines(), (Lines{{"", 1, "text"}, {"C", 1, ""}, {"", 1, "5"}, {"C", 1, ""}}));
}

TEST_F(OrvKv9TraceTest, PrintsTextsOfAnyLength) {
    const std::string text(300000, 'x');
    OrvKv9Trace::PrintV(Text("C"), 1, Text("<%s>"), text.c_str());
    ASSERT_EQ(sink.Lines().size(), 1U);
    EXPECT_EQ(sink.Lines().front().text, "<" + text + ">");
}

TEST_F(OrvKv9TraceTest, KeepsToTheLevels) {
    Trace::SetLevel("C", 1);
    OrvKv9Trace::Print(Text("C"), 2, Text("held back"));
    OrvKv9Trace::PrintV(Text("C"), 2, Text("held back"));
    OrvKv9Trace::Print(Text("C"), 1, Text("passes"));
    OrvKv9Trace::PrintV(Text("C"), 1, Text("passes too"));
    EXPECT_EQ(sink.Lines(), (Lines{{"C", 1, "passes"}, {"C", 1, "passes too"}}));
}

} // namespace
