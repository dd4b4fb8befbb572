#include "Catalogue.h"

#include "ExitStatus.h"
#include "MessageFiles.h"
#include "engineering/CatalogueLoader.h"
#include "engineering/PartLoader.h"
#include "host/MessageCatalogs.h"
#include "pictures/PictureFile.h"
#include "session/Counted.h"

#include <iostream>
#include <vector>

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

void Print(const std::vector<engineering::Problem>& problems, std::ostream& out) {
    for (const engineering::Problem& problem : problems)
        out << ToText(problem) << '\n';
}

void Warn(const std::vector<engineering::Problem>& problems) {
    for (const engineering::Problem& problem : problems)
        std::cerr << "warning: " << ToText(problem) << '\n';
}

/// The pictures that the catalogue brings for its types and that cannot be read.
std::vector<std::string> PictureProblems(const engineering::FeatureCatalogue& catalogue,
                                         const fs::path& folder) {
    std::vector<std::string> problems;
    for (const std::string& group : catalogue.Groups())
        for (const std::string& type : *catalogue.TypesOf(group)) {
            const fs::path file = folder / "drawings" / (type + ".png");
            std::error_code ignored;
            if (fs::exists(file, ignored))
                problems.push_back(pictures::ReadPicture(file).error);
        }
    std::erase(problems, std::string());
    return problems;
}

std::string Summary(const engineering::FeatureCatalogue& catalogue) {
    std::size_t types = 0;
    std::size_t sets = 0;
    std::size_t rules = 0;
    std::size_t threads = 0;
    for (const std::string& group : catalogue.Groups())
        for (const std::string& type : *catalogue.TypesOf(group)) {
            ++types;
            sets += catalogue.SetsOf(type)->size();
            rules += catalogue.Type(type)->Rules().size();
        }
    for (const engineering::ThreadStandard& standard : catalogue.Threads().Standards())
        threads += standard.threads.size();
    return Counted(catalogue.Groups().size(), "group") + ", " + Counted(types, "type") + ", " +
           Counted(sets, "parameter set") + ", " + Counted(rules, "rule") + ", " +
           Counted(threads, "thread") + ", " +
           Counted(catalogue.Fits().CountOfDeviations(), "fundamental deviation") + ", no problems";
}

} // namespace

std::optional<WorkData> PrepareData(const Options& options, const DataFolders& folders) {
    const fs::path folder = options.catalogue.empty() ? folders.Catalogue() : fs::path(options.catalogue);
    if (!IsFolder(folder)) {
        ComplainOfMissing(folder);
        return std::nullopt;
    }
    engineering::LoadResult loaded = engineering::CatalogueLoader::Load(folder);
    engineering::PartResult part = engineering::LoadPart(folders.Part());
    if (loaded.catalogue)
        Warn(loaded.problems); // rules that are passed over
    else
        Print(loaded.problems, std::cerr);
    Print(part.problems, std::cerr);
    for (const fs::path& messages : folders.Messages())
        host::MessageCatalogs::AddFolder(messages.string());
    Warn(UseMessageFiles(folder)); // a text that cannot be read is shown as its key
    host::MessageCatalogs::SetLanguage(options.language);
    if (!loaded.catalogue || !part.part)
        return std::nullopt;
    return WorkData{folder, std::move(*loaded.catalogue), std::move(*part.part)};
}

int CheckCatalogue(const std::string& folder) {
    if (!IsFolder(folder))
        return ComplainOfMissing(folder);
    const engineering::LoadResult loaded = engineering::CatalogueLoader::Load(folder);
    const std::vector<engineering::Problem> textProblems = UseMessageFiles(folder);
    Print(loaded.problems, std::cout);
    Print(textProblems, std::cout);
    const std::vector<std::string> pictureProblems =
        loaded.catalogue ? PictureProblems(*loaded.catalogue, folder) : std::vector<std::string>();
    for (const std::string& problem : pictureProblems)
        std::cout << problem << '\n';
    if (!loaded.problems.empty() || !textProblems.empty() || !pictureProblems.empty())
        return ExitFailed;
    std::cout << folder << ": " << Summary(*loaded.catalogue) << '\n';
    return ExitDone;
}

} // namespace app
