// The bracket that the program ships with has enough of everything, and its geometry fits together.

#include "engineering/PartLoader.h"

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using namespace engineering;

constexpr double smallest = 1e-9; // mm

double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double Length(const Vector& a) {
    return std::sqrt(Dot(a, a));
}

Vector Between(const Vector& from, const Vector& to) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

Vector Cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// How far a point lies from the line or plane.
double Distance(const Element& element, const Vector& point) {
    const Vector way = Between(element.point, point);
    return element.kind == ElementKind::Plane ? std::abs(Dot(way, element.direction))
                                              : Length(Cross(way, element.direction));
}

bool LiesIn(const Element& inner, const Element& outer) {
    const Vector next{inner.point.x + inner.direction.x, inner.point.y + inner.direction.y,
                      inner.point.z + inner.direction.z};
    return Distance(outer, inner.point) < smallest && Distance(outer, next) < smallest;
}

class ShippedPartTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { loaded = LoadPart(KELVANE_PARTS_DIR "/bracket.csv"); }

    void SetUp() override {
        std::string problems;
        for (const Problem& problem : loaded.problems) {
            problems += ToText(problem) + "\n";
        }
        ASSERT_TRUE(loaded.part) << problems;
    }

    static const Element& The(const std::string& name) {
        const Element* element = loaded.part->Find(name);
        if (element == nullptr) {
            throw std::invalid_argument("the bracket has no " + name);
        }
        return *element;
    }

    static int CountOf(ElementKind kind) {
        int count = 0;
        for (const Element& element : loaded.part->Elements()) {
            count += element.kind == kind ? 1 : 0;
        }
        return count;
    }

    inline static PartResult loaded;
};

TEST_F(ShippedPartTest, HasElementsOfEachKind) {
    EXPECT_EQ(loaded.part->Name(), "bracket");
    EXPECT_GE(CountOf(ElementKind::Point), 20);
    EXPECT_GE(CountOf(ElementKind::Line), 10);
    EXPECT_GE(CountOf(ElementKind::Plane), 10);
}

TEST_F(ShippedPartTest, DirectionsAreUnitVectors) {
    for (const Element& element : loaded.part->Elements()) {
        const double expected = element.kind == ElementKind::Point ? 0 : 1;
        EXPECT_NEAR(Length(element.direction), expected, 1e-15) << element.name;
    }
    EXPECT_NEAR(The("Chamfer face").direction.x, std::sqrt(0.5), 1e-15);
}

TEST_F(ShippedPartTest, AnElementNamedAfterAPlaneOrLineLiesInIt) {
    int pairs = 0;
    for (const Element& outer : loaded.part->Elements()) {
        for (const Element& inner : loaded.part->Elements()) {
            if (outer.kind != ElementKind::Point && inner.name.starts_with(outer.name + " ")) {
                EXPECT_TRUE(LiesIn(inner, outer)) << inner.name;
                ++pairs;
            }
        }
    }
    EXPECT_GE(pairs, 20);
}

TEST_F(ShippedPartTest, AHoleStandsUprightOnItsCentreWithinTheTopFace) {
    for (const std::string number : {"1", "2", "3", "4"}) {
        const Element& axis = The("Hole " + number + " axis");
        EXPECT_LT(Distance(axis, The("Top face hole " + number).point), smallest) << number;
        EXPECT_LT(Length(Cross(axis.direction, The("Top face").direction)), smallest) << number;
        EXPECT_GT(Distance(The("Front face"), axis.point), 10) << number;
        EXPECT_GT(Distance(The("Left face"), axis.point), 10) << number;
    }
    EXPECT_LT(Distance(The("Grease hole axis"), The("Front face grease hole").point), smallest);
}

TEST_F(ShippedPartTest, AnEdgeBetweenTwoFacesLiesInBoth) {
    const std::vector<std::vector<std::string>> edges{
        {"Top face front edge", "Front face"},     {"Top face back edge", "Back face"},
        {"Top face left edge", "Left face"},       {"Chamfer face upper edge", "Top face"},
        {"Chamfer face front edge", "Front face"}, {"Base face right edge", "Right face"}};
    for (const std::vector<std::string>& edge : edges) {
        EXPECT_TRUE(LiesIn(The(edge[0]), The(edge[1]))) << edge[0];
    }
}

TEST_F(ShippedPartTest, CornersOfTheBaseLieInBothSideFaces) {
    for (const std::string depth : {"Front", "Back"}) {
        for (const std::string side : {"left", "right"}) {
            const std::string name =
                "Base face corner " + std::string(depth == "Front" ? "front " : "back ") + side;
            EXPECT_TRUE(LiesIn(The(name), The(depth + " face"))) << name;
            EXPECT_TRUE(LiesIn(The(name), The(side == "left" ? "Left face" : "Right face"))) << name;
        }
    }
}

TEST_F(ShippedPartTest, FacesPointOutwards) {
    const Vector inside{0, 20, 6};
    for (const char* name :
         {"Base face", "Top face", "Front face", "Back face", "Left face", "Right face", "Chamfer face"}) {
        const Element& face = The(name);
        EXPECT_GT(Dot(Between(inside, face.point), face.direction), 0) << name;
    }
}

TEST_F(ShippedPartTest, KeywaysLieOnTheirDiametersAndCentresOnTheAxis) {
    const Element& axis = The("Pin axis");
    EXPECT_NEAR(Distance(axis, The("Pin keyway start").point), 15, smallest);
    EXPECT_NEAR(Distance(axis, The("Pin keyway end").point), 15, smallest);
    EXPECT_NEAR(Distance(axis, The("Bore keyway start").point), 8, smallest);
    EXPECT_NEAR(Distance(axis, The("Bore keyway end").point), 8, smallest);
    for (const char* name :
         {"Base face centre", "Shoulder face centre", "End face centre", "Bore floor centre"}) {
        EXPECT_TRUE(LiesIn(The(name), axis)) << name;
    }
}

} // namespace
