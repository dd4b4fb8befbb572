#ifndef desktop_PictureView_H
#define desktop_PictureView_H

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class CATViewer;

namespace host {
struct Picture;
}

namespace desktop {

// Paints what a viewer shows: its background, whatever the palette, and its picture in the middle, with its
// proportions kept, as large as it fits where the viewer shows all, else one to one. The pixels are read in
// the host as the picture is painted; what is kept is the picture in the size of the screen.
class PictureView : public QWidget {
  public:
    PictureView(const CATViewer& iViewer, QWidget* iParent);

    // The viewer is gone.
    void Forget() { _viewer = nullptr; }

    // QWidget
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* iEvent) override;

  private:
    // The extent of the picture on the screen, in pixels of the screen.
    QSize FittedSize(const host::Picture& iPicture) const;
    const QImage& Fitted(const host::Picture& iPicture);

    const CATViewer* _viewer; // not owned
    QImage _fitted;
    unsigned int _fittedRevision = 0;
};

} // namespace desktop

#endif
