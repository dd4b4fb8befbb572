#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace support {

// Accepted texts, one file each: NAME.txt.
//
//     EXPECT_TRUE(MatchesGolden("MainPanel", host::DialogDump::Of(*panel)));
//
// A text that differs is written to NAME.txt.new beside the accepted one, and the assertion shows the lines
// that differ. With KELVANE_ACCEPT_GOLDENS=1 in the environment the text is accepted instead.
class GoldenFolder {
  public:
    GoldenFolder(const std::filesystem::path& iFolder, bool iAccepts);
    // The folder tests/golden.
    static GoldenFolder OfProject();

    testing::AssertionResult Matches(const std::string& iName, const std::string& iActual) const;

    // The accepted texts whose name no test source below iTests has in quotes. A name that is put together
    // counts as used when a source has the part before its first '-' in quotes, with the '-'.
    std::vector<std::string> Orphans(const std::filesystem::path& iTests) const;

  private:
    std::filesystem::path _folder;
    bool _accepts;
};

testing::AssertionResult MatchesGolden(const std::string& iName, const std::string& iActual);
// The orphans of tests/golden.
std::vector<std::string> OrphanedGoldens();

} // namespace support
