#include "host/Trace.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace {

using host::FileSink;
using host::RecorderSink;
using host::StandardErrorSink;
using host::Trace;
using host::TraceLine;

typedef std::vector<TraceLine> Lines;

class TraceTest : public testing::Test {
  protected:
    TraceTest() { unsetenv("KELVANE_TRACE"); }
    ~TraceTest() override {
        Trace::Reset();
        unsetenv("KELVANE_TRACE");
    }
};

TEST_F(TraceTest, ReachesEachSinkInTurn) {
    RecorderSink first;
    RecorderSink second;
    Trace::AddSink(first);
    Trace::AddSink(second);
    EXPECT_EQ(Trace::SinkCount(), 2);
    Trace::Write({"OrvKv9Errors", 1, "text"});
    EXPECT_EQ(first.Lines(), (Lines{{"OrvKv9Errors", 1, "text"}}));
    EXPECT_EQ(second.Lines(), first.Lines());
}

TEST_F(TraceTest, ReachesNoSinkThatIsRemoved) {
    RecorderSink sink;
    Trace::AddSink(sink);
    Trace::Write({"C", 1, "before"});
    Trace::RemoveSink(sink);
    Trace::RemoveSink(sink);
    Trace::Write({"C", 1, "after"});
    EXPECT_EQ(sink.Lines(), (Lines{{"C", 1, "before"}}));
    EXPECT_EQ(Trace::SinkCount(), 0);
    sink.Clear();
    EXPECT_TRUE(sink.Lines().empty());
}

TEST_F(TraceTest, LetsEveryLevelPassUntilOneIsSet) {
    for (const int level : {-1, 0, 1, 5, 1000000})
        EXPECT_TRUE(Trace::Passes("C", level)) << level;
}

TEST_F(TraceTest, LetsLevelsPassUpToThatOfTheChannelAndElseUpToTheCommonOne) {
    Trace::SetLevel("OrvKv9Errors", 2);
    Trace::SetLevel("", 1);
    EXPECT_TRUE(Trace::Passes("OrvKv9Errors", 2));
    EXPECT_FALSE(Trace::Passes("OrvKv9Errors", 3));
    EXPECT_TRUE(Trace::Passes("Other", 1));
    EXPECT_FALSE(Trace::Passes("Other", 2));
    EXPECT_FALSE(Trace::Passes("orvkv9errors", 2)) << "names are compared exactly";
    RecorderSink sink;
    Trace::AddSink(sink);
    Trace::Write({"Other", 2, "held back"});
    Trace::Write({"Other", 1, "passes"});
    EXPECT_EQ(sink.Lines(), (Lines{{"Other", 1, "passes"}}));
}

TEST_F(TraceTest, TakesLevelsFromAText) {
    EXPECT_TRUE(Trace::SetLevels("OrvKv9Errors:3,1,A:B:2"));
    EXPECT_TRUE(Trace::Passes("OrvKv9Errors", 3));
    EXPECT_FALSE(Trace::Passes("OrvKv9Errors", 4));
    EXPECT_FALSE(Trace::Passes("Other", 2));
    EXPECT_TRUE(Trace::Passes("A:B", 2)) << "the last colon divides";
    EXPECT_TRUE(Trace::SetLevels(""));
    EXPECT_FALSE(Trace::Passes("Other", 2)) << "an empty text changes nothing";
    EXPECT_TRUE(Trace::SetLevels("0"));
    EXPECT_FALSE(Trace::Passes("Other", 1));
}

TEST_F(TraceTest, ChangesNothingForATextThatMakesNoSense) {
    for (const char* text : {"x", "A:", ":1", "A:x", "A:1x", "A:-1", "-1", "A:1,,B:2", ",", "1 ", " 1",
                             "99999999999", "A:1,B"}) {
        EXPECT_FALSE(Trace::SetLevels(text)) << text;
        EXPECT_TRUE(Trace::Passes("A", 9)) << text;
    }
}

TEST_F(TraceTest, TakesLevelsFromTheEnvironment) {
    EXPECT_TRUE(Trace::SetLevelsFromEnvironment());
    EXPECT_TRUE(Trace::Passes("A", 9));
    setenv("KELVANE_TRACE", "A:2", 1);
    EXPECT_TRUE(Trace::SetLevelsFromEnvironment());
    EXPECT_FALSE(Trace::Passes("A", 3));
    setenv("KELVANE_TRACE", "nonsense", 1);
    EXPECT_FALSE(Trace::SetLevelsFromEnvironment());
    EXPECT_TRUE(Trace::Passes("A", 2));
    EXPECT_FALSE(Trace::Passes("A", 3));
}

TEST_F(TraceTest, IsBackAtTheStartAfterAReset) {
    RecorderSink sink;
    Trace::AddSink(sink);
    Trace::SetLevel("", 0);
    Trace::Reset();
    EXPECT_EQ(Trace::SinkCount(), 0);
    EXPECT_TRUE(Trace::Passes("A", 9));
}

TEST_F(TraceTest, WritesLinesToStandardError) {
    StandardErrorSink sink;
    Trace::AddSink(sink);
    testing::internal::CaptureStderr();
    Trace::Write({"OrvKv9Errors", 1, "text"});
    Trace::Write({"OrvKv9Errors", 2, "with its own end\n"});
    Trace::Write({"", 0, ""});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "OrvKv9Errors 1: text\nOrvKv9Errors 2: with its own end\n 0: \n");
}

class FileSinkTest : public TraceTest {
  protected:
    FileSinkTest() {
        std::string name = (std::filesystem::temp_directory_path() / "host-trace-XXXXXX").string();
        folder = mkdtemp(name.data());
        file = (folder / "trace.txt").string();
    }
    ~FileSinkTest() override { std::filesystem::remove_all(folder); }

    std::string Content() const {
        std::ostringstream content;
        content << std::ifstream(file).rdbuf();
        return content.str();
    }

    std::filesystem::path folder;
    std::string file;
};

TEST_F(FileSinkTest, AppendsEachLineAtOnce) {
    {
        FileSink sink(file);
        ASSERT_TRUE(sink.IsOpen());
        sink.Write({"C", 1, "first"});
        EXPECT_EQ(Content(), "C 1: first\n") << "before the file is closed";
    }
    FileSink again(file);
    again.Write({"C", 2, std::string(100000, 'x')});
    EXPECT_EQ(Content(), "C 1: first\nC 2: " + std::string(100000, 'x') + "\n");
}

TEST_F(FileSinkTest, TellsAFileThatCannotBeOpened) {
    FileSink sink((folder / "missing" / "trace.txt").string());
    EXPECT_FALSE(sink.IsOpen());
    sink.Write({"C", 1, "lost"});
    EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
    EXPECT_FALSE(FileSink(folder.string()).IsOpen()) << "a folder is no file";
}

} // namespace
