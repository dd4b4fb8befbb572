#pragma once

#include "OrvKvThreadSub.h"

#include "PanelTest.h"

#include "CATDlgDocument.h"
#include "CATDlgRadioButton.h"
#include "CATError.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"

#include <sstream>
#include <string>
#include <vector>

// What the tests of the thread panel share.

namespace threadSub {

using Texts = std::vector<std::string>;
using Numbers = std::vector<double>;

constexpr char source[] = "OrvKv9SubFrames.m/src/OrvKvThreadSub";
constexpr char combo[] = "CATDlgCombo DiameterCmb";
constexpr char spinner[] = "CATDlgSpinner IntDiamSpn";
constexpr char editor[] = "ParameterFrame DG"; // of the diameter

inline CATListValCATUnicodeString ListOf(const Texts& iTexts) {
    CATListValCATUnicodeString list;
    for (const std::string& text : iTexts)
        list.Append(CATUnicodeString(text.c_str()));
    return list;
}

inline CATRawColldouble ListOf(const Numbers& iNumbers) {
    CATRawColldouble list;
    for (const double number : iNumbers)
        list.Append(number);
    return list;
}

// What a notification of the panel says, in words. The pitch that the command alone gives one is 0.
inline std::string Told(CATNotification* iNotification) {
    CATUnicodeString type("?");
    CATUnicodeString dimension("?");
    double pitch = -1.0;
    std::ostringstream text;
    if (auto* const init = dynamic_cast<OrvKvThreadInitNotification*>(iNotification)) {
        init->GetThreadInfo(&type, &dimension, &pitch);
        text << "init " << int(init->IsInitMode()) << ' ' << int(init->IsActivateMode()) << " '"
             << type.ConvertToChar() << "' '" << dimension.ConvertToChar() << "' " << pitch;
    } else if (auto* const chosenType = dynamic_cast<OrvKvThreadTypeNotification*>(iNotification)) {
        chosenType->GetThreadInfo(&type, &dimension, &pitch);
        text << "type '" << type.ConvertToChar() << "' init " << int(chosenType->IsInitMode());
        EXPECT_STREQ(dimension.ConvertToChar(), "");
        EXPECT_EQ(pitch, 0.0);
    } else if (auto* const chosen = dynamic_cast<OrvKvThreadDiameterNotification*>(iNotification)) {
        chosen->GetThreadInfo(&type, &dimension, &pitch);
        text << "diameter '" << dimension.ConvertToChar() << "' of '" << type.ConvertToChar() << "' init "
             << int(chosen->IsInitMode());
        EXPECT_EQ(pitch, 0.0);
    } else if (auto* const take = dynamic_cast<OrvKvThreadTakeNotification*>(iNotification)) {
        CATUnicodeString direction;
        double internalDiameter = -1.0;
        double diameter = -1.0;
        take->GetThreadInfo(&dimension, &pitch, &internalDiameter, &diameter, &direction, &type);
        text << "take '" << dimension.ConvertToChar() << "' P " << pitch << " DK " << internalDiameter
             << " DG " << diameter << " '" << direction.ConvertToChar() << "' '" << type.ConvertToChar()
             << '\'';
    } else {
        text << iNotification->IsA();
    }
    return text.str();
}

// A success of an operation that calls others with results of their own.
inline support::Report SuccessAfter(int iCalledOperations) {
    support::Report report = support::SuccessIn(source);
    report.returns += iCalledOperations;
    return report;
}

} // namespace threadSub

class OrvKvThreadSubTest : public PanelTest {
  protected:
    using Texts = threadSub::Texts;
    using Numbers = threadSub::Numbers;

    OrvKvThreadSub& Make() {
        _panel = new OrvKvThreadSub(MainWindow());
        return *_panel;
    }
    // The command has heard of it.
    OrvKvThreadSub& MakeBuilt() {
        Make().Build();
        Command().Forget();
        return *_panel;
    }
    // With its parameters and without a standard.
    OrvKvThreadSub& MakeBound() {
        MakeBuilt();
        EXPECT_EQ(Bind().result, "S_OK");
        return *_panel;
    }
    // With its parameters and the type "Metric" of two, whose diameters are M8, M10 and M12; none is chosen.
    OrvKvThreadSub& MakeStandard() {
        MakeBuilt();
        EXPECT_EQ(Rebuild(_types, 0, _diameters, 0).result, "S_OK");
        EXPECT_EQ(Bind().result, "S_OK");
        return *_panel;
    }

    // Each is one event, as a command would set it off.
    support::Report SetTypes(const Texts& iTypes, int iSelected, unsigned char iNotify = 0) {
        const host::EventScope event;
        return support::Observe(
            [&] { return _panel->SetThreadTypes(threadSub::ListOf(iTypes), iSelected, iNotify); });
    }
    support::Report SetDims(const Texts& iDims, int iSelected, unsigned char iNotify = 0) {
        const host::EventScope event;
        return support::Observe(
            [&] { return _panel->SetThreadDims(threadSub::ListOf(iDims), iSelected, iNotify); });
    }
    support::Report SetValues(const Numbers& iPitches, const Numbers& iInternalDiameters,
                              const Numbers& iDiameters) {
        const host::EventScope event;
        return support::Observe([&] {
            return _panel->SetThreadValues(threadSub::ListOf(iPitches), threadSub::ListOf(iInternalDiameters),
                                           threadSub::ListOf(iDiameters));
        });
    }
    support::Report SetDirection(const char* iDirection) {
        const host::EventScope event;
        return support::Observe([&] { return _panel->SetThreadDirection(iDirection); });
    }
    support::Report Bind() {
        const host::EventScope event;
        return support::Observe([&] { return CallBind(); });
    }
    long CallBind() {
        return _panel->SetThreadPanelParameters(_internalDiameter, _diameter, _length, _pitch);
    }
    support::Report Rebuild(const Texts& iTypes, int iType, const Texts& iDims, int iDim) {
        const host::EventScope event;
        return support::Observe([&] { return CallRebuild(iTypes, iType, iDims, iDim); });
    }
    long CallRebuild(const Texts& iTypes, int iType, const Texts& iDims, int iDim) {
        return _panel->RebuildThreadPanel(threadSub::ListOf(iTypes), iType, threadSub::ListOf(iDims), iDim);
    }

    static CATDlgCombo& Types() { return Combo("ThreadTypeCmb"); }
    static CATDlgCombo& Diameters() { return Combo("DiameterCmb"); }
    static CATDlgRadioButton& LeftHanded() { return Widget<CATDlgRadioButton>("LeftHandedRdb"); }
    static CATDlgRadioButton& RightHanded() { return Widget<CATDlgRadioButton>("RightHandedRdb"); }

    // The controls of a frame, "CLASS NAME" each: exactly one, as a rule.
    static std::string ControlIn(const std::string& iFrame) {
        std::string controls;
        for (const CATDialog* child : host::Inspector::Children(Widget<CATDialog>(iFrame)))
            controls += (controls.empty() ? "" : ", ") + std::string(child->IsA()) + ' ' +
                        child->GetName().ConvertToChar();
        return controls;
    }
    static std::string DiameterControl() { return ControlIn("ThreadDiaFrm"); }
    static host::ValueFrame& EditorIn(const std::string& iFrame) {
        return dynamic_cast<host::ValueFrame&>(*host::Inspector::FirstChild(Widget<CATDialog>(iFrame)));
    }

    // What the panel has told the command since the last call.
    Texts Said() {
        Texts said;
        for (const support::HeardNotification& heard : Command().Heard())
            said.push_back(threadSub::Told(heard.notification));
        Command().Forget();
        return said;
    }
    // Diameter, internal diameter, length and pitch.
    Numbers Values() const {
        return {_diameter->AsReal() * 1000.0, _internalDiameter->AsReal() * 1000.0,
                _length->AsReal() * 1000.0, _pitch->AsReal() * 1000.0};
    }
    std::vector<int> AccessModes() const {
        return {_diameter->GetUserAccessMode(), _internalDiameter->GetUserAccessMode(),
                _length->GetUserAccessMode(), _pitch->GetUserAccessMode()};
    }

    const Texts _types = {"Metric", "UNC"};
    const Texts _diameters = {"M8", "M10", "M12"};
    CATICkeParm_var _diameter = host::Parameters::NewLength("DG", 10.0);
    CATICkeParm_var _internalDiameter = host::Parameters::NewLength("DK", 8.5);
    CATICkeParm_var _length = host::Parameters::NewLength("L", 20.0);
    CATICkeParm_var _pitch = host::Parameters::NewLength("P", 1.5);
    OrvKvThreadSub* _panel = nullptr; // owned by the main window
};
