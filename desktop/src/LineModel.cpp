#include "LineModel.h"

#include "CATDlgCombo.h"
#include "Texts.h"

#include <QtGui/QFontMetrics>

#include <algorithm>

namespace desktop {

namespace {
constexpr int measuredLines = 200;
}

LineModel::LineModel(const CATDlgCombo& iCombo, QObject* iParent)
    : QAbstractListModel(iParent), _combo(&iCombo), _count(iCombo.GetLineCount()) {}

void LineModel::Reload() {
    beginResetModel();
    _count = _combo == nullptr ? 0 : _combo->GetLineCount();
    endResetModel();
}

void LineModel::Forget() {
    _combo = nullptr;
    Reload();
}

int LineModel::WidestLine(const QFontMetrics& iMetrics) const {
    int widest = 0;
    for (int line = 0; line < std::min(_count, measuredLines); ++line)
        widest = std::max(widest, iMetrics.horizontalAdvance(data(index(line)).toString()));
    return widest;
}

int LineModel::rowCount(const QModelIndex& iParent) const {
    return iParent.isValid() ? 0 : _count;
}

QVariant LineModel::data(const QModelIndex& iIndex, int iRole) const {
    const bool isText = iRole == Qt::DisplayRole || iRole == Qt::EditRole;
    if (!iIndex.isValid() || !isText || _combo == nullptr)
        return QVariant();
    CATUnicodeString text;
    _combo->GetLine(text, iIndex.row());
    return ToQt(text);
}

} // namespace desktop
