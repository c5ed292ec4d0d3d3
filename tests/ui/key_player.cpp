#include "key_player.h"

#include "program/checks.h"
#include "ui/print_preview.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QTableWidget>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <string_view>
#include <utility>

namespace lodge {

namespace {

using namespace std::chrono_literals;

/// No page has as many fields: who has struck Tab so often has been everywhere.
constexpr int mostTabs = 300;
constexpr int patience = 10'000; // milliseconds

constexpr std::string_view frameForm = "MDILodge";

/// The tools of the main window by the keys that the person knows.
struct ToolKey {
    std::string_view tool;
    Qt::Key key;
};
constexpr std::array toolKeys = {
    ToolKey{"cmdPage1", Qt::Key_F2},
    ToolKey{"cmdChoose", Qt::Key_F3},
    ToolKey{"cmdSave2", Qt::Key_F5},
    ToolKey{"cmdSave1", Qt::Key_F9},
    ToolKey{"CmdPrint", Qt::Key_F12},
};

struct Command {
    std::string_view name;
    std::size_t words;
    void (*run)(KeyPlayer& player, const Words& words);
};

void requireFile(const std::string& path, bool wanted) {
    if (std::filesystem::exists(path) != wanted) {
        throw Stuck(fmt::format("{} file {}", wanted ? "there is no" : "there is a", path));
    }
}

void waitFor(const std::string& milliseconds) { QTest::qWait(std::stoi(milliseconds)); }

// clang-format off
constexpr std::array commands = {
    Command{"today",             1, [](KeyPlayer& player, const Words& words) { player.setDay(words[0]); }},
    Command{"on",                1, [](KeyPlayer& player, const Words& words) { player.names().setForm(words[0]); }},
    Command{"report",            1, [](KeyPlayer& player, const Words& words) { player.setReportFolder(words[0]); }},
    Command{"click",             1, [](KeyPlayer& player, const Words& words) { player.press(words[0]); }},
    Command{"tick",              1, [](KeyPlayer& player, const Words& words) { player.setTick(words[0], true); }},
    Command{"type",              2, [](KeyPlayer& player, const Words& words) { player.type(words[0], words[1]); }},
    Command{"choose",            2, [](KeyPlayer& player, const Words& words) { player.choose(words[0], words[1]); }},
    Command{"pick",              2, [](KeyPlayer& player, const Words& words) { player.pick(words[0], words[1]); }},
    Command{"close",             1, [](KeyPlayer& player, const Words& words) { player.close(words[0]); }},
    Command{"wait",              1, [](KeyPlayer& /*player*/, const Words& words) { waitFor(words[0]); }},
    Command{"show",              1, [](KeyPlayer& player, const Words& words) { (void)player.names().read(words[0]); }},
    Command{"expect",            2, [](KeyPlayer& player, const Words& words) { player.expectReading(words[0], words[1]); }},
    Command{"expect-shown",      1, [](KeyPlayer& player, const Words& words) { player.expectShown(words[0]); }},
    Command{"expect-focus",      1, [](KeyPlayer& player, const Words& words) { player.expectFocus(words[0]); }},
    Command{"expect-message",    1, [](KeyPlayer& player, const Words& words) { player.expectBox(words[0]); }},
    Command{"expect-no-message", 0, [](KeyPlayer& player, const Words& /*words*/) { player.expectNoBox(); }},
    Command{"expect-file",       1, [](KeyPlayer& /*player*/, const Words& words) { requireFile(words[0], true); }},
    Command{"expect-no-file",    1, [](KeyPlayer& /*player*/, const Words& words) { requireFile(words[0], false); }},
};
// clang-format on

std::chrono::year_month_day dayOf(const std::string& text) {
    std::istringstream parts(text);
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    char stroke = 0;
    parts >> year >> stroke >> month >> stroke >> day;
    return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

std::string nameOfFocus() {
    const QWidget* focused = QApplication::focusWidget();
    return focused == nullptr
               ? "nothing"
               : focused->window()->objectName().toStdString() + '.' + focused->objectName().toStdString();
}

bool standsBefore(const QWidget& widget, const QWidget& other) {
    const QPoint place = widget.mapTo(widget.window(), QPoint());
    const QPoint from = other.mapTo(other.window(), QPoint());
    return std::pair(place.y(), place.x()) < std::pair(from.y(), from.x());
}

bool isInFront(const QWidget& window) {
    return window.isVisible() && window.windowHandle() != nullptr
           && window.windowHandle() == QGuiApplication::focusWindow();
}

} // namespace

void WitnessedPrinter::setReportFileName(const std::filesystem::path& path) {
    name_ = path.stem().string();
    formulas_.clear();
    printer_.setReportFileName(path);
}

void WitnessedPrinter::setFormula(std::size_t slot, const std::string& text) {
    formulas_.insert_or_assign(slot, text);
    printer_.setFormula(slot, text);
}

void WitnessedPrinter::setAction(int action) {
    printer_.setAction(action);
    ++jobs;
    std::filesystem::create_directories(folder);
    std::ofstream job(folder / fmt::format("{:02}-{}.formulas", jobs, name_), std::ios::binary);
    for (const auto& [slot, formula] : formulas_) {
        job << formula << '\n';
    }
}

KeyAttendant::KeyAttendant(QString document) : document_(std::move(document)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(10ms);
}

void KeyAttendant::look() {
    QWidget* window = QApplication::activeModalWidget();
    if (busy_ || window == nullptr || !window->isVisible()) {
        return;
    }
    if (!isInFront(*window)) {
        window->activateWindow(); // as a window manager does with a window that comes up
        return;
    }
    busy_ = true;
    answer(*window);
    busy_ = false;
}

void KeyAttendant::answer(const QWidget& window) {
    if (qobject_cast<const QFileDialog*>(&window) != nullptr) {
        Typist::replace(document_);
        Typist::strike(Qt::Key_Return);
    } else if (qobject_cast<const PagesWindow*>(&window) != nullptr
               || qobject_cast<const BoxWindow*>(&window) != nullptr) {
        Typist::strike(Qt::Key_Return); // all pages; read
    }
}

KeyPlayer::KeyPlayer(const Look& look, KeyPlaces places)
    : places_(std::move(places)), host_(places_.program), binder_(program_, look),
      desktopPrinter_(program_, binder_, look, LODGE_PROGRAM_FOLDER),
      attendant_(QString::fromStdString(places_.document.string())) {
    host_.watch(&binder_);
    program_.attach(printer_);
}

void KeyPlayer::begin() {
    if (std::exchange(begun_, true)) {
        return;
    }
    shell_.start();
    binder_.frame()->showNormal();
    binder_.frame()->resize(1366, 768);
    QApplication::setActiveWindow(binder_.frame());
    Desktop::settle();
}

void KeyPlayer::play(std::istream& script, const std::string& name) {
    int number = 0;
    for (std::string line; std::getline(script, line);) {
        ++number;
        try {
            runLine(splitWords(
                line, {{"PROGRAM", places_.program.string()}, {"RESULT", places_.result.string()}}));
        } catch (const std::runtime_error& error) {
            throw Stuck(fmt::format("{}:{}: {}\n  {}", name, number, error.what(), line));
        }
    }
}

void KeyPlayer::runLine(const Words& words) {
    if (words.empty()) {
        return;
    }
    const auto command = std::ranges::find(commands, words.front(), &Command::name);
    if (command == commands.end() || words.size() != command->words + 1) {
        throw Stuck("nobody knows how to do this with keys");
    }
    if (command->name != "today") {
        begin();
    }
    command->run(*this, {words.begin() + 1, words.end()});
}

void KeyPlayer::setDay(const std::string& day) { host_.day = dayOf(day); }

KeyPlayer::Place KeyPlayer::find(const std::string& control) const {
    const Control& found = names_.control(control);
    const FormView* form = binder_.viewOf(found.form().name());
    const ControlView* view = form == nullptr ? nullptr : form->find(found);
    if (view == nullptr) {
        throw Stuck(control + " is not on screen");
    }
    return {*view->widget(), *form->root()};
}

void KeyPlayer::comeTo(const Place& place) {
    const auto isThere = [&] {
        const QWidget* focused = QApplication::focusWidget();
        return focused != nullptr && place.form.isAncestorOf(focused) && isInFront(*place.widget.window());
    };
    if (!QTest::qWaitFor(isThere, patience)) {
        throw Stuck("the focus is not in its window but on " + nameOfFocus());
    }
}

KeyPlayer::Place KeyPlayer::reach(const std::string& control) {
    const Place place = find(control);
    comeTo(place);
    const bool isBehind = standsBefore(place.widget, *QApplication::focusWidget());
    for (int struck = 0; QApplication::focusWidget() != &place.widget; ++struck) {
        if (struck == mostTabs) {
            throw Stuck(control + " cannot be reached; the focus is on " + nameOfFocus());
        }
        if (isBehind) {
            Typist::strike(Qt::Key_Backtab, Qt::ShiftModifier);
        } else {
            Typist::strike(Qt::Key_Tab);
        }
        comeTo(place);
    }
    return place;
}

void KeyPlayer::press(const std::string& control) {
    const Control& pressed = names_.control(control);
    const int jobsBefore = printer_.jobs;
    if (pressed.form().name() == frameForm) {
        const auto tool = std::ranges::find(toolKeys, pressed.fullName(), &ToolKey::tool);
        if (tool == toolKeys.end()) {
            throw Stuck(control + " has no key");
        }
        Typist::strike(tool->key);
    } else {
        reach(control);
        Typist::strike(Qt::Key_Space);
    }
    if (printer_.jobs != jobsBefore) {
        lookThrough();
    }
}

void KeyPlayer::setTick(const std::string& control, bool ticked) {
    const Place place = reach(control);
    const auto* box = qobject_cast<const QAbstractButton*>(&place.widget);
    if (box == nullptr) {
        throw Stuck(control + " is nothing to tick");
    }
    if (box->isChecked() != ticked) {
        Typist::strike(Qt::Key_Space);
    }
}

void KeyPlayer::type(const std::string& control, const std::string& text) {
    reach(control);
    Typist::replace(QString::fromStdString(text));
    Typist::strike(Qt::Key_Return);
}

void KeyPlayer::choose(const std::string& control, const std::string& entry) {
    const Place place = reach(control);
    const auto* combo = qobject_cast<const QComboBox*>(&place.widget);
    const int wanted = combo == nullptr         ? -1
                       : entry.starts_with('#') ? std::stoi(entry.substr(1))
                                                : combo->findText(QString::fromStdString(entry));
    if (wanted < 0 || wanted >= combo->count()) {
        throw Stuck(control + " offers no " + entry);
    }
    Typist::strike(Qt::Key_Down, Qt::AltModifier); // the list opens
    Typist::strike(Qt::Key_Home);
    for (int row = 0; row < wanted; ++row) {
        Typist::strike(Qt::Key_Down);
    }
    Typist::strike(Qt::Key_Return);
}

void KeyPlayer::pick(const std::string& control, const std::string& row) {
    const Place place = reach(control);
    const auto* table = qobject_cast<const QTableWidget*>(&place.widget);
    const int wanted = std::stoi(row);
    if (table == nullptr || wanted >= table->rowCount()) {
        throw Stuck(control + " has no row " + row);
    }
    Typist::strike(Qt::Key_Home);
    for (int at = 0; at < wanted; ++at) {
        Typist::strike(Qt::Key_Down);
    }
}

void KeyPlayer::close(const std::string& form) const {
    const FormView* view = binder_.viewOf(form);
    if (view == nullptr || !QTest::qWaitFor([&] { return isInFront(*view->root()); }, patience)) {
        throw Stuck(form + " is not in front");
    }
    Typist::strike(Qt::Key_Escape);
}

void KeyPlayer::lookThrough() {
    const auto isInPreview = [this] {
        return desktopPrinter_.preview() != nullptr && isInFront(*desktopPrinter_.preview());
    };
    if (!QTest::qWaitFor(isInPreview, patience)) {
        throw Stuck("no preview came up");
    }
    for (int page = 1; page < printer_.jobs; ++page) {
        Typist::strike(Qt::Key_PageDown);
    }
    Typist::strike(Qt::Key_S, Qt::ControlModifier);
    requireFile(places_.document.string(), true);
    Typist::strike(Qt::Key_Escape);
    if (!QTest::qWaitFor([this] { return desktopPrinter_.preview() == nullptr; }, patience)) {
        throw Stuck("the preview does not close");
    }
}

void KeyPlayer::expectReading(const std::string& target, const std::string& value) const {
    const std::string reading = names_.read(target);
    if (reading != value) {
        throw Stuck(fmt::format("{} reads \"{}\", the focus is on {}", target, reading, nameOfFocus()));
    }
}

void KeyPlayer::expectShown(const std::string& form) const {
    const FormView* view = binder_.viewOf(form);
    if (view == nullptr || !QTest::qWaitFor([&] { return view->root()->isVisible(); }, patience)) {
        throw Stuck(form + " is not on screen");
    }
}

void KeyPlayer::expectFocus(const std::string& control) const {
    const QWidget& wanted = find(control).widget;
    if (!QTest::qWaitFor([&] { return QApplication::focusWidget() == &wanted; }, patience)) {
        throw Stuck("the focus is on " + nameOfFocus());
    }
}

void KeyPlayer::expectBox(const std::string& message) {
    if (host_.boxes.empty() || host_.boxes.front() != messageText(message)) {
        throw Stuck(host_.boxes.empty() ? "no box came up" : "the box says " + host_.boxes.front());
    }
    host_.boxes.pop_front();
}

void KeyPlayer::expectNoBox() const {
    if (!host_.boxes.empty()) {
        throw Stuck("a box came up: " + host_.boxes.front());
    }
}

} // namespace lodge
