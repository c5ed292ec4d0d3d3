#include "ui/plain_figure.h"

#include <QRegularExpression>

namespace lodge {

namespace {

/// Thai digits and those of other scripts as 0 to 9, every kind of minus as "-", every kind of blank as one.
QString regular(const QString& text) {
    constexpr ushort trueMinus = 0x2212;
    constexpr ushort noBreakHyphen = 0x2011;
    QString made;
    for (const QChar character : text) {
        if (character.isDigit()) {
            made += QString::number(character.digitValue());
        } else if (character == QChar(trueMinus) || character == QChar(noBreakHyphen)) {
            made += QLatin1Char('-');
        } else {
            made += character.isSpace() ? QLatin1Char(' ') : character;
        }
    }
    return made.trimmed();
}

} // namespace

QString plainFigure(const QString& text) {
    static const QRegularExpression figure(QStringLiteral(
        "^(\\(?)\\s*(-?)\\s*(?:\u0E3F|THB)?\\s*(-?)\\s*(\\d[\\d, ]*(?:\\.[\\d ]*)?|\\.\\d[\\d ]*)"
        "\\s*(?:\u0E3F|บาท)?\\s*(-?)\\s*(\\)?)\\s*(?:บาท)?$"));
    const QRegularExpressionMatch match = figure.match(regular(text));
    const bool opened = !match.captured(1).isEmpty();
    const bool closed = !match.captured(6).isEmpty();
    if (!match.hasMatch() || opened != closed) {
        return text;
    }
    QString plain = match.captured(4);
    plain.remove(QLatin1Char(',')).remove(QLatin1Char(' '));
    const QString minus = match.captured(2) + match.captured(3) + match.captured(5);
    const bool negative = opened != !minus.isEmpty();
    return minus.size() > 1 ? text : negative ? QLatin1Char('-') + plain : plain;
}

} // namespace lodge
