// Accepted texts are compared whole; what differs is shown line by line and kept beside them.

#include "support/GoldenFolder.h"

#include "support/LineDiff.h"
#include "support/TemporaryFolder.h"

using namespace support;

namespace {

using Texts = std::vector<std::string>;

class GoldenFolderTest : public testing::Test {
  protected:
    testing::AssertionResult Compare(const std::string& iName, const std::string& iActual) const {
        return GoldenFolder(_folder.Path() / "golden", false).Matches(iName, iActual);
    }
    testing::AssertionResult Accept(const std::string& iName, const std::string& iActual) const {
        return GoldenFolder(_folder.Path() / "golden", true).Matches(iName, iActual);
    }
    Texts Orphans() const {
        return GoldenFolder(_folder.Path() / "golden", false).Orphans(_folder.Path() / "tests");
    }
    bool Has(const std::string& iName) const { return _folder.Has(iName); }

    const TemporaryFolder _folder;
};

TEST_F(GoldenFolderTest, PassesAnEqualTextAndLeavesNothing) {
    _folder.Write("golden/Panel.txt", "a\nb\n");
    EXPECT_TRUE(Compare("Panel", "a\nb\n"));
    EXPECT_FALSE(Has("golden/Panel.txt.new"));
}

TEST_F(GoldenFolderTest, ShowsTheDifferenceAndKeepsTheTextBesideTheAcceptedOne) {
    _folder.Write("golden/Panel.txt", "a\nb\nc\n");
    const testing::AssertionResult result = Compare("Panel", "a\nB\nc\n");
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("Panel.txt differs:\n-2: b\n+2: B\n"), std::string::npos)
        << result.message();
    EXPECT_EQ(_folder.Read("golden/Panel.txt.new"), "a\nB\nc\n");
    EXPECT_EQ(_folder.Read("golden/Panel.txt"), "a\nb\nc\n");
}

TEST_F(GoldenFolderTest, RefusesATextThatWasNeverAccepted) {
    const testing::AssertionResult result = Compare("Panel", "a\n");
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("is not accepted yet:\n+1: a\n"), std::string::npos);
    EXPECT_EQ(_folder.Read("golden/Panel.txt.new"), "a\n");
}

TEST_F(GoldenFolderTest, AcceptsATextOnRequestAndTakesTheProposalAway) {
    EXPECT_FALSE(Compare("Panel", "a\n"));
    EXPECT_TRUE(Accept("Panel", "a\n"));
    EXPECT_FALSE(Has("golden/Panel.txt.new"));
    EXPECT_TRUE(Compare("Panel", "a\n"));
    EXPECT_FALSE(Compare("Panel", "b\n"));
}

TEST_F(GoldenFolderTest, TakesNoNameThatLeavesTheFolder) {
    EXPECT_FALSE(Accept("../Panel", "a\n"));
    EXPECT_FALSE(Accept("", "a\n"));
    EXPECT_FALSE(Has("Panel.txt"));
}

TEST_F(GoldenFolderTest, CallsATextThatNoSourceNamesAnOrphan) {
    _folder.Write("tests/PanelTest.cpp",
                  "MatchesGolden(\"Panel\", text); MatchesGolden(\"Mode-\" + mode, text);");
    _folder.Write("golden/Panel.txt", "");
    _folder.Write("golden/Mode-1.txt", "");
    EXPECT_EQ(Orphans(), Texts());
    _folder.Write("golden/Pane.txt", "");
    _folder.Write("golden/Other-1.txt", "");
    EXPECT_EQ(Orphans(), Texts({"Other-1", "Pane"}));
}

TEST(LineDiffTest, IsEmptyForEqualTexts) {
    EXPECT_EQ(LineDiff("a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(LineDiff("", ""), "");
}

TEST(LineDiffTest, NamesLinesThatCameAndLinesThatWent) {
    EXPECT_EQ(LineDiff("a\nb\nc\n", "b\nc\nd\n"), "-1: a\n+3: d\n");
    EXPECT_EQ(LineDiff("", "a\n"), "+1: a\n");
    EXPECT_EQ(LineDiff("a\n", ""), "-1: a\n");
}

TEST(LineDiffTest, ShowsAMissingLineBreakAtTheEnd) {
    EXPECT_EQ(LineDiff("a\n", "a"), "-1: a\n+1: a  (no line break)\n");
}

} // namespace
