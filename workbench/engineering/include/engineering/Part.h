#pragma once

// A part that features are placed on: named points, lines and planes. Immutable once made.
//
//   const Element* face = part.Find("Top face");
//   if (face != nullptr && face->kind == ElementKind::Plane) ... face->direction ...

#include "engineering/ElementKind.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

struct Vector {
    double x = 0;
    double y = 0;
    double z = 0;

    bool operator==(const Vector&) const = default;
};

struct Element {
    std::string name; ///< unique within its part
    ElementKind kind = ElementKind::Point;
    Vector point;     ///< the point, or a point of the line or plane; in mm
    Vector direction; ///< unit direction of a line, unit normal of a plane; zero for a point
};

class Part {
  public:
    /// Takes everything over. The names of the elements are unique.
    Part(std::string name, std::vector<Element> elements);

    const std::string& Name() const { return _name; }

    /// All elements in the order of the file.
    const std::vector<Element>& Elements() const { return _elements; }

    /// The element of that exact name, or nullptr.
    const Element* Find(std::string_view name) const;

  private:
    std::string _name;
    std::vector<Element> _elements;
    std::map<std::string, std::size_t, std::less<>> _index; ///< name to position in _elements
};

} // namespace engineering
