#include "RadioButton.h"

#include <QtCore/QEvent>

#include <algorithm>

namespace desktop {

namespace {

bool IsChecked(const QRadioButton* iButton) {
    return iButton->isChecked() && !iButton->isHidden() && iButton->isEnabled();
}

} // namespace

RadioButton::RadioButton(QWidget* iParent) : QRadioButton(iParent) {
    connect(this, &QAbstractButton::toggled, this, [this] { ShowTabStops(); });
}

// Qt makes the button that gets the focus the stop, checked or not.
bool RadioButton::event(QEvent* iEvent) {
    const bool isHandled = QRadioButton::event(iEvent);
    const QEvent::Type type = iEvent->type();
    if (type == QEvent::FocusIn || type == QEvent::EnabledChange || type == QEvent::ShowToParent ||
        type == QEvent::HideToParent)
        ShowTabStops();
    return isHandled;
}

void RadioButton::ShowTabStops() const {
    const auto group = parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    const bool hasChecked = std::any_of(group.begin(), group.end(), &IsChecked);
    for (QRadioButton* button : group)
        button->setFocusPolicy(!hasChecked || IsChecked(button) ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace desktop
