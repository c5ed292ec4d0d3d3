// The rows of a page of amounts: number, caption and figures on one line, in columns that agree from row to
// row because all take their widths from here.
#pragma once

#include <QAbstractButton>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QString>

#include <string_view>

namespace lodge {

/// The widget name of a control: "txtMoney51_3" for `txtMoney51(3)`; an index below 0 is none.
[[nodiscard]] QString controlWidgetName(std::string_view name, int index = -1);

[[nodiscard]] QString fromText(std::string_view text);

class TieTag;

/// A text in a use of type (ui/type.h).
[[nodiscard]] QLabel* makeText(const QString& text, const char* type);

/// One line of the form.
class AmountRow : public QFrame {
    Q_OBJECT

  public:
    enum class Kind { Typed, Computed, Heading };

    AmountRow(Kind kind, const QString& number, const QString& caption);

    /// A tick between caption and figures.
    QAbstractButton* addTick(const QString& name);
    void addRemark(const QString& text);
    /// What follows stands at the right edge.
    void endCaption();
    /// A figure to type. `said` is what a screen reader calls it.
    QLineEdit* addBox(const QString& name, const QString& said);
    /// A figure that the program computes.
    QLabel* addFigure(const QString& name, const QString& said);
    /// Behind the figures: the item that they come from or go to, a way to it by that button of the chooser,
    /// and whether they agree with it.
    TieTag* addSource(const QString& text, const QString& chooserButton);
    /// Leaves the place of a source free.
    void addSourceGap();

    /// Has the row stand on screen only while that widget of it does.
    void follow(QWidget& part);

  protected:
    /// Ctrl+Enter goes where the source of the row leads.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Kind kind_;
    QHBoxLayout* line_;
    bool captioned_;
    QString said_; // what a screen reader says before the caption of a tick
};

/// The heads of the three columns; stands outside of what scrolls.
[[nodiscard]] QFrame* makeColumnHead();

/// Tints the row of these that has the focus for as long as the page lives.
void tintRowInHand(QWidget& page);

} // namespace lodge
