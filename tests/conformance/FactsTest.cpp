#include "Facts.h"
#include "ProgramPath.h"

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <sstream>

// The suite sees the platform alone: what the host adds is out of its reach.
#if __has_include("host/LiveObjects.h") || !__has_include("CATBaseUnknown.h")
#error "the suite must see the platform's headers and nothing that the host adds to them"
#endif

namespace {

using conformance::Fact;
using conformance::Facts;
using conformance::Mark;

const char ownSuite[] = "FactList"; // these tests are about the list and are no facts themselves

class SampleFacts : public testing::Test {};

std::multiset<std::string> RegisteredTests() {
    std::multiset<std::string> names;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite) {
        const testing::TestSuite& tests = *all.GetTestSuite(suite);
        if (std::string(tests.name()) == ownSuite)
            continue;
        for (int test = 0; test < tests.total_test_count(); ++test)
            names.insert(std::string(tests.name()) + "." + tests.GetTestInfo(test)->name());
    }
    return names;
}

std::vector<std::string> LinesOf(const std::string& iText) {
    std::vector<std::string> lines;
    std::istringstream text(iText);
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::string Printed(Mark iMark) {
    std::ostringstream text;
    Facts::Print(text, iMark);
    return text.str();
}

struct Outcome {
    std::string output;
    int status = 0;
};

Outcome RunWith(const std::string& iArguments) {
    const std::string command = "\"" + conformance::ProgramPath() + "\" " + iArguments + " 2>&1";
    Outcome run;
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        return Outcome{"the program cannot be run", -1};
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), pipe)) > 0;)
        run.output.append(part.data(), count);
    const int state = pclose(pipe);
    run.status = WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    return run;
}

} // namespace

CERTAIN(SampleFacts, ACertainFactIsListedByItsName) {
    const std::vector<std::string> lines = LinesOf(Printed(Mark::Certain));
    EXPECT_EQ(1, std::count(lines.begin(), lines.end(), "SampleFacts.ACertainFactIsListedByItsName"));
}

ASSUMED(SampleFacts, AnAssumedFactIsListedWithItsReason, "because this is the sample") {
    const std::vector<std::string> lines = LinesOf(Printed(Mark::Assumed));
    EXPECT_EQ(1, std::count(lines.begin(), lines.end(),
                            "SampleFacts.AnAssumedFactIsListedWithItsReason: because this is the sample"));
}

TEST(FactList, EachTestIsExactlyOneFact) {
    std::multiset<std::string> facts;
    for (const Fact& fact : Facts::All())
        facts.insert(fact.Name());
    EXPECT_EQ(RegisteredTests(), facts);
}

TEST(FactList, EachFactIsInOneListOnly) {
    const std::vector<std::string> certain = LinesOf(Printed(Mark::Certain));
    const std::vector<std::string> assumed = LinesOf(Printed(Mark::Assumed));
    std::multiset<std::string> names(certain.begin(), certain.end());
    for (const std::string& line : assumed)
        names.insert(line.substr(0, line.find(':')));
    EXPECT_EQ(RegisteredTests(), names);
    EXPECT_FALSE(certain.empty());
    EXPECT_FALSE(assumed.empty());
}

TEST(FactList, OnlyAnAssumedFactHasAReason) {
    for (const Fact& fact : Facts::All())
        EXPECT_EQ(fact.mark == Mark::Assumed, !fact.reason.empty()) << fact.Name();
}

TEST(FactList, TheProgramPrintsTheListsWhenAsked) {
    const Outcome certain = RunWith("--list-certain");
    EXPECT_EQ(0, certain.status);
    EXPECT_EQ(Printed(Mark::Certain), certain.output);
    const Outcome assumed = RunWith("--list-assumed");
    EXPECT_EQ(0, assumed.status);
    EXPECT_EQ(Printed(Mark::Assumed), assumed.output);
}

TEST(FactList, TheProgramRefusesAnUnknownArgument) {
    const Outcome run = RunWith("--list-everything");
    EXPECT_EQ(2, run.status);
    EXPECT_EQ("conformance_tests: unknown arguments from '--list-everything' on; use --list-certain or "
              "--list-assumed\n",
              run.output);
}
