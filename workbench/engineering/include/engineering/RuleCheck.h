#pragma once

// Checks the rules of a feature type against values.
//
//   const RuleCheck check(*type);
//   for (const Rule* broken : check.Broken({{"D", 5.0}, {"DH", 6.6}}))
//       std::cout << broken->message << '\n';

#include "engineering/FeatureType.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace engineering {

class RuleCheck {
  public:
    /// The type is not owned and outlives the check.
    explicit RuleCheck(const FeatureType& type);
    RuleCheck(const RuleCheck&) = delete;
    RuleCheck& operator=(const RuleCheck&) = delete;
    ~RuleCheck();

    /// The rules whose condition does not hold, in the order of the catalogue. Values are those of the
    /// parameters by name, lengths in mm, angles in degrees, booleans 0 or 1. A rule that needs a value which
    /// is not there, that gives no number, or that has a problem is passed over.
    std::vector<const Rule*> Broken(const std::map<std::string, double, std::less<>>& values) const;

  private:
    struct Condition;
    std::vector<std::unique_ptr<Condition>> _conditions; ///< of the rules whose condition can be used
};

} // namespace engineering
