#pragma once

// Looks for a widget in a dialog whose setters do not hand on what the command has to say.
//
//   OrvKvParameterListSub* list = FirstIn<OrvKvParameterListSub>(*panel);
//   CATDlgCheckButton* box = FirstIn<CATDlgCheckButton>(*panel, Named("ToleranceCkb"));

#include "CATDialog.h"
#include "host/Inspector.h"

#include <string>

namespace workbench {

/// Whether a widget has that name.
inline auto Named(std::string name) {
    return [name = std::move(name)](const CATDialog& widget) {
        return name == widget.GetName().ConvertToChar();
    };
}

/// The first widget of a class below `parent` that is accepted, in order of creation, children before
/// siblings; nullptr when there is none.
template<class Widget, class Accepts>
Widget* FirstIn(const CATDialog& parent, const Accepts& accepts) {
    for (CATDialog* child = host::Inspector::FirstChild(parent); child != nullptr;
         child = host::Inspector::NextSibling(*child)) {
        auto* const found = dynamic_cast<Widget*>(child);
        if (found != nullptr && accepts(*found))
            return found;
        if (Widget* const below = FirstIn<Widget>(*child, accepts))
            return below;
    }
    return nullptr;
}

template<class Widget>
Widget* FirstIn(const CATDialog& parent) {
    return FirstIn<Widget>(parent, [](const CATDialog&) { return true; });
}

} // namespace workbench
