// Dresses the application: style, palette, fonts, zoom; and draws the icons in the colours of a
// theme. When the desktop goes dark or light while the program runs, so does the program.
#pragma once

#include "ui/theme.h"

#include <QFocusFrame>
#include <QIcon>
#include <QObject>
#include <QPixmap>
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

    [[nodiscard]] const Theme& theme() const { return *theme_; }
    [[nodiscard]] double zoom() const { return zoom_; }
    /// Draws everything that much larger, one of `zoomLevels`.
    void setZoom(double zoom);
    /// The zoom `steps` levels on, as far as there are any.
    [[nodiscard]] double zoomAfter(int steps) const;
    /// Gives the fonts, heights and icons that a layout asks for by the properties "type" and "drawing".
    void dress(QWidget& root) const;

  signals:
    /// Theme or zoom are others than before: what has been dressed must be dressed again.
    void changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void wear();
    void follow(const QPalette& desktop);
    /// There is exactly one ring on screen; fields draw their own, buttons and ticks have it around them.
    void moveRing(QWidget* focused);

    QApplication& application_;
    const Theme* theme_;
    double zoom_ = 1;
    bool wearing_ = false;
    QPointer<QFocusFrame> ring_;
};

/// A picture among the resources of the program, a PNG.
[[nodiscard]] QPixmap pictureAt(const QString& path);
/// An icon of the program in one colour, with the closed form of it in another.
[[nodiscard]] QIcon iconOf(const QString& name, const QColor& colour, const QColor& closed);

} // namespace lodge
