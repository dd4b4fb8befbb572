#include "SetDescription.h"

#include "CATMsgCatalog.h"
#include "DisplayNames.h"
#include "engineering/FeatureType.h"

namespace workbench {

namespace {

using engineering::Parameter;
using engineering::ParameterValue;
using engineering::Tolerance;

constexpr const char* notTabulated = "\xE2\x80\x94"; // an em dash

CATUnicodeString TextOf(const char* key, const CATUnicodeString* parameters = nullptr, int count = 0) {
    return CATMsgCatalog::BuildMessage("FeatureCommand", key, parameters, count);
}

CATUnicodeString NumberText(double number) {
    CATUnicodeString text;
    text.BuildFromNum(number, "%.10g");
    return text;
}

double FactorOf(const Parameter& parameter) {
    const engineering::Unit* const unit = engineering::UnitNamed(parameter.unit);
    return unit == nullptr ? 1.0 : unit->toBase;
}

CATUnicodeString UnitOf(const Parameter& parameter) {
    if (parameter.unit.empty())
        return {};
    return parameter.unit == "deg" ? "\xC2\xB0" : (" " + parameter.unit).c_str();
}

struct ValueText {
    const Parameter& parameter;

    CATUnicodeString operator()(double number) const {
        return NumberText(number / FactorOf(parameter)) + UnitOf(parameter);
    }
    CATUnicodeString operator()(std::int64_t number) const { return std::to_string(number).c_str(); }
    CATUnicodeString operator()(bool flag) const { return TextOf(flag ? "Yes" : "No"); }
    CATUnicodeString operator()(const std::string& text) const { return text.c_str(); }
};

CATUnicodeString DeviationText(double deviation) {
    return (deviation > 0 ? CATUnicodeString("+") : CATUnicodeString()) + NumberText(deviation);
}

CATUnicodeString ToleranceText(const Parameter& parameter, const Tolerance& tolerance) {
    if (tolerance.kind == Tolerance::Kind::None)
        return {};
    if (tolerance.kind != Tolerance::Kind::Limits)
        return (" " + tolerance.fitClass).c_str();
    const double factor = FactorOf(parameter);
    return CATUnicodeString(" ") + DeviationText(tolerance.upper / factor) + "/" +
           DeviationText(tolerance.lower / factor);
}

CATUnicodeString ValueLine(const std::string& typeKey, const Parameter& parameter,
                           const ParameterValue& entry) {
    CATUnicodeString line = (parameter.name + " = ").c_str();
    if (entry.value)
        line += std::visit(ValueText{parameter}, *entry.value) + ToleranceText(parameter, entry.tolerance);
    else
        line += notTabulated;
    const CATUnicodeString meaning = MeaningOf(typeKey, parameter.name);
    return meaning == "" ? line : line + "  (" + meaning + ")";
}

} // namespace

CATUnicodeString Describe(const engineering::FeatureType& type, const engineering::ParameterSet& set) {
    const engineering::TypeDescription& description = type.Description();
    CATUnicodeString text = CATUnicodeString(set.name.c_str()) + "\n" + DisplayNameOf(description.key) + "\n";
    for (std::size_t index = 0; index < type.Parameters().size(); ++index)
        text +=
            CATUnicodeString("\n") + ValueLine(description.key, type.Parameters()[index], set.values[index]);
    const CATUnicodeString standard(description.standard.c_str());
    return text + "\n\n" + TextOf("Standard", &standard, 1);
}

CATUnicodeString NoSetChosen() {
    return TextOf("NoSet");
}

} // namespace workbench
