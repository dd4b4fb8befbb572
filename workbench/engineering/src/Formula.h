#pragma once

// A formula over named numbers, such as "D > DH && T > 0", read once and evaluated often.
//
// It has numbers with a decimal point, names, + - * / ^, comparisons, && and ||, the choice a ? b : c, and
// the functions abs, min, max, sqrt, and sin, cos, tan of degrees. Names are case-sensitive. Nothing in it
// can change a value.

#include "engineering/Parsed.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace engineering {

class Formula {
  public:
    using Values = std::map<std::string, double, std::less<>>;

    /// The formula, or the sentence that tells why the text is none.
    static Parsed<Formula> Read(const std::string& text);

    Formula(Formula&&) noexcept;
    Formula& operator=(Formula&&) noexcept;
    ~Formula();

    /// The names it needs, in alphabetical order.
    std::vector<std::string> Names() const;

    /// The result; none when a name has no finite value or the result is no finite number. Other values are
    /// ignored. Not to be used by two threads at once.
    std::optional<double> Result(const Values& values) const;

  private:
    struct Machine;
    explicit Formula(std::unique_ptr<Machine> machine);

    std::unique_ptr<Machine> _machine;
};

} // namespace engineering
