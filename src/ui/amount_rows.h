// The rows of a page of amounts: number, caption and figures on one line, in columns that agree from row to
// row because all take their widths from here.
#pragma once

#include <QAbstractButton>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QVBoxLayout>

#include <string_view>

namespace lodge {

/// The widget name of a control: "txtMoney51_3" for `txtMoney51(3)`; an index below 0 is none.
[[nodiscard]] QString controlWidgetName(std::string_view name, int index = -1);

[[nodiscard]] QString fromText(std::string_view text);

/// One line of the form.
class AmountRow : public QFrame {
    Q_OBJECT

  public:
    enum class Kind { Typed, Computed, Heading };

    AmountRow(Kind kind, const QString& number, const QString& caption);

    /// Below the caption, where its figures come from: a way to the item of that button of the chooser.
    void addOrigin(const QString& text, const QString& chooserButton);
    /// A tick between caption and figures.
    QAbstractButton* addTick(const QString& name);
    void addRemark(const QString& text);
    /// What follows stands at the right edge.
    void endCaption();
    /// A figure to type. `said` is what a screen reader calls it.
    QLineEdit* addBox(const QString& name, const QString& said);
    /// A figure that the program computes.
    QLabel* addFigure(const QString& name, const QString& said);
    /// Leaves a column free.
    void addGap();

    /// Has the row stand on screen only while that widget of it does.
    void follow(QWidget& part);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeRoom(int lines);

    Kind kind_;
    int lines_;
    QHBoxLayout* line_;
    QVBoxLayout* caption_;
};

/// The heads of the three columns; stands outside of what scrolls.
[[nodiscard]] QFrame* makeColumnHead();

/// Tints the row of these that has the focus for as long as the page lives.
void tintRowInHand(QWidget& page);

} // namespace lodge
