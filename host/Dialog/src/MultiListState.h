#ifndef MultiListState_H
#define MultiListState_H

#include "CATUnicodeString.h"
#include "TextTable.h"

#include <vector>

namespace host {

// What a list holds.
struct MultiListState {
    TextTable cells;
    std::vector<CATUnicodeString> titles; // empty until they are set
    std::vector<int> columnWidths;        // in characters; 0 for a natural width
    std::vector<int> selected;            // lines, in ascending order
    int clearings = 0;                    // how often all lines were taken away
    int visibleColumns = 0;
    int activatedColumn = -1;
    int visibleHeight = 0;
    int visibleWidth = 0;
};

} // namespace host

#endif
