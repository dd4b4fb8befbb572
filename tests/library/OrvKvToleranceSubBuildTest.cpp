// What the tolerance panel consists of: its widgets, their places and texts, its copies and its end, and what
// is left when it cannot be built.

#include "OrvKvToleranceSubTest.h"

#include "StandInParameter.h"
#include "support/GoldenFolder.h"

#include "CATDlgContainer.h"
#include "CATDlgLabel.h"
#include "CATError.h"
#include "CATErrorMacros.h"
#include "host/DialogDump.h"
#include "host/FaultPoints.h"
#include "host/LayoutPlan.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"

#include <limits>
#include <utility>

namespace {

using namespace support;
using namespace toleranceSub;

class OrvKvToleranceSubBuildTest : public OrvKvToleranceSubTest {
  protected:
    std::string Dump() const { return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout); }
    static CATULong References(const CATICkeParm_var& iParm) {
        iParm->AddRef();
        return iParm->Release();
    }
    // The build meets one error, which is traced and shown.
    void ExpectBuildToFail(const std::string& iKey, const std::string& iText) {
        Traces().Take();
        {
            const host::EventScope event;
            _panel->Build();
        }
        host::FaultPoints::Stop();
        EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::Build", iKey));
        const ShownMessages messages = TakeMessages();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages.front().name, "Error");
        EXPECT_EQ(messages.front().style, 0x10000000UL);
        EXPECT_NE(messages.front().text.find(iText), std::string::npos) << messages.front().text;
    }
    void ExpectBuildToFail(const std::string& iKey) { ExpectBuildToFail(iKey, ""); }
};

TEST_F(OrvKvToleranceSubBuildTest, IsAFrameThatIsEmptyAndDeafBeforeItIsBuilt) {
    Make();
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "OrvKvToleranceSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0UL);
    EXPECT_EQ(host::Inspector::Parent(*_panel), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(SubscriptionsOn(_parm), 0);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 0);
    EXPECT_EQ(Fitting(), "|");
}

TEST_F(OrvKvToleranceSubBuildTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(_panel->GetResourceFilename(level), "OrvKvToleranceSub") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(_panel->GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvToleranceSubBuildTest, BuildMakesTheseWidgetsInThisOrderAtTheseLines) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(*_panel),
              Pieces({{"CATDlgRadioButton", "ISOFittingRdb", 0, "2(1)", "0(1)"},
                      {"CATDlgRadioButton", "PlusMinusSymmetricalRdb", 0, "0(1)", "0(1)"},
                      {"CATDlgRadioButton", "PlusMinusRdb", 0, "0(1)", ""},
                      {"CATDlgLabel", "ToleranceGroupLab", 0, "2(1)", "2(1)"},
                      {"CATDlgCombo", "ToleranceGroupCmb", 0x40000, "2(1)", "3(1)"},
                      {"CATDlgLabel", "ToleranceFieldLab", 0, "2(1)", "4(1)"},
                      {"CATDlgCombo", "ToleranceFieldCmb", 0x40000, "2(1)", "5(1)"},
                      {"CATDlgContainer", "SeparateISOFromPlusMinusCon", 0, "1(1)", "0(1)"},
                      {"CATDlgContainer", "SeparatePlusMinusFromMaxCon", 0, "", "1(1)"},
                      {"CATDlgLabel", "MaxLab", 0, "0(1)", "2(1)"},
                      {"ParameterFrame", "Max", 0xC0000, "0(1)", "3(1)"},
                      {"CATDlgLabel", "MinLab", 0, "0(1)", "4(1)"},
                      {"ParameterFrame", "Min", 0xC0000, "0(1)", "5(1)"}}));
}

TEST_F(OrvKvToleranceSubBuildTest, SeparatorsHaveTheirExtents) {
    MakeBuilt();
    for (const char* name : {"SeparateISOFromPlusMinusCon", "SeparatePlusMinusFromMaxCon"}) {
        int place[4] = {0, 0, 0, 0};
        Widget<CATDialog>(name).GetRectDimensions(&place[0], &place[1], &place[2], &place[3]);
        EXPECT_EQ(std::vector<int>(place, place + 4), std::vector<int>({1, 1, 10, 10})) << name;
    }
}

TEST_F(OrvKvToleranceSubBuildTest, TheChoicesStandAboveTheEditorsAndTheFitBesideThem) {
    MakeBuilt();
    const host::LayoutPlan plan = host::PlanLayout(*_panel);
    const char* const editors[] = {
        "PlusMinusSymmetricalRdb", "PlusMinusRdb", "MaxLab", "Max", "MinLab", "Min"};
    const CATDialog* above = nullptr;
    for (const char* name : editors) {
        const auto& widget = Widget<CATDialog>(name);
        EXPECT_TRUE(above == nullptr || plan.IsAbove(*above, widget)) << name;
        above = &widget;
    }
    const std::pair<const char*, const char*> rows[] = {{"PlusMinusSymmetricalRdb", "ISOFittingRdb"},
                                                        {"MaxLab", "ToleranceGroupLab"},
                                                        {"Max", "ToleranceGroupCmb"},
                                                        {"MinLab", "ToleranceFieldLab"},
                                                        {"Min", "ToleranceFieldCmb"}};
    for (const auto& [left, right] : rows)
        EXPECT_TRUE(plan.IsLeftOf(Widget<CATDialog>(left), Widget<CATDialog>(right))) << left;
}

TEST_F(OrvKvToleranceSubBuildTest, TheEditorsEditLiteralsOfTheParametersOwnMagnitude) {
    const std::pair<CATICkeParm_var, const char*> cases[] = {{host::Parameters::NewLength("D", 20), "LENGTH"},
                                                             {host::Parameters::NewAngle("A", 20), "ANGLE"}};
    for (const auto& [parm, magnitude] : cases) {
        MakeFor(parm).Build();
        EXPECT_STREQ(MaxLiteral()->Name().ConvertToChar(), "Max");
        EXPECT_STREQ(MinLiteral()->Name().ConvertToChar(), "Min");
        EXPECT_STREQ(MaxLiteral()->Type()->Name().ConvertToChar(), magnitude);
        EXPECT_STREQ(MinLiteral()->Type()->Name().ConvertToChar(), magnitude);
        EXPECT_NE(MaxLiteral(), MinLiteral());
        EXPECT_NE(MaxLiteral(), parm);
    }
}

TEST_F(OrvKvToleranceSubBuildTest, TheLiteralsStartWithTheDeviationsOfTheParameter) {
    MakeTolerated(0.2, -0.05);
    EXPECT_EQ(ShownDeviations(), "0.2mm/-0.05mm");
    EXPECT_EQ(Tolerance(), "0.2/-0.05");
    MakeBuilt();
    EXPECT_EQ(ShownDeviations(), "0mm/0mm");
    EXPECT_EQ(Tolerance(), "none") << "looking sets no tolerance";
    MakeFor(host::Parameters::NewAngle("A", 20));
    SetTolerance(0.5, -0.25);
    _panel->Build();
    EXPECT_EQ(ShownDeviations(), "0.5deg/-0.25deg");
}

TEST_F(OrvKvToleranceSubBuildTest, TheEditorsHaveArrowsAndNoLabel) {
    MakeBuilt();
    for (const host::ValueFrame* editor : {&Maximum(), &Minimum()}) {
        EXPECT_TRUE(editor->HasSpinner());
        EXPECT_EQ(editor->Label(), "");
        EXPECT_TRUE(editor->IsEditable());
    }
}

TEST_F(OrvKvToleranceSubBuildTest, BuildChoosesNothingAndTellsNothing) {
    MakeTolerated(0.1, -0.1);
    EXPECT_EQ(Checked(), "");
    EXPECT_EQ(WidgetStates(), "fit shown, max enabled, min enabled");
    EXPECT_EQ(LinesOf(Groups()), Lines());
    EXPECT_EQ(LinesOf(Fields()), Lines());
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvToleranceSubBuildTest, BuildListensToRadiosCombosAndTheParameter) {
    MakeBuilt();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 5);
    EXPECT_EQ(Subscriptions(), "parm 1, max 0, min 0");
}

TEST_F(OrvKvToleranceSubBuildTest, ASecondBuildMakesNothing) {
    MakePlusMinus();
    const std::string before = Dump();
    _panel->Build();
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 5);
    EXPECT_EQ(Subscriptions(), "parm 1, max 1, min 1");
}

TEST_F(OrvKvToleranceSubBuildTest, LooksLikeThis) {
    MakeTolerated(0.1, -0.05);
    EXPECT_TRUE(MatchesGolden("ToleranceSub-built", Dump()));
    Choose(PlusMinus());
    EXPECT_TRUE(MatchesGolden("ToleranceSub-plus-minus", Dump()));
    Choose(Symmetric());
    EXPECT_TRUE(MatchesGolden("ToleranceSub-symmetric", Dump()));
    Choose(Fit());
    SetGroups({"G", "H"}, "H", "H7");
    SetFields({"H6", "H7", "H8"});
    SetFittingVals(0.021, 0.0);
    EXPECT_TRUE(MatchesGolden("ToleranceSub-fit", Dump()));
}

TEST_F(OrvKvToleranceSubBuildTest, CaptionsAreThereInEveryLanguage) {
    MakeBuilt();
    std::vector<Lines> captions;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        Lines texts = {_panel->GetTitle().ConvertToChar()};
        for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb", "MaxLab",
                                 "MinLab", "ToleranceGroupLab", "ToleranceFieldLab"})
            texts.emplace_back(Widget<CATDialog>(name).GetTitle().ConvertToChar());
        captions.push_back(texts);
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(captions, std::vector<Lines>(
                            {{"", "Plus/minus", "Plus/minus symmetrical", "ISO fit", "Upper deviation",
                              "Lower deviation", "Fundamental deviation", "Tolerance class"},
                             {"", "Plus/Minus", "Plus/Minus symmetrisch", "ISO-Passung", "Oberes Abmaß",
                              "Unteres Abmaß", "Grundabmaß", "Toleranzfeld"},
                             {"", "Plus/moins", "Plus/moins symétrique", "Ajustement ISO", "Écart supérieur",
                              "Écart inférieur", "Écart fondamental", "Classe de tolérance"},
                             {"", "プラス/マイナス", "プラス/マイナス対称", "ISO はめあい", "上の許容差",
                              "下の許容差", "基礎となる許容差", "公差クラス"}}));
}

TEST_F(OrvKvToleranceSubBuildTest, EveryControlHasHelpInEveryLanguage) {
    MakeBuilt();
    std::vector<std::string> texts;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb", "Max", "Min",
                                 "ToleranceGroupCmb", "ToleranceFieldCmb"}) {
            const auto& widget = Widget<CATDialog>(std::string("OrvKvToleranceSub/") + name);
            for (const CATUnicodeString& text :
                 {widget.GetShortHelp(), widget.GetHelp(), widget.GetLongHelp()}) {
                EXPECT_GT(text.GetLengthInChar(), 3) << language << name;
                texts.emplace_back(text.ConvertToChar());
            }
        }
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(texts.size(), 4U * 7U * 3U);
}

TEST_F(OrvKvToleranceSubBuildTest, NotificationsGoToTheFatherAndNotThroughThePanelItself) {
    _parm = host::Parameters::NewLength("D", 20);
    auto* const panel = new ListeningPanel<OrvKvToleranceSub>(MainWindow(), _parm);
    panel->Build();
    PlusMinus().SetState(CATDlgCheck, 1);
    const int before = panel->Count();
    Fit().SetState(CATDlgCheck, 1); // widgets alone
    const int ofWidgets = panel->Count() - before;
    PlusMinus().SetState(CATDlgCheck, 1);
    EXPECT_EQ(panel->Count(), before + 2 * ofWidgets) << "entering the fit sends one notification more";
    EXPECT_EQ(Said(), Texts({"fit of D '' ''"}));
}

TEST_F(OrvKvToleranceSubBuildTest, ACopySharesWidgetsAndValuesAndHasAFitOfItsOwn) {
    MakeFit();
    _panel->SetTolGroupAndField("H", "H7");
    OrvKvToleranceSub copy(*_panel);
    auto& other = *new OrvKvToleranceSub(MainWindow(), CATICkeParm_var());
    other = copy;
    _panel->SetTolGroupAndField("G", "G6");
    for (OrvKvToleranceSub* const panel : {&copy, &other}) {
        EXPECT_TRUE(host::Inspector::Children(*panel).empty());
        panel->Build(); // has its widgets already
        EXPECT_TRUE(host::Inspector::Children(*panel).empty());
        CATString group;
        CATString field;
        EXPECT_EQ(panel->GetFittingInfo(nullptr, nullptr, &group, &field), S_OK);
        EXPECT_EQ(group, "H");
        EXPECT_EQ(field, "H7");
        SetTolerance(0.1, -0.1);
        EXPECT_EQ(panel->SetFittingVals(0.021, 0.0), S_OK);
        EXPECT_EQ(Tolerance(), "0.021/0");
        EXPECT_EQ(ShownDeviations(), "0.021mm/0mm");
        Said();
    }
    EXPECT_EQ(Fitting(), "G|G6");
}

TEST_F(OrvKvToleranceSubBuildTest, ADestroyedCopyLeavesTheOriginalListening) {
    MakeFit();
    { const OrvKvToleranceSub copy(*_panel); }
    EXPECT_EQ(Subscriptions(), "parm 2, max 0, min 0");
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 5);
    ChooseText(Groups(), "H");
    TypeValue("25");
    EXPECT_EQ(Said(), Texts({"group 'H' at 20", "update 'H' 'H7' at 25"}));
}

TEST_F(OrvKvToleranceSubBuildTest, ADestroyedCopyLeavesTheDeviationsOfTheOriginalListenedTo) {
    for (const char* mode : {"PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeBuilt();
        Choose(Widget<CATDlgRadioButton>(mode));
        const std::string before = Subscriptions();
        { const OrvKvToleranceSub copy(*_panel); }
        EXPECT_EQ(Subscriptions(), before) << mode;
        Type(Maximum(), "0.3");
        EXPECT_EQ(CATIParmTolerance_var(_parm)->GetMaxTolerance(), 0.3) << mode;
    }
}

TEST_F(OrvKvToleranceSubBuildTest, ABuiltPanelThatBecomesLikeAnotherStillEndsItsOwnSubscriptions) {
    const CATICkeParm_var own = host::Parameters::NewLength("Own", 30);
    auto* const other = new OrvKvToleranceSub(MainWindow(), own);
    other->Build();
    Choose(PlusMinus());
    const CATICkeParm_var maximum = MaxLiteral();
    EXPECT_EQ(SubscriptionsOn(own), 1);
    EXPECT_EQ(SubscriptionsOn(maximum), 1);
    const OrvKvToleranceSub empty(MainWindow(), _parm);
    *other = empty;
    delete other;
    EXPECT_EQ(SubscriptionsOn(own), 0);
    EXPECT_EQ(SubscriptionsOn(maximum), 0);
}

TEST_F(OrvKvToleranceSubBuildTest, APanelRemovesItsCallbacksBeforeItsWidgetsGo) {
    std::vector<int> counts;
    Make();
    new CountingChild(*_panel, counts);
    _panel->Build();
    new CountingChild(*_panel, counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 5);
    Destroy();
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
}

TEST_F(OrvKvToleranceSubBuildTest, InEveryModeADestroyedPanelLetsGoOfEverything) {
    const std::function<void()> modes[] = {[this] { MakeBuilt(); }, [this] { MakePlusMinus(); },
                                           [this] { MakeSymmetric(); }, [this] { MakeFit(); }};
    for (const auto& make : modes) {
        make();
        const std::string mode = "in mode '" + Checked() + "'";
        EXPECT_GE(SubscriptionsOn(_parm), 1) << mode;
        const CATICkeParm_var maximum = MaxLiteral();
        const CATICkeParm_var minimum = MinLiteral();
        Destroy();
        for (const CATICkeParm_var& parm : {_parm, maximum, minimum}) {
            EXPECT_EQ(SubscriptionsOn(parm), 0) << mode;
            EXPECT_EQ(References(parm), 2U) << mode; // the test's own and that of the list
        }
        TypeValue("600");
        EXPECT_EQ(Traces().Take(), TraceLines()) << mode;
    }
}

// What a build that fails leaves

TEST_F(OrvKvToleranceSubBuildTest, WithoutAParameterBuildShowsTheNullHandleError) {
    MakeFor(CATICkeParm_var());
    ExpectBuildToFail("NullHandle");
    EXPECT_TRUE(Exists("MaxLab")) << "what was made before stays";
    EXPECT_FALSE(Exists("MinLab"));
    _panel->Build(); // makes nothing
    EXPECT_EQ(host::DialogPath::Named("ISOFittingRdb").size(), 1U);
    EXPECT_EQ(SetValues(0.1, -0.1, 1, 1, 1), FailureIn(source, notBuilt));
    Choose(PlusMinus()); // nobody answers
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvToleranceSubBuildTest, WithoutTheVolatileFactoryBuildShowsThatAnInterfaceIsMissing) {
    Make();
    host::FaultPoints::FailCall(1, "parameter factory");
    ExpectBuildToFail("Error_NoInterface", "An object does not offer what this action needs from it.");
    EXPECT_TRUE(Exists("SeparatePlusMinusFromMaxCon"));
    EXPECT_FALSE(Exists("MaxLab"));
}

TEST_F(OrvKvToleranceSubBuildTest, ALiteralThatCannotBeMadeIsNamed) {
    const std::pair<int, const char*> cases[] = {{1, "NULL_var == _hIMaxLiteral"},
                                                 {2, "NULL_var == _hIMinLiteral"}};
    for (const auto& [call, text] : cases) {
        Make();
        host::FaultPoints::FailCall(call, "parameter allocation");
        ExpectBuildToFail("Error_Description", text);
        EXPECT_EQ(Exists("MinLab"), call == 2);
        EXPECT_EQ(InitTolerance(), FailureIn(source, notBuilt));
    }
}

TEST_F(OrvKvToleranceSubBuildTest, ALiteralWithoutStoredValueLacksAnInterface) {
    const auto stand = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20)));
    const CATICkeParm_var text = host::Parameters::NewString("N", "text");
    stand->onType = [&] { return text->Type(); };
    MakeFor(stand);
    ExpectBuildToFail("Error_NoInterface");
    EXPECT_TRUE(Exists("MaxLab"));
    EXPECT_FALSE(Exists("MinLab"));
}

TEST_F(OrvKvToleranceSubBuildTest, AParameterWithoutToleranceOrEventsLacksAnInterface) {
    for (const IID& missing : {IID_CATIParmTolerance, IID_CATIParmEvents}) {
        const auto stand = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20)));
        stand->missing = {missing};
        MakeFor(stand);
        ExpectBuildToFail("Error_NoInterface");
    }
}

// A literal that is published by nobody is none the worse for it.
TEST_F(OrvKvToleranceSubBuildTest, WhicheverInterfaceIsMissingButThePublisherBuildSaysSoOnce) {
    Make();
    host::FaultPoints::StartCounting();
    _panel->Build();
    const int queries = host::FaultPoints::PassedByName()["interface query"];
    host::FaultPoints::Stop();
    int harmless = 0;
    for (int query = 1; query <= queries; ++query) {
        Make();
        host::FaultPoints::FailCall(query, "interface query");
        const host::EventScope event;
        _panel->Build();
        host::FaultPoints::Stop();
        const TraceLines traces = Traces().Take();
        const ShownMessages messages = TakeMessages();
        EXPECT_EQ(messages.size(), traces.empty() ? 0U : 1U) << query;
        if (traces.empty())
            ++harmless;
        else
            EXPECT_EQ(traces, CaughtTraces("OrvKvToleranceSub::Build", "Error_NoInterface")) << query;
        EXPECT_EQ(traces.empty(), SubscriptionsOn(_parm) == 1) << query;
    }
    EXPECT_EQ(harmless, 2) << "the publishers of two literals";
    EXPECT_EQ(queries - harmless, 7)
        << "value and frames of both, tolerance twice and events of the parameter";
}

TEST_F(OrvKvToleranceSubBuildTest, AParameterThatIsNeitherLengthNorAngleHasNoTolerance) {
    MakeFor(host::Parameters::NewReal("R", 2.0));
    ExpectBuildToFail("Error_NoInterface");
}

TEST_F(OrvKvToleranceSubBuildTest, WithoutMemoryForAWidgetBuildStopsAndSaysSo) {
    constexpr int widgets = 13;
    for (int widget = 1; widget <= widgets; ++widget) {
        Make();
        host::FaultPoints::FailCall(widget, "widget allocation");
        ExpectBuildToFail("Error_Description", "There is not enough memory for the tolerance area.");
        EXPECT_EQ(host::Inspector::Children(*_panel).size(), static_cast<std::size_t>(widget - 1));
        EXPECT_EQ(SetFittingVals(0.1, -0.1), FailureIn(source, notBuilt)) << widget;
        EXPECT_EQ(SetGroups({"H"}, "H", "").result, widget <= 5 ? "E_FAIL" : "S_OK") << widget;
        EXPECT_EQ(SubscriptionsOn(_parm), 0) << widget;
    }
    MakeBuilt();
    EXPECT_EQ(host::Inspector::Children(*_panel).size(), static_cast<std::size_t>(widgets));
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

// A raised object that is no error is none of the guard's business.
TEST_F(OrvKvToleranceSubBuildTest, BuildLetsAnotherRaisedObjectThrough) {
    const auto stand = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20)));
    stand->onType = []() -> CATICkeType_var { CATThrow(new CATNotification()); };
    MakeFor(stand);
    EXPECT_EQ(ErrorRaisedBy([this] { _panel->Build(); }), "CATNotification");
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(Traces().Take(), TraceLines());
}

// The life of a panel, in which each call that can fail fails once.
class ToleranceSubSweepTest : public OrvKvToleranceSubTest {
  protected:
    void Live() {
        const host::EventScope event;
        _panel->Build();
        Do([this] { _panel->InitTolerance(); });
        for (const char* name :
             {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb", "PlusMinusRdb", "ISOFittingRdb"}) {
            if (Exists(name))
                Do([name] { Widget<CATDlgRadioButton>(name).SetState(CATDlgCheck, 1); });
            Do([this] { _panel->SetToleranceGroups(ListOf({"G", "H"}), "H", "H7"); });
            Do([this] { _panel->SetToleranceFields(ListOf({"H6", "H7"})); });
            Do([this] { _panel->SetToleranceValues(0.2, -0.2, 1, 1, 1); });
            Do([this] { _panel->SetFittingVals(0.021, 0.0); });
            Do([this] { _parm->Valuate(0.03); });
        }
        CATError::CATCleanLastError();
    }
    // Afterwards the panel works, or says that it is not built.
    void ExpectToGoOn(int iCall) {
        const std::string result = InitTolerance().result;
        if (!Exists("OrvKvToleranceSub/Min")) {
            EXPECT_EQ(result, "E_FAIL") << iCall;
            return;
        }
        EXPECT_EQ(result, "S_OK") << iCall;
        TakeMessages();
        Traces().Take();
        EXPECT_EQ(SetValues(0.3, -0.3, 1, 1, 1).result, "S_OK") << iCall;
        EXPECT_EQ(ShownDeviations(), "0.3mm/-0.3mm") << iCall;
        EXPECT_EQ(Tolerance(), "0.3/-0.3") << iCall;
    }

  private:
    // An error that no guard of the panel has to catch.
    template<class Call>
    static void Do(const Call& iCall) {
        try {
            iCall();
        } catch (CATBaseUnknown* raised) {
            EXPECT_NE(dynamic_cast<CATError*>(raised), nullptr);
            raised->Release();
        }
    }
};

TEST_F(ToleranceSubSweepTest, WhateverCallFailsThePanelGoesOn) {
    Make();
    host::FaultPoints::StartCounting();
    Live();
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    EXPECT_GT(calls, 100);
    EXPECT_EQ(TakeMessages(), ShownMessages()) << "nothing fails by itself";
    for (int call = 1; call <= calls; ++call) {
        Make();
        host::FaultPoints::FailCall(call);
        Live();
        host::FaultPoints::Stop();
        ExpectToGoOn(call);
        TakeMessages();
    }
    Command().Forget();
    Traces().Take();
}

} // namespace
