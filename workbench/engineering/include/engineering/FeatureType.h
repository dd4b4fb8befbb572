#pragma once

// A feature type of the catalogue: its parameters, the parameter sets of its standard, its geometry inputs
// and its rules.
//
//   const FeatureType* hole = catalogue.Type("ClearanceHole");
//   const ParameterSet* set = hole->FindSet("ISO 273 M6 fine");
//   const ParameterValue* diameter = hole->ValueOf(*set, "DH"); // 6.4 mm, H12

#include "engineering/Input.h"
#include "engineering/Parameter.h"
#include "engineering/ParameterSet.h"
#include "engineering/Rule.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

struct TypeDescription {
    std::string key;      ///< identifier, also the key of the display name
    std::string group;    ///< key of the group it is shown in
    std::string standard; ///< the standard the numbers come from
    std::string note;     ///< source and confidence
    /// Name of the STRING parameter whose value in a set designates the thread that the feature begins with;
    /// empty for a feature without a thread.
    std::string thread{};
};

class FeatureType {
  public:
    /// Takes everything over. Parameter names and set names are unique; each set has one value per parameter.
    /// Inputs are numbered from 1 on without a gap. Keys of rules are unique.
    FeatureType(TypeDescription description, std::vector<Parameter> parameters,
                std::vector<ParameterSet> sets, std::vector<Input> inputs, std::vector<Rule> rules = {});

    const TypeDescription& Description() const { return _description; }
    const std::vector<Parameter>& Parameters() const { return _parameters; }
    const std::vector<ParameterSet>& Sets() const { return _sets; }
    /// In the order of their numbers; at most three.
    const std::vector<Input>& Inputs() const { return _inputs; }
    /// In the order of the catalogue.
    const std::vector<Rule>& Rules() const { return _rules; }

    /// The parameter of that exact name, or nullptr.
    const Parameter* FindParameter(std::string_view name) const;

    /// The set of that exact name, or nullptr.
    const ParameterSet* FindSet(std::string_view name) const;

    /// The entry of a set of this type for the named parameter, or nullptr for an unknown name.
    const ParameterValue* ValueOf(const ParameterSet& set, std::string_view parameter) const;

  private:
    using Index = std::map<std::string, std::size_t, std::less<>>;

    TypeDescription _description;
    std::vector<Parameter> _parameters; ///< in the order of the catalogue
    std::vector<ParameterSet> _sets;    ///< in the order of the catalogue
    std::vector<Input> _inputs;         ///< in the order of their numbers
    std::vector<Rule> _rules;           ///< in the order of the catalogue
    Index _parameterIndex;              ///< name to position in _parameters
    Index _setIndex;                    ///< name to position in _sets
};

} // namespace engineering
