// A card of the chooser: the name of an item, what the item is about, how far it has come, and its main
// figure.
#pragma once

#include "shell/item_states.h"

#include <QAbstractButton>
#include <QColor>

namespace lodge {

class CardButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString subject READ subject WRITE setSubject)

  public:
    explicit CardButton(QWidget* parent = nullptr);

    [[nodiscard]] const QString& subject() const { return subject_; }
    void setSubject(const QString& subject);
    /// Says how far the item has come; a card that was never told says nothing.
    void showState(const ItemState& state);
    /// The same in words: "ติดขัด 2".
    [[nodiscard]] const QString& stateText() const { return stateText_; }
    /// "ข้อ 9 รวม 19,882,000.00"; empty for an item without a figure.
    [[nodiscard]] QString figureText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] QColor stateInk() const;
    void paintGround(QPainter& painter) const;
    void paintState(QPainter& painter, const QRect& room) const;
    void paintFigure(QPainter& painter, const QRect& room) const;
    void describe();

    QString subject_;
    ItemState state_;
    QString stateText_;
};

} // namespace lodge
