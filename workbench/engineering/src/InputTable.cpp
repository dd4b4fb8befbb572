#include "InputTable.h"

#include "CellText.h"
#include "RowReader.h"

#include <algorithm>
#include <map>
#include <system_error>

namespace engineering {

namespace {

namespace fs = std::filesystem;

constexpr char firstNumber = '1';
constexpr char lastNumber = '3';

// Reads the lines of inputs.csv one after the other.
class InputReader : private RowReader {
  public:
    InputReader(const CsvTable& table, TypeTable& types, FileReport& report)
        : RowReader(table, report), _types(types) {}

    void ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        TypeDraft* type = Type();
        const std::optional<int> number = Number();
        const std::set<ElementKind> kinds = Kinds();
        if (type == nullptr || !number) {
            return;
        }
        if (!_lines[type].emplace(*number, row.line).second) {
            Fail("number", "duplicate input " + std::to_string(*number) + " of type " + Quoted(Text("type")));
            return;
        }
        type->inputs.push_back({*number, kinds});
    }

    /// Puts the inputs in order. A gap is reported unless it may be a line with another problem.
    void Finish() {
        for (TypeDraft& type : _types.types) {
            std::ranges::sort(type.inputs, {}, &Input::number);
            if (Table().IsComplete() && _everyInputKnown) {
                ReportGap(type);
            }
        }
    }

  private:
    TypeDraft* Type() {
        TypeDraft* type = _types.Find(Text("type"));
        if (type == nullptr) {
            _everyInputKnown = false;
            if (_types.complete) {
                Fail("type", "unknown type " + Quoted(Text("type")));
            }
        }
        return type;
    }

    std::optional<int> Number() {
        const std::string& text = Text("number");
        if (text.size() != 1 || text[0] < firstNumber || text[0] > lastNumber) {
            _everyInputKnown = false;
            Fail("number", Quoted(text) + " is not 1, 2 or 3");
            return std::nullopt;
        }
        return text[0] - '0';
    }

    // Kinds with a bar between them, such as line|plane.
    std::set<ElementKind> Kinds() {
        std::set<ElementKind> kinds;
        std::string_view rest = Text("kinds");
        if (rest.empty()) {
            Fail("kinds", "names no kind");
            return kinds;
        }
        for (bool more = true; more;) {
            const std::size_t bar = rest.find('|');
            TakeKind(rest.substr(0, bar), kinds);
            more = bar != std::string_view::npos;
            rest.remove_prefix(more ? bar + 1 : rest.size());
        }
        return kinds;
    }

    void TakeKind(std::string_view name, std::set<ElementKind>& kinds) {
        const std::optional<ElementKind> kind = ElementKindNamed(name);
        if (!kind) {
            Fail("kinds", "unknown kind " + Quoted(name));
        } else if (!kinds.insert(*kind).second) {
            Fail("kinds", "names the kind " + Quoted(name) + " twice");
        }
    }

    void ReportGap(const TypeDraft& type) {
        int expected = 1;
        for (const Input& input : type.inputs) {
            if (input.number != expected) {
                FailAt(_lines[&type].at(input.number), "number",
                       "type " + Quoted(type.description.key) + " has an input " +
                           std::to_string(input.number) + " but no input " + std::to_string(expected));
                return;
            }
            ++expected;
        }
    }

    TypeTable& _types;
    bool _everyInputKnown = true; ///< no line so far could be an input that cannot be told
    std::map<const TypeDraft*, std::map<int, int>> _lines; ///< line of each input of each type
};

} // namespace

void ReadInputs(const fs::path& folder, TypeTable& types, std::vector<Problem>& problems) {
    const fs::path file = folder / "inputs.csv";
    std::error_code error;
    if (fs::symlink_status(file, error).type() == fs::file_type::not_found) {
        return;
    }
    FileReport report(file, problems);
    const std::optional<CsvTable> table = CsvTable::Read(file, report);
    if (!table || !table->ExpectColumns({"type", "number", "kinds"}, report)) {
        return;
    }
    InputReader reader(*table, types, report);
    for (const CsvTable::Row& row : table->Rows()) {
        reader.ReadRow(row);
    }
    reader.Finish();
}

} // namespace engineering
