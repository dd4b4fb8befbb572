#ifndef host_DialogPath_H
#define host_DialogPath_H

#include <string>
#include <vector>

class CATDialog;

namespace host {

// What a path names: one widget, or none and the reason.
struct Found {
    CATDialog* widget = nullptr;
    std::string reason; // empty when there is a widget
};

// Names of widgets, from their window down: "MainPanel/GroupFrm/TypeSelectCombo".
//
// A tail of the path is enough where it is unique. "[2]" behind a name picks the second of the siblings of
// that name. A '/', '[' or '\' in a name is written with a '\' before it.
class DialogPath {
  public:
    // The full path of a widget, with "[n]" where siblings share the name.
    static std::string Of(const CATDialog& iWidget);
    // The one widget that the path or tail names. The search looks only at widgets with the last name of the
    // path.
    static Found Find(const std::string& iPath);
    // All widgets called iName, in order of creation within each parent.
    static std::vector<CATDialog*> Named(const std::string& iName);
};

} // namespace host

#endif
