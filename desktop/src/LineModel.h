#ifndef desktop_LineModel_H
#define desktop_LineModel_H

#include <QtCore/QAbstractListModel>

class CATDlgCombo;
class QFontMetrics;

namespace desktop {

// The lines of a combo for a Qt view, read in place. Between a change in the host and Reload the number of
// rows stays the one that the view knows.
class LineModel : public QAbstractListModel {
  public:
    LineModel(const CATDlgCombo& iCombo, QObject* iParent);

    // The lines have changed.
    void Reload();
    // The combo is gone; the model is empty from now on.
    void Forget();

    // Width in pixels of the widest line, looked for among the first ones only where there are many.
    int WidestLine(const QFontMetrics& iMetrics) const;

    // QAbstractListModel
    int rowCount(const QModelIndex& iParent = QModelIndex()) const override;
    QVariant data(const QModelIndex& iIndex, int iRole = Qt::DisplayRole) const override;

  private:
    const CATDlgCombo* _combo; // not owned
    int _count = 0;            // rows that the view knows
};

} // namespace desktop

#endif
