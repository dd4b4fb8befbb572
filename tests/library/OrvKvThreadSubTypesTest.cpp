// Thread types and diameters: what the command lists, and what the user chooses.

#include "OrvKvThreadSubTest.h"

#include "CATDlgLabel.h"

#include <limits>

namespace {

using namespace support;
using namespace threadSub;

class OrvKvThreadSubTypesTest : public OrvKvThreadSubTest {
  protected:
    static void Choose(CATDlgCombo& ioCombo, const char* iText) {
        EXPECT_TRUE(host::DialogUser::ChooseText(ioCombo, iText)) << iText;
    }
    static std::string TitleOfDiameter() {
        return Widget<CATDlgLabel>("DiameterLab").GetTitle().ConvertToChar();
    }
    // The type that the panel takes for the current one: a person who chooses it again changes nothing.
    void ExpectCurrentType(const char* iText) {
        Said();
        Choose(Types(), iText);
        EXPECT_EQ(Said(), Texts()) << iText;
    }
};

TEST_F(OrvKvThreadSubTypesTest, ListsNoStandardAndThenTheTypesInTheirOrder) {
    MakeBuilt();
    EXPECT_EQ(SetTypes({"UNC", "Metric", "UNC"}, -1), SuccessIn(source));
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "UNC", "Metric", "UNC"}));
    EXPECT_EQ(SetTypes({"G"}, -1), SuccessIn(source));
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "G"}));
    EXPECT_EQ(SetTypes({}, -1), SuccessIn(source));
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard"}));
}

TEST_F(OrvKvThreadSubTypesTest, MinusOneSelectsNoStandardSilentlyWhateverIsAskedFor) {
    MakeBound();
    for (const int notify : {0, 1, 255}) {
        SetTypes(_types, 1);
        EXPECT_EQ(SetTypes(_types, -1, static_cast<unsigned char>(notify)), SuccessIn(source));
        EXPECT_EQ(Types().GetSelect(), 0);
        EXPECT_EQ(Said(), Texts());
        EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
        EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
    }
}

TEST_F(OrvKvThreadSubTypesTest, AnotherNumberSelectsThatTypeSilently) {
    MakeBound();
    for (const int type : {0, 1}) {
        EXPECT_EQ(SetTypes(_types, type), SuccessIn(source));
        EXPECT_EQ(Types().GetSelect(), type + 1);
        EXPECT_EQ(Said(), Texts());
        EXPECT_EQ(DiameterControl(), editor) << "the panel follows a rebuild alone";
        EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
        EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' '" + _types[std::size_t(type)] + "'"}));
    }
}

TEST_F(OrvKvThreadSubTypesTest, ASelectionThatIsToBeReportedActsAsTheUsers) {
    MakeBound();
    EXPECT_EQ(SetTypes(_types, 1, 1), SuccessIn(source));
    EXPECT_EQ(Types().GetSelect(), 2);
    EXPECT_EQ(DiameterControl(), combo);
    EXPECT_EQ(Said(), Texts({"type 'UNC' init 1", "take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
    EXPECT_EQ(SetTypes(_types, 1, 1), SuccessIn(source));
    EXPECT_EQ(Said(), Texts()) << "it is the current one";
}

TEST_F(OrvKvThreadSubTypesTest, FiveTypesAndMoreLimitTheHeightOfTheList) {
    MakeBuilt();
    SetTypes({"A", "B", "C", "D"}, -1);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Types()), 0) << "as the platform has it";
    SetTypes({"A", "B", "C", "D", "E"}, -1);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Types()), 5);
    delete _panel;
    MakeBuilt();
    SetTypes(Texts(1000, "A"), 999);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Types()), 5);
    EXPECT_EQ(Types().GetSelect(), 1000);
    SetTypes({"A"}, -1);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Types()), 5) << "a shorter list keeps the height";
}

TEST_F(OrvKvThreadSubTypesTest, ATypeBeyondTheListBecomesTheFailingResultAndChangesNothing) {
    MakeBound();
    SetTypes(_types, 1);
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    const std::vector<std::pair<int, std::string>> beyond = {{1, "2"},
                                                             {-2, "-1"},
                                                             {least, std::to_string(least + 1)},
                                                             {most - 1, std::to_string(most)},
                                                             {most, std::to_string(most)}};
    for (const auto& [type, position] : beyond) {
        EXPECT_EQ(SetTypes({"G"}, type, 1), CaughtIn(source, "OrvKvThreadSub::SetThreadTypes", "BadPosition",
                                                     "CATSystem", {position, "1"}));
        EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "Metric", "UNC"}));
        EXPECT_EQ(Types().GetSelect(), 2);
        EXPECT_EQ(Said(), Texts());
    }
    ExpectCurrentType("UNC");
    EXPECT_EQ(SetTypes({"G"}, 0), SuccessIn(source));
}

TEST_F(OrvKvThreadSubTypesTest, ListingTypesBeforeThePanelIsBuiltFails) {
    Make();
    EXPECT_EQ(SetTypes(_types, 0), FailureIn(source, "thread type combo is NULL."));
    _panel->Build();
    EXPECT_EQ(SetTypes(_types, 0), SuccessIn(source));
}

TEST_F(OrvKvThreadSubTypesTest, AnotherStandardIsReportedWithItsNameAndThenTaken) {
    MakeBound();
    SetTypes(_types, -1);
    Choose(Types(), "Metric");
    EXPECT_EQ(Said(), Texts({"type 'Metric' init 1", "take '' P 1.5 DK 8.5 DG 10 '' 'Metric'"}));
    Choose(Types(), "UNC");
    EXPECT_EQ(Said(), Texts({"type 'UNC' init 1", "take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
    Choose(Types(), "UNC");
    EXPECT_EQ(Said(), Texts()) << "the same again";
}

TEST_F(OrvKvThreadSubTypesTest, NoStandardIsReportedWithAnEmptyTypeEachTimeAndThenTaken) {
    MakeStandard();
    for (int time = 1; time <= 2; ++time) {
        Choose(Types(), "No Standard");
        EXPECT_EQ(Said(), Texts({"type '' init 1", "take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"})) << time;
        EXPECT_EQ(DiameterControl(), combo) << "the command is to rebuild the panel";
        EXPECT_EQ(AccessModes(), std::vector<int>({1, 1, 3, 1}));
    }
}

TEST_F(OrvKvThreadSubTypesTest, WithoutParametersATypeIsReportedAndNotTaken) {
    MakeBuilt();
    SetTypes(_types, -1);
    Choose(Types(), "Metric");
    Choose(Types(), "No Standard");
    EXPECT_EQ(Said(), Texts({"type 'Metric' init 1", "type '' init 1"}));
}

TEST_F(OrvKvThreadSubTypesTest, TheNotificationsComeFromThePanel) {
    MakeBound();
    SetTypes(_types, -1);
    Choose(Types(), "Metric");
    SetDims(_diameters, 0);
    Choose(Diameters(), "M12");
    ASSERT_EQ(Command().Heard().size(), 3U);
    for (const HeardNotification& heard : Command().Heard())
        EXPECT_EQ(heard.sender, _panel);
}

TEST_F(OrvKvThreadSubTypesTest, AStandardShowsAComboForTheDiameterBeforeTheCommandHearsOfIt) {
    MakeBuilt();
    SetTypes(_types, -1);
    EXPECT_EQ(DiameterControl(), spinner);
    EXPECT_EQ(TitleOfDiameter(), "Diameter");
    // Its diameters can be listed at once.
    class Listing : public CATCommand {
      public:
        explicit Listing(OrvKvThreadSub& ioPanel) : CATCommand(nullptr, "Listing"), _panel(ioPanel) {}
        CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification*) override {
            _panel.SetThreadDims(threadSub::ListOf(Texts{"M3", "M4"}), 1, 0);
            return CATNotifDontTransmitToFather;
        }

      private:
        OrvKvThreadSub& _panel;
    } command(*_panel);
    host::Application::SetActiveCommand(&command);
    Choose(Types(), "Metric");
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(PiecesOf(Widget<CATDialog>("ThreadDiaFrm")),
              Pieces({{"CATDlgCombo", "DiameterCmb", 0x40000, "0(1)-1(4)", "0(1)-1(4)"}}));
    EXPECT_EQ(TitleOfDiameter(), "DescriptionLab");
    EXPECT_EQ(LinesOf(Diameters()), Lines({"M3", "M4"}));
    EXPECT_EQ(Diameters().GetSelect(), 1);
}

TEST_F(OrvKvThreadSubTypesTest, AnotherStandardKeepsTheComboWithWhatItHoldsAndTheDesignation) {
    MakeStandard();
    Choose(Diameters(), "M10");
    const CATDlgCombo* const before = &Diameters();
    Said();
    Choose(Types(), "UNC");
    EXPECT_EQ(&Diameters(), before);
    EXPECT_EQ(LinesOf(Diameters()), Lines({"M8", "M10", "M12"}));
    EXPECT_EQ(Said(), Texts({"type 'UNC' init 1", "take 'M10' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
}

TEST_F(OrvKvThreadSubTypesTest, ATypeWithoutANameIsNoStandard) {
    MakeBound();
    SetTypes({"Metric", ""}, 0, 1);
    Said();
    EXPECT_EQ(DiameterControl(), combo);
    ASSERT_TRUE(host::DialogUser::Choose(Types(), 2));
    EXPECT_EQ(DiameterControl(), editor);
    EXPECT_EQ(Said(), Texts({"type '' init 1", "take '' P 1.5 DK 8.5 DG 10 '' ''"}));
    ASSERT_TRUE(host::DialogUser::Choose(Types(), 2));
    EXPECT_EQ(Said(), Texts()) << "the same again";
}

TEST_F(OrvKvThreadSubTypesTest, AnEventWithoutASelectedLineCountsForNothing) {
    MakeStandard();
    Types().ClearLine();
    Diameters().ClearLine();
    for (CATDlgCombo* const each : {&Types(), &Diameters()}) {
        CATNotification* const event = each->GetComboSelectNotification();
        event->AddRef();
        each->SendNotification(_panel, event);
    }
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(DiameterControl(), combo);
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'Metric'"}));
}

TEST_F(OrvKvThreadSubTypesTest, DiametersAreListedWithoutANoStandardLine) {
    MakeStandard();
    EXPECT_EQ(SetDims({"1/4", "3/8", "1/2"}, 2), SuccessIn(source));
    EXPECT_EQ(LinesOf(Diameters()), Lines({"1/4", "3/8", "1/2"}));
    EXPECT_EQ(Diameters().GetSelect(), 2);
    EXPECT_EQ(SetDims({}, 0), SuccessIn(source));
    EXPECT_EQ(LinesOf(Diameters()), Lines());
    EXPECT_EQ(Diameters().GetSelect(), -1);
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubTypesTest, ADiameterBeyondTheListSelectsNone) {
    MakeStandard();
    for (const int dim : {3, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(SetDims(_diameters, dim, 1), SuccessIn(source));
        EXPECT_EQ(Diameters().GetSelect(), -1) << dim;
    }
    EXPECT_EQ(Said(), Texts());
    SetDims(_diameters, 2, 1);
    EXPECT_EQ(Said(), Texts({"diameter 'M12' of 'Metric' init 1"}));
}

TEST_F(OrvKvThreadSubTypesTest, FiveDiametersAndMoreLimitTheHeightOfTheList) {
    MakeStandard();
    SetDims({"A", "B", "C", "D"}, 0);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Diameters()), 0);
    SetDims({"A", "B", "C", "D", "E"}, 0);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Diameters()), 5);
}

TEST_F(OrvKvThreadSubTypesTest, WithoutAStandardDiametersAreLeftAloneWhichIsNoFailure) {
    Make();
    EXPECT_EQ(SetDims(_diameters, 0, 1), SuccessIn(source)) << "before Build";
    _panel->Build();
    Said();
    EXPECT_EQ(SetDims(_diameters, 0, 1), SuccessIn(source));
    EXPECT_EQ(DiameterControl(), spinner);
    EXPECT_EQ(Said(), Texts());
    Rebuild(_types, 0, {}, -1);
    EXPECT_EQ(SetDims(_diameters, 0, 1), SuccessIn(source));
    EXPECT_EQ(Said(), Texts({"diameter 'M8' of 'Metric' init 1"}));
}

TEST_F(OrvKvThreadSubTypesTest, ASilentlySelectedDiameterIsNotTheDesignation) {
    MakeStandard();
    EXPECT_EQ(SetDims(_diameters, 1), SuccessIn(source));
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'Metric'"}));
    Choose(Diameters(), "M10");
    EXPECT_EQ(Said(), Texts({"diameter 'M10' of 'Metric' init 1"}));
    EXPECT_EQ(SetDims(_diameters, 0), SuccessIn(source));
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take 'M10' P 1.5 DK 8.5 DG 10 '' 'Metric'"}));
}

TEST_F(OrvKvThreadSubTypesTest, AnotherDiameterIsReportedAndNotTaken) {
    MakeStandard();
    Choose(Diameters(), "M12");
    Choose(Diameters(), "M12");
    Choose(Diameters(), "M8");
    EXPECT_EQ(Said(), Texts({"diameter 'M12' of 'Metric' init 1", "diameter 'M8' of 'Metric' init 1"}));
    EXPECT_EQ(Values(), Numbers({10.0, 8.5, 20.0, 1.5})) << "the command knows the values";
}

} // namespace
