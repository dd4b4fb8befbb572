#pragma once

#include "ToleranceSight.h"

#include <string>
#include <vector>

namespace tolerance {

enum class Mode { None, PlusMinus, Symmetric, Fit };
enum class Limit { Maximum, Minimum };
enum class Combo { Groups, Fields };
// What the command does about the notifications of the panel; see Clerk.
enum class Habit { Silent, Diligent, Contrary };

using Texts = std::vector<std::string>;

// How a parameter is before its panel is built. Deviations and value are as stored: mm or degrees.
struct Start {
    bool isAngle = false;
    double nominal = 20.0;
    bool hasTolerance = false;
    double maximum = 0.0;
    double minimum = 0.0;

    bool operator==(const Start&) const = default;
};

// A tolerance panel with the people around it: a person, the command, and whoever else has the parameter. The
// panel starts built and shown, with a silent command.
//
// What a person does answers "done" or "refused"; operations of the panel answer "S_OK" or "E_FAIL"; what
// cannot fail answers nothing.
class Acts {
  public:
    Acts() = default;
    Acts(const Acts&) = delete;
    Acts& operator=(const Acts&) = delete;
    virtual ~Acts() = default;

    // A person
    virtual std::string Check(Mode iRadio) = 0;
    virtual std::string Type(Limit iLimit, const std::string& iText) = 0;
    virtual std::string Spin(Limit iLimit, int iSteps) = 0;
    virtual std::string Restore(Limit iLimit) = 0;
    virtual std::string TypeNominal(const std::string& iText) = 0;
    virtual std::string SpinNominal(int iSteps) = 0;
    virtual std::string Choose(Combo iCombo, int iLine) = 0;

    // Programs: widgets
    virtual void SetRadio(Mode iRadio, bool iIsChecked, bool iNotifies) = 0;
    // The widget sends its notification although nothing has changed.
    virtual void Report(Mode iRadio) = 0;
    virtual void Report(Combo iCombo) = 0;
    virtual void SelectSilently(Combo iCombo, int iLine) = 0;
    virtual void ShowPanel(bool iIsShown) = 0;
    // What the panel stands in.
    virtual void ShowFather(bool iIsShown) = 0;

    // Programs: the parameter
    virtual void SetNominal(double iValue, bool iRaises) = 0;
    virtual void SetTolerance(double iMaximum, double iMinimum) = 0;
    virtual void UnsetTolerance() = 0;

    // The command
    virtual void Adopt(Habit iHabit) = 0;
    virtual std::string InitTolerance() = 0;
    virtual void SetTolGroupAndField(const std::string& iGroup, const std::string& iField) = 0;
    virtual std::string SetToleranceGroups(const Texts& iGroups, const std::string& iGroup,
                                           const std::string& iField) = 0;
    virtual std::string SetToleranceFields(const Texts& iFields) = 0;
    virtual std::string SetToleranceValues(double iMaximum, double iMinimum, bool iIsMaximumEditable,
                                           bool iIsMinimumEditable, bool iWritesMinimum) = 0;
    virtual std::string SetFittingVals(double iMaximum, double iMinimum) = 0;

    // How things stand, and what was sent, shown and traced since the last call.
    virtual Sight Look() = 0;
};

} // namespace tolerance
