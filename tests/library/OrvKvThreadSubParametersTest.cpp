// The parameters of the thread: their editors, who may change them, and the control of the diameter.

#include "OrvKvThreadSubTest.h"

#include "NotedCalls.h"
#include "StandInParameter.h"

#include "CATDlgLabel.h"
#include "host/CommandInspection.h"

#include <limits>
#include <utility>

namespace {

using namespace support;
using namespace threadSub;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

class OrvKvThreadSubParametersTest : public OrvKvThreadSubTest {
  protected:
    // The four value controls, from top to bottom.
    static Texts Controls() {
        return {DiameterControl(), ControlIn("InternalDiaFrm"), ControlIn("ThreadLengthFrm"),
                ControlIn("PitchFrm")};
    }
    static Texts ShownValues() {
        Texts texts;
        for (const char* frame : {"ThreadDiaFrm", "InternalDiaFrm", "ThreadLengthFrm", "PitchFrm"})
            texts.push_back(EditorIn(frame).Text());
        return texts;
    }
    static std::string TitleOfDiameter() {
        return Widget<CATDlgLabel>("DiameterLab").GetTitle().ConvertToChar();
    }
    // From now on the parameters note what is asked of them.
    void NoteCalls() {
        for (CATICkeParm_var* const parameter : {&_diameter, &_internalDiameter, &_length, &_pitch}) {
            const auto noted = host::Adopt(new StandInParameter(*parameter));
            noted->frames = host::Adopt<CATICkeParamFrame>(new NotedFrames(*parameter, _calls));
            *parameter = noted;
        }
    }
    Calls TakeCalls() { return std::exchange(_calls, {}); }

    Texts Taken() {
        _panel->SetAsStandardThread();
        return Said();
    }

  private:
    Calls _calls;
};

const Texts spinners = {"CATDlgSpinner IntDiamSpn", "CATDlgSpinner IntDiamSpn", "CATDlgSpinner LengthSpn",
                        "CATDlgSpinner IntDiamSpn"};
const Texts editors = {"ParameterFrame DG", "ParameterFrame DK", "ParameterFrame L", "ParameterFrame P"};

TEST_F(OrvKvThreadSubParametersTest, EachParameterIsEditedInItsFrameWithArrowsAndWithoutItsName) {
    MakeBuilt();
    EXPECT_EQ(Controls(), spinners);
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(Controls(), editors);
    EXPECT_EQ(ShownValues(), Texts({"10mm", "8.5mm", "20mm", "1.5mm"}));
    for (const char* frame : {"ThreadDiaFrm", "InternalDiaFrm", "ThreadLengthFrm", "PitchFrm"}) {
        const Piece piece = PiecesOf(Widget<CATDialog>(frame)).front();
        EXPECT_EQ(piece.columns, "0(1)-1(4)") << frame;
        EXPECT_EQ(piece.rows, "0(1)-1(4)") << frame;
        EXPECT_TRUE(EditorIn(frame).HasSpinner()) << frame;
        EXPECT_EQ(EditorIn(frame).Label(), "") << frame;
    }
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubParametersTest, EditorsShowNoLabelAndGiveNeitherAnotherNameNorAFormula) {
    NoteCalls();
    MakeBuilt();
    const int options = CATCkeNoRename | CATCkeNoFormula | CATCkeNoLabel | CATCkeWithSpinner;
    const std::string rest = ", options " + std::to_string(options) + ", named ''";
    const Calls others = {"L in ThreadLengthFrm" + rest, "DK in InternalDiaFrm" + rest,
                          "P in PitchFrm" + rest};
    Calls all = others;
    all.push_back("DG in ThreadDiaFrm" + rest);
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(TakeCalls(), all);
    Rebuild(_types, 0, _diameters, 0);
    EXPECT_EQ(TakeCalls(), Calls());
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(TakeCalls(), others) << "the diameter keeps its combo";
    Rebuild(_types, -1, {}, -1);
    EXPECT_EQ(TakeCalls(), Calls({all.back()}));
}

TEST_F(OrvKvThreadSubParametersTest, AMissingParameterIsRefusedWithoutATraceAndChangesNothing) {
    MakeStandard();
    SetTypes(_types, -1);
    const CATICkeParm_var other = host::Parameters::NewLength("O", 1.0);
    const CATICkeParm_var none;
    for (int missing = 0; missing < 3; ++missing)
        EXPECT_EQ(Observe([&] {
                      return _panel->SetThreadPanelParameters(missing == 0 ? none : other,
                                                              missing == 1 ? none : other,
                                                              missing == 2 ? none : other, other);
                  }),
                  PlainFailure())
            << missing;
    EXPECT_EQ(Controls(), Texts({combo, editors[1], editors[2], editors[3]}));
    EXPECT_EQ(AccessModes(), std::vector<int>({1, 1, 3, 1}));
    EXPECT_EQ(Taken(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
}

TEST_F(OrvKvThreadSubParametersTest, AMissingPitchRaisesTheNullHandleErrorWhenItsEditorIsBuilt) {
    MakeBuilt();
    SetDirection("LH");
    EXPECT_EQ(ErrorRaisedBy([&] {
                  const host::EventScope event;
                  _panel->SetThreadPanelParameters(_internalDiameter, _diameter, _length, CATICkeParm_var());
              }),
              "NullHandle");
    EXPECT_EQ(Controls(), Texts({spinners[0], editors[1], editors[2], spinners[3]}));
    EXPECT_EQ(Taken(), Texts()) << "there is no pitch";
    EXPECT_EQ(SetValues({1.0}, {2.0}, {3.0}), SuccessIn(source));
    EXPECT_EQ(Values(), Numbers({3.0, 2.0, 20.0, 1.5}));
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(Controls(), editors);
}

TEST_F(OrvKvThreadSubParametersTest, BindingBeforeThePanelIsBuiltFails) {
    Make();
    EXPECT_EQ(Bind(), FailureIn(source, "thread frame is NULL."));
    EXPECT_EQ(AccessModes(), std::vector<int>(4, 3));
    _panel->Build();
    EXPECT_EQ(Said(), Texts({"init 1 0 '' '' 0"}));
    EXPECT_EQ(Taken(), Texts());
    EXPECT_EQ(Bind(), SuccessIn(source));
}

TEST_F(OrvKvThreadSubParametersTest, WithoutAStandardTheUserMayChangeAllAndWithOneTheLengthAlone) {
    MakeBuilt();
    for (const int lengthAccess : {1, 3}) {
        _length->SetUserAccessMode(lengthAccess);
        SetTypes(_types, 0);
        Bind();
        EXPECT_EQ(AccessModes(), std::vector<int>({1, 1, lengthAccess, 1}));
        EXPECT_FALSE(EditorIn("InternalDiaFrm").IsEditable());
        EXPECT_FALSE(EditorIn("PitchFrm").IsEditable());
        EXPECT_EQ(EditorIn("ThreadLengthFrm").IsEditable(), lengthAccess == 3);
        SetTypes(_types, -1);
        EXPECT_EQ(AccessModes(), std::vector<int>({1, 1, lengthAccess, 1})) << "binding alone changes it";
        Bind();
        EXPECT_EQ(AccessModes(), std::vector<int>({3, 3, lengthAccess, 3}));
        EXPECT_TRUE(EditorIn("ThreadDiaFrm").IsEditable());
        EXPECT_TRUE(EditorIn("InternalDiaFrm").IsEditable());
        EXPECT_TRUE(EditorIn("PitchFrm").IsEditable());
        Rebuild(_types, 1, _diameters, 0);
        EXPECT_EQ(AccessModes(), std::vector<int>({3, 3, lengthAccess, 3})) << "binding alone changes it";
    }
}

TEST_F(OrvKvThreadSubParametersTest, WhatTheUserTypesIsTheParametersValueAndIsNotReported) {
    MakeBound();
    ASSERT_TRUE(host::DialogUser::Type(EditorIn("ThreadDiaFrm"), "12"));
    ASSERT_TRUE(host::DialogUser::Type(EditorIn("InternalDiaFrm"), "10,25"));
    ASSERT_TRUE(host::DialogUser::Spin(EditorIn("ThreadLengthFrm"), 5));
    ASSERT_TRUE(host::DialogUser::Type(EditorIn("PitchFrm"), "1.75mm"));
    EXPECT_EQ(Values()[0], 12.0);
    EXPECT_EQ(Values()[1], 10.25);
    EXPECT_GT(Values()[2], 20.0);
    EXPECT_EQ(Values()[3], 1.75);
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Taken(), Texts({"take '' P 1.75 DK 10.25 DG 12 '' ''"}));
}

TEST_F(OrvKvThreadSubParametersTest, ABadTextChangesNothing) {
    MakeBound();
    EXPECT_TRUE(host::DialogUser::Type(EditorIn("PitchFrm"), "coarse"));
    EXPECT_EQ(EditorIn("PitchFrm").Text(), "coarse");
    EXPECT_EQ(Values(), Numbers({10.0, 8.5, 20.0, 1.5}));
    EXPECT_EQ(Taken(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' ''"}));
}

TEST_F(OrvKvThreadSubParametersTest, AStandardsValuesCannotBeTyped) {
    MakeStandard();
    EXPECT_FALSE(host::DialogUser::Type(EditorIn("InternalDiaFrm"), "7"));
    EXPECT_FALSE(host::DialogUser::Type(EditorIn("PitchFrm"), "2"));
    EXPECT_FALSE(host::DialogUser::Spin(EditorIn("PitchFrm"), 1));
    EXPECT_TRUE(host::DialogUser::Type(EditorIn("ThreadLengthFrm"), "25"));
    EXPECT_EQ(Values(), Numbers({10.0, 8.5, 25.0, 1.5}));
}

TEST_F(OrvKvThreadSubParametersTest, OtherParametersTakeThePlaceOfTheFirst) {
    MakeBound();
    const CATICkeParm_var first = _pitch;
    _diameter = host::Parameters::NewLength("DG", 6.0);
    _internalDiameter = host::Parameters::NewLength("DK", 5.0);
    _length = host::Parameters::NewLength("L", 12.0);
    _pitch = host::Parameters::NewLength("P", 1.0);
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(Controls(), editors);
    EXPECT_EQ(ShownValues(), Texts({"6mm", "5mm", "12mm", "1mm"}));
    ASSERT_TRUE(host::DialogUser::Type(EditorIn("PitchFrm"), "0.75"));
    EXPECT_EQ(first->AsReal(), 0.0015);
    EXPECT_EQ(Taken(), Texts({"take '' P 0.75 DK 5 DG 6 '' ''"}));
}

TEST_F(OrvKvThreadSubParametersTest, AParameterWithoutANumberIsShownAndNothingIsTaken) {
    MakeBuilt();
    SetTypes(_types, -1);
    _pitch = host::Parameters::NewString("P", "coarse");
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(EditorIn("PitchFrm").Text(), "coarse");
    EXPECT_EQ(SetValues({1.0}, {2.0}, {3.0}), SuccessIn(source));
    EXPECT_EQ(EditorIn("PitchFrm").Text(), "coarse");
    EXPECT_EQ(ShownValues()[0], "3mm");
    EXPECT_EQ(Taken(), Texts());
}

// A way to a type, and the control of the diameter that is there in the end.
struct Transition {
    const char* name;
    int before; // the type at the last rebuild; -2 for none
    int after;  // the type that is set by SetThreadTypes alone before the parameters are bound again
    std::string control;
    int access;
};

TEST_F(OrvKvThreadSubParametersTest, OneControlIsThereForTheDiameterHoweverTheTypeCame) {
    const std::vector<Transition> transitions = {
        {"never updated, no standard", -2, -1, editor, 3},
        {"never updated, a standard", -2, 0, combo, 1},
        {"no standard stays", -1, -1, editor, 3},
        {"no standard, then a standard", -1, 1, combo, 1},
        {"a standard stays", 0, 0, combo, 1},
        {"a standard, then another", 0, 1, combo, 1},
        {"a standard, then none", 0, -1, editor, 3},
    };
    for (const Transition& transition : transitions) {
        MakeBuilt();
        if (transition.before != -2) {
            Bind();
            Rebuild(_types, transition.before, _diameters, 0);
        }
        SetTypes(_types, transition.after);
        EXPECT_EQ(Bind(), SuccessIn(source)) << transition.name;
        EXPECT_EQ(Controls(), Texts({transition.control, editors[1], editors[2], editors[3]}))
            << transition.name;
        EXPECT_EQ(AccessModes(),
                  std::vector<int>({transition.access, transition.access, 3, transition.access}))
            << transition.name;
        EXPECT_EQ(Said(), Texts()) << transition.name;
        delete _panel;
    }
}

TEST_F(OrvKvThreadSubParametersTest, ADesignationEndsWithTheStandardAlsoWhereThePanelIsNotRebuilt) {
    MakeStandard();
    ASSERT_TRUE(host::DialogUser::ChooseText(Diameters(), "M12"));
    ASSERT_TRUE(host::DialogUser::ChooseText(Types(), "No Standard"));
    EXPECT_EQ(Said(), Texts({"diameter 'M12' of 'Metric' init 1", "type '' init 1",
                             "take 'M12' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
    Bind();
    EXPECT_EQ(DiameterControl(), editor);
    EXPECT_EQ(Taken(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildListsTypesAndDiametersSilently) {
    MakeBound();
    EXPECT_EQ(Rebuild(_types, 1, _diameters, 2), SuccessAfter(2));
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "Metric", "UNC"}));
    EXPECT_EQ(Types().GetSelect(), 2);
    EXPECT_EQ(DiameterControl(), combo);
    EXPECT_EQ(TitleOfDiameter(), "DescriptionLab");
    EXPECT_EQ(LinesOf(Diameters()), Lines({"M8", "M10", "M12"}));
    EXPECT_EQ(Diameters().GetSelect(), 2);
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Taken(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildWithANegativeDiameterLeavesTheDiametersAsTheyAre) {
    MakeBound();
    Rebuild(_types, 0, _diameters, 1);
    EXPECT_EQ(Rebuild(_types, 1, {"1/4"}, -1), SuccessAfter(1));
    EXPECT_EQ(LinesOf(Diameters()), Lines({"M8", "M10", "M12"}));
    EXPECT_EQ(Diameters().GetSelect(), 1);
    EXPECT_EQ(Rebuild(_types, 1, {"1/4"}, 0), SuccessAfter(2));
    EXPECT_EQ(LinesOf(Diameters()), Lines({"1/4"}));
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildWithoutAStandardBringsTheEditorBackAndEmptiesTheDesignation) {
    MakeStandard();
    ASSERT_TRUE(host::DialogUser::ChooseText(Diameters(), "M12"));
    Said();
    EXPECT_EQ(Rebuild(_types, -1, _diameters, 0), SuccessAfter(2)) << "there is no list for diameters";
    EXPECT_EQ(DiameterControl(), editor);
    EXPECT_EQ(TitleOfDiameter(), "DescriptionLab") << "the label stays";
    EXPECT_EQ(Taken(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
    EXPECT_EQ(Rebuild(_types, -1, _diameters, -1), SuccessAfter(1));
    EXPECT_EQ(DiameterControl(), editor) << "anew";
    EXPECT_EQ(Rebuild(_types, 0, _diameters, 0), SuccessAfter(2));
    EXPECT_EQ(Controls(), Texts({combo, editors[1], editors[2], editors[3]}));
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubParametersTest, AComboThatGoesIsNotListenedToAnyMore) {
    MakeStandard();
    const host::EventScope event; // it is destroyed at the end
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 4);
    EXPECT_EQ(CallRebuild(_types, -1, {}, -1), S_OK);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildWithoutAStandardNeedsTheDiameter) {
    MakeBuilt();
    EXPECT_EQ(ErrorRaisedBy([&] { CallRebuild(_types, -1, {}, -1); }), "NullHandle");
    EXPECT_EQ(DiameterControl(), spinner);
    EXPECT_EQ(Rebuild(_types, 0, _diameters, 0), SuccessAfter(2)) << "a standard does not";
    EXPECT_EQ(ErrorRaisedBy([&] { CallRebuild(_types, -1, {}, -1); }), "NullHandle");
    EXPECT_EQ(DiameterControl(), combo) << "one control stays";
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(DiameterControl(), editor);
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildBeforeThePanelIsBuiltSucceedsAndDoesNothing) {
    Make();
    EXPECT_EQ(Rebuild(_types, 0, _diameters, 0), SuccessIn(source));
    EXPECT_EQ(Rebuild(_types, -1, _diameters, 0), SuccessIn(source));
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubParametersTest, ARebuildWithATypeBeyondTheListKeepsTheTypesAndSucceeds) {
    MakeStandard();
    const Report report = Rebuild({"G"}, 7, {"G1/4"}, 0);
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.traces,
              TraceLines({{"OrvKv9SubFrames", 3, "OrvKvThreadSub::SetThreadTypes -> caught ERROR"},
                          {"OrvKv9SubFrames", 3, "error message: BadPosition"}}));
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "Metric", "UNC"}));
    EXPECT_EQ(LinesOf(Diameters()), Lines({"G1/4"}));
}

TEST_F(OrvKvThreadSubParametersTest, TheFirstOfEachListOfValuesIsStoredShownAndTaken) {
    MakeStandard();
    EXPECT_EQ(SetValues({1.75, 1.25}, {10.25}, {12.0, 5.0, 6.0}), SuccessIn(source));
    EXPECT_EQ(Values(), Numbers({12.0, 10.25, 20.0, 1.75}));
    EXPECT_EQ(EditorIn("InternalDiaFrm").Text(), "10.25mm");
    EXPECT_EQ(EditorIn("PitchFrm").Text(), "1.75mm");
    EXPECT_EQ(Said(), Texts({"take '' P 1.75 DK 10.25 DG 12 '' 'Metric'"}));
    EXPECT_EQ(SetValues({1.75}, {10.25}, {12.0}), SuccessIn(source));
    EXPECT_EQ(Said(), Texts({"take '' P 1.75 DK 10.25 DG 12 '' 'Metric'"})) << "the same again";
}

TEST_F(OrvKvThreadSubParametersTest, DiameterInternalDiameterAndPitchAreStoredInThisOrder) {
    NoteCalls();
    MakeStandard();
    TakeCalls();
    EXPECT_EQ(SetValues({1.75, 1.0}, {10.25}, {12.0, 3.0}), SuccessIn(source));
    EXPECT_EQ(TakeCalls(), Calls({"DG = 12", "DK = 10.25", "P = 1.75"}));
    EXPECT_EQ(Said(), Texts({"take '' P 1.75 DK 10.25 DG 12 '' 'Metric'"}));
    SetValues({}, {10.25}, {12.0});
    EXPECT_EQ(TakeCalls(), Calls());
}

TEST_F(OrvKvThreadSubParametersTest, AnEmptyListOfValuesChangesAndSendsNothing) {
    MakeStandard();
    const Numbers full = {2.0};
    for (int empty = 1; empty < 8; ++empty)
        EXPECT_EQ(SetValues((empty & 1) != 0 ? Numbers() : full, (empty & 2) != 0 ? Numbers() : full,
                            (empty & 4) != 0 ? Numbers() : full),
                  SuccessIn(source))
            << empty;
    EXPECT_EQ(Values(), Numbers({10.0, 8.5, 20.0, 1.5}));
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubParametersTest, AValueThatAParameterRefusesLeavesItAsItWas) {
    MakeStandard();
    EXPECT_EQ(SetValues({notANumber}, {9.0}, {infinite}), SuccessIn(source));
    EXPECT_EQ(Values(), Numbers({10.0, 9.0, 20.0, 1.5}));
    EXPECT_EQ(SetValues({2.0}, {-infinite}, {11.0}), SuccessIn(source));
    EXPECT_EQ(Values(), Numbers({11.0, 9.0, 20.0, 2.0}));
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 9 DG 10 '' 'Metric'", "take '' P 2 DK 9 DG 11 '' 'Metric'"}));
}

TEST_F(OrvKvThreadSubParametersTest, ValuesBeforeThePanelIsBuiltChangeNothing) {
    Make();
    EXPECT_EQ(SetValues({1.0}, {2.0}, {3.0}), SuccessIn(source));
    EXPECT_EQ(Said(), Texts());
}

} // namespace
