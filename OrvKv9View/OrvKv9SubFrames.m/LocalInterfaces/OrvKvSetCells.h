#ifndef OrvKvSetCells_H
#define OrvKvSetCells_H

#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawCollint.h"

#include <vector>

// The texts of a table of parameter sets. Behind the name of a set stand the value and then the tolerance of
// each parameter, where they are shown; a table holds 100 columns at most.
//
// Entry i of every list belongs to parameter i. The lists of flags are equally long and outlive this object.
class OrvKvSetCells {
  public:
    OrvKvSetCells(const CATRawCollint& iShowValue, const CATRawCollint& iValueEditable,
                  const CATRawCollint& iShowTolerance, const CATRawCollint& iToleranceEditable);

    // A tolerance has the name of its parameter with iToleranceMark behind it.
    std::vector<CATUnicodeString> Titles(const CATUnicodeString& iTitleOfSetNames,
                                         const CATListValCATString& iNames,
                                         const CATUnicodeString& iToleranceMark) const;
    // What cannot be edited stands in parentheses; a cell that a list is too short for is empty. Raises the
    // platform's null-handle error where a parameter is none or lacks the tolerance that is asked for.
    std::vector<CATUnicodeString> Line(const CATUnicodeString& iSetName,
                                       const CATListValCATBaseUnknown_var& iParameters,
                                       const CATListValCATUnicodeString& iTolerances) const;

  private:
    // A column behind that of the set names.
    struct Column {
        int parameter; // position, from 1
        bool isTolerance;
    };

    CATUnicodeString ValueOf(int iParameter, const CATListValCATBaseUnknown_var& iParameters) const;
    CATUnicodeString ToleranceOf(int iParameter, const CATListValCATBaseUnknown_var& iParameters,
                                 const CATListValCATUnicodeString& iTolerances) const;

    const CATRawCollint& _valueEditable;
    const CATRawCollint& _toleranceEditable;
    std::vector<Column> _columns;
};

#endif
