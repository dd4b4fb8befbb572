// Failures on request of the calls that parameters offer.

#include "CATCkeGlobalFunctions.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "host/FaultPoints.h"
#include "host/ParameterEntry.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"
#include "support/ParameterWatcher.h"

#include <functional>

using host::FaultPoints;
using host::Parameters;
using support::Events;
using support::ParameterWatcher;

namespace {

class ParameterFaultsTest : public support::AuditedTest {
  protected:
    // Runs iCall with the first call of iName failing.
    static void WithFailing(const char* iName, const std::function<void()>& iCall) {
        FaultPoints::FailCall(1, iName);
        iCall();
        EXPECT_GE(FaultPoints::PassedByName()[iName], 1) << iName << " is not asked";
        FaultPoints::Stop();
    }

    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 5.0);
    const CATICkeParm_var thread = Parameters::NewString("THREAD", "M5");
    const CATIParmAsStored_var stored{depth};
    const CATIParmTolerance_var tolerance{depth};
};

TEST_F(ParameterFaultsTest, AFailingWriteChangesAndRaisesNothing) {
    ParameterWatcher watcher(depth);
    watcher.Watch(thread);
    ASSERT_EQ(tolerance->SetMaxTolerance(0.1), S_OK);
    ASSERT_EQ(tolerance->SetMinTolerance(-0.1), S_OK);
    const std::vector<std::function<HRESULT()>> writes = {
        [&] { return stored->SetValue(6.0); },
        [&] { return depth->Valuate(0.006); },
        [&] { return depth->Valuate(6); },
        [&] { return thread->Valuate(CATUnicodeString("M6")); },
        [&] { return tolerance->SetMaxTolerance(0.2); },
        [&] { return tolerance->SetMinTolerance(0.2); },
        [&] { return tolerance->Unset(); },
    };
    for (const auto& write : writes)
        WithFailing("parameter write", [&] { EXPECT_EQ(write(), E_FAIL); });
    EXPECT_EQ(stored->GetValue(), 5.0);
    EXPECT_STREQ(thread->Show().ConvertToChar(), "M5");
    EXPECT_EQ(tolerance->GetTypeOfTolerance(), 1);
    EXPECT_EQ(tolerance->GetMaxTolerance(), 0.1);
    EXPECT_EQ(tolerance->GetMinTolerance(), -0.1);
    EXPECT_EQ(watcher.Take(), Events());
    for (const auto& write : writes)
        EXPECT_EQ(write(), S_OK);
}

TEST_F(ParameterFaultsTest, AFailingWriteMakesNoTolerance) {
    WithFailing("parameter write", [&] { EXPECT_EQ(tolerance->SetMaxTolerance(0.2), E_FAIL); });
    EXPECT_EQ(tolerance->GetTypeOfTolerance(), 0);
}

TEST_F(ParameterFaultsTest, AFailingQueryGivesNoInterface) {
    WithFailing("interface query", [&] { EXPECT_TRUE(!CATIParmEvents_var(depth)); });
    WithFailing("interface query", [&] { EXPECT_TRUE(!CATIParmEvents_var(tolerance)); });
    WithFailing("interface query", [&] { EXPECT_EQ(depth->QueryInterface("CATIParmEvents"), nullptr); });
    void* found = this;
    WithFailing("interface query",
                [&] { EXPECT_EQ(depth->QueryInterface(IID_CATICkeParm, &found), E_NOINTERFACE); });
    EXPECT_EQ(found, nullptr);
    EXPECT_FALSE(!CATIParmEvents_var(depth));
}

TEST_F(ParameterFaultsTest, AQueryIsCountedOnceWhateverItFinds) {
    FaultPoints::StartCounting();
    EXPECT_FALSE(!CATIParmEvents_var(depth));
    EXPECT_EQ(FaultPoints::Passed(), 1);
    EXPECT_TRUE(!CATIParmPublisher_var(depth));
    EXPECT_EQ(FaultPoints::Passed(), 2);
    FaultPoints::Stop();
}

TEST_F(ParameterFaultsTest, AQueryWithoutPlaceForItsResultFails) {
    EXPECT_EQ(depth->QueryInterface(IID_CATICkeParm, nullptr), E_FAIL);
    EXPECT_EQ(tolerance->QueryInterface(IID_CATICkeParm, nullptr), E_FAIL);
}

TEST_F(ParameterFaultsTest, AFailingAllocationGivesNoParameter) {
    const CATICkeParmFactory_var factory = CATCkeGlobalFunctions::GetVolatileFactory();
    const std::vector<std::function<CATICkeParm_var()>> makers = {
        [] { return Parameters::NewLength("P", 1.0); },
        [] { return Parameters::NewAngle("P", 1.0); },
        [] { return Parameters::NewReal("P", 1.0); },
        [] { return Parameters::NewInteger("P", 1); },
        [] { return Parameters::NewBoolean("P", true); },
        [] { return Parameters::NewString("P", "M5"); },
        [&] { return factory->CreateLength("P", 1.0); },
        [&] { return factory->CreateAngle("P", 1.0); },
        [&] { return factory->CreateReal("P", 1.0); },
        [&] { return factory->CreateInteger("P", 1); },
        [&] { return factory->CreateBoolean("P", 1); },
        [&] { return factory->CreateString("P", "M5"); },
        [&] { return factory->CreateDimension(depth->Type(), "P", 1.0); },
        [&] { return factory->CreateParameter(depth->Type(), "P"); },
    };
    for (const auto& make : makers) {
        WithFailing("parameter allocation", [&] { EXPECT_TRUE(!make()); });
        EXPECT_FALSE(!make());
    }
}

TEST_F(ParameterFaultsTest, AFailingFactoryIsNull) {
    WithFailing("parameter factory", [] { EXPECT_TRUE(!CATCkeGlobalFunctions::GetVolatileFactory()); });
    EXPECT_FALSE(!CATCkeGlobalFunctions::GetVolatileFactory());
}

TEST_F(ParameterFaultsTest, ATypedValueIsRefusedWhereItCannotBeWritten) {
    FaultPoints::StartCounting();
    ASSERT_TRUE(host::ParameterEntry::Type(*depth, "5"));
    const int calls = FaultPoints::Passed();
    EXPECT_EQ(calls, 3) << "two interfaces and one write";
    ParameterWatcher watcher(depth);
    watcher.Watch(thread);
    for (int call = 1; call <= calls; ++call) {
        FaultPoints::FailCall(call);
        const host::Outcome outcome = host::ParameterEntry::Type(*depth, "6");
        FaultPoints::Stop();
        EXPECT_EQ(outcome.reason, "DEPTH does not take the value");
        EXPECT_EQ(stored->GetValue(), 5.0);
    }
    WithFailing("parameter write", [&] {
        EXPECT_EQ(host::ParameterEntry::Type(*thread, "M6").reason, "THREAD does not take the value");
    });
    EXPECT_EQ(watcher.Take(), Events());
}

} // namespace
