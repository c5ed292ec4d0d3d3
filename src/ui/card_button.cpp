#include "ui/card_button.h"

#include "ui/type.h"

#include <QEvent>
#include <QPainter>

namespace lodge {

namespace {

constexpr int padding = 15;
constexpr int titleTop = 6;
constexpr int titleHeight = 36;

QFont titleFont() { return fontOf(typeOf(QStringLiteral("cardTitle"))); }

} // namespace

CardButton::CardButton(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CardButton::setSubject(const QString& subject) {
    subject_ = subject;
    setAccessibleDescription(subject);
    update();
}

QSize CardButton::sizeHint() const { return {240, std::max(112, minimumHeight())}; }

bool CardButton::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QAbstractButton::event(event);
}

void CardButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool open = isEnabled();
    const QPalette::ColorRole ground = !open          ? QPalette::Window
                                       : isDown()     ? QPalette::Midlight
                                       : underMouse() ? QPalette::AlternateBase
                                                      : QPalette::Light;
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(ground));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);

    const QRect room = rect().adjusted(padding, titleTop, -padding, -titleTop);
    painter.setFont(titleFont());
    painter.setPen(palette().color(open ? QPalette::Link : QPalette::PlaceholderText));
    // The caption of a card is set in columns with blanks; on a card it is one line.
    painter.drawText(room.adjusted(0, 0, 0, titleHeight - room.height()), Qt::AlignLeft | Qt::AlignVCenter,
        text().simplified());
    painter.setFont(font());
    painter.setPen(palette().color(open ? QPalette::WindowText : QPalette::PlaceholderText));
    painter.drawText(
        room.adjusted(0, titleHeight, 0, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, subject_);
}

} // namespace lodge
