#include "InputSelection.h"

#include "CommandTexts.h"

namespace workbench {

namespace {

using engineering::Element;
using engineering::ElementKind;
using engineering::Input;

bool Takes(const Input& input, ElementKind kind) {
    return input.kinds.count(kind) != 0;
}

const char* KeyOf(ElementKind kind) {
    switch (kind) {
    case ElementKind::Point:
        return "Kind.Point";
    case ElementKind::Line:
        return "Kind.Line";
    case ElementKind::Plane:
        break;
    }
    return "Kind.Plane";
}

// The kinds, as in "line or plane".
CATUnicodeString TextOf(const std::set<ElementKind>& kinds) {
    CATUnicodeString text;
    for (const ElementKind kind : kinds)
        text = text == "" ? CommandText(KeyOf(kind)) : CommandText("Or", {text, CommandText(KeyOf(kind))});
    return text;
}

host::Outcome Refuse(const CATUnicodeString& reason) {
    return host::Outcome::Refused(reason.ConvertToUTF8());
}

} // namespace

InputSelection::InputSelection(const engineering::Part& part) : _part(part) {}

void InputSelection::UseType(const engineering::FeatureType* type) {
    _inputs = type == nullptr ? std::vector<Input>() : type->Inputs();
    for (int number = 1; number <= maximum && type != nullptr; ++number) {
        const Input* const input = Find(number);
        const Element*& element = _elements[static_cast<std::size_t>(number - 1)];
        if (input == nullptr || (element != nullptr && !Takes(*input, element->kind)))
            element = nullptr;
    }
    AwaitNext();
}

const Input* InputSelection::Find(int input) const {
    for (const Input& each : _inputs)
        if (each.number == input)
            return &each;
    return nullptr;
}

std::set<ElementKind> InputSelection::AwaitedKinds() const {
    const Input* const input = Find(_awaited);
    return input == nullptr ? std::set<ElementKind>() : input->kinds;
}

const Element* InputSelection::ElementOf(int input) const {
    return input < 1 || input > maximum ? nullptr : _elements[static_cast<std::size_t>(input - 1)];
}

std::vector<std::string> InputSelection::PickedNames() const {
    std::vector<std::string> names;
    for (const Element* element : _elements)
        if (element != nullptr)
            names.push_back(element->name);
    return names;
}

void InputSelection::Await(int input) {
    if (Has(input))
        _awaited = input;
}

void InputSelection::AwaitNext() {
    _awaited = 0;
    for (int number = 1; number <= maximum && _awaited == 0; ++number)
        if (Has(number) && ElementOf(number) == nullptr)
            _awaited = number;
}

host::Outcome InputSelection::Pick(const std::string& name) {
    const Input* const input = Find(_awaited);
    if (input == nullptr)
        return Refuse(CommandText("NoInputWaits"));
    const CATUnicodeString shown(name.c_str());
    const Element* const element = _part.Find(name);
    if (element == nullptr)
        return Refuse(CommandText("NoSuchElement", {shown}));
    if (!Takes(*input, element->kind))
        return Refuse(CommandText("WrongKind", {shown, TextOf({element->kind}), TextOf(input->kinds)}));
    _elements[static_cast<std::size_t>(_awaited - 1)] = element;
    AwaitNext();
    return host::Outcome::Done();
}

} // namespace workbench
