#ifndef ChangeLog_H
#define ChangeLog_H

#include "host/DialogObserver.h"

namespace host {

// Collects what happens to widgets between two deliveries to the observers.
class ChangeLog {
  public:
    static void NoteCreation(CATDialog& ioWidget);
    static void NoteDestruction(const CATDialog& iWidget);
    static void NoteChange(CATDialog& ioWidget, unsigned int iKind);

    static void AddObserver(DialogObserver& ioObserver);
    static void RemoveObserver(DialogObserver& ioObserver);
    static void Deliver();

  private:
    static void UpdateWatching();
    static void AskForIdle();
};

} // namespace host

#endif
