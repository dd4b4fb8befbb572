#include "UserFolders.h"

#include "Environment.h"

namespace app {

namespace fs = std::filesystem;

fs::path PreferencesFile() {
    fs::path folder = Environment("XDG_CONFIG_HOME");
    if (!folder.is_absolute()) {
        const fs::path home = Environment("HOME");
        if (!home.is_absolute())
            return {};
        folder = home / ".config";
    }
    return folder / "kelvane" / "preferences";
}

} // namespace app
