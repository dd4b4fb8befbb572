#ifndef host_Outcome_H
#define host_Outcome_H

#include <string>
#include <utility>

namespace host {

// Whether a person could do what was asked, and if not, why not, in one sentence.
struct [[nodiscard]] Outcome {
    bool done = true;
    std::string reason; // empty when done

    static Outcome Done() { return Outcome(); }
    static Outcome Refused(std::string iReason) { return Outcome{false, std::move(iReason)}; }
    explicit operator bool() const { return done; }
};

} // namespace host

#endif
