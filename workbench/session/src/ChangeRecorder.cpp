#include "ChangeRecorder.h"

#include "CATDlgWindow.h"
#include "host/DialogPath.h"
#include "host/Inspector.h"
#include "session/Counted.h"
#include "session/WidgetValues.h"

#include <algorithm>
#include <set>

namespace session {

namespace {

struct NamedKind {
    unsigned int kind;
    const char* name;
};

constexpr NamedKind namedKinds[] = {{host::ChangeTitle, "title"},
                                    {host::ChangeVisibility, "visibility"},
                                    {host::ChangeSensitivity, "usability"},
                                    {host::ChangeContent, "content"},
                                    {host::ChangeSelection, "selection"},
                                    {host::ChangeState, "state"},
                                    {host::ChangeHelp, "help"},
                                    {host::ChangeIcon, "icon"},
                                    {host::ChangeLayout, "layout"},
                                    {host::ChangeGeometry, "place"}};

std::string NamesOf(unsigned int kinds) {
    std::string names;
    for (const NamedKind& each : namedKinds)
        if ((kinds & each.kind) != 0)
            names += (names.empty() ? "" : ", ") + std::string(each.name);
    return names;
}

void KnowAll(const CATDialog& widget, std::unordered_map<const CATDialog*, std::string>& paths) {
    paths[&widget] = host::DialogPath::Of(widget);
    for (const CATDialog* child : host::Inspector::Children(widget))
        KnowAll(*child, paths);
}

std::string WithThoseBelow(std::size_t below) {
    return below == 0 ? std::string() : " and " + Counted(below, "widget") + " below";
}

/// Orders paths so that whatever is below a widget follows it directly.
struct TreeOrder {
    bool operator()(const std::string& left, const std::string& right) const {
        return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                            [](char a, char b) { return Rank(a) < Rank(b); });
    }
    static int Rank(char character) { return character == '/' ? -1 : static_cast<unsigned char>(character); }
};

using Paths = std::multiset<std::string, TreeOrder>;

/// The paths that are below no other one, with the number of those below each.
std::vector<std::pair<std::string, std::size_t>> Topmost(const Paths& paths) {
    std::vector<std::pair<std::string, std::size_t>> topmost;
    for (const std::string& path : paths) {
        if (!topmost.empty() && path.starts_with(topmost.back().first + "/"))
            ++topmost.back().second;
        else
            topmost.emplace_back(path, 0);
    }
    return topmost;
}

} // namespace

ChangeRecorder::ChangeRecorder() {
    for (const CATDlgWindow* window : host::Inspector::Windows())
        KnowAll(*window, _paths);
    host::DialogObserver::Add(*this);
}

ChangeRecorder::~ChangeRecorder() {
    host::DialogObserver::Remove(*this);
}

void ChangeRecorder::OnChanges(const host::DialogChanges& changes) {
    NoteDestroyed(changes.destroyed);
    NoteCreated(changes.created);
    for (const auto& [widget, kinds] : changes.changed) {
        if (host::Inspector::Parent(*widget) == nullptr)
            continue; // the main window, which nobody sees
        const std::string state = StateOf(*widget);
        _sentences.push_back("changed " + host::DialogPath::Of(*widget) + " (" + NamesOf(kinds) + ")" +
                             (state.empty() ? "" : ": " + state));
    }
}

void ChangeRecorder::NoteDestroyed(const std::vector<const CATDialog*>& destroyed) {
    Paths paths;
    for (const CATDialog* widget : destroyed) {
        const auto known = _paths.find(widget);
        if (known == _paths.end())
            continue;
        paths.insert(known->second);
        _paths.erase(known);
    }
    for (const auto& [path, below] : Topmost(paths))
        _sentences.push_back("destroyed " + path + WithThoseBelow(below));
}

void ChangeRecorder::NoteCreated(const std::vector<CATDialog*>& created) {
    Paths paths;
    for (const CATDialog* widget : created) {
        _paths[widget] = host::DialogPath::Of(*widget);
        paths.insert(_paths[widget]);
    }
    for (const auto& [path, below] : Topmost(paths))
        _sentences.push_back("created " + path + WithThoseBelow(below));
}

} // namespace session
