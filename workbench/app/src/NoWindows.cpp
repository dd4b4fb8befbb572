#include "Windows.h"

namespace app {

OpenedWindows OpenWindowSystem(Display) {
    return {nullptr, "this build has no windows; build it with the option KELVANE_DESKTOP"};
}

} // namespace app
