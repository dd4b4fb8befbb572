// A feature breaks the rules whose condition does not hold.

#include "engineering/RuleCheck.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace engineering;
using Values = std::map<std::string, double, std::less<>>;
using Keys = std::vector<std::string>;

FeatureType TypeWith(std::vector<Rule> rules) {
    return {TypeDescription{}, {}, {}, {}, std::move(rules)};
}

Keys BrokenOf(std::vector<Rule> rules, const Values& values) {
    const FeatureType type = TypeWith(std::move(rules));
    Keys keys;
    for (const Rule* rule : RuleCheck(type).Broken(values)) {
        keys.push_back(rule->key);
    }
    return keys;
}

bool Breaks(const char* condition, const Values& values) {
    return BrokenOf({{"Only", condition, Severity::Violation, "m", ""}}, values) == Keys({"Only"});
}

TEST(RuleCheckTest, NamesTheBrokenRulesInTheOrderOfTheCatalogue) {
    const std::vector<Rule> rules{{"Wider", "D > DH", Severity::Violation, "a", ""},
                                  {"Deep", "T < 10", Severity::Warning, "b", ""},
                                  {"Hole", "DH > 0", Severity::Violation, "c", ""}};
    EXPECT_EQ(BrokenOf(rules, {{"D", 11}, {"DH", 6.6}, {"T", 6}}), Keys{});
    EXPECT_EQ(BrokenOf(rules, {{"D", 5}, {"DH", 6.6}, {"T", 6}}), Keys({"Wider"}));
    EXPECT_EQ(BrokenOf(rules, {{"D", -5}, {"DH", -1}, {"T", 10}}), Keys({"Wider", "Deep", "Hole"}));
}

TEST(RuleCheckTest, GivesTheRulesOfTheTypeItself) {
    const FeatureType type = TypeWith({{"Wider", "D > DH", Severity::Violation, "too narrow", ""}});
    const RuleCheck check(type);
    const std::vector<const Rule*> broken = check.Broken({{"D", 1}, {"DH", 1}});
    ASSERT_EQ(broken.size(), 1U);
    EXPECT_EQ(broken[0], &type.Rules()[0]);
}

TEST(RuleCheckTest, AnswersAnewForEveryValue) {
    const FeatureType type = TypeWith({{"Wider", "D > DH", Severity::Violation, "m", ""}});
    const RuleCheck check(type);
    for (const double d : {5.0, 7.0, 6.0, 6.5, 7.5}) {
        EXPECT_EQ(check.Broken({{"D", d}, {"DH", 6.5}}).empty(), d > 6.5) << d;
    }
}

TEST(RuleCheckTest, PassesOverARuleThatNeedsAValueThatIsNotThere) {
    EXPECT_TRUE(Breaks("D3 > D2", {{"D2", 2}, {"D3", 1}}));
    EXPECT_FALSE(Breaks("D3 > D2", {{"D2", 2}}));
    EXPECT_FALSE(Breaks("D3 > D2", {}));
    EXPECT_FALSE(Breaks("D3 > D2", {{"D2", 2}, {"d3", 1}}));
}

TEST(RuleCheckTest, PassesOverAValueThatIsNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(Breaks("D > 0", {{"D", std::nan("")}}));
    EXPECT_FALSE(Breaks("D > 0", {{"D", -infinity}}));
    EXPECT_TRUE(Breaks("D > 0", {{"D", -1e308}}));
}

TEST(RuleCheckTest, PassesOverAConditionThatGivesNoNumber) {
    EXPECT_FALSE(Breaks("0 / D", {{"D", 0}}));
    EXPECT_TRUE(Breaks("0 / D", {{"D", 1}}));
    EXPECT_FALSE(Breaks("sqrt(D) * 0", {{"D", -1}}));
    EXPECT_TRUE(Breaks("sqrt(D) * 0", {{"D", 1}}));
}

TEST(RuleCheckTest, PassesOverARuleWithAProblem) {
    EXPECT_EQ(BrokenOf({{"A", "D >", Severity::Violation, "m", "rules.csv:2: ..."},
                        {"B", "D > 0", Severity::Violation, "m", ""},
                        {"C", "D > 0", Severity::Violation, "m", "rules.csv:4: ..."}},
                       {{"D", -1}}),
              Keys({"B"}));
}

TEST(RuleCheckTest, PassesOverAConditionThatCannotBeReadThoughNobodySaidSo) {
    EXPECT_EQ(
        BrokenOf({{"A", "D >", Severity::Violation, "m", ""}, {"B", "D > 0", Severity::Warning, "m", ""}},
                 {{"D", -1}}),
        Keys({"B"}));
}

TEST(RuleCheckTest, HasNothingToSayOfATypeWithoutRules) {
    EXPECT_EQ(BrokenOf({}, {{"D", -1}}), Keys{});
}

TEST(RuleCheckTest, ComparesReckonsAndChooses) {
    const Values values{{"A", 6}, {"B", 2}, {"C", 0}};
    for (const char* holds : {"A > B",
                              "B < A",
                              "A >= 6",
                              "B <= 2",
                              "A == 6",
                              "A != B",
                              "A > B && B > C",
                              "C > A || A > B",
                              "A + B == 8",
                              "A - B == 4",
                              "A * B == 12",
                              "A / B == 3",
                              "-B < C",
                              "A ^ 2 == 36",
                              "abs(B - A) == 4",
                              "min(A, B) == 2",
                              "max(A, B) == 6",
                              "sqrt(A + B + 1) == 3",
                              "C ? A < B : A > B",
                              "A + B * 2 == 10",
                              "(A + B) * 2 == 16",
                              "A > 1.5e0",
                              "abs(sin(30) - 0.5) < 1e-12",
                              "abs(tan(45) - 1) < 1e-12",
                              "abs(cos(60) - 0.5) < 1e-12"}) {
        EXPECT_FALSE(Breaks(holds, values)) << holds;
    }
    for (const char* fails : {"A < B", "B > A", "A >= 6.1", "B <= 1.9", "A == B", "A != 6", "A > B && C > B",
                              "C > A || B > A", "C", "A - 6", "B ? A < B : A > B", "abs(B - A) == -4"}) {
        EXPECT_TRUE(Breaks(fails, values)) << fails;
    }
}

} // namespace
