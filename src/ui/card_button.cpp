#include "ui/card_button.h"

#include "ui/box_painter.h"
#include "ui/item_marks.h"
#include "ui/look.h"
#include "ui/theme.h"
#include "ui/type.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace lodge {

namespace {

constexpr int padding = 15;
constexpr int titleTop = 4;
constexpr int titleHeight = 34;
constexpr int subjectLine = 23;
/// The strip at the foot of the card, below a hairline: state and figure.
constexpr int footHeight = 30;
constexpr int markSize = 16;
constexpr int iconGap = 6;
constexpr int figureGap = 8;
constexpr int stopEdge = 3;

/// In less, a long subject takes a third line and state and figure meet.
constexpr int leastWidth = 200;
constexpr int leastHeight = titleTop + titleHeight + 2 * subjectLine + footHeight;
constexpr int usualHeight = leastHeight + 12;

QFont fontNamed(const char* type) { return fontOf(typeOf(QLatin1String(type)), zoomNow()); }

/// The font of the titles, smaller where a long title would be cut in it.
QFont titleFont(const QString& title, int room) {
    QFont font = fontNamed("cardTitle");
    const int needed = QFontMetrics(font).horizontalAdvance(title);
    if (needed > room) {
        font.setPixelSize(std::max(1, font.pixelSize() * room / needed));
    }
    return font;
}

} // namespace

CardButton::CardButton(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CardButton::setSubject(const QString& subject) {
    subject_ = subject;
    describe();
}

void CardButton::showState(const ItemState& state) {
    state_ = state;
    stateText_ = stateWords(state);
    describe();
}

QString CardButton::figureText() const {
    return state_.figure.empty() ? QString()
                                 : QString::fromStdString(state_.figureCaption + ' ' + state_.figure);
}

void CardButton::describe() {
    QStringList said = {subject_, stateText_, figureText()};
    said.removeAll(QString());
    setAccessibleDescription(said.join(QStringLiteral(", ")));
    update();
}

QSize CardButton::sizeHint() const { return zoomed(QSize(240, usualHeight)); }

QSize CardButton::minimumSizeHint() const { return zoomed(QSize(leastWidth, leastHeight)); }

bool CardButton::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QAbstractButton::event(event);
}

QColor CardButton::stateInk() const {
    switch (state_.progress) {
    case ItemProgress::Clear: return palette().color(ink::ok);
    case ItemProgress::Named: return palette().color(ink::warn);
    case ItemProgress::InTheWay: return palette().color(QPalette::BrightText);
    default: return palette().color(QPalette::PlaceholderText);
    }
}

void CardButton::paintGround(QPainter& painter) const {
    const QPalette::ColorRole ground = !isEnabled()   ? QPalette::Window
                                       : isDown()     ? QPalette::Midlight
                                       : underMouse() ? QPalette::AlternateBase
                                                      : QPalette::Light;
    drawBox(painter, rect(), {palette().color(ground), palette().color(QPalette::Mid), 1, 3});
    if (state_.progress == ItemProgress::InTheWay) {
        painter.fillRect(QRect(0, 1, stopEdge, height() - 2), palette().color(QPalette::BrightText));
    }
}

void CardButton::paintState(QPainter& painter, const QRect& room) const {
    const QColor ink = stateInk();
    const int size = zoomed(markSize);
    iconOf(stateDrawing(state_.progress), ink, ink)
        .paint(&painter, QRect(room.left(), room.center().y() - size / 2 + 1, size, size));
    painter.setFont(fontNamed("label"));
    painter.setPen(ink);
    painter.drawText(
        room.adjusted(size + zoomed(iconGap), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, stateText_);
}

void CardButton::paintFigure(QPainter& painter, const QRect& room) const {
    const QString figure = QString::fromStdString(state_.figure);
    QFont bold = fontNamed("field");
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, figure);
    const int taken = QFontMetrics(bold).horizontalAdvance(figure) + zoomed(figureGap);
    const int stateWidth = zoomed(markSize + iconGap + figureGap)
                           + QFontMetrics(fontNamed("label")).horizontalAdvance(stateText_);
    const QString caption = QString::fromStdString(state_.figureCaption);
    if (QFontMetrics(fontNamed("label")).horizontalAdvance(caption) > room.width() - taken - stateWidth) {
        return; // a long figure on a narrow card speaks for itself
    }
    painter.setFont(fontNamed("label"));
    painter.setPen(palette().color(QPalette::LinkVisited));
    painter.drawText(room.adjusted(0, 0, -taken, 0), Qt::AlignRight | Qt::AlignVCenter, caption);
}

void CardButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);

    const bool open = isEnabled();
    const QRect room = rect().adjusted(zoomed(padding), zoomed(titleTop), -zoomed(padding), 0);
    const QString title = text().simplified(); // set in columns with blanks; on a card it is one line
    painter.setFont(titleFont(title, room.width()));
    painter.setPen(palette().color(open ? QPalette::Link : QPalette::PlaceholderText));
    painter.drawText(QRect(room.topLeft(), QSize(room.width(), zoomed(titleHeight))),
        Qt::AlignLeft | Qt::AlignVCenter, title);
    painter.setFont(font());
    painter.setPen(palette().color(open ? QPalette::WindowText : QPalette::PlaceholderText));
    painter.drawText(room.adjusted(0, zoomed(titleHeight), 0, 0),
        Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, subject_);
    if (stateText_.isEmpty()) {
        return;
    }
    const QRect foot(room.left(), height() - zoomed(footHeight), room.width(), zoomed(footHeight) - 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(foot.topLeft(), foot.topRight());
    painter.setRenderHint(QPainter::Antialiasing);
    paintState(painter, foot);
    if (!state_.figure.empty()) {
        paintFigure(painter, foot);
    }
}

} // namespace lodge
