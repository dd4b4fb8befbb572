#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"
#include "host/MessageCatalogs.h"
#include "support/ResourceFolder.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace desktop_test {

// A dialog with texts in a file of its own.
class NameDialog : public CATDlgDialog {
    CATDeclareClass;

  public:
    explicit NameDialog(CATDialog* iParent) : CATDlgDialog(iParent, "NameDlg", CATDlgWndOK) {}
    char* GetResourceFilename(int iLevel) const override {
        static char name[] = "NameDialog";
        return iLevel == 0 ? name : nullptr;
    }
};

CATImplementClass(NameDialog, Implementation, CATDlgDialog, CATNull);

namespace {

class TextTest : public DesktopTest {};

TEST_F(TextTest, HelpIsShownInItsThreePlaces) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    button->SetShortHelp("Creates a set");
    button->SetLongHelp("Creates a parameter set from the current values.");
    button->SetHelp("New parameter set");
    Open();
    EXPECT_EQ(Utf8(Shown(*button).toolTip()), "Creates a set");
    EXPECT_EQ(Utf8(Shown(*button).whatsThis()), "Creates a parameter set from the current values.");
    EXPECT_EQ(Utf8(Shown(*button).statusTip()), "New parameter set");
    button->SetShortHelp("Makes a set");
    Settle();
    EXPECT_EQ(Utf8(Shown(*button).toolTip()), "Makes a set");
}

TEST_F(TextTest, HelpThatLooksLikeMarkupIsShownAsItIs) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    button->SetShortHelp("<b>5</b>");
    Open();
    EXPECT_EQ(Utf8(Shown(*button).toolTip()), "<span>&lt;b&gt;5&lt;/b&gt;</span>");
}

TEST_F(TextTest, TheTitleOfTheWindowFollowsTheProgram) {
    Open();
    EXPECT_EQ(Utf8(Window().windowTitle()), "Test dialog");
    Dialog().SetTitle("Größe & Art");
    Settle();
    EXPECT_EQ(Utf8(Window().windowTitle()), "Größe & Art");
}

TEST_F(TextTest, TextsAreReadAgainInAnotherLanguage) {
    const support::ResourceFolder resources;
    resources.Write("NameDialog.CATNls",
                    "Title = \"Name\";\nNameLab.Title = \"New name\";\n"
                    "NewPbt.Title = \"Create\";\nNewPbt.ShortHelp = \"Creates a set\";\n");
    resources.Write("German/NameDialog.CATNls",
                    "Title = \"Benennen\";\nNameLab.Title = \"Neuer Name\";\n"
                    "NewPbt.Title = \"Anlegen\";\nNewPbt.ShortHelp = \"Legt einen Satz an\";\n");
    auto* const dialog = new NameDialog(MainWindow());
    auto* const label = new CATDlgLabel(dialog, "NameLab");
    auto* const button = new CATDlgPushButton(dialog, "NewPbt");
    dialog->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_EQ(Utf8(Shown(*dialog).windowTitle()), "Name");
    EXPECT_EQ(Utf8(ShownAs<QLabel>(*label).text()), "New name");
    host::MessageCatalogs::SetLanguage("German");
    Windows().RefreshTexts();
    EXPECT_EQ(Utf8(Shown(*dialog).windowTitle()), "Benennen");
    EXPECT_EQ(Utf8(ShownAs<QLabel>(*label).text()), "Neuer Name");
    EXPECT_EQ(Utf8(ShownAs<QPushButton>(*button).text()), "&Anlegen");
    EXPECT_EQ(Utf8(Shown(*button).toolTip()), "Legt einen Satz an");
    host::MessageCatalogs::SetLanguage("");
}

} // namespace

} // namespace desktop_test
