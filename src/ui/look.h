// Dresses the application: style, palette, style sheet, fonts; and draws the icons in the colours of a theme.
#pragma once

#include "ui/theme.h"

#include <QFocusFrame>
#include <QIcon>
#include <QObject>
#include <QPointer>

class QApplication;
class QWidget;

namespace lodge {

class Look : public QObject {
    Q_OBJECT

  public:
    /// Takes the theme that suits the desktop.
    explicit Look(QApplication& application);
    Look(QApplication& application, const Theme& theme);

    [[nodiscard]] const Theme& theme() const { return theme_; }
    /// Gives the fonts, heights and icons that a layout asks for by the properties "type" and "drawing".
    void dress(QWidget& root) const;

  private:
    /// There is exactly one ring on screen; fields draw their own, buttons and ticks have it around them.
    void moveRing(QWidget* focused);

    const Theme& theme_;
    QPointer<QFocusFrame> ring_;
};

/// An icon of the program in one colour, with the closed form of it in another.
[[nodiscard]] QIcon iconOf(const QString& name, const QColor& colour, const QColor& closed);

} // namespace lodge
