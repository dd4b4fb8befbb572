#include "FitTable.h"

#include "CellText.h"
#include "ForeignTables.h"
#include "RowReader.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace engineering {

namespace {

namespace fs = std::filesystem;

constexpr const char* tolerancesFile = "it_grades.csv";
constexpr const char* deltasFile = "delta.csv";
constexpr const char* holesFile = "hole_deviations.csv";
constexpr const char* shaftsFile = "shaft_deviations.csv";
constexpr const char* offeredFile = "offered_grades.csv";

constexpr GradeRange allGrades{{0}, {gradeCount - 1}};
constexpr GradeRange withDelta{{4}, {9}}; // IT3 to IT8

constexpr double greatestNumber = 1'000'000; // micrometres; keeps sums far from the end of int

// Micrometres with at most one decimal, in hundredths; so the half of a number is whole, too.
Parsed<int> ParseMicrometres(const std::string& text) {
    const Parsed<double> number = ParseNumber(text);
    if (!number.value) {
        return Parsed<int>::Failed(text.empty() ? "the value is missing" : number.error);
    }
    if (std::abs(*number.value) > greatestNumber) {
        return Parsed<int>::Failed(Quoted(text) + " is out of range");
    }
    const long tenths = std::lround(*number.value * 10);
    if (static_cast<double>(tenths) / 10 != *number.value) {
        return Parsed<int>::Failed(Quoted(text) + " has more than one decimal");
    }
    return Parsed<int>::Of(static_cast<int>(tenths) * 10);
}

// What the readers of the five tables have in common.
class FitReader : protected RowReader {
  protected:
    using RowReader::RowReader;
    ~FitReader() = default;

    std::optional<int> Micrometres(const char* column) {
        Parsed<int> number = ParseMicrometres(Text(column));
        if (!number.value) {
            Fail(column, std::move(number.error));
        }
        return number.value;
    }

    std::optional<SizeRange> Sizes() {
        const std::optional<double> over = Size("over_mm");
        const std::optional<double> upTo = Size("up_to_mm");
        if (!over || !upTo) {
            return std::nullopt;
        }
        if (*over >= *upTo) {
            Fail("up_to_mm",
                 Quoted(Text("up_to_mm")) + " is not above the over_mm of " + Quoted(Text("over_mm")));
            return std::nullopt;
        }
        return SizeRange{*over, *upTo};
    }

    std::optional<GradeRange> Grades() {
        const std::optional<Grade> finest = GradeIn("grade_min");
        const std::optional<Grade> coarsest = GradeIn("grade_max");
        if (!finest || !coarsest) {
            return std::nullopt;
        }
        if (*finest > *coarsest) {
            Fail("grade_max",
                 Quoted(Text("grade_max")) + " is finer than the grade_min of " + Quoted(Text("grade_min")));
            return std::nullopt;
        }
        return GradeRange{*finest, *coarsest};
    }

    bool IsLetter(FitSide side) {
        const std::string& letter = Text("letter");
        const bool isKnown = std::ranges::find(LettersOf(side), letter) != LettersOf(side).end();
        if (!isKnown) {
            Fail("letter", Quoted(letter) + (side == FitSide::Hole ? " is no letter of holes, A to ZC"
                                                                   : " is no letter of shafts, a to zc"));
        }
        return isKnown;
    }

  private:
    std::optional<double> Size(const char* column) {
        Parsed<double> size = ParseNumber(Text(column));
        if (size.value && *size.value < 0) {
            size = Parsed<double>::Failed(Quoted(Text(column)) + " is below zero");
        }
        if (!size.value) {
            Fail(column, Text(column).empty() ? "the value is missing" : std::move(size.error));
        }
        return size.value;
    }

    std::optional<Grade> GradeIn(const char* column) {
        const std::optional<Grade> grade = GradeNamed(Text(column));
        if (!grade) {
            Fail(column, Quoted(Text(column)) + " is no grade: 01, 0 or 1 to 18");
        }
        return grade;
    }
};

// Reads a table with a line for each range of sizes and a column for each grade.
class GradeTableReader : private FitReader {
  public:
    /// With `grows` each number is above the one before it.
    GradeTableReader(const CsvTable& table, FileReport& report, GradeRange grades, bool grows,
                     std::vector<GradeRow>& rows)
        : FitReader(table, report), _grades(grades), _grows(grows), _rows(rows) {}

    void ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        GradeRow read;
        const std::optional<SizeRange> sizes = Sizes();
        ExpectNext(sizes);
        read.sizes = sizes.value_or(SizeRange{});
        std::optional<int> before = 0;
        for (Grade grade = _grades.finest; grade <= _grades.coarsest; ++grade.position) {
            const std::string column = "IT" + ToText(grade);
            const std::optional<int> value = Micrometres(column.c_str());
            ExpectSound(column, value, before);
            read.values.at(static_cast<std::size_t>(grade.position)) = value.value_or(0);
            before = value;
        }
        _rows.push_back(read);
    }

  private:
    // The ranges follow each other without a gap. Where one could not be read, the next one may be any.
    void ExpectNext(const std::optional<SizeRange>& sizes) {
        if (sizes && _end && Table().IsComplete() && sizes->over != *_end) {
            Fail("over_mm", Quoted(Text("over_mm")) +
                                (_endText.empty() ? " is not 0, where the first range begins"
                                                  : " is not " + _endText + ", where the range before ends"));
        }
        _end = sizes ? std::optional(sizes->upTo) : std::nullopt;
        _endText = Text("up_to_mm");
    }

    void ExpectSound(const std::string& column, std::optional<int> value, std::optional<int> before) {
        if (value && *value < 0) {
            Fail(column.c_str(), Quoted(Text(column.c_str())) + " is below zero");
        } else if (_grows && value && before && *value <= *before) {
            Fail(column.c_str(), Quoted(Text(column.c_str())) +
                                     (*before == 0 ? " is not above zero" : " is not above the finer grade"));
        }
    }

    const GradeRange _grades;
    const bool _grows;
    std::vector<GradeRow>& _rows;
    std::optional<double> _end = 0;
    std::string _endText;
};

// Reads the fundamental deviations of holes or of shafts.
class DeviationReader : private FitReader {
  public:
    DeviationReader(const CsvTable& table, FileReport& report, FitSide side, FitTables& tables)
        : FitReader(table, report), _side(side), _tables(tables) {}

    void ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        const bool isLetter = IsLetter(_side);
        const std::optional<SizeRange> sizes = Sizes();
        const std::optional<GradeRange> grades = Grades();
        const std::optional<FitReference> reference = Reference();
        const std::optional<int> deviation = Micrometres("deviation_um");
        const std::optional<bool> plusDelta = PlusDelta();
        if (reference == FitReference::Symmetric && deviation.value_or(0) != 0) {
            Fail("deviation_um",
                 Quoted(Text("deviation_um")) + " is not 0, as it is where the limits are symmetric");
        }
        if (plusDelta.value_or(false)) {
            ExpectDelta(reference, grades);
        }
        if (isLetter && sizes && grades && reference && deviation && plusDelta) {
            Add({*sizes, *grades, *reference, *deviation, *plusDelta});
        }
    }

  private:
    std::optional<FitReference> Reference() {
        const std::string& text = Text("reference");
        if (text == "sym") {
            return FitReference::Symmetric;
        }
        const bool isHole = _side == FitSide::Hole;
        if (text == (isHole ? "ES" : "es")) {
            return FitReference::Upper;
        }
        if (text == (isHole ? "EI" : "ei")) {
            return FitReference::Lower;
        }
        Fail("reference",
             Quoted(text) + (isHole ? " is neither ES nor EI nor sym" : " is neither es nor ei nor sym"));
        return std::nullopt;
    }

    std::optional<bool> PlusDelta() {
        if (_side == FitSide::Shaft) {
            return false;
        }
        Parsed<bool> flag = ParseFlag(Text("plus_delta"));
        if (!flag.value) {
            Fail("plus_delta", std::move(flag.error));
        }
        return flag.value;
    }

    void ExpectDelta(const std::optional<FitReference>& reference, const std::optional<GradeRange>& grades) {
        if (reference == FitReference::Symmetric) {
            Fail("plus_delta", "symmetric limits have no delta");
        } else if (grades && !(withDelta.Holds(grades->finest) && withDelta.Holds(grades->coarsest))) {
            Fail("plus_delta", "there is a delta for the grades " + ToText(withDelta.finest) + " to " +
                                   ToText(withDelta.coarsest) + " only");
        }
    }

    void Add(const DeviationRow& added) {
        const std::string& letter = Text("letter");
        std::vector<DeviationRow>& rows = _tables.letters[{_side, letter}].rows;
        std::vector<int>& lines = _lines[letter];
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (Overlap(rows[i], added)) {
                Fail("letter", Quoted(letter) + " has the same sizes and grades, in part or all, in line " +
                                   std::to_string(lines[i]));
                return;
            }
        }
        rows.push_back(added);
        lines.push_back(Line());
    }

    static bool Overlap(const DeviationRow& one, const DeviationRow& other) {
        return one.sizes.over < other.sizes.upTo && other.sizes.over < one.sizes.upTo &&
               one.grades.finest <= other.grades.coarsest && other.grades.finest <= one.grades.coarsest;
    }

    const FitSide _side;
    FitTables& _tables;
    std::map<std::string, std::vector<int>> _lines; ///< of the rows of a letter
};

// Reads the grades that a person chooses from.
class OfferedReader : private FitReader {
  public:
    OfferedReader(const CsvTable& table, FileReport& report, FitTables& tables)
        : FitReader(table, report), _tables(tables) {}

    void ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        const std::optional<GradeRange> grades = Grades();
        const std::optional<FitSide> side = FitSideNamed(Text("kind"));
        if (!side) {
            Fail("kind", Quoted(Text("kind")) + " is neither hole nor shaft");
            return;
        }
        if (!IsLetter(*side)) {
            return;
        }
        if (!_letters.insert(Text("letter")).second) {
            Fail("letter", "duplicate letter " + Quoted(Text("letter")));
            return;
        }
        _tables.letters[{*side, Text("letter")}].offered = grades;
    }

  private:
    FitTables& _tables;
    std::set<std::string> _letters; ///< met so far
};

// Reads the files of the folder one after the other.
class FolderReader {
  public:
    FolderReader(const fs::path& folder, std::vector<Problem>& problems)
        : _folder(folder), _problems(problems), _before(problems.size()) {}

    std::optional<LimitsAndFits> Read() {
        ReadTable<GradeTableReader>(tolerancesFile,
                                    {"over_mm", "up_to_mm", "IT01", "IT0",  "IT1",  "IT2",  "IT3",  "IT4",
                                     "IT5",     "IT6",      "IT7",  "IT8",  "IT9",  "IT10", "IT11", "IT12",
                                     "IT13",    "IT14",     "IT15", "IT16", "IT17", "IT18"},
                                    allGrades, true, _tables.tolerances);
        const int lastLine = ReadTable<GradeTableReader>(
            deltasFile, {"over_mm", "up_to_mm", "IT3", "IT4", "IT5", "IT6", "IT7", "IT8"}, withDelta, false,
            _tables.deltas);
        if (IsSound() && _tables.deltas.back().sizes.upTo != _tables.tolerances.back().sizes.upTo) {
            FileReport(_folder / deltasFile, _problems)
                .Add(lastLine, "up_to_mm",
                     std::string("is not where the ranges of ") + tolerancesFile + " end");
        }
        ReadTable<DeviationReader>(
            shaftsFile,
            {"letter", "over_mm", "up_to_mm", "grade_min", "grade_max", "reference", "deviation_um"},
            FitSide::Shaft, _tables);
        ReadTable<DeviationReader>(holesFile,
                                   {"letter", "over_mm", "up_to_mm", "grade_min", "grade_max", "reference",
                                    "deviation_um", "plus_delta"},
                                   FitSide::Hole, _tables);
        ReadTable<OfferedReader>(offeredFile, {"kind", "letter", "grade_min", "grade_max"}, _tables);
        ReportForeignTables(_folder, {tolerancesFile, deltasFile, shaftsFile, holesFile, offeredFile},
                            "is none of the tables of limits and fits", _problems);
        return IsSound() ? std::optional(LimitsAndFits(std::move(_tables))) : std::nullopt;
    }

  private:
    bool IsSound() const { return _problems.size() == _before; }

    // Gives the number of the line read last.
    template<class Reader, class... Arguments>
    int ReadTable(const char* name, std::initializer_list<std::string_view> columns,
                  Arguments&&... arguments) {
        FileReport report(_folder / name, _problems);
        const std::optional<CsvTable> table = CsvTable::Read(_folder / name, report);
        if (!table || !table->ExpectColumns(columns, report)) {
            return 0;
        }
        Reader reader(*table, report, arguments...);
        int line = table->Header().line;
        for (const CsvTable::Row& row : table->Rows()) {
            reader.ReadRow(row);
            line = row.line;
        }
        if (table->Rows().empty() && table->IsComplete()) {
            report.Add(line, {}, "the file lists nothing");
        }
        return line;
    }

    const fs::path& _folder;
    std::vector<Problem>& _problems;
    const std::size_t _before;
    FitTables _tables;
};

} // namespace

std::optional<LimitsAndFits> ReadFits(const fs::path& folder, std::vector<Problem>& problems) {
    return FolderReader(folder, problems).Read();
}

} // namespace engineering
