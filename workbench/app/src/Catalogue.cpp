#include "Catalogue.h"

#include "ExitStatus.h"
#include "engineering/CatalogueLoader.h"
#include "host/MessageCatalogs.h"
#include "session/Counted.h"

#include <iostream>

namespace app {

namespace {

namespace fs = std::filesystem;
using session::Counted;

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

int ComplainOfMissing(const fs::path& folder) {
    return Complain(ExitUnusable, ("there is no catalogue folder '" + folder.string() + "'").c_str());
}

std::string Summary(const engineering::FeatureCatalogue& catalogue) {
    std::size_t types = 0;
    std::size_t sets = 0;
    for (const std::string& group : catalogue.Groups())
        for (const std::string& type : *catalogue.TypesOf(group)) {
            ++types;
            sets += catalogue.SetsOf(type)->size();
        }
    return Counted(catalogue.Groups().size(), "group") + ", " + Counted(types, "type") + ", " +
           Counted(sets, "parameter set") + ", no problems";
}

} // namespace

std::optional<engineering::FeatureCatalogue> PrepareCatalogue(const Options& options,
                                                              const DataFolders& data) {
    const fs::path folder = options.catalogue.empty() ? data.Catalogue() : fs::path(options.catalogue);
    if (!IsFolder(folder)) {
        ComplainOfMissing(folder);
        return std::nullopt;
    }
    engineering::LoadResult loaded = engineering::CatalogueLoader::Load(folder);
    for (const engineering::Problem& problem : loaded.problems)
        std::cerr << ToText(problem) << '\n';
    for (const fs::path& messages : data.Messages())
        host::MessageCatalogs::AddFolder(messages.string());
    host::MessageCatalogs::AddFolder((folder / "msgcatalog").string());
    host::MessageCatalogs::SetLanguage(options.language);
    return std::move(loaded.catalogue);
}

int CheckCatalogue(const std::string& folder) {
    if (!IsFolder(folder))
        return ComplainOfMissing(folder);
    const engineering::LoadResult loaded = engineering::CatalogueLoader::Load(folder);
    for (const engineering::Problem& problem : loaded.problems)
        std::cout << ToText(problem) << '\n';
    if (!loaded.problems.empty())
        return ExitFailed;
    std::cout << folder << ": " << Summary(*loaded.catalogue) << '\n';
    return ExitDone;
}

} // namespace app
