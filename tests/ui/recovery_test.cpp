// What a crash costs: nothing but the field being typed. And what a clean end leaves: nothing.

#include "desktop.h"
#include "file/store_load.h"
#include "keys.h"
#include "ui/recovery_band.h"
#include "ui/recovery_keeper.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

namespace lodge {

namespace {

constexpr const char* frame = "MDILodge";
constexpr const char* start = "frmLodgeStart";
constexpr const char* page1 = "frmLodgePage1";
constexpr std::size_t auditorsName = 33;

/// Automatic stores go into a folder of the test.
class OwnFolderHost : public TestHost {
  public:
    [[nodiscard]] std::filesystem::path programFolder() const override {
        return folder.empty() ? TestHost::programFolder() : folder;
    }
    void quit() override { left = true; }
    std::filesystem::path folder;
    bool left = false;
};

/// A program that keeps its copies in that folder. Destroyed without having been left, it is one that
/// crashed.
class KeptDesktop {
  public:
    KeptDesktop(const Look& look, const std::string& folder)
        : binder(program, look), keeper(program, binder, folder) {
        host.watch(&binder);
        shell.start();
        binder.frame()->showNormal();
        binder.frame()->resize(1366, 768);
        QApplication::setActiveWindow(binder.frame());
        Desktop::settle();
    }

    [[nodiscard]] Control& control(const char* form, const char* name) const {
        return *program.desk.find(form)->find(name);
    }
    [[nodiscard]] RecoveryBand* band() const {
        const FormView* view = binder.viewOf(start);
        return view == nullptr ? nullptr : view->root()->findChild<RecoveryBand*>();
    }
    [[nodiscard]] bool offers() const { return band() != nullptr && band()->isVisible(); }

    void begin() {
        User user(program.desk);
        user.type(control(start, "mskDate1"), "01012561");
        user.type(control(start, "mskDate2"), "31122561");
        user.click(control(start, "CmdOK1"));
        user.click(control(page1, "chkStatus(0)"));
        user.type(control(page1, "txtNid"), "0105536000313");
        keeper.flush();
        Desktop::settle();
    }

    OwnFolderHost host;
    Program program{host};
    Binder binder;
    RecoveryKeeper keeper;
    Shell shell{program};
};

/// Presses the button of that answer in the next box.
class NextAnswer {
  public:
    explicit NextAnswer(Answer answer)
        : box_([this, answer](BoxWindow& window) {
              text = window.text();
              for (QAbstractButton* button : window.buttons()) {
                  if (button->property("answer").toInt() == static_cast<int>(answer)) {
                      button->click();
                      return;
                  }
              }
          }) {}
    [[nodiscard]] bool came() const { return box_.came(); }
    QString text;

  private:
    NextBox box_;
};

} // namespace

class RecoveryTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void aFieldThatIsLeftIsInTheCopyAMomentLater() {
        KeptDesktop desktop(application_.look, place());
        desktop.begin();
        User(desktop.program.desk).type(desktop.control(page1, "txtAuditName"), "สมหญิง");
        QTRY_COMPARE(inCopy(auditorsName), std::string("สมหญิง"));
        // The page is still open, and its array as it was when the page came up.
        QVERIFY(desktop.program.state.strFldPage1[auditorsName].empty());
    }

    void nothingIsWrittenBeforeAReturnIsBegun() {
        KeptDesktop desktop(application_.look, place());
        User(desktop.program.desk).type(desktop.control(start, "mskDate1"), "01012561");
        desktop.keeper.flush();
        QTest::qWait(400);
        QVERIFY(copies().isEmpty());
    }

    void afterACrashTheStartScreenOffersTheReturnAndTakesIt() {
        crash();
        KeptDesktop desktop(application_.look, place());
        QVERIFY(desktop.offers());
        const QString said = textOf(*desktop.band());
        QVERIFY2(said.contains(QStringLiteral("0105536000313")), qPrintable(said));
        QVERIFY2(said.contains(QStringLiteral("01/01/2561 ถึง 31/12/2561")), qPrintable(said));
        const int year = QDate::currentDate().year() + 543;
        QVERIFY2(said.contains(QString::number(year)), qPrintable(said));
        QTest::keyClick(desktop.binder.frame(), Qt::Key_F10);
        QVERIFY(desktop.program.desk.find(page1) != nullptr && desktop.program.desk.find(page1)->isShown());
        QCOMPARE(desktop.control(page1, "txtNid").reading(), std::string("0105536000313"));
        QVERIFY(desktop.program.state.blnNeedPage2); // as after any load
        QCOMPARE(copies().size(), 1);                // it goes on in the same copy
    }

    void aProgramWithoutACrashOffersNothing() {
        KeptDesktop desktop(application_.look, place());
        QVERIFY(!desktop.offers());
    }

    void whatIsThrownAwayIsGoneAfterAQuestion() {
        crash();
        KeptDesktop desktop(application_.look, place());
        auto* throwAway = buttonOf(desktop, "ไม่ใช้");
        {
            const NextAnswer no(Answer::No);
            throwAway->click();
            QVERIFY(no.came());
        }
        QVERIFY(desktop.offers());
        {
            const NextAnswer yes(Answer::Yes);
            throwAway->click();
            QVERIFY(yes.came());
        }
        QVERIFY(!desktop.offers());
        QVERIFY(copies().isEmpty());
    }

    void anOfferThatIsNeitherTakenNorThrownAwayComesAgain() {
        crash();
        { const KeptDesktop desktop(application_.look, place()); }
        const KeptDesktop again(application_.look, place());
        QVERIFY(again.offers());
    }

    void theNewestAutomaticStoreStandsBesideTheOffer() {
        crash();
        ReturnState state;
        state.strStartDDMMYY = "01012560";
        state.strFinishDDMMYY = "31122560";
        state.strFldPage1[45] = "0105540000128";
        state.strStoreType = "T";
        const QString programFolder = folder_->filePath(QStringLiteral("program"));
        QVERIFY(QDir().mkpath(programFolder + QStringLiteral("/temp")));
        QVERIFY(QFile::copy(QStringLiteral(LODGE_PROGRAM_FOLDER "/isic_country_57.txt"),
            programFolder + QStringLiteral("/isic_country_57.txt")));
        const StoreResult stored = storeReturn(state, place() + "program/temp/", "0105540000128",
            std::chrono::local_days{std::chrono::year{2019} / 5 / 20});
        QCOMPARE(stored.error, std::string());
        KeptDesktop desktop(application_.look, place());
        desktop.host.folder = programFolder.toStdString();
        desktop.program.desk.unload(start);
        desktop.program.desk.show(start); // now the program's folder is that of the test
        Desktop::settle();
        const QString said = textOf(*desktop.band());
        QVERIFY2(said.contains(QStringLiteral("0105540000128")), qPrintable(said));
        buttonOf(desktop, "เปิดไฟล์นี้")->click();
        QCOMPARE(desktop.control(page1, "txtNid").reading(), std::string("0105540000128"));
        QCOMPARE(copies().size(), 1); // the other return still waits
    }

    void aTemporaryStoreRemovesTheCopyAndNothingNewBringsItBack() {
        KeptDesktop desktop(application_.look, place());
        desktop.begin();
        desktop.program.state.strFldPage1[24] = "471110";
        desktop.program.state.blnWebsiteAsked = true;
        QCOMPARE(copies().size(), 1);
        User user(desktop.program.desk);
        desktop.shell.StorePageOnScreen();
        desktop.program.desk.show("frmLodgeDirec");
        desktop.program.state.strStoreType = "N";
        user.type(desktop.control("frmLodgeDirec", "txtPath"), place() + "own/");
        QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("own")));
        {
            const NextAnswer done(Answer::Ok);
            user.click(desktop.control("frmLodgeDirec", "cmdOk"));
            QVERIFY(done.came());
            QVERIFY2(done.text.contains(QStringLiteral("เรียบร้อย")), qPrintable(done.text));
        }
        QVERIFY(copies().isEmpty());
        QTest::qWait(400); // focus and forms have moved, the return has not
        desktop.keeper.flush();
        QVERIFY(copies().isEmpty());
        user.type(desktop.control(page1, "txtSitename"), "www.example.co.th");
        desktop.keeper.flush();
        QCOMPARE(copies().size(), 1);
    }

    void aNewReturnRemovesTheCopy() {
        KeptDesktop desktop(application_.look, place());
        desktop.begin();
        const NextAnswer yes(Answer::Yes);
        desktop.binder.press(desktop.control(frame, "cmdPageFirst"));
        QVERIFY(yes.came());
        QVERIFY(copies().isEmpty());
        QVERIFY(!desktop.offers());
    }

    void theCrossAsksTheQuestionOfLeavingAndACleanEndLeavesNothing() {
        KeptDesktop desktop(application_.look, place());
        desktop.begin();
        {
            const NextAnswer no(Answer::No);
            desktop.binder.frame()->close();
            QVERIFY(no.came());
            QCOMPARE(no.text, QStringLiteral("ต้องการออกจากระบบ ใช่หรือไม่"));
        }
        QVERIFY(!desktop.host.left);
        QCOMPARE(copies().size(), 1);
        {
            const NextAnswer yes(Answer::Yes);
            desktop.binder.frame()->close();
            QVERIFY(yes.came());
        }
        QVERIFY(desktop.host.left);
        QVERIFY(copies().isEmpty());
        QTest::qWait(400);
        QVERIFY(copies().isEmpty());
    }

    void twoProgramsDoNotSeeEachOther() {
        KeptDesktop one(application_.look, place());
        one.begin();
        KeptDesktop other(application_.look, place());
        QVERIFY(!other.offers());
        other.begin();
        QCOMPARE(copies().size(), 2);
        QCOMPARE(QDir(folder_->path()).entryList({QStringLiteral("*.lock")}, QDir::Files).size(), 2);
    }

  private:
    [[nodiscard]] std::string place() const { return folder_->path().toStdString() + "/"; }
    [[nodiscard]] QStringList copies() const {
        return QDir(folder_->path()).entryList({QStringLiteral("*.txt")}, QDir::Files);
    }
    /// A field of page 1 as the copy holds it; empty while there is none.
    [[nodiscard]] std::string inCopy(std::size_t field) const {
        ReturnState state;
        const QStringList names = copies();
        if (!names.isEmpty()) {
            loadReturn(place() + names.front().toStdString(), state, 2561);
        }
        return state.strFldPage1[field];
    }
    /// A program that is gone in the middle of a return.
    void crash() const {
        KeptDesktop desktop(application_.look, place());
        desktop.begin();
    }
    [[nodiscard]] static QString textOf(const RecoveryBand& band) {
        QString text;
        for (const QLabel* label : band.findChildren<QLabel*>()) {
            text += label->isVisible() ? label->text() + QLatin1Char('\n') : QString();
        }
        return text;
    }
    [[nodiscard]] static QPushButton* buttonOf(const KeptDesktop& desktop, const char* name) {
        for (QPushButton* button : desktop.band()->findChildren<QPushButton*>()) {
            if (button->accessibleName() == QString::fromUtf8(name)) {
                return button;
            }
        }
        return nullptr;
    }

    TestApplication application_;
    std::unique_ptr<QTemporaryDir> folder_;
};

} // namespace lodge

QTEST_MAIN(lodge::RecoveryTest)
#include "recovery_test.moc"
