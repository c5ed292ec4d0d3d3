#include "ui/veil.h"

#include <QEvent>
#include <QPainter>

namespace lodge {

namespace {

constexpr double opacity = 0.09;

} // namespace

Veil::Veil(QWidget& page) : QWidget(&page) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    page.installEventFilter(this);
    lie();
}

void Veil::lie() {
    setGeometry(parentWidget()->rect());
    setVisible(!parentWidget()->isEnabled());
    raise();
}

bool Veil::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Resize) {
        lie();
    }
    return false;
}

void Veil::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setOpacity(opacity);
    painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::WindowText));
}

} // namespace lodge
