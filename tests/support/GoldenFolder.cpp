#include "GoldenFolder.h"

#include "LineDiff.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace support {

namespace {

const std::filesystem::path testsFolder = KELVANE_TESTS_DIR;

bool AcceptsByEnvironment() {
    const char* const value = std::getenv("KELVANE_ACCEPT_GOLDENS");
    return value != nullptr && std::string(value) == "1";
}

void WriteFile(const std::filesystem::path& iPath, const std::string& iContent) {
    std::filesystem::create_directories(iPath.parent_path());
    std::ofstream(iPath, std::ios::binary) << iContent;
}

bool IsName(const std::string& iName) {
    return !iName.empty() && iName.find_first_of("/\\\"") == std::string::npos;
}

bool IsUsed(const std::string& iName, const std::vector<std::string>& iSources) {
    const std::size_t dash = iName.find('-');
    const std::string whole = "\"" + iName + "\"";
    const std::string start = dash == std::string::npos ? whole : "\"" + iName.substr(0, dash + 1) + "\"";
    return std::any_of(iSources.begin(), iSources.end(), [&](const std::string& iSource) {
        return iSource.find(whole) != std::string::npos || iSource.find(start) != std::string::npos;
    });
}

std::vector<std::string> SourcesBelow(const std::filesystem::path& iFolder) {
    std::vector<std::string> sources;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(iFolder))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            sources.push_back(ReadFile(entry.path()));
    return sources;
}

} // namespace

GoldenFolder::GoldenFolder(const std::filesystem::path& iFolder, bool iAccepts)
    : _folder(iFolder), _accepts(iAccepts) {}

GoldenFolder GoldenFolder::OfProject() {
    return {testsFolder / "golden", AcceptsByEnvironment()};
}

testing::AssertionResult GoldenFolder::Matches(const std::string& iName, const std::string& iActual) const {
    if (!IsName(iName))
        return testing::AssertionFailure() << "'" << iName << "' is no name for an accepted text";
    const std::filesystem::path golden = _folder / (iName + ".txt");
    const std::filesystem::path proposal = _folder / (iName + ".txt.new");
    if (_accepts)
        WriteFile(golden, iActual);
    if (std::filesystem::exists(golden) && ReadFile(golden) == iActual) {
        std::filesystem::remove(proposal);
        return testing::AssertionSuccess();
    }
    WriteFile(proposal, iActual);
    const char* const what = std::filesystem::exists(golden) ? " differs:\n" : " is not accepted yet:\n";
    return testing::AssertionFailure()
           << golden.string() << what << LineDiff(ReadFile(golden), iActual)
           << "KELVANE_ACCEPT_GOLDENS=1 accepts the text, which stands in " << proposal.string();
}

std::vector<std::string> GoldenFolder::Orphans(const std::filesystem::path& iTests) const {
    std::vector<std::string> orphans;
    if (!std::filesystem::is_directory(_folder))
        return orphans;
    const std::vector<std::string> sources = SourcesBelow(iTests);
    for (const auto& entry : std::filesystem::directory_iterator(_folder))
        if (entry.path().extension() == ".txt" && !IsUsed(entry.path().stem().string(), sources))
            orphans.push_back(entry.path().stem().string());
    std::sort(orphans.begin(), orphans.end());
    return orphans;
}

testing::AssertionResult MatchesGolden(const std::string& iName, const std::string& iActual) {
    return GoldenFolder::OfProject().Matches(iName, iActual);
}

std::vector<std::string> OrphanedGoldens() {
    return GoldenFolder::OfProject().Orphans(testsFolder);
}

} // namespace support
