// The boxes of the program as windows. Each knows its texts; the caller shows it and reads the answer.
#pragma once

#include "program/host.h"

#include <QDialog>
#include <QMessageBox>

class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace lodge {

/// A message or a question: the text as it stands, buttons in Thai, no icon.
class BoxWindow : public QMessageBox {
    Q_OBJECT

  public:
    BoxWindow(const Box& box, QWidget* parent);

    /// Shows the box and waits. Closing it without a button answers as its last button does.
    Answer wait();

  private:
    QPushButton* add(Answer answer);

    Answer closing_ = Answer::Ok;
};

/// Asks for one line of text.
class InputWindow : public QDialog {
    Q_OBJECT

  public:
    InputWindow(const InputBox& box, QWidget* parent);
    [[nodiscard]] std::string text() const;

  private:
    QLineEdit* line_;
};

/// Asks which pages to print: all, or a range.
class PagesWindow : public QDialog {
    Q_OBJECT

  public:
    explicit PagesWindow(QWidget* parent);
    [[nodiscard]] PageRange range() const;

  private:
    QRadioButton* all_;
    QRadioButton* some_;
    QSpinBox* from_;
    QSpinBox* to_;
};

/// A text with its line breaks as the toolkit has them; the catalogue's are carriage returns.
[[nodiscard]] QString shownText(const std::string& text);

} // namespace lodge
