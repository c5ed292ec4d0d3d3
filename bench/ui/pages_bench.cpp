// How the desktop feels: the work of a visit to each page, the first and a later one, and of a keystroke,
// each with all that follows from it until the program waits again. Against a bare page with as many fields,
// out of the same run.
//
// Work is time of the processor: what else the machine does must not decide.
#include "file/store_load.h"
#include "shell/page_table.h"
#include "shell/shell.h"
#include "shell/start_screen.h"
#include "ui/binder.h"
#include "ui/form_view.h"
#include "ui/look.h"
#include "ui/qt_host.h"
#include "ui/thai_texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <fmt/format.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <vector>

namespace {

using namespace lodge;

constexpr double firstAim = 50;
constexpr double laterAim = 5;
constexpr double keyAim = 16;
constexpr int laterVisits = 9;

double processorMilliseconds() {
    std::timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Lets everything happen that is due at once or in a moment, the paint among it.
void settle() {
    constexpr int moment = 60;
    QEventLoop loop;
    QTimer::singleShot(moment, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

struct Work {
    double turning = 0; // until the next page stands in the window, laid out and with its figures
    double whole = 0;   // until the program waits again: painted, and all that follows brought up to date
};

Work worksOf(const std::function<void()>& act) {
    settle();
    const double before = processorMilliseconds();
    act();
    const double turned = processorMilliseconds();
    settle();
    return {turned - before, processorMilliseconds() - before};
}

double workOf(const std::function<void()>& act) { return worksOf(act).whole; }

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Answers every box with its first button.
class QuietHost : public QtHost {
  public:
    using QtHost::QtHost;
    Answer show(const Box& box) override { return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok; }
    [[nodiscard]] std::chrono::year_month_day today() const override {
        return std::chrono::year(2019) / std::chrono::May / 20;
    }
};

template <typename Widget>
void addTo(QGridLayout& grid, qsizetype count) {
    constexpr int columns = 4;
    for (qsizetype i = 0; i < count; ++i) {
        const int place = grid.count();
        grid.addWidget(new Widget(QStringLiteral("รายได้ %1").arg(place)), place / columns, place % columns);
    }
}

/// As many fields of each kind as that page has, in one grid.
QWidget* bareLike(const QWidget& page) {
    auto* bare = new QScrollArea;
    auto* sheet = new QWidget;
    auto* grid = new QGridLayout(sheet);
    addTo<QLineEdit>(*grid, page.findChildren<QLineEdit*>().size());
    addTo<QCheckBox>(*grid, page.findChildren<QCheckBox*>().size());
    addTo<QPushButton>(*grid, page.findChildren<QPushButton*>().size());
    addTo<QLabel>(*grid, page.findChildren<QLabel*>().size());
    bare->setWidget(sheet);
    return bare;
}

class PagesBench {
  public:
    explicit PagesBench(const Look& look) : binder_(program_, look) {
        host_.watch(&binder_);
        shell_.start();
        binder_.frame()->showNormal();
        binder_.frame()->resize(1366, 768);
        QApplication::setActiveWindow(binder_.frame());
        openReturn();
        bare_.setCentralWidget(bareFrame_);
        bareFrame_->addWidget(new QWidget);
        bare_.resize(1366, 768);
        bare_.show();
        settle();
    }

    void run() {
        // A later visit twice: until the page stands, and with its paint and all that follows.
        fmt::print("{:<18}{:>7}{:>12}{:>10}{:>12}{:>8}{:>10}\n", "page, ms of work", "fields", "first visit",
            "bare", "later visit", "whole", "bare");
        for (const PageRow& row : pageTable()) {
            if (row.chooserButton != nullptr) measure(row);
        }
        measureKeys();
    }

  private:
    void openReturn() {
        if (loadReturnText(readInnerFile(LODGE_RETURN).bytes, program_.state, 2019).status
            != ReadStatus::Loaded)
            throw std::runtime_error("no sample");
        beginLoadedReturn(program_.state);
        program_.shell().ShowPage1();
    }

    void choose() {
        binder_.pressOpen("MDILodge", "cmdChoose");
        settle();
    }
    void visit(const PageRow& row) { binder_.pressOpen("frmLodgeChoose", row.chooserButton); }

    void measure(const PageRow& row) {
        choose();
        const double first = workOf([&] { visit(row); });
        const FormView* view = binder_.viewOf(row.form);
        if (view == nullptr) return; // not a page of this return
        QWidget* bare = nullptr;
        const double bareFirst = workOf([&] {
            bare = bareLike(*view->root());
            bareFrame_->addWidget(bare);
            bareFrame_->setCurrentWidget(bare);
        });
        const auto fields =
            bare->findChildren<QLineEdit*>().size() + bare->findChildren<QAbstractButton*>().size();
        std::vector<double> turning;
        std::vector<double> later;
        std::vector<double> bareLater;
        for (int again = 0; again < laterVisits; ++again) {
            choose();
            bareFrame_->setCurrentIndex(0);
            const Work work = worksOf([&] { visit(row); });
            turning.push_back(work.turning);
            later.push_back(work.whole);
            bareLater.push_back(workOf([&] { bareFrame_->setCurrentWidget(bare); }));
        }
        fmt::print("{:<18}{:>7}{:>12.1f}{:>10.1f}{:>12.1f}{:>8.1f}{:>10.1f}{}{}\n", row.form, fields, first,
            bareFirst, median(turning), median(later), median(bareLater),
            first > firstAim ? "  first visit missed" : "",
            median(later) > laterAim ? "  whole later visit missed" : "");
    }

    /// Figures into a line of item 3, from which sums down the whole page follow, and the way to the next.
    void measureKeys() {
        choose();
        binder_.pressOpen("frmLodgeChoose", findPage(page::item3)->chooserButton);
        settle();
        Control& amount = *program_.desk.find("frmLodgePage3_3")->find("txtMoney32(0)");
        binder_.act([&](User& user) { user.focus(amount); });
        settle();
        const auto press = [](int key, const QString& text) {
            return workOf([&] {
                QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
                QApplication::sendEvent(QApplication::focusWidget(), &down);
            });
        };
        std::vector<double> typed;
        for (int digit = 1; digit <= 9; ++digit)
            typed.push_back(press(Qt::Key_0 + digit, QString::number(digit)));
        const double left = press(Qt::Key_Tab, QStringLiteral("\t"));
        const double idle = workOf([] {});
        const auto tell = [](const char* what, double work) {
            fmt::print("{:<18}{:>7.1f} ms{}\n", what, work, work > keyAim ? "  missed" : "");
        };
        fmt::print("\n");
        tell("a digit", median(typed));
        tell("slowest digit", *std::max_element(typed.begin(), typed.end()));
        tell("Tab to the next", left);
        tell("nothing", idle);
    }

    QTemporaryDir folder_;
    QuietHost host_{folder_.path().toStdString()};
    Program program_{host_};
    Binder binder_;
    Shell shell_{program_};
    QMainWindow bare_;
    QStackedWidget* bareFrame_ = new QStackedWidget; // of the window
};

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "*=false", 1);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    lodge::ThaiTexts texts;
    QApplication::installTranslator(&texts);
    const Look look(application);
    PagesBench(look).run();
    return 0;
}
