#ifndef QtTableModel_H
#define QtTableModel_H

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

// What a careful Qt programmer writes for many rows of texts.
class QtTableModel : public QAbstractTableModel {
  public:
    explicit QtTableModel(int iColumns) : _columns(iColumns) {}

    // Empties it; rows that are added up to EndFill are told of all at once.
    void BeginFill(int iColumns) {
        beginResetModel();
        _columns = iColumns;
        _rows.clear();
    }
    void Add(const QStringList& iTexts) { _rows.push_back(iTexts); }
    void EndFill() { endResetModel(); }

    // One row more, told of at once.
    void Append(const QStringList& iTexts) {
        const int row = static_cast<int>(_rows.size());
        beginInsertRows(QModelIndex(), row, row);
        Add(iTexts);
        endInsertRows();
    }

    // Replaces a text; TellOf then tells the views.
    void Set(int iRow, int iColumn, const QString& iText) {
        _rows[static_cast<std::size_t>(iRow)][iColumn] = iText;
    }
    void TellOf(int iRow, int iFirstColumn, int iLastColumn) {
        emit dataChanged(index(iRow, iFirstColumn), index(iRow, iLastColumn), {Qt::DisplayRole});
    }
    const QString& Text(int iRow, int iColumn) const {
        return _rows[static_cast<std::size_t>(iRow)][iColumn];
    }

    // QAbstractTableModel
    int rowCount(const QModelIndex& iParent = QModelIndex()) const override {
        return iParent.isValid() ? 0 : static_cast<int>(_rows.size());
    }
    int columnCount(const QModelIndex& iParent = QModelIndex()) const override {
        return iParent.isValid() ? 0 : _columns;
    }
    QVariant data(const QModelIndex& iIndex, int iRole = Qt::DisplayRole) const override {
        if (!iIndex.isValid() || iRole != Qt::DisplayRole)
            return QVariant();
        return Text(iIndex.row(), iIndex.column());
    }

  private:
    int _columns;
    std::vector<QStringList> _rows;
};

#endif
