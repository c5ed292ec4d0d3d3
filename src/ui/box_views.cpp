#include "ui/box_views.h"

#include "ui/plain_figure.h"
#include "values/text.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lodge {

namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }

/// The characters of a typed text one by one, as the handlers of a box get them.
std::u32string charactersOf(const QString& text) {
    const QList<uint> codes = text.toUcs4();
    return {codes.begin(), codes.end()};
}

bool isTyping(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    // AltGr arrives as Ctrl+Alt on some keyboards and types all the same.
    const bool command = held.testFlag(Qt::MetaModifier)
                         || (held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier));
    return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

void BoxView::takeUp(Control& control) {
    before_.clear();
    fresh_ = false;
    refused_ = false;
    ControlView::takeUp(control);
}

void BoxView::paint(Aspect aspect) {
    if (aspect == Aspect::Locked || aspect == Aspect::Back) {
        paintState();
    } else {
        ControlView::paint(aspect);
    }
}

void BoxView::paintState() {
    const bool computed = control()->locked() || control()->back() == BackColour::Button;
    setState(refused_ ? "refused" : computed ? "computed" : isInTheWay() ? "way" : "typed");
    describe();
}

void BoxView::describe() {
    QStringList said;
    if (control()->kind() == ControlKind::MaskedBox) {
        said << QStringLiteral("วัน/เดือน/ปี พ.ศ.");
    } else if (static_cast<const TextBox&>(*control()).textKind() == TextKind::Amount) {
        said << QStringLiteral("บาท");
    }
    if (control()->locked()) {
        said << QStringLiteral("แก้ไขไม่ได้");
    } else if (refused_) {
        said << QStringLiteral("ไม่ผ่านการตรวจ");
    } else if (isInTheWay()) {
        said << QStringLiteral("ติดขัด");
    }
    widget()->setAccessibleDescription(said.join(QLatin1Char(' ')));
}

void BoxView::markRefused() {
    refused_ = true;
    paintState();
}

void BoxView::focusCame() {
    fresh_ = true;
    keepFigure();
}

bool BoxView::giveBack() {
    if (control()->locked() || control()->reading() == before_) {
        return false;
    }
    door().act([this](User& user) {
        if (control()->kind() == ControlKind::MaskedBox) {
            user.edit(static_cast<MaskedBox&>(*control()), before_);
        } else {
            user.edit(static_cast<TextBox&>(*control()), before_);
        }
    });
    return true;
}

void BoxView::touched() {
    fresh_ = false;
    if (refused_) {
        refused_ = false;
        paintState();
    }
}

std::optional<QString> BoxView::passed(const QString& text) {
    QString typed;
    for (const char32_t character : charactersOf(text)) {
        std::optional<char32_t> made;
        door().act([&](User& user) { made = user.key(*control(), character); });
        if (control() == nullptr) {
            return std::nullopt;
        }
        if (made) {
            typed += QString::fromUcs4(&*made, 1);
        }
    }
    return typed;
}

bool BoxView::characterTyped(const QKeyEvent& event) {
    const std::optional<QString> typed = passed(event.text());
    if (!typed || typed->isEmpty() || !hasRoomFor(*typed)) {
        return true;
    }
    if (*typed == event.text()) {
        return false;
    }
    QKeyEvent changed(event.type(), event.key(), event.modifiers(), *typed);
    feeding_ = true;
    QCoreApplication::sendEvent(widget(), &changed);
    feeding_ = false;
    return true;
}

bool BoxView::keyPressed(QKeyEvent& event) {
    if (feeding_) {
        return false;
    }
    if (ControlView::keyPressed(event)) {
        return true;
    }
    if (event.key() == Qt::Key_Escape && giveBack()) {
        return true;
    }
    if (!event.text().isEmpty()) {
        touched(); // also Backspace and Delete
    }
    fresh_ = false;
    return isTyping(event) && !control()->locked() && characterTyped(event);
}

bool BoxView::otherEvent(QEvent& event) {
    if (event.type() != QEvent::InputMethod || feeding_) {
        return false;
    }
    const auto& composed = static_cast<QInputMethodEvent&>(event);
    if (composed.commitString().isEmpty()) {
        return false; // still composing: nothing has been typed yet
    }
    touched();
    const std::optional<QString> typed = passed(composed.commitString());
    if (!typed) {
        return true;
    }
    QInputMethodEvent changed(composed.preeditString(), composed.attributes());
    changed.setCommitString(
        hasRoomFor(*typed) ? *typed : QString(), composed.replacementStart(), composed.replacementLength());
    feeding_ = true;
    QCoreApplication::sendEvent(widget(), &changed);
    feeding_ = false;
    return true;
}

TextView::TextView(Control& control, QLineEdit& edit, UserDoor& door)
    : BoxView(control, edit, door), edit_(edit) {
    if (isAmount()) {
        edit.setAlignment(Qt::AlignRight);
    }
    connect(&edit, &QLineEdit::textEdited, this, &TextView::edited);
}

void TextView::takeUp(Control& control) {
    edit_.setText({}); // and with it caret, selection, and what could be undone
    BoxView::takeUp(control);
}

void TextView::paint(Aspect aspect) {
    if (aspect == Aspect::Text) {
        paintText();
    } else if (aspect == Aspect::Locked) {
        edit_.setReadOnly(box().locked());
        paintState();
    } else {
        BoxView::paint(aspect);
    }
}

void TextView::paintText() {
    const QString text = shown(box().text());
    if (edit_.text() != text) {
        edit_.setText(text);
    }
    if (isAmount()) {
        // The points of amounts with and without brackets stand below one another.
        const int room =
            text.endsWith(QLatin1Char(')')) ? 0 : edit_.fontMetrics().horizontalAdvance(QLatin1Char(')'));
        edit_.setTextMargins(0, 0, room, 0);
        if (isFirstTouch() && box().hasFocus()) {
            edit_.selectAll();
        }
    }
    if (isFirstTouch()) {
        keepFigure(); // a rule shows the figure plain when the focus comes
    }
}

void TextView::focusCame() {
    BoxView::focusCame();
    if (isAmount()) {
        edit_.selectAll();
    }
}

bool TextView::hasRoomFor(const QString& text) const {
    if (box().maxLength() <= 0) {
        return true;
    }
    QString next = edit_.text();
    if (edit_.hasSelectedText()) {
        next.replace(edit_.selectionStart(), edit_.selectionLength(), text);
    } else {
        next.insert(edit_.cursorPosition(), text);
    }
    // A character may join the one before it, so the length that counts is that of the regular text.
    return textLength(regularInput(next.toStdString(), InputKind::Text))
           <= static_cast<std::size_t>(box().maxLength());
}

bool TextView::isLike(const ControlView& other) const {
    const auto* view = qobject_cast<const TextView*>(&other);
    return view != nullptr && view->isAmount() == isAmount();
}

bool TextView::arrowPressed(const QKeyEvent& event) {
    // In a text Ctrl moves by words; a column of amounts has none.
    const bool ctrl = (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (event.key()) {
    case Qt::Key_Up:
        if (plain) door().moveAcross(box(), Direction::Up);
        return plain;
    case Qt::Key_Down:
        if (plain) door().moveAcross(box(), Direction::Down);
        return plain;
    case Qt::Key_Left:
        if (ctrl) door().moveAcross(box(), Direction::Left);
        return ctrl;
    case Qt::Key_Right:
        if (ctrl) door().moveAcross(box(), Direction::Right);
        return ctrl;
    default: return false;
    }
}

bool TextView::keyPressed(QKeyEvent& event) {
    return (isAmount() && arrowPressed(event)) || BoxView::keyPressed(event);
}

bool TextView::otherEvent(QEvent& event) {
    if (event.type() == QEvent::FontChange) {
        paintText(); // the place of the point depends on the font
    }
    return BoxView::otherEvent(event);
}

bool TextView::mousePressed(QMouseEvent& event) {
    if (ControlView::mousePressed(event)) {
        return true;
    }
    const bool came = !box().hasFocus();
    if (!come()) {
        return control() == nullptr || !box().locked();
    }
    if (gesture(event) && control() == nullptr) {
        return true;
    }
    // The press that comes to an amount leaves it selected as a whole.
    const bool selects = came && event.button() == Qt::LeftButton && isAmount();
    if (!selects) {
        setFresh(false);
    }
    return selects;
}

void TextView::edited(const QString& text) {
    if (control() == nullptr) {
        return;
    }
    const QString plain = isAmount() ? plainFigure(text) : text;
    const std::string typed = plain.toStdString();
    // Where the caret stands once the text before it has been made regular.
    const std::string before = text.left(edit_.cursorPosition()).toStdString();
    const auto caret = static_cast<int>(shown(acceptedText(box(), before)).size());
    door().act([&](User& user) { user.edit(box(), typed); });
    if (control() == nullptr) {
        return;
    }
    if (edit_.text() != shown(box().text())) {
        paintText();
        edit_.setCursorPosition(plain == text ? caret : static_cast<int>(edit_.text().size()));
    }
}

LinesView::LinesView(Control& control, QPlainTextEdit& edit, UserDoor& door)
    : BoxView(control, edit, door), edit_(edit) {
    edit.setTabChangesFocus(true);
    watchPart(*edit.viewport());
    connect(&edit, &QPlainTextEdit::textChanged, this, &LinesView::edited);
}

void LinesView::takeUp(Control& control) {
    painting_ = true;
    edit_.clear();
    painting_ = false;
    BoxView::takeUp(control);
}

void LinesView::paint(Aspect aspect) {
    const auto& box = static_cast<const TextBox&>(*control());
    if (aspect == Aspect::Text) {
        const QString text = shown(box.text());
        if (edit_.toPlainText() != text) {
            painting_ = true;
            edit_.setPlainText(text);
            painting_ = false;
        }
    } else if (aspect == Aspect::Locked) {
        edit_.setReadOnly(box.locked());
        paintState();
    } else {
        BoxView::paint(aspect);
    }
}

bool LinesView::keyPressed(QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && event.modifiers().testFlag(Qt::ControlModifier)) {
        edit_.insertPlainText(QStringLiteral("\n"));
        return true;
    }
    return BoxView::keyPressed(event);
}

bool LinesView::mousePressed(QMouseEvent& event) {
    if (ControlView::mousePressed(event)) {
        return true;
    }
    return !come() && (control() == nullptr || !control()->locked());
}

void LinesView::edited() {
    if (painting_ || control() == nullptr) {
        return;
    }
    const std::string typed = edit_.toPlainText().toStdString();
    const int caret = edit_.textCursor().position();
    auto& box = static_cast<TextBox&>(*control());
    door().act([&](User& user) { user.edit(box, typed); });
    if (control() != nullptr && edit_.toPlainText() != shown(box.text())) {
        paint(Aspect::Text);
        QTextCursor cursor = edit_.textCursor();
        cursor.setPosition(std::min(caret, static_cast<int>(edit_.toPlainText().size())));
        edit_.setTextCursor(cursor);
    }
}

DateView::DateView(Control& control, DateEdit& edit, UserDoor& door)
    : BoxView(control, edit, door), edit_(edit) {
    connect(&edit, &DateEdit::digitsEdited, this, [this](const QString& digits) {
        if (this->control() == nullptr) {
            return;
        }
        this->door().act(
            [&](User& user) { user.edit(static_cast<MaskedBox&>(*this->control()), digits.toStdString()); });
        if (this->control() != nullptr) {
            paint(Aspect::Text);
        }
    });
}

void DateView::takeUp(Control& control) {
    edit_.setDigits({});
    edit_.setCursorPosition(0);
    BoxView::takeUp(control);
}

void DateView::paint(Aspect aspect) {
    if (aspect == Aspect::Text) {
        edit_.setDigits(shown(static_cast<const MaskedBox&>(*control()).digits()));
    } else if (aspect == Aspect::Locked) {
        edit_.setReadOnly(control()->locked());
        paintState();
    } else {
        BoxView::paint(aspect);
    }
}

void DateView::focusCame() {
    BoxView::focusCame();
    edit_.goToGap();
}

bool DateView::mousePressed(QMouseEvent& event) {
    if (ControlView::mousePressed(event)) {
        return true;
    }
    const bool came = !control()->hasFocus();
    if (!come() || (gesture(event) && control() == nullptr)) {
        return true;
    }
    return came && event.button() == Qt::LeftButton; // the caret is at the first gap already
}

} // namespace lodge
