#include "ui/link_label.h"

#include <QMouseEvent>

namespace lodge {

LinkLabel::LinkLabel(QWidget* parent) : TextLabel(parent) {
    setTextFormat(Qt::PlainText);
    setProperty("role", QByteArray("link"));
    setProperty("type", QByteArray("label"));
    setCursor(Qt::PointingHandCursor);
}

LinkLabel::LinkLabel(const QString& text, const QString& target) : LinkLabel() {
    setText(text);
    setTarget(target);
}

bool LinkLabel::event(QEvent* event) {
    // Whatever font it is given, a link is told from the texts around it by more than its colour.
    if (event->type() == QEvent::FontChange && !font().underline()) {
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
    }
    return TextLabel::event(event);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) { event->setAccepted(event->button() == Qt::LeftButton); }

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit followed();
    }
}

} // namespace lodge
