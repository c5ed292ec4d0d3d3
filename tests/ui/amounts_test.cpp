// The pages of amounts on real widgets: columns that agree, sums while one types, what stays on screen.

#include "desktop.h"
#include "keys.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "ui/amount_page.h"
#include "ui/amount_rows.h"
#include "ui/balance_tie.h"
#include "ui/link_label.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include <set>

namespace lodge {

namespace {

constexpr const char* item3 = "frmLodgePage3_3";
constexpr const char* item5 = "frmLodgePage4_5";
constexpr const char* item12 = "frmLodgePage7_12";

/// A page of a company with both kinds of business.
void open(Desktop& desktop, const char* form) {
    desktop.program.state.strStartDDMMYY = "01012561";
    desktop.program.state.strFinishDDMMYY = "31122561";
    desktop.program.state.intInvestment = 1;
    desktop.program.state.intP1Box1 = 1;
    desktop.program.state.intP1Box2 = 1;
    desktop.program.desk.show(form);
    Desktop::settle();
}

void typeAmount(Desktop& desktop, const char* form, const char* box, const QString& text) {
    QTest::mouseClick(desktop.widget(form, box), Qt::LeftButton);
    typeText(desktop.widget(form, box), text);
    QTest::keyClick(desktop.widget(form, box), Qt::Key_Return);
    Desktop::settle();
}

} // namespace

class AmountsTest : public QObject {
    Q_OBJECT

  private slots:
    void everyLineOfEveryScheduleHasACaption() {
        for (const Schedule& schedule : schedules) {
            QVERIFY(!itemName(schedule.item).empty());
            for (const ScheduleLine& line : scheduleLines(schedule)) {
                QVERIFY2(!scheduleCaption(schedule.item, line.cell).empty(),
                    qPrintable(QStringLiteral("item %1, cell %2").arg(schedule.item).arg(line.cell)));
            }
        }
    }

    void theColumnHeadsAndLine22StayWhileTheRowsScroll() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        const QWidget* root = desktop.binder.viewOf(item3)->root();
        const auto* area = root->findChild<QScrollArea*>();
        for (const QLabel* label : root->findChildren<QLabel*>()) {
            if (label->text() == QStringLiteral("ต้องเสียภาษีเงินได้")) {
                QVERIFY(!area->isAncestorOf(label));
            }
        }
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        QVERIFY(!area->isAncestorOf(desktop.widget(item3, "lblTotMoney33")));
        QVERIFY(area->isAncestorOf(desktop.widget(item3, "txtMoney31(0)")));
    }

    void aTypedCostIsComputedOnAndALossStandsInBrackets() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        typeAmount(desktop, item3, "txtMoney32(0)", QStringLiteral("1000"));
        typeAmount(desktop, item3, "txtMoney32(1)", QStringLiteral("2500.50"));
        QCOMPARE(desktop.widget<QLabel>(item3, "lblMoney32_03")->text(), QStringLiteral("(1,500.50)"));
        QCOMPARE(desktop.widget<QLabel>(item3, "lblMoney33(0)")->text(), QStringLiteral("1,000.00"));
        QVERIFY(desktop.widget<QAbstractButton>(item3, "chkLose3")->isChecked());
        QCOMPARE(desktop.widget(item3, "lblMoney32_03")->focusPolicy(), Qt::NoFocus);
    }

    void theSideBoxStandsOnlyWhereBothColumnsHaveFigures() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        const QWidget* row = desktop.widget(item3, "txtBOI")->parentWidget();
        QVERIFY(!row->isVisible());
        typeAmount(desktop, item3, "txtMoney31(0)", QStringLiteral("1000"));
        QVERIFY(!row->isVisible());
        typeAmount(desktop, item3, "txtMoney32(0)", QStringLiteral("1000"));
        QVERIFY(row->isVisible());
    }

    void theRowInHandIsTinted() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        QTest::mouseClick(desktop.widget(item5, "txtMoney52(1)"), Qt::LeftButton);
        Desktop::settle();
        QWidget* second = desktop.widget(item5, "txtMoney52(1)")->parentWidget();
        QCOMPARE(second->property("row").toByteArray(), QByteArray("hand"));
        QTest::mouseClick(desktop.widget(item5, "txtMoney52(2)"), Qt::LeftButton);
        Desktop::settle();
        QCOMPARE(second->property("row").toByteArray(), QByteArray());
    }

    void aClosedColumnTakesNoFigure() {
        Desktop desktop(application_.look);
        desktop.program.state.strStartDDMMYY = "01012561";
        desktop.program.state.strFinishDDMMYY = "31122561";
        desktop.program.state.intP1Box2 = 1;
        desktop.program.desk.show(item5);
        Desktop::settle();
        QVERIFY(!desktop.widget(item5, "txtMoney51(0)")->isEnabled());
        QVERIFY(desktop.widget(item5, "txtMoney52(0)")->isEnabled());
    }

    void theDifferenceOfTheSidesOfTheBalanceSheetFollowsTheTyping() {
        Desktop desktop(application_.look);
        open(desktop, item12);
        const auto* tie = desktop.binder.viewOf(item12)->root()->findChild<BalanceTie*>();
        QCOMPARE(tie->text(), QString());
        typeAmount(desktop, item12, "txtMoney2(0)", QStringLiteral("1500"));
        QCOMPARE(tie->text(), QStringLiteral("สองด้านต่างกัน 1,500.00"));
        typeAmount(desktop, item12, "txtMoney3(0)", QStringLiteral("1500"));
        QCOMPARE(tie->text(), QStringLiteral("สองด้านตรงกัน"));
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::AmountsTest)

#include "amounts_test.moc"
