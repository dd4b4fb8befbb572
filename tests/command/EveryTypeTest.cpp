#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CommandTest.h"
#include "host/MessageCatalogs.h"

namespace command {

struct Language {
    const char* folder;
    const char* title;
    const char* standard; // what stands before the standard
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
    // The acknowledgement is the set's: its name, its type's name, a line for each parameter, the standard.
    void ExpectAcknowledged(const engineering::FeatureType& iType, const engineering::ParameterSet& iSet) {
        const int parameters = static_cast<int>(iType.Parameters().size());
        EXPECT_EQ(Acknowledged(0), iSet.name);
        EXPECT_EQ(Acknowledged(1), NameOf(iType.Description().key));
        for (int number = 0; number < parameters; ++number) {
            const std::string line = Acknowledged(3 + number);
            const std::string name = iType.Parameters()[static_cast<std::size_t>(number)].name;
            EXPECT_EQ(line.substr(0, name.size() + 3), name + " = ");
            EXPECT_EQ(line.back(), ')') << "no meaning in " << line;
            const bool isTabulated = iSet.values[static_cast<std::size_t>(number)].value.has_value();
            EXPECT_EQ(line.find("= —") == std::string::npos, isTabulated) << line;
        }
        EXPECT_EQ(Acknowledged(4 + parameters), GetParam().standard + iType.Description().standard);
        EXPECT_EQ(Command().SetName(), iSet.name);
    }
    void ExpectEverySetAcknowledged(const engineering::FeatureType& iType) {
        ASSERT_EQ(LinesOf("ParameterSetCmb").size(), iType.Sets().size());
        for (std::size_t set = 0; set < iType.Sets().size(); ++set) {
            ASSERT_TRUE(ChooseSet(static_cast<int>(set)));
            ExpectAcknowledged(iType, iType.Sets()[set]);
        }
    }
};

TEST_P(EveryTypeTest, CanBeChosenAndEverySetIsAcknowledged) {
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
            ExpectEverySetAcknowledged(*Shipped().Type(type));
            ++types;
        }
    }
    EXPECT_EQ(types, 14);
}

TEST_P(EveryTypeTest, TheDialogSpeaksTheLanguage) {
    ASSERT_TRUE(Start());
    const Texts keys = host::MessageCatalogs::Keys("FeatureDialog", "");
    EXPECT_EQ(keys, (Texts{"GroupCmb.ShortHelp", "GroupLab.Title", "ParametersEdt.ShortHelp",
                           "ParametersLab.Title", "SelectorLab.Title", "Title"}));
    EXPECT_EQ(host::MessageCatalogs::Keys("FeatureDialog", GetParam().folder), keys);
    EXPECT_EQ(host::MessageCatalogs::Keys("FeatureCommand", GetParam().folder),
              (Texts{"No", "NoSet", "Standard", "Yes"}));
    EXPECT_EQ(host::MessageCatalogs::Text("FeatureDialog", "Title"), GetParam().title);
    EXPECT_TRUE(host::MessageCatalogs::Problems().empty());
}

const Language languages[] = {{"", "Kelvane Feature", "Standard: "},
                              {"German", "Kelvane-Feature", "Norm: "},
                              {"French", "Fonction Kelvane", "Norme : "},
                              {"Japanese", "Kelvane フィーチャー", "規格: "}};

INSTANTIATE_TEST_SUITE_P(Languages, EveryTypeTest, testing::ValuesIn(languages));

} // namespace command
