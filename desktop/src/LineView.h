#ifndef desktop_LineView_H
#define desktop_LineView_H

#include <QtWidgets/QListView>

#include <functional>

namespace desktop {

// A list in which one line is chosen: by a click, by the arrow keys, by typing its beginning, and once more
// by Enter, which stays in the list.
class LineView : public QListView {
  public:
    // iOnChosen gets the line, or -1 after a click beside the lines.
    LineView(QWidget* iParent, std::function<void(int)> iOnChosen);

    // The extent that shows iLines lines and texts of iWidth pixels.
    void SetVisibleText(int iLines, int iWidth);

    // QListView
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void mousePressEvent(QMouseEvent* iEvent) override;
    void mouseReleaseEvent(QMouseEvent* iEvent) override;
    void keyPressEvent(QKeyEvent* iEvent) override;
    void resizeEvent(QResizeEvent* iEvent) override;

  private:
    QSize SizeOf(int iLines, int iWidth) const;

    std::function<void(int)> _onChosen;
    int _visibleLines = 1;
    int _visibleWidth = 0;
    bool _isPressedOnLine = false;
};

} // namespace desktop

#endif
