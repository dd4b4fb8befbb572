// Message catalogues: the line form, parameters, and what stands in for a missing text.

#include "CATMsgCatalog.h"

#include "MessageFolder.h"
#include "Samples.h"

namespace {

class MessageCatalogues : public PlatformTest {
  protected:
    // The text of iKey in a catalogue of its own with the content iContent.
    static std::string TextIn(const std::string& iContent, const char* iKey) {
        static int number = 0;
        const std::string name = "Catalogue" + std::to_string(++number);
        MessageFolder::Write(name + ".CATNls", iContent);
        return CATMsgCatalog::BuildMessage(name.c_str(), iKey).ConvertToChar();
    }
    static std::string Filled(const std::string& iText, const std::vector<CATUnicodeString>& iParameters) {
        static int number = 0;
        const std::string name = "Filled" + std::to_string(++number);
        MessageFolder::Write(name + ".CATNls", "Key = \"" + iText + "\";\n");
        return CATMsgCatalog::BuildMessage(name.c_str(), "Key", iParameters.data(),
                                           static_cast<int>(iParameters.size()))
            .ConvertToChar();
    }
};

} // namespace

CERTAIN(MessageCatalogues, ALineIsKeyEqualSignQuotedTextAndSemicolon) {
    const std::string content = "ColumnTitle1 = \"Name\";\nInvertPbt.Title   =   \"Invert\";\nLast=\"1\";";
    EXPECT_EQ("Name", TextIn(content, "ColumnTitle1"));
    EXPECT_EQ("Invert", TextIn(content, "InvertPbt.Title"));
    EXPECT_EQ("1", TextIn(content, "Last"));
}

CERTAIN(MessageCatalogues, AFolderOfTheEnvironmentIsSearched) {
    MessageFolder::Write("FromEnvironment.CATNls", "Key = \"found\";\n");
    EXPECT_STREQ("found", CATMsgCatalog::BuildMessage("FromEnvironment", "Key").ConvertToChar());
}

CERTAIN(MessageCatalogues, BackslashNBreaksTheLine) {
    EXPECT_EQ("one\ntwo", TextIn("Key = \"one\\ntwo\";\n", "Key"));
}

CERTAIN(MessageCatalogues, ATextGoesOnOverTheFollowingLines) {
    const std::string content = "Key = \"one\ntwo\";\nNext = \"three\";\n";
    EXPECT_EQ("one\ntwo", TextIn(content, "Key"));
    EXPECT_EQ("three", TextIn(content, "Next"));
}

ASSUMED(MessageCatalogues, QuotesAndBackslashesAreEscaped,
        "open: as in the language the platform is written in") {
    EXPECT_EQ("say \"yes\"", TextIn("Key = \"say \\\"yes\\\"\";\n", "Key"));
    EXPECT_EQ("a\\b", TextIn("Key = \"a\\\\b\";\n", "Key"));
}

ASSUMED(MessageCatalogues, TwoSlashesBeginACommentOutsideQuotes,
        "recalled: comments to the end of the line") {
    const std::string content = "// Key = \"comment\";\nKey = \"a // b\"; // behind\nNext = \"c\";\n";
    EXPECT_EQ("a // b", TextIn(content, "Key"));
    EXPECT_EQ("c", TextIn(content, "Next"));
}

ASSUMED(MessageCatalogues, FilesAreReadAsUtf8, "open: the one encoding that all languages share") {
    EXPECT_EQ("Gr\xC3\xB6\xC3\x9F"
              "e",
              TextIn("Key = \"Gr\xC3\xB6\xC3\x9F"
                     "e\";\n",
                     "Key"));
}

CERTAIN(MessageCatalogues, ParametersFillTheirPlaces) {
    EXPECT_EQ("Hello Ann,\nthere are 3 points, Ann",
              Filled("Hello /p1,\\nthere are /p2 points, /p1", {"Ann", "3"}));
}

ASSUMED(MessageCatalogues, ParameterPlacesMayBeWrittenInCapitals, "recalled: both spellings are met") {
    EXPECT_EQ("Hello Ann", Filled("Hello /P1", {"Ann"}));
}

ASSUMED(MessageCatalogues, APlaceWithoutParameterStaysAsWritten, "open: what is missing stays visible") {
    EXPECT_EQ("Ann and /p2", Filled("/p1 and /p2", {"Ann"}));
    EXPECT_EQ("/p0 and /p", Filled("/p0 and /p", {"Ann"}));
}

ASSUMED(MessageCatalogues, AParameterIsNotFilledItself, "open: a text of the user is never read as a form") {
    EXPECT_EQ("/p2 and b", Filled("/p1 and /p2", {"/p2", "b"}));
}

CERTAIN(MessageCatalogues, AMissingTextGivesTheDefault) {
    MessageFolder::Write("WithDefault.CATNls", "Key = \"text\";\n");
    const CATUnicodeString standIn("default");
    EXPECT_EQ(standIn, CATMsgCatalog::BuildMessage("WithDefault", "Other", nullptr, 0, standIn));
    EXPECT_EQ(standIn, CATMsgCatalog::BuildMessage("NoSuchCatalogue", "Key", nullptr, 0, standIn));
    EXPECT_EQ(CATUnicodeString("text"),
              CATMsgCatalog::BuildMessage("WithDefault", "Key", nullptr, 0, standIn));
}

ASSUMED(MessageCatalogues, WithoutDefaultAMissingTextIsItsKey, "open: the key tells what is missing") {
    EXPECT_STREQ("SomeKey", CATMsgCatalog::BuildMessage("NoSuchCatalogue", "SomeKey").ConvertToChar());
}

ASSUMED(MessageCatalogues, AnEmptyTextIsATextAndNoMiss,
        "open: a translator may leave a text out on purpose") {
    EXPECT_EQ("", TextIn("Key = \"\";\n", "Key"));
}

ASSUMED(MessageCatalogues, AFaultyLineCostsItselfOnly,
        "open: one mistake must not silence a whole catalogue") {
    const std::string content = "First = \"1\";\nFaulty = no quotes;\nLast = \"2\";\n";
    EXPECT_EQ("1", TextIn(content, "First"));
    EXPECT_EQ("Faulty", TextIn(content, "Faulty"));
    EXPECT_EQ("2", TextIn(content, "Last"));
}
