// A person who has a keyboard and nothing else: each key goes to the window that has the focus of the screen.
#pragma once

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include <stdexcept>

namespace lodge {

/// The person cannot go on.
class Stuck : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class Typist {
  public:
    /// Presses a key and lets it go.
    static void strike(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&window(), key, held);
    }

    /// Types a text, also a Thai one: the toolkit's own test keyboard knows only English letters.
    static void write(const QString& text) {
        for (const QChar character : text) {
            const bool hasKey = character.unicode() < 128;
            const auto key = hasKey ? static_cast<Qt::Key>(character.toUpper().unicode()) : Qt::Key_unknown;
            QTest::sendKeyEvent(QTest::Press, &window(), key, QString(character), Qt::NoModifier);
            QTest::sendKeyEvent(QTest::Release, &window(), key, QString(character), Qt::NoModifier);
        }
    }

    /// Types a text in place of what the field holds.
    static void replace(const QString& text) {
        strike(Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty()) {
            strike(Qt::Key_Delete);
        } else {
            write(text);
        }
    }

  private:
    /// A window that has just come up or gone leaves none for a moment.
    static QWindow& window() {
        if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; })) {
            throw Stuck("no window has the focus");
        }
        return *QGuiApplication::focusWindow();
    }
};

} // namespace lodge
