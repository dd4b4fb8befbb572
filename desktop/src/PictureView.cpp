#include "PictureView.h"

#include "CATViewer.h"
#include "host/ViewerInspector.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr int leastShare = 3;                      // the view shrinks to a third of its natural size
constexpr qint64 manyPixels = qint64(4096) * 4096; // more are thinned out before they are smoothed

// The pixels in place, without a copy.
QImage InPlace(const host::Picture& iPicture) {
    const auto format =
        iPicture.format == CATPixelImage::RGB ? QImage::Format_RGB888 : QImage::Format_RGBA8888;
    const qsizetype row = qsizetype(iPicture.width) * static_cast<int>(iPicture.format);
    return QImage(iPicture.pixels, iPicture.width, iPicture.height, row, format);
}

QImage Scaled(const QImage& iImage, const QSize& iSize) {
    if (iImage.size() == iSize)
        return iImage.copy();
    const QSize thinned = (4 * iSize).boundedTo(iImage.size());
    const bool isLarge = qint64(iImage.width()) * iImage.height() > manyPixels;
    const QImage& source = isLarge ? iImage.scaled(thinned) : iImage;
    return source.scaled(iSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QColor ToQt(const host::SceneColor& iColor) {
    return QColor::fromRgbF(iColor.red, iColor.green, iColor.blue);
}

} // namespace

PictureView::PictureView(const CATViewer& iViewer, QWidget* iParent) : QWidget(iParent), _viewer(&iViewer) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PictureView::sizeHint() const {
    if (_viewer == nullptr)
        return QSize();
    return QSize(host::ViewerInspector::NaturalWidth(*_viewer),
                 host::ViewerInspector::NaturalHeight(*_viewer));
}

QSize PictureView::minimumSizeHint() const {
    return sizeHint() / leastShare;
}

void PictureView::paintEvent(QPaintEvent*) {
    if (_viewer == nullptr)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), ToQt(host::ViewerInspector::Background(*_viewer)));
    const host::Picture picture = host::ViewerInspector::PictureOf(*_viewer);
    if (!picture)
        return;
    const QImage& fitted = Fitted(picture);
    const QSizeF screen = QSizeF(size()) * devicePixelRatioF();
    const QPointF corner(std::floor((screen.width() - fitted.width()) / 2),
                         std::floor((screen.height() - fitted.height()) / 2));
    painter.drawImage(corner / devicePixelRatioF(), fitted);
}

// At least one pixel each way, so that even a very long picture is seen.
QSize PictureView::FittedSize(const host::Picture& iPicture) const {
    const QSizeF screen = QSizeF(size()) * devicePixelRatioF();
    const double fits = std::min(screen.width() / iPicture.width, screen.height() / iPicture.height);
    const double scale = host::ViewerInspector::ShowsAll(*_viewer) ? fits : devicePixelRatioF();
    return QSize(static_cast<int>(std::lround(iPicture.width * scale)),
                 static_cast<int>(std::lround(iPicture.height * scale)))
        .expandedTo(QSize(1, 1));
}

const QImage& PictureView::Fitted(const host::Picture& iPicture) {
    const unsigned int revision = host::ViewerInspector::Revision(*_viewer);
    const QSize wanted = FittedSize(iPicture);
    if (_fitted.size() != wanted || _fittedRevision != revision) {
        _fitted = Scaled(InPlace(iPicture), wanted);
        _fitted.setDevicePixelRatio(devicePixelRatioF());
        _fittedRevision = revision;
    }
    return _fitted;
}

} // namespace desktop
