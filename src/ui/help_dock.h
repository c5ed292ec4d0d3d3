// Shows below the page what a field means and where its figure comes from. It stays until it is closed and
// follows the person from field to field; the focus stays where it is.
#pragma once

#include <QDockWidget>
#include <QString>

class QLabel;

namespace lodge {

class HelpDock : public QDockWidget {
    Q_OBJECT

  public:
    explicit HelpDock(QWidget* parent);

    /// The name of a field and what there is to say about it, "\n" between paragraphs.
    void showField(const QString& name, const QString& text);
    /// The keys of the program: "keys\tmeaning" a line.
    void showKeys(const QString& lines);

  private:
    QLabel* name_;
    QLabel* text_;
};

} // namespace lodge
