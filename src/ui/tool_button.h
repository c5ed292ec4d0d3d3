// A button of the toolbar: icon, caption, and in quieter ink the key that presses it.
#pragma once

#include <QAbstractButton>

namespace lodge {

class ToolButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString keyHint READ keyHint WRITE setKeyHint)

  public:
    explicit ToolButton(QWidget* parent = nullptr);

    [[nodiscard]] const QString& keyHint() const { return keyHint_; }
    void setKeyHint(const QString& hint);

    /// What there is room for: all, no key, the icon alone.
    enum class Shape { Whole, Captioned, Icon };
    void setShape(Shape shape);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] int captionWidth() const;
    [[nodiscard]] int hintWidth() const;
    [[nodiscard]] int iconWidth() const;

    QString keyHint_;
    Shape shape_ = Shape::Whole;
};

} // namespace lodge
