// The message files of all panels: each English one has a counterpart in every other language.

#include "host/MessageCatalogs.h"
#include "support/AuditedTest.h"
#include "support/ResourceFolder.h"

#include <algorithm>
#include <set>

using namespace support;

namespace {

using Names = std::set<std::string>;

Names FilesIn(const std::string& iLanguage) {
    Names names;
    const std::filesystem::path folder = KELVANE_LIBRARY_DIR "/CNext/resources/msgcatalog";
    for (const auto& entry : std::filesystem::directory_iterator(folder / iLanguage))
        if (entry.is_regular_file())
            names.insert(entry.path().filename());
    return names;
}

// The places for parameters in a text, as "/p1", in their order of numbers.
std::multiset<std::string> PlacesIn(const std::string& iText) {
    std::multiset<std::string> places;
    for (std::size_t at = iText.find("/p"); at != std::string::npos; at = iText.find("/p", at + 1))
        places.insert(iText.substr(at, 3));
    return places;
}

// The frame of the tolerance has no title: the check button above it says what it is.
bool IsEmptyOnPurpose(const std::string& iFile, const std::string& iKey) {
    return iFile == "OrvKvToleranceSub.CATNls" && iKey == "Title";
}

class MessageFilesTest : public AuditedTest, public testing::WithParamInterface<const char*> {
  protected:
    MessageFilesTest() { UseLibraryResources(); }
    void TearDown() override {
        EXPECT_TRUE(host::MessageCatalogs::Problems().empty());
        host::MessageCatalogs::SetLanguage("");
        AuditedTest::TearDown();
    }

    static std::string Text(const std::string& iCatalog, const std::string& iKey,
                            const std::string& iLanguage) {
        host::MessageCatalogs::SetLanguage(iLanguage);
        return host::MessageCatalogs::Text(iCatalog, iKey).value_or("");
    }
};

TEST_P(MessageFilesTest, AreThoseOfTheEnglishFolder) {
    EXPECT_GE(FilesIn("").size(), 3U);
    EXPECT_EQ(FilesIn(GetParam()), FilesIn(""));
}

TEST_P(MessageFilesTest, HaveATextForEachEnglishKeyWithTheSamePlaces) {
    for (const std::string& file : FilesIn("")) {
        const std::string catalog = std::filesystem::path(file).stem();
        const std::vector<std::string> keys = host::MessageCatalogs::Keys(catalog, "");
        EXPECT_FALSE(keys.empty()) << file;
        EXPECT_EQ(host::MessageCatalogs::Keys(catalog, GetParam()), keys) << file;
        for (const std::string& key : keys) {
            const std::string english = Text(catalog, key, "");
            const std::string text = Text(catalog, key, GetParam());
            EXPECT_EQ(text.find_first_not_of(" \n") == std::string::npos, IsEmptyOnPurpose(file, key))
                << file << ": " << key;
            EXPECT_EQ(PlacesIn(text), PlacesIn(english)) << file << ": " << key;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(In, MessageFilesTest, testing::Values("", "German", "French", "Japanese"),
                         [](const testing::TestParamInfo<const char*>& iLanguage) {
                             const std::string name = iLanguage.param;
                             return name.empty() ? std::string("English") : name;
                         });

} // namespace
