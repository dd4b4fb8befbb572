#pragma once

#include "OrvKvToleranceSub.h"

#include "PanelTest.h"

#include "CATDlgCombo.h"
#include "CATDlgDocument.h"
#include "CATDlgRadioButton.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/ParameterEditor.h"
#include "host/ParameterEntry.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

// What the tests of the tolerance panel share.

namespace toleranceSub {

using Texts = std::vector<std::string>;

constexpr char source[] = "OrvKv9SubFrames.m/src/OrvKvToleranceSub";
constexpr char notBuilt[] = "The tolerance area is not built.";

inline CATListValCATUnicodeString ListOf(const Texts& iTexts) {
    CATListValCATUnicodeString list;
    for (const std::string& text : iTexts)
        list.Append(CATUnicodeString(text.c_str()));
    return list;
}

// What a notification of the panel says: "fit of D 'H' 'H7'", "group 'H' at 20", "field 'H' 'H7' at 20" and
// "update 'H' 'H7' at 20".
inline std::string Told(CATNotification* iNotification) {
    std::ostringstream text;
    if (auto* const fit = dynamic_cast<OrvKvParameterEditISOFittingNotification*>(iNotification)) {
        CATICkeParm_var parm;
        CATString group;
        CATString field;
        EXPECT_EQ(fit->GetFittingInfo(&parm, &group, &field), S_OK);
        text << "fit of " << (!parm ? "nothing" : parm->Name().ConvertToChar()) << " '"
             << group.ConvertToChar() << "' '" << field.ConvertToChar() << "'";
        return text.str();
    }
    CATUnicodeString group;
    CATUnicodeString field;
    double value = -1.0;
    if (auto* const choice =
            dynamic_cast<OrvKvParameterEditISOFittingGroupSelectNotification*>(iNotification)) {
        EXPECT_EQ(choice->GetSelectedToleranceGroup(&group, &value), S_OK);
        text << "group '" << group.ConvertToChar() << "' at " << value;
    } else if (auto* const chosen =
                   dynamic_cast<OrvKvParameterEditISOFittingFieldSelectNotification*>(iNotification)) {
        EXPECT_EQ(chosen->GetSelectedFittingValues(&group, &field, &value), S_OK);
        text << "field '" << group.ConvertToChar() << "' '" << field.ConvertToChar() << "' at " << value;
    } else if (auto* const update =
                   dynamic_cast<OrvKvParameterEditUpdateISOFittingValuesNotification*>(iNotification)) {
        EXPECT_EQ(update->GetFittingInfo(&group, &field, &value), S_OK);
        text << "update '" << group.ConvertToChar() << "' '" << field.ConvertToChar() << "' at " << value;
    } else {
        text << iNotification->IsA();
    }
    return text.str();
}

// A command that passes what it hears on to the one that records and then answers. onHeard gets the words of
// Told.
class AnsweringCommand : public CATCommand {
  public:
    explicit AnsweringCommand(support::RecordingCommand& ioRecorder)
        : CATCommand(nullptr, "AnsweringCommand"), _recorder(ioRecorder) {
        host::Application::SetActiveCommand(this);
    }
    ~AnsweringCommand() override { host::Application::SetActiveCommand(&_recorder); }
    AnsweringCommand(const AnsweringCommand&) = delete;
    AnsweringCommand& operator=(const AnsweringCommand&) = delete;

    std::function<void(const std::string&)> onHeard;

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override {
        const std::string told = Told(iNotification);
        _recorder.AnalyseNotification(iFrom, iNotification);
        if (onHeard)
            onHeard(told);
        return CATNotifDontTransmitToFather;
    }

  private:
    support::RecordingCommand& _recorder;
};

} // namespace toleranceSub

class OrvKvToleranceSubTest : public PanelTest {
  protected:
    using Texts = toleranceSub::Texts;

    // A panel that is not built; it replaces the one before.
    OrvKvToleranceSub& MakeFor(const CATICkeParm_var& iParm) {
        Destroy();
        _parm = iParm;
        _panel = new OrvKvToleranceSub(MainWindow(), iParm);
        return *_panel;
    }
    // For a length D.
    OrvKvToleranceSub& Make(double iMillimetres = 20.0) {
        return MakeFor(host::Parameters::NewLength("D", iMillimetres));
    }
    OrvKvToleranceSub& MakeBuilt(double iMillimetres = 20.0) {
        Make(iMillimetres).Build();
        return *_panel;
    }
    // With the deviations as the tolerance of the parameter.
    OrvKvToleranceSub& MakeTolerated(double iMax, double iMin, double iMillimetres = 20.0) {
        Make(iMillimetres);
        SetTolerance(iMax, iMin);
        _panel->Build();
        return *_panel;
    }
    // In plus/minus or symmetric mode with the default deviations, or in fit mode with the groups G and H,
    // none selected, and the fields H7, which is selected, and H8; the panel holds no fit. The command has
    // heard nothing yet.
    OrvKvToleranceSub& MakePlusMinus(double iMillimetres = 20.0) {
        MakeBuilt(iMillimetres);
        Choose(PlusMinus());
        return *_panel;
    }
    OrvKvToleranceSub& MakeSymmetric(double iMillimetres = 20.0) {
        MakeBuilt(iMillimetres);
        Choose(Symmetric());
        return *_panel;
    }
    OrvKvToleranceSub& MakeFit(double iMillimetres = 20.0) {
        MakeBuilt(iMillimetres);
        Choose(Fit());
        EXPECT_EQ(_panel->SetToleranceGroups(toleranceSub::ListOf({"G", "H"}), "", ""), S_OK);
        EXPECT_EQ(_panel->SetToleranceFields(toleranceSub::ListOf({"H7", "H8"})), S_OK);
        _panel->SetTolGroupAndField("", "");
        Command().Forget();
        return *_panel;
    }
    // Takes the panel away as its father would.
    void Destroy() {
        delete _panel;
        _panel = nullptr;
    }

    static CATDlgRadioButton& Fit() { return Widget<CATDlgRadioButton>("ISOFittingRdb"); }
    static CATDlgRadioButton& Symmetric() { return Widget<CATDlgRadioButton>("PlusMinusSymmetricalRdb"); }
    static CATDlgRadioButton& PlusMinus() { return Widget<CATDlgRadioButton>("PlusMinusRdb"); }
    static CATDlgCombo& Groups() { return Combo("ToleranceGroupCmb"); }
    static CATDlgCombo& Fields() { return Combo("ToleranceFieldCmb"); }
    // The editors of the deviations, which have the names of their literals.
    static host::ValueFrame& Maximum() { return Widget<host::ValueFrame>("OrvKvToleranceSub/Max"); }
    static host::ValueFrame& Minimum() { return Widget<host::ValueFrame>("OrvKvToleranceSub/Min"); }
    static CATICkeParm_var MaxLiteral() { return host::ParameterEditor::ParameterOf(Maximum()); }
    static CATICkeParm_var MinLiteral() { return host::ParameterEditor::ParameterOf(Minimum()); }

    // What the user does; each must be possible.
    static void Choose(CATDlgRadioButton& ioRadio) { Succeed(host::DialogUser::Check(ioRadio)); }
    static void ChooseText(CATDlgCombo& ioCombo, const std::string& iText) {
        Succeed(host::DialogUser::ChooseText(ioCombo, iText));
    }
    static void Type(host::ValueFrame& ioEditor, const std::string& iText) {
        Succeed(host::DialogUser::Type(ioEditor, iText));
    }
    static void Spin(host::ValueFrame& ioEditor, int iSteps) {
        Succeed(host::DialogUser::Spin(ioEditor, iSteps));
    }
    // A new value of the parameter, as the user types it into an editor elsewhere: "12 mm".
    void TypeValue(const std::string& iText) { Succeed(host::ParameterEntry::Type(*_parm, iText)); }
    // The same as a program gives it, as stored; its change is raised.
    void Change(double iStored) const {
        EXPECT_EQ(CATIParmAsStored_var(_parm)->SetValue(iStored), S_OK);
        CATIParmEvents_var(_parm)->RaiseChange(1);
    }
    static void Succeed(const host::Outcome& iOutcome) { EXPECT_TRUE(iOutcome) << iOutcome.reason; }

    void SetTolerance(double iMax, double iMin) const {
        const CATIParmTolerance_var tolerance(_parm);
        EXPECT_EQ(tolerance->SetMaxTolerance(iMax), S_OK);
        EXPECT_EQ(tolerance->SetMinTolerance(iMin), S_OK);
    }
    // Operations of the command; each is one event.
    support::Report InitTolerance() {
        const host::EventScope event;
        return support::Observe([this] { return _panel->InitTolerance(); });
    }
    support::Report SetGroups(const Texts& iGroups, const char* iGroup, const char* iField) {
        const host::EventScope event;
        return support::Observe(
            [&] { return _panel->SetToleranceGroups(toleranceSub::ListOf(iGroups), iGroup, iField); });
    }
    support::Report SetFields(const Texts& iFields) {
        const host::EventScope event;
        return support::Observe([&] { return _panel->SetToleranceFields(toleranceSub::ListOf(iFields)); });
    }
    support::Report SetValues(double iMax, double iMin, int iMaxEditable, int iMinEditable, int iWriteMin) {
        const host::EventScope event;
        return support::Observe([&] {
            return _panel->SetToleranceValues(iMax, iMin, static_cast<unsigned char>(iMaxEditable),
                                              static_cast<unsigned char>(iMinEditable),
                                              static_cast<unsigned char>(iWriteMin));
        });
    }
    support::Report SetFittingVals(double iMax, double iMin) {
        const host::EventScope event;
        return support::Observe([&] { return _panel->SetFittingVals(iMax, iMin); });
    }

    // The name of the checked radio button; empty while there is none.
    static std::string Checked() {
        std::string names;
        for (const CATDlgRadioButton* radio : {&Fit(), &Symmetric(), &PlusMinus()})
            if (radio->GetState() == CATDlgCheck)
                names += radio->GetName().ConvertToChar();
        return names;
    }
    // "fit hidden, max enabled, min disabled": the fit widgets and the editors. The fit widgets are told one
    // by one where they differ.
    static std::string WidgetStates() {
        std::string fit;
        for (const char* name :
             {"ToleranceGroupLab", "ToleranceGroupCmb", "ToleranceFieldLab", "ToleranceFieldCmb"})
            fit += Widget<CATDialog>(name).GetVisibility() == CATDlgShow ? "+" : "-";
        if (fit == "++++" || fit == "----")
            fit = fit == "++++" ? "shown" : "hidden";
        const auto state = [](const CATDialog& iEditor) {
            return iEditor.GetSensitivity() == CATDlgEnable ? "enabled" : "disabled";
        };
        return "fit " + fit + ", max " + state(Maximum()) + ", min " + state(Minimum());
    }
    // What the editors show: "0.1mm/-0.1mm".
    static std::string ShownDeviations() { return Maximum().ShownValue() + "/" + Minimum().ShownValue(); }
    // The tolerance of the parameter: "0.1/-0.1", or "none".
    std::string Tolerance() const {
        const CATIParmTolerance_var tolerance(_parm);
        if (tolerance->GetTypeOfTolerance() == 0)
            return "none";
        std::ostringstream text;
        text << tolerance->GetMaxTolerance() << '/' << tolerance->GetMinTolerance();
        return text.str();
    }
    // What is edited and what the parameter has, to six digits: "0.1/-0.1 in 0.1/-0.1", "0/0 in none".
    std::string State() const {
        std::ostringstream text;
        text << Stored(MaxLiteral()) << '/' << Stored(MinLiteral()) << " in " << Tolerance();
        return text.str();
    }
    // The editors that are enabled: "max min", "max", "min" or "".
    static std::string Editable() {
        const bool isMaximum = Maximum().GetSensitivity() == CATDlgEnable;
        const bool isMinimum = Minimum().GetSensitivity() == CATDlgEnable;
        return std::string(isMaximum ? "max" : "") + (isMaximum && isMinimum ? " " : "") +
               (isMinimum ? "min" : "");
    }
    // How many subscriptions there are: "parm 2, max 0, min 0".
    std::string Subscriptions() const {
        return "parm " + std::to_string(SubscriptionsOn(_parm)) + ", max " +
               std::to_string(SubscriptionsOn(MaxLiteral())) + ", min " +
               std::to_string(SubscriptionsOn(MinLiteral()));
    }
    static int SubscriptionsOn(const CATICkeParm_var& iParm) {
        return host::CommandInspection::SubscriptionsOn(*CATIParmEvents_var(iParm)->GetPublisher());
    }
    static double Stored(const CATICkeParm_var& iParm) { return CATIParmAsStored_var(iParm)->GetValue(); }
    // Group and field that the panel holds: "H|H7".
    std::string Fitting() {
        CATString group;
        CATString field;
        EXPECT_EQ(_panel->GetFittingInfo(nullptr, nullptr, &group, &field), S_OK);
        return std::string(group.ConvertToChar()) + "|" + field.ConvertToChar();
    }
    // What the panel has told the command since the last call. Notifications of widgets and frames, which
    // pass by, do not count.
    Texts Said() {
        Texts said;
        for (const support::HeardNotification& heard : Command().Heard())
            if (heard.className.starts_with("OrvKv"))
                said.push_back(toleranceSub::Told(heard.notification));
        Command().Forget();
        return said;
    }

    // What a guarded operation tells when it has caught an error: the trace and the message on the screen.
    // iOperation is "OrvKvToleranceSub::Build", for instance.
    static support::TraceLines CaughtTraces(const std::string& iOperation, const std::string& iKey) {
        return {{"OrvKv9SubFrames", 3, iOperation + " -> caught ERROR"},
                {"OrvKv9SubFrames", 3, "error message: " + iKey}};
    }

    CATICkeParm_var _parm = host::Parameters::NewLength("D", 20.0);
    OrvKvToleranceSub* _panel = nullptr; // owned by the main window
};
