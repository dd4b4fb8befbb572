// The resource file of a panel has the name of its class; higher levels belong to the base class.

#include "OrvKvResourceName.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

// Notes the levels that it is asked for.
class AskedBase {
  public:
    virtual ~AskedBase() = default;
    virtual char* GetResourceFilename(int iLevel) const {
        static char name[] = "TheBase";
        _levels.push_back(iLevel);
        return name;
    }
    const std::vector<int>& Levels() const { return _levels; }

  private:
    mutable std::vector<int> _levels;
};

class SomePanel : public AskedBase {
  public:
    char* GetResourceFilename(int iLevel) const override;
};

OrvKvImplementResourceName(SomePanel, AskedBase);

TEST(OrvKvResourceNameTest, IsTheNameOfTheClassForLevelZeroAndBelow) {
    const SomePanel panel;
    EXPECT_STREQ(panel.GetResourceFilename(0), "SomePanel");
    EXPECT_STREQ(panel.GetResourceFilename(-1), "SomePanel");
    EXPECT_STREQ(panel.GetResourceFilename(-100), "SomePanel");
    EXPECT_EQ(panel.Levels(), std::vector<int>());
}

TEST(OrvKvResourceNameTest, IsAskedOfTheBaseClassOneLevelLowerForHigherLevels) {
    const SomePanel panel;
    EXPECT_STREQ(panel.GetResourceFilename(1), "TheBase");
    EXPECT_STREQ(panel.GetResourceFilename(2), "TheBase");
    EXPECT_STREQ(panel.GetResourceFilename(7), "TheBase");
    EXPECT_EQ(panel.Levels(), std::vector<int>({0, 1, 6}));
}

} // namespace
