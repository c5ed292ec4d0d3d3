#include "ui/lodge_style.h"

#include "ui/box_painter.h"
#include "ui/dress.h"
#include "ui/look.h"
#include "ui/tick_box.h"
#include "ui/type.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QFocusFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
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
/// Between the border of a field and what the toolkit puts into it.
constexpr int fieldPadding = 8;
constexpr int fieldRadius = 3;
constexpr int buttonRadius = 4;
/// The icon in a field that is in the way or refused, and what stands free between it and the figure.
constexpr int stopIconSize = 14;
constexpr int stopIconGap = 4;
constexpr int statusHeight = 28;
constexpr int headHeight = 28;
constexpr int scrollBarWidth = 12;
constexpr int leastHandle = 32;
/// What stands free around the handle of a scroll bar.
constexpr int handleGap = 2;
/// Around the rows of a list: room for the border that it has with the focus.
constexpr int viewFrame = 2;
/// Around the rows of a list of pages, that border in it.
constexpr int pagesPadding = 4;

struct Paint {
    QColor ground;
    QColor border;
    QColor mark;
};

bool isInTheWay(const QWidget* widget) {
    return widget != nullptr && widget->property("state").toByteArray() == "way";
}

bool wearsStop(const QWidget& field) {
    return isInTheWay(&field) || field.property("state").toByteArray() == "refused";
}

/// Where the icon of a field stands that is in the way or refused: at the end that its text leaves free;
/// nowhere in a field that is full.
QRect stopPlace(const QLineEdit& field, const QRect& room) {
    const int side = zoomed(stopIconSize);
    const int taken = field.fontMetrics().horizontalAdvance(field.displayText()) + zoomed(stopIconGap);
    if (taken + side > room.width()) {
        return {};
    }
    const bool atRight = !field.alignment().testFlag(Qt::AlignRight);
    return {atRight ? room.right() + 1 - side : room.left(), room.center().y() - side / 2 + 1, side, side};
}

Paint tickPaint(const QPalette& palette, const QStyle::State state, const QWidget* widget) {
    const bool open = (state & QStyle::State_Enabled) != 0;
    const bool on = (state & QStyle::State_On) != 0;
    const QPalette::ColorGroup group = open ? QPalette::Active : QPalette::Disabled;
    if (!on) {
        const QPalette::ColorRole border = !open                ? QPalette::Mid
                                           : isInTheWay(widget) ? ink::stop
                                                                : QPalette::Dark;
        return {palette.color(group, QPalette::Base), palette.color(border), QColor()};
    }
    const QColor fill = open ? palette.color(QPalette::Link) : palette.color(QPalette::PlaceholderText);
    return {fill, fill, palette.color(QPalette::Light)};
}

QString nameOf(const char* mark, const Paint& paint) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(QLatin1String(mark))
        .arg(paint.ground.rgba())
        .arg(paint.border.rgba())
        .arg(paint.mark.isValid());
}

/// The room in the border of a mark.
constexpr QRectF markRoom(0.75, 0.75, indicatorSize - 1.5, indicatorSize - 1.5);

void drawTick(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const Paint paint = tickPaint(option.palette, option.state, widget);
    drawKept(painter, option.rect, nameOf("tick", paint), indicatorSize, [&](QPainter& square) {
        square.setPen(QPen(paint.border, 1.5));
        square.setBrush(paint.ground);
        square.drawRoundedRect(markRoom, 3, 3);
        if (paint.mark.isValid()) {
            square.setPen(QPen(paint.mark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            square.drawPolyline(QPolygonF({QPointF(4, 8.4), QPointF(6.9, 11.3), QPointF(12, 5.2)}));
        }
    });
}

void drawChoice(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const Paint paint = tickPaint(option.palette, option.state, widget);
    drawKept(painter, option.rect, nameOf("choice", paint), indicatorSize, [&](QPainter& square) {
        square.setPen(QPen(paint.border, 1.5));
        square.setBrush(option.palette.color(QPalette::Base));
        square.drawEllipse(markRoom);
        if (paint.mark.isValid()) {
            square.setPen(Qt::NoPen);
            square.setBrush(paint.ground);
            square.drawEllipse(markRoom.center(), 4, 4);
        }
    });
}

QByteArray roleOf(const QWidget* widget) {
    return widget == nullptr ? QByteArray() : widget->property("role").toByteArray();
}

/// What a dress takes at the sides of a widget.
QMargins marginsOf(const Dress& dress) {
    const auto side = [](int line, int padding) { return line + zoomed(padding); };
    return {side(dress.lines.left, dress.padding.left), side(dress.lines.top, dress.padding.top),
        side(dress.lines.right, dress.padding.right), side(dress.lines.bottom, dress.padding.bottom)};
}

/// What a field with a border leaves for its text.
QRect insideOfField(const QRect& rect) {
    const int side = 1 + zoomed(fieldPadding);
    return rect.adjusted(side, 1, -side, -1);
}

void drawLines(QPainter& painter, const QRect& rect, const Edges& lines, const QColor& colour) {
    painter.fillRect(QRect(rect.left(), rect.top(), lines.left, rect.height()), colour);
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), lines.top), colour);
    painter.fillRect(QRect(rect.right() - lines.right + 1, rect.top(), lines.right, rect.height()), colour);
    painter.fillRect(
        QRect(rect.left(), rect.bottom() - lines.bottom + 1, rect.width(), lines.bottom), colour);
}

/// What the text of a head stands further in than the toolkit has it.
int headPadding(const QStyle& style) {
    return zoomed(fieldPadding) - style.pixelMetric(QStyle::PM_HeaderMargin);
}

bool isField(const QWidget* widget) { return qobject_cast<const QPlainTextEdit*>(widget) != nullptr; }

bool isView(const QWidget* widget) {
    return qobject_cast<const QAbstractItemView*>(widget) != nullptr
           && qobject_cast<const QHeaderView*>(widget) == nullptr;
}

/// Has a frame ask the style again what it leaves for its inside, which it does by itself only once.
void measureAgain(QFrame& frame) {
    const QSizePolicy policy = frame.sizePolicy(); // which goes with the frame's own
    const bool own = frame.testAttribute(Qt::WA_WState_OwnSizePolicy);
    frame.setFrameStyle(frame.frameStyle());
    frame.setSizePolicy(policy);
    frame.setAttribute(Qt::WA_WState_OwnSizePolicy, own);
}

/// The measures that go with a role.
void polishMeasures(QWidget& widget) {
    const QByteArray role = roleOf(&widget);
    const bool field = widget.inherits("QLineEdit") || widget.inherits("QAbstractSpinBox");
    const bool figure = widget.inherits("QLabel") && widget.property("state").toByteArray() == "computed";
    if (field || figure) {
        widget.setMinimumHeight(zoomed(fieldHeight));
    } else if (widget.inherits("QStatusBar")) {
        widget.setMinimumHeight(zoomed(statusHeight));
    } else if (role == "rule") {
        widget.setFixedHeight(1);
    } else if (role == "upright") {
        widget.setFixedWidth(1);
    }
}

bool isPopup(const QWidget& view) {
    return view.parentWidget() != nullptr
           && qobject_cast<QComboBox*>(view.parentWidget()->parentWidget()) != nullptr;
}

bool isMain(const QStyleOptionButton& option, const QWidget* widget) {
    return (option.features & QStyleOptionButton::DefaultButton) != 0 || roleOf(widget) == "main";
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
    const QColor ink = roleOf(widget) == "danger" ? palette.color(QPalette::BrightText)
                                                  : palette.color(QPalette::ButtonText);
    const QColor border = roleOf(widget) == "danger" ? ink : palette.color(QPalette::Dark);
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

/// Without arrows: the handle has the whole length.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool across = bar.orientation == Qt::Horizontal;
    const int length = across ? bar.rect.width() : bar.rect.height();
    const int range = bar.maximum - bar.minimum;
    const auto share = range == 0
                           ? length
                           : static_cast<int>(qint64(length) * bar.pageStep / (qint64(range) + bar.pageStep));
    const int handle = std::clamp(share, std::min(zoomed(leastHandle), length), length);
    const int start = QStyle::sliderPositionFromValue(
        bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
    const auto stretch = [&](int from, int to) {
        return across ? QRect(bar.rect.left() + from, bar.rect.top(), to - from, bar.rect.height())
                      : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), to - from);
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return stretch(start, start + handle);
    case QStyle::SC_ScrollBarSubPage: return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage: return stretch(start + handle, length);
    default: return {};
    }
}

} // namespace

LodgeStyle::LodgeStyle(const Theme& theme)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), theme_(theme) {}

void LodgeStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    polishMeasures(*widget);
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        label->setForegroundRole(inkOf(*label));
    }
    if (auto* frame = qobject_cast<QFrame*>(widget)) {
        const Dress* dress = dressOf(*widget);
        if (dress != nullptr || qobject_cast<QAbstractScrollArea*>(frame) != nullptr) {
            measureAgain(*frame);
        }
        if (isView(frame)) {
            polishView(*frame);
        } else if (auto* lines = qobject_cast<QPlainTextEdit*>(frame)) {
            lines->viewport()->setAutoFillBackground(false); // the frame fills it
        }
    } else if (qobject_cast<QLineEdit*>(widget) != nullptr) {
        if (widget->parentWidget() != nullptr && liesIn(*widget, "ledger")) {
            QPalette palette; // its closed fields are there to be read
            palette.setColor(QPalette::Disabled, QPalette::Text, colour(&Theme::ink));
            widget->setPalette(palette);
        }
    } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
    } else if (roleOf(widget) == "paper") {
        widget->setBackgroundRole(QPalette::Light);
        widget->setAutoFillBackground(true);
    } else if (qobject_cast<QDialog*>(widget) != nullptr && roleOf(widget) != "ground") {
        QPalette palette;
        palette.setColor(QPalette::Window, colour(&Theme::paper));
        widget->setPalette(palette);
    }
}

void LodgeStyle::polishView(QWidget& view) const {
    const QByteArray role = roleOf(&view);
    QPalette palette; // of these roles alone: the others follow the theme by themselves
    if (role == "problems" || isPopup(view)) {
        palette.setColor(QPalette::Base, colour(&Theme::paper));
    } else if (role == "pages") {
        palette.setColor(QPalette::Base, colour(&Theme::chrome));
    }
    palette.setColor(QPalette::Highlight, colour(&Theme::select));
    palette.setColor(QPalette::HighlightedText, colour(&Theme::ink));
    view.setPalette(palette);
}

void LodgeStyle::drawDress(
    const Dress& dress, const QStyleOption& option, QPainter& painter, const QWidget& widget) const {
    Rgb Theme::*const ground = groundOf(dress, widget);
    if (dress.radius > 0) {
        drawBox(painter, option.rect,
            {.ground = ground == nullptr ? QColor() : colour(ground),
                .line = dress.line == nullptr ? QColor() : colour(dress.line),
                .width = dress.lines.left,
                .radius = zoomed(dress.radius)});
        return;
    }
    if (ground != nullptr) {
        painter.fillRect(option.rect, colour(ground));
    }
    if (dress.line != nullptr) {
        drawLines(painter, option.rect, dress.lines, colour(dress.line));
    }
}

void LodgeStyle::drawField(const QStyleOption& option, QPainter& painter, const QWidget& widget) const {
    const FieldDress dress = fieldDressOf(widget, option.state);
    drawBox(
        painter, option.rect, {colour(dress.ground), colour(dress.line), dress.width, zoomed(fieldRadius)});
    const auto* field = qobject_cast<const QLineEdit*>(&widget);
    if (field == nullptr || !wearsStop(*field)) {
        return;
    }
    const QRect place = stopPlace(*field, insideOfField(option.rect));
    if (!place.isEmpty()) {
        const QColor ink = colour(&Theme::stop);
        iconOf(QStringLiteral("stop"), ink, ink).paint(&painter, place);
    }
}

void LodgeStyle::drawView(const QStyleOption& option, QPainter& painter, const QWidget& widget) const {
    const bool focused = widget.hasFocus();
    const QByteArray role = roleOf(&widget);
    const bool plain = role == "problems" || role == "pages"; // without a border of their own
    const QColor ground = widget.palette().color(QPalette::Base);
    const QColor line = focused              ? colour(&Theme::focus)
                        : plain              ? ground
                        : widget.isEnabled() ? colour(&Theme::edge)
                                             : colour(&Theme::rule);
    drawBox(painter, option.rect, {ground, line, focused ? ringWidth : 1, plain ? 0 : zoomed(fieldRadius)});
}

void LodgeStyle::drawHead(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    const bool onPaper = widget != nullptr && roleOf(widget->parentWidget()) == "problems";
    painter.fillRect(option.rect, colour(onPaper ? &Theme::paper : &Theme::band));
    drawLines(painter, option.rect, {0, 0, 0, 1}, colour(&Theme::rule));
}

void LodgeStyle::drawScrollBar(
    const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
    const bool held = option.activeSubControls == SC_ScrollBarSlider
                      && (option.state & (State_MouseOver | State_Sunken)) != 0;
    const QRect handle = subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget);
    drawBox(painter, handle.adjusted(handleGap, handleGap, -handleGap, -handleGap),
        {.ground = colour(held ? &Theme::edge : &Theme::rule),
            .radius = zoomed(scrollBarWidth) / 2 - handleGap});
}

void LodgeStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_FrameFocusRect:
        // The ring stands around the button, the whole list.
        if (qobject_cast<const QAbstractButton*>(widget) == nullptr && !isView(widget)) break;
        return;
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        // One that stands in another widget has no frame of its own.
        if (frame != nullptr && frame->lineWidth > 0 && widget != nullptr) {
            drawField(*option, *painter, *widget);
        }
        return;
    }
    case PE_PanelStatusBar: painter->fillRect(option->rect, colour(&Theme::chrome)); return;
    case PE_FrameStatusBarItem: return;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, colour(&Theme::paper));
        drawLines(*painter, option->rect, {1, 1, 1, 1}, colour(&Theme::edge));
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        element == PE_IndicatorCheckBox ? drawTick(*option, *painter, widget)
                                        : drawChoice(*option, *painter, widget);
        return;
    default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LodgeStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_ShapedFrame && widget != nullptr) {
        if (isView(widget)) {
            drawView(*option, *painter, *widget);
            return;
        }
        if (isField(widget)) {
            drawField(*option, *painter, *widget);
            return;
        }
        if (const Dress* dress = dressOf(*widget)) {
            drawDress(*dress, *option, *painter, *widget);
            return;
        }
        if (qobject_cast<const QScrollArea*>(widget) != nullptr) {
            return;
        }
    }
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        drawHead(*option, *painter, widget);
        return;
    }
    const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == CE_HeaderLabel && head != nullptr) {
        QStyleOptionHeader soft(*head);
        soft.palette.setColor(QPalette::ButtonText, colour(&Theme::ink2));
        const int padding = headPadding(*this);
        soft.rect.adjust(padding, 0, -padding, 0);
        QProxyStyle::drawControl(element, &soft, painter, widget);
        return;
    }
    if (element == CE_PushButtonBevel && button != nullptr) {
        const Paint paint = buttonPaint(*button, widget);
        drawBox(*painter, option->rect, {paint.ground, paint.border, 1, buttonRadius});
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
    if (control == CC_ScrollBar) {
        drawScrollBar(*option, *painter, widget);
        return;
    }
    if (const Dress* dress = control == CC_ToolButton && widget != nullptr ? dressOf(*widget) : nullptr) {
        QStyleOptionToolButton tool(*static_cast<const QStyleOptionToolButton*>(option));
        drawDress(*dress, *option, *painter, *widget);
        tool.rect = tool.rect.marginsRemoved(marginsOf(*dress));
        if ((tool.state & State_MouseOver) != 0) {
            painter->fillRect(tool.rect, colour(&Theme::band));
        }
        tool.palette.setColor(QPalette::ButtonText, tool.palette.color(inkOf(*widget)));
        drawControl(CE_ToolButtonLabel, &tool, painter, widget);
        return;
    }
    if (control == CC_SpinBox && widget != nullptr) {
        drawField(*option, *painter, *widget);
        return;
    }
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control != CC_ComboBox || combo == nullptr || combo->editable) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QPalette& palette = combo->palette;
    const bool open = (combo->state & State_Enabled) != 0;
    const bool focused = open && (combo->state & State_HasFocus) != 0;
    drawBox(*painter, combo->rect,
        {.ground = palette.color(open ? QPalette::Active : QPalette::Disabled, QPalette::Base),
            .line = palette.color(focused ? QPalette::Highlight
                                  : open  ? QPalette::Dark
                                          : QPalette::Mid),
            .width = focused ? ringWidth : 1,
            .radius = zoomed(fieldRadius)});
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QPointF tip = QRectF(combo->rect).center() + QPointF(combo->rect.width() / 2.0 - zoomed(14), 2);
    painter->setPen(QPen(palette.color(open ? QPalette::LinkVisited : QPalette::Mid), 1.5, Qt::SolidLine,
        Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}));
    painter->restore();
}

QRect LodgeStyle::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_ShapedFrameContents && widget != nullptr) {
        const QRect rect = option->rect;
        if (isView(widget)) {
            const int room = roleOf(widget) == "pages" ? zoomed(pagesPadding) : viewFrame;
            return rect.adjusted(room, room, -room, -room);
        }
        if (isField(widget)) {
            return insideOfField(rect);
        }
        if (const Dress* dress = dressOf(*widget)) {
            return rect.marginsRemoved(marginsOf(*dress));
        }
        if (qobject_cast<const QScrollArea*>(widget) != nullptr) {
            return rect;
        }
    }
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == SE_LineEditContents && frame != nullptr && frame->lineWidth > 0) {
        return insideOfField(option->rect);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect LodgeStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && bar != nullptr) {
        return scrollBarPart(*bar, part);
    }
    if (control == CC_SpinBox && part == SC_SpinBoxEditField) {
        return insideOfField(option->rect);
    }
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
    case PM_ScrollBarExtent: return zoomed(scrollBarWidth);
    case PM_ScrollBarSliderMin: return zoomed(leastHandle);
    case PM_ToolTipLabelFrameWidth: return zoomed(4);
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
    if (type == CT_LineEdit || type == CT_SpinBox) {
        return {
            size.width() + 2 * (zoomed(fieldPadding) + 1), std::max(size.height() + 2, zoomed(fieldHeight))};
    }
    if (type == CT_ToolButton && widget != nullptr && dressOf(*widget) != nullptr) {
        return size.grownBy(marginsOf(*dressOf(*widget)));
    }
    QSize fitting = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ComboBox) {
        fitting.setHeight(zoomed(fieldHeight));
    } else if (type == CT_HeaderSection) {
        fitting = QSize(fitting.width() + 2 * headPadding(*this), zoomed(headHeight) + 1);
    }
    return fitting;
}

int LodgeStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const {
    switch (hint) {
    // The ring lies over its neighbours and must not take their clicks.
    case SH_FocusFrame_AboveWidget: return 1;
    case SH_FocusFrame_Mask:
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_UnderlineShortcut: return 0;
    case SH_Table_GridLineColor: return static_cast<int>(colour(&Theme::rule).rgba());
    default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace lodge
