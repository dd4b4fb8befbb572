// The languages in which a value field says why it does not take a text or a step.

#include "CATCkeGlobalFunctions.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATICkeParamFrame.h"
#include "CATIParmAsStored.h"
#include "NewParameter.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/MessageCatalogs.h"
#include "host/ParameterEntry.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"
#include "support/ApplicationTest.h"

#include <functional>
#include <set>

using host::DialogUser;
using host::MessageCatalogs;
using host::ParameterEntry;
using host::Parameters;
using host::ValueFrame;

namespace {

std::string ReasonOf(const char* iMagnitude, const std::string& iTyped) {
    return ParameterEntry::Type(*NewParameter(iMagnitude), iTyped).reason;
}

class EntryLanguageTest : public support::ApplicationTest {
  protected:
    void TearDown() override {
        MessageCatalogs::SetLanguage("");
        ApplicationTest::TearDown();
    }

    ValueFrame& Build(const CATICkeParm_var& iParameter) {
        return dynamic_cast<ValueFrame&>(
            *CATICkeParamFrame_var(iParameter)->BuildFrame(NULL_var, dialog, CATCkeWithSpinner, ""));
    }

    // What is said in iLanguage, which it leaves set.
    static std::string In(const std::string& iLanguage, const std::function<std::string()>& iReason) {
        MessageCatalogs::SetLanguage(iLanguage);
        return iReason();
    }

    // That the four languages have four sentences, each with all of iParts.
    static void ExpectASentenceInEachLanguage(const std::function<std::string()>& iReason,
                                              const std::vector<std::string>& iParts) {
        std::set<std::string> sentences;
        for (const char* const language : {"", "German", "French", "Japanese"}) {
            SCOPED_TRACE(language);
            const std::string sentence = In(language, iReason);
            EXPECT_FALSE(sentence.empty());
            EXPECT_EQ(sentence.find("/p"), std::string::npos) << sentence;
            for (const std::string& part : iParts)
                EXPECT_NE(sentence.find(part), std::string::npos) << sentence << " lacks " << part;
            EXPECT_TRUE(sentences.insert(sentence).second) << sentence << " is that of another language";
        }
    }

    CATDlgDialog* const dialog = new CATDlgDialog(MainWindow(), "Dlg");
};

TEST_F(EntryLanguageTest, EveryLanguageSaysWhyATextIsRefused) {
    struct Refused {
        const char* magnitude;
        std::string typed;
        std::vector<std::string> parts;
    };
    const std::string deep = std::string(101, '(') + "8";
    const std::vector<Refused> texts = {
        {"LENGTH", "", {}},
        {"LENGTH", "wide", {"wide"}},
        {"LENGTH", "1e999", {"1e999"}},
        {"LENGTH", "3 4", {"3 4"}},
        {"INTEGER", "2.5", {"2.5", "-2147483648", "2147483647"}},
        {"BOOLEAN", "yes", {"yes", "true", "false"}},
        {"LENGTH", "(3+4", {"(3+4"}},
        {"LENGTH", "3+4)", {"3+4)"}},
        {"LENGTH", deep, {std::string(60, '(') + "...", "100"}},
        {"LENGTH", std::string(60, '8') + "*", {std::string(60, '8') + "...", "*"}},
        {"LENGTH", "/8", {"/8"}},
        {"LENGTH", "(3)4", {"(3)4"}},
        {"LENGTH", "2(3)", {"2(3)"}},
        {"LENGTH", "3 deg", {"deg", "mm, cm, m, in"}},
        {"ANGLE", "3 mm", {"mm", "deg, rad"}},
        {"REAL", "3 mm", {"mm"}},
        {"INTEGER", "3 mm", {"mm"}},
        {"LENGTH", "2mm*3mm", {"2mm*3mm"}},
        {"ANGLE", "2deg*3deg", {"2deg*3deg"}},
        {"LENGTH", "(3mm) mm", {"(3mm) mm"}},
        {"LENGTH", "1mm+2mm*3mm", {"1mm+2mm*3mm"}},
        {"LENGTH", "1cm+1mm+1", {"1cm+1mm+1"}},
        {"LENGTH", "1/0", {"1/0"}},
        {"LENGTH", "1e308*10", {"1e308*10"}},
        {"LENGTH", "1e-200*1e-200", {"1e-200*1e-200"}},
    };
    for (const Refused& text : texts) {
        SCOPED_TRACE(std::string(text.magnitude) + " '" + text.typed + "'");
        ExpectASentenceInEachLanguage([&] { return ReasonOf(text.magnitude, text.typed); }, text.parts);
    }
}

TEST_F(EntryLanguageTest, EveryLanguageSaysWhyAParameterTakesNoValueOrStep) {
    const CATICkeParm_var count = Parameters::NewInteger("COUNT", 2147483647);
    const CATICkeParm_var ratio = Parameters::NewReal("RATIO", 1e300);
    const CATICkeParm_var flag = Parameters::NewBoolean("FLAG", true);
    const CATICkeParm_var fixed = Parameters::NewLength("FIXED", 1.0);
    fixed->SetUserAccessMode(1);
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Type(*fixed, "8").reason; }, {"FIXED"});
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Step(*fixed, 1, 1.0).reason; }, {"FIXED"});
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Step(*flag, 1, 1.0).reason; }, {"FLAG"});
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Step(*ratio, 2, 1e308).reason; }, {"RATIO"});
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Step(*ratio, 1, 0.5).reason; },
                                  {"RATIO", "0.5"});
    ExpectASentenceInEachLanguage([&] { return ParameterEntry::Step(*count, 1, 1.0).reason; },
                                  {"COUNT", "2147483648"});
    ExpectASentenceInEachLanguage(
        [&] {
            host::FaultPoints::FailCall(1, "parameter write");
            const std::string reason = ParameterEntry::Type(*ratio, "8").reason;
            host::FaultPoints::Stop();
            return reason;
        },
        {"RATIO"});
}

TEST_F(EntryLanguageTest, AFrameSaysItInTheLanguageOfTheMessages) {
    struct Said {
        const char* language;
        const char* magnitude;
        const char* typed;
        const char* problem;
    };
    const Said all[] = {
        {"", "LENGTH", "3 deg", "'deg' is not a unit of LENGTH, which has mm, cm, m, in"},
        {"", "REAL", "3 deg", "'deg' is not a unit of REAL, which has none"},
        {"", "ANGLE", "1deg/1rad", "'1deg/1rad' gives no ANGLE"},
        {"German", "LENGTH", "", "keine Zahl eingegeben"},
        {"German", "LENGTH", " wide ", "'wide' ist keine Zahl"},
        {"German", "LENGTH", "3 deg", "'deg' ist keine Einheit für eine Länge; möglich sind mm, cm, m, in"},
        {"German", "ANGLE", "3 mm", "'mm' ist keine Einheit für einen Winkel; möglich sind deg, rad"},
        {"German", "REAL", "3 mm", "'mm' ist keine Einheit für eine Zahl; es gibt dafür keine"},
        {"German", "INTEGER", "3 mm", "'mm' ist keine Einheit für eine ganze Zahl; es gibt dafür keine"},
        {"German", "ANGLE", "1deg/1rad", "'1deg/1rad' ergibt etwas anderes als einen Winkel"},
        {"German", "LENGTH", "10+", "'10+' hat keine Zahl hinter '+'"},
        {"German", "LENGTH", "/8", "'/8' hat keine Zahl vor '/'"},
        {"German", "LENGTH", "(3)4", "'(3)4' hat kein Rechenzeichen hinter ')'"},
        {"German", "LENGTH", "2(3)", "'2(3)' hat kein Rechenzeichen vor '('"},
        {"French", "LENGTH", "", "aucun nombre n'est saisi"},
        {"French", "LENGTH", " wide ", "'wide' n'est pas un nombre"},
        {"French", "LENGTH", "3 deg",
         "'deg' n'est pas une unité pour une longueur ; unités possibles : mm, cm, m, in"},
        {"French", "ANGLE", "3 mm", "'mm' n'est pas une unité pour un angle ; unités possibles : deg, rad"},
        {"French", "REAL", "3 mm", "'mm' n'est pas une unité pour un nombre ; il n'y en a aucune"},
        {"French", "INTEGER", "3 mm", "'mm' n'est pas une unité pour un nombre entier ; il n'y en a aucune"},
        {"French", "LENGTH", "10mm/2mm", "'10mm/2mm' ne donne pas une longueur"},
        {"French", "LENGTH", "10+", "'10+' n'a pas de nombre après '+'"},
        {"French", "LENGTH", "/8", "'/8' n'a pas de nombre avant '/'"},
        {"French", "LENGTH", "(3)4", "'(3)4' n'a pas d'opérateur après ')'"},
        {"French", "LENGTH", "2(3)", "'2(3)' n'a pas d'opérateur avant '('"},
        {"Japanese", "LENGTH", "", "数が入力されていません"},
        {"Japanese", "LENGTH", " wide ", "「wide」は数ではありません"},
        {"Japanese", "LENGTH", "3 deg", "「deg」は長さの単位ではありません（使える単位: mm, cm, m, in）"},
        {"Japanese", "ANGLE", "3 mm", "「mm」は角度の単位ではありません（使える単位: deg, rad）"},
        {"Japanese", "REAL", "3 mm", "「mm」は実数の単位ではありません（実数に単位はありません）"},
        {"Japanese", "INTEGER", "3 mm", "「mm」は整数の単位ではありません（整数に単位はありません）"},
        {"Japanese", "LENGTH", "10mm/2mm", "「10mm/2mm」の結果は長さになりません"},
        {"Japanese", "LENGTH", "10+", "「10+」の「+」の後に数がありません"},
        {"Japanese", "LENGTH", "/8", "「/8」の「/」の前に数がありません"},
        {"Japanese", "LENGTH", "(3)4", "「(3)4」の「)」の後に演算子がありません"},
        {"Japanese", "LENGTH", "2(3)", "「2(3)」の「(」の前に演算子がありません"},
    };
    for (const Said& said : all) {
        SCOPED_TRACE(std::string(said.language) + ' ' + said.magnitude + " '" + said.typed + "'");
        MessageCatalogs::SetLanguage(said.language);
        const CATICkeParm_var parameter = NewParameter(said.magnitude);
        ValueFrame& frame = Build(parameter);
        dialog->SetVisibility(CATDlgShow);
        EXPECT_TRUE(DialogUser::Type(frame, said.typed));
        EXPECT_EQ(frame.Text(), said.typed);
        EXPECT_EQ(frame.Problem(), said.problem);
        EXPECT_EQ(CATIParmAsStored_var(parameter)->GetValue(), 7.0);
    }
}

TEST_F(EntryLanguageTest, ALanguageThatTheHostDoesNotSpeakGetsEnglish) {
    for (const char* const language : {"Klingon", "german", "English"}) {
        MessageCatalogs::SetLanguage(language);
        EXPECT_EQ(ReasonOf("LENGTH", "3 deg"), "'deg' is not a unit of LENGTH, which has mm, cm, m, in");
    }
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ(ReasonOf("LENGTH", "wide"), "'wide' ist keine Zahl");
}

TEST_F(EntryLanguageTest, ARefusedTextKeepsItsReasonUntilItIsTypedAgain) {
    const CATICkeParm_var depth = Parameters::NewLength("DEPTH", 12.5);
    ValueFrame& frame = Build(depth);
    dialog->SetVisibility(CATDlgShow);
    MessageCatalogs::SetLanguage("German");
    ASSERT_TRUE(DialogUser::Type(frame, "1/0"));
    MessageCatalogs::SetLanguage("French");
    EXPECT_EQ(frame.Text(), "1/0");
    EXPECT_EQ(frame.Problem(), "'1/0' teilt durch null");
    ASSERT_TRUE(DialogUser::Type(frame, "1/0"));
    EXPECT_EQ(frame.Problem(), "'1/0' divise par zéro");
    ASSERT_TRUE(DialogUser::Type(frame, "8"));
    EXPECT_EQ(frame.Text(), "8mm");
    EXPECT_EQ(frame.Problem(), "");
}

TEST_F(EntryLanguageTest, ATypedPlaceForAParameterIsQuotedAsItStands) {
    EXPECT_EQ(ReasonOf("BOOLEAN", "/p1/p2"), "'/p1/p2' is neither true nor false");
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ(ReasonOf("BOOLEAN", "/p1/p2"), "'/p1/p2' ist weder true noch false");
}

} // namespace
