// Where the program looks for the picture of a feature type.

#include "DrawingFile.h"
#include "support/TemporaryFolder.h"

#include <QtCore/QtGlobal>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using support::TemporaryFolder;
using workbench::DrawingFile;

const fs::path built = KELVANE_BUILT_DRAWINGS;

/// Data as they are installed, which the program uses while the object lives.
class InstalledData {
  public:
    InstalledData() {
        _folder.Write("OrvKv9View/CNext/resources/msgcatalog/Texts.CATNls", "");
        _folder.Write("workbench/msgcatalog/Texts.CATNls", "");
        qputenv("KELVANE_DATA", _folder.Path().c_str());
    }
    ~InstalledData() { qunsetenv("KELVANE_DATA"); }
    InstalledData(const InstalledData&) = delete;
    InstalledData& operator=(const InstalledData&) = delete;

    const TemporaryFolder& Folder() const { return _folder; }

  private:
    TemporaryFolder _folder;
};

TEST(DrawingFileTest, TheShippedPictureIsTakenFromTheBuildTree) {
    EXPECT_EQ(DrawingFile(KELVANE_CATALOGUE_DIR, "Counterbore"), built / "Counterbore.png");
}

TEST(DrawingFileTest, APictureOfTheCatalogueWins) {
    const TemporaryFolder catalogue;
    catalogue.Write("drawings/Counterbore.png", "");
    EXPECT_EQ(DrawingFile(catalogue.Path(), "Counterbore"), catalogue.Path() / "drawings/Counterbore.png");
    EXPECT_EQ(DrawingFile(catalogue.Path(), "CentreHole"), built / "CentreHole.png");
}

TEST(DrawingFileTest, ATypeThatNobodyDrewHasNoPicture) {
    const TemporaryFolder catalogue;
    EXPECT_EQ(DrawingFile(catalogue.Path(), "Dovetail"), fs::path());
    EXPECT_EQ(DrawingFile(catalogue.Path() / "missing", "Dovetail"), fs::path());
    EXPECT_EQ(DrawingFile({}, ""), fs::path());
}

TEST(DrawingFileTest, AVectorDrawingOrAFolderIsNoPicture) {
    const TemporaryFolder catalogue;
    catalogue.Write("drawings/Dovetail.svg", "<svg/>");
    catalogue.Write("drawings/Flange.png/inside", "");
    EXPECT_EQ(DrawingFile(catalogue.Path(), "Dovetail"), fs::path());
    EXPECT_EQ(DrawingFile(catalogue.Path(), "Flange"), fs::path());
}

TEST(DrawingFileTest, AnInstalledPictureIsTakenBeforeABuiltOne) {
    const InstalledData data;
    data.Folder().Write("workbench/drawings/Counterbore.png", "");
    const TemporaryFolder catalogue;
    EXPECT_EQ(DrawingFile(catalogue.Path(), "Counterbore"),
              data.Folder().Path() / "workbench/drawings/Counterbore.png");
    EXPECT_EQ(DrawingFile(catalogue.Path(), "CentreHole"), built / "CentreHole.png");
}

} // namespace
