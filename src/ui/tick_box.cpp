#include "ui/tick_box.h"

#include "ui/type.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace lodge {

namespace {

/// A row of one line, the space above and below the lines of a longer caption, and the least width in which
/// a caption still reads well.
constexpr int rowHeight = 26;
constexpr int margin = 1;
constexpr int leastCaptionWidth = 180;
constexpr int captionFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;

int indicatorSide(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget);
}

int captionLeft(const QWidget& widget) {
    return indicatorSide(widget)
           + widget.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &widget);
}

QSize wholeSize(const QAbstractButton& button, const CaptionSizes& sizes) {
    return {captionLeft(button) + sizes.width(button), zoomed(rowHeight)};
}

QSize leastSize(const QAbstractButton& button, const CaptionSizes& sizes) {
    return {
        captionLeft(button) + std::min(sizes.width(button), zoomed(leastCaptionWidth)), zoomed(rowHeight)};
}

void letWrap(QWidget& widget) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    widget.setSizePolicy(policy);
}

void paint(QAbstractButton& button, const QStyleOptionButton& option, QStyle::PrimitiveElement indicator) {
    QPainter painter(&button);
    QStyleOptionButton mark = option;
    mark.rect = indicatorRect(button);
    button.style()->drawPrimitive(indicator, &mark, &painter, &button);
    const QRect room = button.rect().adjusted(captionLeft(button), margin, 0, 0);
    const QPalette::ColorGroup group = button.isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(button.palette().color(group, QPalette::WindowText));
    painter.drawText(room, captionFlags, button.text());
}

} // namespace

int CaptionSizes::width(const QAbstractButton& button) const {
    if (text_ != button.text() || font_ != button.font() || width_ < 0) {
        text_ = button.text();
        font_ = button.font();
        heights_.clear();
        width_ = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + 1;
    }
    return width_;
}

int CaptionSizes::heightIn(int width, const QAbstractButton& button) const {
    // In any width that it fits into, it is as high as in its own.
    const int room = std::clamp(width - captionLeft(button), 1, std::max(1, this->width(button)));
    const auto known = heights_.constFind(room);
    if (known != heights_.constEnd()) {
        return *known;
    }
    const QRect space(0, 0, room, 10000);
    const int text = button.fontMetrics().boundingRect(space, captionFlags, button.text()).height();
    return *heights_.insert(room, std::max(zoomed(rowHeight), text + 2 * margin));
}

bool isChoice(const QWidget& widget) { return qobject_cast<const QRadioButton*>(&widget) != nullptr; }

bool isTick(const QWidget& widget) {
    return qobject_cast<const QCheckBox*>(&widget) != nullptr || isChoice(widget);
}

QRect indicatorRect(const QWidget& widget) {
    const int side = indicatorSide(widget);
    return {0, (zoomed(rowHeight) - side) / 2, side, side};
}

TickBox::TickBox(QWidget* parent) : QCheckBox(parent) { letWrap(*this); }
QSize TickBox::sizeHint() const { return wholeSize(*this, sizes_); }
QSize TickBox::minimumSizeHint() const { return leastSize(*this, sizes_); }
int TickBox::heightForWidth(int width) const { return sizes_.heightIn(width, *this); }
bool TickBox::hitButton(const QPoint& place) const { return rect().contains(place); }

void TickBox::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    paint(*this, option, QStyle::PE_IndicatorCheckBox);
}

ChoiceBox::ChoiceBox(QWidget* parent) : QRadioButton(parent) {
    letWrap(*this);
    setAutoExclusive(false); // the rules decide which choices exclude one another
}
QSize ChoiceBox::sizeHint() const { return wholeSize(*this, sizes_); }
QSize ChoiceBox::minimumSizeHint() const { return leastSize(*this, sizes_); }
int ChoiceBox::heightForWidth(int width) const { return sizes_.heightIn(width, *this); }
bool ChoiceBox::hitButton(const QPoint& place) const { return rect().contains(place); }

void ChoiceBox::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    paint(*this, option, QStyle::PE_IndicatorRadioButton);
}

} // namespace lodge
