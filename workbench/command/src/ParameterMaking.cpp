#include "ParameterMaking.h"

#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "host/Parameters.h"

namespace workbench {

namespace {

using engineering::Magnitude;
using engineering::Tolerance;
using host::Parameters;

/// Writes a value of any kind. The catalogue and the platform's documents both keep mm and degrees.
struct Writing {
    const CATICkeParm_var& parameter;

    bool operator()(double number) const { return WriteNumber(number); }
    bool operator()(std::int64_t number) const { return WriteNumber(static_cast<double>(number)); }
    bool operator()(bool flag) const { return WriteNumber(flag ? 1.0 : 0.0); }
    bool operator()(const std::string& text) const {
        return !!parameter && SUCCEEDED(parameter->Valuate(CATUnicodeString(text.c_str())));
    }

  private:
    bool WriteNumber(double number) const {
        const CATIParmAsStored_var stored(parameter);
        const CATIParmEvents_var events(parameter);
        if (!stored || !events || FAILED(stored->SetValue(number)))
            return false;
        events->RaiseChange(1);
        return true;
    }
};

} // namespace

CATICkeParm_var NewParameter(const engineering::Parameter& definition) {
    const CATUnicodeString name(definition.name.c_str());
    switch (definition.magnitude) {
    case Magnitude::Length:
        return Parameters::NewLength(name, 0.0);
    case Magnitude::Angle:
        return Parameters::NewAngle(name, 0.0);
    case Magnitude::Real:
        return Parameters::NewReal(name, 0.0);
    case Magnitude::Integer:
        return Parameters::NewInteger(name, 0);
    case Magnitude::Boolean:
        return Parameters::NewBoolean(name, false);
    case Magnitude::String:
        break;
    }
    return Parameters::NewString(name, CATUnicodeString());
}

CATICkeParm_var NewParameterFor(const engineering::Parameter& definition,
                                const engineering::ParameterValue& entry) {
    if (!entry.value)
        return Parameters::NewString(definition.name.c_str(), NotTabulated());
    CATICkeParm_var parameter = NewParameter(definition);
    if (!Write(parameter, *entry.value))
        return {};
    StoreLimits(parameter, entry.tolerance);
    return parameter;
}

bool Write(const CATICkeParm_var& parameter, const engineering::Value& value) {
    return std::visit(Writing{parameter}, value);
}

void StoreLimits(const CATICkeParm_var& parameter, const Tolerance& tolerance) {
    const CATIParmTolerance_var limits(parameter);
    if (!limits)
        return;
    if (tolerance.kind != Tolerance::Kind::Limits) {
        limits->Unset();
        return;
    }
    limits->SetMaxTolerance(tolerance.upper);
    limits->SetMinTolerance(tolerance.lower);
}

Tolerance LimitsOf(const CATICkeParm_var& parameter) {
    const CATIParmTolerance_var limits(parameter);
    if (!limits || limits->GetTypeOfTolerance() != 1)
        return {};
    return {Tolerance::Kind::Limits, {}, limits->GetMaxTolerance(), limits->GetMinTolerance()};
}

engineering::Value ValueOf(const CATICkeParm_var& parameter, Magnitude magnitude) {
    if (magnitude == Magnitude::String)
        return std::string(parameter->AsString().ConvertToUTF8());
    const CATIParmAsStored_var stored(parameter);
    const double number = !stored ? 0.0 : stored->GetValue();
    if (magnitude == Magnitude::Integer)
        return static_cast<std::int64_t>(number);
    if (magnitude == Magnitude::Boolean)
        return number != 0.0;
    return number;
}

CATUnicodeString FitText(const Tolerance& tolerance) {
    return tolerance.fitClass.c_str();
}

CATUnicodeString NotTabulated() {
    return "\xE2\x80\x94"; // an em dash
}

} // namespace workbench
