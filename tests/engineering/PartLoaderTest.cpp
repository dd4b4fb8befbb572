// A part is read from a table of its elements, or refused with every problem of the table.

#include "engineering/PartLoader.h"

#include "CatalogueFolder.h"

namespace {

using namespace engineering;

const std::string header = "name,kind,x,y,z,dx,dy,dz\n";
const std::string sound = header + "Corner,point,1,2,-3.5,,,\n"
                                   "Axis,line,0,0,0,0,0,2\n"
                                   "Slope,plane,4,5,6,3,0,4\n";

class PartLoaderTest : public testing::Test {
  protected:
    PartResult Load(const std::string& text) const {
        folder.Write("plate.csv", text);
        return LoadPart(folder.Path() / "plate.csv");
    }

    // The problems of a table, one line each, without the folder before the file.
    Lines ProblemsOf(const std::string& text) const { return LinesOf(Load(text)); }

    Lines LinesOf(const PartResult& result) const {
        EXPECT_EQ(result.part.has_value(), result.problems.empty());
        const std::string prefix = folder.Path().generic_string() + "/";
        Lines lines;
        for (const Problem& problem : result.problems) {
            const std::string line = ToText(problem);
            lines.push_back(line.starts_with(prefix) ? line.substr(prefix.size()) : line);
        }
        return lines;
    }

    // The problems of a table with one more line below the header.
    Lines ProblemsOfLine(const std::string& line) const { return ProblemsOf(header + line + "\n"); }

    const CatalogueFolder folder;
};

TEST_F(PartLoaderTest, ElementsComeInTheOrderOfTheFileWithTheirGeometry) {
    const PartResult loaded = Load(sound);
    ASSERT_TRUE(loaded.part);
    const std::vector<Element>& elements = loaded.part->Elements();
    ASSERT_EQ(elements.size(), 3U);
    EXPECT_EQ(elements[0].name, "Corner");
    EXPECT_EQ(elements[0].kind, ElementKind::Point);
    EXPECT_EQ(elements[0].point, (Vector{1, 2, -3.5}));
    EXPECT_EQ(elements[0].direction, Vector{});
    EXPECT_EQ(elements[1].name, "Axis");
    EXPECT_EQ(elements[1].kind, ElementKind::Line);
    EXPECT_EQ(elements[1].direction, (Vector{0, 0, 1}));
    EXPECT_EQ(elements[2].name, "Slope");
    EXPECT_EQ(elements[2].kind, ElementKind::Plane);
    EXPECT_EQ(elements[2].point, (Vector{4, 5, 6}));
    EXPECT_EQ(elements[2].direction, (Vector{0.6, 0, 0.8}));
}

TEST_F(PartLoaderTest, ThePartIsNamedAfterItsFile) {
    EXPECT_EQ(Load(sound).part.value().Name(), "plate");
}

TEST_F(PartLoaderTest, AnElementIsFoundByItsExactName) {
    const PartResult loaded = Load(sound);
    ASSERT_TRUE(loaded.part);
    EXPECT_EQ(loaded.part->Find("Axis"), &loaded.part->Elements()[1]);
    EXPECT_EQ(loaded.part->Find("axis"), nullptr);
    EXPECT_EQ(loaded.part->Find("Axi"), nullptr);
    EXPECT_EQ(loaded.part->Find(""), nullptr);
}

TEST_F(PartLoaderTest, ACopyFindsItsOwnElements) {
    Part copy("", {});
    {
        const PartResult loaded = Load(sound);
        ASSERT_TRUE(loaded.part);
        copy = *loaded.part;
    }
    EXPECT_EQ(copy.Find("Slope"), &copy.Elements()[2]);
}

TEST_F(PartLoaderTest, ColumnsMayStandInAnyOrder) {
    const PartResult loaded = Load("dz,dy,dx,z,y,x,kind,name\n0,-1,0,3,2,1,line,Edge\n");
    ASSERT_TRUE(loaded.part);
    EXPECT_EQ(loaded.part->Find("Edge")->point, (Vector{1, 2, 3}));
    EXPECT_EQ(loaded.part->Find("Edge")->direction, (Vector{0, -1, 0}));
}

TEST_F(PartLoaderTest, VeryLongAndVeryShortDirectionsBecomeUnitVectors) {
    const PartResult loaded =
        Load(header + "Long,line,0,0,0,3e300,0,-4e300\nLongest,line,0,0,0,1.7e308,1.7e308,1.7e308\n"
                      "Short,line,0,0,0,0,5e-324,0\n");
    ASSERT_TRUE(loaded.part);
    EXPECT_EQ(loaded.part->Find("Long")->direction, (Vector{0.6, 0, -0.8}));
    EXPECT_NEAR(loaded.part->Find("Longest")->direction.x, 0.57735026918962576, 1e-15);
    EXPECT_EQ(loaded.part->Find("Short")->direction, (Vector{0, 1, 0}));
}

TEST_F(PartLoaderTest, ByteOrderMarkAndCarriageReturnsChangeNothing) {
    std::string windows = "\xEF\xBB\xBF";
    for (const char c : sound) {
        windows += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    ASSERT_EQ(ProblemsOf(windows), Lines{});
    EXPECT_NE(Load(windows).part->Find("Slope"), nullptr);
    EXPECT_EQ(ProblemsOf(windows + "Slope,point,0,0,0,,,\r\n"),
              Lines({"plate.csv:5: column 'name': duplicate name 'Slope'"}));
}

TEST_F(PartLoaderTest, EveryProblemOfEveryLineIsNamedAfterTheLinesThatAreNoRows) {
    EXPECT_EQ(
        ProblemsOf(header + "A,circle,0,0,wide,,,\n"
                            ",point,0,0,0,,,\n"
                            "B,line,0,,0,0,x,0\n"
                            "C,point,0,0\n"
                            "A,plane,1e999,0,0,0,0,0\n"),
        Lines({"plate.csv:5: has 4 cells, the header has 8 cells",
               "plate.csv:2: column 'kind': unknown kind 'circle'",
               "plate.csv:2: column 'z': 'wide' is not a number", "plate.csv:3: column 'name': is empty",
               "plate.csv:4: column 'y': '' is not a number", "plate.csv:4: column 'dy': 'x' is not a number",
               "plate.csv:6: column 'name': duplicate name 'A'",
               "plate.csv:6: column 'x': '1e999' is out of range",
               "plate.csv:6: column 'dx': the direction is zero"}));
}

TEST_F(PartLoaderTest, AKindIsWrittenExactly) {
    EXPECT_EQ(ProblemsOfLine("A,point,0,0,0,,,"), Lines{});
    EXPECT_EQ(ProblemsOfLine("A,Point,0,0,0,,,"),
              Lines({"plate.csv:2: column 'kind': unknown kind 'Point'"}));
    EXPECT_EQ(ProblemsOfLine("A,,0,0,0,,,"), Lines({"plate.csv:2: column 'kind': unknown kind ''"}));
}

TEST_F(PartLoaderTest, ANumberIsFinite) {
    EXPECT_EQ(ProblemsOfLine("A,point,inf,nan,0,,,"),
              Lines({"plate.csv:2: column 'x': 'inf' is not a finite number",
                     "plate.csv:2: column 'y': 'nan' is not a finite number"}));
    EXPECT_EQ(ProblemsOfLine("A,line,0,0,0,0,0,-inf"),
              Lines({"plate.csv:2: column 'dz': '-inf' is not a finite number"}));
}

TEST_F(PartLoaderTest, ALineAndAPlaneNeedADirectionAndAPointHasNone) {
    EXPECT_EQ(ProblemsOfLine("A,line,0,0,0,0,-0.0,0"),
              Lines({"plate.csv:2: column 'dx': the direction is zero"}));
    EXPECT_EQ(ProblemsOfLine("A,plane,0,0,0,,,1"), Lines({"plate.csv:2: column 'dx': '' is not a number",
                                                          "plate.csv:2: column 'dy': '' is not a number"}));
    EXPECT_EQ(ProblemsOfLine("A,point,0,0,0,0,,1"),
              Lines({"plate.csv:2: column 'dx': a point has no direction",
                     "plate.csv:2: column 'dz': a point has no direction"}));
}

TEST_F(PartLoaderTest, ANameHasAtMostHundredCharactersOfAnyLength) {
    std::string hundred;
    for (int i = 0; i < 100; ++i) {
        hundred += "\xF0\x9F\x94\xA9";
    }
    EXPECT_EQ(ProblemsOfLine(hundred + ",point,0,0,0,,,"), Lines{});
    EXPECT_EQ(ProblemsOfLine(std::string(101, 'n') + ",point,0,0,0,,,"),
              Lines({"plate.csv:2: column 'name': '" + std::string(60, 'n') +
                     "...' has more than 100 characters"}));
}

TEST_F(PartLoaderTest, ANameHasNoCharacterThatIsNotSeen) {
    for (const std::string control :
         {"\t", "\n", "\x7F", "\x1B", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xAE"}) {
        EXPECT_EQ(ProblemsOfLine("\"A" + control + "B\",point,0,0,0,,,"),
                  Lines({"plate.csv:2: column 'name': has a control character"}));
    }
    EXPECT_EQ(ProblemsOfLine("A B \xC3\xA9\xE9\x9D\xA2,point,0,0,0,,,"), Lines{});
}

TEST_F(PartLoaderTest, ANameHasNoBlankAtEitherEnd) {
    EXPECT_EQ(ProblemsOfLine("\"A \",point,0,0,0,,,"),
              Lines({"plate.csv:2: column 'name': 'A ' begins or ends with a blank"}));
    EXPECT_EQ(ProblemsOfLine("\xC2\xA0"
                             "A,point,0,0,0,,,"),
              Lines({"plate.csv:2: column 'name': '\xC2\xA0"
                     "A' begins or ends with a blank"}));
    EXPECT_EQ(ProblemsOfLine("  A , point ,0,0,0,,,"), Lines{}) << "blanks around a cell are not of the name";
}

TEST_F(PartLoaderTest, MissingAndUnknownColumnsAreNamed) {
    EXPECT_EQ(ProblemsOf("name,kind,x,y,h\nA,point,0,0,0\n"),
              Lines({"plate.csv:1: column 'z': the column is missing",
                     "plate.csv:1: column 'dx': the column is missing",
                     "plate.csv:1: column 'dy': the column is missing",
                     "plate.csv:1: column 'dz': the column is missing",
                     "plate.csv:1: column 'h': unknown column"}));
}

TEST_F(PartLoaderTest, ATableWithoutElementsIsNoPart) {
    EXPECT_EQ(ProblemsOf(header), Lines({"plate.csv:1: the file lists no elements"}));
    EXPECT_EQ(ProblemsOf(""), Lines({"plate.csv:1: the header line is missing"}));
}

TEST_F(PartLoaderTest, AFileThatIsNoTextIsNamed) {
    EXPECT_EQ(ProblemsOfLine("N\xFCt,point,0,0,0,,,"), Lines({"plate.csv:2: is not UTF-8 text"}));
    EXPECT_EQ(ProblemsOfLine("\"A,point,0,0,0,,,"), Lines({"plate.csv:2: the quotation marks do not match"}));
}

TEST_F(PartLoaderTest, AFileThatCannotBeReadIsNamed) {
    EXPECT_EQ(LinesOf(LoadPart(folder.Path() / "none.csv")), Lines({"none.csv: the file does not exist"}));
    EXPECT_EQ(LinesOf(LoadPart(folder.Path() / "sets")), Lines({"sets: is a folder, not a file"}));
    EXPECT_EQ(LinesOf(LoadPart({})), Lines({": the file does not exist"}));
}

} // namespace
