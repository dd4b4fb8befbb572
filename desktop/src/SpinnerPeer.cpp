#include "SpinnerPeer.h"

#include "CATDlgSpinner.h"
#include "NumberField.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtCore/QLocale>

#include <algorithm>

namespace desktop {

namespace {

constexpr int fewestCharacters = 4;
constexpr int mostCharacters = 20;

// Rounded to that many digits behind the point; -1 for as many as there are.
QString TextOf(double iValue, int iDigits) {
    return QString::number(iValue, 'f', iDigits < 0 ? QLocale::FloatingPointShortest : iDigits);
}

// A number, or the beginning of one, with at most that many digits behind the point; -1 for any text.
QString PatternFor(int iDigits) {
    if (iDigits < 0)
        return QString();
    const QString fraction =
        iDigits == 0 ? QString() : QStringLiteral("(\\.[0-9]{0,%1})?").arg(QString::number(iDigits));
    return QStringLiteral("^[+-]?[0-9]*%1$").arg(fraction);
}

} // namespace

SpinnerPeer::SpinnerPeer(PeerTree& ioTree, CATDlgSpinner& ioSpinner, QWidget* iParent)
    : TypingPeer(
          ioTree, ioSpinner,
          new NumberField(iParent, {[this] { NoteTyped(); }, [this] { return CommitTyping(); },
                                    [this] { return Restore(); }, [this](int iSteps) { Step(iSteps); }})),
      _spinner(ioSpinner), _field(static_cast<NumberField*>(Widget())) {
    _field->Allow((host::Inspector::Style(ioSpinner) & CATDlgSpnEntry) != 0, true);
}

void SpinnerPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & (host::ChangeContent | host::ChangeLayout)) != 0)
        ShowRange();
    if ((iKinds & host::ChangeContent) != 0)
        DropText();
}

QString SpinnerPeer::FieldText() const {
    return _field->Text();
}

void SpinnerPeer::ShowHostText() {
    _field->ShowText(TextOf(_spinner.GetValue(), host::Inspector::RangeOf(_spinner).precision));
}

host::Outcome SpinnerPeer::Enter(const std::string& iText) {
    return host::DialogUser::TypeValue(_spinner, iText);
}

void SpinnerPeer::ShowRange() {
    const host::Inspector::Range range = host::Inspector::RangeOf(_spinner);
    _field->SetPattern(PatternFor(range.precision));
    QAbstractSpinBox::StepEnabled steps;
    steps.setFlag(QAbstractSpinBox::StepUpEnabled, _spinner.GetValue() < range.maximum);
    steps.setFlag(QAbstractSpinBox::StepDownEnabled, _spinner.GetValue() > range.minimum);
    _field->SetSteps(steps);
    const int width = host::Inspector::VisibleTextWidth(_spinner);
    const qsizetype longest = std::max(TextOf(range.minimum, range.precision).size(),
                                       TextOf(range.maximum, range.precision).size());
    _field->SetVisibleCharacters(
        width > 0 ? width : std::clamp(static_cast<int>(longest), fewestCharacters, mostCharacters));
}

bool SpinnerPeer::Restore() {
    if (!IsTyping())
        return false;
    DropText();
    return true;
}

void SpinnerPeer::Step(int iSteps) {
    CommitText();
    if (Dialog() != nullptr)
        Perform([this, iSteps] { return host::DialogUser::Spin(_spinner, iSteps); });
}

} // namespace desktop
