#ifndef Magnitude_H
#define Magnitude_H

#include "CATICkeType.h"
#include "CATMacForIUnknown.h"
#include "host/Component.h"

namespace host {

// What a parameter measures: which values it takes, how they are stored, how they are shown. There is one
// object of each; they live as long as the process.
class Magnitude : public Component<CATICkeType> {
    CATDeclareClass;

  public:
    Magnitude(const Magnitude&) = delete;
    Magnitude& operator=(const Magnitude&) = delete;

    enum class Values { Numbers, WholeNumbers, Truths, Texts };

    static Magnitude& Length();
    static Magnitude& Angle();
    static Magnitude& Real();
    static Magnitude& Integer();
    static Magnitude& Boolean();
    static Magnitude& String();
    // The one called iName, or null.
    static Magnitude* Named(const CATUnicodeString& iName);

    CATUnicodeString Name() override { return _name; }

    bool HasText() const { return _values == Values::Texts; }
    // Lengths and angles alone.
    bool HasTolerance() const { return *_unit != '\0'; }
    // Whether the values follow one another in steps: every number does.
    bool HasSteps() const { return _values == Values::Numbers || _values == Values::WholeNumbers; }
    // Whether a number, in storage units, is a value of this magnitude.
    bool Takes(double iStored) const;
    double ToMks(double iStored) const { return iStored / _storedPerMks; }
    double FromMks(double iMks) const { return iMks * _storedPerMks; }
    // The number with its unit, "10mm" for instance.
    CATUnicodeString Show(double iStored) const;

  private:
    Magnitude(const char* iName, Values iValues, const char* iUnit = "", double iStoredPerMks = 1.0)
        : _name(iName), _values(iValues), _unit(iUnit), _storedPerMks(iStoredPerMks) {}

    // All of them, in the order of the functions above.
    static Magnitude* const* All();

    const char* _name;
    Values _values;
    const char* _unit;
    double _storedPerMks;
};

// Nobody wants to read "-0mm".
inline double WithoutMinusZero(double iNumber) {
    return iNumber + 0.0;
}

} // namespace host

#endif
