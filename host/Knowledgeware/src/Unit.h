#ifndef Unit_H
#define Unit_H

#include <string>
#include <string_view>

namespace host {

// A unit that may be typed.
struct Unit {
    std::string_view magnitude;
    std::string_view name;
    double stored; // how many storage units it has

    // The one called iName that iMagnitude has, or null.
    static const Unit* Find(std::string_view iName, std::string_view iMagnitude);
    // All units of a magnitude: "mm, cm, m, in"; empty when it has none.
    static std::string ListOf(std::string_view iMagnitude);
};

} // namespace host

#endif
