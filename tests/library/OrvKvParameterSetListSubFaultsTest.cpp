// Every call that can fail fails once: an operation then changes nothing or does what it can, and works the
// next time.

#include "OrvKvParameterSetListSubTest.h"

#include "CATIParmTolerance.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <functional>

namespace {

using namespace support;
using namespace parameterSetList;

class OrvKvParameterSetListSubFaultsTest : public OrvKvParameterSetListSubTest {
  protected:
    static CATBaseUnknown_var Tolerated() {
        const CATBaseUnknown_var length = Length(10);
        CATIParmTolerance_var(length)->SetMaxTolerance(0.5);
        return length;
    }
    void MakeWithSets() {
        MakeBuilt();
        SetNames({{"D", 1, 1, 1, 1}, {"T", 1, 0, 1, 0}});
        AddSet("A", {Tolerated(), Tolerated()}, {"", ""});
        AddSet("B", {Tolerated(), Tolerated()}, {"", ""});
        SetCurrent("B", {Tolerated(), Tolerated()}, {"", ""});
    }
    std::string Dump() const { return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout); }

    // Runs the operation on a fresh panel once for each call in it that can fail. Gives the number of runs in
    // which it failed.
    int SweepOperation(const std::function<Report()>& iOperation, const Report& iSuccess) {
        MakeWithSets();
        host::FaultPoints::StartCounting();
        const Report untroubled = iOperation();
        const int calls = host::FaultPoints::Passed();
        host::FaultPoints::Stop();
        EXPECT_EQ(untroubled, iSuccess);
        const std::string expected = Dump();
        delete _panel;
        int failures = 0;
        for (int call = 1; call <= calls; ++call) {
            MakeWithSets();
            const std::string before = Dump();
            host::FaultPoints::FailCall(call);
            const Report report = iOperation();
            host::FaultPoints::Stop();
            if (report.result == "S_OK") {
                EXPECT_EQ(report, iSuccess) << call;
            } else {
                ++failures;
                EXPECT_EQ(report.result, "E_FAIL") << call;
                EXPECT_NE(report.errorClass, "") << call;
                EXPECT_EQ(Dump(), before) << call;
                EXPECT_EQ(iOperation(), iSuccess) << call;
            }
            EXPECT_EQ(Dump(), expected) << call;
            delete _panel;
        }
        return failures;
    }
};

TEST_F(OrvKvParameterSetListSubFaultsTest, NewColumnsComeOrTheOldOnesStay) {
    // two tables; a text that is not found has a default
    EXPECT_EQ(SweepOperation([this] { return SetNames({{"X", 1, 1, 1, 1}}); }, SuccessAfterRefresh()), 2);
}

TEST_F(OrvKvParameterSetListSubFaultsTest, ASetIsAddedWhollyOrNotAtAll) {
    const Parameters lengths = {Tolerated(), Tolerated()};
    EXPECT_GT(SweepOperation([&] { return AddSet("C", lengths, {"", ""}); }, SuccessIn(source)), 0);
}

TEST_F(OrvKvParameterSetListSubFaultsTest, TheCurrentSetIsShownWhollyOrStaysAsItWas) {
    const Parameters lengths = {Tolerated(), Tolerated()};
    EXPECT_GT(SweepOperation([&] { return SetCurrent("A", lengths, {"", ""}); }, SuccessIn(source)), 0);
}

TEST_F(OrvKvParameterSetListSubFaultsTest, DoubleClicksNeverBreakThePanel) {
    const auto clickAll = [] {
        EXPECT_TRUE(host::DialogUser::Activate(SetTable(), 0, 1));
        EXPECT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
        EXPECT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
    };
    MakeWithSets();
    TakeTold();
    clickAll();
    const Texts all = TakeTold();
    ASSERT_EQ(all.size(), 6U);
    host::FaultPoints::StartCounting();
    clickAll();
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    Command().Forget();
    EXPECT_GE(calls, 6);
    for (int call = 1; call <= calls; ++call) {
        host::FaultPoints::FailCall(call);
        clickAll();
        host::FaultPoints::Stop();
        EXPECT_GE(TakeTold().size(), 5U) << call;
        clickAll();
        EXPECT_EQ(TakeTold(), all) << call;
    }
}

// Frame and table of the sets, frame and table of the current parameters.
TEST_F(OrvKvParameterSetListSubFaultsTest, WhereAWidgetCannotBeMadeThePanelBehavesAsBeforeBuild) {
    const Report noTables = FailureIn(source, "The tables of the parameter sets are missing.");
    const int widgetsThatAreThere[] = {2, 3, 2, 3};
    for (int failing = 1; failing <= 4; ++failing) {
        Make();
        host::FaultPoints::FailCall(failing, "widget allocation");
        _panel->Build();
        host::FaultPoints::Stop();
        _panel->Build(); // makes nothing: what is there was made once
        int widgets = 0;
        for (const CATDialog* frame : host::Inspector::Children(*_panel))
            widgets += 1 + static_cast<int>(host::Inspector::Children(*frame).size());
        EXPECT_EQ(widgets, widgetsThatAreThere[failing - 1]) << failing;
        EXPECT_EQ(SetNames({Shown{"D"}}), noTables) << failing;
        EXPECT_EQ(AddSet("A", {Length(1)}), noTables) << failing;
        EXPECT_EQ(SetCurrent("A", {Length(1)}), noTables) << failing;
        EXPECT_EQ(SelectedName(), "") << failing;
        delete _panel;
    }
}

} // namespace
