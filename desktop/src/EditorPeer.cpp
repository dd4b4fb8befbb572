#include "EditorPeer.h"

#include "CATDlgEditor.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/Messages.h"

namespace desktop {

EditorPeer::EditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iWidget)
    : Peer(ioTree, ioEditor, iWidget), _editor(ioEditor) {}

// While a message waits, or a window is being brought up to date, the text stays where it is.
void EditorPeer::CommitText() {
    if (!_isTyping || Dialog() == nullptr || Tree().IsApplying() || host::Messages::IsWaiting())
        return;
    EndTyping();
    const std::string text = ToHost(FieldText());
    Perform([this, &text] { return host::DialogUser::Type(_editor, text); });
}

void EditorPeer::DropText() {
    if (Dialog() == nullptr)
        return;
    EndTyping();
    ShowHostText();
}

void EditorPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeLayout) != 0)
        ShowSize();
    if ((iKinds & host::ChangeContent) == 0)
        return;
    EndTyping();
    ShowHostText();
}

bool EditorPeer::IsReadOnly() const {
    return (host::Inspector::Style(_editor) & CATDlgEdtReadOnly) != 0;
}

void EditorPeer::NoteTyped() {
    _isTyping = true;
    Tree().NoteTyping(*this);
}

// Nobody asked for anything when a field is left because it goes or a message comes up: no refusal is shown.
void EditorPeer::NoteLeft() {
    CommitText();
    if (Dialog() != nullptr && !Tree().IsApplying())
        static_cast<void>(host::DialogUser::LeaveField(_editor).done);
}

void EditorPeer::EndTyping() {
    _isTyping = false;
    Tree().NoteTypingEnded(*this);
}

void EditorPeer::ShowHostText() {
    const QString text = ToQt(_editor.GetText());
    if (text != FieldText())
        ShowFieldText(text);
}

} // namespace desktop
