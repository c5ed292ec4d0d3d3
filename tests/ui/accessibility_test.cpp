// What a screen reader meets: every control of every page has a name of its own, and says its unit and its
// state.

#include "desktop.h"
#include "keys.h"
#include "ui/layouts.h"
#include "ui/tool_strip.h"
#include "ui/zoom_setting.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <map>

namespace lodge {

namespace {

constexpr const char* start = "frmLodgeStart";
constexpr const char* page1 = "frmLodgePage1";
constexpr const char* item3 = "frmLodgePage3_3";

/// What a person acts on or reads a figure from, and so must be told by name.
bool mustBeNamed(QAccessible::Role role) {
    switch (role) {
    case QAccessible::EditableText:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::Button:
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::SpinBox:
    case QAccessible::Dialog: return true;
    default: return false;
    }
}

struct Met {
    QString what;
    QString name;
};

/// Everything on screen that must be named, from a widget down, as a screen reader walks it.
void walk(QAccessibleInterface* node, QList<Met>& met) {
    if (node == nullptr || node->state().invisible) {
        return;
    }
    if (mustBeNamed(node->role())) {
        const QString object = node->object() == nullptr ? QString() : node->object()->objectName();
        met.append({QStringLiteral("%1 (role %2)").arg(object).arg(int(node->role())),
            node->text(QAccessible::Name)});
    }
    if (node->role() == QAccessible::ComboBox || node->role() == QAccessible::Table
        || node->role() == QAccessible::List) {
        return; // what lies in them are entries
    }
    for (int i = 0; i < node->childCount(); ++i) {
        walk(node->child(i), met);
    }
}

QList<Met> metOn(QWidget& root) {
    QList<Met> met;
    walk(QAccessible::queryAccessibleInterface(&root), met);
    return met;
}

/// A company of which everything is on screen that can be.
void openAll(Desktop& desktop) {
    desktop.program.state.strStartDDMMYY = "01012561";
    desktop.program.state.strFinishDDMMYY = "31122561";
    desktop.program.state.intInvestment = 1;
    desktop.program.state.intP1Box1 = 1;
    desktop.program.state.intP1Box2 = 1;
}

} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

  private slots:
    void nothingOnScreenIsWithoutAName_data() {
        QTest::addColumn<QString>("form");
        const Desktop desktop(application_.look);
        for (const QString& form : layoutNames()) {
            if (desktop.program.desk.knows(form.toStdString())) {
                QTest::newRow(qPrintable(form)) << form;
            }
        }
    }

    void nothingOnScreenIsWithoutAName() {
        QFETCH(QString, form);
        Desktop desktop(application_.look);
        openAll(desktop);
        if (form != QLatin1String(start) && form != QLatin1String("MDILodge")) {
            desktop.program.desk.show(form.toStdString());
        }
        Desktop::settle();
        QStringList unnamed;
        for (const Met& met : metOn(*desktop.binder.viewOf(form.toStdString())->root())) {
            if (met.name.trimmed().isEmpty()) {
                unnamed << met.what;
            }
        }
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral("; "))));
    }

    void noTwoControlsOfAPageBearTheSameName_data() { nothingOnScreenIsWithoutAName_data(); }

    void noTwoControlsOfAPageBearTheSameName() {
        QFETCH(QString, form);
        Desktop desktop(application_.look);
        openAll(desktop);
        if (form != QLatin1String(start) && form != QLatin1String("MDILodge")) {
            desktop.program.desk.show(form.toStdString());
        }
        std::map<QString, QString> named;
        QStringList twice;
        for (Control* control : desktop.form(form.toUtf8().constData()).controls()) {
            const ControlView* view = desktop.binder.viewOf(form.toStdString())->find(*control);
            if (view == nullptr || !control->takesFocus() || !control->isShown()) {
                continue;
            }
            const QString name = nameOf(*view->widget());
            const QString own = QString::fromStdString(control->fullName());
            const auto [before, fresh] = named.emplace(name, own);
            if (!fresh) {
                twice << QStringLiteral("%1 and %2: %3").arg(before->second, own, name);
            }
        }
        QVERIFY2(twice.isEmpty(), qPrintable(twice.join(QStringLiteral("; "))));
    }

    void aFigureIsNamedByItemLineColumnAndCaption() {
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.program.desk.show(item3);
        QAccessibleInterface* box =
            QAccessible::queryAccessibleInterface(desktop.widget(item3, "txtMoney32(5)"));
        QCOMPARE(box->text(QAccessible::Name), QStringLiteral("รายการที่ 3 ข้อ 6. ช่อง 2 หัก รายจ่ายอื่น"));
        QCOMPARE(box->text(QAccessible::Description), QStringLiteral("บาท"));
    }

    void aComputedFigureIsReadWithItsAmount() {
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.program.desk.show(item3);
        User(desktop.program.desk).type(desktop.control(item3, "txtMoney32(0)"), "1500");
        QAccessibleInterface* sum =
            QAccessible::queryAccessibleInterface(desktop.widget(item3, "lblMoney33(0)"));
        QCOMPARE(
            sum->text(QAccessible::Name), QStringLiteral("รายการที่ 3 ข้อ 1. รวม รายได้โดยตรงจากการประกอบกิจการ"));
        QCOMPARE(sum->text(QAccessible::Description), QStringLiteral("1,500.00 บาท โปรแกรมคำนวณ"));
    }

    void aRefusedDateSaysSo() {
        Desktop desktop(application_.look);
        QWidget* date = desktop.widget(start, "mskDate1");
        QCOMPARE(date->accessibleDescription(), QStringLiteral("วัน/เดือน/ปี พ.ศ."));
        typeText(date, QStringLiteral("99999999"));
        const NextBox box([](BoxWindow& window) { QTest::keyClick(&window, Qt::Key_Return); });
        strike(Qt::Key_Return);
        Desktop::settle();
        QCOMPARE(date->accessibleDescription(), QStringLiteral("วัน/เดือน/ปี พ.ศ. ไม่ผ่านการตรวจ"));
        typeText(date, QStringLiteral("0"));
        QCOMPARE(date->accessibleDescription(), QStringLiteral("วัน/เดือน/ปี พ.ศ."));
    }

    void aLabelInFrontOfAFieldIsItsBuddy() {
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.program.desk.show(page1);
        for (const char* field :
            {"txtNid", "txtAuditPinID", "txtAuditName", "txtAccSurname", "mskDateReport"}) {
            const QWidget* widget = desktop.widget(page1, field);
            const auto labels = desktop.binder.viewOf(page1)->root()->findChildren<QLabel*>();
            QVERIFY2(std::any_of(labels.begin(), labels.end(),
                         [&](const QLabel* label) { return label->buddy() == widget; }),
                field);
        }
    }

    void messageBoxesAreNamedToo() {
        Desktop desktop(application_.look);
        QStringList unnamed;
        const NextBox box([&](BoxWindow& window) {
            for (const Met& met : metOn(window)) {
                if (met.name.trimmed().isEmpty()) {
                    unnamed << met.what;
                }
            }
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QTest::mouseClick(desktop.widget("MDILodge", "cmdExit"), Qt::LeftButton);
        QVERIFY(box.came());
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral("; "))));
    }

    void theFocusIsAlwaysOnScreen_data() { nothingOnScreenIsWithoutAName_data(); }

    /// Walks a page with Tab: the field that has the focus is never scrolled away.
    void theFocusIsAlwaysOnScreen() {
        QFETCH(QString, form);
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.binder.frame()->resize(1180, 640);
        if (form != QLatin1String(start) && form != QLatin1String("MDILodge")) {
            desktop.program.desk.show(form.toStdString());
        }
        Desktop::settle();
        Control* first = desktop.program.desk.focus();
        if (first == nullptr || first->form().name() != form.toStdString()) {
            return; // nothing to go to
        }
        int steps = 0;
        do {
            const QWidget* focused = QApplication::focusWidget();
            QVERIFY(focused != nullptr);
            const QRegion seen = focused->visibleRegion();
            QVERIFY2(seen.boundingRect().width() >= focused->width() / 2
                         && seen.boundingRect().height() >= focused->height() - 2,
                qPrintable(focused->objectName()));
            strike(Qt::Key_Tab);
        } while (desktop.program.desk.focus() != first && ++steps < 300);
        QVERIFY(steps < 300);
    }

    void everythingGrowsWithTheZoomAndComesBack() {
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.program.desk.show(item3);
        Desktop::settle();
        const QWidget* box = desktop.widget(item3, "txtMoney32(0)");
        const QSize before = box->size();
        const QFont font = box->font();
        application_.look.setZoom(2);
        Desktop::settle();
        QCOMPARE(box->width(), 2 * before.width());
        QCOMPARE(box->font().pixelSize(), 2 * font.pixelSize());
        QVERIFY(box->height() > 3 * before.height() / 2);
        QCOMPARE(desktop.binder.frame()->findChild<QLabel*>(QStringLiteral("decorStatusZoom"))->text(),
            QStringLiteral("200%"));
        application_.look.setZoom(1);
        Desktop::settle();
        QCOMPARE(box->size(), before);
        QCOMPARE(box->font().pixelSize(), font.pixelSize());
    }

    void aPageThatIsOpenedEnlargedMeasuresWhatItMeasuresWhenItIsEnlargedLater() {
        Desktop desktop(application_.look);
        openAll(desktop);
        desktop.program.desk.show(item3);
        application_.look.setZoom(1.5);
        Desktop::settle();
        const QSize later = desktop.widget(item3, "txtMoney32(0)")->size();
        desktop.program.desk.unload(item3);
        Desktop::settle();
        desktop.program.desk.show(item3);
        Desktop::settle();
        QCOMPARE(desktop.widget(item3, "txtMoney32(0)")->size(), later);
        application_.look.setZoom(1);
    }

    void keysAndWheelAskForTheZoom() {
        Desktop desktop(application_.look);
        QList<int> asked;
        connect(&desktop.binder, &Binder::zoomAsked, this, [&](int steps) { asked << steps; });
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(focused, Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_0, Qt::ControlModifier);
        QWheelEvent turn(QPointF(5, 5), focused->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
            Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(focused, &turn);
        QCOMPARE(asked, QList<int>({1, -1, 0, -1}));
    }

    void theZoomIsKeptFromDayToDay() {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        {
            ZoomSetting first(application_.look);
            QCOMPARE(application_.look.zoom(), 1.0);
            first.step(1);
            QCOMPARE(application_.look.zoom(), 1.1);
            first.step(1);
        }
        application_.look.setZoom(1);
        ZoomSetting next(application_.look);
        QCOMPARE(application_.look.zoom(), 1.25);
        for (int i = 0; i < 10; ++i) {
            next.step(1);
        }
        QCOMPARE(application_.look.zoom(), 2.0);
        next.step(0);
        QCOMPARE(application_.look.zoom(), 1.0);
    }

    void theProgramTurnsDarkWithTheDesktop() {
        Desktop desktop(application_.look);
        const QWidget* frame = desktop.binder.frame();
        QCOMPARE(application_.look.theme().ground, lightTheme.ground);
        QPalette desktopColours(QColor(40, 40, 40));
        desktopColours.setColor(QPalette::Window, QColor(30, 30, 30));
        desktopColours.setColor(QPalette::WindowText, QColor(240, 240, 240));
        QApplication::setPalette(desktopColours);
        Desktop::settle();
        QCOMPARE(application_.look.theme().ground, darkTheme.ground);
        QCOMPARE(frame->palette().color(QPalette::Window), toColor(darkTheme.ground));
        desktopColours.setColor(QPalette::Window, QColor(240, 240, 240));
        desktopColours.setColor(QPalette::WindowText, QColor(30, 30, 30));
        QApplication::setPalette(desktopColours);
        Desktop::settle();
        QCOMPARE(application_.look.theme().ground, lightTheme.ground);
        QCOMPARE(QApplication::palette().color(QPalette::Window), toColor(lightTheme.ground));
    }

    void theToolbarLosesKeysThenCaptionsAndNoLineStandsAlone() {
        Desktop desktop(application_.look);
        auto* strip = desktop.binder.frame()->findChild<ToolStrip*>();
        const auto linesShown = [&] {
            int shown = 0;
            for (const QFrame* line : strip->findChildren<QFrame*>()) {
                shown += line->property("role").toString() == QLatin1String("upright") && line->isVisible()
                             ? 1
                             : 0;
            }
            return shown;
        };
        desktop.binder.frame()->resize(1600, 768);
        Desktop::settle();
        const int whole = desktop.widget("MDILodge", "cmdSave1")->width();
        QCOMPARE(linesShown(), 3);
        desktop.binder.frame()->resize(1180, 640);
        Desktop::settle();
        const int captioned = desktop.widget("MDILodge", "cmdSave1")->width();
        QVERIFY(captioned < whole);
        application_.look.setZoom(2);
        Desktop::settle();
        QVERIFY(desktop.widget("MDILodge", "cmdSave1")->width() < 2 * captioned);
        application_.look.setZoom(1);
        desktop.program.shell().ShowTools(false);
        Desktop::settle();
        QCOMPARE(linesShown(), 0);
        desktop.program.shell().ShowTools(true);
        Desktop::settle();
        QCOMPARE(linesShown(), 3);
    }

    void theStatusBarTellsWhoForWhenAndWhere() {
        Desktop desktop(application_.look);
        const auto said = [&](const char* part) {
            return desktop.binder.frame()->findChild<QLabel*>(QLatin1String(part))->text();
        };
        QCOMPARE(said("decorStatusPage"), QString());
        User user(desktop.program.desk);
        user.type(desktop.control(start, "mskDate1"), "01012561");
        user.type(desktop.control(start, "mskDate2"), "31122561");
        desktop.binder.act([&](User& person) { person.click(desktop.control(start, "CmdOK1")); });
        desktop.binder.act(
            [&](User& person) { person.type(desktop.control(page1, "txtNid"), "0105536000313"); });
        desktop.binder.frame()->resize(2000, 768);
        Desktop::settle();
        QCOMPARE(said("decorStatusNumber"), QStringLiteral("เลขประจำตัวผู้เสียภาษีอากร 0105536000313"));
        QCOMPARE(said("decorStatusPeriod"), QStringLiteral("รอบระยะเวลาบัญชี 01/01/2561 ถึง 31/12/2561"));
        QCOMPARE(said("decorStatusPage"), QStringLiteral("หน้า 1"));
        desktop.binder.frame()->resize(1180, 640);
        Desktop::settle();
        QCOMPARE(said("decorStatusNumber"), QStringLiteral("0105536000313"));
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::AccessibilityTest)

#include "accessibility_test.moc"
