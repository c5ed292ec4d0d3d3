// Keys as a person strikes them, Thai ones too: the toolkit's own test keyboard knows only English letters.
#pragma once

#include <QTest>

namespace lodge {

inline void typeText(QWidget* widget, const QString& text) {
    for (const QChar character : text) {
        const QString typed(character);
        const auto key = static_cast<Qt::Key>(
            character.unicode() < 128 ? int(character.toUpper().unicode()) : int(Qt::Key_unknown));
        QTest::sendKeyEvent(QTest::Press, widget, key, typed, Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Release, widget, key, typed, Qt::NoModifier);
    }
}

} // namespace lodge
