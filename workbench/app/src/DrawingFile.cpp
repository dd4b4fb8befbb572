#include "DrawingFile.h"

#include "DataFolders.h"

namespace workbench {

namespace fs = std::filesystem;

fs::path DrawingFile(const fs::path& catalogueFolder, const std::string& typeKey) {
    std::vector<fs::path> folders{catalogueFolder / "drawings"};
    if (const app::FoundData found = app::FindData(); found.folders)
        for (const fs::path& shipped : found.folders->Drawings())
            folders.push_back(shipped);
    for (const fs::path& folder : folders) {
        fs::path file = folder / (typeKey + ".png");
        std::error_code ignored;
        if (fs::is_regular_file(file, ignored))
            return file;
    }
    return {};
}

} // namespace workbench
