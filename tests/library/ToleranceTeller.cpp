#include "ToleranceTeller.h"

#include "ToleranceModel.h"

#include <array>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

namespace tolerance {

namespace {

const double nominals[] = {20.0, 50.0, 60.0, 400.0, 500.0, 1.0001, 1.0, 0.5, 500.0001, 0.0, -5.0, 700.0};
const double deviations[] = {0.1,  -0.1,      0.2,        -0.2,     0.05,      0.0,
                             -0.3, 0.0000099, -0.0000099, -0.00001, 0.1000001, -0.1001};
// Maximum and minimum as a file may have them.
const std::pair<double, double> tolerances[] = {
    {0.1, -0.1}, {0.1, -0.1000001}, {0.1, -0.1001},    {0.0, 0.0},    {0.5, 0.2},    {-0.1, -0.3},
    {0.2, -0.1}, {-0.1, 0.1},       {0.000005, -0.01}, {0.05, -0.05}, {0.00001, 0.0}};
const Texts groupNames = {"H", "F", "K", "", "X"};
const Texts fieldNames = {"H7", "", "F8", "K7", "Z9"};
const std::vector<Texts> groupLists = {{"F", "H", "K"}, {"H"}, {"K", "F"}, {"H", "H"}, {}};
const std::vector<Texts> fieldLists = {{"H6", "H7", "H11"}, {"F7", "F8"}, {"K7", "K7"}, {}};

class Teller {
  public:
    explicit Teller(std::mt19937& ioRandom) : _random(ioRandom) {
        for (std::size_t& weight : _weights)
            weight = 1 + (Happens(2) ? 0 : 5);
    }

    Start AnyStart();
    Step AnyStep();

  private:
    std::size_t Below(std::size_t iCount) { return _random() % iCount; }
    bool Happens(std::size_t iOneIn) { return Below(iOneIn) == 0; }
    template<class List>
    const auto& OneOf(const List& iList) {
        return *std::next(std::begin(iList), static_cast<std::ptrdiff_t>(Below(std::size(iList))));
    }
    // A size with fits comes more often than one without.
    double Nominal() { return nominals[Below(Happens(2) ? std::size(nominals) : 6)]; }
    Mode Radio() { return static_cast<Mode>(1 + Below(3)); }
    Limit AnyLimit() { return Happens(2) ? Limit::Minimum : Limit::Maximum; }
    Combo AnyCombo() { return Happens(2) ? Combo::Fields : Combo::Groups; }
    int Steps() {
        const int steps = static_cast<int>(1 + Below(4));
        return Happens(2) ? -steps : steps;
    }

    Step OfPerson();
    Step OfWidgets();
    Step OfParameter();
    Step OfCommand();
    Step OfSetters();

    std::mt19937& _random;
    // How much each kind of step happens in this story: a story about few things goes further with them.
    std::array<std::size_t, 5> _weights{};
};

std::string NameOf(Mode iRadio) {
    if (iRadio == Mode::PlusMinus)
        return "PlusMinusRdb";
    return iRadio == Mode::Symmetric ? "PlusMinusSymmetricalRdb" : "ISOFittingRdb";
}

std::string NameOf(Limit iLimit) {
    return iLimit == Limit::Maximum ? "the maximum" : "the minimum";
}

std::string NameOf(Combo iCombo) {
    return iCombo == Combo::Groups ? "the groups" : "the fields";
}

std::string NameOf(Habit iHabit) {
    if (iHabit == Habit::Silent)
        return "silent";
    return iHabit == Habit::Diligent ? "diligent" : "contrary";
}

Start Teller::AnyStart() {
    Start start;
    start.isAngle = Happens(8);
    start.nominal = Nominal();
    start.hasTolerance = Happens(2);
    if (start.hasTolerance)
        std::tie(start.maximum, start.minimum) = OneOf(tolerances);
    return start;
}

Step Teller::AnyStep() {
    using Kind = Step (Teller::*)();
    constexpr Kind kinds[] = {&Teller::OfPerson, &Teller::OfWidgets, &Teller::OfParameter, &Teller::OfCommand,
                              &Teller::OfSetters};
    std::size_t place = Below(std::accumulate(_weights.begin(), _weights.end(), std::size_t{0}));
    std::size_t kind = 0;
    while (place >= _weights[kind])
        place -= _weights[kind++];
    return (this->*kinds[kind])();
}

Step Teller::OfPerson() {
    const Limit limit = AnyLimit();
    const std::string text = OneOf(Model::TypedTexts());
    const int steps = Steps();
    switch (Below(12)) {
    case 0:
    case 1:
        return {"a person types '" + text + "' as " + NameOf(limit),
                [=](Acts& ioPanel) { return ioPanel.Type(limit, text); }};
    case 2:
        return {"a person spins " + NameOf(limit) + " by " + std::to_string(steps),
                [=](Acts& ioPanel) { return ioPanel.Spin(limit, steps); }};
    case 3:
        return {"a person presses Escape in " + NameOf(limit),
                [=](Acts& ioPanel) { return ioPanel.Restore(limit); }};
    case 4:
    case 5:
        return {"a person types '" + text + "' as the nominal value",
                [=](Acts& ioPanel) { return ioPanel.TypeNominal(text); }};
    case 6:
        return {"a person spins the nominal value by " + std::to_string(steps),
                [=](Acts& ioPanel) { return ioPanel.SpinNominal(steps); }};
    case 7:
    case 8: {
        const Combo combo = AnyCombo();
        const int line = static_cast<int>(Below(4));
        return {"a person chooses line " + std::to_string(line) + " of " + NameOf(combo),
                [=](Acts& ioPanel) { return ioPanel.Choose(combo, line); }};
    }
    default: {
        const Mode radio = Radio();
        return {"a person checks " + NameOf(radio), [=](Acts& ioPanel) { return ioPanel.Check(radio); }};
    }
    }
}

Step Teller::OfWidgets() {
    const Mode radio = Radio();
    const Combo combo = AnyCombo();
    switch (Below(9)) {
    case 0:
    case 1:
    case 2: {
        const bool isChecked = !Happens(4);
        const bool notifies = !Happens(3);
        return Silent("a program " + std::string(isChecked ? "checks " : "unchecks ") + NameOf(radio) +
                          (notifies ? " with" : " without") + " notification",
                      [=](Acts& ioPanel) { ioPanel.SetRadio(radio, isChecked, notifies); });
    }
    case 3:
        return Silent(NameOf(radio) + " sends its notification again",
                      [=](Acts& ioPanel) { ioPanel.Report(radio); });
    case 4:
        return Silent("a selection of " + NameOf(combo) + " is notified again",
                      [=](Acts& ioPanel) { ioPanel.Report(combo); });
    case 5: {
        const int line = static_cast<int>(Below(4));
        return Silent("a program selects line " + std::to_string(line) + " of " + NameOf(combo) +
                          " without notification",
                      [=](Acts& ioPanel) { ioPanel.SelectSilently(combo, line); });
    }
    case 6: {
        const bool isShown = !Happens(4);
        return Silent(isShown ? "the panel's father is shown" : "the panel's father is hidden",
                      [=](Acts& ioPanel) { ioPanel.ShowFather(isShown); });
    }
    default: {
        const bool isShown = !Happens(3);
        return Silent(isShown ? "the panel is shown" : "the panel is hidden",
                      [=](Acts& ioPanel) { ioPanel.ShowPanel(isShown); });
    }
    }
}

Step Teller::OfParameter() {
    switch (Below(7)) {
    case 0:
        return Silent("a program unsets the tolerance", [](Acts& ioPanel) { ioPanel.UnsetTolerance(); });
    case 1: {
        const auto [maximum, minimum] = OneOf(tolerances);
        return Silent("a program sets the tolerance " + InFull(maximum) + " " + InFull(minimum),
                      [max = maximum, min = minimum](Acts& ioPanel) { ioPanel.SetTolerance(max, min); });
    }
    default: {
        const double value = Nominal();
        const bool raises = !Happens(4);
        return Silent("a program sets the nominal value " + InFull(value) + (raises ? " with" : " without") +
                          " change event",
                      [=](Acts& ioPanel) { ioPanel.SetNominal(value, raises); });
    }
    }
}

Step Teller::OfCommand() {
    switch (Below(5)) {
    case 0:
    case 1: {
        const Habit habit = Happens(4) ? Habit::Silent : Happens(6) ? Habit::Contrary : Habit::Diligent;
        return Silent("the command becomes " + NameOf(habit), [=](Acts& ioPanel) { ioPanel.Adopt(habit); });
    }
    case 2: {
        const std::string group = OneOf(groupNames);
        const std::string field = OneOf(fieldNames);
        return Silent("SetTolGroupAndField('" + group + "', '" + field + "')",
                      [=](Acts& ioPanel) { ioPanel.SetTolGroupAndField(group, field); });
    }
    default:
        return {"InitTolerance()", [](Acts& ioPanel) { return ioPanel.InitTolerance(); }};
    }
}

Step Teller::OfSetters() {
    const double maximum = OneOf(deviations);
    const double minimum = OneOf(deviations);
    const std::string values = InFull(maximum) + ", " + InFull(minimum);
    switch (Below(5)) {
    case 0: {
        const Texts groups = OneOf(groupLists);
        const std::string group = OneOf(groupNames);
        const std::string field = OneOf(fieldNames);
        return {"SetToleranceGroups(" + Quoted(groups) + ", '" + group + "', '" + field + "')",
                [=](Acts& ioPanel) { return ioPanel.SetToleranceGroups(groups, group, field); }};
    }
    case 1: {
        const Texts fields = OneOf(fieldLists);
        return {"SetToleranceFields(" + Quoted(fields) + ")",
                [=](Acts& ioPanel) { return ioPanel.SetToleranceFields(fields); }};
    }
    case 2:
        return {"SetFittingVals(" + values + ")",
                [=](Acts& ioPanel) { return ioPanel.SetFittingVals(maximum, minimum); }};
    default: {
        const bool isMaximumEditable = Happens(2);
        const bool isMinimumEditable = Happens(2);
        const bool writesMinimum = Happens(2);
        return {"SetToleranceValues(" + values + (isMaximumEditable ? ", 1" : ", 0") +
                    (isMinimumEditable ? ", 1" : ", 0") + (writesMinimum ? ", 1)" : ", 0)"),
                [=](Acts& ioPanel) {
                    return ioPanel.SetToleranceValues(maximum, minimum, isMaximumEditable, isMinimumEditable,
                                                      writesMinimum);
                }};
    }
    }
}

} // namespace

Story RandomStory(std::mt19937& ioRandom, int iSteps) {
    Teller teller(ioRandom);
    Story story;
    story.start = teller.AnyStart();
    for (int step = 0; step < iSteps; ++step)
        story.steps.push_back(teller.AnyStep());
    return story;
}

} // namespace tolerance
