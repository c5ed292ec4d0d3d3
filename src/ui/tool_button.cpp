#include "ui/tool_button.h"

#include "ui/box_painter.h"
#include "ui/type.h"

#include <QEvent>
#include <QPainter>

namespace lodge {

namespace {

constexpr int toolHeight = 34;
constexpr int padding = 9;
constexpr int leastPadding = 4;
constexpr int iconGap = 6;
constexpr int hintGap = 8;

QFont hintFont() { return fontOf(typeOf(QStringLiteral("tag")), zoomNow()); }

} // namespace

ToolButton::ToolButton(QWidget* parent) : QAbstractButton(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void ToolButton::setKeyHint(const QString& hint) {
    keyHint_ = hint;
    updateGeometry();
    update();
}

void ToolButton::setShape(Shape shape) {
    if (shape_ != shape) {
        shape_ = shape;
        updateGeometry();
        update();
    }
}

int ToolButton::captionWidth() const {
    return shape_ == Shape::Icon ? 0 : fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

int ToolButton::hintWidth() const {
    const bool hinted = shape_ == Shape::Whole && !keyHint_.isEmpty();
    return hinted ? QFontMetrics(hintFont()).horizontalAdvance(keyHint_) + zoomed(hintGap) : 0;
}

int ToolButton::iconWidth() const {
    return icon().isNull() ? 0 : iconSize().width() + (shape_ == Shape::Icon ? 0 : zoomed(iconGap));
}

QSize ToolButton::sizeHint() const {
    const int around = shape_ == Shape::Captioned ? leastPadding : padding;
    return {zoomed(2 * around) + iconWidth() + captionWidth() + hintWidth(), zoomed(toolHeight)};
}

bool ToolButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        setToolTip(keyHint_.isEmpty() ? text() : QStringLiteral("%1  %2").arg(text(), keyHint_));
    }
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QAbstractButton::event(event);
}

void ToolButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool open = isEnabled();
    if (open && (isDown() || isChecked() || underMouse())) {
        drawBox(painter, rect(),
            {.ground =
                    palette().color(isDown() || isChecked() ? QPalette::Midlight : QPalette::AlternateBase),
                .line = isChecked() ? palette().color(QPalette::Link) : QColor(),
                .width = 1,
                .radius = 4});
    }
    const int content = iconWidth() + captionWidth() + hintWidth();
    int x = std::max(zoomed(leastPadding), (width() - content) / 2);
    if (!icon().isNull()) {
        const QRect place(QPoint(x, (height() - iconSize().height()) / 2), iconSize());
        icon().paint(&painter, place, Qt::AlignCenter, open ? QIcon::Normal : QIcon::Disabled);
        x += iconWidth();
    }
    if (shape_ == Shape::Icon) {
        return;
    }
    painter.setPen(palette().color(open ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(QRect(x, 0, captionWidth() + 1, height()),
        Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
    if (hintWidth() > 0) {
        painter.setFont(hintFont());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(QRect(x + captionWidth() + zoomed(hintGap), 0, hintWidth(), height()),
            Qt::AlignVCenter | Qt::AlignLeft, keyHint_);
    }
}

} // namespace lodge
