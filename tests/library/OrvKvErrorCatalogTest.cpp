// The error catalogue: its names, and a text for each key in each language.

#include "OrvKvErrorCatalog.h"

#include "CATInternalError.h"
#include "host/MessageCatalogs.h"
#include "support/AuditedTest.h"
#include "support/ResourceFolder.h"

#include <algorithm>

using namespace support;

namespace {

using Texts = std::vector<std::string>;

const Texts keys = {"Error_UnknownError", "Error_Description", "Error_NoInterface", "Error_NotImplemented",
                    "Error_InvalidFeatureId"};
const Texts keysWithText = {"Error_UnknownError", "Error_Description"};
const char catalogue[] = "OrvKv_ErrorCatalog";

TEST(OrvKvErrorCatalogNamesTest, AreThoseOfTheAddIn) {
    EXPECT_STREQ(OrvKvErrorCatalog, "OrvKv_ErrorCatalog");
    EXPECT_EQ(Texts({OrvKvErrorKeyUnknownError, OrvKvErrorKeyDescription, OrvKvErrorKeyNoInterface,
                     OrvKvErrorKeyNotImplemented, OrvKvErrorKeyInvalidFeatureId}),
              keys);
}

CATUnicodeString MessageOf(const std::string& iKey) {
    CATInternalError error(iKey.c_str(), catalogue);
    CATUnicodeString text("The groove is too deep.");
    error.SetNLSParameters(1, &text);
    return error.GetNLSMessage();
}

bool Contains(const std::string& iText, const std::string& iPart) {
    return iText.find(iPart) != std::string::npos;
}

// The languages by the names of their folders; the first is English.
class OrvKvErrorCatalogTest : public AuditedTest, public testing::WithParamInterface<const char*> {
  protected:
    OrvKvErrorCatalogTest() { UseLibraryResources(); }
    void SetUp() override { host::MessageCatalogs::SetLanguage(GetParam()); }
    void TearDown() override {
        EXPECT_TRUE(host::MessageCatalogs::Problems().empty());
        host::MessageCatalogs::SetLanguage("");
        AuditedTest::TearDown();
    }
};

TEST_P(OrvKvErrorCatalogTest, HasTheSameKeysAsTheEnglishOne) {
    const Texts english = host::MessageCatalogs::Keys(catalogue, "");
    EXPECT_FALSE(english.empty());
    EXPECT_EQ(host::MessageCatalogs::Keys(catalogue, GetParam()), english);
}

TEST_P(OrvKvErrorCatalogTest, HasAMessageAndATitleForEachKey) {
    for (const std::string& key : keys) {
        const std::string message = MessageOf(key).ConvertToChar();
        EXPECT_FALSE(Contains(message, "Error_")) << message;
        EXPECT_NE(message, key);
        const CATInternalError error(key.c_str(), catalogue);
        EXPECT_NE(std::string(error.GetNLSSource().ConvertToChar()), "CATInternalError") << key;
    }
}

TEST_P(OrvKvErrorCatalogTest, ShowsTheTextOfThoseErrorsThatCarryOne) {
    for (const std::string& key : keys) {
        const bool carriesText =
            std::find(keysWithText.begin(), keysWithText.end(), key) != keysWithText.end();
        const std::string message = MessageOf(key).ConvertToChar();
        EXPECT_EQ(Contains(message, "The groove is too deep."), carriesText) << key;
        EXPECT_FALSE(Contains(message, "/p")) << message;
    }
}

TEST_P(OrvKvErrorCatalogTest, IsTranslated) {
    const std::string translated = MessageOf("Error_InvalidFeatureId").ConvertToChar();
    host::MessageCatalogs::SetLanguage("");
    const bool isEnglish = std::string(GetParam()).empty();
    EXPECT_EQ(translated == MessageOf("Error_InvalidFeatureId").ConvertToChar(), isEnglish) << translated;
}

INSTANTIATE_TEST_SUITE_P(In, OrvKvErrorCatalogTest, testing::Values("", "German", "French", "Japanese"),
                         [](const testing::TestParamInfo<const char*>& iLanguage) {
                             const std::string name = iLanguage.param;
                             return name.empty() ? std::string("English") : name;
                         });

} // namespace
