// The rows of a page of amounts: number, caption and figures on one line, in columns that agree from row to
// row because all take their widths from here.
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QString>
#include <QStringList>

#include <string_view>

namespace lodge {

/// The widget name of a control: "txtMoney51_3" for `txtMoney51(3)`; an index below 0 is none.
[[nodiscard]] QString controlWidgetName(std::string_view name, int index = -1);

[[nodiscard]] QString fromText(std::string_view text);

class TieTag;

/// A text in a use of type (ui/type.h).
[[nodiscard]] QLabel* makeText(const QString& text, const char* type);

/// The place behind the figures of a row: where they come from or go to, and whether they agree with it. On a
/// narrow page it shrinks to the mark of the tie, and a press on it leads where the text led.
class SourceCell : public QWidget {
    Q_OBJECT

  public:
    /// A place that stays free; with a heading that of the column.
    explicit SourceCell(QLabel* heading = nullptr);
    SourceCell(const QString& text, const QString& chooserButton);

    /// nullptr where there is none.
    [[nodiscard]] TieTag* tie() const { return tie_; }
    void setNarrow(bool narrow);
    /// What it is narrower by then.
    [[nodiscard]] static int narrowerBy();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QLabel* text_;
    TieTag* tie_ = nullptr;
    bool narrow_ = false;
};

/// Keeps the source cells of a page narrow while the page would otherwise be wider than what it is seen
/// through.
class SourceFold : public QObject {
    Q_OBJECT

  public:
    /// The page owns it.
    explicit SourceFold(QWidget& page);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void decide();

    QWidget& page_;
    QList<SourceCell*> cells_; // of the whole page, once it is complete
    bool narrow_ = false;
};

/// One line of the form.
class AmountRow : public QFrame {
    Q_OBJECT

  public:
    enum class Kind { Typed, Computed, Heading };

    AmountRow(Kind kind, const QString& number, const QString& caption);

    /// Ticks between caption and figures, the remark behind them, or below them where there is no room.
    void addTicks(const QStringList& names, const QString& remark = {});
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

  protected:
    /// Ctrl+Enter goes where the source of the row leads.
    void keyPressEvent(QKeyEvent* event) override;

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
