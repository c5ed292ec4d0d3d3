// Asks where to go: a list of the pages, and a line for the number of an item or of a line in it.
#pragma once

#include "ui/line_places.h"

#include <QDialog>
#include <QString>
#include <QVector>

#include <optional>

class QLabel;
class QLineEdit;
class QListWidget;

namespace lodge {

class GoToWindow : public QDialog {
    Q_OBJECT

  public:
    struct Page {
        QString number; ///< "3"; empty for page 1, which bears none.
        QString name;
        LinePlace place;
        bool open = true;
    };

    /// `begun` is what has been typed already.
    GoToWindow(const QVector<Page>& pages, const QString& begun, QWidget* parent);

    /// Waits for the choice; nothing when the person thought better of it.
    [[nodiscard]] std::optional<LinePlace> ask();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void typed(const QString& text);
    void choose();
    void go(const LinePlace& place);

    QVector<Page> pages_;
    QLineEdit* line_;
    QListWidget* list_;
    QLabel* note_;
    std::optional<LinePlace> chosen_;
};

} // namespace lodge
