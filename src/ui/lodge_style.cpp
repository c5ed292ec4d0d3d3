#include "ui/lodge_style.h"

#include "ui/tick_box.h"
#include "ui/type.h"

#include <QAbstractItemView>
#include <QFocusFrame>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>

#include <algorithm>

namespace lodge {

namespace {

constexpr int indicatorSize = 16;
constexpr int buttonHeight = 30;
constexpr int fieldHeight = 28;
constexpr int buttonPadding = 12;
constexpr int iconGap = 7;
constexpr int comboIndent = 6; // the entry of a closed list begins where the text of a field does
/// The ring stands this far off what it is around.
constexpr int ringGap = 2;
constexpr int ringWidth = 2;

struct Paint {
    QColor ground;
    QColor border;
    QColor mark;
};

Paint tickPaint(const QPalette& palette, const QStyle::State state) {
    const bool open = (state & QStyle::State_Enabled) != 0;
    const bool on = (state & QStyle::State_On) != 0;
    const QPalette::ColorGroup group = open ? QPalette::Active : QPalette::Disabled;
    if (!on) {
        return {palette.color(group, QPalette::Base), palette.color(open ? QPalette::Dark : QPalette::Mid),
            QColor()};
    }
    const QColor fill = open ? palette.color(QPalette::Link) : palette.color(QPalette::PlaceholderText);
    return {fill, fill, palette.color(QPalette::Light)};
}

/// Has the painter draw on the square of the design whatever the size of the mark; gives the room in its
/// border.
QRectF beginMark(const QStyleOption& option, QPainter& painter) {
    painter.translate(option.rect.topLeft());
    painter.scale(option.rect.width() / double(indicatorSize), option.rect.height() / double(indicatorSize));
    return QRectF(0, 0, indicatorSize, indicatorSize).adjusted(0.75, 0.75, -0.75, -0.75);
}

void drawTick(const QStyleOption& option, QPainter& painter) {
    const Paint paint = tickPaint(option.palette, option.state);
    const QRectF box = beginMark(option, painter);
    painter.setPen(QPen(paint.border, 1.5));
    painter.setBrush(paint.ground);
    painter.drawRoundedRect(box, 3, 3);
    if (paint.mark.isValid()) {
        painter.setPen(QPen(paint.mark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({QPointF(4, 8.4), QPointF(6.9, 11.3), QPointF(12, 5.2)}));
    }
}

void drawChoice(const QStyleOption& option, QPainter& painter) {
    Paint paint = tickPaint(option.palette, option.state);
    const QRectF ring = beginMark(option, painter);
    painter.setPen(QPen(paint.border, 1.5));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawEllipse(ring);
    if (paint.mark.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(paint.ground);
        painter.drawEllipse(ring.center(), 4, 4);
    }
}

QString roleOf(const QWidget* widget) {
    return widget == nullptr ? QString() : widget->property("role").toString();
}

bool isMain(const QStyleOptionButton& option, const QWidget* widget) {
    return (option.features & QStyleOptionButton::DefaultButton) != 0
           || roleOf(widget) == QLatin1String("main");
}

Paint buttonPaint(const QStyleOptionButton& option, const QWidget* widget) {
    const QPalette& palette = option.palette;
    if ((option.state & QStyle::State_Enabled) == 0) {
        return {palette.color(QPalette::Disabled, QPalette::Base), palette.color(QPalette::Mid),
            palette.color(QPalette::PlaceholderText)};
    }
    const bool sunken = (option.state & QStyle::State_Sunken) != 0;
    const bool hovered = (option.state & QStyle::State_MouseOver) != 0;
    if (isMain(option, widget)) {
        const QColor form = palette.color(QPalette::Link);
        const QColor fill = sunken ? form.darker(118) : hovered ? form.lighter(112) : form;
        return {fill, fill, palette.color(QPalette::Light)};
    }
    const QColor ink = roleOf(widget) == QLatin1String("danger") ? palette.color(QPalette::BrightText)
                                                                 : palette.color(QPalette::ButtonText);
    const QColor border = roleOf(widget) == QLatin1String("danger") ? ink : palette.color(QPalette::Dark);
    const QColor fill = palette.color(sunken    ? QPalette::Midlight
                                      : hovered ? QPalette::AlternateBase
                                                : QPalette::Light);
    return {fill, border, ink};
}

/// Icon and caption side by side in the middle of the button.
void drawButtonLabel(const QStyleOptionButton& button, const QColor& ink, QPainter& painter) {
    const bool hasIcon = !button.icon.isNull();
    const int icon = hasIcon ? button.iconSize.width() : 0;
    const int gap = hasIcon && !button.text.isEmpty() ? zoomed(iconGap) : 0;
    const int text = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    int x = button.rect.left() + std::max(0, (button.rect.width() - icon - gap - text) / 2);
    if (hasIcon) {
        const QRect place(
            QPoint(x, button.rect.center().y() - button.iconSize.height() / 2), button.iconSize);
        const bool open = (button.state & QStyle::State_Enabled) != 0;
        button.icon.paint(&painter, place, Qt::AlignCenter, open ? QIcon::Normal : QIcon::Disabled);
        x += icon + gap;
    }
    painter.setPen(ink);
    painter.drawText(QRect(x, button.rect.top(), text + 1, button.rect.height()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, button.text);
}

} // namespace

LodgeStyle::LodgeStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LodgeStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const bool ringed = qobject_cast<const QAbstractButton*>(widget) != nullptr
                        || qobject_cast<const QAbstractItemView*>(widget) != nullptr;
    if (element == PE_FrameFocusRect && ringed) {
        return; // the ring stands around the button, the whole list
    }
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (element == PE_IndicatorCheckBox) {
        drawTick(*option, *painter);
    } else {
        drawChoice(*option, *painter);
    }
    painter->restore();
}

void LodgeStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonBevel && button != nullptr) {
        const Paint paint = buttonPaint(*button, widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(paint.border, 1));
        painter->setBrush(paint.ground);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter->restore();
        return;
    }
    if (element == CE_PushButtonLabel && button != nullptr) {
        drawButtonLabel(*button, buttonPaint(*button, widget).mark, *painter);
        return;
    }
    if (element == CE_FocusFrame) {
        const auto* frame = qobject_cast<const QFocusFrame*>(widget);
        const QWidget* ringed = frame == nullptr ? nullptr : frame->widget();
        QRectF around = QRectF(option->rect);
        qreal radius = 6;
        if (ringed != nullptr && isTick(*ringed)) {
            const QRect mark = indicatorRect(*ringed);
            const int reach = ringGap + ringWidth;
            around = QRectF(mark.translated(reach, reach)).adjusted(-reach, -reach, reach, reach);
            radius = isChoice(*ringed) ? around.height() / 2 : 5;
        }
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(option->palette.color(QPalette::Highlight), ringWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(around.adjusted(1, 1, -1, -1), radius, radius);
        painter->restore();
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LodgeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
    QPainter* painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control != CC_ComboBox || combo == nullptr || combo->editable) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QPalette& palette = combo->palette;
    const bool open = (combo->state & State_Enabled) != 0;
    const bool focused = open && (combo->state & State_HasFocus) != 0;
    const qreal border = focused ? ringWidth : 1;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(palette.color(focused ? QPalette::Highlight
                                       : open  ? QPalette::Dark
                                               : QPalette::Mid),
        border));
    painter->setBrush(palette.color(open ? QPalette::Active : QPalette::Disabled, QPalette::Base));
    const qreal inset = border / 2;
    painter->drawRoundedRect(QRectF(combo->rect).adjusted(inset, inset, -inset, -inset), 3, 3);
    const QPointF tip = QRectF(combo->rect).center() + QPointF(combo->rect.width() / 2.0 - zoomed(14), 2);
    painter->setPen(QPen(palette.color(open ? QPalette::LinkVisited : QPalette::Mid), 1.5, Qt::SolidLine,
        Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}));
    painter->restore();
}

QRect LodgeStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const {
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const bool entry = control == CC_ComboBox && part == SC_ComboBoxEditField;
    return entry ? rect.adjusted(zoomed(comboIndent), 0, 0, 0) : rect;
}

int LodgeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return zoomed(indicatorSize);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing: return zoomed(8);
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin: return ringGap + ringWidth;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    case PM_SmallIconSize:
    case PM_ButtonIconSize: return zoomed(20);
    case PM_ScrollBarExtent: return 12;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize LodgeStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const {
    if (type == CT_PushButton) {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool hasIcon = button != nullptr && !button->icon.isNull();
        return {size.width() + zoomed(2 * buttonPadding + (hasIcon ? iconGap : 0)),
            std::max(size.height(), zoomed(buttonHeight))};
    }
    QSize fitting = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ComboBox) {
        fitting.setHeight(zoomed(fieldHeight));
    }
    return fitting;
}

int LodgeStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const {
    switch (hint) {
    // The ring lies over its neighbours and must not take their clicks.
    case SH_FocusFrame_AboveWidget: return 1;
    case SH_FocusFrame_Mask: return 0;
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
    case SH_UnderlineShortcut: return 0;
    default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace lodge
