// Where the preferences of the user are kept.

#include "UserFolders.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace {

// Gives an environment variable a value, or takes it away, for as long as the object lives.
class Variable {
  public:
    Variable(const char* iName, const char* iValue) : _name(iName) {
        if (const char* const before = std::getenv(iName))
            _before = before;
        Set(iValue);
    }
    ~Variable() { Set(_before ? _before->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    void Set(const char* iValue) const {
        if (iValue == nullptr)
            unsetenv(_name);
        else
            setenv(_name, iValue, 1);
    }

    const char* _name;
    std::optional<std::string> _before;
};

TEST(UserFoldersTest, PreferencesStandInTheConfigurationFolderOfTheUser) {
    const Variable home("HOME", "/home/designer");
    const Variable folder("XDG_CONFIG_HOME", "/etc/mine");
    EXPECT_EQ(app::PreferencesFile(), "/etc/mine/kelvane/preferences");
}

TEST(UserFoldersTest, WithoutSuchAFolderTheyStandBelowTheHomeOfTheUser) {
    const Variable home("HOME", "/home/designer");
    for (const char* unusable : {static_cast<const char*>(nullptr), "", "relative/path"}) {
        const Variable folder("XDG_CONFIG_HOME", unusable);
        EXPECT_EQ(app::PreferencesFile(), "/home/designer/.config/kelvane/preferences");
    }
}

TEST(UserFoldersTest, WithoutAnyFolderThereIsNoFile) {
    const Variable folder("XDG_CONFIG_HOME", nullptr);
    for (const char* unusable : {static_cast<const char*>(nullptr), "", "home"}) {
        const Variable home("HOME", unusable);
        EXPECT_TRUE(app::PreferencesFile().empty());
    }
}

} // namespace
