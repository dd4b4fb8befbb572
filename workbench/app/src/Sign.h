#pragma once

// Small signs for lists of elements, drawn in the colours of a palette at any size.

#include "engineering/ElementKind.h"

#include <QtGui/QIcon>
#include <QtGui/QPalette>

namespace app {

/// A cross for points, a line with its ends, a parallelogram for planes.
QIcon SignOf(engineering::ElementKind kind, const QPalette& palette);

/// A tick.
QIcon TickSign(const QPalette& palette);

} // namespace app
