#pragma once

#include "ToleranceActs.h"
#include "ToleranceClerk.h"

#include "support/ParameterWatcher.h"

#include "CATCommand.h"
#include "CATICkeParm.h"
#include "host/Trace.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

class CATDialog;
class CATDlgCombo;
class CATDlgDocument;
class CATDlgFrame;
class CATDlgRadioButton;
class OrvKvToleranceSub;

namespace host {
class ValueFrame;
}

namespace tolerance {

// The panel itself, on a main window and with a command of its own above it. It leaves nothing behind.
class Stage : public Acts {
  public:
    Stage(CATDlgDocument& ioWindow, const Start& iStart);
    ~Stage() override;

    // Acts
    std::string Check(Mode iRadio) override;
    std::string Type(Limit iLimit, const std::string& iText) override;
    std::string Spin(Limit iLimit, int iSteps) override;
    std::string Restore(Limit iLimit) override;
    std::string TypeNominal(const std::string& iText) override;
    std::string SpinNominal(int iSteps) override;
    std::string Choose(Combo iCombo, int iLine) override;
    void SetRadio(Mode iRadio, bool iIsChecked, bool iNotifies) override;
    void Report(Mode iRadio) override;
    void Report(Combo iCombo) override;
    void SelectSilently(Combo iCombo, int iLine) override;
    void ShowPanel(bool iIsShown) override;
    void ShowFather(bool iIsShown) override;
    void SetNominal(double iValue, bool iRaises) override;
    void SetTolerance(double iMaximum, double iMinimum) override;
    void UnsetTolerance() override;
    void Adopt(Habit iHabit) override { _clerk.Adopt(iHabit); }
    std::string InitTolerance() override;
    void SetTolGroupAndField(const std::string& iGroup, const std::string& iField) override;
    std::string SetToleranceGroups(const Texts& iGroups, const std::string& iGroup,
                                   const std::string& iField) override;
    std::string SetToleranceFields(const Texts& iFields) override;
    std::string SetToleranceValues(double iMaximum, double iMinimum, bool iIsMaximumEditable,
                                   bool iIsMinimumEditable, bool iWritesMinimum) override;
    std::string SetFittingVals(double iMaximum, double iMinimum) override;
    Sight Look() override;

  private:
    // The command that is active while the stage stands.
    class Command : public CATCommand {
      public:
        explicit Command(Stage& ioStage) : CATCommand(nullptr, "Command"), _stage(ioStage) {}
        CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom,
                                                    CATNotification* iNotification) override;

      private:
        Stage& _stage;
    };

    void Hear(CATNotification& ioNotification);
    News NewsOf(CATNotification& ioNotification) const;
    // Runs one event; a raised object is an answer too.
    static std::string Run(const std::function<long()>& iCall);
    static void Act(const std::function<void()>& iCall);

    bool IsFitWidget(const CATDialog& iWidget) const;
    Texts Unusable() const;
    template<class Class>
    Class& Child(const std::string& iName) const;
    host::ValueFrame& Editor(Limit iLimit) const { return iLimit == Limit::Maximum ? *_maximum : *_minimum; }
    CATDlgRadioButton& Radio(Mode iRadio) const { return *_radios[static_cast<std::size_t>(iRadio) - 1]; }
    CATDlgCombo& List(Combo iCombo) const { return iCombo == Combo::Groups ? *_groups : *_fields; }

    Clerk _clerk;
    std::unique_ptr<Command> _command;
    CATCommand* const _activeBefore;
    host::RecorderSink _traces;
    support::ParameterWatcher _watcher; // of the parameter and both deviations
    Texts _notifications;
    CATICkeParm_var _parameter;
    CATDlgFrame* const _father; // owned by the window, like all widgets
    OrvKvToleranceSub* const _panel;
    host::ValueFrame* _nominal = nullptr;
    host::ValueFrame* _maximum = nullptr;
    host::ValueFrame* _minimum = nullptr;
    std::array<CATDlgRadioButton*, 3> _radios{};
    CATDlgCombo* _groups = nullptr;
    CATDlgCombo* _fields = nullptr;
    std::array<CATDialog*, 4> _fitWidgets{};
};

} // namespace tolerance
