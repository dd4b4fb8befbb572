#pragma once

#include "OrvKvToleranceSubTest.h"

// What the tests of the modes share: what a person sees in each, and who listens to what.

namespace toleranceSub {

inline constexpr char plusMinusStates[] = "fit hidden, max enabled, min enabled";
inline constexpr char symmetricStates[] = "fit hidden, max enabled, min disabled";
inline constexpr char fitStates[] = "fit shown, max disabled, min disabled";
inline constexpr char plusMinusSubscriptions[] = "parm 1, max 1, min 1";
inline constexpr char symmetricSubscriptions[] = "parm 1, max 1, min 0";
inline constexpr char fitSubscriptions[] = "parm 2, max 0, min 0";

} // namespace toleranceSub

class OrvKvToleranceSubModesTest : public OrvKvToleranceSubTest {
  protected:
    void ExpectPlusMinus() {
        EXPECT_EQ(Checked(), "PlusMinusRdb");
        EXPECT_EQ(WidgetStates(), toleranceSub::plusMinusStates);
        EXPECT_EQ(Subscriptions(), toleranceSub::plusMinusSubscriptions);
        EXPECT_EQ(Fitting(), "|");
    }
    void ExpectSymmetric() {
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
        EXPECT_EQ(WidgetStates(), toleranceSub::symmetricStates);
        EXPECT_EQ(Subscriptions(), toleranceSub::symmetricSubscriptions);
        EXPECT_EQ(Fitting(), "|");
    }
    void ExpectFit() {
        EXPECT_EQ(Checked(), "ISOFittingRdb");
        EXPECT_EQ(WidgetStates(), toleranceSub::fitStates);
        EXPECT_EQ(Subscriptions(), toleranceSub::fitSubscriptions);
    }
    void ExpectNothingShown() {
        EXPECT_EQ(TakeMessages(), support::ShownMessages());
        EXPECT_EQ(Traces().Take(), support::TraceLines());
    }
    // By program, without a word.
    static void UncheckSilently(CATDlgRadioButton& ioRadio) { ioRadio.SetState(CATDlgUncheck, 0); }
    static void CheckByProgram(CATDlgRadioButton& ioRadio) { ioRadio.SetState(CATDlgCheck, 1); }
};
