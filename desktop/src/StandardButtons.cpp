#include "StandardButtons.h"

#include "CATDlgDialog.h"
#include "Mnemonics.h"
#include "Texts.h"
#include "host/MessageCatalogs.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <iterator>

namespace desktop {

namespace {

// The texts of one language, named as the host names it.
struct Language {
    const char* name;
    const char* ok;
    const char* cancel;
    const char* apply;
    const char* close;
    const char* help;
};

constexpr Language languages[] = {
    {"", "OK", "Cancel", "Apply", "Close", "Help"},
    {"German", "OK", "Abbrechen", "Anwenden", "Schließen", "Hilfe"},
    {"French", "OK", "Annuler", "Appliquer", "Fermer", "Aide"},
    {"Japanese", "OK", "キャンセル", "適用", "閉じる", "ヘルプ"},
};

const Language& CurrentLanguage() {
    const auto* const found =
        std::find_if(std::begin(languages), std::end(languages), [](const Language& iLanguage) {
            return host::MessageCatalogs::Language() == iLanguage.name;
        });
    return found == std::end(languages) ? languages[0] : *found;
}

} // namespace

StandardButtons::StandardButtons(QWidget* iParent, const std::vector<CATULong>& iButtons,
                                 const std::function<void(CATULong)>& iOnPressed)
    : QWidget(iParent) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    for (const CATULong bit : iButtons) {
        auto* const button = new QPushButton(TextOf(bit), this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [iOnPressed, bit] { iOnPressed(bit); });
        row->addWidget(button);
        _buttons.emplace_back(bit, button);
    }
    setVisible(!_buttons.empty());
}

QString StandardButtons::TextOf(CATULong iButton) {
    const Language& language = CurrentLanguage();
    switch (iButton) {
    case CATDlgWndOK:
        return QString::fromUtf8(language.ok);
    case CATDlgWndCANCEL:
        return QString::fromUtf8(language.cancel);
    case CATDlgWndAPPLY:
        return QString::fromUtf8(language.apply);
    case CATDlgWndCLOSE:
        return QString::fromUtf8(language.close);
    default:
        return QString::fromUtf8(language.help);
    }
}

void StandardButtons::ShowDefault(CATULong iButton) {
    for (const auto& [bit, button] : _buttons)
        button->setDefault(bit == iButton);
}

void StandardButtons::ShowCaptions(Mnemonics& ioMnemonics) {
    for (const auto& [bit, button] : _buttons) {
        const QString text = TextOf(bit);
        const bool hasOwnKey = bit == CATDlgWndOK || bit == CATDlgWndCANCEL;
        button->setText(WithMnemonic(text, hasOwnKey ? -1 : ioMnemonics.Take(text)));
        button->setAccessibleName(text);
    }
}

std::vector<QPushButton*> StandardButtons::All() const {
    std::vector<QPushButton*> all;
    for (const auto& [bit, button] : _buttons)
        all.push_back(button);
    return all;
}

} // namespace desktop
