#include "session/Vocabulary.h"

#include "session/Buttons.h"

#include <algorithm>
#include <limits>

namespace session {

namespace {

using enum ValueKind;
using enum Need;

std::vector<Form> Steps() {
    return {{"press", {{"at"}, {"button", Button, Optional}}},
            {"choose", {{"at"}, {"line", Count, Alternative}, {"text", Text, Alternative}}},
            {"check", {{"at"}}},
            {"uncheck", {{"at"}}},
            {"type", {{"at"}, {"text"}}},
            {"spin", {{"at"}, {"steps", Integer}}},
            {"select", {{"at"}, {"rows", Counts}}},
            {"activate", {{"at"}, {"row", Count}, {"column", Count}}},
            {"page", {{"at"}}},
            {"move", {{"at"}, {"x", Integer}, {"y", Integer}}},
            {"close", {{"at"}}},
            {"escape", {{"at"}}},
            {"answer", {{"button", Button}}}};
}

std::vector<Form> Expectations() {
    return {
        {"text", {{"at"}, {"is"}}},
        {"problem", {{"at"}, {"is"}}},
        {"title", {{"at"}, {"is"}}},
        {"lines", {{"at"}, {"is", Texts | Count}}},
        {"line", {{"at"}, {"line", Count, Optional}, {"is", Text | Integer}}},
        {"selected", {{"at"}, {"is", Counts | Integer}}},
        {"rows", {{"at"}, {"is", Rows | Count}}},
        {"cell", {{"at"}, {"row", Count}, {"column", Count}, {"is"}}},
        {"columns", {{"at"}, {"is", Texts}}},
        {"checked", {{"at"}, {"is", Boolean}}},
        {"shown", {{"at"}, {"is", Boolean}}},
        {"enabled", {{"at"}, {"is", Boolean}}},
        {"exists", {{"at"}, {"is", Boolean}}},
        {"widget", {{"at"}, {"is"}}},
        {"notified", {{"class"}, {"with", Object, Optional}, {"times", Count, Optional}}},
        {"message", {{"text"}, {"title", Text, Optional}, {"times", Count, Optional}}},
        {"trace",
         {{"text"}, {"channel", Text, Optional}, {"level", Count, Optional}, {"times", Count, Optional}}}};
}

bool IsInteger(const Json& value) {
    if (!value.is_number_integer())
        return false;
    if (value.is_number_unsigned())
        return value.get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<int>::max());
    const auto number = value.get<std::int64_t>();
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

bool IsCount(const Json& value) {
    return IsInteger(value) && value.get<int>() >= 0;
}

bool IsText(const Json& value) {
    return value.is_string();
}

template<class Test>
bool IsListOf(const Json& value, const Test& test) {
    return value.is_array() && std::all_of(value.begin(), value.end(), test);
}

bool IsTexts(const Json& value) {
    return IsListOf(value, IsText);
}

bool IsCounts(const Json& value) {
    return IsListOf(value, IsCount);
}

bool IsRows(const Json& value) {
    return IsListOf(value, IsTexts);
}

bool IsBoolean(const Json& value) {
    return value.is_boolean();
}

bool IsObject(const Json& value) {
    return value.is_object();
}

bool IsButton(const Json& value) {
    return value.is_string() && ButtonNamed(value.get<std::string>()) != 0;
}

struct KindOfValue {
    ValueKind kind;
    bool (*holds)(const Json&);
    const char* name;
};

constexpr KindOfValue kinds[] = {{Text, IsText, "a text"},
                                 {Count, IsCount, "a whole number from 0 on"},
                                 {Integer, IsInteger, "a whole number"},
                                 {Boolean, IsBoolean, "true or false"},
                                 {Texts, IsTexts, "a list of texts"},
                                 {Counts, IsCounts, "a list of whole numbers from 0 on"},
                                 {Rows, IsRows, "a list of lists of texts"},
                                 {Object, IsObject, "an object in braces"},
                                 {Button, IsButton, "OK, Cancel, Apply, Close or Help"}};

bool Allows(ValueKind allowed, ValueKind kind) {
    return (static_cast<unsigned>(allowed) & static_cast<unsigned>(kind)) != 0;
}

bool Matches(const Json& value, ValueKind allowed) {
    return std::any_of(std::begin(kinds), std::end(kinds), [&](const KindOfValue& each) {
        return Allows(allowed, each.kind) && each.holds(value);
    });
}

std::string Describe(ValueKind allowed) {
    std::string text;
    for (const KindOfValue& each : kinds)
        if (Allows(allowed, each.kind))
            text += (text.empty() ? "" : " or ") + std::string(each.name);
    return text;
}

/// Checks the keys of one line against the form of its word.
class Examination {
  public:
    Examination(const Json& line, const Form& form, const std::string& verb)
        : _line(line), _form(form), _verb(verb),
          _subject("the " + std::string(verb == "do" ? "step" : "expectation") + " '" + form.word + "'") {}

    std::string Fault() const {
        for (const auto& [key, value] : _line.items()) {
            std::string fault = key == _verb ? std::string() : FaultOfKey(key, value);
            if (!fault.empty())
                return fault;
        }
        for (const KeyRule& rule : _form.keys)
            if (rule.need == Required && !_line.contains(rule.name))
                return _subject + " needs the key '" + rule.name + "'";
        return FaultOfAlternatives();
    }

  private:
    std::string FaultOfKey(const std::string& key, const Json& value) const {
        const auto rule = std::find_if(_form.keys.begin(), _form.keys.end(),
                                       [&key](const KeyRule& each) { return each.name == key; });
        if (rule == _form.keys.end())
            return _subject + " takes no key '" + key + "'";
        if (!Matches(value, rule->kind))
            return "the key '" + key + "' of " + _subject + " takes " + Describe(rule->kind) + ", not " +
                   ToLine(value);
        return {};
    }

    std::string FaultOfAlternatives() const {
        std::string names;
        std::size_t alternatives = 0;
        std::size_t given = 0;
        for (const KeyRule& rule : _form.keys) {
            if (rule.need != Alternative)
                continue;
            ++alternatives;
            given += _line.contains(rule.name) ? 1U : 0U;
            names += (names.empty() ? "'" : " or '") + rule.name + "'";
        }
        if (alternatives == 0 || given == 1)
            return {};
        return _subject + " needs " + (given == 0 ? "the key " : "only one of the keys ") + names;
    }

    const Json& _line;
    const Form& _form;
    const std::string& _verb;
    std::string _subject;
};

} // namespace

Vocabulary::Vocabulary() {
    for (Form& form : Steps())
        _steps.emplace(form.word, form);
    for (Form& form : Expectations())
        _expectations.emplace(form.word, form);
}

void Vocabulary::AddStep(Form form) {
    std::string word = form.word;
    _steps.insert_or_assign(std::move(word), std::move(form));
}

std::string Vocabulary::Fault(const Json& line) const {
    if (!line.is_object())
        return "a step is an object in braces, not " + ToLine(line);
    const bool isStep = line.contains("do");
    if (isStep == line.contains("expect"))
        return isStep ? "a step has the key 'do' or the key 'expect', not both"
                      : "a step has the key 'do' or the key 'expect'";
    const std::string verb = isStep ? "do" : "expect";
    const Json& word = line.at(verb);
    if (!word.is_string())
        return "the key '" + verb + "' takes a text, not " + ToLine(word);
    const Forms& forms = isStep ? _steps : _expectations;
    const auto form = forms.find(word.get<std::string>());
    if (form != forms.end())
        return Examination(line, form->second, verb).Fault();
    std::string known;
    for (const auto& each : forms)
        known += (known.empty() ? "" : ", ") + each.first;
    return "unknown " + std::string(isStep ? "step" : "expectation") + " '" + word.get<std::string>() +
           "'; there are " + known;
}

} // namespace session
