#include "RuleWatch.h"

#include "CATListValCATUnicodeString.h"
#include "CATMsgCatalog.h"
#include "CommandTexts.h"
#include "OrvKvMainPanel.h"

#include <algorithm>

namespace workbench {

namespace {

using engineering::Rule;
using engineering::Severity;

// What the traffic light of the main panel shows.
constexpr int green = 0;
constexpr int red = 1;
constexpr int yellow = 2;

bool IsViolation(const Rule* rule) {
    return rule->severity == Severity::Violation;
}

} // namespace

void RuleWatch::UseType(const engineering::FeatureType* type) {
    _type = type;
    _check = type == nullptr ? nullptr : std::make_unique<engineering::RuleCheck>(*type);
    _isSignalled = false;
    _isValid = true;
}

void RuleWatch::Check(const std::map<std::string, double, std::less<>>& values) {
    if (_panel == nullptr)
        return;
    const std::vector<const Rule*> broken = _check ? _check->Broken(values) : std::vector<const Rule*>();
    Show(broken);
    if (_type != nullptr)
        Signal(std::none_of(broken.begin(), broken.end(), IsViolation));
}

void RuleWatch::Show(const std::vector<const Rule*>& broken) {
    CATListValCATUnicodeString lines;
    for (const Rule* rule : broken)
        lines.Append(MessageOf(*rule).c_str());
    const std::vector<std::string> problems = Problems();
    for (const std::string& problem : problems)
        lines.Append(CommandText("CatalogueProblem", {CATUnicodeString(problem.c_str())}));
    _panel->UpdateRuleEditor(lines);
    const bool isRed = std::any_of(broken.begin(), broken.end(), IsViolation);
    _panel->SetColorIcon(isRed ? red : lines.Size() > 0 ? yellow : green);
}

std::vector<std::string> RuleWatch::Problems() const {
    std::vector<std::string> problems;
    if (!_problem.empty())
        problems.push_back(_problem);
    if (_type == nullptr)
        return problems;
    for (const Rule& rule : _type->Rules())
        if (!rule.problem.empty())
            problems.push_back(rule.problem);
    return problems;
}

void RuleWatch::Signal(bool isValid) {
    if (_isSignalled && isValid == _isValid)
        return;
    _isSignalled = true;
    _isValid = isValid;
    if (isValid)
        _panel->TriggerStateChangeToValid();
    else
        _panel->TriggerStateChangeToInvalid();
}

// The catalogue's own text stands in for a translation that is missing.
std::string RuleWatch::MessageOf(const Rule& rule) const {
    const std::string key = _type->Description().key + "." + rule.key;
    return CATMsgCatalog::BuildMessage("FeatureRules", key.c_str(), nullptr, 0, rule.message.c_str())
        .ConvertToUTF8();
}

} // namespace workbench
