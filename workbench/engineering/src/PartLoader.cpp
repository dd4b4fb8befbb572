#include "engineering/PartLoader.h"

#include "CellText.h"
#include "RowReader.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace engineering {

namespace {

// A direction of any length but zero, made as long as 1. The greatest coordinate goes first, so that the
// length of a very long or short direction stays within the range of numbers.
Vector UnitOf(const Vector& direction) {
    const double greatest = std::max({std::abs(direction.x), std::abs(direction.y), std::abs(direction.z)});
    const Vector scaled{direction.x / greatest, direction.y / greatest, direction.z / greatest};
    const double length = std::hypot(scaled.x, scaled.y, scaled.z);
    return {scaled.x / length, scaled.y / length, scaled.z / length};
}

// Reads the lines of the table one after the other.
class ElementReader : private RowReader {
  public:
    ElementReader(const CsvTable& table, const FileReport& report) : RowReader(table, report) {}

    Element ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        Element element;
        element.name = NewName("name", _names);
        const std::optional<ElementKind> kind = Kind();
        element.point = Coordinates("x", "y", "z").value_or(Vector{});
        if (!kind) {
            return element;
        }
        element.kind = *kind;
        if (*kind == ElementKind::Point) {
            ExpectNoDirection();
        } else {
            element.direction = Direction();
        }
        return element;
    }

  private:
    std::optional<ElementKind> Kind() {
        const std::optional<ElementKind> kind = ElementKindNamed(Text("kind"));
        if (!kind) {
            Fail("kind", "unknown kind " + Quoted(Text("kind")));
        }
        return kind;
    }

    std::optional<double> Number(const char* column) {
        Parsed<double> number = ParseNumber(Text(column));
        if (!number.value) {
            Fail(column, std::move(number.error));
        }
        return number.value;
    }

    std::optional<Vector> Coordinates(const char* xColumn, const char* yColumn, const char* zColumn) {
        const std::optional<double> x = Number(xColumn);
        const std::optional<double> y = Number(yColumn);
        const std::optional<double> z = Number(zColumn);
        return x && y && z ? std::optional(Vector{*x, *y, *z}) : std::nullopt;
    }

    Vector Direction() {
        const std::optional<Vector> direction = Coordinates("dx", "dy", "dz");
        if (!direction) {
            return {};
        }
        if (*direction == Vector{}) {
            Fail("dx", "the direction is zero");
            return {};
        }
        return UnitOf(*direction);
    }

    void ExpectNoDirection() {
        for (const char* column : {"dx", "dy", "dz"}) {
            if (!Text(column).empty()) {
                Fail(column, "a point has no direction");
            }
        }
    }

    std::set<std::string> _names; ///< names met so far
};

std::vector<Element> ReadElements(const std::filesystem::path& file, FileReport& report) {
    const std::optional<CsvTable> table = CsvTable::Read(file, report);
    if (!table || !table->ExpectColumns({"name", "kind", "x", "y", "z", "dx", "dy", "dz"}, report)) {
        return {};
    }
    ElementReader reader(*table, report);
    std::vector<Element> elements;
    for (const CsvTable::Row& row : table->Rows()) {
        elements.push_back(reader.ReadRow(row));
    }
    if (elements.empty() && table->IsComplete()) {
        report.Add(table->Header().line, {}, "the file lists no elements");
    }
    return elements;
}

} // namespace

PartResult LoadPart(const std::filesystem::path& file) {
    PartResult result;
    FileReport report(file, result.problems);
    std::vector<Element> elements = ReadElements(file, report);
    if (result.problems.empty()) {
        result.part.emplace(file.stem().string(), std::move(elements));
    }
    return result;
}

} // namespace engineering
