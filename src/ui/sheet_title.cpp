#include "ui/sheet_title.h"

#include "ui/dress.h"
#include "ui/look.h"
#include "ui/type.h"

#include <QPainter>

namespace lodge {

namespace {

constexpr int titleHeight = 50;
constexpr int gap = 12;
/// Marks stand higher above the line than they hang below it.
constexpr int baseline = 32;
/// The icon of a tag, in the padding in front of its words.
constexpr int iconSize = 14;
constexpr int iconLeft = 8;

QFont nameFont() { return fontOf(typeOf(QStringLiteral("sheetHead")), zoomNow()); }
QFont remarkFont() { return fontOf(typeOf(QStringLiteral("sheetName")), zoomNow()); }

} // namespace

SheetTitle::SheetTitle(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void SheetTitle::setText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QString SheetTitle::name() const { return text_.section(QStringLiteral(" ("), 0, 0); }

QString SheetTitle::remark() const {
    return remark_.isEmpty() ? text_.mid(name().size()).trimmed() : remark_;
}

void SheetTitle::setRemark(const QString& remark) {
    remark_ = remark;
    updateGeometry();
    update();
}

QSize SheetTitle::sizeHint() const {
    const int first = QFontMetrics(nameFont()).horizontalAdvance(name());
    const int second = QFontMetrics(remarkFont()).horizontalAdvance(remark());
    return {first + (remark().isEmpty() ? 0 : zoomed(gap) + second) + 2, zoomed(titleHeight)};
}

void SheetTitle::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(nameFont());
    painter.setPen(palette().color(QPalette::Active, ink::form));
    painter.drawText(0, zoomed(baseline), name());
    const int after = painter.fontMetrics().horizontalAdvance(name()) + zoomed(gap);
    painter.setFont(remarkFont());
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    painter.drawText(after, zoomed(baseline), remark());
}

SheetTag::SheetTag(QWidget* parent) : TextLabel(parent) {
    setTextFormat(Qt::PlainText);
    setProperty("role", QByteArray("differs"));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    hide();
}

void SheetTag::setProblems(std::size_t count) {
    setText(count == 0 ? QString() : QStringLiteral("ติดขัด %1").arg(count));
    setVisible(count != 0);
}

void SheetTag::paintEvent(QPaintEvent* event) {
    TextLabel::paintEvent(event);
    const QColor ink = palette().color(inkOf(*this));
    const int side = zoomed(iconSize);
    QPainter painter(this);
    iconOf(QStringLiteral("stop"), ink, ink)
        .paint(&painter, QRect(zoomed(iconLeft), (height() - side) / 2, side, side));
}

} // namespace lodge
