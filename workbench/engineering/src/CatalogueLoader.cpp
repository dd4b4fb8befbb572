#include "engineering/CatalogueLoader.h"

#include "FileReport.h"
#include "InputTable.h"
#include "ParameterTable.h"
#include "SetTable.h"
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

std::vector<FeatureType> ReadFeatureTypes(const fs::path& folder, const GroupTable& groups,
                                          std::vector<Problem>& problems) {
    TypeTable types = ReadTypes(folder, groups, problems);
    ReadParameters(folder, types, problems);
    ReadInputs(folder, types, problems);
    if (!IsFolder(folder / "sets", problems)) {
        return {};
    }
    std::vector<FeatureType> result;
    for (TypeDraft& type : types.types) {
        if (type.setsFile.empty()) {
            continue;
        }
        std::vector<ParameterSet> sets = ReadSets(folder, type, problems);
        if (problems.empty()) {
            result.emplace_back(std::move(type.description), std::move(type.parameters), std::move(sets),
                                std::move(type.inputs));
        }
    }
    if (EverySetsFileKnown(types)) {
        ReportForeignSets(folder, types.types, problems);
    }
    return result;
}

} // namespace

LoadResult CatalogueLoader::Load(const fs::path& folder) {
    LoadResult result;
    if (!IsFolder(folder, result.problems)) {
        return result;
    }
    GroupTable groups = ReadGroups(folder, result.problems);
    std::vector<FeatureType> types = ReadFeatureTypes(folder, groups, result.problems);
    if (result.problems.empty()) {
        result.catalogue.emplace(std::move(groups.keys), std::move(types));
    }
    return result;
}

} // namespace engineering
