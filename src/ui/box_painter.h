// Boxes with rounded corners, and other small drawings that come up again and again on a page: drawn once,
// kept as pictures.
#pragma once

#include <QColor>

#include <functional>

class QPainter;
class QRect;
class QSize;
class QString;

namespace lodge {

/// A colour that is not valid draws nothing.
struct RoundBox {
    QColor ground = {};
    QColor line = {};
    int width = 0; // of the line
    int radius = 0;
};

void drawBox(QPainter& painter, const QRect& rect, const RoundBox& box);

/// Draws what `draw` draws on a square of that many pixels, whatever the size of `rect`, which is a square,
/// too. Drawings of one name must be alike.
void drawKept(QPainter& painter, const QRect& rect, const QString& name, int design,
    const std::function<void(QPainter&)>& draw);

} // namespace lodge
