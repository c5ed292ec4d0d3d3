// The desktop does nothing while nobody does anything: a layout that asks for a new layout would keep it busy
// for ever.

#include "desktop.h"

#include <QTest>

namespace lodge {

namespace {

/// Counts how often some widget of the application is asked to be laid out, shown or hidden.
class Unrest : public QObject {
  public:
    Unrest() { qApp->installEventFilter(this); }
    [[nodiscard]] int count() const { return count_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        const bool layout = event->type() == QEvent::LayoutRequest;
        count_ +=
            layout || event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent ? 1 : 0;
        return false;
    }

  private:
    int count_ = 0;
};

} // namespace

class RestTest : public QObject {
    Q_OBJECT

  private slots:
    void theStartScreenComesToRest() {
        const Desktop desktop(application_.look);
        QVERIFY(comesToRest());
    }

    void aPageComesToRestAtAnyWidth() {
        Desktop desktop(application_.look);
        User user(desktop.program.desk);
        user.edit(static_cast<MaskedBox&>(desktop.control("frmLodgeStart", "mskDate1")), "01012561");
        user.edit(static_cast<MaskedBox&>(desktop.control("frmLodgeStart", "mskDate2")), "31122561");
        user.click(desktop.control("frmLodgeStart", "CmdOK1"));
        QVERIFY(desktop.program.desk.find("frmLodgePage1") != nullptr);
        for (const int width : {1366, 1180, 1000, 1900}) {
            desktop.binder.frame()->resize(width, 768);
            QVERIFY2(comesToRest(), qPrintable(QStringLiteral("%1 wide").arg(width)));
        }
    }

  private:
    /// What follows from the last act is over after a moment, and then nothing happens any more.
    static bool comesToRest() {
        QTest::qWait(300);
        const Unrest unrest;
        QTest::qWait(100);
        return unrest.count() == 0;
    }

    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::RestTest)

#include "rest_test.moc"
