#pragma once

// What a session can ask of a widget, as JSON.
//
//   Reading of a combo:  ValueOf(combo, "line").value == 2, ValueOf(combo, "text").value == "Counterbore"

#include "session/Json.h"

#include <optional>
#include <string>
#include <vector>

class CATDialog;

namespace session {

struct WidgetValue {
    std::optional<Json> value;
    std::string reason; ///< why the widget has no such value; empty when it has
};

/// The value of one aspect:
///
///   text      editor, combo, label, spinner, value field: the text a person reads in it; of a combo its
///             chosen line
///   problem   value field: why the text in it is not taken, empty when it is
///   title     any widget: its title, whether it is drawn or not
///   lines     combo, editor: all lines
///   line      combo: number of the chosen line, -1 for none
///   selected  list: the selected rows; combo, tab container: the number of the chosen line or page
///   rows      list: all rows, each a list of its cells
///   columns   list: the column titles
///   checked   radio button, check button
///   shown     any widget: whether a person sees it: it, its parents, its page
///   enabled   any widget: whether it and all its parents are enabled
///   widget    any widget: its class
WidgetValue ValueOf(const CATDialog& widget, const std::string& aspect);

/// The number of lines or rows, for `lines` and `rows`, without reading them.
WidgetValue CountOf(const CATDialog& widget, const std::string& aspect);
/// The text of one line of a combo or editor.
WidgetValue LineOf(const CATDialog& widget, int line);
/// The text of one cell of a list.
WidgetValue CellOf(const CATDialog& widget, int row, int column);

/// A few words on what the widget shows now; empty where there is nothing to say.
std::string StateOf(const CATDialog& widget);

/// The tree below a widget: class, name and every value, children below "children".
Json TreeOf(const CATDialog& widget);
/// The trees of all windows, in order of creation.
Json TreeOfAll();

} // namespace session
