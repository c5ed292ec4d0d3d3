// The program by keyboard alone: fields in the order of the paper, columns and lines of amounts, pages, lines
// by their numbers, the parts of the window, help.

#include "desktop.h"
#include "keys.h"
#include "ui/date_edit.h"
#include "ui/field_help.h"
#include "ui/go_to_window.h"
#include "ui/help_dock.h"
#include "ui/line_places.h"
#include "ui/page_list.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <set>

namespace lodge {

namespace {

constexpr const char* frame = "MDILodge";
constexpr const char* start = "frmLodgeStart";
constexpr const char* chooser = "frmLodgeChoose";
constexpr const char* page1 = "frmLodgePage1";
constexpr const char* page2 = "frmLodgePage2";
constexpr const char* item3 = "frmLodgePage3_3";
constexpr const char* item4 = "frmLodgePage3_4";
constexpr const char* item5 = "frmLodgePage4_5";

/// A company with both kinds of business whose return can be left page by page.
void beginReturn(Desktop& desktop) {
    User user(desktop.program.desk);
    user.type(desktop.control(start, "mskDate1"), "01012561");
    user.type(desktop.control(start, "mskDate2"), "31122561");
    user.click(desktop.control(start, "CmdOK1"));
    user.click(desktop.control(page1, "chkStatus(0)"));
    user.click(desktop.control(page1, "chkTaxType(0)"));
    user.click(desktop.control(page1, "chkTaxType(1)"));
    desktop.program.state.strFldPage1[24] = "471110";
    desktop.program.state.blnWebsiteAsked = true;
    desktop.form(page1).Form_Activate();
    user.type(desktop.control(page1, "txtNid"), "0105536000313");
    Desktop::settle();
}

/// A page as its design has it, both columns open.
void open(Desktop& desktop, const char* form) {
    desktop.program.state.strStartDDMMYY = "01012561";
    desktop.program.state.strFinishDDMMYY = "31122561";
    desktop.program.state.intInvestment = 1;
    desktop.program.state.intP1Box1 = 1;
    desktop.program.state.intP1Box2 = 1;
    desktop.program.desk.show(form);
    Desktop::settle();
}

void strikeFrame(Desktop& desktop, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? desktop.binder.frame() : focused, key, held);
    Desktop::settle();
}

/// Gives the next window that asks where to go its answer.
class NextAnswer {
  public:
    explicit NextAnswer(std::function<void(GoToWindow&)> what) : what_(std::move(what)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            if (auto* window = qobject_cast<GoToWindow*>(QApplication::activeModalWidget())) {
                timer_.stop();
                came_ = true;
                what_(*window);
            }
        });
        timer_.start(5);
    }
    [[nodiscard]] bool came() const { return came_; }

  private:
    std::function<void(GoToWindow&)> what_;
    QTimer timer_;
    bool came_ = false;
};

void answer(GoToWindow& window, const QString& text) {
    typeText(window.findChild<QLineEdit*>(), text);
    QTest::keyClick(window.findChild<QLineEdit*>(), Qt::Key_Return);
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

  private slots:
    void tabVisitsEveryFieldOfAPageOnceInTheOrderOfThePaper_data() {
        QTest::addColumn<QByteArray>("form");
        for (const char* form : {start, page1, page2, item3, item4, item5, "frmLodgePage4_6",
                 "frmLodgePage4_7", "frmLodgePage5_8", "frmLodgePage5_9", "frmLodgePage6_10",
                 "frmLodgePage6_11", "frmLodgePage7_12", "frmLodgePage8", "frmIHQ", chooser}) {
            QTest::newRow(form) << QByteArray(form);
        }
    }

    void tabVisitsEveryFieldOfAPageOnceInTheOrderOfThePaper() {
        QFETCH(QByteArray, form);
        Desktop desktop(application_.look);
        if (form != start) {
            open(desktop, form.constData());
        }
        QStringList expected;
        for (const Control* control : desktop.form(form).controls()) {
            if (canRestOn(*control) && desktop.binder.viewOf(form.constData())->find(*control) != nullptr) {
                expected << QString::fromStdString(control->fullName());
            }
        }
        QVERIFY(!expected.isEmpty());
        Control* first = desktop.form(form).find(expected.front().toStdString());
        User(desktop.program.desk).focus(*first);
        QStringList visited;
        do {
            visited << QString::fromStdString(desktop.program.desk.focus()->fullName());
            QCOMPARE(QApplication::focusWidget(), desktop.widget(form, visited.back().toUtf8().constData()));
            strike(Qt::Key_Tab);
        } while (desktop.program.desk.focus() != first && visited.size() <= expected.size());
        QCOMPARE(visited, expected);
    }

    void theLinesOfAPageOfAmountsFollowOneAnotherDownTheSheet_data() {
        QTest::addColumn<QByteArray>("form");
        for (const char* form : {item3, item4, item5, "frmLodgePage4_6", "frmLodgePage4_7", "frmLodgePage5_8",
                 "frmLodgePage5_9", "frmLodgePage6_10"}) {
            QTest::newRow(form) << QByteArray(form);
        }
    }

    void theLinesOfAPageOfAmountsFollowOneAnotherDownTheSheet() {
        QFETCH(QByteArray, form);
        Desktop desktop(application_.look);
        open(desktop, form.constData());
        const QWidget* root = desktop.binder.viewOf(form.constData())->root();
        QPoint before(-1, -1);
        for (const Control* control : desktop.form(form).controls()) {
            const ControlView* view = desktop.binder.viewOf(form.constData())->find(*control);
            if (view == nullptr || !canRestOn(*control) || control->kind() != ControlKind::TextBox) {
                continue;
            }
            const QPoint place = view->widget()->mapTo(root, QPoint());
            QVERIFY2(place.y() > before.y() || (place.y() == before.y() && place.x() > before.x()),
                control->fullName().c_str());
            before = place;
        }
    }

    void shiftEnterGoesBackAndTabTicksNothing() {
        Desktop desktop(application_.look);
        open(desktop, page1);
        User(desktop.program.desk).focus(desktop.control(page1, "chkStatus(0)"));
        strike(Qt::Key_Tab);
        QVERIFY(desktop.program.desk.focus() != &desktop.control(page1, "chkStatus(0)"));
        strike(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(page1, "chkStatus(0)"));
        QVERIFY(!desktop.widget<QAbstractButton>(page1, "chkStatus(0)")->isChecked());
        strike(Qt::Key_Space);
        QVERIFY(desktop.widget<QAbstractButton>(page1, "chkStatus(0)")->isChecked());
    }

    void arrowsStayInTheColumnAndPassComputedLines() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        User(desktop.program.desk).focus(desktop.control(item3, "txtMoney32(1)"));
        strike(Qt::Key_Down); // line 3 is computed
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney32(3)"));
        strike(Qt::Key_Up);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney32(1)"));
        strike(Qt::Key_Up);
        strike(Qt::Key_Up); // there is no line above the first
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney32(0)"));
    }

    void ctrlArrowsGoToTheOtherColumn() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        User(desktop.program.desk).focus(desktop.control(item5, "txtMoney52(0)"));
        strike(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item5, "txtMoney51(0)"));
        strike(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item5, "txtMoney52(0)"));
    }

    void escGivesAFieldBackWhatItHad() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        auto* amount = desktop.widget<QLineEdit>(item5, "txtMoney52(0)");
        User user(desktop.program.desk);
        user.type(desktop.control(item5, "txtMoney52(0)"), "1500");
        user.focus(desktop.control(item5, "txtMoney52(0)"));
        QCOMPARE(amount->text(), QStringLiteral("1500.00"));
        QCOMPARE(amount->selectedText(), amount->text());
        typeText(amount, QStringLiteral("7"));
        QCOMPARE(amount->text(), QStringLiteral("7"));
        strike(Qt::Key_Escape);
        QCOMPARE(amount->text(), QStringLiteral("1500.00"));
    }

    void escGivesADateBackAndThenClosesItsPopup() {
        Desktop desktop(application_.look);
        auto* date = desktop.widget<DateEdit>(start, "mskDate1");
        typeText(date, QStringLiteral("01012561"));
        strike(Qt::Key_Return);
        User(desktop.program.desk).focus(desktop.control(start, "mskDate1"));
        typeText(date, QStringLiteral("3"));
        QCOMPARE(date->digits(), QStringLiteral("3"));
        strike(Qt::Key_Escape);
        QCOMPARE(date->digits(), QStringLiteral("01012561"));
    }

    void anAmountIsTakenAsPeopleWriteIt_data() {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("plain");
        const auto row = [](const QString& written, const QString& plain) {
            QTest::newRow(written.toUtf8().constData()) << written << plain;
        };
        row(QStringLiteral("1,234,567.89"), QStringLiteral("1234567.89"));
        row(QStringLiteral("๑,๒๓๔.๕๐"), QStringLiteral("1234.50"));
        row(QStringLiteral("(1,234.50)"), QStringLiteral("-1234.50"));
        row(QStringLiteral("  ( 500 ) "), QStringLiteral("-500"));
        row(QStringLiteral("฿1,000"), QStringLiteral("1000"));
        row(QStringLiteral("฿ 1 000.25"), QStringLiteral("1000.25"));
        row(QStringLiteral("1\u00A0000.25 บาท"), QStringLiteral("1000.25"));
        row(QStringLiteral("-1,500"), QStringLiteral("-1500"));
        row(QStringLiteral("\u22121500"), QStringLiteral("-1500"));
        row(QStringLiteral("1500.00-"), QStringLiteral("-1500.00"));
        row(QStringLiteral("1500"), QStringLiteral("1500"));
        row(QStringLiteral("(5"), QStringLiteral("(5"));
        row(QStringLiteral("1.2.3"), QStringLiteral("1.2.3"));
        row(QStringLiteral("abc"), QStringLiteral("abc"));
    }

    void anAmountIsTakenAsPeopleWriteIt() {
        QFETCH(QString, written);
        QFETCH(QString, plain);
        Desktop desktop(application_.look);
        open(desktop, item5);
        User(desktop.program.desk).focus(desktop.control(item5, "txtMoney52(0)"));
        auto* amount = desktop.widget<QLineEdit>(item5, "txtMoney52(0)");
        QApplication::clipboard()->setText(written);
        QTest::keySequence(amount, QKeySequence::Paste);
        QCOMPARE(QString::fromStdString(desktop.control(item5, "txtMoney52(0)").reading()), plain);
        QCOMPARE(amount->text(), plain);
    }

    void separatorsMayBeTyped() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        User(desktop.program.desk).focus(desktop.control(item5, "txtMoney52(0)"));
        auto* amount = desktop.widget<QLineEdit>(item5, "txtMoney52(0)");
        typeText(amount, QStringLiteral("๑,234.5"));
        QCOMPARE(amount->text(), QStringLiteral("1234.5"));
        strike(Qt::Key_Return);
        QCOMPARE(amount->text(), QStringLiteral("1,234.50"));
        typeText(QApplication::focusWidget(), QStringLiteral("7")); // the next line, over nothing
        QCOMPARE(amount->text(), QStringLiteral("1,234.50"));
    }

    void aTextKeepsItsCommas() {
        Desktop desktop(application_.look);
        open(desktop, page1);
        User(desktop.program.desk).focus(desktop.control(page1, "txtSitename"));
        QApplication::clipboard()->setText(QStringLiteral("1,000"));
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste);
        QCOMPARE(desktop.widget<QLineEdit>(page1, "txtSitename")->text(), QStringLiteral("1,000"));
    }

    void aMaskBeginsAtItsFirstGap() {
        Desktop desktop(application_.look);
        auto* date = desktop.widget<DateEdit>(start, "mskDate1");
        date->setFocus();
        QCOMPARE(date->cursorPosition(), 0);
        typeText(date, QStringLiteral("0101"));
        User user(desktop.program.desk);
        const NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        strike(Qt::Key_Return); // half a date is none, so the focus comes back
        Desktop::settle();
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(start, "mskDate1"));
        QCOMPARE(date->cursorPosition(), date->digits().isEmpty() ? 0 : 6);
    }

    void pagesTurnByTheirCommandsAndStoreWhatWasTyped() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        strikeFrame(desktop, Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(desktop.form(page2).isShown());
        QCOMPARE(desktop.program.state.intPageCur, std::int16_t(2));
        strikeFrame(desktop, Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(desktop.form(item3).isShown());
        User(desktop.program.desk).type(desktop.control(item3, "txtMoney32(0)"), "1000");
        strikeFrame(desktop, Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(desktop.form(item4).isShown());
        QCOMPARE(desktop.program.state.strFldPage3_3[20], std::string("1000.00"));
        strikeFrame(desktop, Qt::Key_PageUp, Qt::ControlModifier);
        QVERIFY(desktop.form(item3).isShown());
        strikeFrame(desktop, Qt::Key_PageUp, Qt::ControlModifier);
        strikeFrame(desktop, Qt::Key_PageUp, Qt::ControlModifier);
        QVERIFY(desktop.form(page1).isShown());
        strikeFrame(desktop, Qt::Key_PageUp, Qt::ControlModifier); // there is none before it
        QVERIFY(desktop.form(page1).isShown());
    }

    void aRefusedPageIsNotLeft() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        desktop.program.state.strFldPage1[24] = ""; // no business line
        const NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        strikeFrame(desktop, Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(box.came());
        QVERIFY(desktop.form(page1).isShown());
    }

    void aLineIsGoneToByItsNumber() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        const NextAnswer there([](GoToWindow& window) { answer(window, QStringLiteral("๓.๒")); });
        strikeFrame(desktop, Qt::Key_G, Qt::ControlModifier);
        QVERIFY(there.came());
        QVERIFY(desktop.form(item3).isShown());
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney31(1)"));
        const NextAnswer again([](GoToWindow& window) { answer(window, QStringLiteral("3.11")); });
        strikeFrame(desktop, Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney31(10)"));
    }

    void aNumberThatTheFormDoesNotHaveIsSaidAndEscLeavesAllAsItWas() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        QString note;
        const NextAnswer wrong([&](GoToWindow& window) {
            answer(window, QStringLiteral("3.99"));
            for (const QLabel* label : window.findChildren<QLabel*>()) {
                note +=
                    label->property("tone").toString() == QLatin1String("stop") ? label->text() : QString();
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        strikeFrame(desktop, Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(note, QStringLiteral("ไม่มี 3.99 ในแบบ"));
        QVERIFY(desktop.form(page1).isShown());
        QVERIFY(!QApplication::activeModalWidget());
    }

    void thePageListIsChosenFromByArrows() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        int closed = 0;
        const NextAnswer list([&](GoToWindow& window) {
            const auto* rows = window.findChild<QListWidget*>();
            for (int row = 0; row < rows->count(); ++row) {
                closed += rows->item(row)->flags() == Qt::NoItemFlags ? 1 : 0;
            }
            for (int i = 0; i < 3; ++i) {
                QTest::keyClick(window.findChild<QLineEdit*>(), Qt::Key_Down);
            }
            QTest::keyClick(window.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        strikeFrame(desktop, Qt::Key_F4);
        QVERIFY(list.came());
        QCOMPARE(closed, 1); // the attachment, for an international headquarters alone
        QVERIFY(desktop.form(item3).isShown());
    }

    void aDigitOnTheChooserBeginsANumber() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        strikeFrame(desktop, Qt::Key_F3);
        QVERIFY(desktop.form(chooser).isShown());
        const NextAnswer number(
            [](GoToWindow& window) { QTest::keyClick(window.findChild<QLineEdit*>(), Qt::Key_Return); });
        typeText(QApplication::focusWidget(), QStringLiteral("5"));
        Desktop::settle();
        QVERIFY(number.came());
        QVERIFY(desktop.form(item5).isShown());
    }

    void arrowsGoOverTheCardsAsTheyStand() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        strikeFrame(desktop, Qt::Key_F3);
        User(desktop.program.desk).focus(desktop.control(chooser, "cmdItem01"));
        strike(Qt::Key_Right);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(chooser, "cmdItem03"));
        strike(Qt::Key_Down);
        const QRect above = desktop.widget(chooser, "cmdItem03")->geometry();
        QCOMPARE(QApplication::focusWidget()->geometry().x(), above.x());
        QVERIFY(QApplication::focusWidget()->geometry().y() > above.y());
    }

    void theKeysOfTheToolbarPressItsButtons_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("held");
        QTest::addColumn<QByteArray>("button");
        const auto row = [](Qt::Key key, Qt::KeyboardModifiers held, const char* button) {
            QTest::addRow("%s by %x", button, unsigned(key) | held)
                << int(key) << int(held) << QByteArray(button);
        };
        row(Qt::Key_F2, Qt::NoModifier, "cmdPage1");
        row(Qt::Key_F3, Qt::NoModifier, "cmdChoose");
        row(Qt::Key_F5, Qt::NoModifier, "cmdSave2");
        row(Qt::Key_S, Qt::ControlModifier, "cmdSave2");
        row(Qt::Key_F9, Qt::NoModifier, "cmdSave1");
        row(Qt::Key_F12, Qt::NoModifier, "CmdPrint");
        row(Qt::Key_P, Qt::ControlModifier, "CmdPrint");
        row(Qt::Key_N, Qt::ControlModifier, "cmdPageFirst");
        row(Qt::Key_F4, Qt::AltModifier, "cmdExit");
    }

    void theKeysOfTheToolbarPressItsButtons() {
        QFETCH(int, key);
        QFETCH(int, held);
        QFETCH(QByteArray, button);
        Desktop desktop(application_.look);
        beginReturn(desktop);
        int pressed = 0;
        desktop.control(frame, button.constData()).onClick = [&] { ++pressed; };
        // From a field, where a person strikes it.
        User(desktop.program.desk).focus(desktop.control(page1, "txtSitename"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(held));
        QCOMPARE(pressed, 1);
        Desktop::settle();
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(page1, "txtSitename"));
    }

    void thePartsOfTheWindowTakeTurns() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        User(desktop.program.desk).focus(desktop.control(page1, "txtNid"));
        const QWidget* pages = desktop.binder.frame()->findChild<PageList*>()->list();
        strikeFrame(desktop, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), pages);
        strikeFrame(desktop, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), desktop.widget(frame, "cmdPage1"));
        strikeFrame(desktop, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), pages);
        strikeFrame(desktop, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), desktop.widget(page1, "txtNid"));
    }

    void aPageThatAToolBringsUpHasTheFocus() {
        Desktop desktop(application_.look);
        beginReturn(desktop);
        User(desktop.program.desk).focus(desktop.control(page1, "txtNid"));
        strikeFrame(desktop, Qt::Key_F3);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(chooser, "cmdItem01"));
        QCOMPARE(QApplication::focusWidget(), desktop.widget(chooser, "cmdItem01"));
        strikeFrame(desktop, Qt::Key_F2);
        QCOMPARE(&desktop.program.desk.focus()->form(), &desktop.form(page1));
    }

    void helpSpeaksOfTheFieldInHandFollowsItAndEscClosesIt() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        User(desktop.program.desk).focus(desktop.control(item3, "txtMoney32(1)"));
        const auto* dock = desktop.binder.frame()->findChild<HelpDock*>();
        QVERIFY(!dock->isVisible());
        strikeFrame(desktop, Qt::Key_F1);
        QVERIFY(dock->isVisible());
        QCOMPARE(QApplication::focusWidget(), desktop.widget(item3, "txtMoney32(1)"));
        const auto said = [&] {
            QString text;
            for (const QLabel* label : dock->findChildren<QLabel*>()) {
                text += label->text() + QLatin1Char('\n');
            }
            return text;
        };
        QVERIFY(said().contains(QStringLiteral("รายการที่ 3 ข้อ 2. ช่อง 2")));
        QVERIFY(said().contains(QStringLiteral("ต้องเท่ากับยอดรวมของรายการที่ 4")));
        strike(Qt::Key_Tab);
        QVERIFY(said().contains(QStringLiteral("รายการที่ 3 ข้อ 4. ช่อง 1")));
        strikeFrame(desktop, Qt::Key_Escape);
        QVERIFY(!dock->isVisible());
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item3, "txtMoney31(3)"));
    }

    void helpWhereThereIsNoFieldTellsTheKeys() {
        Desktop desktop(application_.look);
        User(desktop.program.desk).focus(desktop.control(start, "CmdOK1"));
        strikeFrame(desktop, Qt::Key_F1);
        const auto* dock = desktop.binder.frame()->findChild<HelpDock*>();
        QVERIFY(dock->isVisible());
        QString text;
        for (const QLabel* label : dock->findChildren<QLabel*>()) {
            text += label->text();
        }
        QVERIFY(text.contains(QStringLiteral("ไปช่องถัดไป")));
        QVERIFY(text.contains(QStringLiteral("Ctrl+G")));
    }

    void everyInputOfEveryPageHasHelp() {
        Desktop desktop(application_.look);
        QStringList silent;
        for (const std::string& name : desktop.program.desk.formNames()) {
            for (const Control* control : desktop.program.desk.loadedOrDesign(name).controls()) {
                const bool input = control->takesFocus() && control->kind() != ControlKind::CommandButton;
                if (input && control->isShown() && helpOn(*control).empty()) {
                    silent << QString::fromStdString(name + "." + control->fullName());
                }
            }
        }
        QCOMPARE(silent, QStringList());
    }

    void everyRowOfHelpIsForAControlThatIsThere() {
        Desktop desktop(application_.look);
        std::set<std::pair<std::string_view, std::string_view>> seen;
        for (const FieldHelp& help : fieldHelp()) {
            QVERIFY2(seen.emplace(help.form, help.control).second, std::string(help.control).c_str());
            const Form& form = desktop.program.desk.loadedOrDesign(help.form);
            const bool known = std::ranges::any_of(form.controls(), [&](const Control* control) {
                return control->fullName() == help.control || control->name() == help.control;
            });
            QVERIFY2(known, (std::string(help.form) + "." + std::string(help.control)).c_str());
        }
    }

    void helpTellsWhatBecomesOfAFigure() {
        Desktop desktop(application_.look);
        const auto help = [&](const char* form, const char* control) {
            return QString::fromStdString(helpOn(*desktop.program.desk.loadedOrDesign(form).find(control)));
        };
        QVERIFY(help(item3, "txtMoney31(1)").contains(QStringLiteral("หักออกในข้อ 3")));
        QVERIFY(help(item3, "txtMoney31(9)").contains(QStringLiteral("บวกเข้าในข้อ 12")));
        QVERIFY(help(item4, "txtMoney41(2)").contains(QStringLiteral("รายการที่ 5 ข้อ 17")));
        QVERIFY(help("frmLodgePage5_9", "txtMoney91(5)").contains(QStringLiteral("รายการที่ 8 ข้อ 15. ถึง 26.")));
        // A line of item 10 that the law of an earlier year left behind.
        QVERIFY(help("frmLodgePage6_10", "txtMoney101(11)").contains(QStringLiteral("ไม่นับรวม")));
    }

    void everyLineHasAPlaceOnAPageThatIsThere() {
        Desktop desktop(application_.look);
        const auto check = [&](const QString& line) {
            const std::optional<LinePlace> place = placeOfLine(line.toStdString());
            QVERIFY2(place.has_value(), qPrintable(line));
            const Form& form = desktop.program.desk.loadedOrDesign(place->form);
            for (const std::string& control : place->controls) {
                QVERIFY2(form.find(control) != nullptr, qPrintable(line));
            }
            QVERIFY2(!line.contains(QLatin1Char('.')) || !place->controls.empty(), qPrintable(line));
        };
        struct Lines {
            int item;
            int count;
        };
        for (const Lines& lines : {Lines{1, 4}, Lines{2, 6}, Lines{3, 22}, Lines{4, 9}, Lines{5, 17},
                 Lines{6, 7}, Lines{7, 5}, Lines{8, 35}, Lines{9, 7}, Lines{13, 5}}) {
            check(QString::number(lines.item));
            for (int line = 1; line <= lines.count; ++line) {
                check(QStringLiteral("%1.%2").arg(lines.item).arg(line));
            }
        }
        for (const char* line : {"3.75.1", "3.75.13", "11", "12.1.1", "12.2.6", "12.3.4", "12.3", "3.22."}) {
            check(QLatin1String(line));
        }
        for (const char* nowhere :
            {"", "0", "14", "3.23", "3.0", "4.10", "2.7", "x", "3.x", "12.4", ".", "-3"}) {
            QVERIFY2(!placeOfLine(nowhere).has_value(), nowhere);
        }
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::KeyboardTest)

#include "keyboard_test.moc"
