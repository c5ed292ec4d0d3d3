// Lists to choose from on screen.
#pragma once

#include "controls/lists.h"
#include "ui/control_view.h"

#include <QComboBox>
#include <QListWidget>
#include <QTableWidget>

namespace lodge {

class ListView : public ControlView {
    Q_OBJECT

  public:
    ListView(Control& control, QListWidget& list, UserDoor& door);
    void paint(Aspect aspect) override;

  protected:
    bool mousePressed(QMouseEvent& event) override;

  private:
    void chosen(int row);

    QListWidget& list_;
};

/// A closed list; typing goes to the first entry that begins so.
class ComboView : public ControlView {
    Q_OBJECT

  public:
    ComboView(Control& control, QComboBox& combo, UserDoor& door);
    void paint(Aspect aspect) override;

  protected:
    bool mousePressed(QMouseEvent& event) override;
    bool otherEvent(QEvent& event) override;

  private:
    void chosen(int row);

    QComboBox& combo_;
};

class GridView : public ControlView {
    Q_OBJECT

  public:
    GridView(Control& control, QTableWidget& table, UserDoor& door);
    void paint(Aspect aspect) override;

  protected:
    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event) override;

  private:
    void pick(int row);
    void paintCells();

    QTableWidget& table_;
};

} // namespace lodge
