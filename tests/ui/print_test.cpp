// Printing on the desktop: the range that is asked for, the preview of the pages, the PDF, the way to a
// printer.

#include "desktop.h"
#include "ui/desktop_printer.h"
#include "ui/print_preview.h"

#include <QComboBox>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QProgressBar>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <optional>

namespace lodge {

namespace {

constexpr const char* start = "frmLodgeStart";
constexpr const char* frame = "MDILodge";
const QString ordinaryCompany =
    QStringLiteral(LODGE_TEST_DATA "/returns/ordinary-company/01055360003132561100C.txt");

/// Does something to the next window of a kind that asks.
template <typename Window>
class Next {
  public:
    explicit Next(std::function<void(Window&)> what) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, what] {
            auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (window != nullptr && window->isVisible()) {
                timer_.stop();
                came_ = true;
                what(*window);
            }
        });
        timer_.start(5);
    }
    [[nodiscard]] bool came() const { return came_; }

  private:
    QTimer timer_;
    bool came_ = false;
};

/// Where the templates are can be another place than where the program is.
class PrintHost : public TestHost {
  public:
    [[nodiscard]] std::filesystem::path programFolder() const override {
        return folder.value_or(TestHost::programFolder());
    }
    std::optional<std::filesystem::path> folder;
};

/// The program with a stored return open and something to print with.
class PrintingDesktop {
  public:
    explicit PrintingDesktop(
        const Look& look, const std::filesystem::path& moduleFolder = LODGE_PROGRAM_FOLDER)
        : binder(program, look), printer(program, binder, look, moduleFolder) {
        host.watch(&binder);
        program.attach(printer);
        shell.start();
        binder.frame()->showNormal();
        QApplication::setActiveWindow(binder.frame());
        User user(program.desk);
        user.type(*program.desk.find(start)->find("txtPath"), ordinaryCompany.toStdString());
        user.click(*program.desk.find(start)->find("CmdOK2"));
        Desktop::settle();
    }

    /// Presses "พิมพ์" and gives the range; both ends 0 are all pages.
    void print(int from, int to) {
        const Next<PagesWindow> range([from, to](PagesWindow& window) {
            const auto boxes = window.findChildren<QSpinBox*>();
            if (from != 0) {
                boxes.front()->setValue(from);
                boxes.back()->setValue(to);
            }
            window.accept();
        });
        binder.press(*program.desk.find(frame)->find("CmdPrint"));
        QVERIFY(range.came());
    }

    /// The preview, once all of it is drawn.
    PrintPreview* preview() {
        const auto isDrawn = [this] {
            return printer.preview() != nullptr && printer.preview()->findChild<QProgressBar*>()->isHidden();
        };
        return QTest::qWaitFor(isDrawn, 20'000) ? printer.preview() : nullptr;
    }

    PrintHost host;
    Program program{host};
    Binder binder;
    DesktopPrinter printer;
    Shell shell{program};
};

QStringList namesIn(const PrintPreview& preview) {
    const auto* list = preview.findChild<QListWidget*>();
    QStringList names;
    for (int row = 0; row < list->count(); ++row) {
        names << list->item(row)->text().section(QLatin1Char('\n'), 0, 0);
    }
    return names;
}

QString noteOf(const PrintPreview& preview) {
    QString note;
    for (const QLabel* label : preview.findChildren<QLabel*>()) {
        if (label->property("type").toString() == QLatin1String("label")) {
            note = label->text();
        }
    }
    return note;
}

PageStrip& stripOf(PrintPreview& preview) { return *preview.findChild<PageStrip*>(); }

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// A command `lp` of the test's own, which keeps what it is given, in front of that of the machine.
class FakeLp {
  public:
    explicit FakeLp(const QByteArray& end) : path_(qgetenv("PATH")) {
        QFile script(folder.filePath(QStringLiteral("lp")));
        script.open(QIODevice::WriteOnly);
        const QByteArray place = QFile::encodeName(folder.path());
        script.write("#!/bin/sh\nprintf '%s\\n' \"$@\" >" + place + "/arguments\ncat >" + place
                     + "/document\n" + end + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        script.close();
        qputenv("PATH", place + ":" + path_);
    }
    ~FakeLp() { qputenv("PATH", path_); }
    FakeLp(const FakeLp&) = delete;
    FakeLp& operator=(const FakeLp&) = delete;

    QTemporaryDir folder;

  private:
    QByteArray path_;
};

} // namespace

class PrintTest : public QObject {
    Q_OBJECT

  private slots:
    void thePagesOfTheRangeComeUp() {
        PrintingDesktop desktop(application_.look);
        desktop.print(2, 3);
        const PrintPreview* preview = desktop.preview();
        QVERIFY(preview != nullptr);
        QCOMPARE(namesIn(*preview), QStringList({QStringLiteral("หน้า 2"), QStringLiteral("หน้า 3")}));
    }

    void allPagesAreTenAndARangeWithPage9TakesPage10() {
        PrintingDesktop desktop(application_.look);
        desktop.print(0, 0);
        QVERIFY(desktop.preview() != nullptr);
        QCOMPARE(namesIn(*desktop.preview()).size(), 10);
        desktop.printer.preview()->reject();
        desktop.print(9, 9);
        QVERIFY(desktop.preview() != nullptr);
        QCOMPARE(
            namesIn(*desktop.preview()), QStringList({QStringLiteral("หน้า 9"), QStringLiteral("หน้า 10")}));
    }

    void cancellingTheRangeEndsSilently() {
        PrintingDesktop desktop(application_.look);
        const Next<PagesWindow> range([](PagesWindow& window) { window.reject(); });
        const NextBox box([](BoxWindow& window) { window.reject(); });
        desktop.binder.press(*desktop.program.desk.find(frame)->find("CmdPrint"));
        QTest::qWait(100);
        QVERIFY(range.came());
        QVERIFY(!box.came());
        QVERIFY(desktop.printer.preview() == nullptr);
    }

    void theRangeBeginsAsAllAndFollowsItsNumbers() {
        PagesWindow window(nullptr);
        QCOMPARE(window.range().from, 0);
        QCOMPARE(window.range().to, 0);
        const auto boxes = window.findChildren<QSpinBox*>();
        boxes.front()->setValue(4);
        QCOMPARE(window.range().from, 4);
        QCOMPARE(window.range().to, 10);
        boxes.back()->setValue(2); // there is no way back over the first
        QCOMPARE(window.range().to, 4);
        window.findChildren<QRadioButton*>().front()->setChecked(true);
        QCOMPARE(window.range().to, 0);
    }

    void theWindowAnswersBetweenThePages() {
        PrintingDesktop desktop(application_.look);
        desktop.print(0, 0);
        int turns = 0;
        QTimer turn;
        connect(
            &turn, &QTimer::timeout, &turn, [&] { turns += desktop.printer.preview() != nullptr ? 1 : 0; });
        turn.start(0);
        QVERIFY(desktop.preview() != nullptr);
        QVERIFY2(turns >= 10, qPrintable(QString::number(turns)));
    }

    void whatIsInViewIsDrawnAsLargeAsItIsShown() {
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 2);
        PrintPreview* preview = desktop.preview();
        PageStrip& strip = stripOf(*preview);
        QVERIFY(strip.isDrawn(0));
        const QImage drawn = strip.viewport()->grab().toImage();
        int ink = 0;
        for (int y = 0; y < drawn.height(); y += 2) {
            for (int x = 0; x < drawn.width(); x += 2) {
                ink += qGray(drawn.pixel(x, y)) < 100 ? 1 : 0;
            }
        }
        QVERIFY2(ink > 1000, "the page is empty");
        strip.setZoom(2);
        QVERIFY(!strip.isDrawn(0));
        QTRY_VERIFY(strip.isDrawn(0));
    }

    void pagesAreTurnedByKeysAndList() {
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 4);
        PrintPreview* preview = desktop.preview();
        PageStrip& strip = stripOf(*preview);
        auto* list = preview->findChild<QListWidget*>();
        QTest::keyClick(preview, Qt::Key_PageDown);
        QCOMPARE(strip.currentPage(), 1);
        QCOMPARE(list->currentRow(), 1);
        list->setCurrentRow(3);
        QCOMPARE(strip.currentPage(), 3);
        QTest::keyClick(preview, Qt::Key_PageDown); // there is none behind it
        QCOMPARE(strip.currentPage(), 3);
        QTest::keyClick(preview, Qt::Key_PageUp);
        QCOMPARE(strip.currentPage(), 2);
        strip.setFocus();
        QTest::keyClick(&strip, Qt::Key_Home);
        QCOMPARE(strip.currentPage(), 0);
        QCOMPARE(list->currentRow(), 0);
    }

    void theSizeFitsTheWindowOrIsChosen() {
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        PrintPreview* preview = desktop.preview();
        PageStrip& strip = stripOf(*preview);
        auto* choice = preview->findChild<QComboBox*>();
        QCOMPARE(choice->currentText(), QStringLiteral("พอดีความกว้าง"));
        preview->resize(1300, 700);
        QTRY_COMPARE(strip.viewport()->width() - qRound(strip.zoom() * 793.7), 32); // the margins
        const double wide = strip.zoom();
        preview->resize(900, 700);
        QTRY_VERIFY(strip.zoom() < wide);
        QTest::keyClick(preview, Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(strip.zoom(), 1.0);
        QCOMPARE(choice->currentText(), QStringLiteral("100%"));
        const QPointF middle = strip.viewport()->rect().center();
        QWheelEvent wheel(middle, strip.viewport()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
            Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(strip.viewport(), &wheel);
        QCOMPARE(strip.zoom(), 1.25);
        QTest::keyClick(preview, Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(choice->currentText(), QStringLiteral("พอดีทั้งหน้า"));
    }

    void theProgramStandsStillBehindThePreviewAndGoesOnAfterIt() {
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        PrintPreview* preview = desktop.preview();
        QVERIFY(desktop.binder.isWaiting());
        QTest::keyClick(preview, Qt::Key_Escape);
        QVERIFY(!desktop.binder.isWaiting());
        QTRY_VERIFY(desktop.printer.preview() == nullptr);
        QVERIFY(desktop.program.desk.find("frmLodgePage1")->isShown());
    }

    void thePdfHoldsThePagesAndTheData() {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("พิมพ์.pdf"));
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 3);
        QVERIFY(desktop.preview()->savePdf(file));
        QVERIFY(noteOf(*desktop.printer.preview()).contains(file));
        QVERIFY(contentOf(file).startsWith("%PDF-"));
        const QByteArray about = outputOf(QStringLiteral("pdfinfo"), {file});
        QVERIFY2(about.contains("Pages:           3"), about.constData());
        QVERIFY(about.contains("0105536000313"));
        const QString data = folder.filePath(QStringLiteral("data.json"));
        outputOf(QStringLiteral("pdfdetach"),
            {QStringLiteral("-save"), QStringLiteral("1"), QStringLiteral("-o"), data, file});
        QVERIFY(contentOf(data).contains("\"strFldPage1[45]\": \"0105536000313\""));
        QVERIFY(!contentOf(data).contains(QFile::encodeName(QString::fromUtf8(LODGE_PROGRAM_FOLDER))));
    }

    void aPdfThatCannotBeStoredIsToldAndTheEarlierOneStays() {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("no/folder.pdf"));
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        PrintPreview* preview = desktop.preview();
        QString told;
        const NextBox box([&told](BoxWindow& window) {
            told = window.text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
        QVERIFY(!preview->savePdf(file));
        QVERIFY(box.came());
        QVERIFY2(told.contains(QStringLiteral("ไม่พบโฟลเดอร์")), qPrintable(told));
        QVERIFY(preview->savePdf(folder.filePath(QStringLiteral("there.pdf")))); // another place will do
    }

    void thePrinterGetsTheDocumentAndWhatWasChosen() {
        const FakeLp lp("exit 0");
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 3);
        PrintPreview* preview = desktop.preview();
        preview->print({.printer = QStringLiteral("บัญชี-1"),
            .title = QStringLiteral("ก.ข.ค.77 0105536000313"),
            .pages = QStringLiteral("2-3"),
            .copies = 2,
            .sides = PaperJob::Sides::TwoLongEdge,
            .inColour = false});
        QTRY_VERIFY(noteOf(*preview).contains(QStringLiteral("บัญชี-1 แล้ว")));
        const QByteArrayList arguments =
            contentOf(lp.folder.filePath(QStringLiteral("arguments"))).trimmed().split('\n');
        QCOMPARE(
            arguments, QByteArrayList({"-d", QByteArray("บัญชี-1"), "-t", QByteArray("ก.ข.ค.77 0105536000313"),
                           "-n", "2", "-o", "media=A4", "-o", "sides=two-sided-long-edge", "-o",
                           "print-color-mode=monochrome", "-P", "2-3"}));
        const QByteArray document = contentOf(lp.folder.filePath(QStringLiteral("document")));
        QVERIFY(document.startsWith("%PDF-") && document.trimmed().endsWith("%%EOF"));
    }

    void aPrinterThatRefusesIsTold() {
        const FakeLp lp("echo 'lp: The printer or class does not exist.' >&2; exit 1");
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        PrintPreview* preview = desktop.preview();
        preview->print({.printer = QStringLiteral("gone"), .title = QStringLiteral("t"), .pages = {}});
        QTRY_VERIFY(noteOf(*preview).contains(QStringLiteral("does not exist")));
    }

    void aPreviewThatIsClosedBeforeThePrinterAnswersIsNoMatter() {
        const FakeLp lp("sleep 0.2; exit 0");
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        desktop.preview()->print({.printer = QStringLiteral("p"), .title = QStringLiteral("t"), .pages = {}});
        desktop.printer.preview()->reject();
        QTRY_VERIFY(desktop.printer.preview() == nullptr);
        QTRY_VERIFY(contentOf(lp.folder.filePath(QStringLiteral("document"))).startsWith("%PDF-"));
        QTest::qWait(300);
    }

    void withoutAPrinterTheBoxSaysWhatToDo() {
        if (hasPrinters()) {
            QSKIP("this machine has a printer");
        }
        PrintingDesktop desktop(application_.look);
        desktop.print(1, 1);
        PrintPreview* preview = desktop.preview();
        QString told;
        const NextBox box([&told](BoxWindow& window) {
            told = window.text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
        preview->askAndPrint();
        QVERIFY(box.came());
        QVERIFY(told.startsWith(QStringLiteral("ไม่พบเครื่องพิมพ์")));
    }

    void aMissingTemplateIsToldFirstAndThePagesBeforeItAreShown() {
        const QTemporaryDir folder;
        QFile::copy(QStringLiteral(LODGE_PROGRAM_FOLDER "/rptLodgePage1.rpt"),
            folder.filePath(QStringLiteral("rptLodgePage1.rpt")));
        PrintingDesktop desktop(application_.look);
        desktop.host.folder = folder.path().toStdString();
        QString told;
        bool previewWaited = false;
        const NextBox box([&](BoxWindow& window) {
            told = window.text();
            QTest::qWait(50);
            previewWaited = desktop.printer.preview() == nullptr;
            QTest::keyClick(&window, Qt::Key_Return);
        });
        desktop.print(1, 3);
        QVERIFY(box.came());
        QVERIFY2(told.startsWith(QStringLiteral("มีข้อผิดพลาดในการพิมพ์ รหัส 2 - ")), qPrintable(told));
        QVERIFY(told.contains(QStringLiteral("rptLodgePage2.rpt")));
        QVERIFY(previewWaited);
        const PrintPreview* preview = desktop.preview();
        QVERIFY(preview != nullptr);
        QCOMPARE(namesIn(*preview), QStringList({QStringLiteral("หน้า 1")}));
    }

    void aProgramWithoutItsPressSaysSo() {
        const QTemporaryDir folder;
        PrintingDesktop desktop(application_.look, folder.path().toStdString());
        QString told;
        const NextBox box([&told](BoxWindow& window) {
            told = window.text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
        desktop.print(1, 1);
        QVERIFY(box.came());
        QVERIFY2(told.startsWith(QStringLiteral("มีข้อผิดพลาดในการพิมพ์ รหัส 1 - ")), qPrintable(told));
        QTest::qWait(50);
        QVERIFY(desktop.printer.preview() == nullptr);
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::PrintTest)
#include "print_test.moc"
