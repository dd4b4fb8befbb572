// Wrong thread standards and wrong threads.

#include "Fault.h"

namespace {

namespace fs = std::filesystem;

const char* const standards = "threads.csv";
const char* const coarse = "threads/coarse.csv";
const char* const inch = "threads/inch.csv";

const std::vector<Fault> standardFaults{
    {"StandardWithoutName", standards, "Inch,", ",", {"threads.csv:3: column 'name': is empty"}},
    {"DuplicateStandard",
     standards,
     "Inch",
     "Metric coarse",
     {"threads.csv:3: column 'name': duplicate name 'Metric coarse'"}},
    {"StandardWithoutFileName", standards, "inch.csv", "", {"threads.csv:3: column 'file': is empty"}},
    {"ThreadsOutsideTheFolder",
     standards,
     "inch.csv",
     "../inch.csv",
     {"threads.csv:3: column 'file': '../inch.csv' is not the name of a .csv file in the folder threads"}},
    {"ThreadsThatAreNoCsv",
     standards,
     "inch.csv",
     "inch.txt",
     {"threads.csv:3: column 'file': 'inch.txt' is not the name of a .csv file in the folder threads"}},
    {"MisspeltThreadsFile",
     standards,
     "inch.csv",
     "inches.csv",
     {"threads.csv:3: column 'file': the file 'threads/inches.csv' does not exist",
      "threads/inch.csv: holds threads of an unknown standard: no line of threads.csv names it"}},
    {"ThreadsOfAnotherStandard",
     standards,
     "inch.csv",
     "coarse.csv",
     {"threads.csv:3: column 'file': 'coarse.csv' already holds the threads of another standard",
      "threads/inch.csv: holds threads of an unknown standard: no line of threads.csv names it"}},
    {"StandardThatIsNotNamed",
     standards,
     "Inch,Table 9,inch.csv\n",
     "",
     {"threads/inch.csv: holds threads of an unknown standard: no line of threads.csv names it"}},
    {"MisspeltStandardColumn",
     standards,
     "name,",
     "Name,",
     {"threads.csv:1: column 'name': the column is missing", "threads.csv:1: column 'Name': unknown column"}},
    {"TooManyCellsInStandards",
     standards,
     "inch.csv",
     "inch.csv,1",
     {"threads.csv:3: has 4 cells, the header has 3 cells"}},
};

const std::vector<Fault> threadFaults{
    {"ThreadWithoutDesignation",
     coarse,
     "M3,",
     ",",
     {"threads/coarse.csv:2: column 'designation': is empty"}},
    {"DuplicateThread",
     coarse,
     "M4",
     "M3",
     {"threads/coarse.csv:3: column 'designation': duplicate designation 'M3'"}},
    {"ThreadSpeltLikeOneOfAnotherStandard",
     inch,
     "1/4-20 UNC",
     "m 3.0",
     {"threads/inch.csv:2: column 'designation': 'm 3.0' reads like 'M3'"}},
    {"DiameterThatIsNoNumber",
     coarse,
     "M3,3",
     "M3,three",
     {"threads/coarse.csv:2: column 'major_diameter_mm': 'three' is not a number"}},
    {"DiameterWithAComma",
     coarse,
     "2.675",
     "\"2,675\"",
     {"threads/coarse.csv:2: column 'pitch_diameter_mm': '2,675' has ',675' after the number"}},
    {"InfiniteDiameter",
     coarse,
     "M3,3",
     "M3,inf",
     {"threads/coarse.csv:2: column 'major_diameter_mm': 'inf' is not a finite number"}},
    {"PitchThatIsNotANumberAtAll",
     coarse,
     "0.5",
     "nan",
     {"threads/coarse.csv:2: column 'pitch_mm': 'nan' is not a finite number"}},
    {"NegativePitch",
     coarse,
     "0.5",
     "-0.5",
     {"threads/coarse.csv:2: column 'pitch_mm': '-0.5' is not above zero"}},
    {"ZeroPitch", coarse, "0.5", "0", {"threads/coarse.csv:2: column 'pitch_mm': '0' is not above zero"}},
    {"MissingMinorDiameter",
     coarse,
     "2.459",
     "",
     {"threads/coarse.csv:2: column 'minor_diameter_mm': the value is missing"}},
    {"MinorDiameterOfTheMajorOne",
     coarse,
     "2.459",
     "3",
     {"threads/coarse.csv:2: column 'minor_diameter_mm': '3' is not below the pitch_diameter_mm of '2.675'"}},
    {"PitchDiameterAboveTheMajorOne",
     coarse,
     "2.675",
     "3.1",
     {"threads/coarse.csv:2: column 'pitch_diameter_mm': '3.1' is not below the major_diameter_mm of '3'"}},
    {"TapDrillOfTheMajorDiameter",
     coarse,
     "2.5\n",
     "3\n",
     {"threads/coarse.csv:2: column 'tap_drill_mm': '3' is not below the major_diameter_mm of '3'"}},
    {"NegativeTapDrill",
     coarse,
     "2.5\n",
     "-2.5\n",
     {"threads/coarse.csv:2: column 'tap_drill_mm': '-2.5' is not above zero"}},
    {"ThreadsPerInchThatAreNoNumber",
     inch,
     ",20,",
     ",many,",
     {"threads/inch.csv:2: column 'tpi': 'many' is not a number"}},
    {"DiameterInInchesThatIsNoNumber",
     inch,
     "0.2500",
     "1/4",
     {"threads/inch.csv:2: column 'major_diameter_in': '1/4' has '/4' after the number"}},
    {"MinorDiameterInInchesOfZero",
     inch,
     "0.1959",
     "0",
     {"threads/inch.csv:2: column 'minor_diameter_in': '0' is not above zero"}},
    {"SeveralFaultsInOneThread",
     coarse,
     "3,0.5,2.675",
     "x,-1,",
     {"threads/coarse.csv:2: column 'major_diameter_mm': 'x' is not a number",
      "threads/coarse.csv:2: column 'pitch_mm': '-1' is not above zero",
      "threads/coarse.csv:2: column 'pitch_diameter_mm': the value is missing"}},
    {"NoThreads",
     inch,
     "1/4-20 UNC,6.35,1.27,5.525,4.975,5.1,20,0.2500,0.1959\n",
     "",
     {"threads/inch.csv:1: the file lists no threads"}},
    {"MissingThreadColumn",
     coarse,
     "pitch_mm",
     "tpi",
     {"threads/coarse.csv:1: column 'pitch_mm': the column is missing"}},
    {"DoubleOptionalThreadColumn",
     inch,
     "minor_diameter_in",
     "major_diameter_in",
     {"threads/inch.csv:1: column 'major_diameter_in': the column stands twice"}},
    {"UnknownThreadColumn", inch, "tpi", "TPI", {"threads/inch.csv:1: column 'TPI': unknown column"}},
    {"TooFewCellsInThreads",
     coarse,
     "3.242,",
     "3.242",
     {"threads/coarse.csv:3: has 5 cells, the header has 6 cells"}},
};

TEST(BrokenThreadsTest, AMissingFolderOfThreadsIsNamedOnceForEachStandard) {
    const CatalogueFolder folder;
    folder.Remove("threads");
    EXPECT_EQ(folder.Problems(),
              Lines({"threads.csv:2: column 'file': the file 'threads/coarse.csv' does not exist",
                     "threads.csv:3: column 'file': the file 'threads/inch.csv' does not exist"}));
}

TEST(BrokenThreadsTest, AFolderInPlaceOfAThreadFileIsNamed) {
    const CatalogueFolder folder;
    folder.Remove("threads/inch.csv");
    fs::create_directory(folder.Path() / "threads/inch.csv");
    EXPECT_EQ(folder.Problems(), Lines({"threads/inch.csv: is a folder, not a file"}));
    folder.Remove("threads.csv");
    fs::create_directory(folder.Path() / "threads.csv");
    EXPECT_EQ(folder.Problems(), Lines({"threads.csv: is a folder, not a file"}));
}

TEST(BrokenThreadsTest, ACatalogueWithoutThreadsCsvHasNoThreads) {
    const CatalogueFolder folder;
    ASSERT_FALSE(folder.Load().catalogue->Threads().Standards().empty());
    folder.Remove("threads.csv");
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_TRUE(folder.Load().catalogue->Threads().Standards().empty());
}

TEST(BrokenThreadsTest, ATableOfStandardsMayBeEmpty) {
    const CatalogueFolder folder;
    folder.Write("threads.csv", "name,standard,file\n");
    folder.Remove("threads");
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_TRUE(folder.Load().catalogue->Threads().Standards().empty());
}

INSTANTIATE_TEST_SUITE_P(Standards, BrokenCatalogueTest, testing::ValuesIn(standardFaults), FaultName);
INSTANTIATE_TEST_SUITE_P(Threads, BrokenCatalogueTest, testing::ValuesIn(threadFaults), FaultName);

} // namespace
