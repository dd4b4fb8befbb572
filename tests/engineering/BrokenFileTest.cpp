// Files and folders that are missing, unreadable or no text; and the liberties a file may take.

#include "CatalogueFolder.h"

namespace {

namespace fs = std::filesystem;
using engineering::CatalogueLoader;
using engineering::Problem;

class BrokenFileTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(folder.Problems(), Lines{}); }

    const CatalogueFolder folder;
};

TEST_F(BrokenFileTest, AMissingFolderIsNamed) {
    const fs::path missing = folder.Path() / "nowhere";
    const engineering::LoadResult result = CatalogueLoader::Load(missing);
    EXPECT_FALSE(result.catalogue);
    EXPECT_EQ(result.problems,
              std::vector<Problem>({{missing.generic_string(), 0, "", "the folder does not exist"}}));
}

TEST_F(BrokenFileTest, AnEmptyPathIsAMissingFolder) {
    EXPECT_EQ(CatalogueLoader::Load({}).problems,
              std::vector<Problem>({{"", 0, "", "the folder does not exist"}}));
}

TEST_F(BrokenFileTest, AFileInPlaceOfTheFolderIsNamed) {
    const fs::path file = folder.Path() / "groups.csv";
    EXPECT_EQ(CatalogueLoader::Load(file).problems,
              std::vector<Problem>({{file.generic_string(), 0, "", "is not a folder"}}));
}

TEST_F(BrokenFileTest, AFolderThatCannotBeReachedIsNamed) {
    const fs::path circle = folder.Path() / "circle";
    fs::create_symlink(circle, circle);
    EXPECT_EQ(CatalogueLoader::Load(circle).problems,
              std::vector<Problem>(
                  {{circle.generic_string(), 0, "", "cannot be read: Too many levels of symbolic links"}}));
}

TEST_F(BrokenFileTest, AnEmptyFolderLacksEveryFile) {
    for (const char* file : {"groups.csv", "types.csv", "parameters.csv", "sets"}) {
        folder.Remove(file);
    }
    EXPECT_EQ(folder.Problems(),
              Lines({"groups.csv: the file does not exist", "types.csv: the file does not exist",
                     "parameters.csv: the file does not exist", "sets: the folder does not exist"}));
}

TEST_F(BrokenFileTest, AMissingFileOfSetsIsNamedWhereItsTypeIs) {
    folder.Remove("sets/Groove.csv");
    EXPECT_EQ(folder.Problems(),
              Lines({"types.csv:4: column 'sets': the file 'sets/Groove.csv' does not exist"}));
}

TEST_F(BrokenFileTest, SetsOfAnUnknownTypeAreNamedButOtherFilesAreNot) {
    folder.Write("sets/Notes.txt", "not a table");
    EXPECT_EQ(folder.Problems(), Lines{});
    Lines expected;
    for (const std::string name : {"Bolt", "Cam", "Disc", "Gear", "Nut", "Seal", "Spring", "Washer"}) {
        folder.Write("sets/" + name + ".csv", "set\n");
        expected.push_back("sets/" + name +
                           ".csv: holds sets of an unknown type: no line of types.csv names it");
    }
    EXPECT_EQ(folder.Problems(), expected);
}

TEST_F(BrokenFileTest, AFolderInPlaceOfAFileIsNamed) {
    folder.Remove("parameters.csv");
    fs::create_directory(folder.Path() / "parameters.csv");
    folder.Remove("sets/Groove.csv");
    fs::create_directory(folder.Path() / "sets/Groove.csv");
    EXPECT_EQ(folder.Problems(),
              Lines({"parameters.csv: is a folder, not a file", "sets/Groove.csv: is a folder, not a file"}));
}

TEST_F(BrokenFileTest, AFileThatCannotBeReachedIsNamed) {
    folder.Remove("groups.csv");
    fs::create_symlink("groups.csv", folder.Path() / "groups.csv");
    EXPECT_EQ(folder.Problems(), Lines({"groups.csv: cannot be read: Too many levels of symbolic links"}));
}

TEST_F(BrokenFileTest, AFileWithoutPermissionIsNamed) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser reads every file";
    }
    fs::permissions(folder.Path() / "groups.csv", fs::perms::none);
    EXPECT_EQ(folder.Problems(), Lines({"groups.csv: cannot be read"}));
}

TEST_F(BrokenFileTest, ADeviceInPlaceOfAFileIsNamed) {
    folder.Remove("groups.csv");
    fs::create_symlink("/dev/zero", folder.Path() / "groups.csv");
    EXPECT_EQ(folder.Problems(), Lines({"groups.csv: is not a regular file"}));
}

TEST_F(BrokenFileTest, AFileBeyondTheLimitIsRefusedUnread) {
    fs::resize_file(folder.Path() / "groups.csv", 64U * 1024 * 1024 + 1);
    EXPECT_EQ(folder.Problems(), Lines({"groups.csv: is larger than 64 MiB"}));
}

TEST_F(BrokenFileTest, AnEmptyFileLacksItsHeader) {
    folder.Write("sets/Groove.csv", "");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:1: the header line is missing"}));
    folder.Write("sets/Groove.csv", "\r\n \n\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:1: the header line is missing"}));
}

TEST_F(BrokenFileTest, EveryLineThatIsNotUtf8IsNamed) {
    const std::string latin1 = "\xFC";
    const std::string overlong = "\xC0\xAF";
    const std::string surrogate = "\xED\xA0\x80";
    folder.Write("sets/Groove.csv", "set,B [mm]\nN" + latin1 + "t,1\nok,2\n" + overlong + ",3\n" + surrogate +
                                        ",4\ncut\xE6\x97,5");
    EXPECT_EQ(folder.Problems(),
              Lines({"sets/Groove.csv:2: is not UTF-8 text", "sets/Groove.csv:4: is not UTF-8 text",
                     "sets/Groove.csv:5: is not UTF-8 text", "sets/Groove.csv:6: is not UTF-8 text"}));
    folder.Write("sets/Groove.csv", "set,B [mm]\nN\xC3\xBCt,1\n\xE6\xBA\x9D,2\n");
    EXPECT_EQ(folder.Problems(), Lines{});
}

TEST_F(BrokenFileTest, AZeroByteIsNamed) {
    folder.Write("sets/Groove.csv", std::string("set,B [mm]\nGroo\0ve,1\n", 21));
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:2: has a zero byte"}));
}

TEST_F(BrokenFileTest, AStrayQuotationMarkIsNamedWithItsLine) {
    folder.Write("sets/Groove.csv", "set,B [mm]\nGroove 1,1\nGroove \"2,2\nGroove 3,3\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:3: the quotation marks do not match"}));
}

TEST_F(BrokenFileTest, AQuotationThatNeverEndsIsNamedWhereItsLineStarts) {
    folder.Write("sets/Groove.csv", "set,B [mm]\nGroove 1,1\n\"Groove 2,2\nGroove 3,3\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:3: the quotation marks do not match"}));
}

TEST_F(BrokenFileTest, LinesAreCountedThroughBlankLinesAndQuotedLineBreaks) {
    folder.Write("sets/Groove.csv", "set,B [mm]\n\n\"Groove\none\",1\n\"Groove\n\ntwo\",x\n\nGroove 3,y\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:5: column 'B [mm]': 'x' is not a number",
                                        "sets/Groove.csv:9: column 'B [mm]': 'y' is not a number"}));
}

TEST_F(BrokenFileTest, ByteOrderMarkAndCarriageReturnsChangeNothing) {
    for (const char* file : {"groups.csv", "types.csv", "parameters.csv", "inputs.csv", "sets/Groove.csv"}) {
        std::string windows = "\xEF\xBB\xBF";
        for (const char c : folder.Text(file)) {
            windows += c == '\n' ? std::string("\r\n") : std::string(1, c);
        }
        folder.Write(file, windows);
    }
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_EQ(folder.Load().catalogue->Groups(), Lines({"Holes", "Grooves"}));
    folder.Replace("sets/Groove.csv", "\r\nGroove 2,,", "\r\nGroove 2,x,");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:3: column 'B [mm]': 'x' is not a number"}));
}

TEST_F(BrokenFileTest, ALastLineWithoutLineEndCounts) {
    folder.Write("sets/Groove.csv", "set,B [mm]\nGroove 1,1\nGroove 2,2");
    ASSERT_EQ(folder.Problems(), Lines{});
    EXPECT_EQ(folder.Load().catalogue->SetsOf("Groove")->size(), 2U);
}

TEST_F(BrokenFileTest, AllProblemsOfAllFilesComeBackTogether) {
    folder.Replace("groups.csv", "Grooves\n", "Grooves\nHoles\n");
    folder.Replace("types.csv", "SteppedHole,Holes", "SteppedHole,Hols");
    folder.Replace("parameters.csv", "STRING", "TEXT");
    folder.Replace("sets/PlainHole.csv", "4.5", "wide");
    folder.Replace("sets/SteppedHole.csv", "82.5", "");
    EXPECT_EQ(folder.Problems(),
              Lines({"groups.csv:4: column 'key': duplicate key 'Holes'",
                     "types.csv:3: column 'group': unknown group 'Hols'",
                     "parameters.csv:3: column 'magnitude': unknown magnitude 'TEXT'",
                     "sets/PlainHole.csv:3: column 'D [mm]': 'wide' is not a number",
                     "sets/SteppedHole.csv:3: column 'ALPHA [deg]': the value is missing"}));
}

TEST_F(BrokenFileTest, AHundredThousandSetsAreLoadedAndTheirLastLineIsChecked) {
    constexpr int count = 100000;
    std::string text = "set,B [mm]\n";
    for (int i = 1; i <= count; ++i) {
        text += "Groove " + std::to_string(i) + "," + std::to_string(i) + "\n";
    }
    folder.Write("sets/Groove.csv", text);
    const engineering::LoadResult result = folder.Load();
    ASSERT_TRUE(result.catalogue);
    EXPECT_EQ(result.catalogue->SetsOf("Groove")->size(), 100000U);
    EXPECT_NE(result.catalogue->FindSet("Groove", "Groove 100000"), nullptr);

    folder.Write("sets/Groove.csv", text + "Groove 1,1\n");
    EXPECT_EQ(folder.Problems(),
              Lines({"sets/Groove.csv:100002: column 'set': duplicate set name 'Groove 1'"}));
}

TEST_F(BrokenFileTest, ALongCellIsQuotedShortAndOnOneLine) {
    folder.Write("sets/Groove.csv", "set,B [mm]\nGroove 1,\"a\nb" + std::string(100, 'c') + "\"\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:2: column 'B [mm]': 'a b" + std::string(57, 'c') +
                                        "...' is not a number"}));
    // 60 bytes would end within the last character shown.
    std::string umlauts = "x";
    for (int i = 0; i < 60; ++i) {
        umlauts += "\xC3\xBC";
    }
    folder.Write("sets/Groove.csv", "set,B [mm]\nGroove 1," + umlauts + "\n");
    EXPECT_EQ(folder.Problems(), Lines({"sets/Groove.csv:2: column 'B [mm]': '" + umlauts.substr(0, 59) +
                                        "...' is not a number"}));
}

} // namespace
