// The program on real widgets, used as a person uses it. Runs offscreen, and under an X server for real keys.

#include "desktop.h"
#include "keys.h"
#include "ui/date_edit.h"
#include "ui/layouts.h"
#include "ui/page_scroll.h"
#include "ui/sheet_title.h"
#include "ui/tick_box.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <set>

namespace lodge {

namespace {

constexpr const char* start = "frmLodgeStart";

bool isBindable(const QWidget& widget) {
    return widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit")
           || widget.inherits("QAbstractButton") || widget.inherits("QComboBox")
           || widget.inherits("QAbstractItemView") || widget.inherits("QLabel") || widget.inherits("QFrame");
}

/// Widgets of a layout that must be controls: all that it names, but for what only decorates.
QStringList boundNames(QWidget& root) {
    QStringList names;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        const bool inside = name.isEmpty() || name.startsWith(QLatin1String("qt_"));
        if (!inside && isBindable(*widget) && !name.startsWith(QLatin1String("decor"))) {
            names << name;
        }
    }
    names.sort();
    return names;
}

/// Whether any line of the text of a widget is cut at its edges.
QString cutText(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* tick = qobject_cast<const TickBox*>(&widget);
    const auto* push = qobject_cast<const QPushButton*>(&widget);
    if (label != nullptr && label->pixmap().isNull()) {
        const QRect room(0, 0, label->contentsRect().width(), 10000);
        const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
        const QRect needed = label->fontMetrics().boundingRect(room, flags, label->text());
        if (needed.height() > label->height() || needed.width() > label->contentsRect().width() + 1) {
            return label->text();
        }
    }
    if (tick != nullptr && tick->heightForWidth(tick->width()) > tick->height()) {
        return tick->text();
    }
    const bool cutButton = push != nullptr && push->sizeHint().width() > push->width();
    return cutButton ? push->text() : QString();
}

/// The same of all that stands on screen in there, with the names of the widgets.
QStringList cutTextsIn(const QWidget& root) {
    QStringList cut;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (widget->isVisible() && !cutText(*widget).isEmpty()) {
            cut << widget->objectName() + QLatin1Char(' ') + cutText(*widget);
        }
    }
    return cut;
}

} // namespace

class ScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void everyLayoutBelongsToAForm() {
        const Desktop desktop(application_.look);
        for (const QString& name : layoutNames()) {
            QVERIFY2(name == QLatin1String("blank") || desktop.program.desk.knows(name.toStdString()),
                qPrintable(name));
        }
    }

    void everyVisibleControlHasExactlyOneWidgetAndTheReverse() {
        Desktop desktop(application_.look);
        for (const std::string& name : desktop.program.desk.formNames()) {
            const Form& form = desktop.program.desk.loadedOrDesign(name);
            const std::unique_ptr<QWidget> root = makeLayout(name);
            if (root == nullptr) {
                QVERIFY2(form.controls().empty(), name.c_str()); // may be shown as a blank page
                continue;
            }
            const QStringList named = boundNames(*root);
            QStringList known;
            for (const Control* control : form.controls()) {
                if (control->kind() == ControlKind::Timer) {
                    continue;
                }
                const qsizetype count = named.count(widgetName(*control));
                known << widgetName(*control);
                const bool must = control->isShown();
                QVERIFY2(count == 1 || (count == 0 && !must),
                    qPrintable(QStringLiteral("%1.%2 has %3 widgets")
                                   .arg(QString::fromStdString(name), widgetName(*control))
                                   .arg(count)));
            }
            for (const QString& widget : named) {
                QVERIFY2(known.contains(widget),
                    qPrintable(
                        QStringLiteral("%1 has no control %2").arg(QString::fromStdString(name), widget)));
            }
        }
    }

    void theWidgetsOfAContainerLieInItsWidget() {
        Desktop desktop(application_.look);
        for (const QString& name : layoutNames()) {
            if (!desktop.program.desk.knows(name.toStdString())) {
                continue;
            }
            const Form& form = desktop.program.desk.loadedOrDesign(name.toStdString());
            const std::unique_ptr<QWidget> root = makeLayout(name.toStdString());
            for (const Control* control : form.controls()) {
                if (control->container() == nullptr || control->kind() == ControlKind::Timer) {
                    continue;
                }
                const auto* inner = root->findChild<QWidget*>(widgetName(*control));
                const auto* outer = root->findChild<QWidget*>(widgetName(*control->container()));
                QVERIFY2(inner == nullptr || (outer != nullptr && outer->isAncestorOf(inner)),
                    control->fullName().c_str());
            }
        }
    }

    void page1DoesNotScrollSidewaysAtOneAndAHalfTimesTheSize() {
        application_.look.setZoom(1.5);
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        Desktop desktop(application_.look);
        desktop.program.state.strStartDDMMYY = "01012561";
        desktop.program.state.strFinishDDMMYY = "31122561";
        desktop.program.desk.unload(start);
        desktop.program.desk.show("frmLodgePage1");
        Desktop::settle();
        const QWidget& root = *desktop.binder.viewOf("frmLodgePage1")->root();
        QTRY_COMPARE(PageScroll::around(root)->horizontalScrollBar()->maximum(), 0);
    }

    void showingAFormAndGivingEachControlItsValueAgainChangesNothing() {
        Desktop desktop(application_.look);
        class Watch : public DeskObserver {
          public:
            void controlChanged(Control& control, Aspect /*aspect*/) override {
                seen << control.fullName().c_str();
            }
            QStringList seen;
        } watch;
        desktop.program.desk.observe(watch);
        Form& form = desktop.form(start);
        for (Control* control : form.controls()) {
            control->setEnabled(control->enabled());
            control->setVisible(control->visible());
            if (auto* box = dynamic_cast<TextBox*>(control)) box->setText(box->text());
            if (auto* box = dynamic_cast<MaskedBox*>(control)) box->setDigits(box->digits());
            if (auto* box = dynamic_cast<CheckBox*>(control)) box->setValue(box->value());
        }
        Desktop::settle();
        QCOMPARE(watch.seen, QStringList());
        desktop.program.desk.forget(watch);
    }

    void aFormIsBuiltWhenItIsFirstShown() {
        Desktop desktop(application_.look);
        QVERIFY(desktop.binder.viewOf("frmDialogAlert") == nullptr);
        desktop.program.desk.load("frmDialogAlert");
        QVERIFY(desktop.binder.viewOf("frmDialogAlert") == nullptr);
        desktop.program.desk.show("frmDialogAlert");
        QVERIFY(desktop.binder.viewOf("frmDialogAlert") != nullptr);
    }

    void theStartScreenBeginsAtTheFirstDate() {
        const Desktop desktop(application_.look);
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(start, "mskDate1"));
        QCOMPARE(QApplication::focusWidget(), desktop.widget(start, "mskDate1"));
        QCOMPARE(desktop.binder.frame()->windowTitle(),
            QStringLiteral("แบบแสดงรายการภาษีเงินได้นิติบุคคล ก.ข.ค.77 (Version 2561.00)"));
    }

    void aPeriodIsTypedByKeyboardAloneFromTheStartScreenToPage1() {
        Desktop desktop(application_.look);
        typeText(QApplication::focusWidget(), QStringLiteral("01012561"));
        strike(Qt::Key_Return);
        typeText(QApplication::focusWidget(), QStringLiteral("31122561"));
        // Enter moves on through the ticks, and ticks none of them.
        for (int i = 0; i < 12 && desktop.program.desk.focus() != &desktop.control(start, "CmdOK1"); ++i) {
            strike(Qt::Key_Return);
        }
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(start, "CmdOK1"));
        strike(Qt::Key_Space);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find(start) == nullptr);
        QVERIFY(desktop.program.desk.find("frmLodgePage1") != nullptr);
        QCOMPARE(desktop.widget<QLabel>("frmLodgePage1", "lblYear1")->text(), QStringLiteral("2561"));
        QCOMPARE(desktop.widget<QLabel>("frmLodgePage1", "lblMonth2")->text(), QStringLiteral("ธันวาคม"));
        QCOMPARE(QString::fromStdString(desktop.program.state.strStartDDMMYY), QStringLiteral("01012561"));
        QCOMPARE(desktop.program.state.intInvestment, 0);
    }

    void aRefusedDateTakesTheFocusBack() {
        Desktop desktop(application_.look);
        typeText(QApplication::focusWidget(), QStringLiteral("99999999"));
        QString text;
        NextBox box([&](BoxWindow& window) {
            text = window.text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
        strike(Qt::Key_Return);
        Desktop::settle();
        QVERIFY(box.came());
        QCOMPARE(text, QStringLiteral("M026 : กรุณาระบุ วัน เดือน ปี ให้ถูกต้อง"));
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(start, "mskDate1"));
        QCOMPARE(QApplication::focusWidget(), desktop.widget(start, "mskDate1"));
        QCOMPARE(desktop.widget(start, "mskDate1")->property("state").toByteArray(), QByteArray("refused"));
        typeText(QApplication::focusWidget(), QStringLiteral("0"));
        QCOMPARE(desktop.widget(start, "mskDate1")->property("state").toByteArray(), QByteArray("typed"));
    }

    void aRefusedDateKeepsTheClickFromHappening() {
        Desktop desktop(application_.look);
        typeText(QApplication::focusWidget(), QStringLiteral("99999999"));
        auto* tick = desktop.widget<QAbstractButton>(start, "ChkNewInvestment02");
        NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        QTest::mouseClick(tick, Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(!tick->isChecked());
        QCOMPARE(QApplication::focusWidget(), desktop.widget(start, "mskDate1"));
    }

    void aShortPeriodAsksAndCancelIsTheDefault() {
        Desktop desktop(application_.look);
        typeText(QApplication::focusWidget(), QStringLiteral("01012561"));
        strike(Qt::Key_Tab);
        typeText(QApplication::focusWidget(), QStringLiteral("31012561"));
        QStringList buttons;
        NextBox box([&](BoxWindow& window) {
            for (const QAbstractButton* button : window.buttons())
                buttons << button->text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
        QTest::mouseClick(desktop.widget(start, "CmdOK1"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QCOMPARE(buttons, QStringList({QStringLiteral("ตกลง"), QStringLiteral("ยกเลิก")}));
        QVERIFY(desktop.program.desk.find("frmLodgePage1") == nullptr); // Enter answered Cancel
    }

    void thaiDigitsAndAPastedDateAreTaken() {
        Desktop desktop(application_.look);
        auto* first = desktop.widget<DateEdit>(start, "mskDate1");
        typeText(first, QStringLiteral("๐๑๐๑๒๕๖๑"));
        QCOMPARE(first->text(), QStringLiteral("01/01/2561"));
        strike(Qt::Key_Tab);
        QApplication::clipboard()->setText(QStringLiteral("1/5/2561"));
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste);
        QCOMPARE(desktop.control(start, "mskDate2").reading(), std::string("01052561"));
        QCOMPARE(desktop.widget<DateEdit>(start, "mskDate2")->text(), QStringLiteral("01/05/2561"));
    }

    void rightButtonWithCtrlOnClearFillsTheDates() {
        Desktop desktop(application_.look);
        QTest::mouseClick(desktop.widget(start, "CmdClear1"), Qt::RightButton, Qt::ControlModifier);
        QCOMPARE(desktop.widget<DateEdit>(start, "mskDate1")->text(), QStringLiteral("01/01/2560"));
        QCOMPARE(desktop.widget<DateEdit>(start, "mskDate2")->text(), QStringLiteral("31/10/2560"));
        QTest::mouseClick(desktop.widget(start, "CmdClear1"), Qt::LeftButton);
        QCOMPARE(desktop.widget<DateEdit>(start, "mskDate1")->text(), QStringLiteral("__/__/____"));
        QCOMPARE(QApplication::focusWidget(), desktop.widget(start, "mskDate1"));
    }

    void oneInvestmentTakesTheTicksOfTheOthers() {
        Desktop desktop(application_.look);
        auto* first = desktop.widget<TickBox>(start, "ChkNewInvestment01");
        auto* third = desktop.widget<TickBox>(start, "ChkNewInvestment03");
        QTest::mouseClick(first, Qt::LeftButton, Qt::NoModifier, QPoint(8, 12));
        QVERIFY(first->isChecked());
        QTest::mouseClick(third, Qt::LeftButton, Qt::NoModifier, QPoint(8, 12));
        QVERIFY(third->isChecked());
        QVERIFY(!first->isChecked());
    }

    void onlyExitIsOpenOnTheStartScreenAndItAsks() {
        Desktop desktop(application_.look);
        QVERIFY(!desktop.widget("MDILodge", "cmdSave1")->isEnabled());
        QVERIFY(desktop.widget("MDILodge", "cmdExit")->isEnabled());
        QWidget* before = QApplication::focusWidget();
        QStringList buttons;
        NextBox box([&](BoxWindow& window) {
            for (const QAbstractButton* button : window.buttons())
                buttons << button->text();
            QTest::keyClick(&window, Qt::Key_Return); // the default is No
        });
        QTest::mouseClick(desktop.widget("MDILodge", "cmdExit"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QCOMPARE(buttons, QStringList({QStringLiteral("ใช่"), QStringLiteral("ไม่ใช่")}));
        QVERIFY(desktop.binder.frame() != nullptr);
        QCOMPARE(QApplication::focusWidget(), before); // back where the person was
    }

    void theCrossOfTheWindowAsksWhatExitAsks() {
        Desktop desktop(application_.look);
        NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Escape); });
        desktop.binder.frame()->close();
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(desktop.binder.frame()->isVisible());
    }

    void aKeyOfTheToolbarPressesOnlyAnOpenButton() {
        Desktop desktop(application_.look);
        int pressed = 0;
        auto& page1 = desktop.control("MDILodge", "cmdPage1");
        page1.onClick = [&] { ++pressed; };
        QTest::keyClick(desktop.binder.frame(), Qt::Key_F2);
        QCOMPARE(pressed, 0);
        page1.setEnabled(true);
        QTest::keyClick(desktop.binder.frame(), Qt::Key_F2);
        QTRY_COMPARE(pressed, 1);
    }

    void theNoticeStandsBeforeTheStartScreenAndEscClosesIt() {
        Desktop desktop(application_.look);
        QTest::mouseClick(desktop.widget(start, "cmdMessage"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find("frmDialogAlert") != nullptr);
        QWidget* notice = desktop.binder.viewOf("frmDialogAlert")->root();
        QVERIFY(notice->isWindow() && notice->isVisible());
        QTest::keyClick(notice, Qt::Key_Escape);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find("frmDialogAlert") == nullptr);
        QVERIFY(desktop.binder.frame()->isVisible());
    }

    void theFrameShowsAPageAtATime() {
        Desktop desktop(application_.look);
        QWidget* first = desktop.binder.viewOf(start)->root();
        QVERIFY(first->isVisible());
        desktop.program.desk.show("frmLodgeChoose");
        QVERIFY(!first->isVisible());
        QVERIFY(desktop.binder.viewOf("frmLodgeChoose")->root()->isVisible());
        desktop.program.desk.unload("frmLodgeChoose");
        Desktop::settle();
        QVERIFY(first->isVisible());
    }

    void theVersionStandsInTheStatusBar() {
        const Desktop desktop(application_.look);
        auto* version = desktop.widget<QLabel>(start, "lbl_Version");
        QCOMPARE(version->text(), QStringLiteral("Version 2561.00"));
        QVERIFY(version->isVisible());
        QVERIFY(version->mapTo(desktop.binder.frame(), QPoint()).y() > desktop.binder.frame()->height() - 40);
    }

    void noTextIsCut_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("zoom");
        QTest::newRow("smallest") << QSize(1180, 640) << 1.0;
        QTest::newRow("usual") << QSize(1366, 768) << 1.0;
        QTest::newRow("4K") << QSize(3840, 2160) << 1.0;
        QTest::newRow("reduced") << QSize(1366, 768) << 0.75;
        QTest::newRow("enlarged") << QSize(1366, 768) << 1.5;
        QTest::newRow("doubled") << QSize(1366, 768) << 2.0;
    }

    void noTextIsCut() {
        QFETCH(QSize, size);
        QFETCH(double, zoom);
        application_.look.setZoom(zoom);
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        Desktop desktop(application_.look);
        desktop.program.state.strStartDDMMYY = "01012561";
        desktop.program.state.strFinishDDMMYY = "31122561";
        desktop.binder.frame()->resize(size);
        for (const QString& name : layoutNames()) {
            if (name == QLatin1String("MDILodge") || !desktop.program.desk.knows(name.toStdString())) {
                continue; // the frame is there already
            }
            desktop.program.desk.show(name.toStdString());
            Desktop::settle();
            const QWidget* root = desktop.binder.viewOf(name.toStdString())->root();
            // A page that changes its shape for want of room is laid out more than once.
            QStringList cut;
            const auto isWhole = [&] {
                cut = cutTextsIn(*root);
                return cut.isEmpty();
            };
            (void)QTest::qWaitFor(isWhole, 2000);
            QVERIFY2(cut.isEmpty(), qPrintable(name + QStringLiteral(": ") + cut.join(QStringLiteral("; "))));
            for (const auto* area : root->findChildren<QScrollArea*>()) {
                QVERIFY2(!area->isVisible() || area->widget()->width() <= area->viewport()->width(),
                    qPrintable(QStringLiteral("%1 needs %2 and has %3")
                                   .arg(name)
                                   .arg(area->widget()->width())
                                   .arg(area->viewport()->width())));
            }
            if (name != QLatin1String(start)) {
                desktop.program.desk.unload(name.toStdString());
            }
        }
    }

    void theMakersToolsComeUpOnlyWithAllThreeKeysHeld() {
        Desktop desktop(application_.look);
        auto* mark = desktop.widget("MDILodge", "Picture1");
        auto* code = desktop.widget("MDILodge", "Label1");
        QTest::mouseClick(mark, Qt::LeftButton);
        QVERIFY(!code->isVisible());
        QTest::mouseClick(mark, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
        QVERIFY(code->isVisible());
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::ScreensTest)

#include "screens_test.moc"
