#include "ui/box_painter.h"

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QString>

#include <algorithm>

namespace lodge {

namespace {

void drawWhole(QPainter& painter, const QRect& rect, const RoundBox& box) {
    const qreal inset = box.line.isValid() ? box.width / 2.0 : 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(box.line.isValid() ? QPen(box.line, box.width) : QPen(Qt::NoPen));
    painter.setBrush(box.ground.isValid() ? QBrush(box.ground) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), box.radius, box.radius);
    painter.restore();
}

/// An empty picture of that many logical pixels.
QPixmap pictureOf(int side, qreal ratio) {
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

/// The smallest box of that look: its four corners and nothing between them.
QPixmap cornersOf(const RoundBox& box, int corner, qreal ratio) {
    const QString key = QStringLiteral("box %1 %2 %3 %4 %5")
                            .arg(box.ground.isValid() ? box.ground.rgba() : 0)
                            .arg(box.line.isValid() ? box.line.rgba() : 0)
                            .arg(box.width)
                            .arg(box.radius)
                            .arg(ratio);
    QPixmap corners;
    if (!QPixmapCache::find(key, &corners)) {
        corners = pictureOf(2 * corner, ratio);
        QPainter painter(&corners);
        drawWhole(painter, QRect(0, 0, 2 * corner, 2 * corner), box);
        painter.end();
        QPixmapCache::insert(key, corners);
    }
    return corners;
}

/// Pictures fit where one of their pixels is one of the device.
bool takesPictures(const QPainter& painter) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    return painter.worldTransform().type() <= QTransform::TxTranslate && ratio == qRound(ratio);
}

} // namespace

void drawBox(QPainter& painter, const QRect& rect, const RoundBox& box) {
    const int corner = std::max(box.radius, box.width) + 1;
    if (!takesPictures(painter) || rect.width() < 2 * corner || rect.height() < 2 * corner) {
        drawWhole(painter, rect, box);
        return;
    }
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap corners = cornersOf(box, corner, ratio);
    const QSizeF part = QSizeF(corner, corner) * ratio;
    for (const bool right : {false, true}) {
        for (const bool below : {false, true}) {
            const QPointF place(right ? rect.right() + 1 - corner : rect.left(),
                below ? rect.bottom() + 1 - corner : rect.top());
            const QPointF from(right ? part.width() : 0, below ? part.height() : 0);
            painter.drawPixmap(QRectF(place, QSizeF(corner, corner)), corners, QRectF(from, part));
        }
    }
    const QRect upright = rect.adjusted(corner, 0, -corner, 0);
    const QRect across = rect.adjusted(0, corner, 0, -corner);
    if (box.ground.isValid()) {
        painter.fillRect(upright, box.ground);
        painter.fillRect(QRect(across.topLeft(), QSize(corner, across.height())), box.ground);
        painter.fillRect(
            QRect(across.right() + 1 - corner, across.top(), corner, across.height()), box.ground);
    }
    if (box.line.isValid()) {
        const int width = box.width;
        painter.fillRect(QRect(upright.left(), upright.top(), upright.width(), width), box.line);
        painter.fillRect(
            QRect(upright.left(), upright.bottom() + 1 - width, upright.width(), width), box.line);
        painter.fillRect(QRect(across.left(), across.top(), width, across.height()), box.line);
        painter.fillRect(QRect(across.right() + 1 - width, across.top(), width, across.height()), box.line);
    }
}

void drawKept(QPainter& painter, const QRect& rect, const QString& name, int design,
    const std::function<void(QPainter&)>& draw) {
    const auto drawOn = [&](QPainter& square, const QPoint& place) {
        square.save();
        square.setRenderHint(QPainter::Antialiasing);
        square.translate(place);
        square.scale(rect.width() / double(design), rect.height() / double(design));
        draw(square);
        square.restore();
    };
    if (!takesPictures(painter)) {
        drawOn(painter, rect.topLeft());
        return;
    }
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QString key = QStringLiteral("%1 %2 %3").arg(name).arg(rect.width()).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = pictureOf(rect.width(), ratio);
        QPainter square(&picture);
        drawOn(square, QPoint());
        square.end();
        QPixmapCache::insert(key, picture);
    }
    painter.drawPixmap(rect.topLeft(), picture);
}

} // namespace lodge
