#include "TextTable.h"

#include <algorithm>

namespace host {

TextTable::TextTable(const TextTable& iOther) {
    *this = iOther;
}

TextTable& TextTable::operator=(const TextTable& iOther) {
    if (this == &iOther)
        return *this;
    Clear();
    _columns = 0;
    SetColumns(iOther._columns);
    for (int row = 0; row < iOther._rows; ++row) {
        AppendRow();
        for (int column = 0; column < iOther._columns; ++column)
            if (iOther.At(row, column) != nullptr)
                Set(row, column, iOther.Get(row, column));
    }
    return *this;
}

void TextTable::SetColumns(int iColumns) {
    if (iColumns <= _columns)
        return;
    const std::size_t before = static_cast<std::size_t>(_columns);
    const std::size_t width = static_cast<std::size_t>(iColumns);
    for (std::size_t block = 0; block < _blocks.size(); ++block) {
        const std::size_t rows = static_cast<std::size_t>(block == 0 ? _firstBlockRows : rowsPerBlock);
        std::unique_ptr<CellText[]> wider(new CellText[rows * width]());
        for (std::size_t row = 0; row < rows; ++row)
            std::copy_n(_blocks[block].get() + row * before, before, wider.get() + row * width);
        _blocks[block] = std::move(wider);
    }
    _columns = iColumns;
}

void TextTable::AppendRow() {
    if (_columns == 0)
        SetColumns(1);
    const int room =
        _blocks.empty() ? 0 : _firstBlockRows + (static_cast<int>(_blocks.size()) - 1) * rowsPerBlock;
    if (_rows == room)
        Grow();
    ++_rows;
}

// The first block grows by doubling up to the full size; after that there are new blocks.
void TextTable::Grow() {
    const std::size_t width = static_cast<std::size_t>(_columns);
    if (_firstBlockRows == rowsPerBlock) {
        _blocks.emplace_back(new CellText[rowsPerBlock * width]());
        return;
    }
    const int rows = std::max(8, _firstBlockRows * 2);
    std::unique_ptr<CellText[]> larger(new CellText[static_cast<std::size_t>(rows) * width]());
    if (_blocks.empty())
        _blocks.emplace_back();
    else
        std::copy_n(_blocks[0].get(), static_cast<std::size_t>(_firstBlockRows) * width, larger.get());
    _blocks[0] = std::move(larger);
    _firstBlockRows = rows;
}

void TextTable::RemoveRow(int iRow) {
    for (int column = 0; column < _columns; ++column)
        if (At(iRow, column) != nullptr)
            _arena.Abandon(At(iRow, column));
    for (int row = iRow; row + 1 < _rows; ++row)
        for (int column = 0; column < _columns; ++column)
            At(row, column) = At(row + 1, column);
    --_rows;
    for (int column = 0; column < _columns; ++column)
        At(_rows, column) = nullptr;
    Compact();
}

void TextTable::Clear() {
    _arena.Clear();
    _blocks.clear();
    _firstBlockRows = 0;
    _rows = 0;
}

void TextTable::Set(int iRow, int iColumn, std::string_view iText) {
    if (iColumn >= _columns)
        SetColumns(iColumn + 1);
    CellText& cell = At(iRow, iColumn);
    if (cell == nullptr) {
        cell = _arena.Keep(iText);
        return;
    }
    if (_arena.Overwrite(cell, iText))
        return;
    _arena.Abandon(cell);
    cell = _arena.Keep(iText);
    Compact();
}

std::string_view TextTable::Get(int iRow, int iColumn) const {
    if (iRow < 0 || iRow >= _rows || iColumn < 0 || iColumn >= _columns)
        return std::string_view();
    const CellText cell = At(iRow, iColumn);
    return cell == nullptr ? std::string_view() : TextArena::Text(cell);
}

std::size_t TextTable::Bytes() const {
    const std::size_t rows =
        _blocks.empty() ? 0 : static_cast<std::size_t>(_firstBlockRows) + (_blocks.size() - 1) * rowsPerBlock;
    return rows * static_cast<std::size_t>(_columns) * sizeof(CellText) + _arena.BytesTaken();
}

// Packs the texts anew once more than half of the room is lost.
void TextTable::Compact() {
    if (_arena.BytesAbandoned() < 65536 || _arena.BytesAbandoned() * 2 < _arena.BytesTaken())
        return;
    TextArena packed;
    for (int row = 0; row < _rows; ++row)
        for (int column = 0; column < _columns; ++column) {
            CellText& cell = At(row, column);
            if (cell != nullptr)
                cell = packed.Keep(TextArena::Text(cell));
        }
    _arena = std::move(packed);
}

} // namespace host
