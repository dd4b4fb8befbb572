#include "host/ParameterEntry.h"

#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "Magnitude.h"
#include "TypedNumber.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

namespace host {

namespace {

// A unit that may be typed, and how many storage units it has.
struct Unit {
    std::string_view magnitude;
    std::string_view name;
    double stored;
};

constexpr Unit units[] = {
    {"LENGTH", "mm", 1.0},  {"LENGTH", "cm", 10.0}, {"LENGTH", "m", 1000.0},
    {"LENGTH", "in", 25.4}, {"ANGLE", "deg", 1.0},  {"ANGLE", "rad", 180.0 / std::numbers::pi},
};

// The units of a magnitude as a list: "mm, cm, m, in".
std::string UnitsOf(const std::string& iMagnitude) {
    std::string list;
    for (const Unit& unit : units)
        if (unit.magnitude == iMagnitude)
            list.append(list.empty() ? "" : ", ").append(unit.name);
    return list;
}

const Unit* FindUnit(const std::string& iName, const std::string& iMagnitude) {
    const Unit* const found = std::find_if(std::begin(units), std::end(units), [&](const Unit& iUnit) {
        return iUnit.magnitude == iMagnitude && iUnit.name == iName;
    });
    return found == std::end(units) ? nullptr : found;
}

Outcome Refuse(const std::string& iText, const std::string& iReason) {
    return Outcome::Refused("'" + WithoutOuterBlanks(iText) + "' " + iReason);
}

Outcome RefuseUnit(const std::string& iUnit, const std::string& iMagnitude) {
    const std::string known = UnitsOf(iMagnitude);
    return Refuse(iUnit, "is not a unit of " + iMagnitude +
                             (known.empty() ? ", which has none" : ", which has " + known));
}

Outcome ReadNumber(const std::string& iText, const std::string& iMagnitude, double& oStored) {
    TypedNumber typed;
    Outcome outcome = TypedNumber::Read(iText, typed);
    if (!outcome)
        return outcome;
    oStored = typed.number;
    if (!typed.unit.empty()) {
        const Unit* const unit = FindUnit(typed.unit, iMagnitude);
        if (unit == nullptr)
            return RefuseUnit(typed.unit, iMagnitude);
        oStored *= unit->stored;
    }
    if (!std::isfinite(oStored))
        return Refuse(iText, "is too large");
    if (iMagnitude == "INTEGER" && !Magnitude::Integer().Takes(oStored))
        return Refuse(iText, "is not a whole number from -2147483648 to 2147483647");
    return outcome;
}

Outcome ReadTruth(const std::string& iText, double& oStored) {
    const std::string typed = WithoutOuterBlanks(iText);
    const bool isTrue = typed == "true" || typed == "1";
    oStored = isTrue ? 1.0 : 0.0;
    if (isTrue || typed == "false" || typed == "0")
        return Outcome::Done();
    return Refuse(typed, "is neither true nor false");
}

Outcome NotTaken(CATICkeParm& ioParameter) {
    return Outcome::Refused(std::string(ioParameter.Name().ConvertToChar()) + " does not take the value");
}

Outcome Write(CATICkeParm& ioParameter, double iStored) {
    const CATIParmAsStored_var asStored(&ioParameter);
    const CATIParmEvents_var events(&ioParameter);
    if (!asStored || !events || FAILED(asStored->SetValue(iStored)))
        return NotTaken(ioParameter);
    events->RaiseChange(1);
    return Outcome::Done();
}

Outcome TypeText(CATICkeParm& ioParameter, const std::string& iText) {
    const CATICkeParm_var kept(&ioParameter); // a callback may let go of it
    return FAILED(kept->Valuate(CATUnicodeString(iText.c_str()))) ? NotTaken(*kept) : Outcome::Done();
}

} // namespace

Outcome ParameterEntry::Type(CATICkeParm& ioParameter, const std::string& iText) {
    if (ioParameter.GetUserAccessMode() != 3)
        return Outcome::Refused(std::string(ioParameter.Name().ConvertToChar()) + " is read-only");
    const std::string magnitude = ioParameter.Type()->Name().ConvertToChar();
    if (magnitude == "STRING")
        return TypeText(ioParameter, iText);
    double stored = 0.0;
    Outcome read = magnitude == "BOOLEAN" ? ReadTruth(iText, stored) : ReadNumber(iText, magnitude, stored);
    return read ? Write(ioParameter, stored) : read;
}

} // namespace host
