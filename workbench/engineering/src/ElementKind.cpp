#include "engineering/ElementKind.h"

#include <array>

namespace engineering {

namespace {

constexpr std::array<std::string_view, 3> names{"point", "line", "plane"}; // in the order of ElementKind

} // namespace

std::optional<ElementKind> ElementKindNamed(std::string_view name) {
    for (const ElementKind kind : {ElementKind::Point, ElementKind::Line, ElementKind::Plane}) {
        if (NameOf(kind) == name) {
            return kind;
        }
    }
    return std::nullopt;
}

std::string_view NameOf(ElementKind kind) {
    return names[static_cast<std::size_t>(kind)];
}

} // namespace engineering
