// Every cell of the shipped tables of limits and fits is answered as it is tabulated, well-known classes have
// their published deviations, and what the catalogue states exists.

#include "ShippedCatalogue.h"
#include "ShippedTable.h"
#include "engineering/LimitsAndFits.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <set>

namespace {

using namespace engineering;

constexpr double infinity = std::numeric_limits<double>::infinity();

// Tenths of a micrometre, as the text has them: "0.3" is 3, "-14" is -140.
long Tenths(const std::string& text) {
    const std::size_t point = text.find('.');
    const long whole = std::strtol(text.c_str(), nullptr, 10) * 10;
    const long tenth =
        point == std::string::npos ? 0 : std::strtol(text.substr(point + 1).c_str(), nullptr, 10);
    return text.starts_with('-') ? whole - tenth : whole + tenth;
}

// The double that the decimal text of so many twentieths of a micrometre in mm gives.
double Millimetres(long twentieths) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%s%ld.%05ld", twentieths < 0 ? "-" : "",
                  std::labs(twentieths) * 5 / 100'000, std::labs(twentieths) * 5 % 100'000);
    return std::strtod(text.data(), nullptr);
}

std::vector<std::string> GradeTexts(const std::string& first, const std::string& last) {
    const std::vector<std::string> all{"01", "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",
                                       "9",  "10", "11", "12", "13", "14", "15", "16", "17", "18"};
    const auto begin = std::find(all.begin(), all.end(), first);
    return {begin, std::find(begin, all.end(), last) + 1};
}

// The smallest and largest size and one between of every range that any table has: 25 borders make 26 ranges.
std::vector<double> SampleSizes() {
    std::set<double> borders{0};
    for (const char* file : {"it_grades", "shaft_deviations", "hole_deviations", "delta"}) {
        for (ShippedRow& row : ReadShippedTable("fits/" + std::string(file) + ".csv")) {
            borders.insert(std::stod(row["over_mm"]));
            borders.insert(std::stod(row["up_to_mm"]));
        }
    }
    std::vector<double> sizes;
    for (auto border = borders.begin(); std::next(border) != borders.end(); ++border) {
        const double next = *std::next(border);
        sizes.insert(sizes.end(), {std::nextafter(*border, infinity), (*border + next) / 2, next});
    }
    return sizes;
}

class ShippedFitsTest : public ShippedCatalogue {
  protected:
    static const LimitsAndFits& Fits() { return loaded.catalogue->Fits(); }

    static Parsed<Deviations> Read(double nominal, const std::string& text) {
        return Fits().DeviationsOf(nominal, ParseToleranceClass(text).value.value());
    }

    static void ExpectLimits(double nominal, const std::string& text, const Deviations& expected) {
        const Parsed<Deviations> found = Read(nominal, text);
        ASSERT_TRUE(found.value) << found.error;
        EXPECT_EQ(found.value->upper, expected.upper) << text << " at " << nominal;
        EXPECT_EQ(found.value->lower, expected.lower) << text << " at " << nominal;
    }
};

TEST_F(ShippedFitsTest, TheTablesHaveAllTheirRows) {
    EXPECT_EQ(ReadShippedTable("fits/it_grades.csv").size(), 13U);
    EXPECT_EQ(ReadShippedTable("fits/delta.csv").size(), 13U);
    EXPECT_EQ(ReadShippedTable("fits/shaft_deviations.csv").size(), 475U);
    EXPECT_EQ(ReadShippedTable("fits/hole_deviations.csv").size(), 758U);
    EXPECT_EQ(Fits().CountOfDeviations(), 475U + 758U);
    EXPECT_EQ(ReadShippedTable("fits/offered_grades.csv").size(), 56U);
}

TEST_F(ShippedFitsTest, EveryStandardToleranceIsThatOfItsCell) {
    std::size_t cells = 0;
    for (ShippedRow& row : ReadShippedTable("fits/it_grades.csv")) {
        const double over = std::stod(row["over_mm"]);
        const double upTo = std::stod(row["up_to_mm"]);
        for (const std::string& grade : GradeTexts("01", "18")) {
            const double tolerance = Millimetres(Tenths(row["IT" + grade]) * 2);
            const double half = Millimetres(Tenths(row["IT" + grade]));
            for (const double size : {std::nextafter(over, infinity), (over + upTo) / 2, upTo}) {
                ExpectLimits(size, "H" + grade, {tolerance, 0});
                ExpectLimits(size, "h" + grade, {0, -tolerance});
                ExpectLimits(size, "js" + grade, {half, -half});
                ExpectLimits(size, "JS" + grade, {half, -half});
            }
            ++cells;
        }
    }
    EXPECT_EQ(cells, 260U);
}

struct TabulatedRow {
    explicit TabulatedRow(ShippedRow row)
        : over(std::stod(row["over_mm"])), upTo(std::stod(row["up_to_mm"])), cells(std::move(row)) {}

    bool Holds(double nominal) const { return over < nominal && nominal <= upTo; }

    double over;
    double upTo;
    ShippedRow cells;
};

std::vector<TabulatedRow> ReadRanges(const char* file) {
    std::vector<TabulatedRow> rows;
    for (ShippedRow& row : ReadShippedTable(file)) {
        rows.emplace_back(std::move(row));
    }
    return rows;
}

// Whatever the tables say of a letter, grade and size, computed here from the texts of their cells.
class TabulatedDeviations {
  public:
    TabulatedDeviations() {
        for (const char* file : {"fits/shaft_deviations.csv", "fits/hole_deviations.csv"}) {
            for (const TabulatedRow& row : ReadRanges(file)) {
                for (const std::string& grade :
                     GradeTexts(row.cells.at("grade_min"), row.cells.at("grade_max"))) {
                    _rows[row.cells.at("letter") + grade].push_back(row);
                }
            }
        }
    }

    std::optional<Deviations> Of(const std::string& text, const std::string& grade, double nominal) {
        std::optional<Deviations> found;
        for (const TabulatedRow& row : _rows[text]) {
            if (row.Holds(nominal)) {
                EXPECT_FALSE(found) << "two rows for " << text << " at " << nominal;
                found = From(row.cells, grade, nominal);
            }
        }
        return found;
    }

  private:
    Deviations From(const ShippedRow& row, const std::string& grade, double nominal) const {
        const long tolerance = Cell(_tolerances, grade, nominal) * 2;
        const bool plusDelta = row.contains("plus_delta") && row.at("plus_delta") == "1";
        const long delta = plusDelta ? Cell(_deltas, grade, nominal) * 2 : 0;
        const long deviation = Tenths(row.at("deviation_um")) * 2 + delta;
        const std::string& reference = row.at("reference");
        if (reference == "sym") {
            return {Millimetres(tolerance / 2), Millimetres(-tolerance / 2)};
        }
        const bool isUpper = reference == "es" || reference == "ES";
        return isUpper ? Deviations{Millimetres(deviation), Millimetres(deviation - tolerance)}
                       : Deviations{Millimetres(deviation + tolerance), Millimetres(deviation)};
    }

    static long Cell(const std::vector<TabulatedRow>& table, const std::string& grade, double nominal) {
        const auto row = std::find_if(table.begin(), table.end(),
                                      [=](const TabulatedRow& each) { return each.Holds(nominal); });
        return Tenths(row->cells.at("IT" + grade));
    }

    const std::vector<TabulatedRow> _tolerances = ReadRanges("fits/it_grades.csv");
    const std::vector<TabulatedRow> _deltas = ReadRanges("fits/delta.csv");
    std::map<std::string, std::vector<TabulatedRow>> _rows; ///< by class
};

TEST_F(ShippedFitsTest, EveryClassHasTheDeviationsOfItsRowAtEverySizeAndNoneWithoutARow) {
    TabulatedDeviations tabulated;
    std::size_t answered = 0;
    std::size_t refused = 0;
    for (const double size : SampleSizes()) {
        for (const FitSide side : {FitSide::Hole, FitSide::Shaft}) {
            for (const std::string& letters : LettersOf(side)) {
                for (const std::string& grade : GradeTexts("01", "18")) {
                    const std::string text = letters + grade;
                    const std::optional<Deviations> expected = tabulated.Of(text, grade, size);
                    if (expected) {
                        ++answered;
                        ExpectLimits(size, text, *expected);
                        continue;
                    }
                    ++refused;
                    const std::string error = Read(size, text).error;
                    EXPECT_TRUE(error.starts_with("there is no " + text + " at ")) << error;
                }
            }
        }
    }
    EXPECT_EQ(answered + refused, 26U * 3 * 56 * 20);
    EXPECT_GT(answered, 60'000U);
    EXPECT_GT(refused, 10'000U);
}

TEST_F(ShippedFitsTest, EveryDeltaIsAddedToTheDeviationOfKAsItIsTabulated) {
    std::map<std::string, ShippedRow> rowsOfK;
    for (ShippedRow& row : ReadShippedTable("fits/hole_deviations.csv")) {
        if (row["letter"] == "K" && row["plus_delta"] == "1") {
            rowsOfK[row["up_to_mm"]] = row;
        }
    }
    std::size_t cells = 0;
    for (ShippedRow& row : ReadShippedTable("fits/delta.csv")) {
        for (const std::string& grade : GradeTexts("3", "8")) {
            if (row["up_to_mm"] == "3") {
                EXPECT_EQ(row["IT" + grade], "0");
                continue;
            }
            const long upper =
                Tenths(rowsOfK.at(row["up_to_mm"])["deviation_um"]) + Tenths(row["IT" + grade]);
            EXPECT_EQ(Read(std::stod(row["up_to_mm"]), "K" + grade).value->upper, Millimetres(upper * 2));
            ++cells;
        }
    }
    EXPECT_EQ(cells, 12U * 6);
}

TEST_F(ShippedFitsTest, EveryOfferedGradeIsOfferedWhereItExistsAndNoOtherOne) {
    std::map<std::string, ShippedRow> offered;
    for (ShippedRow& row : ReadShippedTable("fits/offered_grades.csv")) {
        EXPECT_EQ(row["kind"], std::isupper(static_cast<unsigned char>(row["letter"][0])) ? "hole" : "shaft");
        offered[row["letter"]] = row;
    }
    for (const double size : SampleSizes()) {
        for (const FitSide side : {FitSide::Hole, FitSide::Shaft}) {
            Lines letters;
            for (const std::string& letter : LettersOf(side)) {
                Lines expected;
                for (const std::string& grade :
                     GradeTexts(offered.at(letter)["grade_min"], offered.at(letter)["grade_max"])) {
                    if (Read(size, letter + grade).value) {
                        expected.push_back(letter + grade);
                    }
                }
                Lines actual;
                for (const ToleranceClass& each : Fits().OfferedClasses(size, side, letter)) {
                    actual.push_back(ToText(each));
                    EXPECT_EQ(Fits().Nearest(size, each), each) << ToText(each);
                }
                EXPECT_EQ(actual, expected) << letter << " at " << size;
                if (!expected.empty()) {
                    letters.push_back(letter);
                }
            }
            EXPECT_EQ(Fits().OfferedLetters(size, side), letters) << size;
        }
    }
}

struct Published {
    double nominal; ///< mm
    const char* toleranceClass;
    double upper; ///< micrometres
    double lower;
};

TEST_F(ShippedFitsTest, WellKnownClassesHaveTheirPublishedDeviations) {
    const Published table[] = {
        // Holes that begin at zero.
        {25, "H6", 13, 0},
        {25, "H7", 21, 0},
        {25, "H8", 33, 0},
        {25, "H9", 52, 0},
        {25, "H11", 130, 0},
        {3, "H7", 10, 0},
        {10, "H7", 15, 0},
        {50, "H7", 25, 0},
        {100, "H7", 35, 0},
        {120, "H8", 54, 0},
        {180, "H11", 250, 0},
        {500, "H7", 63, 0},
        // Holes with clearance.
        {25, "A11", 430, 300},
        {25, "B11", 290, 160},
        {25, "C11", 240, 110},
        {10, "D10", 98, 40},
        {50, "D9", 142, 80},
        {25, "E9", 92, 40},
        {40, "E9", 112, 50},
        {25, "F7", 41, 20},
        {25, "F8", 53, 20},
        {50, "F7", 50, 25},
        {25, "G7", 28, 7},
        {50, "G7", 34, 9},
        {100, "G6", 34, 12},
        // Transition and interference holes, with the delta up to IT8 or IT7.
        {25, "J6", 8, -5},
        {25, "J7", 12, -9},
        {40, "J7", 14, -11},
        {25, "J8", 20, -13},
        {5, "J6", 5, -3},
        {40, "JS9", 31, -31},
        {50, "JS6", 8, -8},
        {5, "K6", 2, -6},
        {5, "K7", 3, -9},
        {10, "K7", 5, -10},
        {25, "K6", 2, -11},
        {25, "K7", 6, -15},
        {40, "K7", 7, -18},
        {40, "K8", 12, -27},
        {100, "K7", 10, -25},
        {10, "M7", 0, -15},
        {25, "M6", -4, -17},
        {25, "M7", 0, -21},
        {40, "M8", 5, -34},
        {300, "M6", -9, -41},
        {25, "N6", -11, -24},
        {25, "N7", -7, -28},
        {25, "N8", -3, -36},
        {40, "N7", -8, -33},
        {2, "N9", -4, -29},
        {50, "N9", 0, -62},
        {100, "N9", 0, -87},
        {25, "P6", -18, -31},
        {25, "P7", -14, -35},
        {50, "P7", -17, -42},
        {100, "P7", -24, -59},
        {3, "P9", -6, -31},
        {10, "P9", -15, -51},
        {25, "P9", -22, -74},
        {25, "R7", -20, -41},
        {60, "R7", -30, -60},
        {25, "S7", -27, -48},
        {60, "S7", -42, -72},
        {25, "T7", -33, -54},
        {25, "U7", -40, -61},
        // Shafts with clearance.
        {20, "a11", -300, -430},
        {20, "b11", -160, -290},
        {25, "c11", -110, -240},
        {45, "c11", -130, -290},
        {25, "d10", -65, -149},
        {30, "d9", -65, -117},
        {100, "d9", -120, -207},
        {25, "e8", -40, -73},
        {50, "e8", -50, -89},
        {16, "f6", -16, -27},
        {20, "f7", -20, -41},
        {40, "f8", -25, -64},
        {50, "f7", -25, -50},
        {80, "f7", -30, -60},
        {10, "g6", -5, -14},
        {12, "g5", -6, -14},
        {25, "g6", -7, -20},
        {50, "g6", -9, -25},
        {100, "g6", -12, -34},
        {8, "h7", 0, -15},
        {20, "h6", 0, -13},
        {30, "h11", 0, -130},
        {50, "h5", 0, -11},
        {100, "h9", 0, -87},
        // Transition and interference shafts.
        {10, "js6", 4.5, -4.5},
        {25, "js6", 6.5, -6.5},
        {30, "js7", 10.5, -10.5},
        {50, "js5", 5.5, -5.5},
        {10, "j6", 7, -2},
        {25, "j5", 5, -4},
        {25, "j7", 13, -8},
        {40, "j6", 11, -5},
        {50, "j5", 6, -5},
        {10, "k6", 10, 1},
        {25, "k6", 15, 2},
        {40, "k5", 13, 2},
        {50, "k6", 18, 2},
        {60, "k6", 21, 2},
        {25, "m6", 21, 8},
        {50, "m6", 25, 9},
        {80, "m5", 24, 11},
        {100, "m6", 35, 13},
        {25, "n6", 28, 15},
        {50, "n6", 33, 17},
        {10, "p6", 24, 15},
        {25, "p6", 35, 22},
        {50, "p6", 42, 26},
        {25, "r6", 41, 28},
        {60, "r6", 60, 41},
        {70, "r6", 62, 43},
        {25, "s6", 48, 35},
        {60, "s6", 72, 53},
        {70, "s6", 78, 59},
        {25, "t6", 54, 41},
        {40, "t6", 64, 48},
        {20, "u6", 54, 41},
        {25, "u6", 61, 48},
        {100, "u6", 146, 124},
        {12, "x6", 51, 40},
        {16, "x6", 56, 45},
        {10, "z6", 51, 42},
        // The finest and the coarsest grades.
        {2, "H01", 0.3, 0},
        {2, "js01", 0.15, -0.15},
        {25, "JS1", 0.75, -0.75},
        {500, "h0", 0, -6},
        {500, "H18", 9700, 0},
    };
    EXPECT_GE(std::size(table), 60U);
    for (const Published& each : table) {
        const Parsed<Deviations> found = Read(each.nominal, each.toleranceClass);
        ASSERT_TRUE(found.value) << found.error;
        EXPECT_EQ(found.value->upper, each.upper / 1000) << each.nominal << " " << each.toleranceClass;
        EXPECT_EQ(found.value->lower, each.lower / 1000) << each.nominal << " " << each.toleranceClass;
    }
}

TEST_F(ShippedFitsTest, TheDoublesAreThoseOfTheDecimalNumbers) {
    EXPECT_EQ(Read(25, "H7").value, (Deviations{0.021, 0.0}));
    EXPECT_EQ(Read(30, "js7").value, (Deviations{0.0105, -0.0105}));
    EXPECT_EQ(Read(2, "js01").value, (Deviations{0.00015, -0.00015}));
    EXPECT_EQ(Read(40, "K7").value, (Deviations{0.007, -0.018}));
    EXPECT_EQ(Read(100, "u6").value, (Deviations{0.146, 0.124}));
}

// All parameters of the catalogue with their type.
template<class Visit>
void ForEachParameter(const FeatureCatalogue& catalogue, const Visit& visit) {
    for (const std::string& group : catalogue.Groups()) {
        for (const std::string& key : *catalogue.TypesOf(group)) {
            for (const Parameter& parameter : catalogue.Type(key)->Parameters()) {
                visit(*catalogue.Type(key), parameter);
            }
        }
    }
}

TEST_F(ShippedFitsTest, EveryClassOfTheCatalogueIsOfItsSideAndExistsAndIsOfferedAtItsSize) {
    std::size_t classes = 0;
    ForEachParameter(*loaded.catalogue, [&](const FeatureType& type, const Parameter& parameter) {
        for (const ParameterSet& set : type.Sets()) {
            const ParameterValue& entry = *type.ValueOf(set, parameter.name);
            if (entry.tolerance.kind != Tolerance::Kind::FitClass) {
                continue;
            }
            ++classes;
            const ToleranceClass toleranceClass = ParseToleranceClass(entry.tolerance.fitClass).value.value();
            EXPECT_EQ(toleranceClass.side, parameter.side) << set.name << " " << parameter.name;
            const double nominal = std::get<double>(entry.value.value());
            const Parsed<Deviations> found = Fits().DeviationsOf(nominal, toleranceClass);
            EXPECT_TRUE(found.value) << set.name << " " << parameter.name << ": " << found.error;
            EXPECT_EQ(Fits().Nearest(nominal, toleranceClass), toleranceClass) << set.name;
        }
    });
    EXPECT_EQ(classes, 60U + 78 * 2 + 31 * 2 + 9 + 22 + 21 + 52 + 52 + 74 * 2 + 74 * 2);
}

TEST_F(ShippedFitsTest, LengthsOfExternalFeaturesAreOfTheSideOfShafts) {
    Lines shafts;
    ForEachParameter(*loaded.catalogue, [&](const FeatureType& type, const Parameter& parameter) {
        if (parameter.side == FitSide::Shaft) {
            shafts.push_back(type.Description().key + "." + parameter.name);
            EXPECT_EQ(parameter.magnitude, Magnitude::Length) << shafts.back();
        }
    });
    EXPECT_EQ(
        shafts,
        Lines({"Counterbore.K", "ThreadUndercutExternal.DG", "KeywayShaft.D_OVER", "KeywayShaft.D_UP_TO",
               "KeywayShaft.H", "KeywayHub.H", "RetainingRingGrooveShaft.D1", "RetainingRingGrooveShaft.S",
               "RetainingRingGrooveShaft.D2", "RetainingRingGrooveShaft.N", "RetainingRingGrooveBore.S",
               "RetainingRingGrooveBore.N", "ORingGrooveRadial.D2", "ORingGrooveAxial.D2"}));
}

} // namespace
