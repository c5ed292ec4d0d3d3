#include "ui/tie_tag.h"

#include "pages/fields/amounts.h"
#include "ui/dress.h"
#include "ui/follow_frame.h"
#include "ui/look.h"
#include "ui/type.h"
#include "values/money.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

#include <cmath>

namespace lodge {

namespace {

constexpr int iconSize = 14;
constexpr int iconLeft = 8;
/// Of the icon alone, with what stands free around it.
constexpr int markWidth = 26;

std::string figureOf(const QWidget& side) {
    const auto* label = qobject_cast<const QLabel*>(&side);
    const auto* box = qobject_cast<const QLineEdit*>(&side);
    return (label != nullptr ? label->text() : box != nullptr ? box->text() : QString()).toStdString();
}

} // namespace

TieTag::TieTag(QWidget* parent) : TextLabel(parent) {
    setTextFormat(Qt::PlainText);
    setProperty("type", QByteArray("tag"));
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

QSize TieTag::sizeHint() const {
    // An empty tag keeps its height, so that nothing moves when it speaks.
    const int width = markOnly_ ? zoomed(markWidth) : TextLabel::sizeHint().width();
    return {text().isEmpty() ? 0 : width, TextLabel::sizeHint().height()};
}

void TieTag::setMarkOnly(bool markOnly) {
    markOnly_ = markOnly;
    updateGeometry();
    update();
}

void TieTag::compare(QWidget& here, QWidget& there) {
    pairs_.append({&here, &there, {}, {}});
    watch(here);
    watch(there);
    say();
}

void TieTag::compare(QWidget& here, const QString& stateValue) {
    pairs_.append({&here, nullptr, stateValue, {}});
    watch(here);
}

void TieTag::readOthers(const std::function<std::optional<std::string>(const QString&)>& valueOf) {
    for (Pair& pair : pairs_) {
        if (!pair.name.isEmpty()) {
            pair.other = valueOf(pair.name);
        }
    }
    say();
}

void TieTag::watch(QWidget& side) {
    if (const auto* box = qobject_cast<QLineEdit*>(&side)) {
        connect(box, &QLineEdit::textChanged, this, &TieTag::say);
    } else {
        // A label tells nobody that it has a new text, but it asks what it lies in for its place again.
        side.parentWidget()->installEventFilter(this);
    }
}

bool TieTag::event(QEvent* event) {
    // The page is complete when it is polished, which is before it is first shown.
    if (event->type() == QEvent::Polish && !sides_.isEmpty() && pairs_.isEmpty()) {
        QWidget* here = findAround(*this, sides_.section(QLatin1Char(' '), 0, 0));
        QWidget* there = findAround(*this, sides_.section(QLatin1Char(' '), 1, 1));
        if (here == nullptr || there == nullptr) {
            qFatal(
                "%s compares %s, which the page does not have", qPrintable(objectName()), qPrintable(sides_));
        }
        compare(*here, *there);
    }
    return TextLabel::event(event);
}

bool TieTag::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        say();
    }
    return false;
}

void TieTag::say() {
    bool speaks = false;
    for (const Pair& pair : pairs_) {
        if (pair.here == nullptr || (pair.there == nullptr && !pair.other)) {
            continue;
        }
        const std::string here = figureOf(*pair.here);
        const std::string there = pair.there == nullptr ? *pair.other : figureOf(*pair.there);
        const double difference = readFigure(here) - readFigure(there);
        if (!sameAmount(difference, 0)) {
            const QString amount = QString::fromStdString(formatMoney(std::abs(difference)));
            show(QStringLiteral("ต่าง %1").arg(amount), "differs");
            return;
        }
        // Nothing beside nothing, and nothing beside a nil, is no agreement worth a word.
        speaks = speaks || (!here.empty() && !there.empty());
    }
    show(speaks ? QStringLiteral("ตรงกัน") : QString(), speaks ? "agrees" : "");
}

void TieTag::show(const QString& text, const char* role) {
    if (text == toolTip()) {
        return;
    }
    setToolTip(text);
    setAccessibleDescription(text);
    setWorn(*this, "role", role);
    setText(text);
    if (TextLabel::sizeHint().width() > maximumWidth()) {
        setText(text.section(QLatin1Char(' '), 0, 0)); // the amount is in the tool tip
    }
    updateGeometry();
}

void TieTag::paintEvent(QPaintEvent* event) {
    if (!markOnly_) {
        TextLabel::paintEvent(event);
    }
    if (text().isEmpty()) {
        return;
    }
    const bool agrees = property("role").toByteArray() == "agrees";
    const QColor ink = palette().color(foregroundRole());
    const int side = zoomed(iconSize);
    QPainter painter(this);
    if (markOnly_) {
        drawFrame(&painter);
    }
    const int left = markOnly_ ? (width() - side) / 2 : zoomed(iconLeft);
    iconOf(agrees ? QStringLiteral("tick") : QStringLiteral("cross"), ink, ink)
        .paint(&painter, QRect(left, (height() - side) / 2, side, side));
}

} // namespace lodge
