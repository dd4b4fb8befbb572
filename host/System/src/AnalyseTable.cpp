#include "AnalyseTable.h"

#include <algorithm>

namespace host {

namespace {
int liveEntries = 0;
}

AnalyseTable& AnalyseTable::Of(CATCommand& ioCommand) {
    if (ioCommand._analyseTable == nullptr) {
        ioCommand._analyseTable = new AnalyseTable;
        ioCommand._analyseTable->_owner = &ioCommand;
    }
    return *ioCommand._analyseTable;
}

void AnalyseTable::Add(CATCommand& ioOwner, const Entry& iEntry) {
    Of(ioOwner)._entries.push_back(iEntry);
    ++liveEntries;
    if (iEntry.publisher != nullptr && iEntry.publisher != &ioOwner)
        Of(*iEntry.publisher)._listeners.push_back(&ioOwner);
}

void AnalyseTable::Remove(CATCommand& ioOwner, const Entry& iPattern) {
    AnalyseTable* const table = ioOwner._analyseTable;
    if (table == nullptr)
        return;
    for (Entry& entry : table->_entries)
        if (entry.publisher == iPattern.publisher && entry.notification == iPattern.notification &&
            entry.notificationClass == iPattern.notificationClass && entry.data == iPattern.data)
            table->EndEntry(entry);
    table->Sweep();
}

void AnalyseTable::End(CATCommand& ioCommand) {
    AnalyseTable* const table = ioCommand._analyseTable;
    for (Entry& entry : table->_entries)
        table->EndEntry(entry);
    for (CATCommand* listener : std::vector<CATCommand*>(table->_listeners))
        if (listener->_analyseTable != nullptr)
            listener->_analyseTable->EndEntriesOn(ioCommand);
    ioCommand._analyseTable = nullptr;
    table->_owner = nullptr;
    table->Sweep();
}

bool AnalyseTable::RunEntries(CATCommand* const& iSender, CATNotification& ioNotification) {
    bool ran = false;
    const std::size_t count = _entries.size();
    const Running running(*this);
    for (std::size_t index = 0; index < count && _owner != nullptr; ++index) {
        if (!Matches(_entries[index], iSender, ioNotification))
            continue;
        ran = true;
        const Entry entry = _entries[index]; // a callback may add entries
        (_owner->*entry.method)(iSender, &ioNotification, entry.data);
    }
    return ran;
}

int AnalyseTable::CountOf(const CATCommand& iOwner) {
    if (iOwner._analyseTable == nullptr)
        return 0;
    const std::vector<Entry>& entries = iOwner._analyseTable->_entries;
    return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                          [](const Entry& iEntry) { return iEntry.method != nullptr; }));
}

int AnalyseTable::CountOfAll() {
    return liveEntries;
}

bool AnalyseTable::Matches(const Entry& iEntry, const CATCommand* iSender,
                           const CATNotification& iNotification) const {
    if (iEntry.method == nullptr || (iEntry.publisher != nullptr && iEntry.publisher != iSender))
        return false;
    if (iEntry.notification != nullptr)
        return iEntry.notification == &iNotification;
    return iEntry.notificationClass == nullptr || iNotification.IsAKindOf(iEntry.notificationClass) != 0;
}

void AnalyseTable::EndEntry(Entry& ioEntry) {
    if (ioEntry.method == nullptr)
        return;
    ioEntry.method = nullptr;
    _hasEndedEntries = true;
    --liveEntries;
    CATCommand* const publisher = ioEntry.publisher;
    if (publisher != nullptr && publisher != _owner && publisher->_analyseTable != nullptr)
        publisher->_analyseTable->ForgetListener(*_owner);
}

void AnalyseTable::EndEntriesOn(const CATCommand& iPublisher) {
    for (Entry& entry : _entries)
        if (entry.publisher == &iPublisher)
            EndEntry(entry);
    Sweep();
}

void AnalyseTable::ForgetListener(const CATCommand& iListener) {
    const auto found = std::find(_listeners.begin(), _listeners.end(), &iListener);
    if (found != _listeners.end())
        _listeners.erase(found);
}

// Frees the ended entries, and itself once the owner is gone.
void AnalyseTable::Sweep() {
    if (_running > 0)
        return;
    if (_owner == nullptr) {
        delete this;
        return;
    }
    if (!_hasEndedEntries)
        return;
    _hasEndedEntries = false;
    _entries.erase(std::remove_if(_entries.begin(), _entries.end(),
                                  [](const Entry& iEntry) { return iEntry.method == nullptr; }),
                   _entries.end());
}

} // namespace host
