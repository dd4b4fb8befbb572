#include "Hand.h"

#include "CATDialog.h"
#include "CATDlgWindow.h"
#include "PartTree.h"
#include "desktop/Desktop.h"
#include "host/DialogPath.h"
#include "session/Player.h"

#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>

#include <cstdlib>

namespace desktop_test {

namespace {

using host::Outcome;
using session::Json;
using session::Need;
using session::ValueKind;

Outcome CannotBe(const std::string& iWhat) {
    return Outcome::Refused("there is nothing to " + iWhat);
}

// A click in the middle of a cell that is in sight.
Outcome Click(QAbstractItemView& ioView, const QModelIndex& iIndex) {
    ioView.scrollTo(iIndex);
    const QRect place = ioView.visualRect(iIndex);
    if (!place.isValid())
        return CannotBe("click");
    QTest::mouseClick(ioView.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    return Outcome::Done();
}

// Opens the list with the mouse and takes a line with the keyboard.
Outcome ChooseInDropDown(QComboBox& ioBox, int iLine) {
    QTest::mouseClick(&ioBox, Qt::LeftButton);
    QAbstractItemView& list = *ioBox.view();
    list.setCurrentIndex(ioBox.model()->index(iLine, 0));
    QTest::keyClick(&list, Qt::Key_Return);
    return Outcome::Done();
}

int LineOf(const QAbstractItemModel& iModel, const Json& iStep) {
    if (iStep.contains("line"))
        return iStep.at("line").get<int>();
    const QString text = QString::fromStdString(iStep.at("text").get<std::string>());
    const QModelIndexList found =
        iModel.match(iModel.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    return found.isEmpty() ? -1 : found.front().row();
}

QPushButton* StandardButton(const QWidget& iWindow, const std::string& iName) {
    for (QPushButton* button : iWindow.findChildren<QPushButton*>())
        if (button->text().remove('&').toStdString() == iName)
            return button;
    return nullptr;
}

// The line in which a widget is typed; null for none.
QWidget* FieldOf(QWidget* iWidget) {
    if (iWidget == nullptr || iWidget->inherits("QLineEdit") || iWidget->inherits("QAbstractSpinBox"))
        return iWidget;
    if (auto* const field = iWidget->findChild<QAbstractSpinBox*>())
        return field;
    return nullptr;
}

} // namespace

Hand::Hand(const desktop::Desktop& iDesktop, const app::PartTree& iPart) : _desktop(iDesktop), _part(iPart) {
    QObject::connect(&_answer, &QTimer::timeout, &_answer, &Hand::AnswerMessage);
    _answer.start(0); // runs in the loop of a message too
}

void Hand::AnswerMessage() {
    if (auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        QTest::mouseClick(message->button(QMessageBox::Ok), Qt::LeftButton);
}

void Hand::TakeOver(session::Player& ioPlayer) {
    using enum ValueKind;
    const auto take = [&](session::Form iForm, Outcome (Hand::*iAction)(const Json&) const) {
        _steps.emplace_back(std::move(iForm),
                            [this, iAction](const Json& iStep) { return (this->*iAction)(iStep); });
        ioPlayer.AddHandler(_steps.back());
    };
    take({"press", {{"at"}, {"button", Button, Need::Optional}}}, &Hand::Press);
    take({"choose", {{"at"}, {"line", Count, Need::Alternative}, {"text", Text, Need::Alternative}}},
         &Hand::Choose);
    take({"check", {{"at"}}}, &Hand::Check);
    take({"type", {{"at"}, {"text", Text}}}, &Hand::Type);
    take({"spin", {{"at"}, {"steps", Integer}}}, &Hand::Spin);
    take({"escape", {{"at"}}}, &Hand::Escape);
    take({"page", {{"at"}}}, &Hand::ShowPage);
    take({"move", {{"at"}, {"x", Integer}, {"y", Integer}}}, &Hand::Move);
    take({"select", {{"at"}, {"rows", Counts}}}, &Hand::Select);
    take({"activate", {{"at"}, {"row", Count}, {"column", Count}}}, &Hand::Activate);
    take({"pick", {{"element"}}}, &Hand::Pick);
}

QWidget* Hand::Find(const Json& iStep) const {
    const CATDialog* const widget = host::DialogPath::Find(iStep.at("at").get<std::string>()).widget;
    return widget == nullptr ? nullptr : _desktop.WidgetOf(*widget);
}

Outcome Hand::Press(const Json& iStep) const {
    QWidget* const widget = Find(iStep);
    QWidget* const button = widget == nullptr || !iStep.contains("button")
                                ? widget
                                : StandardButton(*widget, iStep.at("button").get<std::string>());
    if (button == nullptr)
        return CannotBe("press");
    QTest::mouseClick(button, Qt::LeftButton);
    return Outcome::Done();
}

Outcome Hand::Choose(const Json& iStep) const {
    QWidget* const widget = Find(iStep);
    if (auto* const box = dynamic_cast<QComboBox*>(widget))
        return ChooseInDropDown(*box, LineOf(*box->model(), iStep));
    auto* const list = dynamic_cast<QListView*>(widget);
    return list == nullptr ? CannotBe("choose")
                           : Click(*list, list->model()->index(LineOf(*list->model(), iStep), 0));
}

// On the button's sign, which is left of its text.
Outcome Hand::Check(const Json& iStep) const {
    auto* const button = dynamic_cast<QAbstractButton*>(Find(iStep));
    if (button == nullptr)
        return CannotBe("check");
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    return Outcome::Done();
}

Outcome Hand::Type(const Json& iStep) const {
    QWidget* const field = FieldOf(Find(iStep));
    if (field == nullptr)
        return CannotBe("type in");
    field->setFocus();
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClicks(field, QString::fromStdString(iStep.at("text").get<std::string>()));
    QTest::keyClick(field, Qt::Key_Return);
    return Outcome::Done();
}

Outcome Hand::Spin(const Json& iStep) const {
    QWidget* const field = FieldOf(Find(iStep));
    if (field == nullptr)
        return CannotBe("step");
    field->setFocus();
    const int steps = iStep.at("steps").get<int>();
    for (int step = 0; step < std::abs(steps); ++step)
        QTest::keyClick(field, steps > 0 ? Qt::Key_Up : Qt::Key_Down);
    return Outcome::Done();
}

Outcome Hand::Escape(const Json& iStep) const {
    QWidget* const widget = Find(iStep);
    if (widget == nullptr)
        return CannotBe("leave");
    QWidget* const field = FieldOf(widget);
    if (field != nullptr)
        field->setFocus();
    QTest::keyClick(field == nullptr ? widget : field, Qt::Key_Escape);
    return Outcome::Done();
}

Outcome Hand::ShowPage(const Json& iStep) const {
    const QWidget* const page = Find(iStep);
    const QWidget* const stack = page == nullptr ? nullptr : page->parentWidget();
    auto* const box = stack == nullptr ? nullptr : dynamic_cast<QTabWidget*>(stack->parentWidget());
    if (box == nullptr || box->indexOf(page) == -1)
        return CannotBe("bring forward");
    QTabBar& tabs = *box->tabBar();
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(box->indexOf(page)).center());
    return Outcome::Done();
}

// What the window system reports when a person drags a window; the desktop waits for the end of the drag.
Outcome Hand::Move(const Json& iStep) const {
    auto* const dialog =
        dynamic_cast<CATDlgWindow*>(host::DialogPath::Find(iStep.at("at").get<std::string>()).widget);
    const QWidget* const window = Find(iStep);
    if (dialog == nullptr || window == nullptr)
        return CannotBe("move");
    const QPoint place(iStep.at("x").get<int>(), iStep.at("y").get<int>());
    window->windowHandle()->setFramePosition(place);
    const bool isHeard = QTest::qWaitFor([dialog, &place] {
        QPoint now;
        dialog->GetRectDimensions(&now.rx(), &now.ry(), nullptr, nullptr);
        return now == place;
    });
    return isHeard ? Outcome::Done() : CannotBe("heard of the move");
}

Outcome Hand::Select(const Json& iStep) const {
    auto* const table = dynamic_cast<QTableView*>(Find(iStep));
    const int row = iStep.at("rows").at(0).get<int>();
    return table == nullptr ? CannotBe("select") : Click(*table, table->model()->index(row, 0));
}

Outcome Hand::Activate(const Json& iStep) const {
    auto* const table = dynamic_cast<QTableView*>(Find(iStep));
    if (table == nullptr)
        return CannotBe("double-click");
    const QModelIndex cell = table->model()->index(iStep.at("row").get<int>(), iStep.at("column").get<int>());
    const Outcome first = Click(*table, cell);
    if (first)
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                           table->visualRect(cell).center());
    return first;
}

Outcome Hand::Pick(const Json& iStep) const {
    QTreeWidget& tree = *_part.findChild<QTreeWidget*>();
    const QString name = QString::fromStdString(iStep.at("element").get<std::string>());
    const QList<QTreeWidgetItem*> found = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        return CannotBe("pick");
    tree.scrollToItem(found.front());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree.visualItemRect(found.front()).center());
    return Outcome::Done();
}

} // namespace desktop_test
