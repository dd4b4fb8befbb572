#ifndef host_DialogObserver_H
#define host_DialogObserver_H

#include <utility>
#include <vector>

class CATDialog;

namespace host {

// What has changed on a widget; a bit set.
enum ChangeKind : unsigned int {
    ChangeTitle = 1,
    ChangeVisibility = 2,
    ChangeSensitivity = 4,
    ChangeContent = 8,    // lines, cells, text, columns, range or value
    ChangeSelection = 16, // selected lines, page in front
    ChangeState = 32,     // checked or unchecked, default button
    ChangeHelp = 64,      // short, long or status help
    ChangeIcon = 128,
    ChangeLayout = 256,   // attachments, grid, children, visible sizes
    ChangeGeometry = 512, // place and extent
    ChangeAll = 1023
};

// Everything that happened between two deliveries. Process in this order: destroyed, created, changed. A
// widget that was created and destroyed meanwhile is not named; a created one is not named as changed.
struct DialogChanges {
    std::vector<const CATDialog*> destroyed;                  // addresses only; the widgets are gone
    std::vector<CATDialog*> created;                          // parents before their children
    std::vector<std::pair<CATDialog*, unsigned int>> changed; // with a set of ChangeKind
};

// Watches the dialogs: the desktop is one observer, a recorder another. Deliveries come at the end of the
// outermost event, and before a message waits for its answer; without an observer nothing is noted at all.
class DialogObserver {
  public:
    DialogObserver() = default;
    DialogObserver(const DialogObserver&) = delete;
    DialogObserver& operator=(const DialogObserver&) = delete;
    virtual ~DialogObserver() = default;

    virtual void OnChanges(const DialogChanges& iChanges) = 0;
    // Called at once for each widget that is being destroyed and that a later delivery names as such. Only
    // its address may be used, and no widget may be changed.
    virtual void OnDestroyed(const CATDialog&) {}
    // Changes are waiting outside any event, so nothing delivers them by itself. The observer sees to it that
    // EventScope::RunIdle is called soon.
    virtual void OnIdleNeeded() {}

    // An added observer hears of later changes; it finds what is there already through Inspector.
    static void Add(DialogObserver& ioObserver);
    static void Remove(DialogObserver& ioObserver);
};

} // namespace host

#endif
