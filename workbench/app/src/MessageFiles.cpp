#include "MessageFiles.h"

#include "host/MessageCatalogs.h"

#include <algorithm>

namespace app {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> EntriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored))
        entries.push_back(entry.path());
    std::sort(entries.begin(), entries.end());
    return entries;
}

// Reads the message files of one language; the empty one stands for the folder itself.
void ReadLanguage(const fs::path& folder, const std::string& language) {
    for (const fs::path& file : EntriesOf(folder / language))
        if (file.extension() == ".CATNls")
            static_cast<void>(host::MessageCatalogs::Keys(file.stem().string(), language));
}

} // namespace

std::vector<engineering::Problem> UseMessageFiles(const fs::path& catalogueFolder) {
    const fs::path folder = catalogueFolder / "msgcatalog";
    host::MessageCatalogs::AddFolder(folder.string());
    ReadLanguage(folder, std::string());
    for (const fs::path& entry : EntriesOf(folder))
        if (fs::is_directory(entry))
            ReadLanguage(folder, entry.filename().string());
    std::vector<engineering::Problem> problems;
    for (const host::CatalogProblem& problem : host::MessageCatalogs::Problems())
        problems.push_back({problem.file, problem.line, std::string(), problem.message});
    return problems;
}

} // namespace app
