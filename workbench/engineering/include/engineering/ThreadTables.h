#pragma once

// The thread standards of a catalogue.
//
//   const FoundThread found = catalogue.Threads().Find("M 10x1,25");
//   found.standard->name == "Metric fine"; found.thread->minorDiameter == 8.647;

#include "engineering/ThreadStandard.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

/// Both or neither; they live as long as the tables.
struct FoundThread {
    const ThreadStandard* standard = nullptr;
    const Thread* thread = nullptr;
};

class ThreadTables {
  public:
    ThreadTables() = default;
    /// Names of standards are unique.
    explicit ThreadTables(std::vector<ThreadStandard> standards);

    /// In the order shown.
    const std::vector<ThreadStandard>& Standards() const { return _standards; }
    /// The standard of that exact name, or nullptr.
    const ThreadStandard* Standard(std::string_view name) const;

    /// The thread of a designation as a person writes it: blanks, case, a decimal comma, zeros at the end of
    /// a fraction and the pitch of a coarse thread make no difference. Neither when there is no such thread.
    FoundThread Find(std::string_view designation) const;

    /// Those whose designations are most like a mistaken one, the likest first; at most `count`.
    std::vector<FoundThread> Nearest(std::string_view designation, std::size_t count) const;

  private:
    struct Place {
        std::size_t standard = 0;
        std::size_t thread = 0;
    };

    FoundThread At(Place place) const;

    std::vector<ThreadStandard> _standards;
    std::map<std::string, Place, std::less<>> _places; ///< by the normal spelling of designations
};

} // namespace engineering
