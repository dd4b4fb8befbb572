// The direction of the thread, and the thread that the feature is to take.

#include "OrvKvThreadSubTest.h"

namespace {

using namespace support;
using namespace threadSub;

class OrvKvThreadSubDirectionTest : public OrvKvThreadSubTest {
  protected:
    // "left", "right", or nothing.
    static std::string Checked() {
        std::string checked;
        checked += LeftHanded().GetState() == CATDlgCheck ? "left" : "";
        checked += RightHanded().GetState() == CATDlgCheck ? "right" : "";
        return checked;
    }
};

constexpr char takenLeft[] = "take '' P 1.5 DK 8.5 DG 10 'LH' ''";
constexpr char takenRight[] = "take '' P 1.5 DK 8.5 DG 10 'RH' ''";

TEST_F(OrvKvThreadSubDirectionTest, AnotherDirectionOfTheUserIsTaken) {
    MakeBound();
    ASSERT_TRUE(host::DialogUser::Check(RightHanded()));
    EXPECT_EQ(Said(), Texts({takenRight}));
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    EXPECT_EQ(Said(), Texts({takenLeft})) << "the button that is left says nothing";
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    EXPECT_EQ(Said(), Texts()) << "the same again";
    EXPECT_EQ(Checked(), "left");
}

TEST_F(OrvKvThreadSubDirectionTest, TheCommandSetsItWithEitherNameAndItIsTakenByItsShortOne) {
    MakeBound();
    const std::vector<std::pair<const char*, const char*>> names = {
        {"Left_Threaded", takenLeft}, {"Right_Threaded", takenRight}, {"LH", takenLeft}, {"RH", takenRight}};
    for (const auto& [name, taken] : names) {
        EXPECT_EQ(SetDirection(name), SuccessIn(source)) << name;
        EXPECT_EQ(Checked(), taken == takenLeft ? "left" : "right") << name;
        EXPECT_EQ(Said(), Texts({taken})) << name;
    }
}

TEST_F(OrvKvThreadSubDirectionTest, AnyOtherTextChangesNothing) {
    MakeBound();
    for (const char* text : {"", "lh", "LH ", "Left", "left_threaded", "Links"}) {
        EXPECT_EQ(SetDirection(text), SuccessIn(source)) << text;
        EXPECT_EQ(Checked(), "") << text;
    }
    SetDirection("RH");
    Said();
    EXPECT_EQ(SetDirection("Left_Threaded "), SuccessIn(source));
    EXPECT_EQ(Checked(), "right");
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubDirectionTest, TheDirectionThatIsThereIsNotSetAgain) {
    MakeBound();
    SetDirection("LH");
    Said();
    EXPECT_EQ(SetDirection("Left_Threaded"), SuccessIn(source));
    EXPECT_EQ(Checked(), "left");
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubDirectionTest, ACheckedButtonThatReportsAgainIsTakenAgainAndAnUncheckedOneIsNot) {
    MakeBound();
    SetDirection("LH");
    Said();
    for (CATDlgRadioButton* const button : {&LeftHanded(), &RightHanded()}) {
        CATNotification* const event = button->GetRadBModifyNotification();
        event->AddRef();
        button->SendNotification(_panel, event);
        EXPECT_EQ(Said(), button == &LeftHanded() ? Texts({takenLeft}) : Texts());
    }
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({takenLeft}));
}

TEST_F(OrvKvThreadSubDirectionTest, SettingItBeforeThePanelIsBuiltFails) {
    Make();
    for (const char* text : {"LH", "RH", "Links"})
        EXPECT_EQ(SetDirection(text), FailureIn(source, "thread direction buttons are NULL.")) << text;
    _panel->Build();
    EXPECT_EQ(SetDirection("LH"), SuccessIn(source));
}

TEST_F(OrvKvThreadSubDirectionTest, WithoutParametersNothingIsEverTakenAndTheDirectionIsRemembered) {
    Make();
    EXPECT_EQ(Observe([&] { return _panel->SetAsStandardThread(); }), SuccessIn(source)) << "before Build";
    _panel->Build();
    Said();
    SetDirection("LH");
    ASSERT_TRUE(host::DialogUser::Check(RightHanded()));
    EXPECT_EQ(Observe([&] { return _panel->SetAsStandardThread(); }), SuccessIn(source));
    EXPECT_EQ(SetValues({1.0}, {2.0}, {3.0}), SuccessIn(source));
    EXPECT_EQ(Said(), Texts());
    Bind();
    EXPECT_EQ(Said(), Texts()) << "binding takes nothing";
    EXPECT_EQ(Observe([&] { return _panel->SetAsStandardThread(); }), SuccessIn(source));
    EXPECT_EQ(Said(), Texts({takenRight}));
}

TEST_F(OrvKvThreadSubDirectionTest, WhatIsTakenIsTheThreadAsItIsShown) {
    MakeStandard();
    ASSERT_TRUE(host::DialogUser::ChooseText(Diameters(), "M12"));
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    Said();
    _pitch->Valuate(0.00175);
    EXPECT_EQ(SetValues({1.25}, {10.25}, {12.0}), SuccessIn(source));
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    const std::string taken = "take 'M12' P 1.25 DK 10.25 DG 12 'LH' 'Metric'";
    EXPECT_EQ(Said(), Texts({taken, taken}));
}

} // namespace
