#ifndef desktop_ColumnHeader_H
#define desktop_ColumnHeader_H

#include <QtWidgets/QHeaderView>

#include <vector>

namespace desktop {

// The titles of a table, and the widths of its columns: the natural one, or the one that a person has given
// with the mouse. The last column takes what the others leave.
class ColumnHeader : public QHeaderView {
  public:
    explicit ColumnHeader(QWidget* iParent);

    // Width in pixels in which the title of a column can be read.
    int TitleWidth(int iColumn) const { return sectionSizeFromContents(iColumn).width(); }

    // In pixels, one for each column.
    void SetNaturalWidths(const std::vector<int>& iWidths);
    // The natural width of the first iColumns columns, or of all.
    int NaturalWidth(int iColumns) const;
    int NaturalWidth() const { return NaturalWidth(static_cast<int>(_natural.size())); }
    // Forgets what a person has given: the columns are others.
    void ForgetGivenWidths() { _given.clear(); }
    // The width that there is for all columns.
    void SetRoom(int iWidth);

  protected:
    bool viewportEvent(QEvent* iEvent) override;

  private:
    int WantedWidth(int iColumn) const;
    void Resize(int iColumn, int iWidth);
    void FillRoom();
    void NoteResized(int iColumn, int iWidth);

    std::vector<int> _natural;
    std::vector<int> _given; // 0 where a person has given none
    int _room = 0;
    bool _isPlacing = false;
};

} // namespace desktop

#endif
