#include "FitChoice.h"

#include <algorithm>

namespace workbench {

using engineering::FitSide;
using engineering::ToleranceClass;

ToleranceClass FitChoice::Usual() const {
    return *engineering::ParseToleranceClass(_side == FitSide::Hole ? "H7" : "h6").value;
}

std::optional<ToleranceClass> FitChoice::Read(const std::string& text) const {
    const auto read = engineering::ParseToleranceClass(text);
    return read.value && read.value->side == _side ? read.value : std::nullopt;
}

std::optional<ToleranceClass> FitChoice::InGroup(double nominal, const std::string& letters,
                                                 const ToleranceClass& current) const {
    return _fits.Nearest(nominal, {_side, letters, current.grade});
}

std::optional<ToleranceClass> FitChoice::AtSize(double nominal, const ToleranceClass& wanted) const {
    return Deviations(nominal, wanted) ? wanted : _fits.Nearest(nominal, wanted);
}

std::optional<engineering::Deviations> FitChoice::Deviations(double nominal,
                                                             const ToleranceClass& fit) const {
    return _fits.DeviationsOf(nominal, fit).value;
}

CATListValCATUnicodeString FitChoice::Groups(double nominal, const ToleranceClass& current) const {
    std::vector<std::string> offered = _fits.OfferedLetters(nominal, _side);
    const bool isMissing = std::ranges::find(offered, current.letters) == offered.end();
    if (isMissing && Deviations(nominal, current))
        offered.push_back(current.letters);
    CATListValCATUnicodeString groups;
    for (const std::string& letters : offered)
        groups.Append(letters.c_str());
    return groups;
}

CATListValCATUnicodeString FitChoice::Fields(double nominal, const std::string& letters,
                                             const ToleranceClass& current) const {
    std::vector<ToleranceClass> offered = _fits.OfferedClasses(nominal, _side, letters);
    const bool isMissing = std::ranges::find(offered, current) == offered.end();
    if (isMissing && current.letters == letters && Deviations(nominal, current))
        offered.push_back(current);
    CATListValCATUnicodeString fields;
    for (const ToleranceClass& fit : offered)
        fields.Append(engineering::ToText(fit).c_str());
    return fields;
}

} // namespace workbench
