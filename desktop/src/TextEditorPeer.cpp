#include "TextEditorPeer.h"

#include "CATDlgEditor.h"
#include "TextField.h"
#include "host/Inspector.h"

namespace desktop {

TextEditorPeer::TextEditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iParent)
    : EditorPeer(ioTree, ioEditor, new TextField(iParent, [this] { NoteLeft(); })),
      _field(static_cast<TextField*>(Widget())) {
    _field->SetReadOnly(IsReadOnly());
    connect(_field, &QPlainTextEdit::textChanged, this, [this] {
        if (!_field->IsShowing())
            NoteTyped();
    });
}

QString TextEditorPeer::FieldText() const {
    return _field->toPlainText();
}

void TextEditorPeer::ShowFieldText(const QString& iText) {
    _field->ShowText(iText);
}

void TextEditorPeer::ShowSize() {
    _field->SetLongestText(host::Inspector::MaxTextWidth(Editor()));
    _field->SetVisibleText(host::Inspector::VisibleTextHeight(Editor()),
                           host::Inspector::VisibleTextWidth(Editor()));
}

} // namespace desktop
