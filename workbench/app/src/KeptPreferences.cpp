#include "KeptPreferences.h"

#include "host/Preferences.h"

#include <iostream>

namespace app {

KeptPreferences::KeptPreferences(const std::filesystem::path& file) {
    if (file.empty())
        host::Preferences::KeepInMemory();
    else
        host::Preferences::KeepInFile(file.string());
}

KeptPreferences::~KeptPreferences() {
    const std::string problem = host::Preferences::Problem();
    if (!problem.empty())
        std::cerr << "kelvane: " << problem << '\n';
    host::Preferences::Withdraw();
}

} // namespace app
