#ifndef WidgetTree_H
#define WidgetTree_H

#include "CATDialog.h"

#include <string>
#include <vector>

class CATDlgWindow;

namespace host {

// The dialog tree as a whole: links between parents and children, windows, and widgets by name.
class WidgetTree {
  public:
    static void Join(CATDialog& ioWidget);
    // Makes a widget known to watchers and by its name.
    static void Announce(CATDialog& ioWidget);
    static void Leave(CATDialog& ioWidget);
    // A number that is another one after each widget that has come or gone.
    static unsigned Revision() { return _revision; }

    static void JoinWindow(CATDlgWindow& ioWindow);
    static void LeaveWindow(CATDlgWindow& ioWindow);
    static const std::vector<CATDlgWindow*>& Windows();

    // The widgets called iName that hang below the main window, in order of creation. The first call indexes
    // the tree; from then on the index is kept up to date.
    static std::vector<CATDialog*> Named(const std::string& iName);

    // Whether the widget hangs below the main window, and neither it nor a parent is on its way out.
    static bool IsReachable(const CATDialog& iWidget);

    // Null while there is no application.
    static void SetRoot(CATDialog* iRoot);
    static CATDialog* Root();

  private:
    static void Index(CATDialog& ioWidget);

    static unsigned _revision;
};

} // namespace host

#endif
