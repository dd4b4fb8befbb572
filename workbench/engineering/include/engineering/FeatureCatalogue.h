#pragma once

// The feature groups and feature types a designer chooses from. Immutable once loaded.
//
//   LoadResult result = CatalogueLoader::Load(folder);
//   for (const std::string& group : result.catalogue->Groups())
//       for (const std::string& type : *result.catalogue->TypesOf(group)) ...

#include "engineering/FeatureType.h"
#include "engineering/LimitsAndFits.h"
#include "engineering/ThreadTables.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

class FeatureCatalogue {
  public:
    /// Takes everything over. Keys are unique and every type names one of the groups.
    FeatureCatalogue(std::vector<std::string> groups, std::vector<FeatureType> types,
                     ThreadTables threads = {}, LimitsAndFits fits = {});

    /// Group keys in the order they are shown.
    const std::vector<std::string>& Groups() const { return _groups; }

    /// Keys of the group's types in the order they are shown, or nullptr for an unknown group.
    const std::vector<std::string>* TypesOf(std::string_view group) const;

    /// The type of that key, or nullptr.
    const FeatureType* Type(std::string_view key) const;

    /// The sets of the type in the order they are shown, or nullptr for an unknown type.
    const std::vector<ParameterSet>* SetsOf(std::string_view type) const;

    /// The named set of the type, or nullptr for an unknown type or name.
    const ParameterSet* FindSet(std::string_view type, std::string_view name) const;

    /// The threads that features with a thread choose from; no standards where the catalogue has none.
    const ThreadTables& Threads() const { return _threads; }

    /// The limits and fits of toleranced lengths; empty where the catalogue has none.
    const LimitsAndFits& Fits() const { return _fits; }

  private:
    std::vector<std::string> _groups;
    std::vector<FeatureType> _types;
    ThreadTables _threads;
    LimitsAndFits _fits;
    std::map<std::string, std::vector<std::string>, std::less<>> _typesOfGroup; ///< group key to type keys
    std::map<std::string, std::size_t, std::less<>> _typeIndex;                 ///< type key to position
};

} // namespace engineering
