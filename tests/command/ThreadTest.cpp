// The thread page, filled from the catalogue and answered by the command.

#include "CommandTest.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/ValueFrame.h"
#include "workbench/TakenThread.h"

namespace command {

namespace {

using workbench::TakenThread;

const Texts standards = {"No Standard", "Metric coarse", "Metric fine", "UNC", "UNF", "UNEF", "G"};

} // namespace

class ThreadTest : public CommandTest {
  protected:
    // A counterbore for an M6 screw, with the thread page in front.
    void StartWithM6() {
        ASSERT_TRUE(Start());
        ASSERT_TRUE(ChooseType(1));
        ASSERT_TRUE(ChooseText("ParameterSetCmb", "DIN 974-1 M6 series 1 fine"));
        ASSERT_TRUE(ShowPage("ThreadPge"));
        TakeHeard();
    }
    static host::Outcome CheckDirection(const std::string& iButton) {
        return host::DialogUser::Check(*host::DialogPath::Find(iButton).widget);
    }
    static bool CanUsePage() {
        return host::DialogPath::Find("ThreadPge").widget->GetSensitivity() == CATDlgEnable;
    }
    const TakenThread& Taken() { return *Command().Thread(); }
};

TEST_F(ThreadTest, APageOfAFeatureWithoutThreadCannotBeUsed) {
    ASSERT_TRUE(Start());
    EXPECT_FALSE(CanUsePage());
    EXPECT_EQ(Command().Thread(), nullptr);
    EXPECT_EQ(LinesOf("ThreadTypeCmb"), standards);
    EXPECT_EQ(Thread(), "No Standard|0mm|0mm|0mm|0mm|none");
}

TEST_F(ThreadTest, AFeatureStartsWithTheThreadOfItsSetRightHandedAndOneAndAHalfDiametersLong) {
    StartWithM6();
    EXPECT_TRUE(CanUsePage());
    EXPECT_EQ(Thread(), "Metric coarse|M6|4.917mm|9mm|1mm|right");
    EXPECT_EQ(Taken(), (TakenThread{"Metric coarse", "M6", "RH", 6.0, 4.917, 1.0}));
}

TEST_F(ThreadTest, AnotherSetBringsItsThread) {
    StartWithM6();
    ASSERT_TRUE(ChooseText("ParameterSetCmb", "DIN 974-1 M10 series 1 fine"));
    EXPECT_EQ(Thread(), "Metric coarse|M10|8.376mm|15mm|1.5mm|right");
    EXPECT_EQ(Taken(), (TakenThread{"Metric coarse", "M10", "RH", 10.0, 8.376, 1.5}));
}

TEST_F(ThreadTest, AnotherTypeOfFeatureWithoutThreadEmptiesThePage) {
    StartWithM6();
    ASSERT_TRUE(ChooseType(0));
    EXPECT_FALSE(CanUsePage());
    EXPECT_EQ(Thread(), "No Standard|0mm|0mm|0mm|0mm|right");
    EXPECT_EQ(Command().Thread(), nullptr);
}

TEST_F(ThreadTest, AChosenStandardListsItsDiametersAndChoosesTheNearest) {
    StartWithM6();
    ASSERT_TRUE(ChooseText("ThreadTypeCmb", "UNC"));
    const auto& unc = *Shipped().Threads().Standard("UNC");
    Texts designations;
    for (const engineering::Thread& thread : unc.threads)
        designations.push_back(thread.designation);
    EXPECT_EQ(LinesOf("DiameterCmb"), designations);
    EXPECT_EQ(Thread(), "UNC|1/4-20 UNC|4.975mm|9mm|1.27mm|right");
    EXPECT_EQ(Taken(), (TakenThread{"UNC", "1/4-20 UNC", "RH", 6.35, 4.975, 1.27}));
}

TEST_F(ThreadTest, EveryStandardCanBeChosenWithEachOfItsDiameters) {
    StartWithM6();
    int chosen = 0;
    for (const engineering::ThreadStandard& standard : Shipped().Threads().Standards()) {
        ASSERT_TRUE(ChooseText("ThreadTypeCmb", standard.name));
        for (const engineering::Thread& thread : standard.threads) {
            SCOPED_TRACE(thread.designation);
            ASSERT_TRUE(ChooseText("DiameterCmb", thread.designation));
            EXPECT_EQ(Taken(), (TakenThread{standard.name, thread.designation, "RH", thread.majorDiameter,
                                            thread.minorDiameter, thread.pitch}));
            ++chosen;
        }
    }
    EXPECT_EQ(chosen, 318);
}

TEST_F(ThreadTest, AChosenDiameterBringsPitchAndDiametersAndIsTaken) {
    StartWithM6();
    ASSERT_TRUE(ChooseText("DiameterCmb", "M5"));
    EXPECT_EQ(Thread(), "Metric coarse|M5|4.134mm|9mm|0.8mm|right");
    EXPECT_EQ(TakeHeardClasses(), Texts({"ThreadDiameter", "ThreadTake"}));
}

TEST_F(ThreadTest, AStandardThreadTakesNoTypedDiametersButItsLength) {
    StartWithM6();
    EXPECT_FALSE(host::DialogUser::Type(Field("InternalDiaFrm"), "5 mm"));
    EXPECT_FALSE(host::DialogUser::Type(Field("PitchFrm"), "2"));
    EXPECT_TRUE(host::DialogUser::Type(Field("ThreadLengthFrm"), "2*6 mm"));
    EXPECT_EQ(Thread(), "Metric coarse|M6|4.917mm|12mm|1mm|right");
}

TEST_F(ThreadTest, WithoutStandardTheValuesStayAndAreFree) {
    StartWithM6();
    ASSERT_TRUE(ChooseText("ThreadTypeCmb", "No Standard"));
    EXPECT_EQ(Thread(), "No Standard|6mm|4.917mm|9mm|1mm|right");
    EXPECT_EQ(Taken(), (TakenThread{"No Standard", "", "RH", 6.0, 4.917, 1.0}));
    EXPECT_TRUE(host::DialogUser::Type(Field("ThreadDiaFrm"), "6,5"));
    EXPECT_TRUE(host::DialogUser::Type(Field("InternalDiaFrm"), "5.25 mm"));
    EXPECT_TRUE(host::DialogUser::Type(Field("PitchFrm"), "1.1"));
    EXPECT_EQ(Thread(), "No Standard|6.5mm|5.25mm|9mm|1.1mm|right");
}

TEST_F(ThreadTest, AStandardAfterFreeValuesIsReadOnlyAgain) {
    StartWithM6();
    ASSERT_TRUE(ChooseText("ThreadTypeCmb", "No Standard"));
    ASSERT_TRUE(ChooseText("ThreadTypeCmb", "Metric fine"));
    EXPECT_FALSE(host::DialogUser::Type(Field("PitchFrm"), "2"));
    EXPECT_EQ(Taken().type, "Metric fine");
    EXPECT_EQ(Taken().diameter, 6.0);
}

TEST_F(ThreadTest, ALeftHandedThreadIsTaken) {
    StartWithM6();
    ASSERT_TRUE(CheckDirection("LeftHandedRdb"));
    EXPECT_EQ(Thread(), "Metric coarse|M6|4.917mm|9mm|1mm|left");
    EXPECT_EQ(Taken().direction, "LH");
}

// A set that names a thread of no table, in a catalogue of one's own.
TEST_F(ThreadTest, AThreadThatNoTableHasStartsWithFreeValues) {
    using engineering::Magnitude;
    const engineering::FeatureType own({"Own", "Mine", "", "", "THREAD"},
                                       {{"THREAD", Magnitude::String, "", {}, false, false, false}},
                                       {{"Odd", {{std::string("Tr20x4"), {}}}}}, {});
    const engineering::FeatureCatalogue catalogue({"Mine"}, {own}, Shipped().Threads());
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, catalogue));
    ASSERT_TRUE(ShowPage("ThreadPge"));
    EXPECT_EQ(Thread(), "No Standard|0mm|0mm|0mm|0mm|right");
    EXPECT_TRUE(host::DialogUser::Type(Field("ThreadDiaFrm"), "20"));
}

TEST_F(ThreadTest, ACatalogueWithoutThreadTablesHasFreeValuesAlone) {
    const engineering::FeatureType own({"Own", "Mine", "", "", "THREAD"}, {}, {}, {});
    const engineering::FeatureCatalogue catalogue({"Mine"}, {own});
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, catalogue));
    ASSERT_TRUE(ShowPage("ThreadPge"));
    EXPECT_EQ(LinesOf("ThreadTypeCmb"), Texts({"No Standard"}));
    EXPECT_TRUE(host::DialogUser::Type(Field("PitchFrm"), "2"));
    EXPECT_EQ(Thread(), "No Standard|0mm|0mm|0mm|2mm|right");
}

TEST_F(ThreadTest, TheThreadIsTheSameInModeSets) {
    ASSERT_TRUE(Start(FeatureCommand::Mode::Sets));
    ASSERT_TRUE(ChooseGroup(1));
    ASSERT_TRUE(SelectSet(4));
    EXPECT_EQ(Command().SetName(), "Tapped hole M2.2 short");
    EXPECT_EQ(Taken().designation, "M2.2");
}

} // namespace command
