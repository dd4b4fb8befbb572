#pragma once

#include "ToleranceActs.h"

#include <string>

namespace tolerance {

// One notification of the panel.
struct News {
    enum class Kind { FitMode, Group, Field, Update };

    Kind kind = Kind::FitMode;
    std::string group;
    std::string field;       // empty for Group
    double value = 0.0;      // of the parameter; 0 for FitMode
    bool isAboutParm = true; // the parameter of FitMode is the edited one

    std::string InWords() const;
};

// The command of a story: it has the same three groups for every parameter, and makes deviations up.
//
// A silent one answers nothing. A diligent one answers the fit mode with its groups, a group with its fields,
// and a field or an update with deviations; not an update that it hears while it gives deviations itself. A
// contrary one answers the fit mode by initialising the panel anew, all else like a diligent one.
class Clerk {
  public:
    void Adopt(Habit iHabit) { _habit = iHabit; }
    void Hear(const News& iNews, Acts& ioPanel);

    static const Texts& Groups();
    static Texts FieldsOf(const std::string& iGroup);

  private:
    void AnswerFitMode(const News& iNews, Acts& ioPanel) const;
    void GiveDeviations(const News& iNews, Acts& ioPanel);

    Habit _habit = Habit::Silent;
    bool _isGiving = false;
};

} // namespace tolerance
