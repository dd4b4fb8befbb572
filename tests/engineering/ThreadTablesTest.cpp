// Threads are found by the designation that a person writes.

#include "engineering/ThreadTables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace engineering;
using Names = std::vector<std::string>;

Thread Size(const char* designation, double pitch) {
    Thread thread;
    thread.designation = designation;
    thread.pitch = pitch;
    return thread;
}

class ThreadTablesTest : public testing::Test {
  protected:
    // The designation that answers for what a person writes, with its standard.
    std::string Answer(const std::string& written) const {
        const FoundThread found = tables.Find(written);
        EXPECT_EQ(found.thread == nullptr, found.standard == nullptr);
        return found.thread == nullptr ? "none" : found.standard->name + ": " + found.thread->designation;
    }

    Names Nearest(const char* written, std::size_t count) const {
        Names names;
        for (const FoundThread& found : tables.Nearest(written, count)) {
            names.push_back(found.thread->designation);
        }
        return names;
    }

    const ThreadTables tables{{
        {"Coarse", "ISO 261", {Size("M1", 0.25), Size("M1.6", 0.35), Size("M10", 1.5), Size("M64", 6)}},
        {"Fine", "ISO 261", {Size("M10x1", 1), Size("M10x1.25", 1.25), Size("M64x4", 4)}},
        {"UNC",
         "ASME B1.1",
         {Size("#4-40 UNC", 0.635), Size("1/4-20 UNC", 1.27), Size("1 1/8-7 UNC", 3.62857),
          Size("1 3/8-6 UNC", 4.23333)}},
        {"G", "ISO 228-1", {Size("G1/2", 1.814), Size("G1", 2.309), Size("G1 1/4", 2.309)}},
    }};
};

TEST_F(ThreadTablesTest, FindsADesignationAsTheTableWritesIt) {
    EXPECT_EQ(Answer("M10"), "Coarse: M10");
    EXPECT_EQ(Answer("M1.6"), "Coarse: M1.6");
    EXPECT_EQ(Answer("M10x1.25"), "Fine: M10x1.25");
    EXPECT_EQ(Answer("#4-40 UNC"), "UNC: #4-40 UNC");
    EXPECT_EQ(Answer("1 1/8-7 UNC"), "UNC: 1 1/8-7 UNC");
    EXPECT_EQ(Answer("G1/2"), "G: G1/2");
    EXPECT_EQ(Answer("G1 1/4"), "G: G1 1/4");
}

TEST_F(ThreadTablesTest, PassesOverBlanksAndCase) {
    for (const char* written : {"M 10", "m10", " m  10 ", "M\t10",
                                "M\xC2\xA0"
                                "10"}) {
        EXPECT_EQ(Answer(written), "Coarse: M10") << written;
    }
    for (const char* written : {"1/4-20unc", "1/4-20 Unc", "1/4 - 20 UNC", " 1 / 4-20UNC"}) {
        EXPECT_EQ(Answer(written), "UNC: 1/4-20 UNC") << written;
    }
    EXPECT_EQ(Answer("# 4 - 40 unc"), "UNC: #4-40 UNC");
    EXPECT_EQ(Answer("g 1/2"), "G: G1/2");
    EXPECT_EQ(Answer("G 1 1/4"), "G: G1 1/4");
    EXPECT_EQ(Answer("g 1   1/4"), "G: G1 1/4");
}

TEST_F(ThreadTablesTest, TakesACommaATimesSignAndZerosAtTheEnd) {
    for (const char* written : {"M10X1,25", "M10x1,25", "M 10 x 1,25",
                                "M10\xC3\x97"
                                "1.25",
                                "m10x1.250"}) {
        EXPECT_EQ(Answer(written), "Fine: M10x1.25") << written;
    }
    EXPECT_EQ(Answer("M1,6"), "Coarse: M1.6");
    EXPECT_EQ(Answer("M1.60"), "Coarse: M1.6");
    EXPECT_EQ(Answer("M10x1,0"), "Fine: M10x1");
    EXPECT_EQ(Answer("M10.0"), "Coarse: M10");
}

TEST_F(ThreadTablesTest, TakesTheCoarsePitchSaidExplicitly) {
    EXPECT_EQ(Answer("M10x1.5"), "Coarse: M10");
    EXPECT_EQ(Answer("m 10 X 1,50"), "Coarse: M10");
    EXPECT_EQ(Answer("M1x0.25"), "Coarse: M1");
    EXPECT_EQ(Answer("M1.6x0.35"), "Coarse: M1.6");
    EXPECT_EQ(Answer("M64x6"), "Coarse: M64");
    EXPECT_EQ(Answer("M64x4"), "Fine: M64x4");
    EXPECT_EQ(Answer("G1x2.309"), "none");
}

TEST_F(ThreadTablesTest, ADesignationOfATableGoesBeforeACoarseOneWithItsPitch) {
    const ThreadTables both{{{"Coarse", "", {Size("M10", 1.5)}}, {"Own", "", {Size("M10x1.5", 1.5)}}}};
    EXPECT_EQ(both.Find("M10x1.5").standard->name, "Own");
    EXPECT_EQ(both.Find("M10").standard->name, "Coarse");
}

TEST_F(ThreadTablesTest, TheBlankOfAMixedNumberCounts) {
    EXPECT_EQ(Answer("11/8-7 UNC"), "none");
    EXPECT_EQ(Answer("G11/4"), "none");
    EXPECT_EQ(Answer("M1 0"), "none");
}

TEST_F(ThreadTablesTest, FindsNothingForWhatIsNoThread) {
    for (const char* written : {"", " ", "M", "M11", "M10x", "M10x2", "M10x1.5.", "10", "1/4-20", "M10.",
                                "M100", "x", "M10M10", "G1 1/2", "1/4-20 UNF", "M-10", "\xFF", "M10x1..25"}) {
        EXPECT_EQ(Answer(written), "none") << written;
    }
    EXPECT_EQ(Answer(std::string(100000, '1')), "none");
}

TEST_F(ThreadTablesTest, FindsNothingWithoutThreads) {
    EXPECT_EQ(ThreadTables().Find("M10").thread, nullptr);
    EXPECT_EQ(ThreadTables().Find("M10").standard, nullptr);
    EXPECT_TRUE(ThreadTables().Nearest("M10", 3).empty());
}

TEST_F(ThreadTablesTest, KnowsStandardsByTheirExactName) {
    ASSERT_NE(tables.Standard("UNC"), nullptr);
    EXPECT_EQ(tables.Standard("UNC")->standard, "ASME B1.1");
    EXPECT_EQ(tables.Standard("unc"), nullptr);
    EXPECT_EQ(tables.Standard(""), nullptr);
    EXPECT_EQ(tables.Standards().size(), 4U);
}

TEST_F(ThreadTablesTest, AStandardKnowsThePositionOfAnExactDesignation) {
    const ThreadStandard& coarse = *tables.Standard("Coarse");
    EXPECT_EQ(coarse.PositionOf("M1"), 0);
    EXPECT_EQ(coarse.PositionOf("M64"), 3);
    EXPECT_EQ(coarse.PositionOf("m64"), -1);
    EXPECT_EQ(coarse.PositionOf("M10x1"), -1);
}

TEST_F(ThreadTablesTest, FindsTheSameThreadsOnceCopiedOrMoved) {
    ThreadTables copy = tables;
    EXPECT_EQ(copy.Find("m10x1.5").standard, &copy.Standards()[0]);
    const ThreadTables moved = std::move(copy);
    EXPECT_EQ(moved.Find("m10x1.5").thread, &moved.Standards()[0].threads[2]);
}

TEST_F(ThreadTablesTest, NamesTheNearestDesignationsLikestFirst) {
    EXPECT_EQ(Nearest("M10x1.26", 2), Names({"M10x1.25", "M10x1"}));
    EXPECT_EQ(Nearest("m 65", 1), Names({"M64"}));
    EXPECT_EQ(Nearest("1/4-21 UNC", 1), Names({"1/4-20 UNC"}));
    EXPECT_EQ(Nearest("G 1 1/2", 1), Names({"G1 1/4"}));
    EXPECT_EQ(Nearest("M1", 0), Names{});
    EXPECT_EQ(Nearest("M1", 100).size(), 14U);
}

} // namespace
