#ifndef TextTable_H
#define TextTable_H

#include "TextArena.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace host {

// Rows of text cells, made for a million rows: a cell takes eight bytes beside its text and one byte for the
// length of a short text, appending is amortised constant, and reading or writing a cell does not depend on
// the number of rows.
class TextTable {
  public:
    int Rows() const { return _rows; }
    int Columns() const { return _columns; }

    // Widens all rows. Never narrows.
    void SetColumns(int iColumns);
    void AppendRow();
    void RemoveRow(int iRow);
    void Clear();

    // The row must be there; the column is made when it is not.
    void Set(int iRow, int iColumn, std::string_view iText);
    // Empty for a cell that was never written or is not there. Valid until the next change.
    std::string_view Get(int iRow, int iColumn) const;

    // Memory taken, in bytes.
    std::size_t Bytes() const;

    TextTable() = default;
    TextTable(const TextTable& iOther);
    TextTable& operator=(const TextTable& iOther);

  private:
    typedef const char* CellText; // text in the arena; null for a cell never written

    static constexpr int rowsPerBlock = 512;

    CellText& At(int iRow, int iColumn) {
        const std::size_t row = static_cast<std::size_t>(iRow);
        const std::size_t rowInBlock = row % rowsPerBlock;
        return _blocks[row / rowsPerBlock]
                      [rowInBlock * static_cast<std::size_t>(_columns) + static_cast<std::size_t>(iColumn)];
    }
    CellText At(int iRow, int iColumn) const { return const_cast<TextTable*>(this)->At(iRow, iColumn); }
    void Grow();
    void Compact();

    TextArena _arena;
    std::vector<std::unique_ptr<CellText[]>> _blocks; // all but the first hold rowsPerBlock rows
    int _firstBlockRows = 0;                          // rows that the first block has room for
    int _columns = 0;
    int _rows = 0;
};

} // namespace host

#endif
