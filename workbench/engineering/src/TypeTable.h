#pragma once

// Reads groups.csv and types.csv: the groups, and the types with the files of their sets.

#include "engineering/FeatureType.h"
#include "engineering/Input.h"
#include "engineering/Parameter.h"
#include "engineering/Problem.h"
#include "engineering/Rule.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

struct GroupTable {
    std::vector<std::string> keys; ///< in the order of the file
    std::vector<int> lines;        ///< line of each key
    bool complete = false;         ///< false when a group may be missing because its line cannot be read
};

/// A type while its files are being read.
struct TypeDraft {
    TypeDescription description;
    int line = 0;                      ///< line in types.csv
    std::string setsFile;              ///< file name in the folder sets; empty when it cannot be read
    std::vector<Parameter> parameters; ///< in the order of parameters.csv
    std::set<std::string> unsound;     ///< names of parameters with a definition that cannot be used
    std::vector<Input> inputs;         ///< in the order of their numbers, once all are read
    std::vector<Rule> rules;           ///< in the order of rules.csv
    bool parametersComplete = true;    ///< false when a parameter may be missing from the list

    /// The parameter of that exact name, or nullptr.
    const Parameter* FindParameter(std::string_view name) const;
};

struct TypeTable {
    std::vector<TypeDraft> types; ///< in the order of the file
    bool complete = false;        ///< false when a type may be missing because its line cannot be read

    /// The type of that key, or nullptr.
    TypeDraft* Find(std::string_view key);
};

GroupTable ReadGroups(const std::filesystem::path& folder, std::vector<Problem>& problems);

TypeTable ReadTypes(const std::filesystem::path& folder, const GroupTable& groups,
                    std::vector<Problem>& problems);

} // namespace engineering
