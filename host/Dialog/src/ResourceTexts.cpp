#include "ResourceTexts.h"

#include "CATDialog.h"
#include "host/MessageCatalogs.h"

namespace host {

namespace {

// Asks the files of the panel's class and the classes above it, in this order, for the first key that is
// there.
std::optional<std::string> SearchFiles(const CATDialog& iPanel, ResourceTexts::Search iSearch,
                                       const std::string& iKey, const std::string& iOtherKey) {
    std::string searched;
    for (int level = 0;; ++level) {
        const char* name = iPanel.GetResourceFilename(level);
        const std::string file = name == nullptr ? std::string() : name;
        if (file.empty() || file == searched)
            return std::nullopt;
        std::optional<std::string> text = iSearch(file, iKey);
        if (!text.has_value() && iOtherKey != iKey)
            text = iSearch(file, iOtherKey);
        if (text.has_value())
            return text;
        searched = file;
    }
}

std::string JoinedKey(const std::string& iPath, const std::string& iKeyword) {
    return iPath.empty() ? iKeyword : iPath + "." + iKeyword;
}

} // namespace

std::optional<std::string> ResourceTexts::Text(const CATDialog& iWidget, const std::string& iKeyword,
                                               bool iIsWanted) {
    std::optional<std::string> text = Find(iWidget, iKeyword, &MessageCatalogs::Text);
    const CATDialog* const panel = PanelOf(iWidget);
    if (!text.has_value() && iIsWanted && panel != nullptr)
        MessageCatalogs::RecordMissing(std::string(panel->GetResourceFilename(0)) + ": " +
                                       JoinedKey(PathBelow(*panel, iWidget), iKeyword));
    return text;
}

std::optional<std::string> ResourceTexts::Value(const CATDialog& iWidget, const std::string& iKeyword) {
    return Find(iWidget, iKeyword, &MessageCatalogs::Resource);
}

std::optional<std::string> ResourceTexts::Find(const CATDialog& iWidget, const std::string& iKeyword,
                                               Search iSearch) {
    const CATDialog* const panel = PanelOf(iWidget);
    if (panel == nullptr)
        return std::nullopt;
    const std::string key = JoinedKey(PathBelow(*panel, iWidget), iKeyword);
    const std::string name = panel == &iWidget ? std::string() : iWidget.GetName().ConvertToChar();
    return SearchFiles(*panel, iSearch, key, JoinedKey(name, iKeyword));
}

std::optional<std::string> ResourceTexts::PanelText(const CATDialog& iWidget, const std::string& iKey) {
    const CATDialog* const panel = PanelOf(iWidget);
    if (panel == nullptr)
        return std::nullopt;
    return SearchFiles(*panel, &MessageCatalogs::Text, iKey, iKey);
}

const CATDialog* ResourceTexts::PanelOf(const CATDialog& iWidget) {
    for (const CATDialog* widget = &iWidget; widget != nullptr; widget = widget->_parent) {
        const char* file = widget->GetResourceFilename(0);
        if (file != nullptr && *file != '\0')
            return widget;
    }
    return nullptr;
}

std::string ResourceTexts::PathBelow(const CATDialog& iPanel, const CATDialog& iWidget) {
    if (&iWidget == &iPanel)
        return std::string();
    std::string path = iWidget.GetName().ConvertToChar();
    for (const CATDialog* widget = iWidget._parent; widget != &iPanel; widget = widget->_parent)
        path.insert(0, std::string(widget->GetName().ConvertToChar()) + ".");
    return path;
}

} // namespace host
