#include "engineering/CatalogueLoader.h"

#include "FileReport.h"
#include "FitTable.h"
#include "InputTable.h"
#include "ParameterTable.h"
#include "RuleTable.h"
#include "SetTable.h"
#include "ThreadTable.h"
#include "TypeTable.h"

#include <algorithm>
#include <iterator>
#include <system_error>

namespace engineering {

namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& folder, std::vector<Problem>& problems) {
    std::error_code error;
    const fs::file_status status = fs::status(folder, error);
    if (fs::is_directory(status)) {
        return true;
    }
    FileReport report(folder, problems);
    if (status.type() == fs::file_type::not_found) {
        report.Add(0, {}, "the folder does not exist");
    } else if (status.type() == fs::file_type::none) {
        report.Add(0, {}, "cannot be read: " + error.message());
    } else {
        report.Add(0, {}, "is not a folder");
    }
    return false;
}

bool EverySetsFileKnown(const TypeTable& types) {
    return types.complete &&
           std::ranges::none_of(types.types, [](const TypeDraft& type) { return type.setsFile.empty(); });
}

// Reads the files of a catalogue folder one after the other.
class CatalogueReader {
  public:
    CatalogueReader(const fs::path& folder, std::vector<Problem>& problems)
        : _folder(folder), _problems(problems) {}

    std::optional<FeatureCatalogue> Read() {
        GroupTable groups = ReadGroups(_folder, _problems);
        TypeTable types = ReadTypes(_folder, groups, _problems);
        ReadParameters(_folder, types, _problems);
        ReadInputs(_folder, types, _problems);
        _badConditions = ReadRules(_folder, types, _problems);
        std::optional<ThreadTables> threads = ReadThreads(_folder, _problems);
        CheckThreadParameters(_folder, types, threads, _problems);
        std::optional<LimitsAndFits> fits = Fits();
        std::vector<FeatureType> featureTypes =
            FeatureTypes(types, threads.value_or(ThreadTables()), fits.value_or(LimitsAndFits()));
        if (!IsSound()) {
            return std::nullopt;
        }
        return FeatureCatalogue(std::move(groups.keys), std::move(featureTypes), std::move(*threads),
                                std::move(*fits));
    }

  private:
    // A catalogue without the folder has none.
    std::optional<LimitsAndFits> Fits() {
        const fs::path folder = _folder / "fits";
        std::error_code error;
        if (fs::symlink_status(folder, error).type() == fs::file_type::not_found) {
            return LimitsAndFits();
        }
        return IsFolder(folder, _problems) ? ReadFits(folder, _problems) : std::nullopt;
    }

    bool IsSound() const { return _problems.size() == _badConditions; }

    std::vector<FeatureType> FeatureTypes(TypeTable& types, const ThreadTables& threads,
                                          const LimitsAndFits& fits) {
        if (!IsFolder(_folder / "sets", _problems)) {
            return {};
        }
        std::vector<FeatureType> result;
        for (TypeDraft& type : types.types) {
            if (type.setsFile.empty()) {
                continue;
            }
            std::vector<ParameterSet> sets = ReadSets(_folder, type, threads, fits, _problems);
            if (IsSound()) {
                result.emplace_back(std::move(type.description), std::move(type.parameters), std::move(sets),
                                    std::move(type.inputs), std::move(type.rules));
            }
        }
        if (EverySetsFileKnown(types)) {
            ReportForeignSets(_folder, types.types, _problems);
        }
        return result;
    }

    const fs::path& _folder;
    std::vector<Problem>& _problems;
    std::size_t _badConditions = 0; ///< problems that concern conditions only
};

} // namespace

LoadResult CatalogueLoader::Load(const fs::path& folder) {
    LoadResult result;
    if (IsFolder(folder, result.problems)) {
        result.catalogue = CatalogueReader(folder, result.problems).Read();
    }
    return result;
}

} // namespace engineering
