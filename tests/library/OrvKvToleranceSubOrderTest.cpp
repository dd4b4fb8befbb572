// In which order things happen while the tolerance panel goes from one mode to another.

#include "OrvKvToleranceSubModesTest.h"

#include "NotedCalls.h"
#include "StandInParameter.h"
#include "support/ParameterWatcher.h"

namespace {

using namespace support;
using namespace toleranceSub;

class OrvKvToleranceSubOrderTest : public OrvKvToleranceSubModesTest {
  protected:
    // What is done to the parameter, and what its subscribers and those of the literals hear, in this order.
    void Watch() {
        for (const CATICkeParm_var& parm : {_parm, MaxLiteral(), MinLiteral()})
            _watcher.Watch(parm);
        _watcher.onEvent = [this] {
            for (const std::string& event : _watcher.Take())
                _calls.push_back(event);
        };
    }
    OrvKvToleranceSub& MakeNoted() {
        const CATICkeParm_var length = host::Parameters::NewLength("D", 20);
        const auto stand = host::Adopt(new StandInParameter(length));
        stand->tolerance = host::Adopt<CATIParmTolerance>(new NotedTolerance(length, _calls));
        MakeFor(stand).Build();
        Watch();
        return *_panel;
    }
    Calls Took() {
        Calls calls;
        calls.swap(_calls);
        return calls;
    }
    void TearDown() override {
        for (const CATICkeParm_var& parm : {_parm, MaxLiteral(), MinLiteral()})
            _watcher.Unwatch(parm);
        OrvKvToleranceSubModesTest::TearDown();
    }

    Calls _calls;
    ParameterWatcher _watcher;
};

TEST_F(OrvKvToleranceSubOrderTest, PlusMinusSetsTheMinimumBeforeTheMaximumAndTellsTheParameterLast) {
    MakeNoted();
    Choose(PlusMinus());
    EXPECT_EQ(Took(), Calls({"value of Min", "min = -0.1", "value of Max", "max = 0.1", "value of D"}));
}

TEST_F(OrvKvToleranceSubOrderTest, SymmetricListensBeforeItSetsTheDeviations) {
    MakeNoted();
    Choose(Symmetric());
    // The watcher subscribed first and so hears the maximum before the panel answers it.
    EXPECT_EQ(Took(), Calls({"value of Min", "min = -0.1", "value of Max", "value of Min", "max = 0.1",
                             "min = -0.1", "max = 0.1", "value of D"}));
}

TEST_F(OrvKvToleranceSubOrderTest, FromPlusMinusSymmetricTellsOfTheMaximumOnce) {
    MakeNoted();
    Choose(PlusMinus());
    Took();
    Choose(Symmetric());
    EXPECT_EQ(Took(), Calls({"value of Max", "value of Min", "max = 0.1", "min = -0.1"}));
}

TEST_F(OrvKvToleranceSubOrderTest, FromSymmetricPlusMinusChangesNothing) {
    MakeNoted();
    Choose(Symmetric());
    Took();
    Choose(PlusMinus());
    EXPECT_EQ(Took(), Calls());
}

TEST_F(OrvKvToleranceSubOrderTest, AFitChangesNothingByItself) {
    MakeNoted();
    Choose(Fit());
    EXPECT_EQ(Took(), Calls());
    Choose(PlusMinus());
    EXPECT_EQ(Took(), Calls({"value of Min", "min = -0.1", "value of Max", "max = 0.1", "value of D"}))
        << "the panel does not listen to the deviations yet";
    Choose(Fit());
    EXPECT_EQ(Took(), Calls());
    Choose(Symmetric());
    EXPECT_EQ(Took(), Calls({"value of Min", "min = -0.1", "value of Max", "value of Min", "max = 0.1",
                             "min = -0.1", "max = 0.1", "value of D"}));
    Choose(Fit());
    EXPECT_EQ(Took(), Calls());
}

TEST_F(OrvKvToleranceSubOrderTest,
       WhileAFitIsLeftTheCommandHearsNoUpdateAndSeesTheFitUntilTheDeviationsAreSet) {
    for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeFit();
        Watch();
        std::string states;
        _watcher.onEvent = [&] {
            if (_watcher.Take() == Events({"value of D"}))
                states = WidgetStates();
        };
        Choose(Widget<CATDlgRadioButton>(name));
        EXPECT_EQ(states, name == std::string("PlusMinusRdb") ? "fit shown, max disabled, min disabled"
                                                              : "fit shown, max enabled, min disabled");
        EXPECT_EQ(Said(), Texts());
    }
}

} // namespace
