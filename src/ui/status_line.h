// What the status bar says beside the hint: who files, for which period, the page on screen, the last store,
// the lines of the loaded file that could not be read, the zoom.
#pragma once

#include "program/program.h"

#include <QDateTime>
#include <QObject>

class QLabel;
class QStatusBar;

namespace lodge {

class StatusLine : public QObject {
    Q_OBJECT

  public:
    /// Adds its parts to the bar; those of `hints` stand in front of them.
    StatusLine(const Program& program, QWidget& hints, QStatusBar& bar);

    /// The zoom stands at the end of the bar, behind what others have added meanwhile.
    void addZoom(double zoom);
    void refresh();
    /// A store may have ended: looks at the file.
    void refreshStore();
    void showZoom(double zoom);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// A part with its caption, which goes where there is no room for it.
    struct Part {
        QLabel* label;
        QString caption;
        QString text;
    };

    void say(Part& part, const QString& text);
    void sayDamage(bool open);
    void fit();

    const Program& program_;
    QWidget& hints_;
    QStatusBar& bar_;
    Part number_;
    Part period_;
    Part page_;
    Part store_;
    Part damage_;
    QLabel* zoom_;
    QDateTime begun_;
};

} // namespace lodge
