// Message and resource files of the process: folders, languages, what is missing.

#include "host/MessageCatalogs.h"

#include "support/AuditedTest.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>

namespace {

using host::MessageCatalogs;

const char pathVariable[] = "CATMsgCatalogPath";

class MessageCatalogsTest : public support::AuditedTest {
  protected:
    MessageCatalogsTest() {
        unsetenv(pathVariable);
        MessageCatalogs::Reset();
    }
    void TearDown() override {
        unsetenv(pathVariable);
        MessageCatalogs::Reset();
        AuditedTest::TearDown();
    }

    void Use(const support::TemporaryFolder& iFolder) { MessageCatalogs::AddFolder(iFolder.Path().string()); }

    support::TemporaryFolder folder;
    support::TemporaryFolder other;
};

typedef std::vector<std::string> Texts;

} // namespace

TEST_F(MessageCatalogsTest, TheLanguageIsAskedFirstAndEnglishStandsInForWhatItLacks) {
    folder.Write("Panel.CATNls", "Title = \"Hole\";\nOnly = \"English only\";\n");
    folder.Write("German/Panel.CATNls", "Title = \"Bohrung\";\n");
    Use(folder);
    EXPECT_EQ("Hole", MessageCatalogs::Text("Panel", "Title"));
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ("German", MessageCatalogs::Language());
    EXPECT_EQ("Bohrung", MessageCatalogs::Text("Panel", "Title"));
    EXPECT_EQ("English only", MessageCatalogs::Text("Panel", "Only"));
    MessageCatalogs::SetLanguage("French");
    EXPECT_EQ("Hole", MessageCatalogs::Text("Panel", "Title"));
    MessageCatalogs::SetLanguage("");
    EXPECT_EQ("Hole", MessageCatalogs::Text("Panel", "Title"));
}

TEST_F(MessageCatalogsTest, ATextOfTheLanguageAloneIsNotEnglish) {
    folder.Write("German/Panel.CATNls", "Title = \"Bohrung\";\n");
    Use(folder);
    EXPECT_EQ(std::nullopt, MessageCatalogs::Text("Panel", "Title"));
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ("Bohrung", MessageCatalogs::Text("Panel", "Title"));
}

TEST_F(MessageCatalogsTest, TheFolderAddedFirstCountsAndTheSecondFillsItsGaps) {
    folder.Write("Panel.CATNls", "Title = \"first\";\n");
    other.Write("Panel.CATNls", "Title = \"second\";\nMore = \"more\";\n");
    other.Write("Other.CATNls", "Title = \"other\";\n");
    Use(folder);
    Use(other);
    EXPECT_EQ("first", MessageCatalogs::Text("Panel", "Title"));
    EXPECT_EQ("more", MessageCatalogs::Text("Panel", "More"));
    EXPECT_EQ("other", MessageCatalogs::Text("Other", "Title"));
}

TEST_F(MessageCatalogsTest, TheLanguageOfALaterFolderBeatsTheEnglishOfAnEarlierOne) {
    folder.Write("Panel.CATNls", "Title = \"Hole\";\n");
    other.Write("German/Panel.CATNls", "Title = \"Bohrung\";\n");
    Use(folder);
    Use(other);
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ("Bohrung", MessageCatalogs::Text("Panel", "Title"));
}

TEST_F(MessageCatalogsTest, FoldersOfTheEnvironmentComeBehindTheAddedOnes) {
    const std::string first = folder.Path().string();
    const std::string second = other.Path().string();
    setenv(pathVariable, (":" + second + "::/no/such/folder:").c_str(), 1);
    MessageCatalogs::AddFolder(first);
    EXPECT_EQ((Texts{first, second, "/no/such/folder"}), MessageCatalogs::Folders());
    folder.Write("Panel.CATNls", "Title = \"added\";\n");
    other.Write("Panel.CATNls", "Title = \"environment\";\nMore = \"more\";\n");
    EXPECT_EQ("added", MessageCatalogs::Text("Panel", "Title"));
    EXPECT_EQ("more", MessageCatalogs::Text("Panel", "More"));
    EXPECT_TRUE(MessageCatalogs::Problems().empty());
}

TEST_F(MessageCatalogsTest, AFileIsReadOnceUntilTheFoldersChange) {
    folder.Write("Panel.CATNls", "Title = \"old\";\n");
    Use(folder);
    EXPECT_EQ("old", MessageCatalogs::Text("Panel", "Title"));
    folder.Write("Panel.CATNls", "Title = \"new\";\n");
    EXPECT_EQ("old", MessageCatalogs::Text("Panel", "Title"));
    Use(other);
    EXPECT_EQ("new", MessageCatalogs::Text("Panel", "Title"));
}

TEST_F(MessageCatalogsTest, ResourcesHaveNoLanguage) {
    folder.Write("Panel.CATRsc", "Pbt.Icon.Normal = \"I_Invert\";\n");
    folder.Write("German/Panel.CATRsc", "Pbt.Icon.Normal = \"I_German\";\n");
    Use(folder);
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ("I_Invert", MessageCatalogs::Resource("Panel", "Pbt.Icon.Normal"));
    EXPECT_EQ(std::nullopt, MessageCatalogs::Resource("Panel", "Other"));
    EXPECT_EQ(std::nullopt, MessageCatalogs::Text("Panel", "Pbt.Icon.Normal"));
}

TEST_F(MessageCatalogsTest, TheKeysOfALanguageAreListedInAlphabeticalOrder) {
    folder.Write("Panel.CATNls", "Title = \"Hole\";\nHelp = \"help\";\nA.Title = \"a\";\n");
    folder.Write("German/Panel.CATNls", "Title = \"Bohrung\";\n");
    Use(folder);
    EXPECT_EQ((Texts{"A.Title", "Help", "Title"}), MessageCatalogs::Keys("Panel", ""));
    EXPECT_EQ(Texts{"Title"}, MessageCatalogs::Keys("Panel", "German"));
    EXPECT_EQ(Texts(), MessageCatalogs::Keys("Panel", "French"));
    EXPECT_EQ(Texts(), MessageCatalogs::Keys("NoSuchPanel", ""));
}

TEST_F(MessageCatalogsTest, NoNameLeavesTheFolders) {
    folder.Write("Secret.CATNls", "Key = \"secret\";\n");
    folder.Write("Secret.CATRsc", "Key = \"secret\";\n");
    folder.Write("inner/Open.CATNls", "Key = \"open\";\n");
    folder.Write("inner/German/Open.CATNls", "Key = \"offen\";\n");
    MessageCatalogs::AddFolder((folder.Path() / "inner").string());
    EXPECT_EQ("open", MessageCatalogs::Text("Open", "Key"));
    const std::string absolute = (folder.Path() / "Secret").string();
    const Texts leaving{"../Secret", "German/../../Secret", absolute, "..\\Secret", "..", ".", ""};
    for (const std::string& name : leaving) {
        EXPECT_EQ(std::nullopt, MessageCatalogs::Text(name, "Key")) << name;
        EXPECT_EQ(std::nullopt, MessageCatalogs::Resource(name, "Key")) << name;
        EXPECT_EQ(Texts(), MessageCatalogs::Keys(name, "")) << name;
    }
}

TEST_F(MessageCatalogsTest, NoLanguageLeavesTheFolders) {
    folder.Write("Secret.CATNls", "Key = \"secret\";\n");
    folder.Write("inner/Open.CATNls", "Key = \"open\";\n");
    MessageCatalogs::AddFolder((folder.Path() / "inner").string());
    for (const char* language : {"..", ".", "German/../..", "/"}) {
        EXPECT_EQ(Texts(), MessageCatalogs::Keys("Secret", language)) << language;
        MessageCatalogs::SetLanguage(language);
        EXPECT_EQ(std::nullopt, MessageCatalogs::Text("Secret", "Key")) << language;
        EXPECT_EQ("open", MessageCatalogs::Text("Open", "Key")) << language;
    }
}

TEST_F(MessageCatalogsTest, AFolderWithTheNameOfAFileIsNoCatalogue) {
    folder.Write("Panel.CATNls/inside", "x");
    Use(folder);
    EXPECT_EQ(std::nullopt, MessageCatalogs::Text("Panel", "Key"));
    EXPECT_TRUE(MessageCatalogs::Problems().empty());
}

TEST_F(MessageCatalogsTest, ParametersFillTheirPlaces) {
    EXPECT_EQ("a b a", MessageCatalogs::Fill("/p1 /P2 /p1", {"a", "b"}));
    EXPECT_EQ("9", MessageCatalogs::Fill("/p9", {"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ("", MessageCatalogs::Fill("", {"a"}));
    EXPECT_EQ("x", MessageCatalogs::Fill("/p1/p2", {"", "x"}));
}

TEST_F(MessageCatalogsTest, APlaceWithoutParameterStaysAsItIsWritten) {
    EXPECT_EQ("a /P2", MessageCatalogs::Fill("/p1 /P2", {"a"}));
    EXPECT_EQ("/p1", MessageCatalogs::Fill("/p1", {}));
    for (const char* text : {"/p0", "/p", "/", "p1", "/q1", "//", "1/", "/p/"})
        EXPECT_EQ(text, MessageCatalogs::Fill(text, {"a"})) << text;
}

TEST_F(MessageCatalogsTest, OneDigitNamesAPlace) {
    EXPECT_EQ("a0", MessageCatalogs::Fill("/p10", {"a"}));
}

TEST_F(MessageCatalogsTest, AParameterIsNotFilledItself) {
    EXPECT_EQ("/p2 b", MessageCatalogs::Fill("/p1 /p2", {"/p2", "b"}));
}

TEST_F(MessageCatalogsTest, AMissingTextIsListedOnce) {
    Allow(support::Leftover::MissingTexts, "the list itself is looked at");
    MessageCatalogs::RecordMissing("Panel: Title");
    MessageCatalogs::RecordMissing("Panel: Help");
    MessageCatalogs::RecordMissing("Panel: Title");
    EXPECT_EQ((Texts{"Panel: Title", "Panel: Help"}), MessageCatalogs::Missing());
}

TEST_F(MessageCatalogsTest, TheGenerationChangesWhenATextMayHaveChanged) {
    const unsigned start = MessageCatalogs::Generation();
    Use(folder);
    const unsigned folderAdded = MessageCatalogs::Generation();
    EXPECT_NE(start, folderAdded);
    MessageCatalogs::SetLanguage("German");
    const unsigned german = MessageCatalogs::Generation();
    EXPECT_NE(folderAdded, german);
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ(german, MessageCatalogs::Generation());
    static_cast<void>(MessageCatalogs::Text("Panel", "Title"));
    EXPECT_EQ(german, MessageCatalogs::Generation());
    MessageCatalogs::Reset();
    EXPECT_NE(german, MessageCatalogs::Generation());
}

TEST_F(MessageCatalogsTest, ResetForgetsFoldersLanguageProblemsAndMisses) {
    folder.Write("Panel.CATNls", "Title = \"Hole\";\nfaulty\n");
    Use(folder);
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ("Hole", MessageCatalogs::Text("Panel", "Title"));
    MessageCatalogs::RecordMissing("Panel: Help");
    EXPECT_EQ(1U, MessageCatalogs::Problems().size());
    MessageCatalogs::Reset();
    EXPECT_EQ(Texts(), MessageCatalogs::Folders());
    EXPECT_EQ("", MessageCatalogs::Language());
    EXPECT_TRUE(MessageCatalogs::Problems().empty());
    EXPECT_EQ(Texts(), MessageCatalogs::Missing());
    EXPECT_EQ(std::nullopt, MessageCatalogs::Text("Panel", "Title"));
}
