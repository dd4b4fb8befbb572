// A loaded catalogue answers for its groups, types and sets, and clearly for what it does not know.

#include "CatalogueFolder.h"

namespace {

using namespace engineering;

class FeatureCatalogueTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(loaded.catalogue); }

    const ParameterValue& ValueOf(const char* type, const char* set, const char* parameter) const {
        return *loaded.catalogue->Type(type)->ValueOf(*loaded.catalogue->FindSet(type, set), parameter);
    }

    const CatalogueFolder folder;
    const LoadResult loaded = folder.Load();
};

TEST_F(FeatureCatalogueTest, ListsGroupsAndTypesInTheOrderOfTheFiles) {
    EXPECT_EQ(loaded.catalogue->Groups(), Lines({"Holes", "Grooves"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("Holes"), Lines({"PlainHole", "SteppedHole"}));
    EXPECT_EQ(*loaded.catalogue->TypesOf("Grooves"), Lines({"Groove"}));
}

TEST_F(FeatureCatalogueTest, AnswersUnknownKeysWithNothing) {
    const FeatureCatalogue& catalogue = *loaded.catalogue;
    EXPECT_EQ(catalogue.TypesOf("holes"), nullptr);
    EXPECT_EQ(catalogue.Type("Holes"), nullptr);
    EXPECT_EQ(catalogue.SetsOf(""), nullptr);
    EXPECT_EQ(catalogue.FindSet("Bolt", "Hole M3"), nullptr);
    EXPECT_EQ(catalogue.FindSet("PlainHole", "Hole M5"), nullptr);
    ASSERT_NE(catalogue.Type("PlainHole"), nullptr);
    EXPECT_EQ(catalogue.Type("PlainHole")->FindParameter("d"), nullptr);
    EXPECT_EQ(catalogue.Type("PlainHole")->ValueOf(catalogue.SetsOf("PlainHole")->front(), "ALPHA"), nullptr);
    EXPECT_NE(catalogue.FindSet("PlainHole", "Hole M3"), nullptr);
}

TEST_F(FeatureCatalogueTest, DescribesATypeWithItsStandardAndNote) {
    const TypeDescription& type = loaded.catalogue->Type("SteppedHole")->Description();
    EXPECT_EQ(type.key, "SteppedHole");
    EXPECT_EQ(type.group, "Holes");
    EXPECT_EQ(type.standard, "Table 2");
    EXPECT_EQ(type.note, "high, two tables");
}

TEST_F(FeatureCatalogueTest, DefinesParametersInTheOrderOfTheFile) {
    Lines names;
    for (const Parameter& parameter : loaded.catalogue->Type("SteppedHole")->Parameters()) {
        names.push_back(parameter.name + " " + std::string(NameOf(parameter.magnitude)) + " " +
                        parameter.unit);
    }
    EXPECT_EQ(names,
              Lines({"D LENGTH in", "ALPHA ANGLE deg", "COUNT INTEGER ", "RATIO REAL ", "AVOID BOOLEAN "}));
    const Parameter& diameter = *loaded.catalogue->Type("PlainHole")->FindParameter("D");
    EXPECT_EQ(diameter.tolerance.fitClass, "H13");
    EXPECT_TRUE(diameter.valueEditable);
    EXPECT_TRUE(diameter.toleranceEditable);
    EXPECT_FALSE(diameter.optional);
    const Parameter& thread = *loaded.catalogue->Type("PlainHole")->FindParameter("THREAD");
    EXPECT_FALSE(thread.valueEditable);
    EXPECT_FALSE(thread.toleranceEditable);
    EXPECT_TRUE(loaded.catalogue->Type("Groove")->FindParameter("B")->optional);
}

TEST_F(FeatureCatalogueTest, HoldsValuesOfEachMagnitudeInBaseUnits) {
    EXPECT_EQ(ValueOf("PlainHole", "Hole M3", "D").value, Value(3.4));
    EXPECT_EQ(ValueOf("PlainHole", "Hole M3", "THREAD").value, Value(std::string("M3")));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 1", "D").value, Value(12.7));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 2", "ALPHA").value, Value(82.5));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 2", "COUNT").value, Value(std::int64_t{3}));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 2", "RATIO").value, Value(0.001));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 1", "AVOID").value, Value(false));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 2", "AVOID").value, Value(true));
}

TEST_F(FeatureCatalogueTest, ReadsSignedNumbers) {
    folder.Replace("sets/SteppedHole.csv", "90,2,0.25", "+90,-2,-.5");
    const LoadResult changed = folder.Load();
    ASSERT_TRUE(changed.catalogue);
    const std::vector<ParameterValue>& values = changed.catalogue->FindSet("SteppedHole", "Step 1")->values;
    EXPECT_EQ(values[1].value, Value(90.0));
    EXPECT_EQ(values[2].value, Value(std::int64_t{-2}));
    EXPECT_EQ(values[3].value, Value(-0.5));
}

TEST_F(FeatureCatalogueTest, AnEmptyCellIsNotTabulatedAndCarriesNoTolerance) {
    EXPECT_EQ(ValueOf("Groove", "Groove 2", "B").value, std::nullopt);
    EXPECT_EQ(ValueOf("Groove", "Groove 2", "B").tolerance, Tolerance{});
    EXPECT_EQ(ValueOf("Groove", "Groove 1", "B").value, Value(1.1));
}

TEST_F(FeatureCatalogueTest, ASetTakesItsOwnToleranceElseThatOfTheParameter) {
    EXPECT_EQ(ValueOf("PlainHole", "Hole M3", "D").tolerance.fitClass, "H13");
    EXPECT_EQ(ValueOf("PlainHole", "Hole M4", "D").tolerance.fitClass, "H12");
    EXPECT_EQ(ValueOf("Groove", "Groove 1", "B").tolerance,
              (Tolerance{Tolerance::Kind::Limits, "", 0.25, 0}));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 1", "ALPHA").tolerance,
              (Tolerance{Tolerance::Kind::Limits, "", 1, -1}));
    EXPECT_EQ(ValueOf("SteppedHole", "Step 1", "D").tolerance, Tolerance{});
}

TEST_F(FeatureCatalogueTest, AProblemIsOneLineWithoutWhatIsNotKnown) {
    EXPECT_EQ(ToText({"a/types.csv", 3, "group", "unknown group 'X'"}),
              "a/types.csv:3: column 'group': unknown group 'X'");
    EXPECT_EQ(ToText({"a/types.csv", 3, "", "is not UTF-8 text"}), "a/types.csv:3: is not UTF-8 text");
    EXPECT_EQ(ToText({"a/types.csv", 0, "", "the file does not exist"}),
              "a/types.csv: the file does not exist");
}

} // namespace
