#include "session/Buttons.h"

#include "CATDlgDialog.h"

#include <algorithm>
#include <cctype>

namespace session {

namespace {

struct Button {
    const char* name;
    CATULong style;
};

constexpr Button buttons[] = {{"OK", CATDlgWndOK},
                              {"Cancel", CATDlgWndCANCEL},
                              {"Apply", CATDlgWndAPPLY},
                              {"Close", CATDlgWndCLOSE},
                              {"Help", CATDlgWndHELP}};

bool IsSameLetter(char left, char right) {
    return std::tolower(static_cast<unsigned char>(left)) == std::tolower(static_cast<unsigned char>(right));
}

} // namespace

CATULong ButtonNamed(std::string_view name) {
    for (const Button& button : buttons) {
        const std::string_view known = button.name;
        if (std::equal(known.begin(), known.end(), name.begin(), name.end(), IsSameLetter))
            return button.style;
    }
    return 0;
}

std::string NameOfButton(CATULong style) {
    for (const Button& button : buttons)
        if (button.style == style)
            return button.name;
    return std::to_string(style);
}

} // namespace session
