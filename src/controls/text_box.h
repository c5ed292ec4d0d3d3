// Boxes that a person types into: plain text and masked dates.
#pragma once

#include "controls/control.h"

#include <string>

namespace lodge {

/// What a box is for; typed characters are made regular accordingly (program/user.h).
enum class TextKind { Text, MultiLine, Amount, Number };

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, int index = -1);

    [[nodiscard]] const std::string& text() const { return text_; }
    /// Raises the change event when the text differs. Code may write more than `maxLength` characters: an
    /// amount with its separators is longer than what may be typed.
    void setText(std::string text);

    /// The number of characters that may be typed, 0 for any number.
    [[nodiscard]] int maxLength() const { return maxLength_; }
    void setMaxLength(int length) { maxLength_ = length; }
    [[nodiscard]] TextKind textKind() const { return textKind_; }
    void setTextKind(TextKind kind) { textKind_ = kind; }

    [[nodiscard]] std::string reading() const override { return text_; }

    Handler onChange;

  private:
    std::string text_;
    int maxLength_ = 0;
    TextKind textKind_ = TextKind::Text;
};

/// A date box of mask "##/##/####" and prompt "_". Its value is the digits alone, day, month, Buddhist year.
class MaskedBox : public Control {
  public:
    static constexpr std::string_view mask = "##/##/####";
    static constexpr std::size_t places = 8;

    MaskedBox(Form& form, std::string name, int index = -1);

    /// The typed digits from the left, none to eight; empty when nothing is typed.
    [[nodiscard]] const std::string& digits() const { return digits_; }
    /// Takes the digits of the text, at most eight, and drops everything else; "" empties the box. Raises the
    /// change event when the digits differ.
    void setDigits(std::string_view text);
    /// The digits in the mask, "_" for each that is missing: "01/0_/____".
    [[nodiscard]] std::string text() const;

    [[nodiscard]] std::string reading() const override { return digits_; }

    Handler onChange;

  private:
    std::string digits_;
};

} // namespace lodge
