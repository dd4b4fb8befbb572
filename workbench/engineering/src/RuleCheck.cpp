#include "engineering/RuleCheck.h"

#include "Formula.h"

#include <utility>

namespace engineering {

struct RuleCheck::Condition {
    const Rule& rule;
    Formula formula;
};

RuleCheck::RuleCheck(const FeatureType& type) {
    for (const Rule& rule : type.Rules()) {
        if (!rule.problem.empty()) {
            continue;
        }
        if (Parsed<Formula> formula = Formula::Read(rule.condition); formula.value) {
            _conditions.push_back(std::make_unique<Condition>(Condition{rule, std::move(*formula.value)}));
        }
    }
}

RuleCheck::~RuleCheck() = default;

std::vector<const Rule*> RuleCheck::Broken(const std::map<std::string, double, std::less<>>& values) const {
    std::vector<const Rule*> broken;
    for (const std::unique_ptr<Condition>& condition : _conditions) {
        if (condition->formula.Result(values) == 0.0) {
            broken.push_back(&condition->rule);
        }
    }
    return broken;
}

} // namespace engineering
