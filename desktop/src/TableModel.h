#ifndef desktop_TableModel_H
#define desktop_TableModel_H

#include <QtCore/QAbstractTableModel>

class CATDlgMultiList;

namespace desktop {

// The rows of a list for a Qt view, read in place. Between a change in the host and Follow the number of rows
// stays the one that the view knows; a cell that is gone meanwhile reads empty.
class TableModel : public QAbstractTableModel {
  public:
    TableModel(const CATDlgMultiList& iList, QObject* iParent);

    // What has happened to the rows that the view knows.
    enum Fate { Kept, Replaced };
    // Takes over the rows and columns of the host. Kept rows cost nothing that grows with their number; more
    // rows are appended, fewer end sooner. True when the columns are others, or all rows.
    bool Follow(Fate iFate);
    // The list is gone; the model is empty from now on.
    void Forget();

    bool HasTitles() const { return _hasTitles; }
    // The whole text of a cell or title, as the host holds it. A cell's DisplayRole is one line without
    // control characters, and no longer than a screen is wide.
    QString Text(int iRow, int iColumn) const;
    QString Title(int iColumn) const;

    // QAbstractTableModel
    int rowCount(const QModelIndex& iParent = QModelIndex()) const override;
    int columnCount(const QModelIndex& iParent = QModelIndex()) const override;
    QVariant data(const QModelIndex& iIndex, int iRole = Qt::DisplayRole) const override;
    QVariant headerData(int iSection, Qt::Orientation iOrientation, int iRole) const override;
    QModelIndexList match(const QModelIndex& iStart, int iRole, const QVariant& iValue, int iHits,
                          Qt::MatchFlags iFlags) const override;

  private:
    void FollowColumns(int iColumns);
    void FollowRows(int iRows);
    bool FindTitles() const;

    const CATDlgMultiList* _list; // not owned
    int _rows = 0;                // that the view knows
    int _columns = 0;
    bool _hasTitles = false;
};

} // namespace desktop

#endif
