#include "StandardButtons.h"

#include "CATDlgDialog.h"
#include "Mnemonics.h"
#include "OwnTexts.h"
#include "Texts.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace desktop {

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
    switch (iButton) {
    case CATDlgWndOK:
        return InCurrentLanguage(OwnText::Ok);
    case CATDlgWndCANCEL:
        return InCurrentLanguage(OwnText::Cancel);
    case CATDlgWndAPPLY:
        return InCurrentLanguage(OwnText::Apply);
    case CATDlgWndCLOSE:
        return InCurrentLanguage(OwnText::Close);
    default:
        return InCurrentLanguage(OwnText::Help);
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
