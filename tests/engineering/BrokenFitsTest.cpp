// Wrong tables of limits and fits: ranges, grades, numbers, letters and rows that contradict each other; and
// wrong sides of parameters.

#include "Fault.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;
using namespace engineering;

const char* const tolerances = "fits/it_grades.csv";
const char* const deltas = "fits/delta.csv";
const char* const shafts = "fits/shaft_deviations.csv";
const char* const holes = "fits/hole_deviations.csv";
const char* const offered = "fits/offered_grades.csv";

const std::vector<Fault> rangeFaults{
    {"RangeThatDoesNotBeginAtZero",
     tolerances,
     "0,3,0.3",
     "1,3,0.3",
     {"fits/it_grades.csv:2: column 'over_mm': '1' is not 0, where the first range begins"}},
    {"GapBetweenRanges",
     tolerances,
     "3,6,0.4",
     "4,6,0.4",
     {"fits/it_grades.csv:3: column 'over_mm': '4' is not 3, where the range before ends"}},
    {"OverlappingRangesOfDeltas",
     deltas,
     "3,6,1",
     "2.5,6,1",
     {"fits/delta.csv:3: column 'over_mm': '2.5' is not 3, where the range before ends"}},
    {"RangeThatEndsBeforeItBegins",
     tolerances,
     "3,6,0.4",
     "3,2,0.4",
     {"fits/it_grades.csv:3: column 'up_to_mm': '2' is not above the over_mm of '3'"}},
    {"EmptyRange",
     shafts,
     "g,3,6,",
     "g,6,6,",
     {"fits/shaft_deviations.csv:4: column 'up_to_mm': '6' is not above the over_mm of '6'"}},
    {"NegativeSize",
     shafts,
     "g,0,3,",
     "g,-1,3,",
     {"fits/shaft_deviations.csv:3: column 'over_mm': '-1' is below zero"}},
    {"SizeThatIsNoNumber",
     holes,
     "K,3,6,",
     "K,3,six,",
     {"fits/hole_deviations.csv:4: column 'up_to_mm': 'six' is not a number"}},
    {"MissingSize",
     holes,
     "K,3,6,",
     "K,,6,",
     {"fits/hole_deviations.csv:4: column 'over_mm': the value is missing"}},
    {"RangeThatCannotBeReadBeforeAnother", // the next range is not blamed
     tolerances,
     "0,3,0.3",
     "0,x,0.3",
     {"fits/it_grades.csv:2: column 'up_to_mm': 'x' is not a number"}},
    {"DeltasThatEndElsewhere",
     deltas,
     "3,6,1",
     "3,5,1",
     {"fits/delta.csv:3: column 'up_to_mm': is not where the ranges of it_grades.csv end"}},
};

const std::vector<Fault> numberFaults{
    {"MissingStandardTolerance",
     tolerances,
     "0,3,0.3,0.5,",
     "0,3,0.3,,",
     {"fits/it_grades.csv:2: column 'IT0': the value is missing"}},
    {"StandardToleranceThatIsNoNumber",
     tolerances,
     ",1800",
     ",1.8k",
     {"fits/it_grades.csv:3: column 'IT18': '1.8k' has 'k' after the number"}},
    {"StandardToleranceThatDoesNotGrow",
     tolerances,
     "6,10,14",
     "6,60,14",
     {"fits/it_grades.csv:2: column 'IT8': '14' is not above the finer grade"}},
    {"StandardToleranceOfZero",
     tolerances,
     "0,3,0.3",
     "0,3,0",
     {"fits/it_grades.csv:2: column 'IT01': '0' is not above zero"}},
    {"NegativeStandardTolerance",
     tolerances,
     "0,3,0.3",
     "0,3,-0.3",
     {"fits/it_grades.csv:2: column 'IT01': '-0.3' is below zero"}},
    {"StandardToleranceWithTwoDecimals",
     tolerances,
     "0,3,0.3",
     "0,3,0.35",
     {"fits/it_grades.csv:2: column 'IT01': '0.35' has more than one decimal"}},
    {"StandardToleranceOutOfRange",
     tolerances,
     "1200,1800",
     "1200,1800000",
     {"fits/it_grades.csv:3: column 'IT18': '1800000' is out of range"}},
    {"MissingDelta", deltas, "1,3,4,6", "1,3,4,", {"fits/delta.csv:3: column 'IT8': the value is missing"}},
    {"NegativeDelta", deltas, "1,3,4,6", "1,3,-4,6", {"fits/delta.csv:3: column 'IT7': '-4' is below zero"}},
    {"MissingDeviation",
     shafts,
     "es,-2\n",
     "es,\n",
     {"fits/shaft_deviations.csv:3: column 'deviation_um': the value is missing"}},
    {"DeviationThatIsNoNumber",
     shafts,
     "es,-2\n",
     "es,two\n",
     {"fits/shaft_deviations.csv:3: column 'deviation_um': 'two' is not a number"}},
    {"DeviationThatIsNotFinite",
     shafts,
     "es,-2\n",
     "es,inf\n",
     {"fits/shaft_deviations.csv:3: column 'deviation_um': 'inf' is not a finite number"}},
    {"NegativeDeviationOutOfRange",
     shafts,
     "es,-2\n",
     "es,-1e300\n",
     {"fits/shaft_deviations.csv:3: column 'deviation_um': '-1e300' is out of range"}},
    {"DeviationWithTwoDecimals",
     holes,
     "ES,-1,1",
     "ES,-1.25,1",
     {"fits/hole_deviations.csv:4: column 'deviation_um': '-1.25' has more than one decimal"}},
    {"DeviationOfSymmetricLimits",
     shafts,
     "sym,0",
     "sym,1",
     {"fits/shaft_deviations.csv:5: column 'deviation_um': '1' is not 0, as it is where the limits are "
      "symmetric"}},
};

const std::vector<Fault> rowFaults{
    {"ShaftAmongHoles",
     holes,
     "H,0,6,",
     "h,0,6,",
     {"fits/hole_deviations.csv:2: column 'letter': 'h' is no letter of holes, A to ZC"}},
    {"HoleAmongShafts",
     shafts,
     "h,0,6,",
     "H,0,6,",
     {"fits/shaft_deviations.csv:2: column 'letter': 'H' is no letter of shafts, a to zc"}},
    {"MissingLetter",
     shafts,
     "h,0,6,",
     ",0,6,",
     {"fits/shaft_deviations.csv:2: column 'letter': '' is no letter of shafts, a to zc"}},
    {"UnknownGrade",
     shafts,
     "h,0,6,01,18",
     "h,0,6,1,19",
     {"fits/shaft_deviations.csv:2: column 'grade_max': '19' is no grade: 01, 0 or 1 to 18"}},
    {"MissingGrade",
     shafts,
     "h,0,6,01,18",
     "h,0,6,,18",
     {"fits/shaft_deviations.csv:2: column 'grade_min': '' is no grade: 01, 0 or 1 to 18"}},
    {"GradesInTheWrongOrder",
     shafts,
     "h,0,6,01,18",
     "h,0,6,1,01",
     {"fits/shaft_deviations.csv:2: column 'grade_max': '01' is finer than the grade_min of '1'"}},
    {"ReferenceOfAHoleForAShaft",
     shafts,
     "es,-2\n",
     "ES,-2\n",
     {"fits/shaft_deviations.csv:3: column 'reference': 'ES' is neither es nor ei nor sym"}},
    {"ReferenceOfAShaftForAHole",
     holes,
     "EI,0,0",
     "ei,0,0",
     {"fits/hole_deviations.csv:2: column 'reference': 'ei' is neither ES nor EI nor sym"}},
    {"DeltaThatIsNoFlag",
     holes,
     "ES,-1,1",
     "ES,-1,yes",
     {"fits/hole_deviations.csv:4: column 'plus_delta': 'yes' is neither 0 nor 1"}},
    {"DeltaForAGradeWithoutOne",
     holes,
     "K,3,6,3,8",
     "K,3,6,3,9",
     {"fits/hole_deviations.csv:4: column 'plus_delta': there is a delta for the grades 3 to 8 only"}},
    {"DeltaForAFinerGradeWithoutOne",
     holes,
     "K,3,6,3,8",
     "K,3,6,2,8",
     {"fits/hole_deviations.csv:4: column 'plus_delta': there is a delta for the grades 3 to 8 only"}},
    {"DeltaOfSymmetricLimits",
     holes,
     "ES,-1,1",
     "sym,0,1",
     {"fits/hole_deviations.csv:4: column 'plus_delta': symmetric limits have no delta"}},
    {"TwoRowsForTheSameSizes",
     shafts,
     "g,3,6,",
     "g,2,6,",
     {"fits/shaft_deviations.csv:4: column 'letter': 'g' has the same sizes and grades, in part or all, in "
      "line "
      "3"}},
    {"TwoRowsForTheSameGrade",
     holes,
     "K,3,6,3,8,ES,-1,1\n",
     "K,3,6,3,8,ES,-1,1\nK,3,6,8,18,ES,-1,0\n",
     {"fits/hole_deviations.csv:5: column 'letter': 'K' has the same sizes and grades, in part or all, in "
      "line "
      "4"}},
    {"TwoRowsForTheSameGradeTheCoarserOnesFirst",
     holes,
     "K,3,6,3,8,ES,-1,1\n",
     "K,3,6,8,18,ES,-1,0\nK,3,6,3,8,ES,-1,1\n",
     {"fits/hole_deviations.csv:5: column 'letter': 'K' has the same sizes and grades, in part or all, in "
      "line "
      "4"}},
    {"SeveralFaultsInOneDeviation",
     shafts,
     "g,0,3,01,18,es,-2",
     "i,0,x,20,18,xs,",
     {"fits/shaft_deviations.csv:3: column 'letter': 'i' is no letter of shafts, a to zc",
      "fits/shaft_deviations.csv:3: column 'up_to_mm': 'x' is not a number",
      "fits/shaft_deviations.csv:3: column 'grade_min': '20' is no grade: 01, 0 or 1 to 18",
      "fits/shaft_deviations.csv:3: column 'reference': 'xs' is neither es nor ei nor sym",
      "fits/shaft_deviations.csv:3: column 'deviation_um': the value is missing"}},
    {"OfferedGradesOfNeitherSide",
     offered,
     "hole,K",
     "bore,K",
     {"fits/offered_grades.csv:3: column 'kind': 'bore' is neither hole nor shaft"}},
    {"OfferedLetterOfTheOtherSide",
     offered,
     "hole,K",
     "shaft,K",
     {"fits/offered_grades.csv:3: column 'letter': 'K' is no letter of shafts, a to zc"}},
    {"LetterOfferedTwice",
     offered,
     "hole,K",
     "hole,H",
     {"fits/offered_grades.csv:3: column 'letter': duplicate letter 'H'"}},
    {"OfferedGradeThatIsNone",
     offered,
     "hole,K,3,8",
     "hole,K,3,IT8",
     {"fits/offered_grades.csv:3: column 'grade_max': 'IT8' is no grade: 01, 0 or 1 to 18"}},
};

const std::vector<Fault> tableFaults{
    {"MissingGradeColumn",
     tolerances,
     "IT18",
     "IT19",
     {"fits/it_grades.csv:1: column 'IT18': the column is missing",
      "fits/it_grades.csv:1: column 'IT19': unknown column"}},
    {"MissingDeltaColumn",
     holes,
     ",plus_delta",
     ",delta",
     {"fits/hole_deviations.csv:1: column 'plus_delta': the column is missing",
      "fits/hole_deviations.csv:1: column 'delta': unknown column"}},
    {"TooFewCellsInARange", // the next range is not blamed for the one left out
     tolerances,
     "0,3,0.3,",
     "0,3,",
     {"fits/it_grades.csv:2: has 21 cells, the header has 22 cells"}},
    {"NoOfferedGrades",
     offered,
     "hole,H,5,9\nhole,K,3,8\nshaft,g,5,7\n",
     "",
     {"fits/offered_grades.csv:1: the file lists nothing"}},
};

// A class that a set has must be one of its parameter's side and exist at its size.
const std::vector<Fault> classFaults{
    {"ClassThatDoesNotExistAtTheSize",
     "sets/PlainHole.csv",
     "4.5,H12",
     "4.5,M7",
     {"sets/PlainHole.csv:3: column 'D.tolerance': there is no M7 at 4.5 mm: the tables have no letter M for "
      "holes"}},
    {"ClassOfTheParameterBeyondTheTables",
     "sets/PlainHole.csv",
     "3.4,",
     "6.5,",
     {"sets/PlainHole.csv:2: column 'D [mm]': there is no H13 at 6.5 mm: the tables end at 6 mm"}},
    {"ClassOfTheOtherSide",
     "sets/PlainHole.csv",
     "4.5,H12",
     "4.5,h6",
     {"sets/PlainHole.csv:3: column 'D.tolerance': 'h6' is no class of a hole"}},
};

const std::vector<Fault> sideFaults{
    {"UnknownSide",
     "parameters.csv",
     "1,1,1,shaft",
     "1,1,1,Shaft",
     {"parameters.csv:9: column 'side': 'Shaft' is neither hole nor shaft"}},
    {"SideOfAnAngle",
     "parameters.csv",
     "+1/-1,1,1,0,",
     "+1/-1,1,1,0,hole",
     {"parameters.csv:5: column 'side': only a LENGTH has a side"}},
    {"SideOfAText",
     "parameters.csv",
     "THREAD,STRING,,,0,0,0,",
     "THREAD,STRING,,,0,0,0,shaft",
     {"parameters.csv:3: column 'side': only a LENGTH has a side"}},
    {"DoubleSide",
     "parameters.csv",
     "optional,side",
     "optional,side,side",
     {"parameters.csv:2: has 9 cells, the header has 10 cells",
      "parameters.csv:3: has 9 cells, the header has 10 cells",
      "parameters.csv:4: has 9 cells, the header has 10 cells",
      "parameters.csv:5: has 9 cells, the header has 10 cells",
      "parameters.csv:6: has 9 cells, the header has 10 cells",
      "parameters.csv:7: has 9 cells, the header has 10 cells",
      "parameters.csv:8: has 9 cells, the header has 10 cells",
      "parameters.csv:9: has 9 cells, the header has 10 cells",
      "parameters.csv:1: column 'side': the column stands twice"}},
};

// The small catalogue with limits and fits up to 6 mm.
class FitsFolder : public CatalogueFolder {
  public:
    FitsFolder() {
        fs::create_directory(Path() / "fits");
        Write(tolerances, "over_mm,up_to_mm,IT01,IT0,IT1,IT2,IT3,IT4,IT5,IT6,IT7,IT8,IT9,IT10,IT11,IT12,IT13,"
                          "IT14,IT15,IT16,IT17,IT18\n"
                          "0,3,0.3,0.5,0.8,1.2,2,3,4,6,10,14,25,40,60,100,140,250,400,600,1000,1400\n"
                          "3,6,0.4,0.6,1,1.5,2.5,4,5,8,12,18,30,48,75,120,180,300,480,750,1200,1800\n");
        Write(deltas, "over_mm,up_to_mm,IT3,IT4,IT5,IT6,IT7,IT8\n"
                      "0,3,0,0,0,0,0,0\n"
                      "3,6,1,1.5,1,3,4,6\n");
        Write(shafts, "letter,over_mm,up_to_mm,grade_min,grade_max,reference,deviation_um\n"
                      "h,0,6,01,18,es,0\n"
                      "g,0,3,01,18,es,-2\n"
                      "g,3,6,01,18,es,-4\n"
                      "js,0,6,01,18,sym,0\n"
                      "k,3,6,4,7,ei,1\n");
        Write(holes, "letter,over_mm,up_to_mm,grade_min,grade_max,reference,deviation_um,plus_delta\n"
                     "H,0,6,01,18,EI,0,0\n"
                     "K,0,3,3,18,ES,0,0\n"
                     "K,3,6,3,8,ES,-1,1\n");
        Write(offered, "kind,letter,grade_min,grade_max\n"
                       "hole,H,5,9\n"
                       "hole,K,3,8\n"
                       "shaft,g,5,7\n");
        Write("parameters.csv",
              "type,name,magnitude,unit,tolerance,value_editable,tolerance_editable,optional,side\n"
              "PlainHole,D,LENGTH,mm,H13,1,1,0,hole\n"
              "PlainHole,THREAD,STRING,,,0,0,0,\n"
              "SteppedHole,D,LENGTH,in,,1,1,0,\n"
              "SteppedHole,ALPHA,ANGLE,deg,+1/-1,1,1,0,\n"
              "SteppedHole,COUNT,INTEGER,,,1,0,0,\n"
              "SteppedHole,RATIO,REAL,,,1,0,0,\n"
              "SteppedHole,AVOID,BOOLEAN,,,0,0,0,\n"
              "Groove,B,LENGTH,mm,H9,1,1,1,shaft\n");
    }
};

class BrokenFitsTest : public testing::TestWithParam<Fault> {};

TEST_P(BrokenFitsTest, AWrongTableIsRefusedWithFileLineAndColumn) {
    const FitsFolder folder;
    ASSERT_EQ(folder.Problems(), Lines{});
    folder.Replace(GetParam().file, GetParam().from, GetParam().to);
    EXPECT_EQ(folder.Problems(), GetParam().problems);
}

INSTANTIATE_TEST_SUITE_P(Ranges, BrokenFitsTest, testing::ValuesIn(rangeFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Numbers, BrokenFitsTest, testing::ValuesIn(numberFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Rows, BrokenFitsTest, testing::ValuesIn(rowFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Tables, BrokenFitsTest, testing::ValuesIn(tableFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Classes, BrokenFitsTest, testing::ValuesIn(classFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Sides, BrokenFitsTest, testing::ValuesIn(sideFaults), FaultName);

Parsed<Deviations> Read(const LimitsAndFits& fits, double nominal, const char* text) {
    return fits.DeviationsOf(nominal, ParseToleranceClass(text).value.value());
}

TEST(FitsFolderTest, LimitsAndFitsAreReadFromTheFolder) {
    const FitsFolder folder;
    const LoadResult loaded = folder.Load();
    const LimitsAndFits& fits = loaded.catalogue->Fits();
    EXPECT_FALSE(fits.IsEmpty());
    EXPECT_EQ(Read(fits, 3, "H7").value, (Deviations{0.010, 0}));
    EXPECT_EQ(Read(fits, 6, "g6").value, (Deviations{-0.004, -0.012}));
    EXPECT_EQ(Read(fits, 6, "K7").value, (Deviations{0.003, -0.009}));
    EXPECT_EQ(Read(fits, 6, "k6").value, (Deviations{0.009, 0.001}));
    EXPECT_EQ(Read(fits, 6, "js01").value, (Deviations{0.0002, -0.0002}));
    EXPECT_EQ(Read(fits, 6.5, "H7").error, "there is no H7 at 6.5 mm: the tables end at 6 mm");
    EXPECT_EQ(fits.OfferedLetters(5, FitSide::Hole), (std::vector<std::string>{"H", "K"}));
    EXPECT_EQ(fits.OfferedLetters(5, FitSide::Shaft), std::vector<std::string>{"g"});
}

TEST(FitsFolderTest, LinesMayStandInAnyOrderWhereTheyHaveNone) {
    const FitsFolder folder;
    folder.Write(shafts, "deviation_um,letter,over_mm,up_to_mm,grade_min,grade_max,reference\n"
                         "-4,g,3,6,01,18,es\n"
                         "0,h,0,6,01,18,es\n"
                         "-2,g,0,3,01,18,es\n");
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_EQ(Read(folder.Load().catalogue->Fits(), 2, "g6").value, (Deviations{-0.002, -0.008}));
}

TEST(FitsFolderTest, ACatalogueWithoutTheFolderHasNoLimitsAndFits) {
    const CatalogueFolder folder;
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_TRUE(folder.Load().catalogue->Fits().IsEmpty());
}

TEST(FitsFolderTest, EachMissingTableIsNamed) {
    const FitsFolder folder;
    folder.Remove("fits");
    fs::create_directory(folder.Path() / "fits");
    EXPECT_EQ(folder.Problems(),
              Lines({"fits/it_grades.csv: the file does not exist", "fits/delta.csv: the file does not exist",
                     "fits/shaft_deviations.csv: the file does not exist",
                     "fits/hole_deviations.csv: the file does not exist",
                     "fits/offered_grades.csv: the file does not exist"}));
}

TEST(FitsFolderTest, ATableThatIsNoneOfTheFiveIsNamed) {
    const FitsFolder folder;
    folder.Write("fits/thread_deviations.csv", "letter\n");
    folder.Write("fits/notes.txt", "nobody reads this");
    EXPECT_EQ(folder.Problems(),
              Lines({"fits/thread_deviations.csv: is none of the tables of limits and fits"}));
}

TEST(FitsFolderTest, AFileInPlaceOfTheFolderIsNamed) {
    const FitsFolder folder;
    folder.Remove("fits");
    folder.Write("fits", "H7");
    EXPECT_EQ(folder.Problems(), Lines({"fits: is not a folder"}));
}

TEST(FitsFolderTest, TheSideOfAParameterIsThatOfItsLine) {
    const FitsFolder folder;
    const LoadResult loaded = folder.Load();
    EXPECT_EQ(loaded.catalogue->Type("Groove")->FindParameter("B")->side, FitSide::Shaft);
    EXPECT_EQ(loaded.catalogue->Type("PlainHole")->FindParameter("D")->side, FitSide::Hole);
    EXPECT_EQ(loaded.catalogue->Type("SteppedHole")->FindParameter("D")->side, FitSide::Hole);
}

TEST(FitsFolderTest, WithoutTheColumnEveryParameterIsOfAHole) {
    const CatalogueFolder folder;
    const LoadResult loaded = folder.Load();
    EXPECT_EQ(loaded.catalogue->Type("Groove")->FindParameter("B")->side, FitSide::Hole);
}

} // namespace
