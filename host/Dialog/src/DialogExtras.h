#ifndef DialogExtras_H
#define DialogExtras_H

#include "CATDialog.h"

#include <optional>
#include <vector>

namespace host {

// What few widgets have. A text that is not set comes from the resource file.
struct DialogExtras {
    std::optional<CATUnicodeString> title;
    std::optional<CATUnicodeString> shortHelp;
    std::optional<CATUnicodeString> longHelp;
    std::optional<CATUnicodeString> help;
    CATString icons[4]; // normal, selected, focus, disabled
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;
    std::optional<CATDlgGridConstraints> gridConstraints;
    std::vector<int> resizableRows;
    std::vector<int> resizableColumns;
};

// One of a widget's own notification objects; the list holds a reference.
struct WidgetEvent {
    CATNotification* notification = nullptr;
    WidgetEvent* next = nullptr;
};

} // namespace host

#endif
