// The geometry inputs of the types: what is read, and every fault of inputs.csv.

#include "Fault.h"
#include "ShippedCatalogue.h"

#include <map>

namespace {

using namespace engineering;

const Input insertionPoint{1, {ElementKind::Point}};

std::vector<Input> InputsOf(const LoadResult& loaded, const char* type) {
    return loaded.catalogue.value().Type(type)->Inputs();
}

TEST(InputTest, ATypeHasItsInputsInTheOrderOfTheirNumbersWhateverTheOrderOfTheLines) {
    const std::vector<Input> all{
        insertionPoint, {2, {ElementKind::Line, ElementKind::Plane}}, {3, {ElementKind::Plane}}};
    const CatalogueFolder folder;
    EXPECT_EQ(InputsOf(folder.Load(), "Groove"), all);
    EXPECT_EQ(InputsOf(folder.Load(), "SteppedHole"), std::vector<Input>{insertionPoint});
    EXPECT_EQ(InputsOf(folder.Load(), "PlainHole"), std::vector<Input>{});

    folder.Write("inputs.csv", "kinds,type,number\n"
                               "plane,Groove,3\n"
                               "point,Groove,1\n"
                               "point,SteppedHole,1\n"
                               "plane|line,Groove,2\n");
    EXPECT_EQ(InputsOf(folder.Load(), "Groove"), all);
    EXPECT_EQ(InputsOf(folder.Load(), "SteppedHole"), std::vector<Input>{insertionPoint});
}

TEST(InputTest, WithoutTheFileNoTypeHasInputs) {
    const CatalogueFolder folder;
    folder.Remove("inputs.csv");
    EXPECT_EQ(folder.Problems(), Lines{});
    EXPECT_EQ(InputsOf(folder.Load(), "Groove"), std::vector<Input>{});
}

TEST(InputTest, AFileThatIsThereButCannotBeReadIsNamed) {
    const CatalogueFolder folder;
    folder.Remove("inputs.csv");
    std::filesystem::create_symlink("nowhere.csv", folder.Path() / "inputs.csv");
    EXPECT_EQ(folder.Problems(), Lines({"inputs.csv: the file does not exist"}));
    folder.Remove("inputs.csv");
    std::filesystem::create_directory(folder.Path() / "inputs.csv");
    EXPECT_EQ(folder.Problems(), Lines({"inputs.csv: is a folder, not a file"}));
}

TEST(InputTest, ALineThatMayBeTheMissingInputHidesTheGap) {
    const CatalogueFolder folder;
    folder.Replace("inputs.csv", "Groove,1,", "Grove,1,");
    EXPECT_EQ(folder.Problems(), Lines({"inputs.csv:3: column 'type': unknown type 'Grove'"}));
    folder.Replace("inputs.csv", "Grove,1,", "Groove,0,");
    EXPECT_EQ(folder.Problems(), Lines({"inputs.csv:3: column 'number': '0' is not 1, 2 or 3"}));
    folder.Replace("inputs.csv", "Groove,0,point", "Groove,1");
    EXPECT_EQ(folder.Problems(), Lines({"inputs.csv:3: has 2 cells, the header has 3 cells"}));
}

TEST(InputTest, ATypeThatMayStandInABrokenLineIsNotCalledUnknown) {
    const CatalogueFolder folder;
    folder.Replace("types.csv", "\nGroove,", "\nGro-ove,");
    EXPECT_EQ(folder.Problems(),
              Lines({"types.csv:4: column 'key': 'Gro-ove' has a character other than A-Z, a-z, 0-9 and _"}));
}

const char* const inputs = "inputs.csv";

const std::vector<Fault> inputFaults{
    {"InputOfAnUnknownType",
     inputs,
     "SteppedHole",
     "StepedHole",
     {"inputs.csv:2: column 'type': unknown type 'StepedHole'"}},
    {"InputOfNoType", inputs, "SteppedHole", "", {"inputs.csv:2: column 'type': unknown type ''"}},
    {"InputZero",
     inputs,
     "SteppedHole,1",
     "SteppedHole,0",
     {"inputs.csv:2: column 'number': '0' is not 1, 2 or 3"}},
    {"InputFour", inputs, "Groove,3", "Groove,4", {"inputs.csv:5: column 'number': '4' is not 1, 2 or 3"}},
    {"InputWithoutNumber",
     inputs,
     "Groove,3",
     "Groove,",
     {"inputs.csv:5: column 'number': '' is not 1, 2 or 3"}},
    {"InputWithAFraction",
     inputs,
     "Groove,3",
     "Groove,3.0",
     {"inputs.csv:5: column 'number': '3.0' is not 1, 2 or 3"}},
    {"DuplicateInput",
     inputs,
     "Groove,3",
     "Groove,2",
     {"inputs.csv:5: column 'number': duplicate input 2 of type 'Groove'"}},
    {"SecondInputWithoutFirst",
     inputs,
     "Groove,1,point\n",
     "",
     {"inputs.csv:3: column 'number': type 'Groove' has an input 2 but no input 1"}},
    {"ThirdInputWithoutSecond",
     inputs,
     "Groove,2,line|plane\n",
     "",
     {"inputs.csv:4: column 'number': type 'Groove' has an input 3 but no input 2"}},
    {"InputWithoutKind", inputs, "line|plane", "", {"inputs.csv:4: column 'kinds': names no kind"}},
    {"UnknownKinds",
     inputs,
     "line|plane",
     "Line|axis",
     {"inputs.csv:4: column 'kinds': unknown kind 'Line'",
      "inputs.csv:4: column 'kinds': unknown kind 'axis'"}},
    {"BarAfterTheLastKind", inputs, "line|plane", "line|", {"inputs.csv:4: column 'kinds': unknown kind ''"}},
    {"KindTwice",
     inputs,
     "line|plane",
     "line|line",
     {"inputs.csv:4: column 'kinds': names the kind 'line' twice"}},
    {"SeveralFaultsInOneInput",
     inputs,
     "Groove,2,line|plane",
     "Grove,9,axis",
     {"inputs.csv:4: column 'type': unknown type 'Grove'",
      "inputs.csv:4: column 'number': '9' is not 1, 2 or 3",
      "inputs.csv:4: column 'kinds': unknown kind 'axis'"}},
    {"MisspeltInputColumn",
     inputs,
     "kinds",
     "kind",
     {"inputs.csv:1: column 'kinds': the column is missing", "inputs.csv:1: column 'kind': unknown column"}},
};

INSTANTIATE_TEST_SUITE_P(Inputs, BrokenCatalogueTest, testing::ValuesIn(inputFaults), FaultName);

class ShippedInputTest : public ShippedCatalogue {};

TEST_F(ShippedInputTest, EveryTypeTakesAnInsertionPointAndADirection) {
    const std::set<ElementKind> point{ElementKind::Point};
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            const std::vector<Input>& taken = Type(type).Inputs();
            ASSERT_GE(taken.size(), 2U) << type;
            EXPECT_EQ(taken[0], insertionPoint) << type;
            EXPECT_FALSE(taken[1].kinds.contains(ElementKind::Point)) << type;
            EXPECT_TRUE(taken[1].kinds.contains(ElementKind::Line)) << type;
        }
    }
}

TEST_F(ShippedInputTest, WhatEndsSomewhereTakesALimitAndNothingElseDoes) {
    Lines limited;
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            if (Type(type).Inputs().size() == 3) {
                limited.push_back(type);
                EXPECT_TRUE(Type(type).Inputs()[2].kinds.contains(ElementKind::Plane)) << type;
                EXPECT_FALSE(Type(type).Inputs()[2].kinds.contains(ElementKind::Line)) << type;
            }
        }
    }
    EXPECT_EQ(limited, Lines({"TappedBlindHole", "KeywayShaft", "KeywayHub"}));
}

} // namespace
