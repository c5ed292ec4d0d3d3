// The filer's pages on real widgets: page 1, the search for a business line, the notification form, the
// chooser and the store dialog.

#include "desktop.h"
#include "keys.h"
#include "pages/filer/isic_lookup.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page1.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include <array>

namespace lodge {

namespace {

constexpr const char* page1 = "frmLodgePage1";
constexpr const char* page8 = "frmLodgePage8";
constexpr const char* isic = "frmLodgeISIC";

/// The boxes as the paper has them: (1) to (9) down the left column, (10) to (18) down the right one.
constexpr std::array<std::array<int, 9>, 2> statusColumns = {{
    {0, 3, 4, 5, 6, 10, 13, 17, 16},
    {11, 14, 21, 8, 19, 20, 15, 23, 22},
}};

QByteArray statusBox(int index) { return "chkStatus(" + QByteArray::number(index) + ')'; }

QPoint placeOf(const QWidget& widget) { return widget.mapTo(widget.window(), QPoint()); }

/// The program with page 1 of a new return on screen.
class FilerDesktop : public Desktop {
  public:
    explicit FilerDesktop(const Look& look) : Desktop(look) {
        typeText(QApplication::focusWidget(), QStringLiteral("01012561"));
        strike(Qt::Key_Tab);
        typeText(QApplication::focusWidget(), QStringLiteral("31122561"));
        QTest::mouseClick(widget("frmLodgeStart", "CmdOK1"), Qt::LeftButton);
        settle();
    }

    void addBusinessLine(const char* code, const char* name) {
        program.state.strIsicCode.emplace_back(code);
        program.state.strIsicName.emplace_back(name);
    }

    /// The search for a business line among three.
    void openSearch(const char* button) {
        program.state.strIsicCode.clear();
        program.state.strIsicName.clear();
        addBusinessLine("463120", "การขายส่งผักและผลไม้");
        addBusinessLine("471110", "ซูเปอร์มาร์เก็ต");
        addBusinessLine("472110", "การขายปลีกเนื้อสัตว์");
        QTest::mouseClick(widget(page1, button), Qt::LeftButton);
        settle();
    }

    void tick(const char* form, const char* name) const {
        QTest::mouseClick(widget(form, name), Qt::LeftButton, Qt::NoModifier, QPoint(8, 12));
        settle();
    }
};

} // namespace

class FilerTest : public QObject {
    Q_OBJECT

  private slots:
    void theStatusBoxesStandInTwoColumnsInTheOrderOfThePaper() {
        const FilerDesktop desktop(application_.look);
        int number = 0;
        for (const auto& column : statusColumns) {
            QPoint above(-1, -1);
            for (const int index : column) {
                const auto* box = desktop.widget<QAbstractButton>(page1, statusBox(index).constData());
                QVERIFY2(
                    box->text().startsWith(QStringLiteral("(%1) ").arg(++number)), qPrintable(box->text()));
                const QPoint place = placeOf(*box);
                QVERIFY(above.x() < 0 || (place.x() == above.x() && place.y() > above.y()));
                above = place;
            }
        }
        QVERIFY(placeOf(*desktop.widget(page1, "chkStatus(11)")).x()
                > placeOf(*desktop.widget(page1, "chkStatus(0)")).x());
    }

    void thirteenDigitNumbersAreSetApartAndFit() {
        FilerDesktop desktop(application_.look);
        for (const char* name :
            {"txtNid", "txtAuditPinID", "txtAudOfficeNid", "txtAccPinID", "txtAccOfficeNid"}) {
            auto* edit = desktop.widget<QLineEdit>(page1, name);
            QCOMPARE(edit->font().letterSpacing(), 3.0);
            const int digits = edit->fontMetrics().horizontalAdvance(QStringLiteral("0105536000313"));
            QVERIFY(digits + 2 * 10 <= edit->width()); // with the padding and the border of a field
        }
    }

    void aClosedFieldLooksClosed() {
        FilerDesktop desktop(application_.look);
        QVERIFY(!desktop.widget(page1, "txtAddNo")->isEnabled());
        desktop.tick(page1, "chkAdd");
        QVERIFY(desktop.widget(page1, "txtAddNo")->isEnabled());
        QVERIFY(!desktop.widget<QAbstractButton>(page1, "chkNormal")->isChecked());
        desktop.tick(page1, "chkNormal");
        QVERIFY(!desktop.widget(page1, "txtAddNo")->isEnabled());
    }

    void theQuestionBeforeAChangeOfStatusComesBeforeTheBoxChanges() {
        FilerDesktop desktop(application_.look);
        desktop.tick(page1, "chkStatus(0)");
        desktop.program.state.DataCtrl_P1.StatusChanged = true; // a later page has been visited
        auto* first = desktop.widget<QAbstractButton>(page1, "chkStatus(0)");
        auto* next = desktop.widget<QAbstractButton>(page1, "chkStatus(6)");
        bool unchanged = false;
        NextBox box([&](BoxWindow& window) {
            unchanged = first->isChecked() && !next->isChecked();
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        desktop.tick(page1, "chkStatus(6)");
        QVERIFY(box.came());
        QVERIFY(unchanged);
        QVERIFY(first->isChecked());
        QVERIFY(!next->isChecked());
    }

    void aTitleIsFoundByTyping() {
        FilerDesktop desktop(application_.look);
        auto& titles = desktop.program.desk.find<frmLodgePage1>()->cboAccTitle;
        titles.setItems({"", "นาย", "นาง", "นางสาว", "ร้อยตรี", "พันตำรวจเอก"});
        titles.setFocus();
        Desktop::settle();
        auto* combo = desktop.widget<QComboBox>(page1, "cboAccTitle");
        typeText(combo, QStringLiteral("ร้อย"));
        QCOMPARE(combo->currentText(), QStringLiteral("ร้อยตรี"));
        QCOMPARE(titles.selected(), 4);
    }

    void theOpenListOfTitlesIsWideEnoughForTheLongest() {
        FilerDesktop desktop(application_.look);
        const std::string longest = "ผู้ช่วยศาสตราจารย์ว่าที่ร้อยตำรวจเอกหญิง";
        desktop.program.desk.find<frmLodgePage1>()->cboAuditTitle.setItems({"", longest});
        auto* combo = desktop.widget<QComboBox>(page1, "cboAuditTitle");
        const int needed = combo->fontMetrics().horizontalAdvance(QString::fromStdString(longest));
        QVERIFY(combo->view()->minimumWidth() >= needed);
    }

    void aBusinessLineIsFoundWhileItsNameIsTyped() {
        FilerDesktop desktop(application_.look);
        desktop.openSearch("cmdSISIC1(1)");
        const QWidget* dialog = desktop.binder.viewOf(isic)->root();
        QVERIFY(dialog->isVisible() && dialog->isModal());
        QCOMPARE(QApplication::focusWidget(), desktop.widget(isic, "txtSearch"));
        auto* grid = desktop.widget<QTableWidget>(isic, "gridISIC");
        typeText(QApplication::focusWidget(), QStringLiteral("ขาย"));
        QCOMPARE(grid->rowCount(), 2);
        typeText(QApplication::focusWidget(), QStringLiteral("ปลีก"));
        QCOMPARE(grid->rowCount(), 1);
        QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("472110"));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
            grid->visualItemRect(grid->item(0, 2)).center());
        QCOMPARE(desktop.widget<QPlainTextEdit>(isic, "txtISICName")->toPlainText(),
            QStringLiteral("การขายปลีกเนื้อสัตว์"));
        QTest::mouseClick(desktop.widget(isic, "cmdOk"), Qt::LeftButton);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find(isic) == nullptr);
        QCOMPARE(desktop.widget<QLabel>(page1, "lblISICName1(1)")->text(), QStringLiteral("การขายปลีกเนื้อสัตว์"));
        QCOMPARE(desktop.widget<QLabel>(page1, "lblISICCode1(1)")->text(), QStringLiteral("472110"));
    }

    void aCodeIsSearchedWhenItsSixthDigitIsTypedAndEscLeaves() {
        FilerDesktop desktop(application_.look);
        desktop.openSearch("cmdSISIC1(0)");
        const auto* grid = desktop.widget<QTableWidget>(isic, "gridISIC");
        desktop.control(isic, "txtSearchISIC").setFocus();
        typeText(desktop.widget(isic, "txtSearchISIC"), QStringLiteral("47111"));
        QCOMPARE(grid->rowCount(), 0);
        typeText(desktop.widget(isic, "txtSearchISIC"), QStringLiteral("0"));
        QCOMPARE(grid->rowCount(), 1);
        QTest::keyClick(desktop.binder.viewOf(isic)->root(), Qt::Key_Escape);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find(isic) == nullptr);
        QCOMPARE(desktop.widget<QLabel>(page1, "lblISICCode1(0)")->text(), QString());
    }

    void aReasonIsOpenOnlyForTheAnswerThatNeedsOne() {
        FilerDesktop desktop(application_.look);
        desktop.program.desk.show(page8);
        Desktop::settle();
        auto* reason = desktop.widget(page8, "txtBussiness1");
        QVERIFY(!reason->isEnabled());
        desktop.tick(page8, "chkBussiness1(0)");
        QVERIFY(reason->isEnabled());
        desktop.tick(page8, "chkBussiness1(1)");
        QVERIFY(!reason->isEnabled());
        QVERIFY(!desktop.widget<QAbstractButton>(page8, "chkBussiness1(0)")->isChecked());
        desktop.tick(page8, "chkBussiness5(0)");
        QVERIFY(!desktop.widget(page8, "txtBussiness5")->isEnabled());
        desktop.tick(page8, "chkBussiness5(1)");
        QVERIFY(desktop.widget(page8, "txtBussiness5")->isEnabled());
    }

    void aReasonStandsBesideTheAnswersOfItsQuestion() {
        FilerDesktop desktop(application_.look);
        desktop.program.desk.show(page8);
        Desktop::settle();
        int lastBottom = 0;
        for (const char* digit : {"1", "2", "3", "4", "5"}) {
            const QByteArray boxes = QByteArray("chkBussiness") + digit;
            const QWidget& first = *desktop.widget(page8, (boxes + "(0)").constData());
            const QWidget& second = *desktop.widget(page8, (boxes + "(1)").constData());
            const QWidget& reason = *desktop.widget(page8, (QByteArray("txtBussiness") + digit).constData());
            QVERIFY(placeOf(first).y() > lastBottom);
            QVERIFY(placeOf(second).y() > placeOf(first).y());
            QVERIFY(placeOf(reason).x() > placeOf(first).x() + first.width());
            lastBottom = placeOf(reason).y() + reason.height();
            QVERIFY(placeOf(second).y() + second.height() <= lastBottom);
        }
    }

    void theStoreDialogLiesOverAPageThatIsSwitchedOffUntilItIsLeft() {
        FilerDesktop desktop(application_.look);
        desktop.program.shell().EnableTools(false);
        desktop.program.shell().SwitchPage(false);
        desktop.program.desk.show("frmLodgeDirec");
        Desktop::settle();
        const QWidget* page = desktop.binder.viewOf(page1)->root();
        QVERIFY(page->isVisible() && !page->isEnabled());
        QTest::keyClick(desktop.binder.viewOf("frmLodgeDirec")->root(), Qt::Key_Escape);
        Desktop::settle();
        QVERIFY(desktop.program.desk.find("frmLodgeDirec") == nullptr);
        QVERIFY(page->isEnabled());
        QVERIFY(desktop.widget("MDILodge", "cmdExit")->isEnabled());
    }

    void theCardsOfTheChooserStandFourARowInTheirOrder() {
        FilerDesktop desktop(application_.look);
        desktop.program.desk.show("frmLodgeChoose");
        Desktop::settle();
        QPoint last(-1, -1);
        int number = 0;
        for (const char* item :
            {"01", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12", "13", "IHQ"}) {
            const QWidget& card =
                *desktop.widget("frmLodgeChoose", (QByteArray("cmdItem") + item).constData());
            const QPoint place = placeOf(card);
            const bool newRow = number++ % 4 == 0;
            QVERIFY(newRow ? place.y() > last.y() : place.y() == last.y() && place.x() > last.x());
            last = place;
        }
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::FilerTest)

#include "filer_test.moc"
