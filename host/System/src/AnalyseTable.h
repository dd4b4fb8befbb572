#ifndef AnalyseTable_H
#define AnalyseTable_H

#include "CATCommand.h"

#include <vector>

namespace host {

// The analyse callbacks of one command, and the commands that have callbacks on it.
//
// While callbacks run no entry is taken out: ended ones stay, marked, until the run is over.
class AnalyseTable {
  public:
    struct Entry {
        CATCommand* publisher = nullptr;         // null for any
        CATNotification* notification = nullptr; // null when the class decides
        const char* notificationClass = nullptr; // interned; null for any, or when the notification decides
        CATCommandMethod method = nullptr;       // null once the entry has ended
        CATCommandClientData data = nullptr;
    };

    static void Add(CATCommand& ioOwner, const Entry& iEntry);
    // Ends the entries of ioOwner with the publisher, notification or class, and data of iPattern.
    static void Remove(CATCommand& ioOwner, const Entry& iPattern);
    // Ends all entries by and on ioCommand, which is being destroyed.
    static void End(CATCommand& ioCommand);
    // Runs the callbacks of ioOwner that match. True when there was one. iSender is read anew for each
    // callback: it becomes null when an earlier one destroys the command.
    static bool Run(CATCommand& ioOwner, CATCommand* const& iSender, CATNotification& ioNotification) {
        AnalyseTable* const table = ioOwner._analyseTable;
        return table != nullptr && table->RunEntries(iSender, ioNotification);
    }
    static int CountOf(const CATCommand& iOwner);
    static int CountOfAll();

  private:
    static AnalyseTable& Of(CATCommand& ioCommand);

    bool RunEntries(CATCommand* const& iSender, CATNotification& ioNotification);
    bool Matches(const Entry& iEntry, const CATCommand* iSender, const CATNotification& iNotification) const;
    void EndEntry(Entry& ioEntry);
    void EndEntriesOn(const CATCommand& iPublisher);
    void ForgetListener(const CATCommand& iListener);
    void Sweep();

    // One run of the callbacks; the table is swept when it ends, by an error as well.
    class Running {
      public:
        explicit Running(AnalyseTable& ioTable) : _table(ioTable) { ++_table._running; }
        ~Running() {
            --_table._running;
            _table.Sweep();
        }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        AnalyseTable& _table;
    };

    CATCommand* _owner = nullptr; // null once it is destroyed
    std::vector<Entry> _entries;
    std::vector<CATCommand*>
        _listeners; // commands with entries on the owner; one may stand here several times
    int _running = 0;
    bool _hasEndedEntries = false; // ended entries wait for the next sweep
};

} // namespace host

#endif
