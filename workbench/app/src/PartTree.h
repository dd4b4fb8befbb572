#pragma once

// The window in which a designer picks elements of a part: a tree of its points, lines and planes, and a
// field to find them by name.
//
//   PartTree tree(part, [&](const std::string& name) { return command.Pick(name); });
//   tree.ShowWanted({engineering::ElementKind::Point});
//   tree.show();

#include "engineering/Part.h"
#include "host/Outcome.h"

#include <QtWidgets/QWidget>

#include <array>
#include <functional>
#include <set>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QTreeWidgetItem;

namespace app {

class ElementView;

class PartTree : public QWidget {
  public:
    /// The part is not owned and outlives the window. `pick` is called with the name of each element that the
    /// designer picks, whatever its kind, and may call the operations of this window; a refusal is shown with
    /// its reason. No kind is wanted at first. Texts are in the language of the host's message catalogues.
    PartTree(const engineering::Part& part, std::function<host::Outcome(const std::string&)> pick);

    /// Tells which kinds can be picked now; the others are greyed. A window that was closed comes back when
    /// there are any.
    void ShowWanted(const std::vector<engineering::ElementKind>& kinds);

    /// Marks exactly these elements as picked. Names that the part does not have are passed over.
    void MarkPicked(const std::vector<std::string>& names);

    // QWidget
    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddBranches();
    void AddElements();
    bool IsWanted(engineering::ElementKind kind) const;
    void ShowStates();
    void ShowOnly(const QString& text);
    void Pick(QTreeWidgetItem& item);

    const engineering::Part& _part;
    std::function<host::Outcome(const std::string&)> _pick;
    QLineEdit* _find; ///< these widgets belong to the window
    ElementView* _view;
    QLabel* _hint;
    std::array<QTreeWidgetItem*, 3> _branches{}; ///< in the order of ElementKind
    std::vector<QTreeWidgetItem*> _items;        ///< one for each element of the part, in its order
    std::vector<engineering::ElementKind> _wanted;
    std::set<std::string> _picked;
    bool _isClosed = false; ///< by the designer
};

} // namespace app
