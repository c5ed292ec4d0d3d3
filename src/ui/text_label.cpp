#include "ui/text_label.h"

#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

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

QSize TextLabel::around() const {
    const QMargins frame = contentsMargins();
    QSize around(frame.left() + frame.right() + 2 * margin(), frame.top() + frame.bottom() + 2 * margin());
    int indented = indent();
    if (indented < 0 && frameWidth() > 0) {
        indented = fontMetrics().horizontalAdvance(QLatin1Char('x')) - 2 * margin();
    }
    if (indented > 0) {
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

} // namespace lodge
