// Draws the pictures of the user guide: ui_guide_pictures SCRIPT FOLDER [PROGRAM-FOLDER]
//
// The script is a session, played through the real windows. Its comments say where a picture is taken:
//
//   #picture NAME          what is on screen now, as NAME.png
//   #picture NAME CODE     with the box of that message of the catalogue in front
//   #key F7                a key of the keyboard, for what a session does not know
//
// So the guide's pictures and figures are those of one return that the program itself has taken to its end.

#include "session/session.h"
#include "session/session_host.h"
#include "shell/shell.h"
#include "ui/binder.h"
#include "ui/boxes.h"
#include "ui/look.h"
#include "ui/thai_texts.h"
#include "values/messages.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QKeySequence>
#include <QPainter>
#include <QPixmap>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

namespace lodge {

namespace {

constexpr std::string_view pictureMark = "#picture ";
constexpr std::string_view keyMark = "#key ";
constexpr QSize frameSize(1366, 768);

/// Long enough for the timers of a page, which keep its figures true, to have their turn.
void settle() { QTest::qWait(400); }

void drawInFront(QPainter& painter, const QWidget& frame, QWidget& window, QPoint place) {
    const QRect framed(place, window.size());
    painter.drawPixmap(place, window.grab());
    painter.setPen(frame.palette().color(QPalette::Dark));
    painter.drawRect(framed.adjusted(-1, -1, 0, 0));
}

/// The main window and the dialogs in front of it, where they stand.
QPixmap pictureOf(QWidget& frame, std::string_view message) {
    QPixmap whole = frame.grab();
    QPainter painter(&whole);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &frame && window->isVisible() && qobject_cast<QDialog*>(window) != nullptr) {
            drawInFront(painter, frame, *window, window->geometry().topLeft() - frame.geometry().topLeft());
        }
    }
    if (!message.empty()) {
        BoxWindow box(Box{.text = std::string(message)}, nullptr);
        box.show();
        QTest::qWait(60);
        drawInFront(painter, frame, box, frame.rect().center() - box.rect().center());
    }
    return whole;
}

struct Player {
    Session& session;
    SessionOptions options;
    Binder& binder;
    QDir folder;

    /// False when a command of the script did not go through.
    [[nodiscard]] bool play(const std::string& commands) const {
        std::istringstream lines(commands);
        return session.run(lines, options, std::cerr) == SessionEnd::AllWentThrough;
    }

    /// False when the picture could not be written.
    [[nodiscard]] bool draw(const QStringList& words) const {
        settle();
        QMainWindow& frame = *binder.frame();
        const std::string_view message =
            words.size() > 1 ? GetMessage(words[1].toStdString()) : std::string_view();
        return pictureOf(frame, message).save(folder.filePath(words[0] + QStringLiteral(".png")));
    }

    void strike(const QString& keys) const {
        QApplication::setActiveWindow(binder.frame());
        settle();
        QTest::keySequence(binder.frame(), QKeySequence(keys));
    }
};

/// Draws or strikes what a marked line asks for; false when that fails.
bool perform(const std::string& line, const Player& player) {
    if (line.starts_with(keyMark)) {
        player.strike(QString::fromStdString(line.substr(keyMark.size())));
        return true;
    }
    return player.draw(QString::fromStdString(line.substr(pictureMark.size())).split(QLatin1Char(' ')));
}

/// The commands between two marks run together, below as many empty lines as stand before them, so that what
/// does not go through is told with its own line.
int playScript(std::istream& script, const Player& player) {
    std::string commands;
    std::size_t number = 0;
    for (std::string line; std::getline(script, line);) {
        ++number;
        if (!line.starts_with(pictureMark) && !line.starts_with(keyMark)) {
            commands += line + '\n';
            continue;
        }
        if (!player.play(commands) || !perform(line, player)) {
            return 1;
        }
        commands.assign(number, '\n');
    }
    return player.play(commands) ? 0 : 1;
}

} // namespace

} // namespace lodge

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 3 || argc > 4) {
        std::cerr << "usage: ui_guide_pictures SCRIPT FOLDER [PROGRAM-FOLDER]\n";
        return 2;
    }
    std::ifstream script(argv[1]);
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    folder.mkpath(QStringLiteral("."));
    lodge::ThaiTexts texts;
    QApplication::installTranslator(&texts);
    const lodge::Look look(application, lodge::lightTheme);

    lodge::SessionHost host(argc > 3 ? argv[3] : LODGE_PROGRAM_FOLDER, std::cout);
    lodge::Program program(host);
    lodge::Binder binder(program, look);
    lodge::Shell shell(program);
    lodge::Session session(program, host, [&] {
        shell.start();
        binder.frame()->showNormal();
        binder.frame()->resize(lodge::frameSize);
    });
    const lodge::SessionOptions options{
        .scriptName = argv[1], .substitutes = {{"RESULT", argv[2]}}, .keepGoing = false};
    return lodge::playScript(script, {session, options, binder, folder});
}
