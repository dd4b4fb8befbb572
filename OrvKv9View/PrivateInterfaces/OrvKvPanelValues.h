#ifndef OrvKvPanelValues_H
#define OrvKvPanelValues_H

#include "CATDlgDefine.h"

// Platform values that the panels use, under names that say what they do here.

// A frame that draws neither border nor title.
static constexpr CATDlgStyle OrvKvPlainFrame = 0x80000;
// A combo whose list opens on request.
static constexpr CATDlgStyle OrvKvDropDownCombo = 0x40000;

// Adds a line at the end.
static constexpr CATULong OrvKvAppend = 64;
static constexpr int OrvKvAtEnd = -1;
static constexpr int OrvKvAllLines = -1;

// Whether a choice made by program is reported as if the user had made it.
static constexpr int OrvKvSilently = 0;
static constexpr int OrvKvNotifying = 1;

// What a parameter with maximum and minimum deviations says of its tolerance.
static constexpr int OrvKvToleranceIsSet = 1;

#endif
