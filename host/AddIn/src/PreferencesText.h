#ifndef PreferencesText_H
#define PreferencesText_H

#include "PreferenceStore.h"

#include <string>

namespace host {

// The content of a preferences file:
//
//     version = 1
//     panel = 120 80 640 670
//
// Each line ends with a line break, so that a file that was cut off shows.
std::string PreferencesText(const PanelRectangle& iRectangle);

// What such a content says, or what is wrong with it: "line 2 is no panel rectangle".
struct PreferencesContent {
    PanelRectangle rectangle;
    std::string problem; // empty when there is a rectangle
};
PreferencesContent ReadPreferencesText(const std::string& iText);

} // namespace host

#endif
