#include "session/Script.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using session::Reading;
using session::ReadScript;
using session::Vocabulary;

Reading Read(const std::string& iText) {
    std::istringstream input(iText);
    return ReadScript(input, "s.jsonl", Vocabulary());
}

std::vector<int> LinesOf(const Reading& iReading) {
    std::vector<int> lines;
    if (iReading.script)
        for (const session::Step& step : iReading.script->steps)
            lines.push_back(step.line);
    return lines;
}

TEST(ScriptTest, BlankLinesAndCommentsSayNothingAndAreCounted) {
    const Reading reading = Read("\xEF\xBB\xBF# a tour\r\n"
                                 "\r\n"
                                 "{\"do\":\"close\",\"at\":\"Panel\"}\r\n"
                                 "   \t\n"
                                 "{\"expect\":\"exists\",\"at\":\"Panel\",\"is\":true}");
    EXPECT_EQ(reading.problem, "");
    EXPECT_EQ(LinesOf(reading), (std::vector<int>{3, 5}));
}

TEST(ScriptTest, AnEmptyFileIsASessionWithoutSteps) {
    const Reading reading = Read("");
    EXPECT_TRUE(reading.script.has_value());
    EXPECT_EQ(LinesOf(reading), std::vector<int>());
}

TEST(ScriptTest, AStepKnowsItsWord) {
    const Reading reading =
        Read("{\"at\":\"A\",\"do\":\"close\"}\n{\"expect\":\"widget\",\"at\":\"A\",\"is\":\"B\"}\n");
    ASSERT_TRUE(reading.script) << reading.problem;
    EXPECT_EQ(reading.script->steps[0].Word(), "close");
    EXPECT_FALSE(reading.script->steps[0].IsExpectation());
    EXPECT_EQ(reading.script->steps[1].Word(), "widget");
    EXPECT_TRUE(reading.script->steps[1].IsExpectation());
}

struct Bad {
    const char* why;
    const char* line;
    const char* problem; // behind "s.jsonl:2: "
};

void PrintTo(const Bad& iBad, std::ostream* ioStream) {
    *ioStream << iBad.why;
}

class BadLineTest : public testing::TestWithParam<Bad> {};

// The line before is in order, so that the number of the line means something.
TEST_P(BadLineTest, IsToldWithFileAndLine) {
    const Reading reading = Read(std::string("{\"do\":\"close\",\"at\":\"A\"}\n") + GetParam().line + "\n");
    EXPECT_FALSE(reading.script.has_value());
    EXPECT_EQ(reading.problem.substr(0, std::string("s.jsonl:2: ").size()), "s.jsonl:2: ");
    EXPECT_NE(reading.problem.find(GetParam().problem), std::string::npos) << reading.problem;
    EXPECT_EQ(reading.problem.find('\n'), std::string::npos);
}

const Bad badLines[] = {
    {"a brace is missing", R"({"do":"press","at":"A")", "not JSON: "},
    {"text behind the object", R"({"do":"close","at":"A"} x)", "not JSON: "},
    {"a text that is not UTF-8", "{\"do\":\"close\",\"at\":\"\xFF\"}", "not JSON: "},
    {"no object", R"(["do","press"])", R"(a step is an object in braces, not ["do","press"])"},
    {"neither do nor expect", R"({"at":"A"})", "a step has the key 'do' or the key 'expect'"},
    {"both", R"({"do":"close","expect":"text","at":"A"})", "'do' or the key 'expect', not both"},
    {"do is a number", R"({"do":1})", "the key 'do' takes a text, not 1"},
    {"unknown step", R"({"do":"jump","at":"A"})", "unknown step 'jump'; there are activate, answer, check, "},
    {"unknown expectation", R"({"expect":"colour","at":"A","is":1})",
     "unknown expectation 'colour'; there are cell, "},
    {"unknown key", R"({"do":"press","at":"A","line":1})", "the step 'press' takes no key 'line'"},
    {"missing key", R"({"do":"type","at":"A"})", "the step 'type' needs the key 'text'"},
    {"missing path", R"({"do":"press"})", "the step 'press' needs the key 'at'"},
    {"missing value", R"({"expect":"text","at":"A"})", "the expectation 'text' needs the key 'is'"},
    {"neither line nor text", R"({"do":"choose","at":"A"})", "needs the key 'line' or 'text'"},
    {"line and text", R"({"do":"choose","at":"A","line":1,"text":"B"})",
     "needs only one of the keys 'line' or 'text'"},
    {"path is a number", R"({"do":"press","at":1})", "the key 'at' of the step 'press' takes a text, not 1"},
    {"negative line", R"({"do":"choose","at":"A","line":-1})", "takes a whole number from 0 on, not -1"},
    {"broken line number", R"({"do":"choose","at":"A","line":1.5})",
     "takes a whole number from 0 on, not 1.5"},
    {"number beyond all lines", R"({"do":"choose","at":"A","line":99999999999})", "not 99999999999"},
    {"steps is a text", R"({"do":"spin","at":"A","steps":"2"})", "takes a whole number, not \"2\""},
    {"rows is a number", R"({"do":"select","at":"A","rows":1})",
     "takes a list of whole numbers from 0 on, not 1"},
    {"rows holds a text", R"({"do":"select","at":"A","rows":["x"]})",
     "takes a list of whole numbers from 0 on"},
    {"is no boolean", R"({"expect":"shown","at":"A","is":"yes"})", "takes true or false, not \"yes\""},
    {"is no rows", R"({"expect":"rows","at":"A","is":["x"]})",
     "takes a whole number from 0 on or a list of lists of texts"},
    {"with is no object", R"({"expect":"notified","class":"A","with":1})",
     "takes an object in braces, not 1"},
    {"unknown button", R"({"do":"press","at":"A","button":"Maybe"})",
     "takes OK, Cancel, Apply, Close or Help, not \"Maybe\""},
    {"a key twice", R"({"do":"close","at":"A","at":"B"})", "the key 'at' is there twice"},
    {"a step of another command", R"({"do":"pick","element":"Face.1"})", "unknown step 'pick'"},
};

INSTANTIATE_TEST_SUITE_P(Lines, BadLineTest, testing::ValuesIn(badLines));

TEST(ScriptTest, AnInnerObjectMayUseTheKeysOfTheStepAgain) {
    EXPECT_EQ(Read(R"({"expect":"notified","class":"A","with":{"class":"B","at":"C"}})").problem, "");
}

TEST(ScriptTest, AFileThatIsNotThereIsToldWithItsName) {
    const support::TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / "none.jsonl";
    EXPECT_EQ(ReadScript(file, Vocabulary()).problem, file.string() + ": cannot be read");
}

TEST(ScriptTest, AFolderIsNoSession) {
    const support::TemporaryFolder folder;
    EXPECT_EQ(ReadScript(folder.Path(), Vocabulary()).problem,
              folder.Path().string() + ": is a folder, not a session");
}

TEST(ScriptTest, AFileIsReadWithItsName) {
    const support::TemporaryFolder folder;
    folder.Write("tour.jsonl", "{\"do\":\"close\",\"at\":\"A\"}\n");
    const Reading reading = ReadScript(folder.Path() / "tour.jsonl", Vocabulary());
    ASSERT_TRUE(reading.script) << reading.problem;
    EXPECT_EQ(reading.script->file, (folder.Path() / "tour.jsonl").string());
}

TEST(VocabularyTest, ACommandAddsItsOwnStep) {
    Vocabulary vocabulary;
    const auto step = session::Json::parse(R"({"do":"pick","element":"Face.1"})");
    EXPECT_NE(vocabulary.Fault(step), "");
    vocabulary.AddStep({"pick", {{"element"}}});
    EXPECT_EQ(vocabulary.Fault(step), "");
    EXPECT_EQ(vocabulary.Fault(session::Json::parse(R"({"do":"pick"})")),
              "the step 'pick' needs the key 'element'");
}

} // namespace
