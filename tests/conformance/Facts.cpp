#include "Facts.h"

#include <algorithm>
#include <ostream>

namespace conformance {

namespace {

std::vector<Fact>& AllFacts() {
    static std::vector<Fact> facts;
    return facts;
}

} // namespace

bool Facts::AddCertain(const char* iSubject, const char* iSentence) {
    AllFacts().push_back(Fact{iSubject, iSentence, Mark::Certain, std::string()});
    return true;
}

bool Facts::AddAssumed(const char* iSubject, const char* iSentence, const char* iReason) {
    AllFacts().push_back(Fact{iSubject, iSentence, Mark::Assumed, iReason});
    return true;
}

const std::vector<Fact>& Facts::All() {
    return AllFacts();
}

void Facts::Print(std::ostream& ioOut, Mark iMark) {
    std::vector<std::string> lines;
    for (const Fact& fact : All())
        if (fact.mark == iMark)
            lines.push_back(fact.reason.empty() ? fact.Name() : fact.Name() + ": " + fact.reason);
    std::sort(lines.begin(), lines.end());
    for (const std::string& line : lines)
        ioOut << line << '\n';
}

} // namespace conformance
