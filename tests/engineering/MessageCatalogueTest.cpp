// Every group, type, parameter and rule of the shipped catalogue has a text in every language.

#include "engineering/CatalogueLoader.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <regex>
#include <set>

namespace {

using namespace engineering;
using Texts = std::map<std::string, std::string>;
namespace fs = std::filesystem;

struct Language {
    const char* name;
    const char* folder; ///< below msgcatalog; English stands in the folder itself
};

void PrintTo(const Language& language, std::ostream* out) {
    *out << language.name;
}

class MessageCatalogueTest : public testing::TestWithParam<Language> {
  protected:
    void SetUp() override { ASSERT_TRUE(loaded.catalogue); }

    // Reads `Key = "text";` lines; anything else but comments and blank lines fails the test.
    static Texts Read(const fs::path& file) {
        static const std::regex entry(R"re(([A-Za-z0-9_.]+) = "([^"]+)";)re");
        std::ifstream stream(file);
        EXPECT_TRUE(stream) << file;
        Texts texts;
        for (std::string line; std::getline(stream, line);) {
            std::smatch match;
            if (line.empty() || line.starts_with("//")) {
                continue;
            }
            EXPECT_TRUE(std::regex_match(line, match, entry)) << file << ": " << line;
            if (!match.empty()) {
                EXPECT_TRUE(texts.emplace(match[1], match[2]).second) << file << ": twice: " << match[1];
            }
        }
        return texts;
    }

    static Texts TextsOf(const char* catalogue, const char* folder) {
        return Read(fs::path(KELVANE_CATALOGUE_DIR) / "msgcatalog" / folder /
                    (std::string(catalogue) + ".CATNls"));
    }

    static std::set<std::string> KeysOf(const Texts& texts) {
        std::set<std::string> keys;
        for (const auto& [key, text] : texts) {
            keys.insert(key);
        }
        return keys;
    }

    // Foreign texts differ from English unless both write a name or number only.
    static int SameAsEnglish(const Texts& texts, const Texts& english) {
        int same = 0;
        for (const auto& [key, text] : texts) {
            same += english.contains(key) && english.at(key) == text ? 1 : 0;
        }
        return same;
    }

    const LoadResult loaded = CatalogueLoader::Load(KELVANE_CATALOGUE_DIR);
};

TEST_P(MessageCatalogueTest, NamesEachGroupAndTypeAndNothingElse) {
    std::set<std::string> expected;
    for (const std::string& group : loaded.catalogue->Groups()) {
        expected.insert(group);
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            expected.insert(type);
        }
    }
    EXPECT_EQ(expected.size(), 18U);
    EXPECT_EQ(KeysOf(TextsOf("OrvKvCustomisation", GetParam().folder)), expected);
}

TEST_P(MessageCatalogueTest, NamesNoTwoTypesAlike) {
    std::map<std::string, std::string> keyOfText;
    for (const auto& [key, text] : TextsOf("OrvKvCustomisation", GetParam().folder)) {
        const auto [place, isNew] = keyOfText.emplace(text, key);
        EXPECT_TRUE(isNew) << key << " and " << place->second << ": " << text;
    }
}

TEST_P(MessageCatalogueTest, DescribesEachParameterByNameAndNothingElse) {
    std::set<std::string> expected;
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            for (const Parameter& parameter : loaded.catalogue->Type(type)->Parameters()) {
                expected.insert(parameter.name);
            }
        }
    }
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(KeysOf(TextsOf("OrvKvParametersDescription", GetParam().folder)), expected);
}

TEST_P(MessageCatalogueTest, TellsWhatIsWrongForEachRuleByTypeAndKey) {
    std::set<std::string> expected;
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            for (const Rule& rule : loaded.catalogue->Type(type)->Rules()) {
                expected.insert(type + "." + rule.key);
            }
        }
    }
    EXPECT_GE(expected.size(), 28U);
    EXPECT_EQ(KeysOf(TextsOf("FeatureRules", GetParam().folder)), expected);
}

TEST_P(MessageCatalogueTest, TellsWhatIsWrongWithoutParameters) {
    for (const auto& [key, text] : TextsOf("FeatureRules", GetParam().folder)) {
        EXPECT_EQ(text.find("/p"), std::string::npos) << key;
    }
}

TEST_P(MessageCatalogueTest, TranslatesEveryText) {
    for (const char* catalogue : {"OrvKvCustomisation", "OrvKvParametersDescription", "FeatureRules"}) {
        const Texts english = TextsOf(catalogue, "");
        const bool isEnglish = std::string(GetParam().folder).empty();
        EXPECT_EQ(SameAsEnglish(TextsOf(catalogue, GetParam().folder), english),
                  isEnglish ? static_cast<int>(english.size()) : 0)
            << catalogue;
    }
}

class RuleMessageTest : public MessageCatalogueTest {};

TEST_P(RuleMessageTest, IsTheOneOfTheCatalogue) {
    const Texts english = TextsOf("FeatureRules", GetParam().folder);
    for (const std::string& group : loaded.catalogue->Groups()) {
        for (const std::string& type : *loaded.catalogue->TypesOf(group)) {
            for (const Rule& rule : loaded.catalogue->Type(type)->Rules()) {
                EXPECT_EQ(english.at(type + "." + rule.key), rule.message) << type << "." << rule.key;
            }
        }
    }
}

std::string LanguageName(const testing::TestParamInfo<Language>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Language, MessageCatalogueTest,
                         testing::Values(Language{"English", ""}, Language{"German", "German"},
                                         Language{"French", "French"}, Language{"Japanese", "Japanese"}),
                         LanguageName);
INSTANTIATE_TEST_SUITE_P(Language, RuleMessageTest, testing::Values(Language{"English", ""}), LanguageName);

} // namespace
