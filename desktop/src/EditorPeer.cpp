#include "EditorPeer.h"

#include "CATDlgEditor.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

namespace desktop {

EditorPeer::EditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iWidget)
    : TypingPeer(ioTree, ioEditor, iWidget), _editor(ioEditor) {}

void EditorPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeLayout) != 0)
        ShowSize();
    if ((iKinds & host::ChangeContent) != 0)
        DropText();
}

void EditorPeer::ShowHostText() {
    const QString text = ToQt(_editor.GetText());
    if (text != FieldText())
        ShowFieldText(text);
}

host::Outcome EditorPeer::Enter(const std::string& iText) {
    return host::DialogUser::Type(_editor, iText);
}

bool EditorPeer::IsReadOnly() const {
    return (host::Inspector::Style(_editor) & CATDlgEdtReadOnly) != 0;
}

// Nobody asked for anything when a field is left because it goes or a message comes up: no refusal is shown.
void EditorPeer::NoteLeft() {
    CommitText();
    if (Dialog() != nullptr && !Tree().IsApplying())
        static_cast<void>(host::DialogUser::LeaveField(_editor).done);
}

} // namespace desktop
