#include "RuleTable.h"

#include "CellText.h"
#include "Formula.h"
#include "RowReader.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace engineering {

namespace {

namespace fs = std::filesystem;

// Values that a feature with a thread has beside its parameters.
constexpr std::array<std::string_view, 4> threadNames{"THREAD_DIAMETER", "THREAD_INTERNAL_DIAMETER",
                                                      "THREAD_LENGTH", "THREAD_PITCH"};

// Reads the lines of rules.csv one after the other.
class RuleReader : private RowReader {
  public:
    RuleReader(const CsvTable& table, TypeTable& types, const fs::path& file, std::vector<Problem>& problems)
        : RowReader(table, FileReport(file, problems)), _types(types), _problems(problems) {}

    void ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        TypeDraft* type = Type();
        Rule rule;
        rule.key = Key(type);
        rule.severity = SeverityOf(Text("severity"));
        rule.condition = Text("condition");
        CheckMessage();
        rule.message = Text("message");
        if (type == nullptr) {
            return;
        }
        std::string fault = FaultOf(rule.condition, *type);
        if (!fault.empty()) {
            Fail("condition", std::move(fault));
            rule.problem = ToText(_problems.back());
            ++_badConditions;
        }
        type->rules.push_back(std::move(rule));
    }

    std::size_t BadConditions() const { return _badConditions; }

  private:
    TypeDraft* Type() {
        TypeDraft* type = _types.Find(Text("type"));
        if (type == nullptr && _types.complete) {
            Fail("type", "unknown type " + Quoted(Text("type")));
        }
        return type;
    }

    std::string Key(const TypeDraft* type) {
        Parsed<std::string> key = ParseKey(Text("key"));
        if (!key.value) {
            Fail("key", std::move(key.error));
            return {};
        }
        if (type != nullptr && std::ranges::find(type->rules, *key.value, &Rule::key) != type->rules.end()) {
            Fail("key", "duplicate rule " + Quoted(*key.value) + " of type " + Quoted(Text("type")));
        }
        return std::move(*key.value);
    }

    Severity SeverityOf(const std::string& text) {
        if (text != "warning" && text != "violation") {
            Fail("severity", Quoted(text) + " is neither warning nor violation");
        }
        return text == "warning" ? Severity::Warning : Severity::Violation;
    }

    void CheckMessage() {
        const std::string& message = Text("message");
        if (message.empty()) {
            Fail("message", "is empty");
        } else if (message.find_first_of("\r\n") != std::string::npos) {
            Fail("message", "has more than one line");
        }
    }

    // What is wrong with a condition, or nothing.
    static std::string FaultOf(const std::string& condition, const TypeDraft& type) {
        if (condition.empty()) {
            return "is empty";
        }
        const Parsed<Formula> formula = Formula::Read(condition);
        if (!formula.value) {
            return Quoted(condition) + " is no condition: " + formula.error;
        }
        for (const std::string& name : formula.value->Names()) {
            std::string fault = FaultOfName(name, type);
            if (!fault.empty()) {
                return fault;
            }
        }
        return {};
    }

    static std::string FaultOfName(const std::string& name, const TypeDraft& type) {
        const Parameter* parameter = type.FindParameter(name);
        if (parameter != nullptr) {
            const bool isText = !type.unsound.contains(name) && parameter->magnitude == Magnitude::String;
            return isText ? "parameter " + Quoted(name) + " is a STRING, not a number" : "";
        }
        const bool isThread = std::ranges::find(threadNames, name) != threadNames.end();
        if (!type.parametersComplete || (isThread && !type.description.thread.empty())) {
            return {};
        }
        const std::string told = "type " + Quoted(type.description.key);
        return isThread ? told + " has no thread, so no " + Quoted(name)
                        : told + " has no parameter " + Quoted(name);
    }

    TypeTable& _types;
    std::vector<Problem>& _problems;
    std::size_t _badConditions = 0;
};

} // namespace

std::size_t ReadRules(const fs::path& folder, TypeTable& types, std::vector<Problem>& problems) {
    const fs::path file = folder / "rules.csv";
    std::error_code error;
    if (fs::symlink_status(file, error).type() == fs::file_type::not_found) {
        return 0;
    }
    FileReport report(file, problems);
    const std::optional<CsvTable> table = CsvTable::Read(file, report);
    if (!table || !table->ExpectColumns({"type", "key", "severity", "condition", "message"}, report)) {
        return 0;
    }
    RuleReader reader(*table, types, file, problems);
    for (const CsvTable::Row& row : table->Rows()) {
        reader.ReadRow(row);
    }
    return reader.BadConditions();
}

} // namespace engineering
