// Deviations, refusals, fits and the classes that a person chooses from, with the shipped tables and with
// small ones.

#include "engineering/LimitsAndFits.h"
#include "ShippedCatalogue.h"

#include <cmath>
#include <limits>

namespace {

using namespace engineering;

constexpr double infinity = std::numeric_limits<double>::infinity();

ToleranceClass Class(const std::string& text) {
    return ParseToleranceClass(text).value.value();
}

std::string Texts(const std::vector<ToleranceClass>& classes) {
    std::string texts;
    for (const ToleranceClass& each : classes) {
        texts += (texts.empty() ? "" : " ") + ToText(each);
    }
    return texts;
}

std::string Joined(const Lines& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : " ") + text;
    }
    return joined;
}

class LimitsAndFitsTest : public ShippedCatalogue {
  protected:
    static const LimitsAndFits& Fits() { return loaded.catalogue->Fits(); }

    static Deviations Of(double nominal, const char* text) {
        return Fits().DeviationsOf(nominal, Class(text)).value.value();
    }

    static std::string ErrorOf(double nominal, const char* text) {
        const Parsed<Deviations> read = Fits().DeviationsOf(nominal, Class(text));
        EXPECT_FALSE(read.value) << text << " at " << nominal;
        return read.error;
    }

    static Fit FitAt(double nominal, const char* hole, const char* shaft) {
        return FitOf(Of(nominal, hole), Of(nominal, shaft));
    }

    static std::string NearestTo(double nominal, const char* text) {
        const std::optional<ToleranceClass> nearest = Fits().Nearest(nominal, Class(text));
        return nearest ? ToText(*nearest) : "none";
    }
};

TEST_F(LimitsAndFitsTest, ABorderBelongsToTheLowerRange) {
    EXPECT_EQ(Of(30, "H7").upper, 0.021);
    EXPECT_EQ(Of(30.001, "H7").upper, 0.025);
    EXPECT_EQ(Of(3, "H7").upper, 0.010);
    EXPECT_EQ(Of(3.0000001, "H7").upper, 0.012);
    EXPECT_EQ(Of(std::nextafter(3.0, infinity), "H7").upper, 0.012);
    EXPECT_EQ(Of(500, "H7").upper, 0.063);
    EXPECT_EQ(Of(std::numeric_limits<double>::denorm_min(), "H7").upper, 0.010);
}

TEST_F(LimitsAndFitsTest, SizesOutsideTheTablesAreRefused) {
    EXPECT_EQ(ErrorOf(0, "H7"), "there is no H7 at 0 mm: the nominal size is not above 0");
    EXPECT_EQ(ErrorOf(-5, "g6"), "there is no g6 at -5 mm: the nominal size is not above 0");
    EXPECT_EQ(ErrorOf(500.0001, "H7"), "there is no H7 at 500.0001 mm: the tables end at 500 mm");
    EXPECT_EQ(ErrorOf(std::nextafter(500.0, infinity), "js6"),
              "there is no js6 at 500.00000000000006 mm: the tables end at 500 mm");
    EXPECT_EQ(ErrorOf(infinity, "H7"), "there is no H7 at inf mm: the nominal size is not a finite number");
    EXPECT_EQ(ErrorOf(-infinity, "H7"), "there is no H7 at -inf mm: the nominal size is not a finite number");
    EXPECT_EQ(ErrorOf(std::numeric_limits<double>::quiet_NaN(), "H7"),
              "there is no H7 at nan mm: the nominal size is not a finite number");
}

TEST_F(LimitsAndFitsTest, ARefusalNamesTheSizeWithoutExponentUnlessThatIsTooLong) {
    const std::string reason = " mm: A is defined for sizes over 1 up to 500 mm";
    EXPECT_EQ(ErrorOf(0.0001, "A11"), "there is no A11 at 0.0001" + reason);
    EXPECT_EQ(ErrorOf(1e-7, "A11"), "there is no A11 at 0.0000001" + reason);
    EXPECT_EQ(ErrorOf(1e-100, "A11"), "there is no A11 at 1e-100" + reason);
    EXPECT_EQ(ErrorOf(100'000, "H7"), "there is no H7 at 100000 mm: the tables end at 500 mm");
    EXPECT_EQ(ErrorOf(1e300, "H7"), "there is no H7 at 1e+300 mm: the tables end at 500 mm");
}

TEST_F(LimitsAndFitsTest, ClassesThatTheStandardDoesNotDefineAreRefusedWithTheReason) {
    EXPECT_EQ(ErrorOf(20, "T6"), "there is no T6 at 20 mm: T is defined for sizes over 24 up to 500 mm");
    EXPECT_EQ(ErrorOf(60, "cd8"), "there is no cd8 at 60 mm: cd is defined for sizes over 0 up to 50 mm");
    EXPECT_EQ(ErrorOf(1, "A11"), "there is no A11 at 1 mm: A is defined for sizes over 1 up to 500 mm");
    EXPECT_EQ(ErrorOf(25, "J9"), "there is no J9 at 25 mm: at that size J is defined for the grades 6 to 8");
    EXPECT_EQ(ErrorOf(25, "j8"), "there is no j8 at 25 mm: at that size j is defined for the grades 5 to 7");
    EXPECT_EQ(ErrorOf(25, "K9"), "there is no K9 at 25 mm: at that size K is defined for the grades 3 to 8");
    EXPECT_EQ(ErrorOf(1, "N9"), "there is no N9 at 1 mm: at that size N is defined for the grades 3 to 8");
    EXPECT_EQ(ErrorOf(25, "P2"), "there is no P2 at 25 mm: at that size P is defined for the grades 3 to 18");
}

TEST_F(LimitsAndFitsTest, AClassMadeOfOtherPartsIsRefused) {
    EXPECT_EQ(Fits().DeviationsOf(25, {FitSide::Hole, "g", {7}}).error,
              "there is no g6 at 25 mm: the tables have no letter g for holes");
    EXPECT_EQ(Fits().DeviationsOf(25, {FitSide::Shaft, "i", {7}}).error,
              "there is no i6 at 25 mm: the tables have no letter i for shafts");
    for (const int position : {-1, gradeCount}) {
        EXPECT_EQ(Fits().DeviationsOf(25, {FitSide::Hole, "H", {position}}).error,
                  "there is no H at 25 mm: at that size H is defined for the grades 01 to 18");
    }
}

TEST_F(LimitsAndFitsTest, AFitIsOneOfThreeKinds) {
    EXPECT_EQ(FitAt(25, "H7", "g6").kind, FitKind::Clearance);
    EXPECT_EQ(FitAt(25, "H7", "k6").kind, FitKind::Transition);
    EXPECT_EQ(FitAt(25, "H7", "s6").kind, FitKind::Interference);
}

TEST_F(LimitsAndFitsTest, AFitHasTheExactDifferencesOfTheDeviations) {
    const Fit clearance = FitAt(25, "H7", "g6"); // +21 0, -7 -20
    EXPECT_EQ(clearance.greatestClearance, 0.041);
    EXPECT_EQ(clearance.leastClearance, 0.007);
    const Fit transition = FitAt(25, "K7", "js6"); // +6 -15, +6.5 -6.5
    EXPECT_EQ(transition.greatestClearance, 0.0125);
    EXPECT_EQ(transition.leastClearance, -0.0215);
    const Fit interference = FitAt(25, "H7", "s6"); // +21 0, +48 +35
    EXPECT_EQ(interference.greatestClearance, -0.014);
    EXPECT_EQ(interference.leastClearance, -0.048);
}

TEST_F(LimitsAndFitsTest, AClearanceFitMayHaveNoClearanceAtLeast) {
    const Fit fit = FitAt(25, "H7", "h6");
    EXPECT_EQ(fit.kind, FitKind::Clearance);
    EXPECT_EQ(fit.leastClearance, 0);
    EXPECT_EQ(fit.greatestClearance, 0.034);
    EXPECT_FALSE(std::signbit(fit.leastClearance));
}

TEST_F(LimitsAndFitsTest, AnInterferenceFitMayHaveNoInterferenceAtLeast) {
    const Fit fit = FitOf({0.021, 0}, {0.034, 0.021});
    EXPECT_EQ(fit.kind, FitKind::Interference);
    EXPECT_EQ(fit.greatestClearance, 0);
    EXPECT_EQ(FitOf({0.0211, 0}, {0.034, 0.021}).kind, FitKind::Transition);
    EXPECT_EQ(FitAt(2, "H6", "n6").kind, FitKind::Transition);   // +6 against +4
    EXPECT_EQ(FitAt(2, "H6", "p6").kind, FitKind::Interference); // +6 against +6
}

TEST_F(LimitsAndFitsTest, TheOfferedClassesOfALetterGoFromFineToCoarse) {
    EXPECT_EQ(Texts(Fits().OfferedClasses(25, FitSide::Hole, "H")),
              "H1 H2 H3 H4 H5 H6 H7 H8 H9 H10 H11 H12 H13 H14 H15 H16 H17 H18");
    EXPECT_EQ(Texts(Fits().OfferedClasses(25, FitSide::Shaft, "g")), "g3 g4 g5 g6 g7 g8 g9 g10");
    EXPECT_EQ(Texts(Fits().OfferedClasses(25, FitSide::Shaft, "a")), "a9 a10 a11 a12 a13");
}

TEST_F(LimitsAndFitsTest, OnlyClassesThatExistAtTheSizeAreOffered) {
    EXPECT_EQ(Texts(Fits().OfferedClasses(3, FitSide::Hole, "K")), "K3 K4 K5 K6 K7 K8 K9 K10");
    EXPECT_EQ(Texts(Fits().OfferedClasses(3.1, FitSide::Hole, "K")), "K3 K4 K5 K6 K7 K8");
    EXPECT_EQ(Texts(Fits().OfferedClasses(1, FitSide::Hole, "N")), "N3 N4 N5 N6 N7 N8");
    EXPECT_EQ(Texts(Fits().OfferedClasses(1.1, FitSide::Hole, "N")), "N3 N4 N5 N6 N7 N8 N9 N10 N11");
    EXPECT_EQ(Texts(Fits().OfferedClasses(3, FitSide::Shaft, "j")), "j5 j6 j7 j8");
    EXPECT_EQ(Texts(Fits().OfferedClasses(4, FitSide::Shaft, "j")), "j5 j6 j7");
    EXPECT_EQ(Texts(Fits().OfferedClasses(24, FitSide::Hole, "T")), "");
    EXPECT_EQ(Texts(Fits().OfferedClasses(24.1, FitSide::Hole, "T")), "T5 T6 T7 T8");
}

TEST_F(LimitsAndFitsTest, UnknownLettersAndSizesOutsideTheTablesOfferNothing) {
    EXPECT_TRUE(Fits().OfferedClasses(25, FitSide::Hole, "I").empty());
    EXPECT_TRUE(Fits().OfferedClasses(25, FitSide::Hole, "h").empty());
    EXPECT_TRUE(Fits().OfferedClasses(25, FitSide::Hole, "").empty());
    for (const double nominal : {0.0, -1.0, 500.1, infinity, std::nan("")}) {
        EXPECT_TRUE(Fits().OfferedClasses(nominal, FitSide::Hole, "H").empty()) << nominal;
        EXPECT_TRUE(Fits().OfferedLetters(nominal, FitSide::Shaft).empty()) << nominal;
        EXPECT_EQ(Fits().Nearest(nominal, Class("H7")), std::nullopt) << nominal;
    }
}

TEST_F(LimitsAndFitsTest, TheOfferedLettersAreThoseWithAClassInTheOrderOfTheStandard) {
    EXPECT_EQ(Joined(Fits().OfferedLetters(1, FitSide::Hole)),
              "C CD D E EF F FG G H JS J K M N P R S U X Z ZA ZB ZC");
    EXPECT_EQ(Joined(Fits().OfferedLetters(25, FitSide::Hole)),
              "A B C CD D E EF F FG G H JS J K M N P R S T U V X Y Z ZA ZB ZC");
    EXPECT_EQ(Joined(Fits().OfferedLetters(16, FitSide::Shaft)),
              "a b c cd d e ef f fg g h js j k m n p r s u v x z za zb zc");
    EXPECT_EQ(Joined(Fits().OfferedLetters(500, FitSide::Shaft)),
              "a b c d e f g h js j k m n p r s t u v x y z za zb zc");
}

TEST_F(LimitsAndFitsTest, TheNearestClassIsTheOneAskedForWhereItIsOffered) {
    EXPECT_EQ(NearestTo(25, "H7"), "H7");
    EXPECT_EQ(NearestTo(25, "zc11"), "zc11");
}

TEST_F(LimitsAndFitsTest, TheNearestClassKeepsTheLettersAndTakesTheNearestGrade) {
    EXPECT_EQ(NearestTo(25, "H01"), "H1");
    EXPECT_EQ(NearestTo(25, "A2"), "A9");
    EXPECT_EQ(NearestTo(25, "K10"), "K8");
    EXPECT_EQ(NearestTo(25, "j18"), "j7");
}

TEST_F(LimitsAndFitsTest, WithoutTheLettersTheNearestClassIsOneThatBeginsAtZero) {
    EXPECT_EQ(NearestTo(20, "T7"), "H7");
    EXPECT_EQ(NearestTo(20, "t01"), "h1");
    EXPECT_EQ(NearestTo(60, "EF9"), "H9");
}

TEST(LimitsAndFitsWithoutTablesTest, NothingIsKnown) {
    const LimitsAndFits none;
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_EQ(none.CountOfDeviations(), 0U);
    EXPECT_EQ(none.DeviationsOf(25, Class("H7")).error,
              "there is no H7 at 25 mm: the catalogue has no limits and fits");
    EXPECT_TRUE(none.OfferedLetters(25, FitSide::Hole).empty());
    EXPECT_EQ(none.Nearest(25, Class("H7")), std::nullopt);
}

// One range of sizes up to 10, with 10, 20 ... micrometres for the grades.
FitTables SmallTables() {
    GradeRow tolerances{{0, 10}, {}};
    for (int i = 0; i < gradeCount; ++i) {
        tolerances.values.at(static_cast<std::size_t>(i)) = (i + 1) * 1000;
    }
    FitTables tables;
    tables.tolerances = {tolerances};
    tables.deltas = {{{0, 10}, {}}};
    return tables;
}

DeviationRow Row(SizeRange sizes, const char* finest, const char* coarsest) {
    return {sizes, {*GradeNamed(finest), *GradeNamed(coarsest)}, FitReference::Lower, 0, false};
}

TEST(SmallLimitsAndFitsTest, SizesAndGradesWithGapsAreToldAsTheyAre) {
    FitTables tables = SmallTables();
    tables.letters[{FitSide::Hole, "H"}] = {
        {Row({0, 2}, "3", "5"), Row({0, 2}, "7", "7"), Row({4, 10}, "01", "18")}, std::nullopt};
    const LimitsAndFits fits(tables);
    EXPECT_EQ(fits.DeviationsOf(1, Class("H6")).error,
              "there is no H6 at 1 mm: at that size H is defined for the grades 3 to 5, 7");
    EXPECT_EQ(fits.DeviationsOf(3, Class("H6")).error,
              "there is no H6 at 3 mm: H is defined for other sizes");
    EXPECT_EQ(fits.DeviationsOf(11, Class("H6")).error, "there is no H6 at 11 mm: the tables end at 10 mm");
    EXPECT_EQ(fits.DeviationsOf(1, Class("H7")).value, (Deviations{0.09, 0}));
}

TEST(SmallLimitsAndFitsTest, DeviationsOfSizesThatHaveNoToleranceMakeNoClass) {
    FitTables tables = SmallTables();
    tables.letters[{FitSide::Hole, "H"}] = {{Row({0, 20}, "5", "6")},
                                            GradeRange{*GradeNamed("5"), *GradeNamed("6")}};
    const LimitsAndFits fits(tables);
    EXPECT_EQ(Texts(fits.OfferedClasses(10, FitSide::Hole, "H")), "H5 H6");
    EXPECT_EQ(Texts(fits.OfferedClasses(11, FitSide::Hole, "H")), "");
    EXPECT_EQ(fits.Nearest(11, Class("H6")), std::nullopt);
    EXPECT_EQ(fits.DeviationsOf(11, Class("H6")).error, "there is no H6 at 11 mm: the tables end at 10 mm");
}

TEST(SmallLimitsAndFitsTest, OfTwoEquallyNearGradesTheFinerIsTaken) {
    FitTables tables = SmallTables();
    tables.letters[{FitSide::Hole, "H"}] = {{Row({0, 10}, "5", "5"), Row({0, 10}, "7", "7")},
                                            GradeRange{*GradeNamed("01"), *GradeNamed("18")}};
    const LimitsAndFits fits(tables);
    EXPECT_EQ(fits.Nearest(5, Class("H6")), Class("H5"));
    EXPECT_EQ(fits.Nearest(5, Class("H8")), Class("H7"));
    EXPECT_EQ(fits.Nearest(5, Class("h6")), std::nullopt);
}

TEST(SmallLimitsAndFitsTest, LettersThatAreNotListedAreNotOffered) {
    FitTables tables = SmallTables();
    tables.letters[{FitSide::Hole, "H"}].rows = {Row({0, 10}, "01", "18")};
    tables.letters[{FitSide::Hole, "G"}].offered = GradeRange{*GradeNamed("5"), *GradeNamed("6")};
    const LimitsAndFits fits(tables);
    EXPECT_TRUE(fits.DeviationsOf(5, Class("H6")).value);
    EXPECT_TRUE(fits.OfferedLetters(5, FitSide::Hole).empty()); // H is not listed, G has no deviations
    EXPECT_EQ(fits.DeviationsOf(5, Class("G6")).error,
              "there is no G6 at 5 mm: the tables have no letter G for holes");
}

} // namespace
