#include "Magnitude.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace host {

CATImplementClass(Magnitude, Implementation, CATBaseUnknown, CATNull);

namespace {

constexpr int magnitudes = 6;

bool IsWholeNumber(double iNumber) {
    return std::trunc(iNumber) == iNumber && iNumber >= std::numeric_limits<int>::min() &&
           iNumber <= std::numeric_limits<int>::max();
}

} // namespace

// Never destroyed: parameters that die after main still ask for theirs.
Magnitude* const* Magnitude::All() {
    static Magnitude* const all[magnitudes] = {
        new Magnitude("LENGTH", Values::Numbers, "mm", 1000.0),
        new Magnitude("ANGLE", Values::Numbers, "deg", 180.0 / std::numbers::pi),
        new Magnitude("REAL", Values::Numbers),
        new Magnitude("INTEGER", Values::WholeNumbers),
        new Magnitude("BOOLEAN", Values::Truths),
        new Magnitude("STRING", Values::Texts)};
    return all;
}

Magnitude& Magnitude::Length() {
    return *All()[0];
}

Magnitude& Magnitude::Angle() {
    return *All()[1];
}

Magnitude& Magnitude::Real() {
    return *All()[2];
}

Magnitude& Magnitude::Integer() {
    return *All()[3];
}

Magnitude& Magnitude::Boolean() {
    return *All()[4];
}

Magnitude& Magnitude::String() {
    return *All()[5];
}

Magnitude* Magnitude::Named(const CATUnicodeString& iName) {
    for (int index = 0; index < magnitudes; ++index)
        if (iName == All()[index]->_name)
            return All()[index];
    return nullptr;
}

bool Magnitude::Takes(double iStored) const {
    switch (_values) {
    case Values::Numbers:
        return std::isfinite(iStored);
    case Values::WholeNumbers:
        return IsWholeNumber(iStored);
    case Values::Truths:
        return iStored == 0.0 || iStored == 1.0;
    case Values::Texts:
        return false;
    }
    return false;
}

CATUnicodeString Magnitude::Show(double iStored) const {
    CATUnicodeString text;
    if (_values == Values::Truths)
        text = iStored == 0.0 ? "false" : "true";
    else if (_values == Values::WholeNumbers)
        text.BuildFromNum(static_cast<int>(iStored));
    else
        text.BuildFromNum(iStored);
    text.Append(_unit);
    return text;
}

namespace {

// The objects are there before the first test or command counts what is alive.
[[maybe_unused]] Magnitude& madeAtStart = Magnitude::Length();

} // namespace

} // namespace host
