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

    [[nodiscard]] QSize sizeHint() const override;
    /// On a narrow screen the hint goes first and the padding shrinks.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] int captionWidth() const;
    [[nodiscard]] int hintWidth() const;
    [[nodiscard]] int iconWidth() const;

    QString keyHint_;
};

} // namespace lodge
