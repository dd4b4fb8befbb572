#pragma once

#include "OrvKvParameterListSub.h"

#include "CATICkeParm.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "support/ApplicationTest.h"
#include "support/Report.h"
#include "support/ResourceFolder.h"

#include <functional>
#include <string>
#include <vector>

class CATDlgMultiList;

// What the tests of the parameter list share: parameters, the lists that the panel takes, and the panel with
// what it shows and reports.

namespace support {

constexpr char parameterListSource[] = "OrvKv9SubFrames.m/src/OrvKvParameterListSub";

// One parameter as the panel is told of it.
struct Listed {
    CATBaseUnknown_var parameter = {};
    std::string name = "";
    std::string tolerance = "";
    int valueShown = 1;
    int valueEditable = 1;
    int toleranceShown = 1;
    int toleranceEditable = 1;
};

// The seven lists that say the same.
struct ParameterLists {
    CATListValCATBaseUnknown_var parameters;
    CATListValCATString names;
    CATListValCATUnicodeString tolerances;
    CATRawCollint valueShown;
    CATRawCollint valueEditable;
    CATRawCollint toleranceShown;
    CATRawCollint toleranceEditable;

    static ParameterLists Of(const std::vector<Listed>& iListed);
    long HandTo(OrvKvParameterListSub& ioPanel) const;
};

// A length, without a tolerance and with one.
CATICkeParm_var Length(const char* iName, double iMillimetres);
CATICkeParm_var Length(const char* iName, double iMillimetres, double iMaximum, double iMinimum);
void SetTolerance(const CATBaseUnknown_var& iParameter, double iMaximum, double iMinimum);
// A new value in millimetres; the change is raised.
void Change(const CATICkeParm_var& iParameter, double iMillimetres);
void RaiseToleranceChange(const CATBaseUnknown_var& iParameter);
int SubscriptionsOn(const CATBaseUnknown_var& iParameter);

using Rows = std::vector<std::string>;
using Reported = std::vector<std::string>;

class ParameterListTest : public ApplicationTest {
  protected:
    ParameterListTest();

    // A panel that is not built; it replaces the one before. 1: without a column for the description.
    void Make(int iNoToleranceColumn = 0);
    void MakeBuilt(int iNoToleranceColumn = 0);
    OrvKvParameterListSub& Panel() { return *_panel; }
    // Takes the panel away as its father would.
    void Destroy();
    CATDlgMultiList& List();

    Report SetParameters(const std::vector<Listed>& iListed);
    Report SetFittingInfo(const char* iName, const char* iFitting);
    // A feature of which these parameters have a temporary modification.
    static OrvIKvFeatureParameters_var FeatureWith(std::initializer_list<const char*> iModified);

    // The cells of each line, as "*|D|10mm|+0.1/-0.05|Diameter".
    Rows ShownRows();
    std::string Cell(int iRow, int iColumn);
    // What the panel reported to its father since the last call, in order: "changed D" and "double click on D
    // at 3, value 1, tolerance 0".
    Reported TakeReported();
    // A double click of the user on a row, from 1.
    void DoubleClick(int iRow);

    ResourceFolder _resources;               // has the descriptions "Diameter" of D and "Depth" of T
    OrvKvParameterListSub* _panel = nullptr; // owned by the main window
};

} // namespace support
