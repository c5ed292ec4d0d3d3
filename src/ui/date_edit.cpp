#include "ui/date_edit.h"

#include "program/user.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>
#include <array>

namespace lodge {

namespace {

constexpr qsizetype places = 8;
/// Where each digit stands in the mask; the ninth entry is the end.
constexpr std::array<int, 9> columns = {0, 1, 3, 4, 6, 7, 8, 9, 10};

QString masked(const QString& digits) {
    QString text = QStringLiteral("__/__/____");
    for (qsizetype i = 0; i < digits.size(); ++i) {
        text[columns[static_cast<std::size_t>(i)]] = digits[i];
    }
    return text;
}

/// How many digit places lie before a column of the mask.
qsizetype placeAt(int column) {
    return std::count_if(columns.begin(), columns.end() - 1, [&](int place) { return place < column; });
}

QString acceptedOf(const QString& text) { return QString::fromStdString(acceptedDigits(text.toStdString())); }

bool isSeparator(QChar character) {
    return character == QLatin1Char('/') || character == QLatin1Char('-') || character == QLatin1Char('.');
}

} // namespace

DateEdit::DateEdit(QWidget* parent) : QLineEdit(parent) {
    setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhNoPredictiveText);
    setAcceptDrops(false);
    setText(masked({}));
    setCursorPosition(0);
}

void DateEdit::setDigits(const QString& digits) {
    if (digits_ != digits) {
        digits_ = digits;
        setText(masked(digits_));
        setCursorPosition(columns[static_cast<std::size_t>(digits_.size())]);
    }
}

void DateEdit::goToGap() {
    if (digits_.size() == places) {
        selectAll();
    } else {
        setCursorPosition(columns[static_cast<std::size_t>(digits_.size())]);
    }
}

DateEdit::Span DateEdit::selectedDigits() const {
    if (!hasSelectedText()) {
        return {std::min(placeAt(cursorPosition()), digits_.size()), 0};
    }
    const qsizetype from = std::min(placeAt(selectionStart()), digits_.size());
    const qsizetype to = std::min(placeAt(selectionStart() + selectionLength()), digits_.size());
    return {from, to - from};
}

void DateEdit::change(const QString& digits, qsizetype caret) {
    const bool differs = digits != digits_;
    digits_ = digits;
    setText(masked(digits_));
    setCursorPosition(columns[static_cast<std::size_t>(std::min(caret, digits_.size()))]);
    if (differs) {
        emit digitsEdited(digits_);
    }
}

void DateEdit::type(QChar digit) {
    const Span span = selectedDigits();
    QString digits = digits_;
    // Without a selection a digit is typed over the one that stands there, as in any mask.
    digits.replace(span.from, std::max<qsizetype>(span.count, 1), digit);
    change(digits.left(places), span.from + 1);
}

void DateEdit::padGroup() {
    const qsizetype count = digits_.size();
    if (count == 1 || count == 3) {
        QString digits = digits_;
        digits.insert(count - 1, QLatin1Char('0'));
        change(digits, digits.size());
    }
}

void DateEdit::insertText(const QString& text) {
    const QString accepted = acceptedOf(text);
    const Span span = selectedDigits();
    if (accepted.size() == places || span.count == digits_.size()) {
        change(accepted, accepted.size()); // a whole date takes the place of what was there
        return;
    }
    for (const QChar digit : accepted) {
        type(digit);
    }
}

void DateEdit::remove(Span span) {
    QString digits = digits_;
    digits.remove(span.from, span.count);
    change(digits, span.from);
}

void DateEdit::cut() {
    copy();
    remove(selectedDigits());
}

bool DateEdit::takeCommand(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
        insertText(QApplication::clipboard()->text());
        return true;
    }
    if (event.matches(QKeySequence::Cut)) {
        cut();
        return true;
    }
    Span span = selectedDigits();
    if (event.key() == Qt::Key_Backspace) {
        if (span.count == 0 && span.from > 0) {
            span = {span.from - 1, 1};
        }
        remove(span);
        return true;
    }
    if (event.key() == Qt::Key_Delete) {
        span.count = std::max<qsizetype>(span.count, 1);
        remove(span);
        return true;
    }
    // The text is the mask's and not the person's, so a step back through it means nothing.
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    if (isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (takeCommand(*event)) {
        event->accept();
        return;
    }
    const QString text = event->text();
    const bool typed =
        !text.isEmpty() && text.at(0).isPrint()
        && (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (!typed) {
        QLineEdit::keyPressEvent(event); // moves the caret, selects, copies
        if (QLineEdit::text() != masked(digits_)) {
            change(digits_, digits_.size()); // a command of the line editor that knows no mask
        }
        return;
    }
    if (isSeparator(text.at(0))) {
        padGroup();
    } else if (const QString digit = acceptedOf(text); digit.size() == 1) {
        type(digit.at(0));
    }
    event->accept();
}

void DateEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!isReadOnly() && !event->commitString().isEmpty()) {
        insertText(event->commitString());
    }
    event->accept();
}

void DateEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        if (!isReadOnly() && QApplication::clipboard()->supportsSelection()) {
            insertText(QApplication::clipboard()->text(QClipboard::Selection));
        }
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    if (!hasSelectedText() && placeAt(cursorPosition()) > digits_.size()) {
        goToGap();
    }
}

void DateEdit::paintEvent(QPaintEvent* event) {
    if (isEnabled() || !digits_.isEmpty()) {
        QLineEdit::paintEvent(event);
        return;
    }
    // A closed box asks for nothing, so it shows no gaps to fill.
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
}

void DateEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    const bool open = !isReadOnly();
    QAction* cutting = menu.addAction(QLineEdit::tr("Cu&t"), this, &DateEdit::cut);
    QAction* copying = menu.addAction(QLineEdit::tr("&Copy"), this, &DateEdit::copy);
    QAction* pasting = menu.addAction(
        QLineEdit::tr("&Paste"), this, [this] { insertText(QApplication::clipboard()->text()); });
    QAction* deleting = menu.addAction(QLineEdit::tr("Delete"), this, [this] { remove(selectedDigits()); });
    menu.addSeparator();
    menu.addAction(QLineEdit::tr("Select All"), this, &DateEdit::selectAll);
    cutting->setEnabled(open && hasSelectedText());
    copying->setEnabled(hasSelectedText());
    pasting->setEnabled(open && !QApplication::clipboard()->text().isEmpty());
    deleting->setEnabled(open && hasSelectedText());
    menu.exec(event->globalPos());
}

} // namespace lodge
