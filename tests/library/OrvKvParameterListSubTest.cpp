// The parameter list as a widget: what Build makes, its texts, copies and its end.

#include "ParameterListTest.h"

#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "support/GoldenFolder.h"

namespace {

using namespace support;

using Titles = std::vector<std::string>;

Titles TitlesOf(const CATDlgMultiList& iList) {
    Titles titles;
    for (int column = 0; column < iList.GetColumnCount(); ++column) {
        CATUnicodeString title;
        iList.GetColumnTitle(column, title);
        titles.emplace_back(title.ConvertToChar());
    }
    return titles;
}

class OrvKvParameterListSubTest : public ParameterListTest {
  protected:
    // D with a tolerance, T without, and K, of which only the tolerance is shown and nothing may be edited.
    std::vector<Listed> ThreeParameters() const {
        return {{.parameter = _diameter, .name = "D"},
                {.parameter = _depth, .name = "T", .valueEditable = 0},
                {.parameter = _chamfer, .name = "K", .valueShown = 0, .toleranceEditable = 0}};
    }

    CATICkeParm_var _diameter = Length("D", 10, 0.1, -0.05);
    CATICkeParm_var _depth = Length("T", 20);
    CATICkeParm_var _chamfer = Length("K", 1.5, 0.2, 0.1);
};

TEST_F(OrvKvParameterListSubTest, IsAFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    Make();
    EXPECT_STREQ(Panel().GetName().ConvertToChar(), "OrvKvParameterListSub");
    EXPECT_EQ(host::Inspector::Style(Panel()), 0UL);
    EXPECT_EQ(host::Inspector::Parent(Panel()), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvParameterListSubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    EXPECT_STREQ(Panel().GetResourceFilename(0), "OrvKvParameterListSub");
    EXPECT_STREQ(Panel().GetResourceFilename(-2), "OrvKvParameterListSub");
    EXPECT_EQ(Panel().GetResourceFilename(1), nullptr);
}

TEST_F(OrvKvParameterListSubTest, BuildMakesOneEmptyListThatFillsTheFrame) {
    MakeBuilt();
    ASSERT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_STREQ(List().GetName().ConvertToChar(), "ParameterMul");
    EXPECT_EQ(host::Inspector::Style(List()), 0UL);
    EXPECT_EQ(List().GetLineCount(), 0);
    for (const host::Inspector::TabSpan& span :
         {host::Inspector::ColumnsOf(List()), host::Inspector::RowsOf(List())}) {
        EXPECT_TRUE(span.hasLeading && span.hasTrailing && span.stretches);
        EXPECT_EQ(span.leading, 0);
        EXPECT_EQ(span.trailing, 1);
    }
}

TEST_F(OrvKvParameterListSubTest, TheListHasFiveColumnsAndFourWithoutTheDescription) {
    MakeBuilt();
    EXPECT_EQ(List().GetColumnCount(), 5);
    EXPECT_EQ(host::Inspector::VisibleColumnCount(List()), 5);
    for (const int flag : {1, 2, 255}) {
        MakeBuilt(flag);
        EXPECT_EQ(List().GetColumnCount(), 4) << flag;
        EXPECT_EQ(host::Inspector::VisibleColumnCount(List()), 4) << flag;
    }
}

TEST_F(OrvKvParameterListSubTest, ASecondBuildMakesNothing) {
    MakeBuilt();
    const CATDlgMultiList* const list = &List();
    Panel().Build();
    ASSERT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(&List(), list);
    SetParameters(ThreeParameters());
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"double click on D at 1, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubTest, LooksTheSameAsEver) {
    MakeBuilt();
    Panel().SetFeatureParameters(FeatureWith({"T"}));
    SetParameters(ThreeParameters());
    EXPECT_TRUE(MatchesGolden("ParameterListSub-described",
                              host::DialogDump::Of(Panel(), host::DialogDump::WithLayout)));
}

TEST_F(OrvKvParameterListSubTest, LooksTheSameAsEverWithoutTheDescription) {
    MakeBuilt(1);
    Panel().SetFeatureParameters(FeatureWith({"T"}));
    SetParameters(ThreeParameters());
    EXPECT_TRUE(
        MatchesGolden("ParameterListSub-plain", host::DialogDump::Of(Panel(), host::DialogDump::WithLayout)));
}

struct LanguageTexts {
    const char* language;
    Titles titles;
    const char* shortHelp;
};

TEST_F(OrvKvParameterListSubTest, TitlesAndHelpAreThereInEveryLanguage) {
    const LanguageTexts texts[] = {
        {"", {"Mod.", "Parameter", "Value", "Tolerance", "Description"}, "Parameters"},
        {"German", {"Mod.", "Parameter", "Wert", "Toleranz", "Beschreibung"}, "Parameter"},
        {"French", {"Mod.", "Paramètre", "Valeur", "Tolérance", "Description"}, "Paramètres"},
        {"Japanese", {"変更", "パラメーター", "値", "公差", "説明"}, "パラメーター"}};
    for (const LanguageTexts& expected : texts) {
        host::MessageCatalogs::SetLanguage(expected.language);
        MakeBuilt();
        EXPECT_EQ(TitlesOf(List()), expected.titles) << expected.language;
        EXPECT_STREQ(List().GetShortHelp().ConvertToChar(), expected.shortHelp);
        EXPECT_STREQ(Panel().GetTitle().ConvertToChar(), expected.shortHelp);
        EXPECT_GT(List().GetHelp().GetLengthInChar(), 0) << expected.language;
        EXPECT_GT(List().GetLongHelp().GetLengthInChar(), 0) << expected.language;
        MakeBuilt(1);
        EXPECT_EQ(TitlesOf(List()), Titles(expected.titles.begin(), expected.titles.end() - 1));
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvParameterListSubTest, ToleranceAndDescriptionTakeTheirTitlesFromCrossedKeys) {
    host::MessageCatalogs::Reset();
    ResourceFolder crossed;
    crossed.Write("OrvKvParameterListSub.CATNls", "ParameterMul.ColumnTitle0 = \"title 0\";\n"
                                                  "ParameterMul.ColumnTitle1 = \"title 1\";\n"
                                                  "ParameterMul.ColumnTitle2 = \"title 2\";\n"
                                                  "ParameterMul.ColumnTitle3 = \"title 3\";\n"
                                                  "ParameterMul.ColumnTitle4 = \"title 4\";\n");
    MakeBuilt();
    EXPECT_EQ(TitlesOf(List()), Titles({"title 0", "title 1", "title 2", "title 4", "title 3"}));
    MakeBuilt(1);
    EXPECT_EQ(TitlesOf(List()), Titles({"title 0", "title 1", "title 2", "title 4"}));
}

TEST_F(OrvKvParameterListSubTest, WithoutTheResourceFileTheListHasItsDefaultTitlesAndMarker) {
    host::MessageCatalogs::Reset();
    MakeBuilt();
    EXPECT_EQ(TitlesOf(List()), Titles({"*", "*Short", "*Value", "*Name", "*Tolerance"}));
    Panel().SetFeatureParameters(FeatureWith({"T"}));
    SetParameters(ThreeParameters());
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05| ", "x|T|(20mm)|| ", "|K||(+0.2/0.1)| "}));
    MakeBuilt(1);
    EXPECT_EQ(TitlesOf(List()), Titles({"*", "*Short", "*Value", "*Name"}));
}

TEST_F(OrvKvParameterListSubTest, TheMarkerIsTheTextOfItsKeyWhenThePanelWasBuilt) {
    host::MessageCatalogs::Reset();
    ResourceFolder marked;
    marked.Write("OrvKvParameterListSub.CATNls", "ParameterMul.ModifiedParameterDisplay = \"geändert\";\n");
    MakeBuilt(1);
    host::MessageCatalogs::Reset();
    Panel().SetFeatureParameters(FeatureWith({"D"}));
    SetParameters({{.parameter = _diameter, .name = "D"}});
    EXPECT_EQ(ShownRows(), Rows({"geändert|D|10mm|+0.1/-0.05"}));
}

// How many texts are looked up while iBody runs.
int LookUps(const std::function<void()>& iBody) {
    host::FaultPoints::StartCounting();
    iBody();
    const int lookUps = host::FaultPoints::PassedByName()["message look-up"];
    host::FaultPoints::Stop();
    return lookUps;
}

TEST_F(OrvKvParameterListSubTest, NeitherTitleNorTextOfTheDescriptionIsLookedUpWhereItIsNotShown) {
    Make(0);
    const int builtWithDescription = LookUps([this] { Panel().Build(); });
    const int listedWithDescription = LookUps([this] { SetParameters(ThreeParameters()); });
    Make(1);
    EXPECT_EQ(LookUps([this] { Panel().Build(); }), builtWithDescription - 1);
    EXPECT_EQ(LookUps([this] { SetParameters(ThreeParameters()); }), 0);
    EXPECT_EQ(listedWithDescription, 3);
}

TEST_F(OrvKvParameterListSubTest, WithoutMemoryForTheListThePanelFailsAsBeforeItsBuilding) {
    Make();
    host::FaultPoints::FailCall(1, "widget allocation");
    Panel().Build();
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
    const Report failure = FailureIn(parameterListSource, "Invalid data member _pParameterMul");
    EXPECT_EQ(SetParameters(ThreeParameters()), failure);
    EXPECT_EQ(SetFittingInfo("D", "H7"), failure);
    Panel().Build();
    EXPECT_EQ(SetParameters(ThreeParameters()), SuccessIn(parameterListSource));
}

TEST_F(OrvKvParameterListSubTest, FillingThePanelBeforeItIsBuiltFailsAndKeepsNothing) {
    Make();
    const Report failure = FailureIn(parameterListSource, "Invalid data member _pParameterMul");
    EXPECT_EQ(SetParameters(ThreeParameters()), failure);
    EXPECT_EQ(SetFittingInfo("D", "H7"), failure);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    Panel().Build();
    EXPECT_EQ(ShownRows(), Rows());
    EXPECT_EQ(SetParameters(ThreeParameters()), SuccessIn(parameterListSource));
}

TEST_F(OrvKvParameterListSubTest, AFeatureGivenBeforeThePanelIsBuiltIsKept) {
    Make();
    EXPECT_EQ(Observe([this] { return Panel().SetFeatureParameters(FeatureWith({"D"})); }), PlainSuccess());
    Panel().StopParameterValueChangedNotification(1);
    Panel().Build();
    SetParameters({{.parameter = _diameter, .name = "D"}});
    EXPECT_EQ(ShownRows(), Rows({"*|D|10mm|+0.1/-0.05|Diameter"}));
    Change(_diameter, 11);
    EXPECT_EQ(TakeReported(), Reported());
}

TEST_F(OrvKvParameterListSubTest, ADestroyedPanelLeavesNoSubscriptionBehind) {
    MakeBuilt();
    SetParameters(ThreeParameters());
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    const int callbacks = host::CommandInspection::AnalyseCallbacks();
    for (const CATICkeParm_var& parameter : {_diameter, _depth, _chamfer})
        EXPECT_EQ(SubscriptionsOn(parameter), 2);
    Destroy();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), callbacks - 1);
    for (const CATICkeParm_var& parameter : {_diameter, _depth, _chamfer})
        EXPECT_EQ(SubscriptionsOn(parameter), 0);
    Change(_diameter, 11);
    EXPECT_EQ(TakeReported(), Reported());
}

// A child that counts what its father still hears when the father's end takes it along.
class CountingChild : public CATDlgFrame {
  public:
    CountingChild(CATDialog& ioFather, const CATBaseUnknown_var& iParameter, std::vector<int>& ioCounts)
        : CATDlgFrame(&ioFather, "CountingChild"), _father(ioFather), _parameter(iParameter),
          _counts(ioCounts) {}
    ~CountingChild() override {
        _counts.push_back(host::CommandInspection::AnalyseCallbacks(_father));
        _counts.push_back(SubscriptionsOn(_parameter));
    }

  private:
    const CATDialog& _father;
    CATBaseUnknown_var _parameter;
    std::vector<int>& _counts;
};

TEST_F(OrvKvParameterListSubTest, APanelStopsListeningBeforeItsWidgetsGo) {
    std::vector<int> counts;
    MakeBuilt();
    SetParameters(ThreeParameters());
    new CountingChild(Panel(), _diameter, counts);
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    Destroy();
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
}

TEST_F(OrvKvParameterListSubTest, ThePanelKeepsItsParametersAliveAndLetsThemGo) {
    MakeBuilt();
    const int others = host::LiveObjects::Count("Parameter");
    const std::vector<Listed> none;
    SetParameters({{.parameter = Length("D", 10), .name = "D"}});
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), others + 1);
    SetParameters(none);
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), others);
    SetParameters({{.parameter = Length("D", 10), .name = "D"}});
    Panel().SetFeatureParameters(nullptr);
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), others);
    SetParameters({{.parameter = Length("D", 10), .name = "D"}});
    Destroy();
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), others);
}

TEST_F(OrvKvParameterListSubTest, ACopyCarriesTheMembersOfTheOriginalAndHearsNoParameter) {
    MakeBuilt();
    SetParameters({{.parameter = _depth, .name = "T", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _diameter, .name = "D"}});
    {
        OrvKvParameterListSub copy(Panel());
        EXPECT_TRUE(host::Inspector::Children(copy).empty());
        EXPECT_EQ(SubscriptionsOn(_diameter), 2);
        EXPECT_EQ(Observe([&] { return copy.SetFittingInfo("D", "H7"); }), SuccessIn(parameterListSource));
        EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7|Diameter"}));
    }
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    Change(_diameter, 11);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter"}));
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"changed D", "double click on D at 2, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubTest, ACopyOfAPanelThatIsNotBuiltBuildsAListOfItsOwn) {
    Make(1);
    OrvKvParameterListSub copy(Panel());
    copy.Build();
    ASSERT_EQ(host::Inspector::Children(copy).size(), 1U);
    EXPECT_EQ(dynamic_cast<CATDlgMultiList&>(*host::Inspector::FirstChild(copy)).GetColumnCount(), 4);
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvParameterListSubTest, AnAssignedPanelCarriesTheMembersAndHearsNeitherOldNorNewParameters) {
    MakeBuilt();
    SetParameters({{.parameter = _diameter, .name = "D"}});
    auto* const other = new OrvKvParameterListSub(MainWindow(), 1);
    other->Build();
    ParameterLists::Of({{.parameter = _depth, .name = "T"}}).HandTo(*other);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
    *other = Panel();
    EXPECT_EQ(SubscriptionsOn(_depth), 0);
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    EXPECT_EQ(Observe([&] { return other->SetFittingInfo("D", "H7"); }), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7|Diameter"}));
    EXPECT_EQ(Observe([&] { return other->SetFittingInfo("T", "H8"); }), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7|Diameter"}));
    delete other;
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
}

TEST_F(OrvKvParameterListSubTest, TheIndexOfACopyIsItsOwn) {
    MakeBuilt();
    SetParameters({{.parameter = _diameter, .name = "D"}});
    OrvKvParameterListSub copy(Panel());
    OrvKvParameterListSub assigned(MainWindow(), 0);
    assigned = copy;
    Panel().SetFeatureParameters(nullptr);
    SetFittingInfo("D", "from the original");
    EXPECT_EQ(Cell(1, 3), "+0.1/-0.05");
    copy.SetFittingInfo("D", "from the copy");
    EXPECT_EQ(Cell(1, 3), "from the copy");
    assigned.SetFittingInfo("D", "from the assigned one");
    EXPECT_EQ(Cell(1, 3), "from the assigned one");
}

TEST_F(OrvKvParameterListSubTest, APanelAssignedToItselfStaysAsItIs) {
    MakeBuilt();
    SetParameters({{.parameter = _diameter, .name = "D"}});
    OrvKvParameterListSub& same = Panel();
    Panel() = same;
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    Change(_diameter, 11);
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

} // namespace
