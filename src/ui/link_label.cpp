#include "ui/link_label.h"

#include <QMouseEvent>

namespace lodge {

LinkLabel::LinkLabel(const QString& text, const QString& target) : QLabel(text), target_(target) {
    setTextFormat(Qt::PlainText);
    setProperty("role", QByteArray("link"));
    setCursor(Qt::PointingHandCursor);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) { event->setAccepted(event->button() == Qt::LeftButton); }

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit followed();
    }
}

} // namespace lodge
