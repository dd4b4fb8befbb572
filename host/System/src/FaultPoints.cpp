#include "host/FaultPoints.h"

#include <charconv>
#include <cstdlib>

namespace host {

bool FaultPoints::_watching = false;

namespace {

struct Plan {
    int failing = 0;  // number of the call that fails; 0 for none
    std::string name; // counts calls of this name alone; empty for all
    int passed = 0;
    std::map<std::string, int> passedByName;
};

Plan plan;

} // namespace

void FaultPoints::StartCounting() {
    FailCall(0);
}

void FaultPoints::FailCall(int iNumber, const std::string& iName) {
    plan = Plan{iNumber, iName, 0, {}};
    _watching = true;
}

void FaultPoints::Stop() {
    _watching = false;
}

int FaultPoints::Passed() {
    return plan.passed;
}

std::map<std::string, int> FaultPoints::PassedByName() {
    return plan.passedByName;
}

bool FaultPoints::Decide(const char* iName) {
    ++plan.passed;
    const int ofThisName = ++plan.passedByName[iName];
    if (plan.name.empty())
        return plan.passed == plan.failing;
    return plan.name == iName && ofThisName == plan.failing;
}

bool FaultPoints::DecideByName(const char* iName) {
    return plan.name == iName && ++plan.passedByName[iName] == plan.failing;
}

bool FaultPoints::ArmFromEnvironment() {
    const char* wanted = std::getenv("KELVANE_FAIL_CALL");
    if (wanted == nullptr || *wanted == '\0')
        return true;
    const std::string text(wanted);
    const std::size_t colon = text.rfind(':');
    const std::string name = colon == std::string::npos ? std::string() : text.substr(0, colon);
    const char* first = text.data() + (colon == std::string::npos ? 0 : colon + 1);
    const char* last = text.data() + text.size();
    int number = 0;
    const std::from_chars_result result = std::from_chars(first, last, number);
    const bool isNameMissing = colon == 0;
    if (isNameMissing || result.ec != std::errc() || result.ptr != last || number < 1)
        return false;
    FailCall(number, name);
    return true;
}

} // namespace host
