#include "LineEditorPeer.h"

#include "CATDlgEditor.h"
#include "LineField.h"
#include "host/Inspector.h"

#include <algorithm>

namespace desktop {

namespace {
constexpr int longestOfAll = 32767;
}

LineEditorPeer::LineEditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iParent)
    : EditorPeer(ioTree, ioEditor, new LineField(iParent, [this] { NoteLeft(); })),
      _field(static_cast<LineField*>(Widget())) {
    _field->setReadOnly(IsReadOnly());
    connect(_field, &QLineEdit::textEdited, this, [this] { NoteTyped(); });
    connect(_field, &QLineEdit::returnPressed, this, [this] { CommitText(); });
}

QString LineEditorPeer::FieldText() const {
    return _field->text();
}

// The longest text is a limit for the person; the program may show a longer one.
void LineEditorPeer::ShowFieldText(const QString& iText) {
    _field->setMaxLength(longestOfAll);
    _field->setText(iText);
    _field->setCursorPosition(0);
    ShowSize();
}

void LineEditorPeer::ShowSize() {
    const int longest = host::Inspector::MaxTextWidth(Editor());
    if (longest > 0)
        _field->setMaxLength(std::max(longest, static_cast<int>(_field->text().size())));
    else
        _field->setMaxLength(longestOfAll);
    _field->SetVisibleCharacters(host::Inspector::VisibleTextWidth(Editor()));
}

} // namespace desktop
