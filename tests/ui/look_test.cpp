// The colours, fonts and Thai texts of the program.

#include "keys.h"
#include "ui/box_painter.h"
#include "ui/boxes.h"
#include "ui/date_edit.h"
#include "ui/dress.h"
#include "ui/look.h"
#include "ui/qt_host.h"
#include "ui/sheet_title.h"
#include "ui/text_label.h"
#include "ui/thai_texts.h"
#include "ui/theme.h"
#include "ui/tick_box.h"
#include "ui/type.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>

namespace lodge {

namespace {

/// Every mark that Thai stacks above and below a letter.
const QString tallestLine = QStringLiteral("ปู่ ที่ ฎฏ ญู น้ำ ก๊");

/// The rows that hold ink when a text is drawn into a much taller picture, from the first to the last.
int inkHeight(const QFont& font, const QString& text) {
    QImage image(600, 200, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(10, 100, text);
    painter.end();
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) {
                first = first < 0 ? y : first;
                last = y;
                break;
            }
        }
    }
    return last - first + 1;
}

// clang-format off
/// The name of a colour, as the design calls it.
struct ThemeColour {
    const char* name;
    Rgb Theme::*colour;
};

constexpr std::array<ThemeColour, 24> themeColours = {{
    {"ground", &Theme::ground}, {"chrome", &Theme::chrome}, {"paper", &Theme::paper},
    {"band", &Theme::band}, {"field", &Theme::field}, {"computed", &Theme::computed},
    {"disabled", &Theme::disabled}, {"rule", &Theme::rule}, {"edge", &Theme::edge},
    {"ink", &Theme::ink}, {"ink2", &Theme::ink2}, {"ink3", &Theme::ink3},
    {"form", &Theme::form}, {"onForm", &Theme::onForm}, {"focus", &Theme::focus},
    {"select", &Theme::select}, {"green", &Theme::green}, {"greenInk", &Theme::greenInk},
    {"stop", &Theme::stop}, {"stopGround", &Theme::stopGround}, {"warn", &Theme::warn},
    {"warnGround", &Theme::warnGround}, {"ok", &Theme::ok}, {"okGround", &Theme::okGround},
}};
// clang-format on

bool isEnglish(const QString& text) {
    static const QRegularExpression words(QStringLiteral("[A-Za-z]{2,}"));
    return words.match(text).hasMatch();
}

} // namespace

class LookTest : public QObject {
    Q_OBJECT

  private slots:
    void textsStandOutFromTheirGrounds_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("ground");
        QTest::addColumn<double>("least");
        const auto row = [](const char* text, const char* ground, double least) {
            QTest::addRow("%s on %s", text, ground) << text << ground << least;
        };
        for (const char* ground : {"paper", "computed", "select", "green", "field", "chrome", "ground"}) {
            row("ink", ground, 4.5);
        }
        for (const char* ground : {"paper", "ground", "select", "disabled"}) {
            row("ink2", ground, 4.5);
        }
        row("ink3", "disabled", 4.5);
        row("ink3", "chrome", 4.5);
        row("form", "paper", 4.5);
        row("form", "select", 4.5);
        row("onForm", "form", 4.5);
        row("paper", "focus", 4.5);
        row("stop", "paper", 4.5);
        row("stop", "stopGround", 4.5);
        row("stop", "select", 4.5);
        row("warn", "warnGround", 4.5);
        row("ok", "okGround", 4.5);
        row("greenInk", "green", 4.5);
        row("edge", "paper", 3.0);
        row("edge", "green", 3.0);
        row("edge", "select", 3.0);
        row("focus", "paper", 3.0);
        row("focus", "ground", 3.0);
    }

    void textsStandOutFromTheirGrounds() {
        QFETCH(QString, text);
        QFETCH(QString, ground);
        QFETCH(double, least);
        for (const Theme* theme : {&lightTheme, &darkTheme}) {
            const double found = contrast(colour(*theme, text), colour(*theme, ground));
            // The published figures are rounded to one decimal.
            QVERIFY2(found >= least - 0.05, qPrintable(QString::number(found)));
        }
    }

    void contrastIsOneForEqualColoursAndTwentyOneForBlackOnWhite() {
        QCOMPARE(contrast(0x123456, 0x123456), 1.0);
        QVERIFY(qAbs(contrast(0x000000, 0xFFFFFF) - 21.0) < 0.001);
        QVERIFY(qAbs(contrast(lightTheme.ink, lightTheme.paper) - 16.4) < 0.05);
        QVERIFY(qAbs(contrast(darkTheme.ink, darkTheme.paper) - 12.8) < 0.05);
    }

    void aDesktopThatWritesLightOnDarkGetsTheDarkTheme() {
        QPalette desktop;
        desktop.setColor(QPalette::Window, Qt::black);
        desktop.setColor(QPalette::WindowText, Qt::white);
        QCOMPARE(&themeOfDesktop(desktop), &darkTheme);
        desktop.setColor(QPalette::Window, Qt::white);
        desktop.setColor(QPalette::WindowText, Qt::black);
        QCOMPARE(&themeOfDesktop(desktop), &lightTheme);
    }

    void aWidgetWearsWhatItsPropertiesAskFor() {
        QFrame sheet;
        sheet.setProperty("role", QByteArray("sheet"));
        QFrame sum(&sheet);
        sum.setProperty("role", QByteArray("sum"));
        QLabel figure(&sheet);
        figure.setProperty("state", QByteArray("computed"));
        QLabel total(&sum);
        total.setProperty("state", QByteArray("computed"));
        QVERIFY(dressOf(QFrame()) == nullptr);
        QCOMPARE(groundOf(*dressOf(sheet), sheet), &Theme::paper);
        QCOMPARE(groundOf(*dressOf(figure), figure), &Theme::computed);
        QVERIFY(groundOf(*dressOf(total), total) == nullptr); // the band shows through
        setWorn(sum, "row", "hand");
        QCOMPARE(groundOf(*dressOf(sum), sum), &Theme::select);
    }

    void whatATextSaysCountsMoreThanHowItIsSet() {
        QLabel label;
        label.setProperty("type", QByteArray("heading"));
        QCOMPARE(inkOf(label), ink::form);
        setWorn(label, "tone", "stop");
        QCOMPARE(inkOf(label), ink::stop);
        QCOMPARE(label.foregroundRole(), ink::stop);
    }

    void aFieldShowsItsStateAndTheFocusAboveAllButARefusal() {
        constexpr QStyle::State open = QStyle::State_Enabled;
        constexpr QStyle::State focused = open | QStyle::State_HasFocus;
        QLineEdit field;
        QCOMPARE(fieldDressOf(field, open).line, &Theme::edge);
        QCOMPARE(fieldDressOf(field, focused).line, &Theme::focus);
        QCOMPARE(fieldDressOf(field, QStyle::State_None).ground, &Theme::disabled);
        setWorn(field, "state", "way");
        QCOMPARE(fieldDressOf(field, open).line, &Theme::stop);
        QCOMPARE(fieldDressOf(field, focused).line, &Theme::focus);
        setWorn(field, "state", "refused");
        QCOMPARE(fieldDressOf(field, focused).line, &Theme::stop);
        QCOMPARE(fieldDressOf(field, focused).ground, &Theme::stopGround);
        setWorn(field, "state", "computed");
        QCOMPARE(fieldDressOf(field, open).line, fieldDressOf(field, open).ground);
    }

    void aBoxOfKeptCornersLooksAsOneThatIsDrawnWhole() {
        for (const qreal ratio : {1.0, 2.0}) {
            for (const RoundBox& box : {RoundBox{Qt::white, Qt::darkGray, 1, 3},
                     RoundBox{Qt::white, Qt::blue, 2, 3}, RoundBox{Qt::yellow, {}, 0, 9},
                     RoundBox{{}, Qt::darkGray, 1, 2}, RoundBox{Qt::green, Qt::red, 1, 0}}) {
                const QRect rect(3, 2, 60, 28);
                QImage kept = page(ratio);
                QPainter painter(&kept);
                drawBox(painter, rect, box);
                painter.end();
                QImage whole = page(ratio);
                painter.begin(&whole);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(box.line.isValid() ? QPen(box.line, box.width) : QPen(Qt::NoPen));
                painter.setBrush(box.ground.isValid() ? QBrush(box.ground) : QBrush(Qt::NoBrush));
                const qreal inset = box.width / 2.0;
                painter.drawRoundedRect(
                    QRectF(rect).adjusted(inset, inset, -inset, -inset), box.radius, box.radius);
                painter.end();
                QVERIFY2(mostDifferent(kept, whole) <= 2, // of 255: blended once more on the way
                    qPrintable(QString::number(mostDifferent(kept, whole))));
            }
        }
    }

    void aLabelIsAsLargeAsTheToolkitsOwn() {
        for (const QString& text : {QStringLiteral("สั้น"), QStringLiteral("สองบรรทัด\nของแบบ"),
                 QStringLiteral("กิจการที่ได้รับยกเว้นภาษีเงินได้ตามกฎหมายอื่นๆนอกเหนือจากที่ระบุไว้ข้างต้น "
                                "และกิจการที่ต้องเสียภาษีเงินได้ตามอัตราที่กฎหมายกำหนดไว้เป็นอย่างอื่น")}) {
            for (const bool wraps : {false, true}) {
                for (const int indent : {-1, 0, 12}) {
                    for (const char* role : {"", "keycap", "statusPart"}) {
                        TextLabel ours(text);
                        QLabel toolkits(text);
                        for (QLabel* label : {static_cast<QLabel*>(&ours), &toolkits}) {
                            label->setProperty("role", QByteArray(role));
                            label->setWordWrap(wraps);
                            label->setIndent(indent);
                            label->ensurePolished();
                        }
                        QCOMPARE(ours.sizeHint(), toolkits.sizeHint());
                        QCOMPARE(ours.minimumSizeHint(), toolkits.minimumSizeHint());
                        for (const int width : {40, 150, 333, 2000}) {
                            QCOMPARE(ours.heightForWidth(width), toolkits.heightForWidth(width));
                        }
                    }
                }
            }
        }
    }

    void theFontsAreThere() { QCOMPARE(missingFontPackages(), QStringList()); }

    void everyUseOfTypeGivesItsLinesRoomForAllMarks() {
        for (const Type& type : types) {
            const int ink = inkHeight(fontOf(type), tallestLine);
            QVERIFY2(ink > 0 && ink <= type.height,
                qPrintable(QStringLiteral("%1 needs %2").arg(QLatin1String(type.name)).arg(ink)));
        }
    }

    void widgetsAreTallEnoughForThaiMarks() {
        const int ink = inkHeight(fontOf(typeOf(QStringLiteral("field"))), tallestLine);
        QLineEdit edit;
        edit.ensurePolished();
        QCOMPARE(edit.sizeHint().height(), 28);
        QVERIFY(edit.sizeHint().height() - 2 >= ink);
        QPushButton button(tallestLine);
        QCOMPARE(button.sizeHint().height(), 30);
        TickBox tick;
        tick.setText(tallestLine);
        QCOMPARE(tick.sizeHint().height(), 26);
        QVERIFY(tick.sizeHint().height() >= ink);
        QVERIFY(SheetTitle().sizeHint().height()
                >= inkHeight(fontOf(typeOf(QStringLiteral("sheetHead"))), tallestLine));
    }

    void theCaptionOfATickWrapsAtThaiWords() {
        TickBox tick;
        tick.setText(QStringLiteral("กิจการที่ได้รับยกเว้นภาษีเงินได้ตามกฎหมายอื่นๆนอกเหนือจากที่ระบุไว้ข้างต้น"));
        const int whole = tick.sizeHint().width();
        QCOMPARE(tick.heightForWidth(whole), 26);
        // Without libthai0 this caption would have no place to break.
        QVERIFY(tick.heightForWidth(whole / 2 + 40) > 26);
    }

    void aBoxShowsCarriageReturnsAsLineBreaks() {
        QCOMPARE(shownText("a\rb\r\nc\nd"), QStringLiteral("a\nb\nc\nd"));
    }

    void aBoxHasThaiButtonsAndItsDefault_data() {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("preset");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("chosen");
        const QString ok = QStringLiteral("ตกลง");
        const QString cancel = QStringLiteral("ยกเลิก");
        const QString yes = QStringLiteral("ใช่");
        const QString no = QStringLiteral("ไม่ใช่");
        const auto row = [](const char* name, Buttons buttons, Answer preset, const QStringList& captions,
                             const QString& chosen) {
            QTest::newRow(name) << static_cast<int>(buttons) << static_cast<int>(preset) << captions
                                << chosen;
        };
        row("message", Buttons::Ok, Answer::Ok, {ok}, ok);
        row("ok first", Buttons::OkCancel, Answer::Ok, {ok, cancel}, ok);
        row("cancel preset", Buttons::OkCancel, Answer::Cancel, {ok, cancel}, cancel);
        row("yes preset", Buttons::YesNo, Answer::Yes, {yes, no}, yes);
        row("no preset", Buttons::YesNo, Answer::No, {yes, no}, no);
    }

    void aBoxHasThaiButtonsAndItsDefault() {
        QFETCH(int, buttons);
        QFETCH(int, preset);
        QFETCH(QStringList, captions);
        QFETCH(QString, chosen);
        const Box box{.text = "ข้อความ",
            .buttons = static_cast<Buttons>(buttons),
            .defaultAnswer = static_cast<Answer>(preset)};
        BoxWindow window(box, nullptr);
        QStringList found;
        for (const QAbstractButton* button : window.buttons()) {
            found << button->text();
        }
        QCOMPARE(found, captions);
        QTimer::singleShot(50, &window, [&] { QTest::keyClick(&window, Qt::Key_Return); });
        const Answer answer = window.wait();
        QCOMPARE(window.clickedButton()->text(), chosen);
        QCOMPARE(static_cast<int>(answer), preset);
    }

    void closingABoxAnswersAsItsLastButtonDoes() {
        BoxWindow window(Box{.text = "x", .buttons = Buttons::YesNo, .defaultAnswer = Answer::Yes}, nullptr);
        QTimer::singleShot(50, &window, [&] { QTest::keyClick(&window, Qt::Key_Escape); });
        QCOMPARE(window.wait(), Answer::No);
    }

    void aLongTextIsBrokenAt720AndAShortOneIsNot() {
        std::string text;
        for (int i = 0; i < 12; ++i) {
            text += "ต้องการล้างข้อความใช่หรือไม่ ";
        }
        for (const auto& [shown, wraps] : {std::pair(text, true), std::pair(std::string("สั้น"), false)}) {
            BoxWindow window(Box{.text = shown}, nullptr);
            const auto* label = window.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            QVERIFY(label != nullptr);
            QCOMPARE(label->wordWrap(), wraps);
            QVERIFY(label->width() <= 720);
            QCOMPARE(label->textFormat(), Qt::PlainText);
            window.show();
            QTest::qWait(20);
            const QRect room(0, 0, label->contentsRect().width(), 10000);
            const QRect needed =
                label->fontMetrics().boundingRect(room, wraps ? Qt::TextWordWrap : 0, label->text());
            QVERIFY2(needed.width() <= label->contentsRect().width(),
                qPrintable(QString::number(needed.width() - label->contentsRect().width())));
            QVERIFY(needed.height() <= label->height());
        }
    }

    void theFileDialogSpeaksThai() {
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setNameFilter(QStringLiteral("Text Files (*.txt)"));
        dialog.show();
        QTest::qWait(20);
        QStringList english;
        for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
            for (const QString& text : {button->text(), button->toolTip(), button->accessibleName()}) {
                if (isEnglish(text)) english << text;
            }
        }
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            if (isEnglish(label->text())) english << label->text();
        }
        for (const QAction* action : dialog.findChildren<QAction*>()) {
            if (isEnglish(action->text())) english << action->text();
        }
        for (const auto* tree : dialog.findChildren<QTreeView*>()) {
            for (int i = 0; i < tree->model()->columnCount(); ++i) {
                const QString head = tree->model()->headerData(i, Qt::Horizontal).toString();
                if (isEnglish(head)) english << head;
            }
        }
        QCOMPARE(english, QStringList());
    }

    void theMenuOfALineSpeaksThai() {
        QLineEdit edit(QStringLiteral("x"));
        const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
        for (const QAction* action : menu->actions()) {
            QVERIFY2(!isEnglish(action->text().section(QLatin1Char('\t'), 0, 0)), qPrintable(action->text()));
        }
    }

    void theCalendarIsThatOfTheEnvironmentsDates() {
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LC_ALL", "C");
        QCOMPARE(QtHost().calendar(), Calendar::Christian);
        // Where the machine has Thai dates they are Buddhist ones.
        if (const locale_t thai = newlocale(LC_TIME_MASK, "th_TH.UTF-8", nullptr)) {
            freelocale(thai);
            qputenv("LC_ALL", "th_TH.UTF-8");
            QCOMPARE(QtHost().calendar(), Calendar::Buddhist);
        }
        qputenv("LC_ALL", before);
    }

    void aDateIsTypedIntoItsMask_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("digits");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "__/__/____";
        QTest::newRow("digits") << "01012561"
                                << "01012561"
                                << "01/01/2561";
        QTest::newRow("part") << "311"
                              << "311"
                              << "31/1_/____";
        QTest::newRow("thai digits") << "๐๑๐๑๒๕๖๑"
                                     << "01012561"
                                     << "01/01/2561";
        QTest::newRow("separators fill up") << "1/5/2561"
                                            << "01052561"
                                            << "01/05/2561";
        QTest::newRow("letters go") << "a0b1c"
                                    << "01"
                                    << "01/__/____";
        QTest::newRow("no more than eight") << "0101256199"
                                            << "01012561"
                                            << "01/01/2561";
    }

    void aDateIsTypedIntoItsMask() {
        QFETCH(QString, typed);
        QFETCH(QString, digits);
        QFETCH(QString, shown);
        DateEdit edit;
        typeText(&edit, typed);
        QCOMPARE(edit.digits(), digits);
        QCOMPARE(edit.text(), shown);
    }

    void aDateIsCorrectedInItsMask() {
        DateEdit edit;
        edit.setDigits(QStringLiteral("01012561"));
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.text(), QStringLiteral("01/01/256_"));
        edit.setCursorPosition(0);
        typeText(&edit, QStringLiteral("3"));
        QCOMPARE(edit.text(), QStringLiteral("31/01/256_")); // typed over, not pushed along
        QTest::keyClick(&edit, Qt::Key_Delete);
        QCOMPARE(edit.text(), QStringLiteral("30/12/56__"));
        edit.selectAll();
        typeText(&edit, QStringLiteral("5"));
        QCOMPARE(edit.text(), QStringLiteral("5_/__/____"));
    }

    void theCaretOfADateGoesToTheFirstGap() {
        DateEdit edit;
        edit.setDigits(QStringLiteral("311"));
        edit.setCursorPosition(0);
        edit.goToGap();
        QCOMPARE(edit.cursorPosition(), 4);
        edit.setDigits(QStringLiteral("31122561"));
        edit.goToGap();
        QCOMPARE(edit.selectedText(), QStringLiteral("31/12/2561"));
    }

    void composedDigitsOfAnInputMethodAreTaken() {
        DateEdit edit;
        QInputMethodEvent composed(QString(), {});
        composed.setCommitString(QStringLiteral("๓๑"));
        QApplication::sendEvent(&edit, &composed);
        QCOMPARE(edit.text(), QStringLiteral("31/__/____"));
    }

  private:
    static QImage page(qreal ratio) {
        QImage image(QSize(70, 40) * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::lightGray);
        return image;
    }

    static int mostDifferent(const QImage& one, const QImage& other) {
        int most = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QColor a = one.pixelColor(x, y);
                const QColor b = other.pixelColor(x, y);
                most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                    std::abs(a.blue() - b.blue())});
            }
        }
        return most;
    }

    static Rgb colour(const Theme& theme, const QString& name) {
        const auto* const found = std::find_if(themeColours.begin(), themeColours.end(),
            [&](const ThemeColour& colour) { return name == QLatin1String(colour.name); });
        return theme.*found->colour;
    }
};

} // namespace lodge

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    lodge::ThaiTexts texts;
    QApplication::installTranslator(&texts);
    const lodge::Look look(application, lodge::lightTheme);
    lodge::LookTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "look_test.moc"
