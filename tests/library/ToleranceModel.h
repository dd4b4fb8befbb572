#pragma once

#include "ToleranceActs.h"
#include "ToleranceClerk.h"

#include <optional>
#include <set>
#include <string>
#include <utility>

namespace tolerance {

// From which mode to which.
using Passages = std::set<std::pair<Mode, Mode>>;

// What a tolerance panel has to do, in the smallest words: no widgets, no platform.
class Model : public Acts {
  public:
    explicit Model(const Start& iStart);

    // The texts whose values the model knows, for an angle or a length; none for a text that is refused.
    static const Texts& TypedTexts();

    // The entries of the story, and those among them that another one overtook.
    const Passages& Entries() const { return _passages; }
    const Passages& OvertakenEntries() const { return _overtaken; }

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
    void Adopt(Habit iHabit) override;
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
    // A number that is edited in place.
    struct Number {
        double value = 0.0;
        double step = 1.0;
        std::optional<std::string> refused; // a text that was typed and not taken
    };
    using Event = void (Model::*)();

    bool IsInSight() const { return _isPanelShown && _isFatherShown; }

    // Numbers
    void Put(Number& ioNumber, double iValue);
    void TypeInto(Number& ioNumber, const std::string& iText, Event iEvent);
    void SpinBy(Number& ioNumber, int iSteps, Event iEvent);
    std::string Shown(const Number& iNumber) const;
    Number& Of(Limit iLimit) { return iLimit == Limit::Maximum ? _maximum : _minimum; }
    Event EventOf(Limit iLimit);
    bool& IsEnabled(Limit iLimit) { return iLimit == Limit::Maximum ? _isMaximumEnabled : _isMinimumEnabled; }
    Sight::Editor SightOf(const Number& iNumber, bool iIsEnabled) const;

    // Events
    void MaximumChanged();
    void MinimumChanged();
    void NominalChanged();
    void FollowSize();
    void MirrorMaximum();
    void AskForUpdate();

    // Modes
    void Enter(Mode iTo);
    void Pass(Mode iFrom, Mode iTo, int iEntry);
    void Begin(Mode iTo, int iEntry);
    void ToPlusMinus(Mode iFrom, int iEntry);
    void ToSymmetric(Mode iFrom);
    void ToFit(Mode iFrom);
    bool IsOvertaken(int iEntry) const { return iEntry != _entries; }
    void Enable(bool iMaximum, bool iMinimum);
    void ToggleLimits() { _hearsLimits = !_hearsLimits; }
    void ToggleWatch() { _watch = _watch == 0 ? ++_watches : 0; }
    void ClearFit();
    bool IsSymmetric() const;

    // Fits
    Sight::List& Of(Combo iCombo) { return iCombo == Combo::Groups ? _groups : _fields; }
    static std::string SelectedOf(const Sight::List& iList);
    void Fill(Combo iCombo, const Texts& iLines);
    void SelectText(Combo iCombo, const std::string& iText);
    void SelectLine(Combo iCombo, int iLine);
    void Tell(const News& iNews);

    const bool _isAngle;
    Number _nominal;
    Number _maximum;
    Number _minimum;
    bool _isToleranceSet;
    double _toleranceMaximum;
    double _toleranceMinimum;

    bool _isPanelShown = true;
    bool _isFatherShown = true;
    Mode _checked = Mode::None;
    bool _isFitRadioShown = true;
    bool _areFitWidgetsShown = true;
    bool _isMaximumEnabled = true;
    bool _isMinimumEnabled = true;
    Sight::List _groups;
    Sight::List _fields;
    std::string _group;
    std::string _field;

    Mode _mode = Mode::None;
    std::optional<Mode> _entering; // the innermost entry that is under way
    int _entries = 0;
    bool _hearsLimits = false;  // both of them, in plus/minus mode
    bool _hearsMaximum = false; // in symmetric mode
    int _watch = 0;             // number of the watch on the parameter in fit mode, 0 for none
    int _watches = 0;

    Clerk _clerk;
    Texts _events;
    Texts _notifications;
    Texts _messages;
    Texts _traces;
    Passages _passages;
    Passages _overtaken;
};

} // namespace tolerance
