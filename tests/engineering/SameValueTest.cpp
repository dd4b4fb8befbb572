// When two entries of a parameter are the same.

#include "engineering/ParameterSet.h"

#include <gtest/gtest.h>

namespace {

using namespace engineering;

const Tolerance limits{Tolerance::Kind::Limits, "", 0.25, 0};

TEST(SameValueTest, EqualValuesWithEqualTolerancesAreTheSame) {
    EXPECT_TRUE(SameValue({Value(6.4), limits}, {Value(6.4), limits}));
    EXPECT_TRUE(SameValue({Value(std::string("M6")), {}}, {Value(std::string("M6")), {}}));
    EXPECT_TRUE(SameValue({}, {}));
}

TEST(SameValueTest, ValuesAreComparedExactly) {
    EXPECT_FALSE(SameValue({Value(6.4), {}}, {Value(6.4 + 1e-12), {}}));
    EXPECT_FALSE(SameValue({Value(std::int64_t{1}), {}}, {Value(1.0), {}}));
}

TEST(SameValueTest, NotTabulatedIsNotZero) {
    EXPECT_FALSE(SameValue({std::nullopt, {}}, {Value(0.0), {}}));
}

TEST(SameValueTest, ADifferentToleranceIsADifference) {
    EXPECT_FALSE(SameValue({Value(6.4), limits}, {Value(6.4), {}}));
    EXPECT_FALSE(SameValue({Value(6.4), limits}, {Value(6.4), {Tolerance::Kind::Limits, "", 0.25, -1e-12}}));
    EXPECT_FALSE(SameValue({Value(6.4), {Tolerance::Kind::FitClass, "H7", 0, 0}},
                           {Value(6.4), {Tolerance::Kind::FitClass, "H8", 0, 0}}));
}

} // namespace
