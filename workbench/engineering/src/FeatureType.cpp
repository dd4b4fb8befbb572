#include "engineering/FeatureType.h"

#include <utility>

namespace engineering {

namespace {

template<class Index, class Named>
const Named* Find(const Index& index, const std::vector<Named>& all, std::string_view name) {
    const auto found = index.find(name);
    return found == index.end() ? nullptr : &all[found->second];
}

} // namespace

FeatureType::FeatureType(TypeDescription description, std::vector<Parameter> parameters,
                         std::vector<ParameterSet> sets, std::vector<Input> inputs, std::vector<Rule> rules)
    : _description(std::move(description)), _parameters(std::move(parameters)), _sets(std::move(sets)),
      _inputs(std::move(inputs)), _rules(std::move(rules)) {
    for (std::size_t i = 0; i < _parameters.size(); ++i) {
        _parameterIndex.emplace(_parameters[i].name, i);
    }
    for (std::size_t i = 0; i < _sets.size(); ++i) {
        _setIndex.emplace(_sets[i].name, i);
    }
}

const Parameter* FeatureType::FindParameter(std::string_view name) const {
    return Find(_parameterIndex, _parameters, name);
}

const ParameterSet* FeatureType::FindSet(std::string_view name) const {
    return Find(_setIndex, _sets, name);
}

const ParameterValue* FeatureType::ValueOf(const ParameterSet& set, std::string_view parameter) const {
    return Find(_parameterIndex, set.values, parameter);
}

} // namespace engineering
