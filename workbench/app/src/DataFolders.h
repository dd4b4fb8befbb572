#pragma once

// Where the program's data lie: catalogue, texts, icons, pictures. The folders are laid out as in the source
// tree.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace app {

struct DataFolders {
    std::filesystem::path root;

    std::filesystem::path Catalogue() const { return root / "workbench" / "catalogue"; }
    std::filesystem::path Part() const { return root / "workbench" / "parts" / "bracket.csv"; }
    /// Folders of the texts of the panels and of the dialog.
    std::vector<std::filesystem::path> Messages() const;
    /// Folders of the pictures of the feature types: installed ones lie with the data, others where they are
    /// built.
    std::vector<std::filesystem::path> Drawings() const;
};

struct FoundData {
    std::optional<DataFolders> folders;
    std::string reason; ///< why there are none; empty when there are
};

/// The folder that the environment variable KELVANE_DATA names; without it share/kelvane beside the program's
/// own folder, else the source tree from which the program was built.
FoundData FindData();

} // namespace app
