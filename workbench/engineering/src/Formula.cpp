#include "Formula.h"

#include <algorithm>
#include <cmath>
#include <muParser.h>
#include <numbers>
#include <regex>
#include <utility>

namespace engineering {

namespace {

using mu::value_type;

value_type Radians(value_type degrees) {
    return degrees * std::numbers::pi / 180.0;
}

value_type Abs(value_type x) {
    return std::abs(x);
}

value_type Sqrt(value_type x) {
    return std::sqrt(x);
}

value_type Sin(value_type degrees) {
    return std::sin(Radians(degrees));
}

value_type Cos(value_type degrees) {
    return std::cos(Radians(degrees));
}

value_type Tan(value_type degrees) {
    return std::tan(Radians(degrees));
}

value_type Min(value_type x, value_type y) {
    return std::fmin(x, y);
}

value_type Max(value_type x, value_type y) {
    return std::fmax(x, y);
}

bool Assigns(const mu::Parser& parser) {
    for (const mu::SToken* token = parser.GetByteCode().GetBase(); token->Cmd != mu::cmEND; ++token) {
        if (token->Cmd == mu::cmASSIGN) {
            return true;
        }
    }
    return false;
}

// The sentence of the parser, such as "Unexpected token "x " found at position 3.", without capital and full
// stop and with the place counted from 1.
std::string Sentence(const mu::ParserError& error, std::size_t length) {
    static const std::regex place(" (found )?at (expression )?position -?[0-9]+");
    static const std::regex ending(R"([.!]$)");
    std::string text = std::regex_replace(error.GetMsg(), ending, "");
    const bool hasPlace = error.GetPos() >= 0 && std::regex_search(text, place);
    text = std::regex_replace(text, place, "");
    if (text.ends_with(" \"")) {
        text.replace(text.size() - 2, 2, "\"");
    }
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z') {
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    }
    if (!hasPlace) {
        return text;
    }
    const std::size_t at = std::min(static_cast<std::size_t>(error.GetPos()), length); // it adds a blank
    return text + " at character " + std::to_string(at + 1);
}

} // namespace

struct Formula::Machine {
    mu::Parser parser;
    Values values; ///< what the parser reads; nodes of a map stay where they are

    Machine() {
        parser.ClearFun();
        parser.DefineFun("abs", Abs);
        parser.DefineFun("sqrt", Sqrt);
        parser.DefineFun("sin", Sin);
        parser.DefineFun("cos", Cos);
        parser.DefineFun("tan", Tan);
        parser.DefineFun("min", Min);
        parser.DefineFun("max", Max);
    }

    void BindNames() {
        for (const auto& [name, unbound] : parser.GetUsedVar()) {
            values.emplace(name, 0.0);
        }
        for (auto& [name, value] : values) {
            parser.DefineVar(name, &value);
        }
    }
};

Parsed<Formula> Formula::Read(const std::string& text) {
    auto machine = std::make_unique<Machine>();
    try {
        machine->parser.SetExpr(text);
        machine->BindNames();
        static_cast<void>(machine->parser.Eval());
    } catch (const mu::ParserError& error) {
        return Parsed<Formula>::Failed(Sentence(error, text.size()));
    }
    if (Assigns(machine->parser)) {
        return Parsed<Formula>::Failed("a value cannot be assigned, write == to compare");
    }
    if (machine->parser.GetNumResults() != 1) {
        return Parsed<Formula>::Failed("there is more than one result");
    }
    return Parsed<Formula>::Of(Formula(std::move(machine)));
}

Formula::Formula(std::unique_ptr<Machine> machine) : _machine(std::move(machine)) {}
Formula::Formula(Formula&&) noexcept = default;
Formula& Formula::operator=(Formula&&) noexcept = default;
Formula::~Formula() = default;

std::vector<std::string> Formula::Names() const {
    std::vector<std::string> names;
    for (const auto& [name, value] : _machine->values) {
        names.push_back(name);
    }
    return names;
}

std::optional<double> Formula::Result(const Values& values) const {
    for (auto& [name, value] : _machine->values) {
        const auto given = values.find(name);
        if (given == values.end() || !std::isfinite(given->second)) {
            return std::nullopt;
        }
        value = given->second;
    }
    try {
        const double result = _machine->parser.Eval();
        return std::isfinite(result) ? std::optional(result) : std::nullopt;
    } catch (const mu::ParserError&) {
        return std::nullopt;
    }
}

} // namespace engineering
