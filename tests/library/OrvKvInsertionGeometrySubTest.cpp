#include "OrvKvInsertionGeometrySub.h"

#include "PanelTest.h"
#include "support/GoldenFolder.h"

#include "CATDlgDocument.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

#include <cstdint>
#include <limits>
#include <map>

namespace {

using namespace support;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvInsertionGeometrySub";
const char outOfRange[] = "error: iEditorNo out of range";

constexpr int widgets = 8;

const Classes oneInput = {"OrvKvSetInputGeometryNotification"};
const Classes oneInversion = {"OrvKvInvertFeatureNotification"};

std::string MissingInput(int iInput) {
    return "Invalid data memeber _pInput" + std::to_string(iInput) + "Edt";
}

class OrvKvInsertionGeometrySubTest : public PanelTest {
  protected:
    OrvKvInsertionGeometrySub& Panel() { return *_panel; }
    OrvKvInsertionGeometrySub& BuiltPanel() {
        _panel->Build();
        return *_panel;
    }

    static std::string ButtonName(int iInput) { return "Input" + std::to_string(iInput) + "Pbt"; }
    static std::string EditorName(int iInput) { return "Input" + std::to_string(iInput) + "Edt"; }
    static CATDlgPushButton& InputButton(int iInput) { return Button(ButtonName(iInput)); }
    static CATDlgEditor& InputEditor(int iInput) { return Editor(EditorName(iInput)); }

    Report SetText(int iInput, const std::string& iText, unsigned long iVisibility = CATDlgShow) {
        return Observe(
            [&] { return _panel->SetGeometryText(iInput, CATUnicodeString(iText.c_str()), iVisibility); });
    }
    int LastInput() {
        auto* const heard = Command().Last<OrvKvSetInputGeometryNotification>();
        return heard == nullptr ? -1 : heard->GetInputGeometryNo();
    }
    std::string Dump() { return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout); }

    OrvKvInsertionGeometrySub* _panel = new OrvKvInsertionGeometrySub(MainWindow()); // owned by the window
};

TEST_F(OrvKvInsertionGeometrySubTest, IsAPlainFrameWithANameOfItsOwnAndEmptyBeforeItIsBuilt) {
    EXPECT_STREQ(Panel().GetName().ConvertToChar(), "InsertionEditorSub");
    EXPECT_EQ(host::Inspector::Style(Panel()), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(Panel()), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvInsertionGeometrySubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(Panel().GetResourceFilename(level), "OrvKvInsertionGeometrySub") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(Panel().GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvInsertionGeometrySubTest, BuildMakesASpacerThreeInputsAndTheInvertButtonInThisOrder) {
    BuiltPanel();
    const CATDlgStyle readOnly = 0x4000000;
    EXPECT_EQ(PiecesOf(Panel()), Pieces({{"CATDlgLabel", "N", 0, "0(1)-3(4)", "0(1)-1(3)"},
                                         {"CATDlgPushButton", "Input1Pbt", 0, "0(1)-1(3)", "2(1)"},
                                         {"CATDlgEditor", "Input1Edt", readOnly, "2(1)-3(4)", "2(1)"},
                                         {"CATDlgPushButton", "Input2Pbt", 0, "0(1)-1(3)", "4(1)"},
                                         {"CATDlgEditor", "Input2Edt", readOnly, "2(1)-3(4)", "4(1)"},
                                         {"CATDlgPushButton", "Input3Pbt", 0, "0(1)-1(3)", "6(1)"},
                                         {"CATDlgEditor", "Input3Edt", readOnly, "2(1)-3(4)", "6(1)"},
                                         {"CATDlgPushButton", "InvertPbt", 0, "2(1)-3(4)", "10(1)"}}));
}

TEST_F(OrvKvInsertionGeometrySubTest, EachInputLiesBelowTheOneBeforeWithItsEditorOnTheRight) {
    BuiltPanel();
    const host::LayoutPlan plan = host::PlanLayout(Panel());
    for (const int input : {1, 2, 3})
        EXPECT_TRUE(plan.IsLeftOf(InputButton(input), InputEditor(input))) << input;
    EXPECT_TRUE(plan.IsAbove(InputButton(1), InputButton(2)));
    EXPECT_TRUE(plan.IsAbove(InputEditor(2), InputEditor(3)));
    EXPECT_TRUE(plan.IsAbove(InputEditor(3), Button("InvertPbt")));
    EXPECT_TRUE(MatchesGolden("InsertionGeometrySub-built", Dump()));
}

TEST_F(OrvKvInsertionGeometrySubTest, LooksTheSameAsEverWithTwoOfThreeInputs) {
    BuiltPanel();
    SetText(1, "Point.1");
    SetText(2, "Line.7");
    SetText(3, "", CATDlgHide);
    Panel().DisableDirectionButton();
    EXPECT_TRUE(MatchesGolden("InsertionGeometrySub-filled", host::DialogDump::Of(Panel())));
}

TEST_F(OrvKvInsertionGeometrySubTest, EverythingButTheSpacerIsShownAndEnabledOnceBuilt) {
    BuiltPanel();
    for (const CATDialog* child : host::Inspector::Children(Panel())) {
        const std::string name = child->GetName().ConvertToChar();
        EXPECT_EQ(child->GetVisibility(), name == "N" ? CATDlgHide : CATDlgShow) << name;
        EXPECT_EQ(child->GetSensitivity(), CATDlgEnable) << name;
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, ASecondBuildMakesNothing) {
    BuiltPanel();
    SetText(2, "Line.1", CATDlgHide);
    const std::vector<CATDialog*> before = host::Inspector::Children(Panel());
    Panel().Build();
    EXPECT_EQ(host::Inspector::Children(Panel()), before);
    EXPECT_EQ(InputEditor(2).GetVisibility(), CATDlgHide);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 4);
}

TEST_F(OrvKvInsertionGeometrySubTest, EachInputButtonAsksForItsInput) {
    BuiltPanel();
    for (const int input : {2, 1, 3, 3}) {
        ASSERT_TRUE(host::DialogUser::Press(InputButton(input)));
        EXPECT_EQ(LastInput(), input);
        ASSERT_EQ(Command().Heard().size(), 1U);
        EXPECT_EQ(Command().Heard().front().sender, &Panel());
        EXPECT_EQ(Command().TakeClasses(), oneInput);
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, TheInvertButtonAsksForTheInversion) {
    BuiltPanel();
    ASSERT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    ASSERT_EQ(Command().Heard().size(), 1U);
    EXPECT_EQ(Command().Heard().front().sender, &Panel());
    EXPECT_EQ(Command().TakeClasses(), oneInversion);
}

TEST_F(OrvKvInsertionGeometrySubTest, NotificationsGoToTheFatherAndNotThroughThePanelItself) {
    delete _panel;
    auto* const panel = new ListeningPanel<OrvKvInsertionGeometrySub>(MainWindow());
    _panel = panel;
    BuiltPanel();
    ASSERT_TRUE(host::DialogUser::Press(InputButton(1)));
    ASSERT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    EXPECT_EQ(Command().TakeClasses(), Classes({oneInput[0], oneInversion[0]}));
    EXPECT_EQ(panel->Count(), 0);
    InputButton(1).SendNotification(panel, new OrvKvInvertFeatureNotification());
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvInsertionGeometrySubTest, TheNumberOfTheInputIsTheDataOfItsCallback) {
    BuiltPanel();
    for (const int input : {1, 2, 3}) {
        CATDlgPushButton& button = InputButton(input);
        const auto end = [&](int iData) {
            Panel().RemoveAnalyseNotificationCB(
                &button, button.GetPushBActivateNotification(),
                reinterpret_cast<CATCommandClientData>(static_cast<std::intptr_t>(iData)));
        };
        end(0);
        end(input + 1);
        ASSERT_TRUE(host::DialogUser::Press(button));
        EXPECT_EQ(Command().TakeClasses().front(), oneInput.front()) << input;
        end(input);
        ASSERT_TRUE(host::DialogUser::Press(button));
        EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgPushBActivateNotification"})) << input;
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, ATextAppearsInTheEditorOfItsInputAndAsItsBalloon) {
    BuiltPanel();
    for (const int input : {1, 2, 3}) {
        const std::string text = "Element." + std::to_string(input);
        EXPECT_EQ(SetText(input, text), SuccessIn(source));
        for (const int other : {1, 2, 3}) {
            const std::string expected = other <= input ? "Element." + std::to_string(other) : "";
            EXPECT_EQ(InputEditor(other).GetText().ConvertToChar(), expected) << input << ", " << other;
            EXPECT_EQ(InputEditor(other).GetShortHelp().ConvertToChar(), expected) << input << ", " << other;
        }
    }
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvInsertionGeometrySubTest, AHiddenInputHidesButtonAndEditorWhichStillReceivesTheText) {
    BuiltPanel();
    for (const int input : {1, 2, 3}) {
        EXPECT_EQ(SetText(input, "Plane.4", CATDlgHide), SuccessIn(source));
        for (const int other : {1, 2, 3}) {
            const CATULong expected = other == input ? CATDlgHide : CATDlgShow;
            EXPECT_EQ(InputButton(other).GetVisibility(), expected) << input << ", " << other;
            EXPECT_EQ(InputEditor(other).GetVisibility(), expected) << input << ", " << other;
        }
        EXPECT_STREQ(InputEditor(input).GetText().ConvertToChar(), "Plane.4");
        EXPECT_STREQ(InputEditor(input).GetShortHelp().ConvertToChar(), "Plane.4");
        EXPECT_FALSE(host::DialogUser::Press(InputButton(input)));
        EXPECT_EQ(Command().TakeClasses(), Classes());

        EXPECT_EQ(SetText(input, "Plane.5", CATDlgShow), SuccessIn(source));
        EXPECT_TRUE(host::DialogUser::Press(InputButton(input)));
        EXPECT_EQ(Command().TakeClasses(), oneInput);
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, AnyTextIsShownAsItIs) {
    BuiltPanel();
    std::string veryLong;
    for (int character = 0; character < 100000; ++character)
        veryLong += character % 2 == 0 ? "x" : "é";
    for (const std::string& text :
         {std::string("Punkt Ø 6 – größer"), std::string("点.1 \U0001F529"), std::string("100 % %s %d %n"),
          std::string("one\ntwo\n\nfour\n"), std::string("\n"), std::string("(Body/Part) \\ /p1 \"quoted\""),
          veryLong, std::string()}) {
        SetText(2, "before");
        EXPECT_EQ(SetText(2, text), SuccessIn(source));
        EXPECT_EQ(InputEditor(2).GetText().ConvertToChar(), text);
        EXPECT_EQ(InputEditor(2).GetShortHelp().ConvertToChar(), text);
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, AVisibilityThatIsNoneKeepsTheOldOneAndTheTextIsSet) {
    BuiltPanel();
    for (const unsigned long visibility : {0UL, 6UL, std::numeric_limits<unsigned long>::max()}) {
        for (const CATULong before : {CATDlgShow, CATDlgHide}) {
            SetText(1, "before", before);
            EXPECT_EQ(SetText(1, "Point.2", visibility), SuccessIn(source)) << visibility;
            EXPECT_EQ(InputButton(1).GetVisibility(), before) << visibility;
            EXPECT_EQ(InputEditor(1).GetVisibility(), before) << visibility;
            EXPECT_STREQ(InputEditor(1).GetText().ConvertToChar(), "Point.2") << visibility;
        }
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, AnInputThatDoesNotExistFailsAndChangesNothing) {
    BuiltPanel();
    SetText(1, "Point.1");
    const std::string before = Dump();
    for (const int input : {0, 4, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(SetText(input, "other", CATDlgHide), FailureIn(source, outOfRange)) << input;
        EXPECT_EQ(Dump(), before) << input;
    }
    EXPECT_EQ(SetText(1, "other", CATDlgHide), SuccessIn(source));
    EXPECT_NE(Dump(), before);
}

TEST_F(OrvKvInsertionGeometrySubTest, ATextBeforeThePanelIsBuiltFailsWithTheInputItIsFor) {
    for (const int input : {1, 2, 3})
        EXPECT_EQ(SetText(input, "Point.1"), FailureIn(source, MissingInput(input)));
    EXPECT_EQ(SetText(4, "Point.1"), FailureIn(source, outOfRange));
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvInsertionGeometrySubTest, TheLimitingVisibilityHasNoEffect) {
    BuiltPanel();
    const std::string before = Dump();
    for (const unsigned long visibility : {CATDlgHide, CATDlgShow, 0UL})
        Panel().SetLimitingVisibility(visibility);
    EXPECT_EQ(Dump(), before);
    SetText(3, "", CATDlgHide);
    EXPECT_NE(Dump(), before);
}

TEST_F(OrvKvInsertionGeometrySubTest, ADisabledInvertButtonStaysGreyed) {
    BuiltPanel();
    EXPECT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    Command().Forget();
    Panel().DisableDirectionButton();
    const auto isGreyed = [] {
        return Button("InvertPbt").GetSensitivity() == CATDlgDisable &&
               !host::DialogUser::Press(Button("InvertPbt"));
    };
    EXPECT_TRUE(isGreyed());
    Panel().Build();
    Panel().DisableDirectionButton();
    Panel().SetLimitingVisibility(CATDlgShow);
    for (const int input : {1, 2, 3})
        SetText(input, "Point.1", CATDlgShow);
    EXPECT_TRUE(isGreyed());
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_TRUE(host::DialogUser::Press(InputButton(2)));
    EXPECT_EQ(Command().TakeClasses(), oneInput);
}

TEST_F(OrvKvInsertionGeometrySubTest, SwitchesOfAPanelThatIsNotBuiltHaveNoEffect) {
    Panel().DisableDirectionButton();
    Panel().SetLimitingVisibility(CATDlgHide);
    EXPECT_EQ(Panel().GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(Panel().GetVisibility(), CATDlgShow);
    BuiltPanel();
    EXPECT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    EXPECT_EQ(Command().TakeClasses(), oneInversion);
}

TEST_F(OrvKvInsertionGeometrySubTest, AUserReadsTheEditorsAndCannotTypeIntoThem) {
    BuiltPanel();
    SetText(1, "Point.1");
    EXPECT_FALSE(host::DialogUser::Type(InputEditor(1), "other"));
    EXPECT_STREQ(InputEditor(1).GetText().ConvertToChar(), "Point.1");
}

TEST_F(OrvKvInsertionGeometrySubTest, TheTitleOfTheInvertButtonIsThatOfTheLanguageInWhichItIsBuilt) {
    host::MessageCatalogs::SetLanguage("German");
    BuiltPanel();
    EXPECT_STREQ(Button("InvertPbt").GetTitle().ConvertToChar(), "Richtung umkehren");
    host::MessageCatalogs::SetLanguage("");
    EXPECT_STREQ(InputButton(2).GetTitle().ConvertToChar(), "Direction");
    EXPECT_STREQ(Button("InvertPbt").GetTitle().ConvertToChar(), "Richtung umkehren") << "it was set";
}

TEST_F(OrvKvInsertionGeometrySubTest, ATitleThatIsNotFoundIsNotSet) {
    host::FaultPoints::FailCall(1, "message look-up");
    BuiltPanel();
    host::FaultPoints::Stop();
    EXPECT_STREQ(Button("InvertPbt").GetTitle().ConvertToChar(), "Invert direction");
    host::MessageCatalogs::SetLanguage("French");
    EXPECT_STREQ(Button("InvertPbt").GetTitle().ConvertToChar(), "Inverser la direction");
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvInsertionGeometrySubTest, WithoutMemoryForANotificationNothingIsSentAndThePanelGoesOn) {
    BuiltPanel();
    for (const std::string& button : {ButtonName(1), std::string("InvertPbt")}) {
        host::FaultPoints::FailCall(1, "notification allocation");
        ASSERT_TRUE(host::DialogUser::Press(Button(button)));
        host::FaultPoints::Stop();
        EXPECT_EQ(Command().TakeClasses(), Classes()) << button;
        ASSERT_TRUE(host::DialogUser::Press(Button(button)));
        EXPECT_EQ(Command().TakeClasses().size(), 1U) << button;
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, AWidgetThatCannotBeMadeIsMissingAloneAndItsInputFails) {
    const std::map<int, int> inputOfWidget = {{2, 1}, {3, 1}, {4, 2}, {5, 2}, {6, 3}, {7, 3}};
    for (int missing = 1; missing <= widgets; ++missing) {
        host::FaultPoints::FailCall(missing, "widget allocation");
        BuiltPanel();
        host::FaultPoints::Stop();
        Panel().Build(); // makes nothing: what is there was made once
        EXPECT_EQ(host::Inspector::Children(Panel()).size(), std::size_t{widgets - 1}) << missing;
        for (const int input : {1, 2, 3}) {
            const auto found = inputOfWidget.find(missing);
            const bool isMissing = found != inputOfWidget.end() && found->second == input;
            EXPECT_EQ(SetText(input, "Point.1"),
                      isMissing ? FailureIn(source, MissingInput(input)) : SuccessIn(source))
                << missing;
            EXPECT_EQ(Exists(EditorName(input)) && InputEditor(input).GetLineCount() > 0, !isMissing);
            EXPECT_TRUE(!Exists(ButtonName(input)) || host::DialogUser::Press(InputButton(input)));
        }
        Panel().DisableDirectionButton();
        // Every second widget is a button with a callback.
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), missing % 2 == 0 ? 3 : 4) << missing;
        Command().Forget();
        delete _panel;
        _panel = new OrvKvInsertionGeometrySub(MainWindow());
    }
}

TEST_F(OrvKvInsertionGeometrySubTest, APanelRemovesItsCallbacksBeforeItsWidgetsGo) {
    std::vector<int> counts;
    new CountingChild(Panel(), counts);
    BuiltPanel();
    new CountingChild(Panel(), counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 4);
    const int before = host::CommandInspection::AnalyseCallbacks();
    delete _panel;
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - 4);
    EXPECT_FALSE(Exists("Input1Pbt"));
}

TEST_F(OrvKvInsertionGeometrySubTest, CopiesCarryTheWidgetsOfTheOriginal) {
    BuiltPanel();
    OrvKvInsertionGeometrySub copy(Panel());
    OrvKvInsertionGeometrySub other(MainWindow());
    EXPECT_EQ(Observe([&] { return other.SetGeometryText(1, "assigned", CATDlgHide); }),
              FailureIn(source, MissingInput(1)));
    other = copy;
    for (const int input : {1, 2, 3}) {
        EXPECT_EQ(Observe([&] { return copy.SetGeometryText(input, "copied", CATDlgHide); }),
                  SuccessIn(source));
        EXPECT_STREQ(InputEditor(input).GetText().ConvertToChar(), "copied");
        EXPECT_EQ(InputButton(input).GetVisibility(), CATDlgHide);
        EXPECT_EQ(Observe([&] { return other.SetGeometryText(input, "assigned", CATDlgShow); }),
                  SuccessIn(source));
        EXPECT_STREQ(InputEditor(input).GetText().ConvertToChar(), "assigned");
        EXPECT_EQ(InputButton(input).GetVisibility(), CATDlgShow);
    }
    copy.Build(); // has its widgets already
    other.DisableDirectionButton();
    EXPECT_EQ(Button("InvertPbt").GetSensitivity(), CATDlgDisable);
    EXPECT_TRUE(host::Inspector::Children(copy).empty());
    EXPECT_TRUE(host::Inspector::Children(other).empty());
}

TEST_F(OrvKvInsertionGeometrySubTest, ADestroyedCopyLeavesTheCallbacksOfTheOriginalAlone) {
    BuiltPanel();
    { const OrvKvInsertionGeometrySub copy(Panel()); }
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 4);
    ASSERT_TRUE(host::DialogUser::Press(InputButton(3)));
    EXPECT_EQ(LastInput(), 3);
}

TEST_F(OrvKvInsertionGeometrySubTest, TitlesAreThereInEveryLanguage) {
    BuiltPanel();
    std::vector<Lines> titles;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        auto* const panel = new OrvKvInsertionGeometrySub(MainWindow());
        panel->Build();
        Lines texts;
        for (const CATDialog* child : host::Inspector::Children(*panel))
            if (dynamic_cast<const CATDlgPushButton*>(child) != nullptr)
                texts.emplace_back(child->GetTitle().ConvertToChar());
        titles.push_back(texts);
        delete panel;
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(titles,
              std::vector<Lines>({{"Insertion point", "Direction", "Limit", "Invert direction"},
                                  {"Einfügepunkt", "Richtung", "Begrenzung", "Richtung umkehren"},
                                  {"Point d'insertion", "Direction", "Limite", "Inverser la direction"},
                                  {"挿入点", "方向", "制限", "方向を反転"}}));
}

TEST_F(OrvKvInsertionGeometrySubTest, HelpForEachWidgetIsThereInEveryLanguage) {
    BuiltPanel();
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        for (const CATDialog* child : host::Inspector::Children(Panel())) {
            const std::string name = child->GetName().ConvertToChar();
            if (name == "N")
                continue;
            EXPECT_GT(child->GetHelp().GetLengthInChar(), 0) << language << name;
            EXPECT_GT(child->GetLongHelp().GetLengthInChar(), 0) << language << name;
            const bool isEditor = dynamic_cast<const CATDlgEditor*>(child) != nullptr;
            EXPECT_EQ(child->GetShortHelp().GetLengthInChar() > 0, !isEditor) << language << name;
        }
    }
    host::MessageCatalogs::SetLanguage("");
}

} // namespace
