// The pages of amounts on real widgets: columns that agree, sums while one types, what stays on screen.

#include "desktop.h"
#include "keys.h"
#include "pages/schedules/item3_lines.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "ui/amount_page.h"
#include "ui/amount_rows.h"
#include "ui/link_label.h"
#include "ui/page_list.h"
#include "ui/page_scroll.h"
#include "ui/tie_tag.h"
#include "ui/two_columns.h"
#include "ui/type.h"
#include "ui/veil.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <set>

namespace lodge {

namespace {

constexpr const char* item3 = "frmLodgePage3_3";
constexpr const char* item5 = "frmLodgePage4_5";
constexpr const char* item11 = "frmLodgePage6_11";
constexpr const char* item11Popup = "frmLodgePage6_11Popup";
constexpr const char* item12 = "frmLodgePage7_12";
constexpr const char* page2 = "frmLodgePage2";

QWidget& rootOf(const Desktop& desktop, const char* form) { return *desktop.binder.viewOf(form)->root(); }

QLabel* labelOf(const QWidget& root, const QString& text) {
    const QList<QLabel*> labels = root.findChildren<QLabel*>();
    const auto found = std::find_if(
        labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == text; });
    return found == labels.end() ? nullptr : *found;
}

/// Where a widget begins and ends from left to right.
QPair<int, int> edgesOf(const QWidget& root, const QWidget& widget) {
    const int left = widget.mapTo(&root, QPoint()).x();
    return {left, left + widget.width()};
}

QPair<int, int> edgesOf(const QWidget& root, const QString& name) {
    return edgesOf(root, *root.findChild<QWidget*>(name));
}

/// A page of a company with both kinds of business.
void open(Desktop& desktop, const char* form) {
    desktop.program.state.strStartDDMMYY = "01012561";
    desktop.program.state.strFinishDDMMYY = "31122561";
    desktop.program.state.intInvestment = 1;
    desktop.program.state.ChkInvestmentFlag1 = 1;
    desktop.program.state.intP1Box1 = 1;
    desktop.program.state.intP1Box2 = 1;
    desktop.program.desk.show(form);
    Desktop::settle();
}

/// The same with the list of pages beside it.
void openInReturn(Desktop& desktop, const char* form) {
    desktop.program.desk.unload("frmLodgeStart");
    open(desktop, form);
    QVERIFY(desktop.binder.frame()->findChild<PageList*>()->isVisible());
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

    void theSideBoxIsHeadedAsTheWorksheetThatItIs() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        const QLabel* heading = labelOf(
            rootOf(desktop, item3), QStringLiteral("กระดาษทำการสำหรับ บริษัทที่ประกอบทั้งกิจการที่ได้รับยกเว้น..."));
        const QLabel* task = labelOf(rootOf(desktop, item3),
            QStringLiteral("กรุณาบันทึก ข้อ 22 กำไรสุทธิที่ต้องเสียภาษี หรือขาดทุนสุทธิ ตามหลักเกณฑ์ ..."));
        QVERIFY(heading != nullptr && task != nullptr);
        QVERIFY(!heading->isVisible());
        typeAmount(desktop, item3, "txtMoney31(0)", QStringLiteral("1000"));
        typeAmount(desktop, item3, "txtMoney32(0)", QStringLiteral("1000"));
        QVERIFY(heading->isVisible() && task->isVisible());
    }

    void line18HasBothOfItsCaptions() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        QVERIFY(labelOf(rootOf(desktop, item3),
                    QStringLiteral("บวก รายจ่ายเพื่อสนับสนุนการกีฬาตามโครงการฯ\nส่วนที่เกินร้อยละ 20 ของกำไรสุทธิ\n"
                                   "บวก รายจ่ายส่วนที่เกินร้อยละ 5 ของกำไรสุทธิ"))
                != nullptr);
    }

    void theRemarkOfLine9StandsBesideItsTicksAndThePageBesideItsList() {
        Desktop desktop(application_.look);
        openInReturn(desktop, item3);
        QVERIFY(!desktop.binder.frame()->findChild<PageList*>()->isNarrow());
        const QWidget& root = rootOf(desktop, item3);
        const QLabel* remark = labelOf(root, QStringLiteral("ตามบัญชีกำไรขาดทุน"));
        const QWidget* tick = desktop.widget(item3, "chkLose9");
        QTRY_VERIFY(remark->mapTo(&root, QPoint()).x() > edgesOf(root, *tick).second);
        QVERIFY(remark->width() >= remark->fontMetrics().horizontalAdvance(remark->text()));
    }

    void atOneAndAHalfTimesTheSizeItem3DoesNotScrollSideways() {
        application_.look.setZoom(1.5);
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        Desktop desktop(application_.look);
        desktop.program.state.strFldPage3_4[17] = "12500.00"; // item 4, taxable business
        openInReturn(desktop, item3);
        QVERIFY(desktop.binder.frame()->findChild<PageList*>()->isNarrow());
        const QWidget& root = rootOf(desktop, item3);
        QTRY_COMPARE(PageScroll::around(root)->horizontalScrollBar()->maximum(), 0);
        const auto* tie = desktop.widget(item3, "txtMoney32(1)")->parentWidget()->findChild<TieTag*>();
        QTRY_VERIFY(tie->width() < zoomed(30)); // its icon
        QCOMPARE(tie->toolTip(), QStringLiteral("ต่าง 12,500.00"));
        QCOMPARE(tie->accessibleDescription(), QStringLiteral("ต่าง 12,500.00"));
        const QLabel* origin = labelOf(root, QStringLiteral("จากรายการที่ 4 9."));
        QVERIFY(!origin->isVisible());
        application_.look.setZoom(1);
        QTRY_VERIFY(origin->isVisible());
    }

    void onANarrowPageAPressOnTheMarkLeadsToTheItem() {
        Desktop desktop(application_.look);
        desktop.binder.frame()->setMinimumWidth(0);
        desktop.binder.frame()->resize(960, 700);
        open(desktop, item3);
        desktop.program.shell().EnableTools(true);
        NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        auto* mark = desktop.widget(item3, "txtMoney32(1)")->parentWidget()->findChild<SourceCell*>();
        QTRY_COMPARE(mark->toolTip(), QStringLiteral("จากรายการที่ 4 9."));
        QTest::mouseClick(mark, Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(desktop.program.desk.find("frmLodgePage3_4") != nullptr);
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
        const auto* tie = rootOf(desktop, item12).findChild<TieTag*>();
        QCOMPARE(tie->text(), QString());
        typeAmount(desktop, item12, "txtMoney2(0)", QStringLiteral("1500"));
        QCOMPARE(tie->text(), QStringLiteral("ต่าง 1,500.00"));
        typeAmount(desktop, item12, "txtMoney3(0)", QStringLiteral("1500"));
        QCOMPARE(tie->text(), QStringLiteral("ตรงกัน"));
    }

    void theColumnsStandAtTheSamePlaceOnEveryPage() {
        Desktop desktop(application_.look);
        std::set<QPair<int, int>> first;
        std::set<QPair<int, int>> second;
        std::set<QPair<int, int>> total;
        for (const Schedule& schedule : schedules) {
            open(desktop, schedule.form);
            for (const ScheduleLine& line : scheduleLines(schedule)) {
                for (const Column column : allColumns) {
                    const QString name =
                        controlWidgetName(controlName(schedule, line, column), controlIndex(line, column));
                    auto& places = column == Column::Exempt    ? first
                                   : column == Column::Taxable ? second
                                                               : total;
                    places.insert(edgesOf(rootOf(desktop, schedule.form), name));
                }
            }
            desktop.program.desk.unload(schedule.form);
        }
        open(desktop, item3);
        for (const Item3Line& line : item3Lines()) {
            if (!line.isComputed()) {
                first.insert(edgesOf(rootOf(desktop, item3), controlWidgetName("txtMoney31", line.place)));
                second.insert(edgesOf(rootOf(desktop, item3), controlWidgetName("txtMoney32", line.place)));
                total.insert(edgesOf(rootOf(desktop, item3), controlWidgetName("lblMoney33", line.place)));
            }
        }
        typeAmount(desktop, item3, "txtMoney31(0)", QStringLiteral("1000"));
        typeAmount(desktop, item3, "txtMoney32(0)", QStringLiteral("1000")); // now the side box stands, too
        total.insert(edgesOf(rootOf(desktop, item3), QStringLiteral("txtBOI")));
        total.insert(edgesOf(rootOf(desktop, item3), QStringLiteral("lblTotMoney33")));
        QCOMPARE(first.size(), std::size_t{1});
        QCOMPARE(second.size(), std::size_t{1});
        QCOMPARE(total.size(), std::size_t{1});
    }

    void theHeadOfAColumnEndsWhereItsFiguresEnd() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        const QWidget& root = rootOf(desktop, item5);
        for (const auto& [head, box] : {std::pair("ช่อง 1", "txtMoney51_0"),
                 std::pair("ช่อง 2", "txtMoney52_0"), std::pair("รวม", "lblMoney53_0")}) {
            const QLabel* label = labelOf(root, QString::fromUtf8(head));
            QVERIFY(label != nullptr);
            QCOMPARE(edgesOf(root, *label).second, edgesOf(root, QLatin1String(box)).second);
        }
    }

    void aComputedLineStandsOnABandAndIsPassedByTheTabKey() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        const QWidget* sum = desktop.widget(item5, "lblMoney51_04");
        QCOMPARE(sum->parentWidget()->property("role").toByteArray(), QByteArray("sum"));
        QCOMPARE(sum->focusPolicy(), Qt::NoFocus);
        QTest::mouseClick(desktop.widget(item5, "txtMoney52(2)"), Qt::LeftButton);
        strike(Qt::Key_Tab); // line 3, and then line 5: line 4 between them is computed
        Desktop::settle();
        QCOMPARE(desktop.program.desk.focus(), &desktop.control(item5, "txtMoney51(4)"));
    }

    void aClosingBracketHangsBehindTheColumn() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        typeAmount(desktop, item3, "txtMoney31(0)", QStringLiteral("1000"));
        typeAmount(desktop, item3, "txtMoney32(1)", QStringLiteral("2500"));
        const auto* gain = desktop.widget<QLabel>(item3, "lblMoney31_03");
        const auto* loss = desktop.widget<QLabel>(item3, "lblMoney32_03");
        QCOMPARE(loss->text(), QStringLiteral("(2,500.00)"));
        QCOMPARE(gain->indent() - loss->indent(), gain->fontMetrics().horizontalAdvance(QLatin1Char(')')));
    }

    void aLineThatAgreesWithItsItemSaysSoAndElseByHowMuchNot() {
        Desktop desktop(application_.look);
        desktop.program.state.strFldPage3_4[17] = "17402000.00"; // item 4, taxable business
        open(desktop, item3);
        const auto* tie = desktop.widget(item3, "txtMoney32(1)")->parentWidget()->findChild<TieTag*>();
        QCOMPARE(tie->text(), QStringLiteral("ต่าง 17,402,000.00"));
        typeAmount(desktop, item3, "txtMoney32(1)", QStringLiteral("17402000"));
        QCOMPARE(tie->text(), QStringLiteral("ตรงกัน"));
        typeAmount(desktop, item3, "txtMoney31(1)", QStringLiteral("12500"));
        QCOMPARE(tie->text(), QStringLiteral("ต่าง 12,500.00"));
    }

    void theOriginOfALineLeadsToItsItem() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        desktop.program.shell().EnableTools(true); // as on any page of a return that was begun on page 1
        // A return without a number cannot be put aside on the way, which a box says.
        NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        auto* origin =
            qobject_cast<LinkLabel*>(labelOf(rootOf(desktop, item3), QStringLiteral("จากรายการที่ 4 9.")));
        QVERIFY(origin != nullptr);
        QTest::mouseClick(origin, Qt::LeftButton);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(desktop.program.desk.find("frmLodgePage3_4") != nullptr);
        QVERIFY(desktop.program.desk.find(item3) == nullptr);
    }

    void ctrlEnterInALineLeadsToItsItemToo() {
        Desktop desktop(application_.look);
        open(desktop, item3);
        desktop.program.shell().EnableTools(true);
        NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        QTest::mouseClick(desktop.widget(item3, "txtMoney32(3)"), Qt::LeftButton);
        strike(Qt::Key_Return, Qt::ControlModifier);
        Desktop::settle();
        QVERIFY(box.came());
        QVERIFY(desktop.program.desk.find("frmLodgePage4_6") != nullptr);
    }

    void aBoxThatTheFocusHasLeftIsNotSelected() {
        Desktop desktop(application_.look);
        open(desktop, item5);
        QTest::mouseClick(desktop.widget(item5, "txtMoney52(0)"), Qt::LeftButton);
        typeAmount(desktop, item5, "txtMoney52(1)", QStringLiteral("5"));
        static_cast<TextBox&>(desktop.control(item5, "txtMoney52(0)")).setText("7.00");
        QVERIFY(!desktop.widget<QLineEdit>(item5, "txtMoney52(0)")->hasSelectedText());
    }

    void item1FoldsToABandWhereNoBusinessIsPromoted() {
        Desktop desktop(application_.look);
        open(desktop, page2);
        const auto* folded = labelOf(rootOf(desktop, page2), QStringLiteral("เปิดเมื่อเลือกสถานะนี้ที่หน้าจอเริ่มต้น"));
        QVERIFY(!folded->isVisible()); // the company of these tests is promoted
        QVERIFY(desktop.widget(page2, "txtInvestID")->isVisible());
        static_cast<CheckBox&>(desktop.control(page2, "ChkNewInvestment01")).setValue(false);
        QVERIFY(folded->isVisible());
        QVERIFY(!desktop.widget(page2, "txtInvestID")->isVisible());
    }

    void theWorksheetHasTheRowsOfTheRatesThatAreOffered() {
        Desktop desktop(application_.look);
        open(desktop, page2);
        const auto* advice =
            labelOf(rootOf(desktop, page2), QStringLiteral("เปิดเมื่อเลือกข้อ 1 (1) กำไรสุทธิที่ต้องเสียภาษี"));
        QVERIFY(advice->isVisible());
        QVERIFY(!desktop.widget(page2, "txtIncome(0)")->isVisible());
        desktop.control(page2, "ChkBox_NewAtt(8)").setVisible(true);
        QVERIFY(!advice->isVisible());
        QVERIFY(desktop.widget(page2, "txtIncome(1)")->isVisible());
        QVERIFY(!desktop.widget(page2, "txtIncome(0)")->isVisible());
        desktop.control(page2, "ChkBox_NewAtt(1)").setVisible(true);
        QVERIFY(desktop.widget(page2, "txtIncome(0)")->isVisible());
    }

    void theWorksheetGoesBelowTheLinesOfANarrowPage() {
        Desktop desktop(application_.look);
        open(desktop, page2);
        const QWidget* lines = desktop.widget(page2, "txtMoney(2)");
        const QWidget* worksheet =
            rootOf(desktop, page2).findChild<QWidget*>(QStringLiteral("decorWorksheet"));
        const auto left = [&](const QWidget* widget) {
            return widget->mapTo(&rootOf(desktop, page2), QPoint()).x();
        };
        QVERIFY(left(worksheet) > left(lines));
        auto* columns = rootOf(desktop, page2).findChild<TwoColumns*>();
        columns->resize(800, columns->height());
        QVERIFY(columns->minimumSizeHint().width() < 800);
        Desktop::settle();
        QCOMPARE(static_cast<QBoxLayout*>(columns->layout())->direction(),
            QBoxLayout::LeftToRight); // the page is wide
        desktop.binder.frame()->setMinimumWidth(0);
        desktop.binder.frame()->resize(900, 768);
        Desktop::settle();
        QVERIFY(left(worksheet) < left(lines));
    }

    void item11LiesUnderAVeilWhileItsPopupAsks() {
        Desktop desktop(application_.look);
        open(desktop, item11);
        const auto* veil = rootOf(desktop, item11).findChild<Veil*>();
        QVERIFY(!veil->isVisible());
        QTest::mouseClick(desktop.widget(item11, "Command1"), Qt::LeftButton);
        Desktop::settle();
        const QWidget& popup = rootOf(desktop, item11Popup);
        QVERIFY(popup.isVisible() && !popup.isModal());
        QVERIFY(!rootOf(desktop, item11).isEnabled());
        QVERIFY(veil->isVisible());
        QCOMPARE(veil->geometry(), rootOf(desktop, item11).rect());
        QTest::mouseClick(desktop.widget(item11Popup, "cmdCan01"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(rootOf(desktop, item11).isEnabled());
        QVERIFY(!veil->isVisible());
    }

    void thePopupOfItem11LeavesTheNewestRowInView() {
        Desktop desktop(application_.look);
        open(desktop, item11);
        QTest::mouseClick(desktop.widget(item11, "Command1"), Qt::LeftButton);
        Desktop::settle();
        const QWidget* newest = desktop.widget(item11, "mskDateFrom(7)");
        QVERIFY(rootOf(desktop, item11Popup).geometry().bottom() < newest->mapToGlobal(QPoint()).y());
    }

    void theSumOfItem11StandsBesideTheCarriedLossAndSaysWhetherTheyAgree() {
        Desktop desktop(application_.look);
        desktop.program.state.intItem11Count = 1; // one period, or the carried loss were closed
        open(desktop, item11);
        static_cast<TextBox&>(desktop.control(item11, "txtSum")).setText("150,000.00");
        auto& carried = static_cast<TextBox&>(desktop.control(item11, "txtMoney1(42)"));
        carried.setText("150000");
        const auto* tie = rootOf(desktop, item11).findChild<TieTag*>();
        QCOMPARE(tie->text(), QStringLiteral("ตรงกัน"));
        carried.setText("149000");
        QCOMPARE(tie->text(), QStringLiteral("ต่าง 1,000.00"));
        const auto row = [&](const char* name) {
            return desktop.widget(item11, name)->geometry().center().y();
        };
        QCOMPARE(row("txtSum"), row("txtMoney1(42)"));
        QCOMPARE(desktop.widget<QLineEdit>(item11, "txtSum")->alignment() & Qt::AlignRight, Qt::AlignRight);
    }

    void whatAPersonCanReachLiesOnTheSheetAndOverlapsNothing_data() {
        QTest::addColumn<QString>("form");
        for (const char* form :
            {page2, "frmLodgePage1_2", "frm_incomeEdit", item3, item11, item11Popup, item12}) {
            QTest::newRow(form) << QString::fromLatin1(form);
        }
        for (const Schedule& schedule : schedules) {
            QTest::newRow(schedule.form) << QString::fromLatin1(schedule.form);
        }
    }

    void whatAPersonCanReachLiesOnTheSheetAndOverlapsNothing() {
        QFETCH(QString, form);
        Desktop desktop(application_.look);
        const std::string name = form.toStdString();
        if (name == item11Popup) {
            open(desktop, item11);
        }
        open(desktop, name.c_str());
        const QWidget& root = rootOf(desktop, name.c_str());
        // In a page that scrolls the sheet is what the scroll bar leads through.
        const auto* area = root.findChild<QScrollArea*>();
        QList<QPair<QString, QRect>> seen;
        for (const Control* control : desktop.form(name.c_str()).controls()) {
            const ControlView* view = desktop.binder.viewOf(name)->find(*control);
            const bool contains =
                control->kind() == ControlKind::Frame || control->kind() == ControlKind::Picture;
            if (view == nullptr || contains || !control->isShown()) {
                continue;
            }
            const QWidget* widget = view->widget();
            QVERIFY2(widget->isVisible() || !control->isOpen() || !control->takesFocus(),
                control->fullName().c_str());
            if (!widget->isVisible()) {
                continue; // closed, and folded away
            }
            const bool scrolls = area != nullptr && area->widget()->isAncestorOf(widget);
            const QWidget* sheet = scrolls ? area->widget() : &root;
            const QRect place(widget->mapTo(sheet, QPoint()), widget->size());
            QVERIFY2(sheet->rect().contains(place), control->fullName().c_str());
            const QRect onRoot(widget->mapTo(&root, QPoint()), widget->size());
            for (const auto& [other, otherPlace] : seen) {
                QVERIFY2(!otherPlace.intersects(onRoot) || scrolls != other.startsWith(QLatin1Char('s')),
                    qPrintable(
                        other + QStringLiteral(" and ") + QString::fromStdString(control->fullName())));
            }
            seen.append({(scrolls ? QLatin1String("s ") : QLatin1String("f "))
                             + QString::fromStdString(control->fullName()),
                onRoot});
        }
        QVERIFY(!seen.isEmpty());
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::AmountsTest)

#include "amounts_test.moc"
