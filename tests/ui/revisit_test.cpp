// A page that is left and visited again stands in the widgets of the first visit. Nothing of that visit may
// show through, and nothing that happens to its widgets in between may reach the return.

#include "desktop.h"
#include "file/store_load.h"
#include "shell/page_table.h"
#include "shell/start_screen.h"
#include "ui/date_edit.h"
#include "ui/page_scroll.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <map>

namespace lodge {

namespace {

/// The year in which the sample return is read.
constexpr int sampleYear = 2019;

void openSample(Desktop& desktop) {
    desktop.program.state = ReturnState();
    QCOMPARE(
        loadReturnText(readInnerFile(LODGE_TEST_DATA "/returns/every-field/01055360003132561100N.txt").bytes,
            desktop.program.state, sampleYear)
            .status,
        ReadStatus::Loaded);
    beginLoadedReturn(desktop.program.state);
    desktop.program.desk.unload(frmLodgeStart::formName);
}

/// A return with little in it, so that a page of it shows other rows and figures than the sample's.
void openAnother(Desktop& desktop) {
    desktop.program.state = ReturnState();
    desktop.program.state.strStartDDMMYY = "01012560";
    desktop.program.state.strFinishDDMMYY = "31122560";
    desktop.program.state.strFldPage8.fill("เก่า");
}

void visit(Desktop& desktop, const PageRow& row) {
    // Without a page the focus rests on the tools of the frame; here it shall come to the page.
    desktop.binder.act([](User& user) { user.leave(); });
    desktop.program.desk.load(row.form);
    if (row.arrayToControls != nullptr) {
        row.arrayToControls(desktop.program);
    }
    desktop.program.state.intPageCur = row.code;
    desktop.program.desk.show(row.form);
    Desktop::settle();
}

QString shownItems(const QComboBox& combo) {
    QStringList items;
    for (int i = 0; i < combo.count(); ++i) {
        items << combo.itemText(i);
    }
    return items.join(QLatin1Char('|')) + QString::number(combo.currentIndex());
}

/// What a person or a screen reader could tell about a widget, and what keys would find in it.
QString told(QWidget& widget) {
    QStringList facts;
    const auto add = [&](const char* name, const QVariant& value) {
        facts << QStringLiteral("%1=%2").arg(QLatin1String(name), value.toString());
    };
    for (const char* name : {"text", "state", "tone", "row", "checked", "down", "readOnly", "alignment",
             "toolTip", "accessibleName", "accessibleDescription", "enabled", "font", "focusPolicy",
             "windowTitle", "minimumSize", "maximumSize", "geometry", "cursorPosition", "selectedText",
             "undoAvailable", "redoAvailable", "modified", "textMargins", "plainText"}) {
        add(name, widget.property(name));
    }
    add("hidden", widget.isHidden());
    const QRect place = widget.isVisible() ? widget.geometry() : QRect(); // what is hidden has no place yet
    add("place",
        QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()));
    const QMargins margins = widget.contentsMargins();
    add("margins", margins.right());
    if (const auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        add("textMargin", edit->textMargins().right());
    } else if (const auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
        add("undo", lines->document()->isUndoAvailable());
        add("redo", lines->document()->isRedoAvailable());
        add("caret", lines->textCursor().position());
        add("selected", lines->textCursor().selectedText());
    } else if (const auto* combo = qobject_cast<QComboBox*>(&widget)) {
        add("items", shownItems(*combo));
    } else if (const auto* bar = qobject_cast<QScrollBar*>(&widget)) {
        add("scrolled", bar->value());
    }
    return facts.join(QLatin1String(", "));
}

QStringList picture(QWidget& root) {
    QStringList lines;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        lines << QStringLiteral("%1 %2: %3")
                     .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
                         told(*widget));
    }
    return lines;
}

/// Leaves the traces that a person and the checks leave in a field.
void spoil(ControlView& field) {
    field.showProblem(QStringLiteral("ติดขัด"));
    field.markRefused();
    QWidget& widget = *field.widget();
    const QSignalBlocker silent(&widget); // the traces alone: the return stays as it is
    if (auto* date = qobject_cast<DateEdit*>(&widget)) {
        date->setDigits(QStringLiteral("0102"));
        date->selectAll();
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        edit->setReadOnly(false);
        edit->insert(QStringLiteral("7"));
        edit->selectAll();
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
        lines->insertPlainText(QStringLiteral("7\n8\n9\n10\n11\n12\n13\n14\n15\n16"));
        lines->selectAll();
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setDown(true);
    }
}

void spoil(const FormView& view, const Form& form) {
    for (const Control* control : form.controls()) {
        // A label has no ground of its own, and a frame no tool tip: only fields are ever marked.
        if (ControlView* field = view.find(*control); field != nullptr && control->takesFocus()) {
            spoil(*field);
        }
    }
    for (QScrollArea* sheet : view.root()->findChildren<QScrollArea*>()) {
        sheet->verticalScrollBar()->setValue(sheet->verticalScrollBar()->maximum());
    }
}

/// The facts that the one line of a picture tells and the other does not.
QString difference(const QString& one, const QString& other) {
    const QString part = QStringLiteral(", ");
    const QStringList others = other.split(part);
    QStringList only;
    for (const QString& fact : one.split(part)) {
        if (!others.contains(fact)) {
            only << fact;
        }
    }
    return only.join(part);
}

void compare(const QStringList& seen, const QStringList& wanted, const char* page) {
    QCOMPARE(seen.size(), wanted.size());
    for (qsizetype i = 0; i < seen.size(); ++i) {
        QVERIFY2(seen[i] == wanted[i],
            qPrintable(QStringLiteral("%1, %2: seen %3, wanted %4")
                           .arg(QLatin1String(page), seen[i].section(QLatin1Char(':'), 0, 0),
                               difference(seen[i], wanted[i]), difference(wanted[i], seen[i]))));
    }
}

QScrollBar* barOf(const QWidget& root) { return root.findChild<QScrollArea*>()->verticalScrollBar(); }

} // namespace

class RevisitTest : public QObject {
    Q_OBJECT

  private slots:
    void aSecondVisitLooksLikeAFirstOneOnEveryPage() {
        for (const PageRow& row : pageTable()) {
            Desktop again(application_.look);
            openAnother(again);
            visit(again, row);
            QWidget* root = again.binder.viewOf(row.form)->root();
            spoil(*again.binder.viewOf(row.form), again.form(row.form));
            again.program.desk.unload(row.form);
            Desktop::settle();
            openSample(again);
            visit(again, row);
            QCOMPARE(again.binder.viewOf(row.form)->root(), root);
            QTest::qWait(100); // for the list of what is in the way
            // Now: a second window takes the focus of the screen away.
            const QStringList seen = picture(*root);

            Desktop fresh(application_.look);
            openSample(fresh);
            visit(fresh, row);
            QTest::qWait(100); // for the list of what is in the way

            const auto focusOf = [](const Desktop& desktop) {
                const Control* focus = desktop.program.desk.focus();
                return focus == nullptr ? std::string() : focus->form().name() + "." + focus->fullName();
            };
            QCOMPARE(focusOf(again), focusOf(fresh));
            const QStringList wanted = picture(*fresh.binder.viewOf(row.form)->root());
            compare(seen, wanted, row.form);
        }
    }

    void aSecondVisitBeginsAtTheTopOfTheSheetWithTheFocusOfAFirst() {
        Desktop desktop(application_.look);
        openSample(desktop);
        const PageRow& row = *findPage(page::item3);
        visit(desktop, row);
        QVERIFY(desktop.program.desk.focus() != nullptr);
        const std::string first = desktop.program.desk.focus()->fullName();
        QTest::mouseClick(desktop.widget(row.form, "txtMoney32(7)"), Qt::LeftButton);
        Desktop::settle();
        QScrollBar* bar = barOf(*desktop.binder.viewOf(row.form)->root());
        bar->setValue(bar->maximum());
        desktop.program.desk.unload(row.form);
        Desktop::settle();
        visit(desktop, row);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(desktop.program.desk.focus()->fullName(), first);
        QVERIFY(desktop.widget(row.form, first.c_str())->hasFocus());
    }

    void whatIsTypedAfterASecondVisitGoesToItsOwnFormOnce() {
        Desktop desktop(application_.look);
        openSample(desktop);
        const PageRow& row = *findPage(page::item3);
        visit(desktop, row);
        desktop.program.desk.unload(row.form);
        visit(desktop, row);
        int changes = 0;
        class Count : public DeskObserver {
          public:
            explicit Count(int& count) : count_(count) {}
            void controlChanged(Control& control, Aspect aspect) override {
                count_ += control.fullName() == "txtMoney32(0)" && aspect == Aspect::Text ? 1 : 0;
            }

          private:
            int& count_;
        } count(changes);
        QWidget* box = desktop.widget(row.form, "txtMoney32(0)");
        QTest::mouseClick(box, Qt::LeftButton);
        desktop.program.desk.observe(count);
        QTest::keyClick(box, Qt::Key_5);
        desktop.program.desk.forget(count);
        QCOMPARE(changes, 1);
        QCOMPARE(desktop.control(row.form, "txtMoney32(0)").reading(), std::string("5"));
    }

    void aPageThatWasLeftIsDeadUntilItIsVisitedAgain() {
        Desktop desktop(application_.look);
        openSample(desktop);
        const PageRow& row = *findPage(page::item3);
        visit(desktop, row);
        auto* box = desktop.widget<QLineEdit>(row.form, "txtMoney32(0)");
        auto* tick = desktop.widget<QAbstractButton>(row.form, "chkProfit3");
        desktop.program.desk.unload(row.form); // its view goes only with the next turn of the event loop
        QVERIFY(!box->isVisible());
        for (int turn = 0; turn < 2; ++turn) {
            QTest::keyClick(box, Qt::Key_5);
            QTest::mouseClick(box, Qt::LeftButton);
            QTest::mouseClick(tick, Qt::LeftButton);
            tick->click();
            Desktop::settle();
        }
        QVERIFY(desktop.program.desk.find(row.form) == nullptr);
        QVERIFY(desktop.binder.viewOf(row.form) == nullptr);
    }

    void aPageThatWasLeftTakesPartInANewZoom() {
        const PageRow& row = *findPage(page::item3);
        const auto plain = qScopeGuard([this] { application_.look.setZoom(1); });
        application_.look.setZoom(1.5);
        QStringList wanted;
        {
            Desktop fresh(application_.look);
            openSample(fresh);
            visit(fresh, row);
            QTest::qWait(500); // a page that changes its shape for want of room is laid out more than once
            wanted = picture(*fresh.binder.viewOf(row.form)->root());
        }
        application_.look.setZoom(1);

        Desktop desktop(application_.look);
        openSample(desktop);
        visit(desktop, row);
        desktop.program.desk.unload(row.form);
        Desktop::settle();
        application_.look.setZoom(1.5);
        visit(desktop, row);
        QWidget& root = *desktop.binder.viewOf(row.form)->root();
        (void)QTest::qWaitFor([&] { return picture(root) == wanted; });
        compare(picture(root), wanted, row.form);
    }

  private:
    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::RevisitTest)

#include "revisit_test.moc"
