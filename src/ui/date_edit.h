// A box for a date in the mask "##/##/####": day, month, Buddhist year.
//
// What it holds is digits alone, from the left; the mask around them is only how they look. Thai digits are
// taken as their Arabic ones, a pasted 1/5/2561 becomes 01/05/2561.
#pragma once

#include <QLineEdit>

namespace lodge {

class DateEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    /// None to eight digits.
    [[nodiscard]] const QString& digits() const { return digits_; }
    /// Shows other digits, as the program asks; nothing is told about it.
    void setDigits(const QString& digits);
    /// Where typing goes on: behind the last digit; a whole date is selected, to be typed over.
    void goToGap();

  signals:
    /// A person changed the digits.
    void digitsEdited(const QString& digits);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Digits before the caret, and the digits that the selection covers.
    struct Span {
        qsizetype from = 0;
        qsizetype count = 0;
    };
    [[nodiscard]] Span selectedDigits() const;
    void type(QChar digit);
    void padGroup();
    void insertText(const QString& text);
    void remove(Span span);
    void cut();
    void change(const QString& digits, qsizetype caret);
    bool takeCommand(const QKeyEvent& event);

    QString digits_;
};

} // namespace lodge
