#include "ChangeLog.h"

#include "CATDialog.h"
#include "host/EventScope.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace host {

namespace {

struct Log {
    DialogChanges changes;
    std::unordered_map<const CATDialog*, std::size_t> changedAt; // place of a widget among the changed
    std::unordered_set<const CATDialog*> fresh;                  // the widgets among the created
    std::vector<DialogObserver*> observers;
    bool isIdleAskedFor = false;
};

Log& Current() {
    static auto* log = new Log;
    return *log;
}

bool IsEmpty(const DialogChanges& iChanges) {
    return iChanges.destroyed.empty() && iChanges.created.empty() && iChanges.changed.empty();
}

bool IsListening(const DialogObserver& iObserver) {
    const std::vector<DialogObserver*>& observers = Current().observers;
    return std::find(observers.begin(), observers.end(), &iObserver) != observers.end();
}

// An observer may take itself or another one away meanwhile.
template<class Call>
void ForEachObserver(const Call& iCall) {
    const std::vector<DialogObserver*> observers = Current().observers;
    for (DialogObserver* observer : observers)
        if (IsListening(*observer))
            iCall(*observer);
}

} // namespace

void ChangeLog::NoteCreation(CATDialog& ioWidget) {
    Current().changes.created.push_back(&ioWidget);
    Current().fresh.insert(&ioWidget);
    AskForIdle();
}

void ChangeLog::NoteDestruction(const CATDialog& iWidget) {
    Log& log = Current();
    const auto known = log.changedAt.find(&iWidget);
    if (known != log.changedAt.end()) {
        log.changes.changed[known->second].first = nullptr;
        log.changedAt.erase(known);
    }
    if (log.fresh.erase(&iWidget) == 0) {
        log.changes.destroyed.push_back(&iWidget);
        ForEachObserver([&iWidget](DialogObserver& ioObserver) { ioObserver.OnDestroyed(iWidget); });
    } else {
        std::vector<CATDialog*>& created = log.changes.created;
        created.erase(std::next(std::find(created.rbegin(), created.rend(), &iWidget)).base());
    }
    AskForIdle();
}

void ChangeLog::NoteChange(CATDialog& ioWidget, unsigned int iKind) {
    Log& log = Current();
    if (log.fresh.count(&ioWidget) > 0)
        return;
    const auto [place, isNew] = log.changedAt.try_emplace(&ioWidget, log.changes.changed.size());
    if (isNew)
        log.changes.changed.emplace_back(&ioWidget, iKind);
    else
        log.changes.changed[place->second].second |= iKind;
    AskForIdle();
}

// What happened before is delivered first: the added observer has it from the tree.
void ChangeLog::AddObserver(DialogObserver& ioObserver) {
    Deliver();
    Current().observers.push_back(&ioObserver);
    UpdateWatching();
}

void ChangeLog::RemoveObserver(DialogObserver& ioObserver) {
    std::vector<DialogObserver*>& observers = Current().observers;
    observers.erase(std::remove(observers.begin(), observers.end(), &ioObserver), observers.end());
    UpdateWatching();
}

// A delivery may cause further changes; those are delivered too, until there are none.
void ChangeLog::Deliver() {
    Log& log = Current();
    log.isIdleAskedFor = false;
    while (!IsEmpty(log.changes)) {
        DialogChanges changes;
        std::swap(changes, log.changes);
        log.changedAt.clear();
        log.fresh.clear();
        std::vector<std::pair<CATDialog*, unsigned int>>& changed = changes.changed;
        changed.erase(std::remove_if(changed.begin(), changed.end(),
                                     [](const auto& iChange) { return iChange.first == nullptr; }),
                      changed.end());
        ForEachObserver([&changes](DialogObserver& ioObserver) { ioObserver.OnChanges(changes); });
    }
}

void ChangeLog::UpdateWatching() {
    CATDialog::_isWatched = !Current().observers.empty();
    EventScope::SetFlush(CATDialog::_isWatched ? &ChangeLog::Deliver : nullptr);
    if (CATDialog::_isWatched)
        return;
    Current().changes = DialogChanges();
    Current().changedAt.clear();
    Current().fresh.clear();
    Current().isIdleAskedFor = false;
}

void ChangeLog::AskForIdle() {
    Log& log = Current();
    if (EventScope::IsOpen() || log.isIdleAskedFor)
        return;
    log.isIdleAskedFor = true;
    ForEachObserver([](DialogObserver& ioObserver) { ioObserver.OnIdleNeeded(); });
}

void DialogObserver::Add(DialogObserver& ioObserver) {
    ChangeLog::AddObserver(ioObserver);
}

void DialogObserver::Remove(DialogObserver& ioObserver) {
    ChangeLog::RemoveObserver(ioObserver);
}

} // namespace host
