#pragma once

#include <map>
#include <string>
#include <vector>

namespace support {

// What a test can leave behind.
enum class Leftover {
    // looked at when the body of the test ends
    PendingDestruction,
    LastError,
    Language,
    TraceLevels,
    FaultPoints,
    Preferences,
    Misuse,
    MissingTexts,
    Messages,
    // looked at when everything that the test made is gone
    LiveObjects,
    Subscriptions,
    AnalyseCallbacks,
    TraceSinks
};

// Compares how things stand after a test with how they stood before it.
class Audit {
  public:
    // Remembers how things stand.
    Audit();

    // Lets one kind of leftover pass. iReason says why the test leaves it.
    void Allow(Leftover iLeftover, const std::string& iReason);

    // A sentence for each thing that should not be there: at the end of the body, and at the very end.
    std::vector<std::string> FindingsOfBody() const;
    std::vector<std::string> FindingsAtEnd() const;

    // Puts the process-wide state back, so that one test cannot spoil the next.
    static void CleanUp();

  private:
    struct Finding;
    std::vector<std::string> Report(const std::vector<Finding>& iFindings) const;

    std::map<Leftover, std::string> _allowed;
    std::map<std::string, int> _liveObjects;
    std::string _language;
    std::string _preferences;
    int _subscriptions;
    int _analyseCallbacks;
    int _traceSinks;
};

} // namespace support
