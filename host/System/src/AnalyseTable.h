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
    // Runs the callbacks of ioOwner that match. True when there was one.
    static bool Run(CATCommand& ioOwner, CATCommand* iSender, CATCommand* iFrom,
                    CATNotification& ioNotification);
    static int CountOf(const CATCommand& iOwner);
    static int CountOfAll();

  private:
    static AnalyseTable& Of(CATCommand& ioCommand);

    bool Matches(const Entry& iEntry, const CATCommand* iSender, const CATNotification& iNotification) const;
    void EndEntry(Entry& ioEntry);
    void EndEntriesOn(const CATCommand& iPublisher);
    void ForgetListener(const CATCommand& iListener);
    void Sweep();

    CATCommand* _owner = nullptr; // null once it is destroyed
    std::vector<Entry> _entries;
    std::vector<CATCommand*>
        _listeners; // commands with entries on the owner; one may stand here several times
    int _running = 0;
};

} // namespace host

#endif
