// Every thread of the shipped tables is found as it is tabulated, and the tables follow the formulas of their
// standards.

#include "ShippedCatalogue.h"
#include "ShippedTable.h"

#include <cmath>
#include <map>
#include <sstream>

namespace {

using engineering::FoundThread;
using engineering::Thread;
using engineering::ThreadStandard;
using engineering::ThreadTables;

constexpr double inch = 25.4;
constexpr double rounding = 0.0005 + 1e-9;             // the tables have three decimals
constexpr double inchRounding = 0.00005 * 25.4 + 1e-9; // or four of an inch
// D1 = d - 5/4 H and D2 = d - 3/4 H with H = 0.866025 P.
constexpr double minorFactor = 1.082532;
constexpr double pitchFactor = 0.649519;

struct TableFile {
    const char* standard;
    const char* file;
    std::size_t threads;
};

const std::vector<TableFile> tableFiles{{"Metric coarse", "metric_coarse.csv", 40},
                                        {"Metric fine", "metric_fine.csv", 172},
                                        {"UNC", "unc.csv", 33},
                                        {"UNF", "unf.csv", 24},
                                        {"UNEF", "unef.csv", 25},
                                        {"G", "g.csv", 24}};

std::vector<ShippedRow> Read(const char* file) {
    return ReadShippedTable(std::string("threads/") + file);
}

std::optional<double> NumberOf(ShippedRow& row, const char* column) {
    return row[column].empty() ? std::nullopt : std::optional(std::strtod(row[column].c_str(), nullptr));
}

class ShippedThreadsTest : public ShippedCatalogue {
  protected:
    static const ThreadTables& Tables() { return loaded.catalogue->Threads(); }

    static const std::vector<Thread>& ThreadsOf(const char* standard) {
        return Tables().Standard(standard)->threads;
    }
};

TEST_F(ShippedThreadsTest, StandInTheOrderShownWithTheirStandards) {
    Lines names;
    for (const ThreadStandard& standard : Tables().Standards()) {
        names.push_back(standard.name + ": " + standard.standard);
    }
    EXPECT_EQ(names, Lines({"Metric coarse: ISO 261, ISO 724", "Metric fine: ISO 261, ISO 724",
                            "UNC: ASME B1.1", "UNF: ASME B1.1", "UNEF: ASME B1.1", "G: ISO 228-1"}));
}

TEST_F(ShippedThreadsTest, AnswerEveryDesignationWithExactlyItsTabulatedRow) {
    std::size_t count = 0;
    for (const TableFile& table : tableFiles) {
        auto rows = Read(table.file);
        EXPECT_EQ(rows.size(), table.threads) << table.file;
        for (auto& row : rows) {
            const std::string designation = row["designation"];
            const FoundThread found = Tables().Find(designation);
            ASSERT_NE(found.thread, nullptr) << designation;
            EXPECT_EQ(found.standard->name, table.standard) << designation;
            EXPECT_EQ(found.thread->designation, designation);
            EXPECT_EQ(found.thread->majorDiameter, NumberOf(row, "major_diameter_mm")) << designation;
            EXPECT_EQ(found.thread->pitch, NumberOf(row, "pitch_mm")) << designation;
            EXPECT_EQ(found.thread->pitchDiameter, NumberOf(row, "pitch_diameter_mm")) << designation;
            EXPECT_EQ(found.thread->minorDiameter, NumberOf(row, "minor_diameter_mm")) << designation;
            EXPECT_EQ(found.thread->tapDrill, NumberOf(row, "tap_drill_mm")) << designation;
            EXPECT_EQ(found.thread->threadsPerInch, NumberOf(row, "tpi")) << designation;
            ++count;
        }
    }
    EXPECT_EQ(count, 318U);
}

TEST_F(ShippedThreadsTest, HaveTheValuesOfTheStandardsForWellKnownSizes) {
    const Thread& m10 = *Tables().Find("M10x1.5").thread;
    EXPECT_EQ(m10.designation, "M10");
    EXPECT_EQ(m10.pitch, 1.5);
    EXPECT_EQ(m10.pitchDiameter, 9.026);
    EXPECT_EQ(m10.minorDiameter, 8.376);
    EXPECT_EQ(m10.tapDrill, 8.5);
    const Thread& fine = *Tables().Find("M10X1,25").thread;
    EXPECT_EQ(fine.minorDiameter, 8.647);
    const Thread& quarter = *Tables().Find("1/4-20unc").thread;
    EXPECT_EQ(quarter.majorDiameter, 6.35);
    EXPECT_EQ(quarter.pitch, 1.27);
    EXPECT_EQ(Tables().Find("2-4.5 UNC").thread->threadsPerInch, 4.5);
    EXPECT_EQ(Tables().Find("G 1 3/4").thread->majorDiameter, 53.746);
    EXPECT_EQ(Tables().Find("G1 3/8").thread, nullptr);
    EXPECT_EQ(Tables().Find("G2 1/4").thread->tapDrill, std::nullopt);
}

TEST_F(ShippedThreadsTest, OfMetricKindFollowFromDiameterAndPitch) {
    for (const char* standard : {"Metric coarse", "Metric fine"}) {
        for (const Thread& thread : ThreadsOf(standard)) {
            EXPECT_NEAR(thread.minorDiameter, thread.majorDiameter - minorFactor * thread.pitch, rounding)
                << thread.designation;
            EXPECT_NEAR(thread.pitchDiameter, thread.majorDiameter - pitchFactor * thread.pitch, rounding)
                << thread.designation;
        }
    }
}

TEST_F(ShippedThreadsTest, OfMetricKindAreNamedAfterDiameterAndPitch) {
    for (const char* standard : {"Metric coarse", "Metric fine"}) {
        for (const Thread& thread : ThreadsOf(standard)) {
            std::istringstream text(thread.designation);
            char m = 0;
            double diameter = 0;
            text >> m >> diameter;
            EXPECT_EQ(m, 'M') << thread.designation;
            EXPECT_EQ(diameter, thread.majorDiameter) << thread.designation;
            char times = 0;
            double pitch = 0;
            if (text >> times >> pitch) {
                EXPECT_EQ(times, 'x') << thread.designation;
                EXPECT_EQ(pitch, thread.pitch) << thread.designation;
            }
            EXPECT_EQ(times == 'x', standard == std::string("Metric fine")) << thread.designation;
        }
    }
}

TEST_F(ShippedThreadsTest, OfMetricFineKindHaveASmallerPitchThanTheCoarseOne) {
    for (const Thread& fine : ThreadsOf("Metric fine")) {
        const std::string coarse = fine.designation.substr(0, fine.designation.find('x'));
        const FoundThread found = Tables().Find(coarse);
        if (found.thread != nullptr) {
            EXPECT_LT(fine.pitch, found.thread->pitch) << fine.designation;
        }
    }
}

TEST_F(ShippedThreadsTest, OfUnifiedKindFollowFromDiameterAndThreadsPerInch) {
    for (const TableFile& table : {tableFiles[2], tableFiles[3], tableFiles[4]}) {
        for (auto& row : Read(table.file)) {
            const Thread& thread = *Tables().Find(row["designation"]).thread;
            const double tpi = thread.threadsPerInch.value();
            const double d = NumberOf(row, "major_diameter_in").value();
            EXPECT_NEAR(thread.majorDiameter, d * inch, 1e-9) << thread.designation;
            EXPECT_NEAR(thread.pitch, inch / tpi, 1e-6) << thread.designation;
            EXPECT_NEAR(thread.minorDiameter, (d - minorFactor / tpi) * inch, rounding) << thread.designation;
            EXPECT_NEAR(thread.pitchDiameter, (d - pitchFactor / tpi) * inch, rounding) << thread.designation;
            EXPECT_NEAR(thread.minorDiameter, NumberOf(row, "minor_diameter_in").value() * inch,
                        inchRounding + rounding)
                << thread.designation;
        }
    }
}

TEST_F(ShippedThreadsTest, OfPipeKindFollowFromTheTabulatedHeightOfTheThread) {
    const std::map<double, double> heights{{28, 0.581}, {19, 0.856}, {14, 1.162}, {11, 1.479}};
    for (const Thread& thread : ThreadsOf("G")) {
        const double tpi = thread.threadsPerInch.value();
        const double h = heights.at(tpi);
        EXPECT_NEAR(thread.pitch, inch / tpi, rounding) << thread.designation;
        EXPECT_NEAR(thread.pitchDiameter, thread.majorDiameter - h, 1e-9) << thread.designation;
        EXPECT_NEAR(thread.minorDiameter, thread.majorDiameter - 2 * h, 1e-9) << thread.designation;
    }
}

TEST_F(ShippedThreadsTest, HaveATapDrillBetweenMinorAndMajorDiameterWhereOneIsTabulated) {
    Lines without;
    for (const ThreadStandard& standard : Tables().Standards()) {
        for (const Thread& thread : standard.threads) {
            if (!thread.tapDrill) {
                without.push_back(thread.designation);
                continue;
            }
            EXPECT_LT(*thread.tapDrill, thread.majorDiameter) << thread.designation;
            // Advice rounds to drills there are, at times a little below the basic minor diameter.
            EXPECT_GT(*thread.tapDrill, thread.minorDiameter - 0.1) << thread.designation;
        }
    }
    EXPECT_EQ(without, Lines({"1 3/16-18 UNEF", "G2 1/4", "G2 1/2", "G2 3/4", "G3", "G3 1/2", "G4", "G4 1/2",
                              "G5", "G5 1/2", "G6"}));
}

TEST_F(ShippedThreadsTest, AreWhatFourTypesBeginWith) {
    Lines types;
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            if (Type(type).Description().thread == "THREAD") {
                types.push_back(type);
            } else {
                EXPECT_EQ(Type(type).Description().thread, "") << type;
            }
        }
    }
    EXPECT_EQ(types,
              Lines({"Counterbore", "TappedBlindHole", "ThreadUndercutExternal", "ThreadUndercutInternal"}));
}

TEST_F(ShippedThreadsTest, HaveThePitchAndMinorDiameterThatSetsState) {
    for (const char* type : {"TappedBlindHole", "ThreadUndercutExternal", "ThreadUndercutInternal"}) {
        for (const ParameterSet& set : Type(type).Sets()) {
            const Thread& thread = *Tables().Find(Text(Type(type), set, "THREAD")).thread;
            EXPECT_EQ(Number(Type(type), set, "P"), thread.pitch) << set.name;
            if (type == std::string("TappedBlindHole")) {
                EXPECT_NEAR(Number(Type(type), set, "D1"), thread.minorDiameter, rounding) << set.name;
            }
        }
    }
}

} // namespace
