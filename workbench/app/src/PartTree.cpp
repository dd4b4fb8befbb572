#include "PartTree.h"

#include "ElementView.h"
#include "Sign.h"
#include "host/MessageCatalogs.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace app {

namespace {

using engineering::Element;
using engineering::ElementKind;

constexpr std::array kinds{ElementKind::Point, ElementKind::Line, ElementKind::Plane};
constexpr int nameColumn = 0;
constexpr int tickColumn = 1;
constexpr int significantDigits = 8;
constexpr int widthInCharacters = 52; // of the window
constexpr int heightInLines = 30;

constexpr std::size_t PlaceOf(ElementKind kind) {
    return static_cast<std::size_t>(kind);
}

/// A text of this window in the language of the host; the key itself where it is missing.
QString Text(const std::string& key, const std::vector<std::string>& parameters = {}) {
    const std::optional<std::string> text = host::MessageCatalogs::Text("PartTree", key);
    if (!text)
        host::MessageCatalogs::RecordMissing("PartTree: " + key);
    return QString::fromStdString(host::MessageCatalogs::Fill(text.value_or(key), parameters));
}

/// What the keys of a kind begin with.
std::string KeyOf(ElementKind kind) {
    static constexpr std::array<const char*, 3> keys{"Point", "Line", "Plane"};
    return keys[PlaceOf(kind)];
}

/// A balloon that shows every character as it is, '<' included.
QString Balloon(const QString& text) {
    return Qt::mightBeRichText(text) ? "<span style=\"white-space:pre\">" + text.toHtmlEscaped() + "</span>"
                                     : text;
}

std::string Number(double value) {
    return QString::number(value, 'g', significantDigits).toStdString();
}

QString CoordinatesOf(const Element& element) {
    std::vector<std::string> numbers;
    for (const engineering::Vector& vector : {element.point, element.direction})
        for (const double number : {vector.x, vector.y, vector.z})
            numbers.push_back(Number(number));
    return Text(KeyOf(element.kind) + ".Coordinates", numbers);
}

} // namespace

PartTree::PartTree(const engineering::Part& part, std::function<host::Outcome(const std::string&)> pick)
    : QWidget(nullptr, Qt::Window), _part(part), _pick(std::move(pick)), _find(new QLineEdit(this)),
      _view(new ElementView(this, [this](QTreeWidgetItem& item) { Pick(item); })), _hint(new QLabel(this)) {
    setWindowTitle(QString::fromStdString(part.Name()).replace("[*]", "[*][*]"));
    _find->setPlaceholderText(Text("Find"));
    _find->setAccessibleName(Text("Find"));
    _find->setClearButtonEnabled(true);
    _find->installEventFilter(this);
    connect(_find, &QLineEdit::textChanged, this, [this](const QString& text) { ShowOnly(text); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, _find, [this] {
        _find->setFocus(Qt::ShortcutFocusReason);
        _find->selectAll();
    });
    _view->setAccessibleName(Text("Elements"));
    _hint->setTextFormat(Qt::PlainText);
    _hint->setWordWrap(true);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(_find);
    rows->addWidget(_view, 1);
    rows->addWidget(_hint);
    AddBranches();
    AddElements();
    ShowWanted({});
    _view->setFocus();
    resize(PartTree::sizeHint());
}

void PartTree::AddBranches() {
    _view->setColumnCount(tickColumn + 1);
    QHeaderView& header = *_view->header();
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(0);
    header.setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    header.setSectionResizeMode(tickColumn, QHeaderView::Fixed);
    header.resizeSection(tickColumn, 2 * fontMetrics().height());
    for (const ElementKind kind : kinds) {
        auto* const branch = new QTreeWidgetItem(_view, {Text(KeyOf(kind) + ".Branch")});
        branch->setExpanded(true);
        _branches[PlaceOf(kind)] = branch;
    }
}

void PartTree::AddElements() {
    for (const Element& element : _part.Elements()) {
        const QString name = QString::fromStdString(element.name);
        auto* const item = new QTreeWidgetItem(_branches[PlaceOf(element.kind)], {name});
        const QString balloon = Balloon(name + '\n' + CoordinatesOf(element));
        item->setToolTip(nameColumn, balloon);
        item->setToolTip(tickColumn, balloon);
        _items.push_back(item);
    }
}

void PartTree::ShowWanted(const std::vector<ElementKind>& wanted) {
    _wanted = wanted;
    QStringList branches;
    for (const ElementKind kind : kinds)
        if (IsWanted(kind))
            branches.append(_branches[PlaceOf(kind)]->text(nameColumn));
    _hint->setText(branches.isEmpty() ? Text("NothingWanted")
                                      : Text("Wanted", {branches.join(Text("And")).toStdString()}));
    ShowStates();
    if (!_isClosed || branches.isEmpty())
        return;
    _isClosed = false;
    show();
}

void PartTree::MarkPicked(const std::vector<std::string>& names) {
    _picked = std::set<std::string>(names.begin(), names.end());
    ShowStates();
}

QSize PartTree::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {widthInCharacters * metrics.averageCharWidth(), heightInLines * metrics.lineSpacing()};
}

// From the find field, the keys that go on lead to the tree, and Escape shows all elements again.
bool PartTree::eventFilter(QObject* watched, QEvent* event) {
    if (watched != _find || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        _view->Enter();
        return true;
    case Qt::Key_Escape:
        _find->clear();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PartTree::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowStates();
}

void PartTree::closeEvent(QCloseEvent* event) {
    _isClosed = true;
    QWidget::closeEvent(event);
}

bool PartTree::IsWanted(ElementKind kind) const {
    return std::ranges::find(_wanted, kind) != _wanted.end();
}

void PartTree::ShowStates() {
    std::array<QIcon, kinds.size()> signs;
    for (const ElementKind kind : kinds) {
        signs[PlaceOf(kind)] = SignOf(kind, palette());
        _branches[PlaceOf(kind)]->setIcon(nameColumn, signs[PlaceOf(kind)]);
        _branches[PlaceOf(kind)]->setData(nameColumn, ElementView::greyedRole, !IsWanted(kind));
    }
    const QIcon tick = TickSign(palette());
    for (std::size_t i = 0; i < _items.size(); ++i) {
        const Element& element = _part.Elements()[i];
        const bool isPicked = _picked.contains(element.name);
        const bool isWanted = IsWanted(element.kind);
        QFont font = _view->font();
        font.setBold(isPicked);
        _items[i]->setFont(nameColumn, font);
        _items[i]->setIcon(nameColumn, signs[PlaceOf(element.kind)]);
        _items[i]->setIcon(tickColumn, isPicked ? tick : QIcon());
        _items[i]->setData(nameColumn, ElementView::greyedRole, !isWanted);
        _items[i]->setData(nameColumn, Qt::AccessibleDescriptionRole,
                           isPicked   ? Text("Picked")
                           : isWanted ? QString()
                                      : Text("NotWanted"));
    }
}

// What is hidden is not current either, so that Enter cannot pick it.
void PartTree::ShowOnly(const QString& text) {
    const QString wanted = text.trimmed();
    for (QTreeWidgetItem* item : _items)
        item->setHidden(!item->text(nameColumn).contains(wanted, Qt::CaseInsensitive));
    for (QTreeWidgetItem* branch : _branches) {
        bool isEmpty = true;
        for (int i = 0; i < branch->childCount() && isEmpty; ++i)
            isEmpty = branch->child(i)->isHidden();
        branch->setHidden(isEmpty && !wanted.isEmpty());
        if (!wanted.isEmpty())
            branch->setExpanded(true);
    }
    QTreeWidgetItem* const current = _view->currentItem();
    if (current != nullptr && current->isHidden())
        _view->setCurrentItem(nullptr);
}

void PartTree::Pick(QTreeWidgetItem& item) {
    const host::Outcome outcome = _pick(item.text(nameColumn).toStdString());
    if (outcome)
        return;
    QApplication::beep();
    const QPoint below = _view->visualItemRect(&item).bottomLeft();
    QToolTip::showText(_view->viewport()->mapToGlobal(below), Balloon(QString::fromStdString(outcome.reason)),
                       _view->viewport());
}

} // namespace app
