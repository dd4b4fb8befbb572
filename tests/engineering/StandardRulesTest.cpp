// The rules behind the tables of the standards hold in every line of the shipped catalogue.

#include "ShippedCatalogue.h"

#include <cmath>
#include <map>

namespace {

class StandardRulesTest : public ShippedCatalogue {};

TEST_F(StandardRulesTest, ClearanceSeriesCarryTheirClassesAndGrowFromFineToCoarse) {
    const std::map<std::string, std::string> classes{{"fine", "H12"}, {"medium", "H13"}, {"coarse", "H14"}};
    for (const char* key : {"ClearanceHole", "Counterbore"}) {
        const FeatureType& type = Type(key);
        double finer = 0;
        for (const ParameterSet& set : type.Sets()) {
            const std::string series = Text(type, set, "DH_SERIES");
            EXPECT_TRUE(set.name.ends_with(" " + series)) << set.name;
            EXPECT_EQ(Entry(type, set, "DH").tolerance.fitClass, classes.at(series)) << set.name;
            finer = series == "fine" ? ThreadDiameter(type, set) : finer;
            EXPECT_GT(Number(type, set, "DH"), finer) << set.name;
            finer = Number(type, set, "DH");
        }
    }
}

TEST_F(StandardRulesTest, CounterboreDepthIsHeadHeightPlusAllowancePlusWasher) {
    const FeatureType& type = Type("Counterbore");
    for (const ParameterSet& set : type.Sets()) {
        const double diameter = ThreadDiameter(type, set);
        const double allowance = diameter <= 6 ? 0.4 : diameter <= 20 ? 0.6 : 0.8;
        EXPECT_EQ(Number(type, set, "K"), diameter)
            << set.name; // ISO 4762: head as high as the thread is wide
        EXPECT_EQ(Number(type, set, "Z"), allowance) << set.name;
        const double washer = Number(type, set, "T") - Number(type, set, "K") - Number(type, set, "Z");
        const bool withWasher = std::get<std::int64_t>(*Entry(type, set, "SERIES").value) == 5;
        EXPECT_EQ(Text(type, set, "WASHER"), withWasher ? "ISO 7089" : "none") << set.name;
        EXPECT_TRUE(withWasher ? washer > 0.5 && washer < 5 : std::abs(washer) < 1e-9) << set.name;
    }
}

TEST_F(StandardRulesTest, CountersinkDepthFollowsFromTheDiametersAtNinetyDegrees) {
    for (const ParameterSet& set : Type("CountersinkDin74").Sets()) {
        const FeatureType& type = Type("CountersinkDin74");
        EXPECT_NEAR(Number(type, set, "T1"), (Number(type, set, "D2") - Number(type, set, "D1")) / 2,
                    0.1 + 1e-9)
            << set.name;
    }
    for (const ParameterSet& set : Type("CountersinkIso15065").Sets()) {
        const FeatureType& type = Type("CountersinkIso15065");
        EXPECT_NEAR(Number(type, set, "T"), (Number(type, set, "DC") - Number(type, set, "DH")) / 2, 1e-9)
            << set.name;
    }
}

TEST_F(StandardRulesTest, MinorDiameterOfAnInternalThreadFollowsFromThePitch) {
    const FeatureType& type = Type("TappedBlindHole");
    for (const ParameterSet& set : type.Sets()) {
        const double basic = ThreadDiameter(type, set) - 1.082532 * Number(type, set, "P");
        EXPECT_NEAR(Number(type, set, "D1"), basic, 0.0006) << set.name;
        EXPECT_GE(Number(type, set, "DB"), Number(type, set, "D1")) << set.name;
    }
    for (std::size_t i = 0; i + 2 < type.Sets().size(); i += 3) {
        const double normal = Number(type, type.Sets()[i], "E");
        EXPECT_LT(Number(type, type.Sets()[i + 1], "E"), normal) << type.Sets()[i].name;
        EXPECT_GT(Number(type, type.Sets()[i + 2], "E"), normal) << type.Sets()[i].name;
    }
}

TEST_F(StandardRulesTest, UndercutsClearTheThreadAndHaveTheClassOfTheirSide) {
    for (const ParameterSet& set : Type("ThreadUndercutExternal").Sets()) {
        const FeatureType& type = Type("ThreadUndercutExternal");
        EXPECT_LT(Number(type, set, "DG"), ThreadDiameter(type, set) - 1.0825 * Number(type, set, "P"))
            << set.name;
        EXPECT_LT(Number(type, set, "G1"), Number(type, set, "G2")) << set.name;
        EXPECT_EQ(Entry(type, set, "DG").tolerance.fitClass, ThreadDiameter(type, set) <= 3 ? "h12" : "h13");
    }
    for (const ParameterSet& set : Type("ThreadUndercutInternal").Sets()) {
        const FeatureType& type = Type("ThreadUndercutInternal");
        EXPECT_GT(Number(type, set, "DG"), ThreadDiameter(type, set)) << set.name;
        EXPECT_LT(Number(type, set, "G1"), Number(type, set, "G2")) << set.name;
        EXPECT_EQ(Entry(type, set, "DG").tolerance.fitClass, "H13") << set.name;
    }
}

TEST_F(StandardRulesTest, AProtectedCentreHoleIsDeeperByItsProtectingCone) {
    const FeatureType& type = Type("CentreHole");
    std::map<double, double> depthOfFormA;
    int compared = 0;
    for (const ParameterSet& set : type.Sets()) {
        const double pilot = Number(type, set, "D1");
        if (Text(type, set, "FORM") == "A") {
            depthOfFormA[pilot] = Number(type, set, "T");
        }
        if (Text(type, set, "FORM") == "B") {
            EXPECT_NEAR(Number(type, set, "T") - depthOfFormA.at(pilot), Number(type, set, "B"), 1e-9)
                << set.name;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 11);
}

TEST_F(StandardRulesTest, KeywaysCoverShaftsWithoutGapsAndClearTheKey) {
    const FeatureType& shaft = Type("KeywayShaft");
    const FeatureType& hub = Type("KeywayHub");
    double reached = 6; // the smallest shaft with a key
    for (std::size_t i = 0; i < shaft.Sets().size(); ++i) {
        const ParameterSet& inShaft = shaft.Sets()[i];
        const ParameterSet& inHub = hub.Sets()[i];
        ASSERT_EQ(inShaft.name, inHub.name);
        for (const char* parameter : {"D_OVER", "D_UP_TO", "B", "H"}) {
            EXPECT_EQ(Number(shaft, inShaft, parameter), Number(hub, inHub, parameter)) << inShaft.name;
        }
        if (Text(shaft, inShaft, "SEAT") == "tight") {
            EXPECT_EQ(Number(shaft, inShaft, "D_OVER"), reached) << inShaft.name;
            reached = Number(shaft, inShaft, "D_UP_TO");
        }
        const double clearance =
            Number(shaft, inShaft, "T1") + Number(hub, inHub, "T2") - Number(shaft, inShaft, "H");
        EXPECT_GT(clearance, 0.2 - 1e-9) << inShaft.name;
        EXPECT_LT(clearance, 0.4 + 1e-9) << inShaft.name;
    }
    EXPECT_EQ(reached, 500);
}

TEST_F(StandardRulesTest, RetainingRingGroovesFollowTheRulesOfTheirTables) {
    for (const char* key : {"RetainingRingGrooveShaft", "RetainingRingGrooveBore"}) {
        const FeatureType& type = Type(key);
        const bool shaft = type.Description().standard == "DIN 471";
        for (const ParameterSet& set : type.Sets()) {
            const double nominal = Number(type, set, "D1");
            const double depth = Number(type, set, "T");
            const double thickness = Number(type, set, "S");
            const double groove = shaft ? nominal - 2 * depth : nominal + 2 * depth;
            EXPECT_NEAR(Number(type, set, "D2"), groove, 1e-9) << set.name;
            EXPECT_NEAR(Number(type, set, "N"), 3 * depth, 0.05 + 1e-9) << set.name;
            EXPECT_NEAR(Number(type, set, "M") - thickness, thickness < 2 ? 0.1 : 0.15, 1e-9) << set.name;
            const std::string coarse = nominal <= 22 ? "11" : "12";
            const std::string grade = shaft ? (nominal <= 10 ? "h10" : "h" + coarse) : "H" + coarse;
            EXPECT_EQ(Entry(type, set, "D2").tolerance.fitClass, grade) << set.name;
        }
    }
}

TEST_F(StandardRulesTest, SealGroovesSqueezeTheRingAndLeaveItRoom) {
    const FeatureType& radial = Type("ORingGrooveRadial");
    for (std::size_t i = 0; i < radial.Sets().size(); i += 2) {
        const ParameterSet& moving = radial.Sets()[i];
        const ParameterSet& resting = radial.Sets()[i + 1];
        EXPECT_EQ(Text(radial, moving, "SEAL"), "dynamic") << moving.name;
        EXPECT_EQ(Text(radial, resting, "SEAL"), "static") << resting.name;
        EXPECT_LT(Number(radial, moving, "T"), Number(radial, moving, "D2")) << moving.name;
        EXPECT_LT(Number(radial, resting, "T"), Number(radial, moving, "T")) << resting.name;
        EXPECT_GT(Number(radial, moving, "B"), Number(radial, moving, "D2")) << moving.name;
    }
    const FeatureType& axial = Type("ORingGrooveAxial");
    Lines sectionsOfIso;
    for (const ParameterSet& set : axial.Sets()) {
        EXPECT_LT(Number(axial, set, "H"), Number(axial, set, "D2")) << set.name;
        EXPECT_GT(Number(axial, set, "B4"), Number(axial, set, "D2")) << set.name;
        if (std::get<bool>(*Entry(axial, set, "ISO3601_1").value)) {
            sectionsOfIso.push_back(set.name);
        }
    }
    EXPECT_EQ(sectionsOfIso,
              Lines({"O-ring groove 1.78 axial", "O-ring groove 2.62 axial", "O-ring groove 3.53 axial",
                     "O-ring groove 5.33 axial", "O-ring groove 6.99 axial"}));
}

} // namespace
