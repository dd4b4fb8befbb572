#include "TableModel.h"

#include "CATDlgMultiList.h"
#include "Texts.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr qsizetype longestLine = 2000; // characters; no screen shows more beside each other

char Folded(char iAscii) {
    return iAscii >= 'A' && iAscii <= 'Z' ? static_cast<char>(iAscii - 'A' + 'a') : iAscii;
}

bool IsAscii(char iByte) {
    return static_cast<unsigned char>(iByte) < 0x80;
}

// Finds texts by their beginning, whatever their case. Nearly all texts differ in the first byte already.
class Beginning {
  public:
    explicit Beginning(const QString& iStart) : _start(iStart), _first(iStart.toUtf8().left(1)) {}

    bool Begins(const CATUnicodeString& iText) const {
        const char* const text = iText.ConvertToUTF8();
        const char first = _first.at(0);
        if (IsAscii(first) && IsAscii(*text) && Folded(first) != Folded(*text))
            return false;
        const qsizetype bytes = std::min(3 * _start.size(), static_cast<qsizetype>(iText.GetLengthInByte()));
        return QString::fromUtf8(text, bytes).startsWith(_start, Qt::CaseInsensitive);
    }

  private:
    QString _start;
    QByteArray _first;
};

} // namespace

TableModel::TableModel(const CATDlgMultiList& iList, QObject* iParent)
    : QAbstractTableModel(iParent), _list(&iList) {}

bool TableModel::Follow(Fate iFate) {
    const int rows = _list == nullptr ? 0 : _list->GetLineCount();
    const int columns = _list == nullptr ? 0 : _list->GetColumnCount();
    const bool hasTitles = (_hasTitles && iFate == Kept) || FindTitles();
    const bool hasOtherColumns = columns != _columns || hasTitles != _hasTitles;
    if (iFate == Replaced || columns < _columns || _rows == 0 || rows == 0 || hasTitles != _hasTitles) {
        beginResetModel();
        _rows = rows;
        _columns = columns;
        _hasTitles = hasTitles;
        endResetModel();
        return true;
    }
    FollowColumns(columns);
    FollowRows(rows);
    emit dataChanged(index(0, 0), index(_rows - 1, _columns - 1), {Qt::DisplayRole});
    return hasOtherColumns;
}

void TableModel::Forget() {
    _list = nullptr;
    Follow(Replaced);
}

QString TableModel::Text(int iRow, int iColumn) const {
    if (_list == nullptr)
        return QString();
    CATUnicodeString text;
    _list->GetColumnItem(iColumn, text, iRow);
    return ToQt(text);
}

QString TableModel::Title(int iColumn) const {
    if (_list == nullptr)
        return QString();
    CATUnicodeString title;
    _list->GetColumnTitle(iColumn, title);
    return ToQt(title);
}

int TableModel::rowCount(const QModelIndex& iParent) const {
    return iParent.isValid() ? 0 : _rows;
}

int TableModel::columnCount(const QModelIndex& iParent) const {
    return iParent.isValid() ? 0 : _columns;
}

QVariant TableModel::data(const QModelIndex& iIndex, int iRole) const {
    if (!iIndex.isValid() || iRole != Qt::DisplayRole)
        return QVariant();
    return OnOneLine(Text(iIndex.row(), iIndex.column()), longestLine);
}

QVariant TableModel::headerData(int iSection, Qt::Orientation iOrientation, int iRole) const {
    if (iOrientation != Qt::Horizontal || iRole != Qt::DisplayRole)
        return QVariant();
    return OnOneLine(Title(iSection), longestLine);
}

// What typing looks for, found in place; everything else as usual.
QModelIndexList TableModel::match(const QModelIndex& iStart, int iRole, const QVariant& iValue, int iHits,
                                  Qt::MatchFlags iFlags) const {
    const QString start = iValue.toString();
    const bool isTyping = iRole == Qt::DisplayRole && iHits == 1 && iStart.isValid() && !start.isEmpty() &&
                          iFlags == (Qt::MatchStartsWith | Qt::MatchWrap);
    if (!isTyping || _list == nullptr)
        return QAbstractTableModel::match(iStart, iRole, iValue, iHits, iFlags);
    const Beginning beginning(start);
    CATUnicodeString text;
    for (int step = 0; step < _rows; ++step) {
        const int row = (iStart.row() + step) % _rows;
        _list->GetColumnItem(iStart.column(), text, row);
        if (beginning.Begins(text))
            return {index(row, iStart.column())};
    }
    return {};
}

void TableModel::FollowColumns(int iColumns) {
    if (iColumns == _columns)
        return;
    beginInsertColumns(QModelIndex(), _columns, iColumns - 1);
    _columns = iColumns;
    endInsertColumns();
}

void TableModel::FollowRows(int iRows) {
    if (iRows > _rows) {
        beginInsertRows(QModelIndex(), _rows, iRows - 1);
        _rows = iRows;
        endInsertRows();
    } else if (iRows < _rows) {
        beginRemoveRows(QModelIndex(), iRows, _rows - 1);
        _rows = iRows;
        endRemoveRows();
    }
}

bool TableModel::FindTitles() const {
    for (int column = 0; _list != nullptr && column < _list->GetColumnCount(); ++column)
        if (!Title(column).isEmpty())
            return true;
    return false;
}

} // namespace desktop
