#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CommandTest.h"
#include "host/MessageCatalogs.h"

namespace command {

struct Language {
    const char* folder;
    const char* title;
};

void PrintTo(const Language& iLanguage, std::ostream* ioStream) {
    *ioStream << (*iLanguage.folder == '\0' ? "English" : iLanguage.folder);
}

class EveryTypeTest : public CommandTest, public testing::WithParamInterface<Language> {
  protected:
    EveryTypeTest() { host::MessageCatalogs::SetLanguage(GetParam().folder); }
    void TearDown() override {
        host::MessageCatalogs::SetLanguage("");
        CommandTest::TearDown();
    }

    static std::string NameOf(const std::string& iKey) {
        return host::MessageCatalogs::Text("OrvKvCustomisation", iKey).value_or("no name of " + iKey);
    }
    // The list has a row for every value that the set tabulates, with a value and a meaning.
    static void ExpectListed(const engineering::FeatureType& iType, const engineering::ParameterSet& iSet) {
        for (std::size_t number = 0; number < iType.Parameters().size(); ++number) {
            const std::string& name = iType.Parameters()[number].name;
            const std::string row = RowOf(name);
            ASSERT_EQ(!row.empty(), iSet.values[number].value.has_value()) << name;
            if (row.empty())
                continue;
            EXPECT_EQ(row.find("|" + name + "||"), std::string::npos) << "no value in " << row;
            EXPECT_NE(row.substr(row.rfind('|')), "| ") << "no meaning in " << row;
        }
    }
    void ExpectEverySetListed(const engineering::FeatureType& iType) {
        ASSERT_EQ(LinesOf("ParameterSetCmb").size(), iType.Sets().size());
        for (std::size_t set = 0; set < iType.Sets().size(); ++set) {
            ASSERT_TRUE(ChooseSet(static_cast<int>(set)));
            EXPECT_EQ(Command().SetName(), iType.Sets()[set].name);
            ExpectListed(iType, iType.Sets()[set]);
        }
    }
};

TEST_P(EveryTypeTest, CanBeChosenAndEverySetIsListed) {
    ASSERT_TRUE(Start());
    int types = 0;
    for (std::size_t group = 0; group < Shipped().Groups().size(); ++group) {
        const std::string& key = Shipped().Groups()[group];
        EXPECT_EQ(LinesOf("GroupCmb")[group], NameOf(key));
        ASSERT_TRUE(ChooseGroup(static_cast<int>(group)));
        int line = 0;
        for (const std::string& type : *Shipped().TypesOf(key)) {
            SCOPED_TRACE(type);
            ASSERT_TRUE(ChooseType(line++));
            EXPECT_EQ(Command().TypeKey(), type);
            ExpectEverySetListed(*Shipped().Type(type));
            ++types;
        }
    }
    EXPECT_EQ(types, 14);
}

TEST_P(EveryTypeTest, TheDialogSpeaksTheLanguage) {
    ASSERT_TRUE(Start());
    for (const char* catalogue :
         {"FeatureCommand", "OrvKvMainPanel", "OrvKvParametersDescription", "FeatureRules"}) {
        const Texts keys = host::MessageCatalogs::Keys(catalogue, "");
        EXPECT_FALSE(keys.empty());
        EXPECT_EQ(host::MessageCatalogs::Keys(catalogue, GetParam().folder), keys);
    }
    EXPECT_EQ(host::MessageCatalogs::Text("OrvKvMainPanel", "Title"), GetParam().title);
    EXPECT_TRUE(host::MessageCatalogs::Problems().empty());
}

TEST_P(EveryTypeTest, EverySetStandsInTheTableOfSets) {
    ASSERT_TRUE(Start(FeatureCommand::Mode::Sets));
    for (std::size_t group = 0; group < Shipped().Groups().size(); ++group) {
        ASSERT_TRUE(ChooseGroup(static_cast<int>(group)));
        int line = 0;
        for (const std::string& key : *Shipped().TypesOf(Shipped().Groups()[group])) {
            SCOPED_TRACE(key);
            ASSERT_TRUE(ChooseType(line++));
            const engineering::FeatureType& type = *Shipped().Type(key);
            const Texts rows = Rows("ParameterSetMul");
            ASSERT_EQ(rows.size(), type.Sets().size());
            for (std::size_t set = 0; set < rows.size(); ++set)
                EXPECT_EQ(rows[set].substr(0, rows[set].find('|')), type.Sets()[set].name);
            EXPECT_EQ(Rows("CurrentParameterMul"), Texts({rows[0]}));
        }
    }
}

const Language languages[] = {{"", "Kelvane Feature"},
                              {"German", "Kelvane-Feature"},
                              {"French", "Fonction Kelvane"},
                              {"Japanese", "Kelvane フィーチャー"}};

INSTANTIATE_TEST_SUITE_P(Languages, EveryTypeTest, testing::ValuesIn(languages));

} // namespace command
