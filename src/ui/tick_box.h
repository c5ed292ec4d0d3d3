// Check boxes and option buttons whose captions wrap at Thai word boundaries, which the toolkit's own do not.
#pragma once

#include <QCheckBox>
#include <QFont>
#include <QHash>
#include <QRadioButton>
#include <QString>

namespace lodge {

/// How large the caption of a tick or choice is. Layouts ask for the same few widths over and over, and to
/// break a Thai line is dear: what was asked before is remembered, as long as caption and font stay.
class CaptionSizes {
  public:
    /// Unbroken.
    [[nodiscard]] int width(const QAbstractButton& button) const;
    /// How high the whole tick gets in a width.
    [[nodiscard]] int heightIn(int width, const QAbstractButton& button) const;

  private:
    mutable QString text_;
    mutable QFont font_;
    mutable int width_ = -1;
    mutable QHash<int, int> heights_; // by the width left for the caption
};

class TickBox : public QCheckBox {
    Q_OBJECT

  public:
    explicit TickBox(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    CaptionSizes sizes_;
};

class ChoiceBox : public QRadioButton {
    Q_OBJECT

  public:
    explicit ChoiceBox(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    CaptionSizes sizes_;
};

/// Whether a widget has an indicator beside its caption, and whether that is round.
[[nodiscard]] bool isTick(const QWidget& widget);
[[nodiscard]] bool isChoice(const QWidget& widget);
/// Where the indicator of such a widget stands in it: beside the first line of the caption.
[[nodiscard]] QRect indicatorRect(const QWidget& widget);

} // namespace lodge
