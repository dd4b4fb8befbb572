#include "session/WidgetValues.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgProgress.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/ValueFrame.h"

namespace session {

namespace {

Json TextOf(const CATUnicodeString& text) {
    return text.ConvertToUTF8();
}

WidgetValue Has(Json value) {
    return {std::move(value), {}};
}

WidgetValue HasNone(const CATDialog& widget, const std::string& what) {
    return {std::nullopt,
            host::DialogPath::Of(widget) + " is a " + std::string(widget.IsA()) + " and has no " + what};
}

template<class Widget>
const Widget* As(const CATDialog& widget) {
    return dynamic_cast<const Widget*>(&widget);
}

template<class Control>
Json LineText(const Control& control, int line) {
    CATUnicodeString text;
    control.GetLine(text, line);
    return TextOf(text);
}

template<class Control>
Json Lines(const Control& control) {
    Json lines = Json::array();
    for (int line = 0; line < control.GetLineCount(); ++line)
        lines.push_back(LineText(control, line));
    return lines;
}

Json Cell(const CATDlgMultiList& list, int row, int column) {
    CATUnicodeString text;
    list.GetColumnItem(column, text, row);
    return TextOf(text);
}

Json Rows(const CATDlgMultiList& list) {
    Json rows = Json::array();
    for (int row = 0; row < list.GetLineCount(); ++row) {
        Json cells = Json::array();
        for (int column = 0; column < list.GetColumnCount(); ++column)
            cells.push_back(Cell(list, row, column));
        rows.push_back(std::move(cells));
    }
    return rows;
}

Json Columns(const CATDlgMultiList& list) {
    Json titles = Json::array();
    for (int column = 0; column < list.GetColumnCount(); ++column) {
        CATUnicodeString title;
        list.GetColumnTitle(column, title);
        titles.push_back(TextOf(title));
    }
    return titles;
}

Json SelectedRows(const CATDlgMultiList& list) {
    std::vector<int> rows(static_cast<std::size_t>(list.GetSelectCount()));
    list.GetSelect(rows.data(), list.GetSelectCount());
    return rows;
}

WidgetValue Text(const CATDialog& widget) {
    if (const auto* editor = As<CATDlgEditor>(widget))
        return Has(TextOf(editor->GetText()));
    if (const auto* combo = As<CATDlgCombo>(widget))
        return Has(LineText(*combo, combo->GetSelect()));
    if (As<CATDlgLabel>(widget) != nullptr)
        return Has(TextOf(widget.GetTitle()));
    if (const auto* spinner = As<CATDlgSpinner>(widget))
        return Has(host::Inspector::ShownText(*spinner));
    if (const auto* field = As<host::ValueFrame>(widget))
        return Has(field->Text());
    return HasNone(widget, "text");
}

WidgetValue Problem(const CATDialog& widget) {
    const auto* field = As<host::ValueFrame>(widget);
    return field == nullptr ? HasNone(widget, "problem") : Has(field->Problem());
}

WidgetValue AllLines(const CATDialog& widget) {
    if (const auto* combo = As<CATDlgCombo>(widget))
        return Has(Lines(*combo));
    if (const auto* editor = As<CATDlgEditor>(widget))
        return Has(Lines(*editor));
    return HasNone(widget, "lines");
}

WidgetValue ChosenLine(const CATDialog& widget) {
    const auto* combo = As<CATDlgCombo>(widget);
    return combo == nullptr ? HasNone(widget, "chosen line") : Has(combo->GetSelect());
}

WidgetValue Selected(const CATDialog& widget) {
    if (const auto* list = As<CATDlgMultiList>(widget))
        return Has(SelectedRows(*list));
    if (const auto* pages = As<CATDlgTabContainer>(widget))
        return Has(pages->GetSelectedPage());
    const auto* combo = As<CATDlgCombo>(widget);
    return combo == nullptr ? HasNone(widget, "selection") : Has(combo->GetSelect());
}

WidgetValue AllRows(const CATDialog& widget) {
    const auto* list = As<CATDlgMultiList>(widget);
    return list == nullptr ? HasNone(widget, "rows") : Has(Rows(*list));
}

WidgetValue AllColumns(const CATDialog& widget) {
    const auto* list = As<CATDlgMultiList>(widget);
    return list == nullptr ? HasNone(widget, "columns") : Has(Columns(*list));
}

WidgetValue Checked(const CATDialog& widget) {
    if (const auto* radio = As<CATDlgRadioButton>(widget))
        return Has(radio->GetState() == CATDlgCheck);
    if (const auto* check = As<CATDlgCheckButton>(widget))
        return Has(check->GetState() == CATDlgCheck);
    return HasNone(widget, "check mark");
}

struct Aspect {
    const char* name;
    WidgetValue (*read)(const CATDialog&);
};

constexpr Aspect aspects[] = {
    {"text", Text},
    {"problem", Problem},
    {"lines", AllLines},
    {"line", ChosenLine},
    {"selected", Selected},
    {"columns", AllColumns},
    {"rows", AllRows},
    {"checked", Checked},
    {"title", [](const CATDialog& widget) { return Has(TextOf(widget.GetTitle())); }},
    {"shown", [](const CATDialog& widget) { return Has(host::DialogUser::CanSee(widget)); }},
    {"enabled", [](const CATDialog& widget) { return Has(host::Inspector::IsEnabledWithParents(widget)); }},
    {"widget", [](const CATDialog& widget) { return Has(widget.IsA()); }}};

/// The aspects that a dump writes where a widget has them; the others stand there in another form.
constexpr const char* dumpedAspects[] = {"text", "lines", "selected", "columns", "rows", "checked"};

/// "12.5mm", or "wide", with the problem behind it.
std::string StateOfField(const host::ValueFrame& field) {
    const std::string text = ToLine(field.Text());
    return field.IsRefused() ? text + ", which is not taken: " + field.Problem() : text;
}

std::string CountedSelection(const CATDlgCombo& combo) {
    const std::string count = std::to_string(combo.GetLineCount()) + " lines";
    if (combo.GetSelect() < 0)
        return count + ", none chosen";
    return count + ", line " + std::to_string(combo.GetSelect()) + " " +
           ToLine(LineText(combo, combo.GetSelect())) + " chosen";
}

} // namespace

WidgetValue ValueOf(const CATDialog& widget, const std::string& aspect) {
    for (const Aspect& each : aspects)
        if (aspect == each.name)
            return each.read(widget);
    return {std::nullopt, "there is no aspect '" + aspect + "'"};
}

WidgetValue CountOf(const CATDialog& widget, const std::string& aspect) {
    if (aspect == "rows") {
        const auto* list = As<CATDlgMultiList>(widget);
        return list == nullptr ? HasNone(widget, "rows") : Has(list->GetLineCount());
    }
    if (const auto* combo = As<CATDlgCombo>(widget))
        return Has(combo->GetLineCount());
    const auto* editor = As<CATDlgEditor>(widget);
    return editor == nullptr ? HasNone(widget, "lines") : Has(editor->GetLineCount());
}

WidgetValue LineOf(const CATDialog& widget, int line) {
    WidgetValue count = CountOf(widget, "lines");
    if (!count.value)
        return count;
    if (line >= count.value->get<int>())
        return HasNone(widget, "line " + std::to_string(line) + ", it has " + ToLine(*count.value));
    if (const auto* combo = As<CATDlgCombo>(widget))
        return Has(LineText(*combo, line));
    return Has(LineText(*As<CATDlgEditor>(widget), line));
}

WidgetValue CellOf(const CATDialog& widget, int row, int column) {
    const auto* list = As<CATDlgMultiList>(widget);
    if (list == nullptr)
        return HasNone(widget, "cells");
    if (row >= list->GetLineCount())
        return HasNone(widget,
                       "row " + std::to_string(row) + ", it has " + std::to_string(list->GetLineCount()));
    if (column >= list->GetColumnCount())
        return HasNone(widget, "column " + std::to_string(column) + ", it has " +
                                   std::to_string(list->GetColumnCount()));
    return Has(Cell(*list, row, column));
}

std::string StateOf(const CATDialog& widget) {
    if (const auto* combo = As<CATDlgCombo>(widget))
        return CountedSelection(*combo);
    if (const auto* list = As<CATDlgMultiList>(widget))
        return std::to_string(list->GetLineCount()) + " rows, selected " + ToLine(SelectedRows(*list));
    if (const auto* pages = As<CATDlgTabContainer>(widget))
        return "page " + std::to_string(pages->GetSelectedPage()) + " in front";
    if (const auto* field = As<host::ValueFrame>(widget))
        return StateOfField(*field);
    const WidgetValue checked = Checked(widget);
    if (checked.value)
        return *checked.value == true ? "checked" : "not checked";
    const WidgetValue text = Text(widget);
    if (text.value)
        return ToLine(*text.value);
    return As<CATDlgProgress>(widget) == nullptr
               ? std::string()
               : "position " + std::to_string(As<CATDlgProgress>(widget)->GetPos());
}

/// x, y, height and width in pixels.
Json PlaceOf(const CATDlgWindow& window) {
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;
    window.GetRectDimensions(&x, &y, &height, &width);
    return {{"x", x}, {"y", y}, {"height", height}, {"width", width}};
}

Json TreeOf(const CATDialog& widget) {
    Json tree{{"class", widget.IsA()}, {"name", widget.GetName().ConvertToChar()}};
    if (host::Inspector::ShowsTitle(widget))
        tree["title"] = TextOf(widget.GetTitle());
    if (widget.GetShortHelp().GetLengthInByte() > 0)
        tree["help"] = TextOf(widget.GetShortHelp());
    if (const auto* window = As<CATDlgWindow>(widget))
        tree["place"] = PlaceOf(*window);
    tree["shown"] = widget.GetVisibility() == CATDlgShow;
    tree["enabled"] = widget.GetSensitivity() == CATDlgEnable;
    for (const char* aspect : dumpedAspects) {
        WidgetValue value = ValueOf(widget, aspect);
        if (value.value)
            tree[aspect] = std::move(*value.value);
    }
    if (const auto* field = As<host::ValueFrame>(widget); field != nullptr && field->IsRefused())
        tree["problem"] = field->Problem();
    if (const auto* progress = As<CATDlgProgress>(widget))
        tree["position"] = progress->GetPos();
    Json children = Json::array();
    for (const CATDialog* child : host::Inspector::Children(widget))
        if (As<CATDlgWindow>(*child) == nullptr)
            children.push_back(TreeOf(*child));
    if (!children.empty())
        tree["children"] = std::move(children);
    return tree;
}

Json TreeOfAll() {
    Json trees = Json::array();
    for (const CATDlgWindow* window : host::Inspector::Windows())
        trees.push_back(TreeOf(*window));
    return trees;
}

} // namespace session
