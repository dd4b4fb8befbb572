#pragma once

// The kinds of geometry elements that a part has and an input of a feature takes.
//
//   ElementKindNamed("plane") == ElementKind::Plane;

#include <optional>
#include <string_view>

namespace engineering {

enum class ElementKind { Point, Line, Plane };

/// The kind of that exact name (point, line, plane), or none.
std::optional<ElementKind> ElementKindNamed(std::string_view name);

/// The name of a kind, in small letters.
std::string_view NameOf(ElementKind kind);

} // namespace engineering
