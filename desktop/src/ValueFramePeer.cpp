#include "ValueFramePeer.h"

#include "FieldHeight.h"
#include "NumberField.h"
#include "ProblemLine.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/ValueFrame.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <utility>

namespace desktop {

ValueFramePeer::ValueFramePeer(PeerTree& ioTree, host::ValueFrame& ioFrame, QWidget* iParent)
    : TypingPeer(ioTree, ioFrame, new QWidget(iParent)), _frame(ioFrame), _label(new QLabel(Widget())),
      _field(new NumberField(Widget(), {[this] { NoteTyped(); }, [this] { return CommitTyping(); },
                                        [this] { return Restore(); }, [this](int iSteps) { Step(iSteps); }})),
      _problem(new ProblemLine(Widget())) {
    _label->setTextFormat(Qt::PlainText);
    _label->setBuddy(_field);
    _field->setMinimumHeight(FieldHeight());
    auto* const grid = new QGridLayout(Widget());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(_label, 0, 0);
    grid->addWidget(_field, 0, 1);
    grid->addWidget(_problem, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1); // the field stays beside its label when there is more room
    grid->setVerticalSpacing(0);
}

QWidget* ValueFramePeer::Field() const {
    return _field;
}

QString ValueFramePeer::Caption() const {
    return Dialog() == nullptr ? QString() : ToQt(_frame.Label());
}

void ValueFramePeer::ShowCaption(int iMnemonic) {
    const QString caption = Caption();
    _label->setText(WithMnemonic(caption, iMnemonic));
    _label->setVisible(!caption.isEmpty());
}

void ValueFramePeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeContent) == 0)
        return;
    const bool isEditable = _frame.IsEditable();
    _field->Allow(isEditable, isEditable && _frame.HasSpinner());
    if (!isEditable)
        EndTyping();
    if (!IsTyping())
        ShowHostText();
}

bool ValueFramePeer::TakeNeedsRoom() {
    return std::exchange(_needsRoom, false);
}

bool ValueFramePeer::HoldsRefusedText() const {
    return Dialog() != nullptr && _frame.IsRefused();
}

QString ValueFramePeer::FieldText() const {
    return _field->Text();
}

void ValueFramePeer::ShowHostText() {
    const QString problem = ToQt(_frame.Problem());
    _field->ShowText(ToQt(_frame.Text()));
    _field->setAccessibleDescription(problem);
    if (_problem->Show(problem, _field->width()))
        _needsRoom = true;
}

host::Outcome ValueFramePeer::Enter(const std::string& iText) {
    return host::DialogUser::Type(_frame, iText);
}

bool ValueFramePeer::Restore() {
    if (!IsTyping() && !HoldsRefusedText())
        return false;
    DropText();
    if (HoldsRefusedText())
        Perform([this] { return host::DialogUser::Restore(_frame); });
    return true;
}

// From what was typed, unless that is no value: then it has to be mended first.
void ValueFramePeer::Step(int iSteps) {
    const bool wasTyping = IsTyping();
    CommitText();
    if (Dialog() == nullptr || (wasTyping && _frame.IsRefused()))
        return;
    Perform([this, iSteps] { return host::DialogUser::Spin(_frame, iSteps); });
}

} // namespace desktop
