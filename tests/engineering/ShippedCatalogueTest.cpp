// The catalogue the program ships with is complete and agrees with the printed tables.

#include "ShippedCatalogue.h"

#include <map>

namespace {

using engineering::Tolerance;

class ShippedCatalogueTest : public ShippedCatalogue {};

TEST_F(ShippedCatalogueTest, ListsItsGroupsAndTypesInOrder) {
    EXPECT_EQ(loaded.catalogue->Groups(),
              Lines({"ScrewHoles", "ThreadDetails", "ShaftDetails", "SealsAndRings"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("ScrewHoles"),
              Lines({"ClearanceHole", "Counterbore", "CountersinkDin74", "CountersinkIso15065"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("ThreadDetails"),
              Lines({"TappedBlindHole", "ThreadUndercutExternal", "ThreadUndercutInternal"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("ShaftDetails"), Lines({"CentreHole", "KeywayShaft", "KeywayHub"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("SealsAndRings"),
              Lines({"RetainingRingGrooveShaft", "RetainingRingGrooveBore", "ORingGrooveRadial",
                     "ORingGrooveAxial"}));
}

TEST_F(ShippedCatalogueTest, HoldsEverySetOfTheTables) {
    const std::map<std::string, std::size_t> expected{
        {"ClearanceHole", 20 * 3},           // M1.6 to M36, fine, medium, coarse
        {"Counterbore", 13 * 2 * 3},         // M3 to M24, series 1 and 5, three clearance series
        {"CountersinkDin74", 22 + 9},        // form A M1 to M20, form F M3 to M20 without M14
        {"CountersinkIso15065", 9},          // M2 to M10
        {"TappedBlindHole", 34 * 3},         // M2 to M68, normal, short, long
        {"ThreadUndercutExternal", 11 * 2},  // M3 to M30, forms A and B
        {"ThreadUndercutInternal", 11 + 10}, // forms C and D, M12 without D
        {"CentreHole", 11 * 3},              // pilots 1 to 10, forms A, B and R
        {"KeywayShaft", 26 * 2},             // 2x2 to 100x50, tight and light
        {"KeywayHub", 26 * 2},
        {"RetainingRingGrooveShaft", 74}, // 3 to 100
        {"RetainingRingGrooveBore", 74},  // 8 to 100
        {"ORingGrooveRadial", 12 * 2},    // 1.5 to 6.99, dynamic and static
        {"ORingGrooveAxial", 12},
    };
    std::map<std::string, std::size_t> counts;
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            counts[type] = loaded.catalogue->SetsOf(type)->size();
        }
    }
    EXPECT_EQ(counts, expected);
}

struct Published {
    const char* type;
    const char* set;
    const char* parameter;
    double value;          ///< mm or degrees, as the standard prints it
    const char* tolerance; ///< class, or empty
};

TEST_F(ShippedCatalogueTest, AgreesWithValuesPrintedInTheStandards) {
    const Published table[] = {
        {"ClearanceHole", "ISO 273 M6 fine", "DH", 6.4, "H12"},
        {"ClearanceHole", "ISO 273 M6 medium", "DH", 6.6, "H13"},
        {"ClearanceHole", "ISO 273 M12 coarse", "DH", 14.5, "H14"},
        {"ClearanceHole", "ISO 273 M36 medium", "DH", 39, "H13"},
        {"Counterbore", "DIN 974-1 M6 series 1 medium", "D", 11, "H13"},
        {"Counterbore", "DIN 974-1 M6 series 1 medium", "T", 6.4, ""},
        {"Counterbore", "DIN 974-1 M10 series 1 fine", "D", 18, "H13"},
        {"Counterbore", "DIN 974-1 M10 series 1 fine", "DH", 10.5, "H12"},
        {"Counterbore", "DIN 974-1 M8 series 5 medium", "D", 18, "H13"},
        {"CountersinkDin74", "DIN 74-A M5", "D1", 5.5, "H13"},
        {"CountersinkDin74", "DIN 74-A M5", "D2", 10.4, "H13"},
        {"CountersinkDin74", "DIN 74-F M8", "D2", 18.25, "H13"},
        {"CountersinkDin74", "DIN 74-F M8", "ALPHA", 90, ""},
        {"CountersinkIso15065", "ISO 15065 M4", "DC", 9.4, ""},
        {"CountersinkIso15065", "ISO 15065 M8", "DC", 17.3, ""},
        {"CountersinkIso15065", "ISO 15065 M8", "DH", 9, "H13"},
        {"TappedBlindHole", "Tapped hole M10 normal", "DB", 8.5, ""},
        {"TappedBlindHole", "Tapped hole M10 normal", "D1", 8.376, "6H"},
        {"TappedBlindHole", "Tapped hole M10 normal", "E", 7.3, ""},
        {"TappedBlindHole", "Tapped hole M12 short", "E", 5.2, ""},
        {"TappedBlindHole", "Tapped hole M12 long", "P", 1.75, ""},
        {"ThreadUndercutExternal", "DIN 76-A M3", "DG", 2.2, "h12"},
        {"ThreadUndercutExternal", "DIN 76-A M10", "DG", 7.7, "h13"},
        {"ThreadUndercutExternal", "DIN 76-A M10", "G1", 3.2, ""},
        {"ThreadUndercutExternal", "DIN 76-B M10", "G2", 3.8, ""},
        {"ThreadUndercutInternal", "DIN 76-C M10", "DG", 10.5, "H13"},
        {"ThreadUndercutInternal", "DIN 76-D M20", "G1", 6.3, ""},
        {"CentreHole", "ISO 6411 A4/8.5", "D1", 4, ""},
        {"CentreHole", "ISO 6411 A4/8.5", "D2", 8.5, ""},
        {"CentreHole", "ISO 6411 B4/12.5", "D3", 12.5, ""},
        {"CentreHole", "ISO 6411 R2.5/5.3", "D2", 5.3, ""},
        {"KeywayShaft", "DIN 6885-1 8x7 tight", "T1", 4, ""},
        {"KeywayShaft", "DIN 6885-1 8x7 tight", "B", 8, "P9"},
        {"KeywayShaft", "DIN 6885-1 12x8 light", "B", 12, "N9"},
        {"KeywayHub", "DIN 6885-1 8x7 tight", "T2", 3.3, ""},
        {"KeywayHub", "DIN 6885-1 12x8 light", "B", 12, "JS9"},
        {"RetainingRingGrooveShaft", "DIN 471 10", "D2", 9.6, "h10"},
        {"RetainingRingGrooveShaft", "DIN 471 20", "D2", 19, "h11"},
        {"RetainingRingGrooveShaft", "DIN 471 50", "M", 2.15, "H13"},
        {"RetainingRingGrooveShaft", "DIN 471 52", "D2", 49, "h12"},
        {"RetainingRingGrooveBore", "DIN 472 22", "D2", 23, "H11"},
        {"RetainingRingGrooveBore", "DIN 472 47", "D2", 49.5, "H12"},
        {"RetainingRingGrooveBore", "DIN 472 100", "D2", 103.5, "H12"},
        {"ORingGrooveRadial", "O-ring groove 3.53 dynamic", "T", 3.1, ""},
        {"ORingGrooveRadial", "O-ring groove 3.53 static", "T", 2.7, ""},
        {"ORingGrooveAxial", "O-ring groove 3.53 axial", "B4", 5, ""},
        {"ORingGrooveAxial", "O-ring groove 5.33 axial", "H", 4.3, ""},
    };
    std::map<std::string, int> valuesOfType;
    for (const Published& row : table) {
        ++valuesOfType[row.type];
        const ParameterSet* set = loaded.catalogue->FindSet(row.type, row.set);
        ASSERT_NE(set, nullptr) << row.set;
        EXPECT_EQ(Number(Type(row.type), *set, row.parameter), row.value) << row.set << ' ' << row.parameter;
        EXPECT_EQ(Entry(Type(row.type), *set, row.parameter).tolerance.fitClass, row.tolerance)
            << row.set << ' ' << row.parameter;
    }
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            EXPECT_GE(valuesOfType[type], 2) << type;
        }
    }
}

TEST_F(ShippedCatalogueTest, KeepsOpenWhatIsNotTabulated) {
    const FeatureType& centre = Type("CentreHole");
    int open = 0;
    for (const ParameterSet& set : centre.Sets()) {
        const bool formB = Text(centre, set, "FORM") == "B";
        const bool formR = Text(centre, set, "FORM") == "R";
        const bool avoid = std::get<bool>(*Entry(centre, set, "AVOID").value);
        EXPECT_EQ(Entry(centre, set, "D3").value.has_value(), formB) << set.name;
        EXPECT_EQ(Entry(centre, set, "B").value.has_value(), formB) << set.name;
        EXPECT_EQ(Entry(centre, set, "A").value.has_value(), !formR && !avoid) << set.name;
        open += formR || avoid ? 1 : 0;
    }
    EXPECT_EQ(open, 17); // form R has no A: 11; forms A and B in brackets: 1.25, 5 and 8 each
}

TEST_F(ShippedCatalogueTest, CarriesTheLimitsOfKeywaysAndSealGrooves) {
    const auto limits = [](double upper, double lower) {
        return Tolerance{Tolerance::Kind::Limits, "", upper, lower};
    };
    const auto tolerance = [](const char* type, const char* set, const char* parameter) {
        return Entry(Type(type), *loaded.catalogue->FindSet(type, set), parameter).tolerance;
    };
    EXPECT_EQ(tolerance("KeywayShaft", "DIN 6885-1 6x6 tight", "T1"), limits(0.1, 0));
    EXPECT_EQ(tolerance("KeywayShaft", "DIN 6885-1 8x7 light", "T1"), limits(0.2, 0));
    EXPECT_EQ(tolerance("KeywayHub", "DIN 6885-1 36x20 tight", "T2"), limits(0.3, 0));
    EXPECT_EQ(tolerance("ORingGrooveRadial", "O-ring groove 2.62 static", "B"), limits(0.25, 0));
    EXPECT_EQ(tolerance("ORingGrooveAxial", "O-ring groove 2.62 axial", "H"), limits(0.1, 0));
    EXPECT_EQ(tolerance("ORingGrooveAxial", "O-ring groove 2.62 axial", "R"), limits(0.2, -0.2));
    EXPECT_EQ(tolerance("CountersinkDin74", "DIN 74-A M5", "ALPHA"), limits(1, -1));
}

} // namespace
