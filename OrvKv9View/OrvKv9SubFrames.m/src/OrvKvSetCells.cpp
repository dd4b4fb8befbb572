#include "OrvKvSetCells.h"

#include "CATICkeParm.h"
#include "CATIParmTolerance.h"
#include "OrvKvCellText.h"
#include "OrvKvPanelValues.h"

static constexpr std::size_t MaximumColumns = 100;

namespace {

CATUnicodeString Cell(const CATUnicodeString& iText, int iEditable) {
    return iEditable < 1 ? OrvKvInParentheses(iText) : iText;
}

// The limits that the parameter itself has, the maximum first; empty when it has none.
CATUnicodeString LimitsOf(const CATBaseUnknown_var& iParameter) {
    const CATIParmTolerance_var tolerance(iParameter);
    if (tolerance->GetTypeOfTolerance() != OrvKvToleranceIsSet)
        return CATUnicodeString();
    CATUnicodeString limits = OrvKvDeviationText(tolerance->GetMaxTolerance());
    limits += "/";
    limits += OrvKvDeviationText(tolerance->GetMinTolerance());
    return limits;
}

} // namespace

OrvKvSetCells::OrvKvSetCells(const CATRawCollint& iShowValue, const CATRawCollint& iValueEditable,
                             const CATRawCollint& iShowTolerance, const CATRawCollint& iToleranceEditable)
    : _valueEditable(iValueEditable), _toleranceEditable(iToleranceEditable) {
    for (int parameter = 1; parameter <= iShowValue.Size(); ++parameter) {
        if (iShowValue[parameter] > 0)
            _columns.push_back(Column{parameter, false});
        if (iShowTolerance[parameter] > 0)
            _columns.push_back(Column{parameter, true});
    }
    if (_columns.size() >= MaximumColumns)
        _columns.resize(MaximumColumns - 1);
}

std::vector<CATUnicodeString> OrvKvSetCells::Titles(const CATUnicodeString& iTitleOfSetNames,
                                                    const CATListValCATString& iNames,
                                                    const CATUnicodeString& iToleranceMark) const {
    std::vector<CATUnicodeString> titles(1, iTitleOfSetNames);
    for (const Column& column : _columns) {
        const CATUnicodeString name(iNames[column.parameter]);
        titles.push_back(column.isTolerance ? name + iToleranceMark : name);
    }
    return titles;
}

std::vector<CATUnicodeString> OrvKvSetCells::Line(const CATUnicodeString& iSetName,
                                                  const CATListValCATBaseUnknown_var& iParameters,
                                                  const CATListValCATUnicodeString& iTolerances) const {
    std::vector<CATUnicodeString> texts;
    texts.reserve(_columns.size() + 1);
    texts.push_back(iSetName);
    for (const Column& column : _columns)
        texts.push_back(column.isTolerance ? ToleranceOf(column.parameter, iParameters, iTolerances)
                                           : ValueOf(column.parameter, iParameters));
    return texts;
}

CATUnicodeString OrvKvSetCells::ValueOf(int iParameter,
                                        const CATListValCATBaseUnknown_var& iParameters) const {
    if (iParameter > iParameters.Size())
        return CATUnicodeString();
    const CATICkeParm_var parameter(iParameters[iParameter]);
    return Cell(parameter->Show(), _valueEditable[iParameter]);
}

CATUnicodeString OrvKvSetCells::ToleranceOf(int iParameter, const CATListValCATBaseUnknown_var& iParameters,
                                            const CATListValCATUnicodeString& iTolerances) const {
    if (iParameter > iTolerances.Size())
        return CATUnicodeString();
    const CATUnicodeString& text = iTolerances[iParameter];
    const int editable = _toleranceEditable[iParameter];
    if (text.GetLengthInByte() > 0)
        return Cell(text, editable);
    if (iParameter > iParameters.Size())
        return CATUnicodeString();
    return Cell(LimitsOf(iParameters[iParameter]), editable);
}
