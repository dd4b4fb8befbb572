#include "ToleranceModel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace tolerance {

namespace {

constexpr char done[] = "done";
constexpr char refused[] = "refused";
constexpr char success[] = "S_OK";

struct TypedText {
    const char* text;
    std::optional<double> length; // in mm
    std::optional<double> angle;  // in degrees
};

constexpr std::optional<double> noValue;

const TypedText typedTexts[] = {
    {"0.2", 0.2, 0.2},
    {"0,25 mm", 0.25, noValue},
    {"0.1", 0.1, 0.1},
    {"0.1mm", 0.1, noValue},
    {"0.1deg", noValue, 0.1},
    {"0.10", 0.1, 0.1},
    {"0", 0.0, 0.0},
    {"-0", 0.0, 0.0},
    {"-0.05", -0.05, -0.05},
    {"0.000005", 0.000005, 0.000005},
    {"-0.000009", -0.000009, -0.000009},
    {"0.00001", 0.00001, 0.00001},
    {"-0.00001", -0.00001, -0.00001},
    {"0.1000001", 0.1000001, 0.1000001},
    {"0.1+0.2", 0.3, 0.3},
    {"1 cm", 10.0, noValue},
    {"2 deg", noValue, 2.0},
    {"20", 20.0, 20.0},
    {"60", 60.0, 60.0},
    {"1", 1.0, 1.0},
    {"1.0001", 1.0001, 1.0001},
    {"500", 500.0, 500.0},
    {"500mm", 500.0, noValue},
    {"0.5 m", 500.0, noValue},
    {"500.0001", 500.0001, 500.0001},
    {"700", 700.0, 700.0},
    {"-3", -3.0, -3.0},
    {"", noValue, noValue},
    {"abc", noValue, noValue},
    {"1e999", noValue, noValue},
    {"1 2", noValue, noValue},
    {"3 kg", noValue, noValue},
};

std::optional<double> Read(const std::string& iText, bool iIsAngle) {
    const TypedText* const found =
        std::find_if(std::begin(typedTexts), std::end(typedTexts),
                     [&](const TypedText& iTyped) { return iText == iTyped.text; });
    if (found == std::end(typedTexts))
        return std::nullopt;
    return iIsAngle ? found->angle : found->length;
}

std::string SixDigits(double iNumber) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", iNumber + 0.0); // minus zero is zero
    return text;
}

// The numbers of the stories have at most nine places behind the point.
double Decimal(double iNumber) {
    return std::round(iNumber * 1e9) / 1e9;
}

bool HasFits(double iNominal) {
    return iNominal > 1.0 && iNominal <= 500.0;
}

} // namespace

Model::Model(const Start& iStart)
    : _isAngle(iStart.isAngle), _isToleranceSet(iStart.hasTolerance),
      _toleranceMaximum(iStart.hasTolerance ? iStart.maximum : 0.0),
      _toleranceMinimum(iStart.hasTolerance ? iStart.minimum : 0.0) {
    _nominal.value = iStart.nominal;
    _maximum.value = _toleranceMaximum;
    _minimum.value = _toleranceMinimum;
}

const Texts& Model::TypedTexts() {
    static const Texts texts = [] {
        Texts made;
        for (const TypedText& typed : typedTexts)
            made.emplace_back(typed.text);
        return made;
    }();
    return texts;
}

// ---- Numbers

void Model::Put(Number& ioNumber, double iValue) {
    ioNumber.value = iValue + 0.0;
    ioNumber.refused.reset();
}

void Model::TypeInto(Number& ioNumber, const std::string& iText, Event iEvent) {
    const std::optional<double> value = Read(iText, _isAngle);
    const bool isThereAlready = iText == SixDigits(ioNumber.value) + (_isAngle ? "deg" : "mm");
    ioNumber.refused.reset();
    if (isThereAlready)
        return;
    if (!value) {
        ioNumber.refused = iText;
        return;
    }
    Put(ioNumber, *value);
    (this->*iEvent)();
}

void Model::SpinBy(Number& ioNumber, int iSteps, Event iEvent) {
    Put(ioNumber, Decimal(ioNumber.value + iSteps * ioNumber.step));
    (this->*iEvent)();
}

std::string Model::Shown(const Number& iNumber) const {
    return iNumber.refused ? *iNumber.refused : SixDigits(iNumber.value) + (_isAngle ? "deg" : "mm");
}

Model::Event Model::EventOf(Limit iLimit) {
    return iLimit == Limit::Maximum ? &Model::MaximumChanged : &Model::MinimumChanged;
}

Sight::Editor Model::SightOf(const Number& iNumber, bool iIsEnabled) const {
    return {Shown(iNumber), iNumber.refused.has_value(), iIsEnabled};
}

// ---- A person

std::string Model::Check(Mode iRadio) {
    if (!IsInSight() || (iRadio == Mode::Fit && !_isFitRadioShown))
        return refused;
    SetRadio(iRadio, true, true);
    return done;
}

std::string Model::Type(Limit iLimit, const std::string& iText) {
    if (!IsInSight() || !IsEnabled(iLimit))
        return refused;
    TypeInto(Of(iLimit), iText, EventOf(iLimit));
    return done;
}

std::string Model::Spin(Limit iLimit, int iSteps) {
    if (!IsInSight() || !IsEnabled(iLimit))
        return refused;
    SpinBy(Of(iLimit), iSteps, EventOf(iLimit));
    return done;
}

std::string Model::Restore(Limit iLimit) {
    if (!IsInSight() || !IsEnabled(iLimit))
        return refused;
    Of(iLimit).refused.reset();
    return done;
}

std::string Model::TypeNominal(const std::string& iText) {
    TypeInto(_nominal, iText, &Model::NominalChanged);
    return done;
}

std::string Model::SpinNominal(int iSteps) {
    SpinBy(_nominal, iSteps, &Model::NominalChanged);
    return done;
}

std::string Model::Choose(Combo iCombo, int iLine) {
    const int count = static_cast<int>(Of(iCombo).lines.size());
    if (!IsInSight() || !_areFitWidgetsShown || iLine >= count)
        return refused;
    SelectLine(iCombo, iLine);
    return done;
}

// ---- Programs

void Model::SetRadio(Mode iRadio, bool iIsChecked, bool iNotifies) {
    if ((_checked == iRadio) == iIsChecked)
        return;
    _checked = iIsChecked ? iRadio : Mode::None;
    if (iNotifies)
        Enter(iRadio);
}

void Model::Report(Mode iRadio) {
    Enter(iRadio);
}

void Model::Report(Combo iCombo) {
    const std::string group = SelectedOf(_groups);
    if (iCombo == Combo::Groups) {
        Tell({News::Kind::Group, group, "", _nominal.value});
        return;
    }
    _group = group;
    _field = SelectedOf(_fields);
    Tell({News::Kind::Field, _group, _field, _nominal.value});
}

void Model::SelectSilently(Combo iCombo, int iLine) {
    Sight::List& list = Of(iCombo);
    if (iLine < static_cast<int>(list.lines.size()))
        list.selected = iLine;
}

void Model::ShowPanel(bool iIsShown) {
    _isPanelShown = iIsShown;
}

void Model::ShowFather(bool iIsShown) {
    _isFatherShown = iIsShown;
}

void Model::SetNominal(double iValue, bool iRaises) {
    Put(_nominal, iValue);
    if (iRaises)
        NominalChanged();
}

void Model::SetTolerance(double iMaximum, double iMinimum) {
    _isToleranceSet = true;
    _toleranceMaximum = iMaximum;
    _toleranceMinimum = iMinimum;
}

void Model::UnsetTolerance() {
    _isToleranceSet = false;
    _toleranceMaximum = 0.0;
    _toleranceMinimum = 0.0;
}

// ---- The command

void Model::Adopt(Habit iHabit) {
    _clerk.Adopt(iHabit);
}

std::string Model::InitTolerance() {
    if (_isAngle)
        _isFitRadioShown = false;
    if (!_group.empty() && !_field.empty())
        SetRadio(Mode::Fit, true, true);
    else
        SetRadio(IsSymmetric() ? Mode::Symmetric : Mode::PlusMinus, true, true);
    return success;
}

bool Model::IsSymmetric() const {
    return _isToleranceSet && SixDigits(_toleranceMaximum) == SixDigits(-_toleranceMinimum);
}

void Model::SetTolGroupAndField(const std::string& iGroup, const std::string& iField) {
    _group = iGroup;
    _field = iField;
}

std::string Model::SetToleranceGroups(const Texts& iGroups, const std::string& iGroup,
                                      const std::string& iField) {
    SetTolGroupAndField(iGroup, iField);
    Fill(Combo::Groups, iGroups);
    SelectText(Combo::Groups, _group);
    return success;
}

std::string Model::SetToleranceFields(const Texts& iFields) {
    Fill(Combo::Fields, iFields);
    if (!_field.empty())
        SelectText(Combo::Fields, _field);
    else
        SelectLine(Combo::Fields, 0);
    return success;
}

std::string Model::SetToleranceValues(double iMaximum, double iMinimum, bool iIsMaximumEditable,
                                      bool iIsMinimumEditable, bool iWritesMinimum) {
    if (iWritesMinimum) {
        Put(_minimum, iMinimum);
        MinimumChanged();
        SetTolerance(_toleranceMaximum, iMinimum + 0.0);
    }
    Put(_maximum, iMaximum);
    MaximumChanged();
    SetTolerance(iMaximum + 0.0, _toleranceMinimum);
    NominalChanged();
    Enable(_isMaximumEnabled && iIsMaximumEditable, _isMinimumEnabled && iIsMinimumEditable);
    return success;
}

// The answer to an entry that it makes another one overtake enables and disables nothing any more.
std::string Model::SetFittingVals(double iMaximum, double iMinimum) {
    const bool isAnswer = _entering.has_value();
    const int entry = _entries;
    Put(_maximum, iMaximum);
    Put(_minimum, iMinimum);
    SetTolerance(iMaximum + 0.0, iMinimum + 0.0);
    NominalChanged();
    if (!isAnswer || !IsOvertaken(entry))
        Enable(false, false);
    return success;
}

// ---- Events

void Model::MaximumChanged() {
    _events.emplace_back("value of Max");
    if (_hearsLimits)
        SetTolerance(_maximum.value, _toleranceMinimum);
    if (_hearsMaximum)
        MirrorMaximum();
}

void Model::MinimumChanged() {
    _events.emplace_back("value of Min");
    if (_hearsLimits)
        SetTolerance(_toleranceMaximum, _minimum.value);
}

void Model::MirrorMaximum() {
    Put(_minimum, -_maximum.value);
    MinimumChanged();
    _isMinimumEnabled = false;
    SetTolerance(_maximum.value, _minimum.value);
}

// A watch that begins or ends meanwhile does not hear this change.
void Model::NominalChanged() {
    const int watch = _watch;
    FollowSize(); // heard first, since the panel was built
    _events.emplace_back("value of D");
    if (watch != 0 && watch == _watch)
        AskForUpdate();
}

void Model::FollowSize() {
    const double size = _nominal.value;
    if (HasFits(size)) {
        _isFitRadioShown = _isFitRadioShown || !_isAngle;
    } else if (_isPanelShown) {
        SetRadio(Mode::Symmetric, true, true);
        _isFitRadioShown = false;
    }
    if (size < 0.0)
        Put(_nominal, 0.0);
}

void Model::AskForUpdate() {
    if (HasFits(_nominal.value) && _mode == Mode::Fit)
        Tell({News::Kind::Update, SelectedOf(_groups), SelectedOf(_fields), _nominal.value});
}

// ---- Modes

// An entry from inside another one leaves the mode that is being entered, and the other one stops: what was
// checked last holds, with everything that belongs to it.
void Model::Enter(Mode iTo) {
    if (_checked != iTo)
        return;
    const Mode from = _entering.value_or(_mode);
    const bool overtakes = _entering.has_value();
    const int entry = ++_entries;
    _entering = iTo;
    _passages.emplace(from, iTo);
    Pass(from, iTo, entry);
    if (IsOvertaken(entry)) {
        _overtaken.emplace(from, iTo);
        return;
    }
    _entering.reset();
    _mode = iTo;
    if (overtakes) {
        _areFitWidgetsShown = iTo == Mode::Fit;
        Enable(iTo != Mode::Fit, iTo == Mode::PlusMinus);
    }
}

void Model::Pass(Mode iFrom, Mode iTo, int iEntry) {
    if (iFrom == iTo) {
        if (iTo != Mode::Fit)
            return;
        _traces.emplace_back("OrvKv9SubFrames 3: OrvKvToleranceSub::OnFittingSelect -> caught ERROR");
        _traces.emplace_back("OrvKv9SubFrames 3: error message: Error_UnknownError");
        _messages.emplace_back("Error");
    } else if (iFrom == Mode::None) {
        Begin(iTo, iEntry);
    } else if (iTo == Mode::PlusMinus) {
        ToPlusMinus(iFrom, iEntry);
    } else if (iTo == Mode::Symmetric) {
        ToSymmetric(iFrom);
    } else {
        ToFit(iFrom);
    }
}

void Model::Begin(Mode iTo, int iEntry) {
    _areFitWidgetsShown = iTo == Mode::Fit;
    _maximum.step = 0.05;
    _minimum.step = 0.05;
    if (iTo == Mode::Fit) {
        ToFit(Mode::None);
        return;
    }
    const double maximum = _isToleranceSet ? _toleranceMaximum : 0.1;
    if (iTo == Mode::PlusMinus) {
        Enable(true, true);
        SetToleranceValues(maximum, _isToleranceSet ? _toleranceMinimum : -0.1, true, true, true);
        if (IsOvertaken(iEntry))
            return;
        ToggleLimits();
    } else {
        Put(_minimum, -_maximum.value);
        _hearsMaximum = true;
        SetToleranceValues(maximum, -maximum, true, false, true);
        Enable(true, false);
    }
    ClearFit();
}

void Model::ToPlusMinus(Mode iFrom, int iEntry) {
    if (iFrom == Mode::Symmetric) {
        _hearsMaximum = false;
        ToggleLimits();
        Enable(_isMaximumEnabled, true);
    } else {
        _watch = 0;
        SetToleranceValues(0.1, -0.1, true, true, true);
        if (IsOvertaken(iEntry))
            return;
        ToggleLimits();
        _areFitWidgetsShown = false;
        Enable(true, true);
    }
    ClearFit();
}

void Model::ToSymmetric(Mode iFrom) {
    if (iFrom == Mode::PlusMinus) {
        _hearsLimits = false;
        _hearsMaximum = true;
        if (std::abs(_maximum.value) < 1e-5)
            Put(_maximum, 0.1);
        MaximumChanged();
        Enable(_isMaximumEnabled, false);
    } else {
        _watch = 0;
        Enable(true, false);
        _hearsMaximum = true;
        SetToleranceValues(0.1, -0.1, true, false, true);
        _areFitWidgetsShown = false;
    }
    ClearFit();
}

void Model::ToFit(Mode iFrom) {
    if (iFrom == Mode::PlusMinus)
        _hearsLimits = false;
    if (iFrom == Mode::Symmetric)
        _hearsMaximum = false;
    Enable(false, false);
    _areFitWidgetsShown = true;
    ToggleWatch();
    Tell({News::Kind::FitMode, _group, _field});
}

void Model::Enable(bool iMaximum, bool iMinimum) {
    _isMaximumEnabled = iMaximum;
    _isMinimumEnabled = iMinimum;
}

void Model::ClearFit() {
    SetTolGroupAndField("", "");
}

// ---- Fits

std::string Model::SelectedOf(const Sight::List& iList) {
    return iList.selected < 0 ? std::string() : iList.lines[static_cast<std::size_t>(iList.selected)];
}

void Model::Fill(Combo iCombo, const Texts& iLines) {
    Of(iCombo) = {iLines, -1, static_cast<int>(iLines.size())};
}

void Model::SelectText(Combo iCombo, const std::string& iText) {
    const Texts& lines = Of(iCombo).lines;
    const auto found = std::find(lines.begin(), lines.end(), iText);
    if (found != lines.end())
        SelectLine(iCombo, static_cast<int>(found - lines.begin()));
}

void Model::SelectLine(Combo iCombo, int iLine) {
    SelectSilently(iCombo, iLine);
    if (Of(iCombo).selected == iLine)
        Report(iCombo);
}

void Model::Tell(const News& iNews) {
    _notifications.push_back(iNews.InWords());
    _clerk.Hear(iNews, *this);
}

Sight Model::Look() {
    Sight sight;
    sight.isPanelShown = _isPanelShown;
    sight.checkedRadios = {_checked == Mode::PlusMinus, _checked == Mode::Symmetric, _checked == Mode::Fit};
    sight.isFitRadioShown = _isFitRadioShown;
    sight.shownFitWidgets.fill(_areFitWidgetsShown);
    sight.maximum = SightOf(_maximum, _isMaximumEnabled);
    sight.minimum = SightOf(_minimum, _isMinimumEnabled);
    sight.nominal = SightOf(_nominal, true);
    sight.value = _nominal.value;
    sight.isToleranceSet = _isToleranceSet;
    sight.toleranceMaximum = _toleranceMaximum;
    sight.toleranceMinimum = _toleranceMinimum;
    sight.groups = _groups;
    sight.fields = _fields;
    sight.group = _group;
    sight.field = _field;
    sight.subscriptionsOnParameter = 1 + (_watch != 0 ? 1 : 0);
    sight.subscriptionsOnMaximum = (_hearsLimits ? 1 : 0) + (_hearsMaximum ? 1 : 0);
    sight.subscriptionsOnMinimum = _hearsLimits ? 1 : 0;
    sight.events.swap(_events);
    sight.notifications.swap(_notifications);
    sight.messages.swap(_messages);
    sight.traces.swap(_traces);
    return sight;
}

} // namespace tolerance
