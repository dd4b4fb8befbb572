// Wrong rules; and rules whose condition cannot be used, which are named but keep nothing from loading.

#include "Fault.h"

namespace {

namespace fs = std::filesystem;
using engineering::LoadResult;
using engineering::Rule;
using engineering::Severity;

const char* const rules = "rules.csv";

const std::vector<Fault> ruleFaults{
    {"RuleOfAnUnknownType",
     rules,
     "SteppedHole,Avoid",
     "SteppedHoles,Avoid",
     {"rules.csv:3: column 'type': unknown type 'SteppedHoles'"}},
    {"RuleWithoutKey", rules, ",Avoid,", ",,", {"rules.csv:3: column 'key': is empty"}},
    {"DotInARuleKey",
     rules,
     ",Avoid,",
     ",To.Avoid,",
     {"rules.csv:3: column 'key': 'To.Avoid' has a character other than A-Z, a-z, 0-9 and _"}},
    {"DuplicateRule",
     rules,
     ",Avoid,",
     ",Angle,",
     {"rules.csv:3: column 'key': duplicate rule 'Angle' of type 'SteppedHole'"}},
    {"UnknownSeverity",
     rules,
     "warning",
     "Warning",
     {"rules.csv:3: column 'severity': 'Warning' is neither warning nor violation"}},
    {"RuleWithoutMessage",
     rules,
     "The size is to be avoided.",
     "",
     {"rules.csv:3: column 'message': is empty"}},
    {"MessageOfTwoLines",
     rules,
     "The size is to be avoided.",
     "\"The size\nis to be avoided.\"",
     {"rules.csv:3: column 'message': has more than one line"}},
    {"SeveralFaultsInOneRule",
     rules,
     "SteppedHole,Avoid,warning,AVOID == 0,",
     "Bolt,A-B,,AVOID ==,",
     {"rules.csv:3: column 'type': unknown type 'Bolt'",
      "rules.csv:3: column 'key': 'A-B' has a character other than A-Z, a-z, 0-9 and _",
      "rules.csv:3: column 'severity': '' is neither warning nor violation"}},
    {"MisspeltRuleColumn",
     rules,
     "condition",
     "when",
     {"rules.csv:1: column 'condition': the column is missing",
      "rules.csv:1: column 'when': unknown column"}},
    {"TooManyCellsInRules",
     rules,
     "AVOID == 0",
     "min(AVOID,0)",
     {"rules.csv:3: has 6 cells, the header has 5 cells"}},
};

// A condition in place of "AVOID == 0", and what is told of it.
struct Condition {
    const char* name;
    const char* text;
    const char* told;
};

void PrintTo(const Condition& condition, std::ostream* out) {
    *out << condition.name;
}

std::string ConditionName(const testing::TestParamInfo<Condition>& info) {
    return info.param.name;
}

class BrokenConditionTest : public testing::TestWithParam<Condition> {};

TEST_P(BrokenConditionTest, IsNamedWithFileLineAndColumnAndTheCatalogueLoadsAllTheSame) {
    const CatalogueFolder folder;
    ASSERT_EQ(folder.Problems(), Lines{});
    folder.Replace(rules, "AVOID == 0", "\"" + std::string(GetParam().text) + "\"");
    EXPECT_EQ(folder.Problems(), Lines({"rules.csv:3: column 'condition': " + std::string(GetParam().told)}));

    const LoadResult loaded = folder.Load();
    ASSERT_TRUE(loaded.catalogue);
    const std::vector<Rule>& read = loaded.catalogue->Type("SteppedHole")->Rules();
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].problem, "");
    EXPECT_EQ(read[1].problem, ToText(loaded.problems.at(0)));
    EXPECT_EQ(read[1].message, "The size is to be avoided.");
}

const std::vector<Condition> conditions{
    {"Empty", "", "is empty"},
    {"WithoutEnd", "AVOID ==", "'AVOID ==' is no condition: unexpected end of expression at character 9"},
    {"WithoutBracket", "(AVOID", "'(AVOID' is no condition: missing parenthesis"},
    {"WithTwoNames", "AVOID COUNT",
     "'AVOID COUNT' is no condition: unexpected variable \"COUNT\" at character 7"},
    {"WithAnUnknownSign", "AVOID # 2",
     "'AVOID # 2' is no condition: unexpected token \"# 2\" at character 7"},
    {"WithWordsForSigns", "AVOID and COUNT",
     "'AVOID and COUNT' is no condition: unexpected variable \"and\" at character 7"},
    {"ThatAssigns", "AVOID = 0",
     "'AVOID = 0' is no condition: a value cannot be assigned, write == to compare"},
    {"OfTwoResults", "AVOID == 0, COUNT > 0",
     "'AVOID == 0, COUNT > 0' is no condition: there is more than one result"},
    {"WithADecimalComma", "RATIO > 1,5", "'RATIO > 1,5' is no condition: there is more than one result"},
    {"WithAnUnknownFunction", "floor(RATIO) == 1",
     "'floor(RATIO) == 1' is no condition: unexpected parenthesis \"(\" at character 6"},
    {"WithTooManyArguments", "abs(RATIO, 2) == 1",
     "'abs(RATIO, 2) == 1' is no condition: too many parameters for function \"abs\" at character 13"},
    {"OfAnUnknownParameter", "B > 0", "type 'SteppedHole' has no parameter 'B'"},
    {"OfAParameterInAnotherCase", "ratio > 0", "type 'SteppedHole' has no parameter 'ratio'"},
    {"OfAThreadThatTheTypeLacks", "THREAD_LENGTH > 0",
     "type 'SteppedHole' has no thread, so no 'THREAD_LENGTH'"},
};

INSTANTIATE_TEST_SUITE_P(Condition, BrokenConditionTest, testing::ValuesIn(conditions), ConditionName);

TEST(BrokenRulesTest, ATextIsNothingToReckonWith) {
    const CatalogueFolder folder;
    folder.Write(rules, "type,key,severity,condition,message\nPlainHole,Size,warning,THREAD > 2,Small.\n");
    EXPECT_EQ(folder.Problems(),
              Lines({"rules.csv:2: column 'condition': parameter 'THREAD' is a STRING, not a number"}));
}

TEST(BrokenRulesTest, ThreadValuesAreThereForATypeWithAThread) {
    const CatalogueFolder folder;
    folder.Write("types.csv", "key,group,sets,standard,note,thread\n"
                              "PlainHole,Holes,PlainHole.csv,,,THREAD\n"
                              "SteppedHole,Holes,SteppedHole.csv,,,\n"
                              "Groove,Grooves,Groove.csv,,,\n");
    folder.Write(rules, "type,key,severity,condition,message\n"
                        "PlainHole,A,warning,THREAD_DIAMETER > THREAD_INTERNAL_DIAMETER,a\n"
                        "PlainHole,B,warning,THREAD_LENGTH > THREAD_PITCH,b\n"
                        "PlainHole,C,warning,THREAD_DEPTH > 0,c\n");
    EXPECT_EQ(folder.Problems(),
              Lines({"rules.csv:4: column 'condition': type 'PlainHole' has no parameter 'THREAD_DEPTH'"}));
}

TEST(BrokenRulesTest, AWrongConditionBesideAnotherProblemKeepsTheCatalogueOut) {
    const CatalogueFolder folder;
    folder.Replace(rules, "AVOID == 0", "AVOID ==");
    ASSERT_TRUE(folder.Load().catalogue);
    folder.Replace("sets/PlainHole.csv", "4.5", "wide");
    const LoadResult loaded = folder.Load();
    EXPECT_FALSE(loaded.catalogue);
    EXPECT_EQ(loaded.problems.size(), 2U);
}

TEST(BrokenRulesTest, AConditionIsNotBlamedForParametersThatCannotBeRead) {
    const CatalogueFolder folder;
    folder.Replace("parameters.csv", "SteppedHole,AVOID", "SteppedHole,A-B");
    EXPECT_EQ(
        folder.Problems(),
        Lines({"parameters.csv:8: column 'name': 'A-B' has a character other than A-Z, a-z, 0-9 and _"}));
}

TEST(BrokenRulesTest, ACatalogueWithoutTheFileHasNoRules) {
    const CatalogueFolder folder;
    folder.Remove(rules);
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_TRUE(folder.Load().catalogue->Type("SteppedHole")->Rules().empty());
}

TEST(BrokenRulesTest, AFolderInPlaceOfTheFileIsNamed) {
    const CatalogueFolder folder;
    folder.Remove(rules);
    fs::create_directory(folder.Path() / rules);
    EXPECT_EQ(folder.Problems(), Lines({"rules.csv: is a folder, not a file"}));
}

TEST(BrokenRulesTest, SoundRulesAreReadInTheOrderOfTheFile) {
    const CatalogueFolder folder;
    const LoadResult loaded = folder.Load();
    ASSERT_TRUE(loaded.catalogue);
    EXPECT_TRUE(loaded.catalogue->Type("PlainHole")->Rules().empty());
    const std::vector<Rule>& read = loaded.catalogue->Type("SteppedHole")->Rules();
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].key, "Angle");
    EXPECT_EQ(read[0].severity, Severity::Violation);
    EXPECT_EQ(read[0].condition, "ALPHA > 0 && ALPHA < 180");
    EXPECT_EQ(read[0].message, "The angle gives no cone.");
    EXPECT_EQ(read[1].key, "Avoid");
    EXPECT_EQ(read[1].severity, Severity::Warning);
}

INSTANTIATE_TEST_SUITE_P(Rules, BrokenCatalogueTest, testing::ValuesIn(ruleFaults), FaultName);

} // namespace
