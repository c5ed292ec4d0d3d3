// The list of what is in the way on the desktop: it follows what is typed, leads to the field, and changes
// nothing by itself.
#include "desktop.h"
#include "shell/page_table.h"
#include "ui/card_button.h"
#include "ui/page_list.h"
#include "ui/problem_dock.h"
#include "ui/sheet_title.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QTreeView>

namespace lodge {

namespace {

constexpr const char* soundReturn = LODGE_TEST_DATA "/returns/ordinary-company/01055360003132561100C.txt";
constexpr const char* damagedReturn = LODGE_TEST_DATA "/returns/damaged-line-17/01055360003132561100N.txt";
constexpr const char* withProblems = LODGE_TEST_DATA "/returns/two-problems/01055360003132561100N.txt";

} // namespace

class ProblemsTest : public QObject {
    Q_OBJECT

  private:
    TestApplication application_;
    std::unique_ptr<Desktop> desktop_;

    [[nodiscard]] ProblemDock* dock() const { return &desktop_->binder.problemDock(); }
    [[nodiscard]] ProblemButton* button() const {
        return desktop_->binder.frame()->findChild<ProblemButton*>();
    }
    [[nodiscard]] QString cell(int row, int column) const {
        return dock()->list()->model()->index(row, column).data().toString();
    }
    [[nodiscard]] int rows() const { return dock()->list()->model()->rowCount(); }

    void load(const char* path) {
        User user(desktop_->program.desk);
        user.type(desktop_->control("frmLodgeStart", "txtPath"), path);
        QTest::mouseClick(desktop_->widget("frmLodgeStart", "CmdOK2"), Qt::LeftButton);
        Desktop::settle();
    }
    /// To an item through the chooser, as a person goes.
    void open(const char* card) {
        strike(Qt::Key_F3);
        Desktop::settle();
        QTest::mouseClick(desktop_->widget("frmLodgeChoose", card), Qt::LeftButton);
        Desktop::settle();
    }
    [[nodiscard]] Control* focus() const { return desktop_->program.desk.focus(); }

  private slots:
    void init() { desktop_ = std::make_unique<Desktop>(application_.look); }
    void cleanup() { desktop_.reset(); }

    void theStartScreenHasNoReturnAndNoButton() {
        QVERIFY(!button()->isVisible());
        strike(Qt::Key_F7);
        QVERIFY(!dock()->isVisible());
    }

    void aSoundReturnSaysSoInTheStatusBarAndInTheDock() {
        load(soundReturn);
        QVERIFY(button()->isVisible());
        QCOMPARE(button()->text(), QStringLiteral("ไม่ติดขัด"));
        QTest::mouseClick(button(), Qt::LeftButton);
        QVERIFY(dock()->isVisible());
        QVERIFY(!dock()->list()->isVisible());
        QVERIFY(!dock()->hasFocusInside());
    }

    void theListShowsBothSidesAndTheirDifference() {
        load(withProblems);
        QCOMPARE(button()->text(), QStringLiteral("ติดขัด 2"));
        QCOMPARE(rows(), 2);
        QCOMPARE(cell(0, 1), QStringLiteral("รายการที่ 3"));
        QVERIFY(cell(0, 2).startsWith(QStringLiteral("M047 : ")));
        QCOMPARE(cell(0, 3), QStringLiteral("50,000.00 / 37,500.00"));
        QCOMPARE(cell(0, 4), QStringLiteral("12,500.00"));
        QCOMPARE(cell(1, 1), QStringLiteral("แบบแจ้งข้อความฯ"));
        QCOMPARE(cell(1, 3), QString());
    }

    void f7OpensTheListWithTheFocusAndClosesItAgain() {
        load(withProblems);
        strike(Qt::Key_F7);
        QVERIFY(dock()->isVisible());
        QVERIFY(dock()->hasFocusInside());
        QCOMPARE(dock()->list()->currentIndex().row(), 0);
        strike(Qt::Key_F7);
        Desktop::settle();
        QVERIFY(!dock()->isVisible());
        QVERIFY(focus() != nullptr);
    }

    void enterLeadsToTheFieldOnItsPage() {
        load(withProblems);
        strike(Qt::Key_F7);
        strike(Qt::Key_Return);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 33);
        QCOMPARE(focus(), &desktop_->control("frmLodgePage3_3", "txtMoney32(5)"));
        QVERIFY(dock()->isVisible());
        QVERIFY(!dock()->hasFocusInside());
    }

    void aDoubleClickLeadsToTheField() {
        load(withProblems);
        strike(Qt::Key_F7);
        QTreeView& list = *dock()->list();
        const QPoint place = list.visualRect(list.model()->index(1, 2)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 8);
        QCOMPARE(focus(), &desktop_->control("frmLodgePage8", "mskDate1"));
    }

    void f8GoesRoundTheProblemsWithTheListHidden() {
        load(withProblems);
        strike(Qt::Key_F8);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 33);
        strike(Qt::Key_F8);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 8);
        strike(Qt::Key_F8);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 33);
        strike(Qt::Key_F8, Qt::ShiftModifier);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 8);
        QVERIFY(!dock()->isVisible());
    }

    void itFollowsWhatIsTypedOnceTheFieldIsLeft() {
        load(withProblems);
        open("cmdItem07");
        desktop_->widget("frmLodgePage4_7", "txtMoney72(0)")->setFocus();
        Desktop::settle();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("50000"));
        Desktop::settle();
        QCOMPARE(rows(), 2); // nothing while somebody types
        strike(Qt::Key_Tab);
        Desktop::settle();
        QCOMPARE(rows(), 1);
        QVERIFY(cell(0, 2).startsWith(QStringLiteral("M067 : ")));
        QCOMPARE(button()->text(), QStringLiteral("ติดขัด 1"));
    }

    void itChangesNothingAndTakesNoFocus() {
        load(withProblems);
        open("cmdItem07");
        desktop_->widget("frmLodgePage4_7", "txtMoney72(0)")->setFocus();
        Desktop::settle();
        dock()->show();
        const std::string stored = desktop_->program.state.strFldPage4_7[9];
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("50000"));
        strike(Qt::Key_Tab);
        Desktop::settle();
        QCOMPARE(desktop_->program.state.strFldPage4_7[9], stored);
        QVERIFY(focus() != nullptr);
        QCOMPARE(focus()->form().name(), std::string("frmLodgePage4_7"));
        QVERIFY(!dock()->hasFocusInside());
    }

    void theSelectedProblemStaysWhenAnotherIsMended() {
        load(withProblems);
        strike(Qt::Key_F7);
        strike(Qt::Key_Down);
        QCOMPARE(dock()->list()->currentIndex().row(), 1);
        desktop_->program.state.strFldPage4_7[9] = "50000.00";
        desktop_->program.desk.show("frmLodgePage1");
        Desktop::settle();
        QCOMPARE(rows(), 1);
        QCOMPARE(dock()->list()->currentIndex().row(), 0);
        QVERIFY(cell(0, 2).startsWith(QStringLiteral("M067 : ")));
    }

    void theCardsOfTheChooserSayHowFarEachItemIs() {
        load(withProblems);
        strike(Qt::Key_F3);
        Desktop::settle();
        const auto card = [&](const char* name) {
            return desktop_->widget<CardButton>("frmLodgeChoose", name);
        };
        QCOMPARE(card("cmdItem03")->stateText(), QStringLiteral("ติดขัด 1"));
        QCOMPARE(card("cmdItem03")->figureText(), QStringLiteral("ข้อ 22 2,200,000.00"));
        QCOMPARE(card("cmdItem07")->stateText(), QStringLiteral("ดูรายการที่ 3"));
        QCOMPARE(card("cmdItem07")->figureText(), QStringLiteral("ข้อ 5 รวม 37,500.00"));
        QCOMPARE(card("cmdItem05")->stateText(), QStringLiteral("ว่าง"));
        QCOMPARE(card("cmdItem12")->stateText(), QStringLiteral("ไม่ติดขัด"));
        QCOMPARE(card("cmdItem13")->stateText(), QStringLiteral("ติดขัด 1"));
        QCOMPARE(card("cmdItemIHQ")->stateText(), QStringLiteral("เฉพาะสถานภาพ (9) กิจการ IHQ"));
        QVERIFY(card("cmdItem03")->accessibleDescription().contains(QStringLiteral("ติดขัด 1")));
    }

    void thePageListSaysTheSameAndLeadsToThePage() {
        load(withProblems);
        auto* pages = desktop_->binder.frame()->findChild<PageList*>();
        QVERIFY(pages->isVisible());
        QAbstractItemModel& model = *pages->list()->model();
        QCOMPARE(model.rowCount(), static_cast<int>(pageTable().size()));
        const auto said = [&](int row) {
            return model.index(row, 0).data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(said(0), QStringLiteral("หน้า 1: ไม่ติดขัด"));
        QCOMPARE(said(2), QStringLiteral("รายการที่ 3: ติดขัด 1"));
        QCOMPARE(said(6), QStringLiteral("รายการที่ 7: ดูรายการที่ 3"));
        QCOMPARE(pages->list()->currentIndex().row(), 0);
        const auto click = [&](int row) {
            QTest::mouseClick(pages->list()->viewport(), Qt::LeftButton, {},
                pages->list()->visualRect(model.index(row, 0)).center());
            Desktop::settle();
        };
        click(6);
        QCOMPARE(desktop_->program.state.intPageCur, 47);
        QCOMPARE(pages->list()->currentIndex().row(), 6);
        QVERIFY(focus() != nullptr);
        click(13); // closed for this filer
        QCOMPARE(desktop_->program.state.intPageCur, 47);
        click(0);
        QCOMPARE(desktop_->program.state.intPageCur, 1);
    }

    void aFieldInTheWayIsMarkedUntilItIsMended() {
        load(withProblems);
        open("cmdItem13");
        QWidget* date = desktop_->widget("frmLodgePage8", "mskDate1");
        QWidget* other = desktop_->widget("frmLodgePage8", "txtAuditDesc");
        QCOMPARE(date->property("state").toString(), QStringLiteral("way"));
        QVERIFY(date->toolTip().startsWith(QStringLiteral("M067 : ")));
        QVERIFY(date->accessibleDescription().contains(QStringLiteral("ติดขัด")));
        QVERIFY(other->toolTip().isEmpty());
        User(desktop_->program.desk).type(desktop_->control("frmLodgePage8", "mskDate1"), "10052562");
        Desktop::settle();
        QCOMPARE(date->property("state").toString(), QStringLiteral("typed"));
        QVERIFY(date->toolTip().isEmpty());
    }

    void aPageThatRefusesKeepsThePersonAndItsRow() {
        load(withProblems);
        User user(desktop_->program.desk);
        user.click(desktop_->control("frmLodgePage1", "chkAdd")); // without its number
        Desktop::settle();
        auto* pages = desktop_->binder.frame()->findChild<PageList*>();
        const NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        QTest::mouseClick(pages->list()->viewport(), Qt::LeftButton, {},
            pages->list()->visualRect(pages->list()->model()->index(3, 0)).center());
        Desktop::settle();
        QVERIFY(box.came());
        QCOMPARE(desktop_->program.state.intPageCur, 1);
        QCOMPARE(pages->list()->currentIndex().row(), 0);
    }

    void thePageListIsAColumnOfMarksWhereThereIsNoRoomForNames() {
        load(withProblems);
        auto* pages = desktop_->binder.frame()->findChild<PageList*>();
        QVERIFY(!pages->isNarrow());
        QCOMPARE(pages->width(), 184);
        const QWidget* tax = nullptr; // of the figures below the list
        for (const QLabel* label : pages->findChildren<QLabel*>()) {
            tax = label->text() == QStringLiteral("ภาษีที่คำนวณได้") ? label : tax;
        }
        QVERIFY(tax->isVisible());
        desktop_->binder.frame()->resize(1180, 640);
        Desktop::settle();
        QVERIFY(pages->isVisible() && pages->isNarrow());
        QTRY_COMPARE(pages->width(), 44);
        QVERIFY(!tax->isVisible());
        const QModelIndex third = pages->list()->model()->index(2, 0);
        QCOMPARE(third.data(Qt::AccessibleTextRole).toString(), QStringLiteral("รายการที่ 3: ติดขัด 1"));
        QCOMPARE(third.data(Qt::ToolTipRole).toString(), QStringLiteral("รายการที่ 3: ติดขัด 1"));
        QTest::mouseClick(
            pages->list()->viewport(), Qt::LeftButton, {}, pages->list()->visualRect(third).center());
        Desktop::settle();
        QCOMPARE(desktop_->program.state.intPageCur, 33);
        desktop_->binder.frame()->resize(1366, 768);
        QTRY_COMPARE(pages->width(), 184);
        strike(Qt::Key_F3);
        Desktop::settle();
        QVERIFY(!pages->isVisible()); // the cards say the same
    }

    void thePageListIsAColumnOfMarksWhereEverythingIsDrawnLarge() {
        load(soundReturn);
        auto* pages = desktop_->binder.frame()->findChild<PageList*>();
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        application_.look.setZoom(1.5);
        QVERIFY(pages->isNarrow());
        QTRY_COMPARE(pages->width(), 66);
        application_.look.setZoom(1);
        QVERIFY(!pages->isNarrow());
        QTRY_COMPARE(pages->width(), 184);
    }

    void longAmountsInTheListAreWhole() {
        load(withProblems);
        desktop_->program.state.strFldPage4_7[9] = "9999999999999.99";
        strike(Qt::Key_F7);
        strike(Qt::Key_F3);
        Desktop::settle();
        QTreeView& list = *dock()->list();
        QCOMPARE(cell(0, 3), QStringLiteral("50,000.00 / 9,999,999,999,999.99"));
        constexpr int padding = 16;
        for (const int column : {3, 4}) {
            const int needed = QFontMetrics(list.font()).horizontalAdvance(cell(0, column));
            QTRY_VERIFY(list.columnWidth(column) >= needed + padding);
        }
    }

    void theHeadOfTheListGrowsWithTheSizeAndLetsItsKeysGo() {
        load(withProblems);
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        application_.look.setZoom(2);
        strike(Qt::Key_F7);
        QTRY_COMPARE(dock()->titleBarWidget()->height(), 64);
        QTRY_VERIFY(dock()->width() <= desktop_->binder.frame()->width());
        QVERIFY(dock()->findChild<QToolButton*>()->isVisible());
        for (const QLabel* label : dock()->findChildren<QLabel*>()) {
            QTRY_VERIFY(label->text() != QStringLiteral("Shift+F8") || !label->isVisible());
        }
    }

    void theHeadOfTheSheetSaysHowMuchOfThePageIsInTheWay() {
        load(withProblems);
        const auto* onPage1 = desktop_->binder.viewOf("frmLodgePage1")->root()->findChild<SheetTag*>();
        QVERIFY(!onPage1->isVisible());
        open("cmdItem13");
        const auto* tag = desktop_->binder.viewOf("frmLodgePage8")->root()->findChild<SheetTag*>();
        QVERIFY(tag->isVisible());
        QCOMPARE(tag->text(), QStringLiteral("ติดขัด 1"));
        User(desktop_->program.desk).type(desktop_->control("frmLodgePage8", "mskDate1"), "10052562");
        Desktop::settle();
        QVERIFY(!tag->isVisible());
    }

    void aFieldInTheWayHasTheStopIconAtTheEndThatItsTextLeavesFree() {
        load(withProblems);
        open("cmdItem03");
        const auto stopInkIn = [](QWidget& field, int from, int to) {
            const QImage picture = field.grab().toImage();
            for (int x = from; x < to; ++x) {
                for (int y = 4; y < picture.height() - 4; ++y) { // within the border
                    const QColor ink = picture.pixelColor(x, y);
                    if (ink.red() > ink.green() + 100) return true; // of the colours of the look: stop alone
                }
            }
            return false;
        };
        QWidget* inTheWay = desktop_->widget("frmLodgePage3_3", "txtMoney32(5)");
        QWidget* sound = desktop_->widget("frmLodgePage3_3", "txtMoney32(3)");
        QTRY_VERIFY(stopInkIn(*inTheWay, 4, 26));
        QVERIFY(!stopInkIn(*inTheWay, 30, inTheWay->width() - 4));
        QVERIFY(!stopInkIn(*sound, 4, sound->width() - 4));
    }

    void aTickInTheWayIsMarkedToo() {
        load(soundReturn);
        desktop_->program.state.intAuditStatus = 0;
        strike(Qt::Key_F7);
        Desktop::settle();
        QStringList marked;
        for (const QAbstractButton* tick :
            desktop_->binder.viewOf("frmLodgePage1")->root()->findChildren<QAbstractButton*>()) {
            if (tick->property("state").toByteArray() == "way") marked << tick->objectName();
        }
        QVERIFY2(!marked.isEmpty(), qPrintable(cell(0, 2)));
    }

    void theStatusBarNamesTheLinesThatCouldNotBeReadWhileTheReturnIsOpen() {
        load(damagedReturn);
        const auto* damage =
            desktop_->binder.frame()->findChild<QLabel*>(QStringLiteral("decorStatusDamage"));
        QVERIFY(damage->isVisible());
        QCOMPARE(damage->text(), QStringLiteral("บรรทัดที่อ่านไม่ได้ 17"));
        strike(Qt::Key_F3);
        Desktop::settle();
        QVERIFY(damage->isVisible());
        desktop_->program.damagedLines = {17, 203};
        open("cmdItem03");
        QCOMPARE(damage->text(), QStringLiteral("บรรทัดที่อ่านไม่ได้ 17, 203"));
        const NextBox box([](BoxWindow& window) {
            for (QAbstractButton* answer : window.buttons()) {
                if (answer->text() == QStringLiteral("ใช่")) answer->click();
            }
        });
        QTest::mouseClick(desktop_->widget("MDILodge", "cmdPageFirst"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(!damage->isVisible());
    }

    void aNewReturnPutsTheListAway() {
        load(withProblems);
        const NextBox box([](BoxWindow& window) {
            for (QAbstractButton* answer : window.buttons()) {
                if (answer->text() == QStringLiteral("ใช่")) answer->click();
            }
        });
        QTest::mouseClick(desktop_->widget("MDILodge", "cmdPageFirst"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(desktop_->program.desk.find("frmLodgeStart") != nullptr);
        QVERIFY(!button()->isVisible());
        QCOMPARE(rows(), 0);
    }
};

} // namespace lodge

QTEST_MAIN(lodge::ProblemsTest)
#include "problems_test.moc"
