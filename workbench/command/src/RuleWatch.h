#pragma once

// Shows in the main panel which rules of a feature type the feature breaks: the messages one a line, the
// traffic light, and whether the feature is valid.

#include "engineering/RuleCheck.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class OrvKvMainPanel;

namespace workbench {

class RuleWatch {
  public:
    /// The panel is not owned; null ends the showing.
    void Attach(OrvKvMainPanel* panel) { _panel = panel; }

    /// Uses the rules of a type from now on; null for none. The type is not owned.
    void UseType(const engineering::FeatureType* type);
    /// Something of the catalogue that cannot be used, as one line of its own; empty for nothing.
    void UseProblem(std::string problem) { _problem = std::move(problem); }

    /// Checks the values and shows the outcome. A change between valid and invalid is signalled, and so is
    /// the first outcome for a type.
    void Check(const std::map<std::string, double, std::less<>>& values);

    /// Whether no rule is broken whose breach is more than a warning.
    bool IsValid() const { return _isValid; }

  private:
    std::vector<std::string> Problems() const;
    void Show(const std::vector<const engineering::Rule*>& broken);
    void Signal(bool isValid);
    std::string MessageOf(const engineering::Rule& rule) const;

    OrvKvMainPanel* _panel = nullptr;
    const engineering::FeatureType* _type = nullptr;
    std::unique_ptr<engineering::RuleCheck> _check; ///< null without a type
    std::string _problem;
    bool _isValid = true;
    bool _isSignalled = false; ///< the outcome for the type was signalled once
};

} // namespace workbench
