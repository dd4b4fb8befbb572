// The line form of message files: what is read, and what is told of a line that does not follow it.

#include "host/MessageCatalogs.h"

#include "support/AuditedTest.h"
#include "support/TemporaryFolder.h"

namespace {

using host::MessageCatalogs;

class MessageFileTest : public support::AuditedTest {
  protected:
    void TearDown() override {
        MessageCatalogs::Reset();
        AuditedTest::TearDown();
    }

    // All entries of a file with the content iContent, as "key=text", in alphabetical order of the keys.
    std::vector<std::string> Read(const std::string& iContent) {
        folder.Write("File.CATNls", iContent);
        MessageCatalogs::Reset();
        MessageCatalogs::AddFolder(folder.Path().string());
        std::vector<std::string> entries;
        for (const std::string& key : MessageCatalogs::Keys("File", ""))
            entries.push_back(key + "=" + MessageCatalogs::Text("File", key).value_or("(none)"));
        return entries;
    }
    // The problems of the file read last, as "line: message".
    std::vector<std::string> Problems() {
        std::vector<std::string> problems;
        for (const host::CatalogProblem& problem : MessageCatalogs::Problems()) {
            EXPECT_EQ((folder.Path() / "File.CATNls").string(), problem.file);
            problems.push_back(std::to_string(problem.line) + ": " + problem.message);
        }
        return problems;
    }

    support::TemporaryFolder folder;
};

typedef std::vector<std::string> Lines;

} // namespace

TEST_F(MessageFileTest, BlanksAroundTheSignsDoNotCount) {
    EXPECT_EQ((Lines{"A=1", "B.Title=2", "C=3"}), Read("A=\"1\";\n\t B.Title \t = \t \"2\" ;\nC = \"3\";"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, SeveralEntriesStandOnOneLine) {
    EXPECT_EQ((Lines{"A=1", "B=2"}), Read("A = \"1\"; B = \"2\";"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, AnEmptyFileHasNoEntriesAndNoProblems) {
    EXPECT_EQ(Lines(), Read(""));
    EXPECT_EQ(Lines(), Read("\n\n  \n// only a comment"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, AMarkOfTheEncodingIsSkipped) {
    EXPECT_EQ(Lines{"A=1"}, Read("\xEF\xBB\xBF"
                                 "A = \"1\";\n"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, LinesMayEndWithCarriageReturns) {
    EXPECT_EQ((Lines{"A=1", "B=one\ntwo"}), Read("// note\r\nA = \"1\";\r\nB = \"one\r\ntwo\";\r\n"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, CommentsStandAnywhereOutsideQuotes) {
    EXPECT_EQ((Lines{"A=1 // 2", "B=3"}), Read("// A = \"0\";\nA = // here\n\"1 // 2\" // there\n; // end\n"
                                               "//\nB = \"3\";//"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, EscapesAreUndone) {
    EXPECT_EQ(Lines{"A=a\nb\tc\"d\\e"}, Read("A = \"a\\nb\\tc\\\"d\\\\e\";\n"));
    EXPECT_EQ(Lines{"A=a\\qb"}, Read("A = \"a\\qb\";\n")); // an unknown one stays as written
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, ATextGoesOverSeveralLines) {
    EXPECT_EQ((Lines{"A=one\n  two\n\nthree;", "B=2"}), Read("A = \"one\n  two\n\nthree;\";\nB = \"2\";\n"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, ATextMayBeginOnTheNextLine) {
    EXPECT_EQ(Lines{"A=1"}, Read("A =\n    \"1\";\n"));
    EXPECT_EQ(Lines(), Problems());
}

TEST_F(MessageFileTest, AnEntryWithoutKeyIsToldAndTheRestIsRead) {
    EXPECT_EQ((Lines{"A=1", "B=2"}), Read("A = \"1\";\n = \"x\";\nB = \"2\";\n"));
    EXPECT_EQ(Lines{"2: a key is expected"}, Problems());
}

TEST_F(MessageFileTest, AKeyWithoutEqualSignIsToldAndTheRestIsRead) {
    EXPECT_EQ((Lines{"A=1", "B=2", "C=3"}),
              Read("A = \"1\";\nlonely\nB = \"2\";\nOther \"x\";\nC = \"3\";\n"));
    EXPECT_EQ(
        (Lines{"2: '=' is expected after the key 'lonely'", "4: '=' is expected after the key 'Other'"}),
        Problems());
}

TEST_F(MessageFileTest, ATextWithoutQuotesIsToldAndTheRestIsRead) {
    EXPECT_EQ((Lines{"A=1", "B=2", "C=3"}), Read("A = \"1\";\nX = bare;\nB = \"2\";\nY = ;\nC = \"3\";\n"));
    EXPECT_EQ((Lines{"2: the text of 'X' is not in quotes", "4: the text of 'Y' is not in quotes"}),
              Problems());
}

TEST_F(MessageFileTest, AMissingTextCostsTheNextLineNothing) {
    EXPECT_EQ((Lines{"A=1", "B=2"}), Read("A = \"1\";\nX =\nB = \"2\";\n"));
    EXPECT_EQ(Lines{"2: the text of 'X' is not in quotes"}, Problems());
}

TEST_F(MessageFileTest, AMissingSemicolonIsToldAndTheTextIsKept) {
    EXPECT_EQ((Lines{"A=1", "B=2", "C=3"}), Read("A = \"1\"\nB = \"2\";\nC = \"3\""));
    EXPECT_EQ((Lines{"1: ';' is missing after the text of 'A'", "3: ';' is missing after the text of 'C'"}),
              Problems());
}

TEST_F(MessageFileTest, AMissingClosingQuoteAtTheEndIsToldWithTheLineOfItsKey) {
    EXPECT_EQ((Lines{"A=1", "B=2"}), Read("A = \"1\";\nB = \"2\";\nX = \"open;\nand on\n"));
    EXPECT_EQ(Lines{"3: the text of 'X' has no closing quote"}, Problems());
}

TEST_F(MessageFileTest, AMissingClosingQuoteInTheMiddleIsToldAndWhatFollowsTheNextEntryIsRead) {
    EXPECT_EQ((Lines{"A=1", "C=3", "X=open;\nB = "}),
              Read("A = \"1\";\nX = \"open;\nB = \"2\";\nC = \"3\";\n"));
    const Lines problems = Problems();
    ASSERT_FALSE(problems.empty());
    EXPECT_EQ("2: ';' is missing after the text of 'X'", problems.front());
}

TEST_F(MessageFileTest, OfTwoEqualKeysTheFirstCountsAndTheSecondIsTold) {
    EXPECT_EQ((Lines{"A=first", "B=2"}), Read("A = \"first\";\nB = \"2\";\nA = \"second\";\n"));
    EXPECT_EQ(Lines{"3: the key 'A' is there already"}, Problems());
}

TEST_F(MessageFileTest, LinesAreCountedThroughCommentsTextsAndCarriageReturns) {
    Read("// one\r\nA = \"a\r\nb\";\r\n\r\nlonely\r\n");
    EXPECT_EQ(Lines{"5: '=' is expected after the key 'lonely'"}, Problems());
}

TEST_F(MessageFileTest, AFileThatIsReadAgainTellsItsProblemsOnce) {
    Read("lonely\n");
    MessageCatalogs::SetLanguage("German");
    static_cast<void>(MessageCatalogs::Text("File", "A"));
    MessageCatalogs::SetLanguage("");
    static_cast<void>(MessageCatalogs::Text("File", "A"));
    EXPECT_EQ(Lines{"1: '=' is expected after the key 'lonely'"}, Problems());
}

TEST_F(MessageFileTest, BytesThatAreNoTextAreSurvived) {
    std::string noise;
    for (int value = 0; value < 256; ++value)
        noise.push_back(static_cast<char>(value));
    EXPECT_EQ(Lines{"A=1"}, Read("A = \"1\";\n" + noise));
    EXPECT_FALSE(Problems().empty());
}
