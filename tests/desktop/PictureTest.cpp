#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "DesktopFixture.h"
#include "support/TemporaryFolder.h"

#include <QtGui/QImage>

#include <set>

namespace desktop_test {

namespace {

class PictureTest : public DesktopTest {
  protected:
    PictureTest() {
        auto* const label = new CATDlgLabel(&Dialog(), "NameLab");
        label->SetTitle("Name");
        _editor = new CATDlgEditor(&Dialog(), "NameEdt");
        _editor->SetText("M8");
    }

    static std::size_t ColoursIn(const QImage& iPicture) {
        std::set<QRgb> colours;
        for (int y = 0; y < iPicture.height(); ++y)
            for (int x = 0; x < iPicture.width(); ++x)
                colours.insert(iPicture.pixel(x, y));
        return colours.size();
    }

    CATDlgEditor* _editor;
    support::TemporaryFolder _folder;
};

TEST_F(PictureTest, IsWrittenInOneCallAndShowsSomething) {
    const std::string path = (_folder.Path() / "dialog.png").string();
    EXPECT_TRUE(Windows().SavePicture(Dialog(), path)) << "the window was never on a screen";
    const QImage picture(QString::fromStdString(path));
    ASSERT_FALSE(picture.isNull());
    EXPECT_GT(picture.width(), 100);
    EXPECT_GT(ColoursIn(picture), 10U) << "text, fields and buttons have many shades";
}

TEST_F(PictureTest, ShowsWhatTheProgramHasChangedJustNow) {
    Open();
    const QImage before = Windows().Picture(Dialog());
    EXPECT_EQ(before, Windows().Picture(Dialog())) << "two pictures of the same are the same";
    _editor->SetText("M10");
    EXPECT_NE(before, Windows().Picture(Dialog()));
}

TEST_F(PictureTest, ShowsWhatHasChangedInTheMiddleOfAnEvent) {
    Open();
    const QImage before = Windows().Picture(Dialog());
    QImage within;
    const Reaction react("CATDlgWindCloseNotification", [&] {
        _editor->SetText("M10");
        within = Windows().Picture(Dialog());
    });
    Window().close();
    EXPECT_NE(before, within);
    EXPECT_EQ(within, Windows().Picture(Dialog()));
}

TEST_F(PictureTest, OfAHiddenDialogIsThatOfTheShownOne) {
    const QImage hidden = Windows().Picture(Dialog());
    Open();
    EXPECT_EQ(hidden.size(), Windows().Picture(Dialog()).size());
}

TEST_F(PictureTest, IsRefusedWhereItCannotBeWrittenOrThereIsNoWindow) {
    EXPECT_FALSE(Windows().SavePicture(Dialog(), (_folder.Path() / "nowhere" / "dialog.png").string()));
    EXPECT_TRUE(Windows().Picture(*MainWindow()).isNull()) << "the main window is not drawn";
    EXPECT_FALSE(Windows().SavePicture(*MainWindow(), (_folder.Path() / "main.png").string()));
    EXPECT_FALSE(_folder.Has("main.png"));
}

} // namespace

} // namespace desktop_test
