#include "DataFolders.h"

#include "Environment.h"

namespace app {

namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool HoldsData(const DataFolders& folders) {
    for (const fs::path& messages : folders.Messages())
        if (!IsFolder(messages))
            return false;
    return true;
}

fs::path FolderOfProgram() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

} // namespace

std::vector<fs::path> DataFolders::Messages() const {
    return {root / "OrvKv9View" / "CNext" / "resources" / "msgcatalog", root / "workbench" / "msgcatalog"};
}

std::vector<fs::path> DataFolders::Drawings() const {
    return {root / "workbench" / "drawings", KELVANE_BUILT_DRAWINGS};
}

FoundData FindData() {
    const std::string wanted = Environment("KELVANE_DATA");
    if (!wanted.empty()) {
        const DataFolders folders{wanted};
        if (HoldsData(folders))
            return {folders, {}};
        return {std::nullopt, "KELVANE_DATA: there are no data of kelvane in '" + wanted + "'"};
    }
    for (const fs::path& root : {FolderOfProgram() / KELVANE_INSTALLED_DATA, fs::path(KELVANE_SOURCE_DIR)})
        if (HoldsData({root}))
            return {DataFolders{root}, {}};
    return {std::nullopt, "the data folder of kelvane is not found; KELVANE_DATA can name it"};
}

} // namespace app
