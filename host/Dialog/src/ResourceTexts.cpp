#include "ResourceTexts.h"

#include "CATDialog.h"
#include "WidgetTree.h"
#include "host/MessageCatalogs.h"

namespace host {

namespace {

// Asks the files of the panel's class and the classes above it, in this order, for the first key that is
// there.
const std::string* SearchFiles(const CATDialog& iPanel, ResourceTexts::Search iSearch, std::string_view iKey,
                               std::string_view iOtherKey) {
    std::string_view searched;
    for (int level = 0;; ++level) {
        const char* const name = iPanel.GetResourceFilename(level);
        const std::string_view file = name == nullptr ? std::string_view() : name;
        if (file.empty() || file == searched)
            return nullptr;
        if (const std::string* const text = iSearch(file, iKey, iOtherKey))
            return text;
        searched = file;
    }
}

std::string_view NameOf(const CATDialog& iWidget) {
    const CATString& name = iWidget.GetName();
    return {name.ConvertToChar(), static_cast<std::size_t>(name.GetLengthInChar())};
}

} // namespace

const std::string* ResourceTexts::Text(const CATDialog& iWidget, const char* iKeyword) {
    return Find(iWidget, iKeyword, &MessageCatalogs::FindText);
}

const std::string* ResourceTexts::Value(const CATDialog& iWidget, const char* iKeyword) {
    return Find(iWidget, iKeyword, &MessageCatalogs::FindResource);
}

// The name of the widget and the keyword are the end of the whole key.
const std::string* ResourceTexts::Find(const CATDialog& iWidget, const char* iKeyword, Search iSearch) {
    Place& place = PlaceOf(iWidget);
    if (place.panel == nullptr)
        return nullptr;
    const std::size_t path = place.path.size();
    const bool isPanel = place.panel == &iWidget;
    const std::size_t name = isPanel ? path : path - NameOf(iWidget).size() - 1;
    place.path += iKeyword;
    const std::string_view key = place.path;
    const std::string* const text = SearchFiles(*place.panel, iSearch, key, key.substr(name));
    place.path.resize(path);
    return text;
}

const std::string* ResourceTexts::PanelText(const CATDialog& iWidget, const char* iKey) {
    const CATDialog* const panel = PlaceOf(iWidget).panel;
    return panel == nullptr ? nullptr : SearchFiles(*panel, &MessageCatalogs::FindText, iKey, iKey);
}

void ResourceTexts::RecordMissing(const CATDialog& iWidget, const char* iKeyword) {
    const Place& place = PlaceOf(iWidget);
    if (place.panel != nullptr)
        MessageCatalogs::RecordMissing(std::string(place.panel->GetResourceFilename(0)) + ": " + place.path +
                                       iKeyword);
}

// The texts of a widget are mostly asked for one after the other, so the last place is kept: as long as the
// tree is the same, and the widget's class, which is another one while the widget is being made.
ResourceTexts::Place& ResourceTexts::PlaceOf(const CATDialog& iWidget) {
    static auto* last = new Place;
    const char* const file = iWidget.GetResourceFilename(0);
    if (last->widget == &iWidget && last->file == file && last->tree == WidgetTree::Revision())
        return *last;
    last->widget = &iWidget;
    last->file = file;
    last->tree = WidgetTree::Revision();
    last->panel = PanelOf(iWidget);
    last->path.clear();
    if (last->panel != nullptr)
        AppendPath(*last->panel, iWidget, last->path);
    return *last;
}

const CATDialog* ResourceTexts::PanelOf(const CATDialog& iWidget) {
    for (const CATDialog* widget = &iWidget; widget != nullptr; widget = widget->_parent) {
        const char* file = widget->GetResourceFilename(0);
        if (file != nullptr && *file != '\0')
            return widget;
    }
    return nullptr;
}

void ResourceTexts::AppendPath(const CATDialog& iPanel, const CATDialog& iWidget, std::string& ioPath) {
    if (&iWidget == &iPanel)
        return;
    AppendPath(iPanel, *iWidget._parent, ioPath);
    ioPath.append(NameOf(iWidget)).append(1, '.');
}

} // namespace host
