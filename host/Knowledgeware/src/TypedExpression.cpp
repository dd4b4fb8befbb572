#include "TypedExpression.h"

#include "BinaryNoise.h"
#include "EntryTexts.h"
#include "TypedNumber.h"
#include "Unit.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace host {

namespace {

constexpr int deepest = 100; // parentheses in one another

constexpr char numberToken = 'n';
constexpr char negation = '~'; // of the parenthesis that follows

// A number, or one of + - * / ( ) and the negation.
struct Token {
    char kind = numberToken;
    double number = 0.0;
    const Unit* unit = nullptr; // behind a number or a closing parenthesis
};

bool IsOneOf(char iCharacter, const char* iSet) {
    return iCharacter != '\0' && std::string_view(iSet).find(iCharacter) != std::string_view::npos;
}

// Cuts a text into tokens that make a computation: numbers and operators in turn, parentheses in pairs. They
// may still be impossible to compute.
class Lexer {
  public:
    Lexer(const std::string& iText, const std::string& iMagnitude)
        : _text(WithoutOuterBlanks(iText)), _magnitude(iMagnitude) {}

    Outcome Cut(std::vector<Token>& oTokens) {
        do {
            Outcome next = _needsNumber ? CutNumber() : CutBehindNumber();
            if (!next)
                return next;
            SkipBlanks();
        } while (_position < _text.size());
        if (_needsNumber)
            return NoNumberBehind(_text.back());
        if (_depth > 0)
            return Refuse(EntryText::OpenParenthesis);
        oTokens = std::move(_tokens);
        return Outcome::Done();
    }

  private:
    Outcome Refuse(EntryText iWhy, const std::string& iDetail = std::string()) const {
        return RefusedFor(iWhy, {Shortened(_text), iDetail});
    }
    Outcome NoNumberBehind(char iOperator) const {
        return Refuse(EntryText::NoNumberBehind, std::string(1, iOperator));
    }

    char Here() const { return _position < _text.size() ? _text[_position] : '\0'; }
    void SkipBlanks() {
        while (IsOneOf(Here(), blanks))
            ++_position;
    }
    void Push(char iOperator) { _tokens.push_back(Token{iOperator, 0.0, nullptr}); }

    // A number with its sign and unit, or what stands before one.
    Outcome CutNumber() {
        if (Here() == '(')
            return Open();
        if (IsOneOf(Here(), "+-") && NegatesParenthesis())
            return CutSign();
        if (IsOneOf(Here(), "*/)"))
            return _position == 0 ? Refuse(EntryText::NoNumberBefore, std::string(1, Here()))
                                  : NoNumberBehind(_tokens.back().kind);
        const std::string run = TakeRun();
        const bool isSign = run == "+" || run == "-";
        if (isSign && run.size() < _text.size())
            return NoNumberBehind(run.front());
        TypedNumber typed;
        Outcome read = TypedNumber::Read(run, typed);
        if (!read)
            return read;
        _tokens.push_back(Token{numberToken, typed.number, nullptr});
        _needsNumber = false;
        return typed.unit.empty() ? read : TakeUnit(typed.unit);
    }

    bool NegatesParenthesis() const {
        const std::size_t next = _text.find_first_not_of(blanks, _position + 1);
        return next != std::string::npos && _text[next] == '(';
    }

    Outcome CutSign() {
        if (Here() == '-')
            Push(negation);
        ++_position;
        return Outcome::Done();
    }

    // An operator, a closing parenthesis, or the unit behind one.
    Outcome CutBehindNumber() {
        const char here = Here();
        if (here == '(')
            return Refuse(EntryText::NoOperatorBefore);
        if (here == ')')
            return Close();
        if (!IsOneOf(here, "+-*/"))
            return CutUnit();
        Push(here);
        ++_position;
        _needsNumber = true;
        return Outcome::Done();
    }

    Outcome CutUnit() {
        const std::string run = TakeRun();
        return IsOneOf(run.front(), "0123456789.,") ? Refuse(EntryText::NoOperatorBehind) : TakeUnit(run);
    }

    Outcome TakeUnit(const std::string& iName) {
        const Unit* const unit = Unit::Find(iName, _magnitude);
        _tokens.back().unit = unit;
        if (unit != nullptr)
            return Outcome::Done();
        const std::string known = Unit::ListOf(_magnitude);
        return RefusedFor(known.empty() ? EntryText::NotAUnitWhereNoneExists : EntryText::NotAUnit,
                          {Shortened(iName), WordFor(_magnitude), known});
    }

    Outcome Open() {
        if (++_depth > deepest)
            return Refuse(EntryText::TooManyParentheses, std::to_string(deepest));
        Push('(');
        ++_position;
        return Outcome::Done();
    }

    Outcome Close() {
        if (--_depth < 0)
            return Refuse(EntryText::NotOpenParenthesis);
        Push(')');
        ++_position;
        return Outcome::Done();
    }

    // Up to the next operator or parenthesis; a sign that begins it, and one of an exponent, belong to it.
    std::string TakeRun() {
        const std::size_t first = _position++;
        while (_position < _text.size() && (!IsOneOf(Here(), "+-*/()") || IsInExponent()))
            ++_position;
        return WithoutOuterBlanks(_text.substr(first, _position - first));
    }

    bool IsInExponent() const {
        return IsOneOf(Here(), "+-") && _position >= 2 && IsOneOf(_text[_position - 1], "eE") &&
               IsOneOf(_text[_position - 2], "0123456789.,") && _position + 1 < _text.size() &&
               IsOneOf(_text[_position + 1], "0123456789");
    }

    const std::string _text;
    const std::string& _magnitude;
    std::vector<Token> _tokens;
    std::size_t _position = 0;
    int _depth = 0;
    bool _needsNumber = true;
};

// A number that measures something: a length has the power 1, an area 2, a ratio of lengths 0.
struct Amount {
    double number = 0.0;
    int power = 0;
    bool isBare = true; // no unit was typed for it or for what it was computed of
};

// Computes what a Lexer has cut. A computation that fails goes on with whatever it has; the first problem
// counts.
class Computation {
  public:
    explicit Computation(const std::vector<Token>& iTokens)
        : _next(iTokens.data()), _end(_next + iTokens.size()) {
        for (const Token& token : iTokens) {
            if (token.unit == nullptr)
                continue;
            _hasSeveralUnits = _hasSeveralUnits || (_unit != nullptr && _unit != token.unit);
            _unit = token.unit;
        }
    }

    // In storage units.
    double Result() {
        const Amount sum = Sum();
        if (sum.power != (_unit == nullptr ? 0 : 1))
            NoteProblem(EntryText::OtherMagnitude);
        const double stored = _unit == nullptr || _hasSeveralUnits ? sum.number : sum.number * _unit->stored;
        return Checked(stored);
    }
    const std::optional<EntryText>& Problem() const { return _problem; }

  private:
    void NoteProblem(EntryText iProblem) {
        if (!_problem)
            _problem = iProblem;
    }

    double Checked(double iNumber) {
        if (!std::isfinite(iNumber))
            NoteProblem(EntryText::TooLarge);
        return iNumber;
    }

    // The next token if it is one of iKinds, and goes on to the one behind it; else null.
    const Token* Accept(const char* iKinds) {
        return _next != _end && IsOneOf(_next->kind, iKinds) ? _next++ : nullptr;
    }

    Amount Sum() {
        Amount sum = Product();
        while (const Token* const sign = Accept("+-"))
            sum = Added(sum, Product(), sign->kind == '-' ? -1.0 : 1.0);
        return sum;
    }

    Amount Product() {
        Amount product;
        product.number = 1.0;
        char sign = '*';
        do {
            const Unit* unit = nullptr;
            Amount factor = Factor(unit);
            // "1/2 in" is half an inch: the unit is that of the product, unless the product has one already.
            const bool isUnitOfProduct = unit != nullptr && product.power == 0;
            if (!isUnitOfProduct)
                factor = WithUnit(factor, unit);
            product = sign == '*' ? Multiplied(product, factor) : Divided(product, factor);
            if (isUnitOfProduct)
                product = WithUnit(product, unit);
            const Token* const next = Accept("*/");
            sign = next == nullptr ? '\0' : next->kind;
        } while (sign != '\0');
        return product;
    }

    // A number or a parenthesis, without the unit behind it.
    Amount Factor(const Unit*& oUnit) {
        const double sign = Accept("~") == nullptr ? 1.0 : -1.0;
        Amount factor;
        if (Accept("(") != nullptr) {
            factor = Sum();
            oUnit = Accept(")")->unit;
        } else {
            factor.number = _next->number;
            oUnit = (_next++)->unit;
        }
        factor.number *= sign;
        return factor;
    }

    // With one unit in the whole text, everything is computed in that unit.
    Amount WithUnit(Amount iAmount, const Unit* iUnit) {
        if (iUnit == nullptr)
            return iAmount;
        if (iAmount.power != 0)
            NoteProblem(EntryText::SecondUnit);
        const double stored = _hasSeveralUnits ? iUnit->stored : 1.0;
        return Amount{Checked(iAmount.number * stored), iAmount.power + 1, false};
    }

    // A number without unit next to one with a unit has that unit too.
    Amount Added(const Amount& iLeft, const Amount& iRight, double iSign) {
        const bool isBare = iLeft.isBare && iRight.isBare;
        const int power = std::max(iLeft.power, iRight.power);
        if (iLeft.power != iRight.power) {
            const Amount& plain = iLeft.power < iRight.power ? iLeft : iRight;
            if (!plain.isBare || power != 1)
                NoteProblem(EntryText::UnlikeTerms);
            else if (_hasSeveralUnits)
                NoteProblem(EntryText::NumberWithoutUnit);
        }
        return Amount{Checked(SumWithoutBinaryNoise(iLeft.number, iSign * iRight.number)), power, isBare};
    }

    Amount Multiplied(const Amount& iLeft, const Amount& iRight) {
        const double number = Checked(iLeft.number * iRight.number);
        if (number == 0.0 && iLeft.number != 0.0 && iRight.number != 0.0)
            NoteProblem(EntryText::TooSmall);
        return Amount{number, iLeft.power + iRight.power, iLeft.isBare && iRight.isBare};
    }

    Amount Divided(const Amount& iLeft, const Amount& iRight) {
        if (iRight.number == 0.0)
            NoteProblem(EntryText::DivisionByZero);
        const double number = Checked(iLeft.number / iRight.number);
        if (number == 0.0 && iLeft.number != 0.0)
            NoteProblem(EntryText::TooSmall);
        return Amount{number, iLeft.power - iRight.power, iLeft.isBare && iRight.isBare};
    }

    const Token* _next;
    const Token* const _end;
    const Unit* _unit = nullptr; // the last one that was typed; the only one unless there are several
    bool _hasSeveralUnits = false;
    std::optional<EntryText> _problem;
};

} // namespace

Outcome TypedExpression::Read(const std::string& iText, const std::string& iMagnitude, double& oStored) {
    std::vector<Token> tokens;
    Outcome cut = Lexer(iText, iMagnitude).Cut(tokens);
    if (!cut)
        return cut;
    Computation computation(tokens);
    const double stored = computation.Result();
    if (computation.Problem())
        return RefusedFor(*computation.Problem(),
                          {Shortened(WithoutOuterBlanks(iText)), WordFor(iMagnitude)});
    const bool isComputed = tokens.size() > 1;
    oStored = isComputed ? WithoutBinaryNoise(stored) : stored;
    return cut;
}

} // namespace host
