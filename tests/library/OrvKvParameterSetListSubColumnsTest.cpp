// The columns of the two tables: titles, widths, limits, and new tables for new columns.

#include "OrvKvParameterSetListSubTest.h"

#include "support/ResourceFolder.h"

#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"

namespace {

using namespace support;
using namespace parameterSetList;

class OrvKvParameterSetListSubColumnsTest : public OrvKvParameterSetListSubTest {
  protected:
    Texts Titles() {
        EXPECT_EQ(TitlesOf(CurrentTable()), TitlesOf(SetTable()));
        return TitlesOf(SetTable());
    }
};

// As many parameters with a value column each: P1, P2, ...
std::vector<Shown> Values(int iCount) {
    std::vector<Shown> parameters;
    for (int number = 1; number <= iCount; ++number)
        parameters.push_back(Shown{"P" + std::to_string(number)});
    return parameters;
}

const char unequal[] = "The names and flags of the parameters differ in number.";
const char noTables[] = "The tables of the parameter sets are missing.";

TEST_F(OrvKvParameterSetListSubColumnsTest, AParameterHasAValueColumnAndThenAToleranceColumn) {
    MakeBuilt();
    EXPECT_EQ(SetNames({{"A", 1, 1, 1, 1}, {"B", 0, 1, 1, 1}, {"C", 1, 1, 0, 1}, {"D", 0, 1, 0, 1}}),
              SuccessAfterRefresh());
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name", "A", "A_Tol", "B_Tol", "C"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, EveryFlagAboveZeroShowsAColumn) {
    MakeBuilt();
    SetNames({{"A", 2, 1, 77, 1}, {"B", -1, 1, -5, 1}});
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name", "A", "A_Tol"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, WithoutParametersThereIsTheColumnOfTheNames) {
    MakeBuilt();
    EXPECT_EQ(SetNames({}), SuccessAfterRefresh());
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name"}));
    EXPECT_EQ(host::Inspector::VisibleColumnCount(SetTable()), 1);
}

TEST_F(OrvKvParameterSetListSubColumnsTest, TitlesAreThereInEveryLanguage) {
    Texts titles;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        MakeBuilt();
        SetNames({{"D", 0, 0, 1, 1}});
        titles.push_back(Titles()[0]);
        EXPECT_EQ(Titles()[1], "D_Tol") << language;
        delete _panel;
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(titles, Texts({"Parameter Set Name", "Name des Parametersatzes", "Nom du jeu de paramètres",
                             "パラメーターセット名"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, TextsThatAreMissingHaveADefault) {
    host::MessageCatalogs::Reset(); // no folder is searched any more
    MakeBuilt();
    SetNames({{"D", 1, 1, 1, 1}});
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name", "D", "D_Tol"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, TheTextsOfTheResourceFileAreTaken) {
    const ResourceFolder resources;
    resources.Write("Tests/OrvKvParameterSetListSub.CATNls",
                    "ParamSetName = \"名前 (100 %)\";\nToleranceString = \" ± /公差\";\n");
    host::MessageCatalogs::SetLanguage("Tests");
    MakeBuilt();
    SetNames({{"D", 1, 1, 1, 1}});
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(Titles(), Texts({"名前 (100 %)", "D", "D ± /公差"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, AParameterNameIsKeptAsItIs) {
    MakeBuilt();
    const Texts names = {
        "größer", "100 %d", "(a)/b", "zwei\nZeilen", "", "表 \U0001F529", std::string(100000, 'x')};
    SetNames(ValuesOf(names));
    Texts expected = names;
    expected.insert(expected.begin(), "Parameter Set Name");
    EXPECT_EQ(Titles(), expected);
}

TEST_F(OrvKvParameterSetListSubColumnsTest, ShowsAllColumnsUpToNineAndTenOfMore) {
    MakeBuilt();
    for (const auto& [titles, visible] : std::vector<std::pair<int, int>>{
             {1, 1}, {2, 2}, {8, 8}, {9, 9}, {10, 10}, {11, 10}, {40, 10}, {100, 10}}) {
        SetNames(Values(titles - 1));
        EXPECT_EQ(host::Inspector::VisibleColumnCount(SetTable()), visible) << titles;
        EXPECT_EQ(host::Inspector::VisibleColumnCount(CurrentTable()), visible) << titles;
    }
}

TEST_F(OrvKvParameterSetListSubColumnsTest, EveryColumnBehindTheNamesIsThreeCharactersWide) {
    MakeBuilt();
    SetNames(Values(11));
    for (const CATDlgMultiList* table : {&SetTable(), &CurrentTable()}) {
        EXPECT_EQ(host::Inspector::ColumnTextWidth(*table, 0), 0);
        for (int column = 1; column <= 11; ++column)
            EXPECT_EQ(host::Inspector::ColumnTextWidth(*table, column), 3) << column;
        EXPECT_EQ(host::Inspector::ColumnTextWidth(*table, 12), 0);
    }
}

TEST_F(OrvKvParameterSetListSubColumnsTest, HoldsAHundredColumnsWithThatOfTheNames) {
    MakeBuilt();
    SetNames(Values(99));
    EXPECT_EQ(Titles().size(), 100U);
    EXPECT_EQ(Titles().back(), "P99");
    SetNames(Values(100));
    EXPECT_EQ(Titles().size(), 100U);
    EXPECT_EQ(Titles().back(), "P99");
    for (const CATDlgMultiList* table : {&SetTable(), &CurrentTable()}) {
        EXPECT_EQ(host::Inspector::ColumnTextWidth(*table, 99), 3);
        EXPECT_EQ(host::Inspector::ColumnTextWidth(*table, 100), 0);
    }
}

TEST_F(OrvKvParameterSetListSubColumnsTest, ALimitThatFallsBetweenAValueAndItsToleranceKeepsTheValue) {
    MakeBuilt();
    SetNames(std::vector<Shown>(60, Shown{"P", 1, 1, 1, 1}));
    EXPECT_EQ(Titles().size(), 100U);
    EXPECT_EQ(Titles()[98], "P_Tol");
    EXPECT_EQ(Titles()[99], "P");
}

TEST_F(OrvKvParameterSetListSubColumnsTest, CellsOfColumnsBehindTheLimitAreNotShown) {
    MakeBuilt();
    SetNames(Values(101));
    const Parameters lengths(101, Length(4));
    EXPECT_EQ(AddSet("A", lengths), SuccessIn(source));
    EXPECT_EQ(SetCurrent("A", lengths), SuccessIn(source));
    Texts expected(100, "4mm");
    expected[0] = "A";
    EXPECT_EQ(LineOf(SetTable(), 0), expected);
    EXPECT_EQ(LineOf(CurrentTable(), 0), expected);
    EXPECT_EQ(SetTable().GetLineCount(), 1);
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 99));
    EXPECT_EQ(TakeTold(), Texts({"edit 'P99' row -1 value 1 tolerance 1"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, TheFirstColumnsKeepTheTablesOfBuild) {
    MakeBuilt();
    const CATDlgMultiList* const sets = &SetTable();
    const CATDlgMultiList* const current = &CurrentTable();
    SetNames(Values(1));
    EXPECT_EQ(&SetTable(), sets);
    EXPECT_EQ(&CurrentTable(), current);
}

TEST_F(OrvKvParameterSetListSubColumnsTest, LaterColumnsComeWithNewTablesThatAreMadeAsInBuild) {
    MakeBuilt();
    SetNames(Values(1));
    const std::string before = host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
    for (int round = 0; round < 2; ++round) {
        const CATDlgMultiList* const sets = &SetTable();
        const CATDlgMultiList* const current = &CurrentTable();
        {
            const host::EventScope event; // the old tables live until it ends
            EXPECT_EQ(CallSetNames(Values(1)), S_OK);
            EXPECT_NE(&SetTable(), sets);
            EXPECT_NE(&CurrentTable(), current);
            EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
            EXPECT_TRUE(host::Inspector::AttachmentsOf(*sets).empty());
            EXPECT_TRUE(host::Inspector::AttachmentsOf(*current).empty());
        }
        EXPECT_EQ(host::DialogDump::Of(*_panel, host::DialogDump::WithLayout), before);
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
    }
}

// Writes down which widgets come.
class CreationRecorder : public host::DialogObserver {
  public:
    CreationRecorder() { Add(*this); }
    ~CreationRecorder() override { Remove(*this); }
    void OnChanges(const host::DialogChanges& iChanges) override {
        for (const CATDialog* widget : iChanges.created)
            created.emplace_back(widget->GetName().ConvertToChar());
        destroyed += iChanges.destroyed.size();
    }
    Texts created;
    std::size_t destroyed = 0;
};

TEST_F(OrvKvParameterSetListSubColumnsTest, TheTableOfTheCurrentParametersIsReplacedFirst) {
    MakeBuilt();
    SetNames(Values(1));
    CreationRecorder recorder;
    SetNames(Values(2));
    RunIdle();
    EXPECT_EQ(recorder.created, Texts({"CurrentParameterMul", "ParameterSetMul"}));
    EXPECT_EQ(recorder.destroyed, 2U);
}

TEST_F(OrvKvParameterSetListSubColumnsTest, NewTablesReportAsTheOldOnesDid) {
    MakeBuilt();
    SetNames(Values(1));
    SetNames(Values(2));
    AddSet("A");
    SetCurrent("A");
    ASSERT_TRUE(host::DialogUser::Activate(SetTable(), 0, 0));
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
    EXPECT_EQ(TakeTold(), Texts({"set 'A'", "modified ''", "set 'A'", "modified ''",
                                 "edit 'P2' row -1 value 1 tolerance 1"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, NewColumnsEmptyBothTables) {
    MakeBuilt();
    AddSet("A");
    SetCurrent("A");
    SetNames(Values(1)); // the tables of Build
    EXPECT_EQ(SetTable().GetLineCount(), 0);
    EXPECT_EQ(CurrentTable().GetLineCount(), 0);
    AddSet("A");
    SetCurrent("A");
    SetNames(Values(1)); // new ones
    EXPECT_EQ(SetTable().GetLineCount(), 0);
    EXPECT_EQ(CurrentTable().GetLineCount(), 0);
    EXPECT_EQ(SelectedName(), "");
}

TEST_F(OrvKvParameterSetListSubColumnsTest, SetsOfEarlierColumnsAreForgotten) {
    MakeFilled({"A", "B", "C"});
    SetNames(Values(1));
    AddSet("X");
    AddSet("B");
    AddSet("Y");
    SetCurrent("B");
    EXPECT_EQ(SelectedLineOf(SetTable()), 1);
    SetCurrent("C");
    EXPECT_EQ(SelectedLineOf(SetTable()), 1) << "an unknown set leaves the selection alone";
}

TEST_F(OrvKvParameterSetListSubColumnsTest, ParametersOfEarlierColumnsAreForgotten) {
    MakeBuilt();
    SetNames({{"A", 1, 0, 0, 0}, {"B", 1, 1, 0, 0}});
    SetNames({{"B", 1, 0, 0, 0}, {"A", 1, 1, 0, 0}});
    SetCurrent("set");
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
    EXPECT_EQ(TakeTold(), Texts());
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
    EXPECT_EQ(TakeTold(), Texts({"edit 'A' row -1 value 1 tolerance 1"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, TheParametersThemselvesAreNotLookedAt) {
    MakeBuilt();
    CATListValCATBaseUnknown_var parameters;
    parameters.Append(NULL_var);
    parameters.Append(Length(1));
    const std::vector<Shown> shown = Values(1);
    EXPECT_EQ(Observe([&] {
                  return _panel->SetParameterNames(parameters, NamesOf(shown), FlagsOf(shown, &Shown::value),
                                                   FlagsOf(shown, &Shown::valueEditable),
                                                   FlagsOf(shown, &Shown::tolerance),
                                                   FlagsOf(shown, &Shown::toleranceEditable));
              }),
              SuccessAfterRefresh());
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name", "P1"}));
}

TEST_F(OrvKvParameterSetListSubColumnsTest, NamesAndFlagsThatDifferInNumberFailAndChangeNothing) {
    MakeFilled({"A"});
    const std::string before = host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
    const CATDlgMultiList* const sets = &SetTable();
    CATListValCATString names;
    names.Append("X");
    names.Append("Y");
    for (int wrong = 0; wrong < 4; ++wrong)
        for (const int size : {0, 1, 3}) {
            std::vector<CATRawCollint> flags(4, FlagsOf(Values(2), &Shown::value));
            flags[static_cast<std::size_t>(wrong)] = FlagsOf(Values(size), &Shown::value);
            EXPECT_EQ(Observe([&] {
                          return _panel->SetParameterNames(CATListValCATBaseUnknown_var(), names, flags[0],
                                                           flags[1], flags[2], flags[3]);
                      }),
                      FailureIn(source, unequal))
                << "list " << wrong << " has " << size;
        }
    EXPECT_EQ(&SetTable(), sets);
    EXPECT_EQ(host::DialogDump::Of(*_panel, host::DialogDump::WithLayout), before);
    AddSet("B", {Length(3)});
    EXPECT_EQ(LineOf(SetTable(), 1), Texts({"B", "3mm"})) << "the columns are still known";
}

TEST_F(OrvKvParameterSetListSubColumnsTest, AFailureDoesNotUseUpTheTablesOfBuild) {
    MakeBuilt();
    const CATDlgMultiList* const sets = &SetTable();
    CATListValCATString names;
    names.Append("X");
    EXPECT_EQ(Observe([&] {
                  return _panel->SetParameterNames(CATListValCATBaseUnknown_var(), names, CATRawCollint(),
                                                   CATRawCollint(), CATRawCollint(), CATRawCollint());
              }),
              FailureIn(source, unequal));
    SetNames(Values(1));
    EXPECT_EQ(&SetTable(), sets);
}

TEST_F(OrvKvParameterSetListSubColumnsTest, BeforeBuildEveryFillingFails) {
    Make();
    EXPECT_EQ(SetNames(Values(1)), FailureIn(source, noTables));
    EXPECT_EQ(AddSet("A"), FailureIn(source, noTables));
    EXPECT_EQ(SetCurrent("A"), FailureIn(source, noTables));
    _panel->Build();
    const CATDlgMultiList* const sets = &SetTable();
    EXPECT_EQ(SetNames(Values(1)), SuccessAfterRefresh());
    EXPECT_EQ(&SetTable(), sets);
}

// Number 1 is the table of the current parameters, number 2 that of the sets.
TEST_F(OrvKvParameterSetListSubColumnsTest, WhereANewTableCannotBeMadeTheOldOnesStay) {
    MakeFilled({"A", "B"});
    SetCurrent("B", {Length(9)});
    const std::string before = host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
    for (const int failing : {1, 2}) {
        host::FaultPoints::FailCall(failing, "widget allocation");
        const Report report = SetNames(Values(2));
        host::FaultPoints::Stop();
        EXPECT_EQ(report, FailureIn(source, "Failed to update the multilists")) << failing;
        EXPECT_EQ(host::DialogDump::Of(*_panel, host::DialogDump::WithLayout), before) << failing;
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3) << failing;
    }
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
    EXPECT_EQ(TakeTold(), Texts({"set 'A'", "modified ''", "edit 'D' row -1 value 1 tolerance 1"}));
    EXPECT_EQ(SetNames(Values(2)), SuccessAfterRefresh());
    EXPECT_EQ(Titles(), Texts({"Parameter Set Name", "P1", "P2"}));
}

} // namespace
