#include "Sign.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>

#include <algorithm>

namespace app {

namespace {

constexpr double side = 16;       // of the square in which signs are drawn
constexpr double thickness = 1.6; // of the pen, in the same measure

QPainterPath Cross() {
    QPainterPath path(QPointF(3, 3));
    path.lineTo(13, 13);
    path.moveTo(13, 3);
    path.lineTo(3, 13);
    return path;
}

QPainterPath LineWithEnds() {
    QPainterPath path(QPointF(3, 13));
    path.lineTo(13, 3);
    path.addEllipse(QPointF(3, 13), 1, 1);
    path.addEllipse(QPointF(13, 3), 1, 1);
    return path;
}

QPainterPath Parallelogram() {
    QPainterPath path(QPointF(1.5, 12));
    path.lineTo(5, 4);
    path.lineTo(14.5, 4);
    path.lineTo(11, 12);
    path.closeSubpath();
    return path;
}

QPainterPath Tick() {
    QPainterPath path(QPointF(3, 8.5));
    path.lineTo(6.5, 12);
    path.lineTo(13, 4);
    return path;
}

QColor ColourOf(const QPalette& palette, QIcon::Mode mode) {
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::Text);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    default:
        return palette.color(QPalette::Active, QPalette::Text);
    }
}

/// Draws one outline, whatever size and state is asked for.
class OutlineEngine : public QIconEngine {
  public:
    OutlineEngine(const QPainterPath& outline, QPalette palette)
        : _outline(outline), _palette(std::move(palette)) {}

    // QIconEngine
    QIconEngine* clone() const override { return new OutlineEngine(*this); }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        const double scale = std::min(place.width(), place.height()) / side;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(scale, scale);
        painter->setPen(QPen(ColourOf(_palette, mode), thickness));
        painter->drawPath(_outline);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

  private:
    QPainterPath _outline;
    QPalette _palette;
};

QPainterPath OutlineOf(engineering::ElementKind kind) {
    switch (kind) {
    case engineering::ElementKind::Point:
        return Cross();
    case engineering::ElementKind::Line:
        return LineWithEnds();
    case engineering::ElementKind::Plane:
        break;
    }
    return Parallelogram();
}

} // namespace

QIcon SignOf(engineering::ElementKind kind, const QPalette& palette) {
    return QIcon(new OutlineEngine(OutlineOf(kind), palette));
}

QIcon TickSign(const QPalette& palette) {
    return QIcon(new OutlineEngine(Tick(), palette));
}

} // namespace app
