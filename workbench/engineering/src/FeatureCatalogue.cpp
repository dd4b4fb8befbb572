#include "engineering/FeatureCatalogue.h"

#include <utility>

namespace engineering {

FeatureCatalogue::FeatureCatalogue(std::vector<std::string> groups, std::vector<FeatureType> types,
                                   ThreadTables threads, LimitsAndFits fits)
    : _groups(std::move(groups)), _types(std::move(types)), _threads(std::move(threads)),
      _fits(std::move(fits)) {
    for (const std::string& group : _groups) {
        _typesOfGroup[group];
    }
    for (std::size_t i = 0; i < _types.size(); ++i) {
        const TypeDescription& description = _types[i].Description();
        _typesOfGroup[description.group].push_back(description.key);
        _typeIndex.emplace(description.key, i);
    }
}

const std::vector<std::string>* FeatureCatalogue::TypesOf(std::string_view group) const {
    const auto found = _typesOfGroup.find(group);
    return found == _typesOfGroup.end() ? nullptr : &found->second;
}

const FeatureType* FeatureCatalogue::Type(std::string_view key) const {
    const auto found = _typeIndex.find(key);
    return found == _typeIndex.end() ? nullptr : &_types[found->second];
}

const std::vector<ParameterSet>* FeatureCatalogue::SetsOf(std::string_view type) const {
    const FeatureType* found = Type(type);
    return found == nullptr ? nullptr : &found->Sets();
}

const ParameterSet* FeatureCatalogue::FindSet(std::string_view type, std::string_view name) const {
    const FeatureType* found = Type(type);
    return found == nullptr ? nullptr : found->FindSet(name);
}

} // namespace engineering
