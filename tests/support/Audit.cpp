#include "Audit.h"

#include "CATError.h"
#include "host/CommandInspection.h"
#include "host/DelayedDestruction.h"
#include "host/ErrorInspection.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"
#include "host/Misuse.h"
#include "host/Preferences.h"
#include "host/Trace.h"

#include <limits>

namespace support {

struct Audit::Finding {
    Leftover leftover;
    std::string text; // empty when all is well
};

namespace {

std::string Joined(const std::vector<std::string>& iTexts) {
    std::string joined;
    for (const std::string& text : iTexts)
        joined += (joined.empty() ? "" : "; ") + text;
    return joined;
}

std::string Named(const std::string& iWhat, const std::vector<std::string>& iTexts) {
    return iTexts.empty() ? std::string() : iWhat + ": " + Joined(iTexts);
}

std::string Grown(const std::string& iWhat, int iBefore, int iAfter) {
    if (iBefore == iAfter)
        return std::string();
    return iWhat + ": " + std::to_string(iBefore) + " before, " + std::to_string(iAfter) + " after";
}

std::string PendingDestructions() {
    const int pending = host::DelayedDestruction::Pending();
    return pending == 0 ? std::string()
                        : std::to_string(pending) + " command(s) still wait for their destruction";
}

std::string LastErrorText() {
    const CATError* const error = host::ErrorInspection::LastError();
    if (error == nullptr)
        return std::string();
    return std::string("an error that nobody looked at: ") + error->IsA() + " " + error->GetMsgId() + " (" +
           Joined(host::ErrorInspection::Parameters(*error)) + ")";
}

// Channels whose level was lowered; one of them stands for those that have no level of their own.
std::vector<std::string> SilencedChannels() {
    std::vector<std::string> silenced;
    for (const char* channel : {"OrvKv9Errors", "OrvKv9SubFrames", "OrvKv9ViewBase", "any other channel"})
        if (!host::Trace::Passes(channel, std::numeric_limits<int>::max()))
            silenced.emplace_back(channel);
    return silenced;
}

// Armed fault points count the calls that they see.
bool AreFaultPointsArmed() {
    const int before = host::FaultPoints::Passed();
    static_cast<void>(host::FaultPoints::Fails("audit"));
    return host::FaultPoints::Passed() != before;
}

// What was stored in memory is no leftover: CleanUp forgets it.
std::string PreferencesElsewhere(const std::string& iBefore) {
    const std::string place = host::Preferences::Place();
    if (place == iBefore)
        return std::string();
    return place.empty() ? "the preferences are withdrawn" : "the preferences are kept in " + place;
}

std::vector<std::string> MessageTexts() {
    std::vector<std::string> texts;
    for (const host::Message& message : host::Messages::Journal())
        texts.push_back("\"" + message.text + "\"");
    if (host::Messages::QueuedAnswers() > 0)
        texts.push_back(std::to_string(host::Messages::QueuedAnswers()) + " queued answer(s) not asked for");
    return texts;
}

std::vector<std::string> Differences(std::map<std::string, int> iBefore,
                                     const std::map<std::string, int>& iAfter) {
    std::vector<std::string> differences;
    for (const auto& [name, count] : iAfter) {
        const int before = iBefore[name];
        if (count != before)
            differences.push_back(std::to_string(count - before) + " " + name);
        iBefore.erase(name);
    }
    for (const auto& [name, count] : iBefore)
        if (count != 0)
            differences.push_back(std::to_string(-count) + " " + name);
    return differences;
}

} // namespace

Audit::Audit()
    : _liveObjects(host::LiveObjects::CountByClass()), _language(host::MessageCatalogs::Language()),
      _preferences(host::Preferences::Place()), _subscriptions(host::CommandInspection::Subscriptions()),
      _analyseCallbacks(host::CommandInspection::AnalyseCallbacks()), _traceSinks(host::Trace::SinkCount()) {}

void Audit::Allow(Leftover iLeftover, const std::string& iReason) {
    _allowed[iLeftover] = iReason;
}

std::vector<std::string> Audit::FindingsOfBody() const {
    const std::string& language = host::MessageCatalogs::Language();
    return Report({{Leftover::PendingDestruction, PendingDestructions()},
                   {Leftover::LastError, LastErrorText()},
                   {Leftover::Language, language == _language ? "" : "the language is '" + language + "'"},
                   {Leftover::TraceLevels, Named("trace levels were lowered", SilencedChannels())},
                   {Leftover::FaultPoints, AreFaultPointsArmed() ? "fault points are armed" : ""},
                   {Leftover::Preferences, PreferencesElsewhere(_preferences)},
                   {Leftover::Misuse, Named("misuses", host::Misuse::Recorded())},
                   {Leftover::MissingTexts, Named("missing texts", host::MessageCatalogs::Missing())},
                   {Leftover::Messages, Named("messages that nobody looked at", MessageTexts())}});
}

std::vector<std::string> Audit::FindingsAtEnd() const {
    const std::vector<std::string> objects = Differences(_liveObjects, host::LiveObjects::CountByClass());
    return Report({{Leftover::LiveObjects, Named("live objects", objects)},
                   {Leftover::Subscriptions,
                    Grown("event subscriptions", _subscriptions, host::CommandInspection::Subscriptions())},
                   {Leftover::AnalyseCallbacks, Grown("analyse callbacks", _analyseCallbacks,
                                                      host::CommandInspection::AnalyseCallbacks())},
                   {Leftover::TraceSinks, Grown("trace sinks", _traceSinks, host::Trace::SinkCount())}});
}

void Audit::CleanUp() {
    CATError::CATCleanLastError();
    host::FaultPoints::Stop();
    host::Misuse::Clear();
    host::Messages::Reset();
    host::MessageCatalogs::Reset();
    host::CommandInspection::Reset();
    host::Trace::Reset();
    host::Preferences::KeepInMemory();
}

std::vector<std::string> Audit::Report(const std::vector<Finding>& iFindings) const {
    std::vector<std::string> texts;
    for (const Finding& finding : iFindings)
        if (!finding.text.empty() && _allowed.count(finding.leftover) == 0)
            texts.push_back(finding.text);
    return texts;
}

} // namespace support
