#pragma once

#include "OrvKvToleranceSubTest.h"

#include "NotedCalls.h"
#include "StandInParameter.h"

#include <utility>

// What the tests of the tolerance panel share that have a hand in the parameter, or need a chosen fit.
class OrvKvToleranceSubModelTest : public OrvKvToleranceSubTest {
  protected:
    // From now on the panels are made for this parameter, which notes the deviations that it is given.
    support::StandInParameter& StandIn() {
        const CATICkeParm_var length = host::Parameters::NewLength("D", 20.0);
        const auto standIn = host::Adopt(new support::StandInParameter(length));
        _tolerance = host::Adopt(new support::NotedTolerance(length, _calls));
        standIn->tolerance = _tolerance;
        _given = standIn;
        return *standIn;
    }
    support::Calls TakeCalls() { return std::exchange(_calls, {}); }

    // A panel for the given parameter, or else for a new length.
    void Make() { MakeFor(!_given ? host::Parameters::NewLength("D", 20.0) : _given); }
    void MakeBuilt() {
        Make();
        _panel->Build();
    }
    // In that mode, which the command has heard of.
    void MakeIn(CATDlgRadioButton& (*iMode)()) {
        MakeBuilt();
        Enter(iMode());
    }
    void Enter(CATDlgRadioButton& ioMode) {
        Choose(ioMode);
        Said();
        TakeCalls();
    }
    // In fit mode with the groups G and H and the fields H6 and H7; H7 is chosen, with the deviations 0.021
    // and 0.
    void MakeChosen() {
        MakeIn(Fit);
        SetGroups({"G", "H"}, "H", "H7");
        SetFields({"H6", "H7"});
        SetFittingVals(0.021, 0.0);
        Said();
        TakeCalls();
    }

    CATICkeParm_var _given; // null for a new length each time
    CATHandle<support::NotedTolerance> _tolerance;

  private:
    support::Calls _calls;
};
