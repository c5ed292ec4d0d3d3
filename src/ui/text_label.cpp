#include "ui/text_label.h"

#include "ui/dress.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace lodge {

namespace {

/// As wide as a text without a width of its own may get, and as many characters as a wrapped one would like.
constexpr int widest = 2000;
constexpr int preferredCharacters = 80;

} // namespace

bool TextLabel::isPlain() const {
    const bool plain =
        textFormat() == Qt::PlainText || (textFormat() == Qt::AutoText && !Qt::mightBeRichText(text()));
    return plain && pixmap().isNull() && (buddy() == nullptr || !text().contains(QLatin1Char('&')))
           && !textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
}

int TextLabel::indentNow() const {
    if (indent() >= 0 || frameWidth() == 0) {
        return std::max(indent(), 0);
    }
    return fontMetrics().horizontalAdvance(QLatin1Char('x')) - 2 * margin();
}

QSize TextLabel::around() const {
    const QMargins frame = contentsMargins();
    QSize around(frame.left() + frame.right() + 2 * margin(), frame.top() + frame.bottom() + 2 * margin());
    if (const int indented = indentNow(); indented > 0) {
        around.rwidth() += (alignment() & (Qt::AlignLeft | Qt::AlignRight)) != 0 ? indented : 0;
        around.rheight() += (alignment() & (Qt::AlignTop | Qt::AlignBottom)) != 0 ? indented : 0;
    }
    return around;
}

QSize TextLabel::textIn(int width) const {
    const int flags = wordWrap() ? Qt::TextWordWrap : 0;
    const auto measured = [&](int room) {
        if (text_.isEmpty()) { // what it keeps free for a text to come
            return QSize(fontMetrics().averageCharWidth(), fontMetrics().lineSpacing());
        }
        return fontMetrics().boundingRect(QRect(0, 0, room, widest), flags, text_).size();
    };
    if (text_ != text() || font_ != font() || flags_ != flags) {
        text_ = text();
        font_ = font();
        flags_ = flags;
        sizes_.clear();
        line_ = measured(QWIDGETSIZE_MAX);
    }
    if (flags == 0 || width >= line_.width()) {
        return line_;
    }
    const auto known = sizes_.constFind(width);
    return known != sizes_.constEnd() ? *known : *sizes_.insert(width, measured(width));
}

/// A wrapped text would rather be a few lines high than one long line.
QSize TextLabel::preferred() const {
    if (!wordWrap()) {
        return textIn(widest);
    }
    const QFontMetrics metrics = fontMetrics();
    const int width =
        std::min(metrics.averageCharWidth() * preferredCharacters, maximumWidth()) - around().width();
    QSize size = textIn(width);
    for (const int part : {2, 4}) {
        const int lines = part == 2 ? 4 : 2;
        if (size.height() < lines * metrics.lineSpacing() && size.width() > width / part) {
            size = textIn(width / part);
        }
    }
    return size;
}

QSize TextLabel::sizeHint() const {
    if (!isPlain()) {
        return QLabel::sizeHint();
    }
    ensurePolished();
    return (preferred() + around()).expandedTo(minimumSize());
}

QSize TextLabel::minimumSizeHint() const {
    if (!isPlain()) {
        return QLabel::minimumSizeHint();
    }
    ensurePolished();
    const int width = textIn(std::max(0, minimumWidth() - around().width())).width();
    return (QSize(width, line_.height()) + around()).expandedTo(minimumSize());
}

int TextLabel::heightForWidth(int width) const {
    if (!isPlain()) {
        return QLabel::heightForWidth(width);
    }
    ensurePolished();
    const int room = std::max(width, minimumWidth()) - around().width();
    return std::max(textIn(room).height() + around().height(), minimumHeight());
}

bool TextLabel::event(QEvent* event) {
    if (event->type() == QEvent::DynamicPropertyChange) {
        bare_.reset();
    }
    return QLabel::event(event);
}

bool TextLabel::wearsNothing() {
    if (!bare_) {
        bare_ = dressOf(*this) == nullptr;
    }
    return *bare_;
}

QRect TextLabel::room() const {
    QRect room = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    // A frame has the toolkit indent a text by half as much as it asks for.
    const int indented = indent() < 0 ? indentNow() / 2 : indent();
    const Qt::Alignment where = alignment();
    room.adjust(where.testFlag(Qt::AlignLeft) ? indented : 0, where.testFlag(Qt::AlignTop) ? indented : 0,
        where.testFlag(Qt::AlignRight) ? -indented : 0, where.testFlag(Qt::AlignBottom) ? -indented : 0);
    return room;
}

const QStaticText& TextLabel::laidOut(int width) {
    QString lines = text();
    lines.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
    QTextOption option(alignment() & Qt::AlignHorizontal_Mask);
    option.setWrapMode(wordWrap() ? QTextOption::WordWrap : QTextOption::ManualWrap);
    const bool same = drawn_.text() == lines && drawnFont_ == font() && qRound(drawn_.textWidth()) == width
                      && drawn_.textOption().alignment() == option.alignment()
                      && drawn_.textOption().wrapMode() == option.wrapMode();
    if (!same) {
        drawn_ = QStaticText(lines);
        drawn_.setTextFormat(Qt::PlainText);
        drawn_.setTextOption(option);
        drawn_.setTextWidth(width);
        drawnFont_ = font();
        drawn_.prepare({}, drawnFont_);
    }
    return drawn_;
}

void TextLabel::paintEvent(QPaintEvent* event) {
    if (!isPlain() || font().underline()) { // which a text that is laid out before does not draw
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    if (!wearsNothing()) {
        drawFrame(&painter);
    }
    if (text().isEmpty()) {
        return;
    }
    const QRect space = room();
    const QStaticText& drawn = laidOut(space.width());
    const qreal free = space.height() - drawn.size().height();
    const qreal down = alignment().testFlag(Qt::AlignVCenter)  ? std::ceil(free / 2)
                       : alignment().testFlag(Qt::AlignBottom) ? free
                                                               : 0;
    painter.setPen(palette().color(foregroundRole()));
    painter.drawStaticText(QPointF(space.left(), space.top() + down), drawn);
}

} // namespace lodge
