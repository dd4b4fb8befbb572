#include "DecimalComma.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>

DecimalComma::DecimalComma() : _previous(std::setlocale(LC_NUMERIC, nullptr)) {
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8", "fr_FR.utf8"})
        if (std::setlocale(LC_NUMERIC, name) != nullptr)
            return;
    SetCompiled();
}

DecimalComma::~DecimalComma() {
    std::setlocale(LC_NUMERIC, _previous.c_str());
    unsetenv("LOCPATH");
    std::error_code ignored;
    if (!_folder.empty())
        std::filesystem::remove_all(_folder, ignored);
}

bool DecimalComma::IsThere() {
    return std::string(std::localeconv()->decimal_point) == ",";
}

void DecimalComma::SetCompiled() {
    std::string pattern = (std::filesystem::temp_directory_path() / "locale-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        return;
    _folder = pattern;
    const std::string compile = "localedef -i de_DE -f UTF-8 '" + _folder + "/de_DE.UTF-8' >/dev/null 2>&1";
    setenv("LOCPATH", _folder.c_str(), 1);
    if (std::system(compile.c_str()) == 0)
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
}
