#include "engineering/Part.h"

#include <utility>

namespace engineering {

Part::Part(std::string name, std::vector<Element> elements)
    : _name(std::move(name)), _elements(std::move(elements)) {
    for (std::size_t i = 0; i < _elements.size(); ++i) {
        _index.emplace(_elements[i].name, i);
    }
}

const Element* Part::Find(std::string_view name) const {
    const auto found = _index.find(name);
    return found == _index.end() ? nullptr : &_elements[found->second];
}

} // namespace engineering
