// Single controls on screen, made for the test: what a person's keys, clicks and pastes make of them.

#include "controls/form.h"
#include "controls/label.h"
#include "controls/timer.h"
#include "keys.h"
#include "ui/box_views.h"
#include "ui/control_view.h"
#include "ui/desk_clock.h"
#include "ui/list_views.h"
#include "ui/press_views.h"
#include "ui/show_views.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <map>

namespace lodge {

namespace {

class FakeForm : public Form {
  public:
    explicit FakeForm(Desk& desk) : Form(desk, "fake") { amount.setTextKind(TextKind::Amount); }

    TextBox text{*this, "text"};
    TextBox amount{*this, "amount"};
    MaskedBox date{*this, "date"};
    CheckBox tick{*this, "tick"};
    OptionButton one{*this, "choice", 0};
    OptionButton other{*this, "choice", 1};
    CommandButton button{*this, "button"};
    ComboBox combo{*this, "combo"};
    ListBox list{*this, "list"};
    Grid grid{*this, "grid"};
    Label label{*this, "label"};
    Timer timer{*this, "timer", std::chrono::milliseconds(100)};
};

/// A window with a widget for each control of the fake form, bound as the program binds its forms.
class Fixture : public UserDoor, public DeskObserver {
  public:
    Fixture() {
        desk.add("fake", [this] { return std::make_unique<FakeForm>(desk); });
        desk.show("fake");
        form = static_cast<FakeForm*>(desk.find("fake"));
        auto* rows = new QVBoxLayout(&window);
        add<TextView>(rows, form->text, new QLineEdit);
        add<TextView>(rows, form->amount, new QLineEdit);
        add<DateView>(rows, form->date, new DateEdit);
        add<TickView>(rows, form->tick, new QCheckBox);
        add<TickView>(rows, form->one, new QRadioButton);
        add<TickView>(rows, form->other, new QRadioButton);
        add<PressView>(rows, form->button, new QPushButton);
        add<ComboView>(rows, form->combo, new QComboBox);
        add<ListView>(rows, form->list, new QListWidget);
        add<GridView>(rows, form->grid, new QTableWidget);
        add<PanelView>(rows, form->label, new QLabel);
        desk.observe(*this);
        window.show();
        QApplication::setActiveWindow(&window);
        QTest::qWait(20);
    }
    ~Fixture() override { desk.forget(*this); }

    void act(const std::function<void(User&)>& what) override {
        const Desk::EventScope scope(desk);
        what(user);
    }
    void press(Control& pressed) override {
        act([&](User& person) { person.click(pressed); });
    }
    void settleSoon() override {}
    void controlChanged(Control& control, Aspect aspect) override {
        ++painted;
        if (views.contains(&control)) views.at(&control)->paint(aspect);
    }
    void focusMoved(Control* control) override {
        if (control != nullptr) {
            views.at(control)->widget()->setFocus();
            views.at(control)->focusCame();
        }
    }

    template <typename T = QLineEdit>
    T* of(const Control& control) {
        return qobject_cast<T*>(views.at(&control)->widget());
    }
    void comeTo(Control& control) {
        act([&](User& person) { person.focus(control); });
    }

    Desk desk;
    User user{desk};
    FakeForm* form = nullptr;
    std::map<const Control*, std::unique_ptr<ControlView>> views;
    QWidget window;
    int painted = 0;

  private:
    template <typename View, typename Widget>
    void add(QVBoxLayout* rows, Control& control, Widget* widget) {
        widget->setObjectName(widgetName(control));
        rows->addWidget(widget);
        views.emplace(&control, makeView(control, *widget, *this));
        views.at(&control)->paintAll();
    }
};

} // namespace

class FieldsTest : public QObject {
    Q_OBJECT

  private slots:
    void aWidgetIsNamedAsItsControl() {
        Fixture f;
        QCOMPARE(widgetName(f.form->text), QStringLiteral("text"));
        QCOMPARE(widgetName(f.form->other), QStringLiteral("choice_1"));
    }

    void aWidgetOfAnotherKindIsNotBound() {
        Fixture f;
        QLabel label;
        QCOMPARE(makeView(f.form->text, label, f), nullptr);
    }

    void typingTellsOneChangeACharacter() {
        Fixture f;
        std::vector<std::string> changes;
        f.form->text.onChange = [&] { changes.push_back(f.form->text.text()); };
        f.comeTo(f.form->text);
        typeText(f.of(f.form->text), QStringLiteral("abc"));
        QCOMPARE(changes, (std::vector<std::string>{"a", "ab", "abc"}));
    }

    void theBoxShowsWhatIsStored() {
        Fixture f;
        f.comeTo(f.form->text);
        auto* edit = f.of(f.form->text);
        edit->insert(QString()); // nothing typed, nothing stored
        QCOMPARE(f.form->text.text(), "");
        typeText(edit, QStringLiteral("นํา|€a"));
        QCOMPARE(QString::fromStdString(f.form->text.text()), edit->text());
        QVERIFY(edit->text().startsWith(QStringLiteral("นำ")));
        QVERIFY(!edit->text().contains(QLatin1Char('|')));
        QCOMPARE(edit->cursorPosition(), static_cast<int>(edit->text().size()));
    }

    void aFullBoxTakesNoMoreAndKeepsWhatItHas() {
        Fixture f;
        f.form->text.setMaxLength(3);
        f.comeTo(f.form->text);
        auto* edit = f.of(f.form->text);
        typeText(edit, QStringLiteral("abcd"));
        QCOMPARE(f.form->text.text(), "abc");
        edit->setCursorPosition(0);
        typeText(edit, QStringLiteral("x"));
        QCOMPARE(f.form->text.text(), "abc");
        edit->setSelection(0, 1);
        typeText(edit, QStringLiteral("x"));
        QCOMPARE(f.form->text.text(), "xbc");
    }

    void codeMayShowMoreThanMayBeTyped() {
        Fixture f;
        f.form->amount.setMaxLength(5);
        f.form->amount.setText("1,234,567.00");
        QCOMPARE(f.of(f.form->amount)->text(), QStringLiteral("1,234,567.00"));
    }

    void aPasteIsMadeRegularAndCut() {
        Fixture f;
        f.form->amount.setMaxLength(6);
        f.comeTo(f.form->amount);
        QApplication::clipboard()->setText(QStringLiteral("๑๒๓๔๕๖๗๘"));
        f.of(f.form->amount)->paste();
        QCOMPARE(f.form->amount.text(), "123456");
        QCOMPARE(f.of(f.form->amount)->text(), QStringLiteral("123456"));
    }

    void aHandlerMaySwallowOrChangeAKey() {
        Fixture f;
        f.form->text.onKey = [](KeyPress& press) {
            press.swallowed = press.key == U'x';
            press.key = press.key == U'a' ? U'b' : press.key;
        };
        f.comeTo(f.form->text);
        typeText(f.of(f.form->text), QStringLiteral("xac"));
        QCOMPARE(f.form->text.text(), "bc");
    }

    void composedTextPassesTheKeyHandlersOnceItIsCommitted() {
        Fixture f;
        std::u32string keys;
        f.form->text.onKey = [&](KeyPress& press) { keys += press.key; };
        f.comeTo(f.form->text);
        auto* edit = f.of(f.form->text);
        QInputMethodEvent composing(QStringLiteral("ก"), {});
        QApplication::sendEvent(edit, &composing);
        QCOMPARE(f.form->text.text(), "");
        QInputMethodEvent committed(QString(), {});
        committed.setCommitString(QStringLiteral("กข"));
        QApplication::sendEvent(edit, &committed);
        QCOMPARE(QString::fromStdString(f.form->text.text()), QStringLiteral("กข"));
        QCOMPARE(keys, U"กข");
    }

    void anAmountIsSelectedWholeWhenTheFocusComes() {
        Fixture f;
        f.form->amount.setText("1,234.00");
        f.form->amount.onGotFocus = [&] { f.form->amount.setText("1234.00"); };
        f.comeTo(f.form->amount);
        QCOMPARE(f.of(f.form->amount)->selectedText(), QStringLiteral("1234.00"));
        QCOMPARE(f.of(f.form->amount)->alignment(), Qt::AlignRight);
    }

    void escapeGivesBackWhatTheBoxHad() {
        Fixture f;
        f.form->amount.setText("1,234.00");
        f.form->amount.onGotFocus = [&] { f.form->amount.setText("1234.00"); };
        f.comeTo(f.form->amount);
        typeText(f.of(f.form->amount), QStringLiteral("99"));
        QCOMPARE(f.form->amount.text(), "99");
        QTest::keyClick(f.of(f.form->amount), Qt::Key_Escape);
        QCOMPARE(f.form->amount.text(), "1234.00");
    }

    void aLockedBoxTakesNothing() {
        Fixture f;
        f.form->text.setText("as it was");
        f.form->text.setLocked(true);
        typeText(f.of(f.form->text), QStringLiteral("x"));
        QCOMPARE(f.form->text.text(), "as it was");
        QCOMPARE(f.of(f.form->text)->property("state").toByteArray(), QByteArray("computed"));
    }

    void aRefusedBoxLooksSoUntilTheNextKey() {
        Fixture f;
        f.comeTo(f.form->text);
        f.views.at(&f.form->text)->markRefused();
        QCOMPARE(f.of(f.form->text)->property("state").toByteArray(), QByteArray("refused"));
        typeText(f.of(f.form->text), QStringLiteral("1"));
        QCOMPARE(f.of(f.form->text)->property("state").toByteArray(), QByteArray("typed"));
    }

    void aDateIsPastedWithoutItsZeros() {
        Fixture f;
        f.comeTo(f.form->date);
        for (const char* pasted : {"1/5/2561", "๑/๕/๒๕๖๑", "01052561", "1-5-2561"}) {
            f.form->date.setDigits("");
            QApplication::clipboard()->setText(QString::fromUtf8(pasted));
            QTest::keySequence(f.of<DateEdit>(f.form->date), QKeySequence::Paste);
            QCOMPARE(f.form->date.digits(), "01052561");
            QCOMPARE(f.of<DateEdit>(f.form->date)->text(), QStringLiteral("01/05/2561"));
        }
    }

    void enterAndTabMoveOnInTheOrderOfTheControls() {
        Fixture f;
        f.comeTo(f.form->text);
        const std::vector<Control*> order = {&f.form->text, &f.form->amount, &f.form->date, &f.form->tick,
            &f.form->one, &f.form->other, &f.form->button, &f.form->combo, &f.form->list, &f.form->grid};
        int key = 0;
        for (std::size_t i = 1; i < order.size(); ++i) {
            const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Enter};
            QTest::keyClick(QApplication::focusWidget(), keys[key++ % 3]);
            QCOMPARE(f.desk.focus(), order[i]);
            QCOMPARE(QApplication::focusWidget(), f.views.at(order[i])->widget());
        }
        QVERIFY(!f.form->tick.value()); // moving on ticks and presses nothing
        QVERIFY(!f.form->one.value());
        for (std::size_t i = order.size() - 1; i > 0; --i) {
            if (i % 2 == 0) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ShiftModifier);
            } else {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
            }
            QCOMPARE(f.desk.focus(), order[i - 1]);
        }
    }

    void spaceAndClickToggleAndPressOnce() {
        Fixture f;
        int clicks = 0;
        f.form->tick.onClick = [&] { ++clicks; };
        f.comeTo(f.form->tick);
        QTest::keyClick(f.of<QCheckBox>(f.form->tick), Qt::Key_Space);
        QVERIFY(f.form->tick.value());
        QVERIFY(f.of<QCheckBox>(f.form->tick)->isChecked());
        QTest::mouseClick(f.of<QCheckBox>(f.form->tick), Qt::LeftButton);
        QVERIFY(!f.form->tick.value());
        QVERIFY(!f.of<QCheckBox>(f.form->tick)->isChecked());
        QCOMPARE(clicks, 2);
        int presses = 0;
        f.form->button.onClick = [&] { ++presses; };
        QTest::mouseClick(f.of<QPushButton>(f.form->button), Qt::LeftButton);
        QTest::keyClick(f.of<QPushButton>(f.form->button), Qt::Key_Space);
        QTest::keyClick(f.of<QPushButton>(f.form->button), Qt::Key_Return);
        QCOMPARE(presses, 2);
    }

    void aMouseDownMayKeepATickAsItIs() {
        Fixture f;
        bool seen = true;
        f.form->tick.onMouseDown = [&](MousePress& press) {
            seen = f.form->tick.value(); // before the box changes
            press.follow = MousePress::Follow::Nothing;
        };
        QTest::mouseClick(f.of<QCheckBox>(f.form->tick), Qt::LeftButton);
        QVERIFY(!seen);
        QVERIFY(!f.form->tick.value());
        QVERIFY(!f.of<QCheckBox>(f.form->tick)->isChecked());
    }

    void aMouseDownMayTakeOver() {
        Fixture f;
        bool released = false;
        f.form->tick.onMouseDown = [&](MousePress& press) {
            f.form->tick.setValue(true);
            press.follow = MousePress::Follow::ReleaseOnly;
        };
        f.form->tick.onMouseUp = [&](const MouseGesture&) { released = true; };
        QTest::mouseClick(f.of<QCheckBox>(f.form->tick), Qt::LeftButton);
        QVERIFY(f.form->tick.value());
        QVERIFY(released);
    }

    void choicesOfOneContainerExcludeOneAnother() {
        Fixture f;
        QTest::mouseClick(f.of<QRadioButton>(f.form->one), Qt::LeftButton);
        QTest::mouseClick(f.of<QRadioButton>(f.form->other), Qt::LeftButton);
        QVERIFY(!f.of<QRadioButton>(f.form->one)->isChecked());
        QVERIFY(f.of<QRadioButton>(f.form->other)->isChecked());
    }

    void keysAndButtonsOfTheMouseAreToldAsTheyAre() {
        Fixture f;
        std::vector<MouseGesture> felt;
        f.form->label.onMouseDown = [&](const MousePress& press) { felt.push_back(press.gesture); };
        auto* label = f.of<QLabel>(f.form->label);
        QTest::mouseClick(label, Qt::RightButton, Qt::ControlModifier);
        QTest::mouseClick(label, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
        QTest::mouseClick(label, Qt::LeftButton);
        QCOMPARE(felt.size(), 3U);
        QVERIFY(felt[0].button == MouseButton::Right && felt[0].ctrl && !felt[0].shift);
        QVERIFY(felt[1].button == MouseButton::Left && felt[1].ctrl && felt[1].shift && felt[1].alt);
        QVERIFY(felt[2].button == MouseButton::Left && !felt[2].ctrl);
    }

    void aDoubleClickIsTold() {
        Fixture f;
        int doubles = 0;
        f.form->label.onDoubleClick = [&] { ++doubles; };
        QTest::mouseDClick(f.of<QLabel>(f.form->label), Qt::LeftButton);
        QCOMPARE(doubles, 1);
    }

    void aRuleThatTakesTheFocusBackStopsTheClick() {
        Fixture f;
        int presses = 0;
        f.form->button.onClick = [&] { ++presses; };
        f.form->text.onLostFocus = [&] { f.form->text.setFocus(); };
        f.comeTo(f.form->text);
        QTest::mouseClick(f.of<QPushButton>(f.form->button), Qt::LeftButton);
        QCOMPARE(presses, 0);
        QCOMPARE(f.desk.focus(), &f.form->text);
        QCOMPARE(QApplication::focusWidget(), f.of(f.form->text));
    }

    void aClosedListIsFoundByTyping() {
        Fixture f;
        f.form->combo.setItems({"นาย", "นาง", "ดร."});
        int clicks = 0;
        f.form->combo.onClick = [&] { ++clicks; };
        f.comeTo(f.form->combo);
        typeText(f.of<QComboBox>(f.form->combo), QStringLiteral("ด"));
        QCOMPARE(f.form->combo.selected(), 2);
        QCOMPARE(clicks, 1);
    }

    void listsAndGridsTellWhatIsChosen() {
        Fixture f;
        f.form->list.setItems({"a", "b"});
        f.comeTo(f.form->list);
        QTest::keyClick(f.of<QListWidget>(f.form->list), Qt::Key_Down);
        f.form->grid.setColumns({"รหัส", "ชื่อ"});
        f.form->grid.setRows({{"1", "x"}, {"2", "y"}});
        f.comeTo(f.form->grid);
        QTest::keyClick(f.of<QTableWidget>(f.form->grid), Qt::Key_Down);
        QTest::keyClick(f.of<QTableWidget>(f.form->grid), Qt::Key_Down);
        QCOMPARE(f.form->grid.picked(), 1);
        QCOMPARE(f.of<QTableWidget>(f.form->grid)->currentRow(), 1);
        QVERIFY(f.form->list.selected() >= 0);
    }

    void whatCodeWritesIsPaintedAndNotSentBack() {
        Fixture f;
        int changes = 0;
        f.form->text.onChange = [&] { ++changes; };
        f.form->text.setText("from code");
        QCOMPARE(f.of(f.form->text)->text(), QStringLiteral("from code"));
        QCOMPARE(changes, 1);
        f.painted = 0;
        f.form->text.setText("from code");
        QCOMPARE(f.painted, 0);
        QCOMPARE(changes, 1);
    }

    void timersRunByTheClockAndStandStillWhileABoxWaits() {
        Fixture f;
        DeskClock clock(f.desk);
        int fired = 0;
        f.form->timer.onTimer = [&] { ++fired; };
        f.form->timer.setEnabled(true);
        clock.timersChanged();
        QTest::qWait(250);
        QCOMPARE(fired, 2);
        clock.hold();
        QTest::qWait(250);
        QCOMPARE(fired, 2);
        clock.release();
        QTRY_COMPARE_WITH_TIMEOUT(fired, 3, 120);
    }
};

} // namespace lodge

QTEST_MAIN(lodge::FieldsTest)

#include "fields_test.moc"
