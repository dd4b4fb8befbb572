// The rules of ISO 286 that connect the cells of its tables, over all ranges of sizes, letters and grades.

#include "ShippedCatalogue.h"
#include "engineering/LimitsAndFits.h"

#include <cmath>
#include <limits>

namespace {

using namespace engineering;

constexpr double infinity = std::numeric_limits<double>::infinity();

// Where the ranges of ISO 286 end, and a size up to 1 mm.
const std::vector<double> sizes{0.5, 1,   3,   6,   10,  14,  18,  24,  30,  40,  50,  65,  80, 100,
                                120, 140, 160, 180, 200, 225, 250, 280, 315, 355, 400, 450, 500};

struct Limits { // hundredths of a micrometre
    long upper = 0;
    long lower = 0;
};

std::string Upper(std::string letters) {
    for (char& c : letters) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return letters;
}

class FitRulesTest : public ShippedCatalogue {
  protected:
    static std::optional<Limits> LimitsOf(double size, const std::string& letters, int grade) {
        const ToleranceClass read = ParseToleranceClass(letters + GradeText(grade)).value.value();
        const Parsed<Deviations> found = loaded.catalogue->Fits().DeviationsOf(size, read);
        if (!found.value) {
            return std::nullopt;
        }
        return Limits{std::lround(found.value->upper * 100'000), std::lround(found.value->lower * 100'000)};
    }

    /// IT01 is grade -1.
    static std::string GradeText(int grade) { return grade < 0 ? "01" : std::to_string(grade); }

    static long Tolerance(double size, int grade) { return LimitsOf(size, "H", grade).value().upper; }

    static bool Exists(double size, const char* letters, int grade) {
        return LimitsOf(size, letters, grade).has_value();
    }

    /// Calls the function with each size, letters and grade that are defined.
    template<class Visit>
    static void ForEachClass(FitSide side, const Visit& visit) {
        std::size_t count = 0;
        for (const double size : sizes) {
            for (const std::string& letters : LettersOf(side)) {
                for (int grade = -1; grade <= 18; ++grade) {
                    if (const std::optional<Limits> limits = LimitsOf(size, letters, grade)) {
                        SCOPED_TRACE(letters + GradeText(grade) + " at " + std::to_string(size));
                        visit(size, letters, grade, *limits);
                        ++count;
                    }
                }
            }
        }
        EXPECT_GT(count, 8000U);
    }
};

TEST_F(FitRulesTest, StandardTolerancesGrowWithTheGrade) {
    for (const double size : sizes) {
        for (int grade = 0; grade <= 18; ++grade) {
            EXPECT_GT(Tolerance(size, grade), Tolerance(size, grade - 1))
                << GradeText(grade) << " at " << size;
        }
    }
}

TEST_F(FitRulesTest, StandardTolerancesGrowWithTheSize) {
    for (int grade = -1; grade <= 18; ++grade) {
        for (std::size_t i = 1; i < sizes.size(); ++i) {
            EXPECT_GE(Tolerance(sizes[i], grade), Tolerance(sizes[i - 1], grade))
                << GradeText(grade) << " at " << sizes[i];
        }
        EXPECT_GT(Tolerance(500, grade), Tolerance(3, grade)) << GradeText(grade);
    }
}

TEST_F(FitRulesTest, StandardTolerancesFromIT6OnGrowTenfoldInFiveGrades) {
    // The standard rounds: 6 to 60, 8 to 75 (3 to 6 mm).
    for (const double size : sizes) {
        for (int grade = 6; grade <= 13; ++grade) {
            const double ratio =
                static_cast<double>(Tolerance(size, grade + 5)) / static_cast<double>(Tolerance(size, grade));
            EXPECT_NEAR(ratio, 10, 0.63) << grade << " at " << size;
        }
    }
}

TEST_F(FitRulesTest, EveryClassIsAsWideAsItsGrade) {
    for (const FitSide side : {FitSide::Hole, FitSide::Shaft}) {
        ForEachClass(side, [](double size, const std::string&, int grade, Limits limits) {
            EXPECT_EQ(limits.upper - limits.lower, Tolerance(size, grade));
        });
    }
}

TEST_F(FitRulesTest, HAndSmallHStartAtZero) {
    for (const double size : sizes) {
        for (int grade = -1; grade <= 18; ++grade) {
            EXPECT_EQ(LimitsOf(size, "H", grade)->lower, 0);
            EXPECT_EQ(LimitsOf(size, "h", grade)->upper, 0);
        }
    }
}

TEST_F(FitRulesTest, JsIsSymmetricForHolesAndShafts) {
    for (const double size : sizes) {
        for (int grade = -1; grade <= 18; ++grade) {
            for (const char* letters : {"js", "JS"}) {
                const Limits limits = LimitsOf(size, letters, grade).value();
                EXPECT_EQ(limits.upper, -limits.lower) << letters << grade << " at " << size;
                EXPECT_EQ(limits.upper * 2, Tolerance(size, grade)) << letters << grade << " at " << size;
            }
        }
    }
}

TEST_F(FitRulesTest, HolesFromAToHMirrorTheShaftsOfTheSameLetter) {
    for (const double size : sizes) {
        for (const std::string letters : {"a", "b", "c", "cd", "d", "e", "ef", "f", "fg", "g", "h"}) {
            for (int grade = -1; grade <= 18; ++grade) {
                const std::optional<Limits> shaft = LimitsOf(size, letters, grade);
                const std::optional<Limits> hole = LimitsOf(size, Upper(letters), grade);
                ASSERT_EQ(shaft.has_value(), hole.has_value()) << letters << grade << " at " << size;
                if (shaft) {
                    EXPECT_EQ(hole->lower, -shaft->upper) << letters << grade << " at " << size;
                    EXPECT_EQ(hole->upper, -shaft->lower) << letters << grade << " at " << size;
                }
            }
        }
    }
}

TEST_F(FitRulesTest, FromAToHTheUpperDeviationOfShaftsIsTheSameForAllGrades) {
    ForEachClass(FitSide::Shaft, [](double size, const std::string& letters, int, Limits limits) {
        if (letters < "i" && letters.size() <= 2) {
            EXPECT_EQ(limits.upper, LimitsOf(size, letters, 9)->upper);
        }
    });
}

// Whether the delta is added: over 3 mm, to K, M and N up to IT8 and to P to ZC up to IT7.
bool HasDelta(double size, const std::string& letters, int grade) {
    const bool isTransition = letters == "k" || letters == "m" || letters == "n";
    return size > 3 && grade >= 3 && grade <= (isTransition ? 8 : 7);
}

TEST_F(FitRulesTest, HolesFromKToZcMirrorTheShaftsAndAreMovedByTheDelta) {
    std::size_t count = 0;
    for (const double size : sizes) {
        for (const std::string letters :
             {"k", "m", "n", "p", "r", "s", "t", "u", "v", "x", "y", "z", "za", "zb", "zc"}) {
            for (int grade = 3; grade <= 18; ++grade) {
                const std::optional<Limits> hole = LimitsOf(size, Upper(letters), grade);
                if (!hole || (letters == "n" && grade > 8) ||
                    (letters == "m" && grade == 6 && size > 250 && size <= 315)) {
                    continue;
                }
                // The shaft's deviation is that of its grade 6: k has 0 for most of the other ones.
                const long mirrored = -LimitsOf(size, letters, 6).value().lower;
                const long delta =
                    HasDelta(size, letters, grade) ? Tolerance(size, grade) - Tolerance(size, grade - 1) : 0;
                EXPECT_EQ(hole->upper, mirrored + delta) << letters << grade << " at " << size;
                ++count;
            }
        }
    }
    EXPECT_GT(count, 5000U);
}

TEST_F(FitRulesTest, AnInterferenceHoleOfOneGradeMoreMirrorsTheShaft) {
    // H7/p6 and P7/h6 fit alike: that is what the delta is for.
    for (const double size : sizes) {
        for (const std::string letters : {"p", "r", "s", "u", "x", "z"}) {
            for (int grade = 4; size > 3 && grade <= 7; ++grade) {
                const Limits hole = LimitsOf(size, Upper(letters), grade).value();
                const Limits shaft = LimitsOf(size, letters, grade - 1).value();
                EXPECT_EQ(hole.lower, -shaft.upper) << letters << grade << " at " << size;
            }
        }
    }
}

TEST_F(FitRulesTest, M6IsTheExceptionOfTheDeltaOver250UpTo315) {
    for (const double size : {std::nextafter(250, infinity), 280.0, 300.0, 315.0}) {
        EXPECT_EQ(LimitsOf(size, "M", 6)->upper, -900) << size;
        EXPECT_EQ(LimitsOf(size, "M", 5)->upper, -1300) << size; // -20 + 7
        EXPECT_EQ(LimitsOf(size, "M", 7)->upper, 0) << size;     // -20 + 20
    }
    EXPECT_EQ(LimitsOf(250, "M", 6)->upper, -800);    // -17 + 9
    EXPECT_EQ(LimitsOf(315.1, "M", 6)->upper, -1000); // -21 + 11
}

TEST_F(FitRulesTest, NFromIT9OnEndsAtZeroOver3AndDoesNotExistUpTo1) {
    for (const double size : sizes) {
        for (int grade = 9; grade <= 18; ++grade) {
            const std::optional<Limits> limits = LimitsOf(size, "N", grade);
            ASSERT_EQ(limits.has_value(), size > 1) << grade << " at " << size;
            if (limits) {
                EXPECT_EQ(limits->upper, size > 3 ? 0 : -400) << grade << " at " << size;
            }
        }
    }
    EXPECT_TRUE(Exists(std::nextafter(1, infinity), "N", 9));
}

TEST_F(FitRulesTest, KAboveIT8ExistsUpTo3Only) {
    for (const double size : sizes) {
        for (int grade = 3; grade <= 18; ++grade) {
            EXPECT_EQ(Exists(size, "K", grade), grade <= 8 || size <= 3) << grade << " at " << size;
        }
    }
    EXPECT_FALSE(Exists(std::nextafter(3, infinity), "K", 9));
}

TEST_F(FitRulesTest, SmallKBeginsAboveZeroFromIT4ToIT7Only) {
    for (const double size : sizes) {
        for (int grade = -1; grade <= 18; ++grade) {
            const long lower = LimitsOf(size, "k", grade)->lower;
            EXPECT_EQ(lower > 0, grade >= 4 && grade <= 7 && size > 3) << grade << " at " << size;
            EXPECT_GE(lower, 0);
        }
    }
}

TEST_F(FitRulesTest, JExistsForAFewGradesOnly) {
    for (const double size : sizes) {
        for (int grade = -1; grade <= 18; ++grade) {
            EXPECT_EQ(Exists(size, "J", grade), grade >= 6 && grade <= 8) << grade << " at " << size;
            EXPECT_EQ(Exists(size, "j", grade), grade >= 5 && grade <= (size <= 3 ? 8 : 7))
                << grade << " at " << size;
        }
    }
}

TEST_F(FitRulesTest, SomeLettersExistForSomeSizesOnly) {
    struct Scope {
        const char* letters;
        double over;
        double upTo;
    };
    const Scope scopes[] = {{"a", 1, 500},  {"b", 1, 500},  {"cd", 0, 50},  {"ef", 0, 50}, {"fg", 0, 50},
                            {"t", 24, 500}, {"v", 14, 500}, {"y", 18, 500}, {"c", 0, 500}, {"zc", 0, 500}};
    for (const Scope& scope : scopes) {
        for (const std::string& letters : {std::string(scope.letters), Upper(scope.letters)}) {
            for (const double size : sizes) {
                EXPECT_EQ(Exists(size, letters.c_str(), 7), size > scope.over && size <= scope.upTo)
                    << letters << " at " << size;
            }
            EXPECT_TRUE(Exists(std::nextafter(scope.over, infinity), letters.c_str(), 7)) << letters;
            EXPECT_FALSE(Exists(std::nextafter(scope.upTo, infinity), letters.c_str(), 7)) << letters;
        }
    }
}

TEST_F(FitRulesTest, HolesFromKToZcExistFromIT3On) {
    ForEachClass(FitSide::Hole, [](double, const std::string& letters, int grade, Limits) {
        EXPECT_TRUE(letters < "I" || letters == "JS" || grade >= 3);
    });
}

TEST_F(FitRulesTest, LettersStandInTheOrderOfTheirDeviations) {
    for (const double size : sizes) {
        std::optional<long> before;
        for (const std::string& letters : LettersOf(FitSide::Shaft)) {
            const std::optional<Limits> limits = LimitsOf(size, letters, 6);
            if (!limits || letters == "js" || letters == "j") {
                continue;
            }
            if (before) {
                // k stands where h does up to 3 mm: the one ends and the other begins at zero.
                EXPECT_GT(limits->lower, *before) << letters << " at " << size;
            }
            before = limits->lower;
        }
    }
}

TEST_F(FitRulesTest, DeviationsGrowWithTheSize) {
    for (const std::string& letters : LettersOf(FitSide::Shaft)) {
        const bool isClearance = letters < "i";
        if (letters == "js" || letters == "j" || letters == "k") {
            continue;
        }
        long before = 0;
        for (const double size : sizes) {
            if (const std::optional<Limits> limits = LimitsOf(size, letters, 6)) {
                const long deviation = isClearance ? -limits->upper : limits->lower;
                EXPECT_GE(deviation, before) << letters << " at " << size;
                before = deviation;
            }
        }
        EXPECT_EQ(before > 0, letters != "h") << letters;
    }
}

TEST_F(FitRulesTest, ABorderIsTheLastSizeOfItsRange) {
    for (const FitSide side : {FitSide::Hole, FitSide::Shaft}) {
        for (std::size_t i = 1; i < sizes.size(); ++i) {
            const double inside = (sizes[i - 1] + sizes[i]) / 2;
            const double first = std::nextafter(sizes[i - 1], infinity);
            for (const std::string& letters : LettersOf(side)) {
                for (const int grade : {5, 7, 9}) {
                    const ToleranceClass toleranceClass =
                        ParseToleranceClass(letters + GradeText(grade)).value.value();
                    const LimitsAndFits& fits = loaded.catalogue->Fits();
                    const auto expected = fits.DeviationsOf(inside, toleranceClass).value;
                    EXPECT_EQ(fits.DeviationsOf(sizes[i], toleranceClass).value, expected)
                        << letters << sizes[i];
                    EXPECT_EQ(fits.DeviationsOf(first, toleranceClass).value, expected) << letters << first;
                }
            }
        }
    }
}

TEST_F(FitRulesTest, AHoleFromHAndAShaftFromHFitAlikeInTheBasicHoleAndTheBasicShaftSystem) {
    for (const double size : sizes) {
        const LimitsAndFits& fits = loaded.catalogue->Fits();
        const auto of = [&](const char* text) {
            return fits.DeviationsOf(size, ParseToleranceClass(text).value.value()).value.value();
        };
        const Fit hole = FitOf(of("H7"), of("g6"));
        const Fit shaft = FitOf(of("G7"), of("h6"));
        EXPECT_EQ(hole.kind, FitKind::Clearance) << size;
        EXPECT_EQ(hole.greatestClearance, shaft.greatestClearance) << size;
        EXPECT_EQ(hole.leastClearance, shaft.leastClearance) << size;
        if (size > 3) {
            const Fit pressedHole = FitOf(of("H7"), of("s6"));
            const Fit pressedShaft = FitOf(of("S7"), of("h6"));
            EXPECT_EQ(pressedHole.kind, FitKind::Interference) << size;
            EXPECT_EQ(pressedHole.greatestClearance, pressedShaft.greatestClearance) << size;
            EXPECT_EQ(pressedHole.leastClearance, pressedShaft.leastClearance) << size;
        }
    }
}

} // namespace
