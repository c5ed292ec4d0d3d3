// What a person does: typing, clicking, moving on. The screen binding and the session interpreter call these
// and nothing else, so a script meets what a person meets.
#pragma once

#include "controls/buttons.h"
#include "controls/desk.h"
#include "controls/lists.h"
#include "controls/text_box.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodge {

/// Why a person could not do it, in words for the person who wrote the script; nothing when it was done.
/// A rule that takes the focus back, or a handler that cancels, is no refusal: the person did act.
using Refused = std::optional<std::string>;

class User {
  public:
    explicit User(Desk& desk) : desk_(desk) {}

    /// Why the control is out of reach, nothing when it is within.
    [[nodiscard]] Refused whyNot(const Control& control) const;
    [[nodiscard]] Refused whyNot(const Form& form) const;

    /// Goes to a control: the one that has the focus is left first, and may take it back.
    Refused focus(Control& control);
    /// Leaves whatever has the focus.
    void leave();
    /// One typed character in the control that has the focus. What the handlers made of it, nothing when
    /// they swallowed it.
    std::optional<char32_t> key(Control& control, char32_t character);
    /// The whole text of a box after a person's edit, made regular and cut to what the box takes; one change.
    Refused edit(TextBox& box, std::string_view text);
    Refused edit(MaskedBox& box, std::string_view text);
    /// Goes to a box, types the text in place of its content and leaves it.
    Refused type(Control& box, std::string_view text);
    /// The Enter key: moves on to the next control, as Tab does.
    Refused enter(Control& control);
    /// Tab and Shift+Tab from where the focus is.
    void moveOn(Control& from, bool backwards = false);

    Refused click(Control& control);
    /// A press and release of a mouse button with the keys held, without a click.
    Refused mouse(Control& control, const MouseGesture& gesture);
    Refused mouse(Form& form, const MouseGesture& gesture);
    Refused doubleClick(Control& control);
    Refused choose(ItemList& list, int entry);
    Refused pick(Grid& grid, int row);
    /// Closes a form by its frame.
    Refused close(Form& form);

  private:
    /// Leaves the control that has the focus for `next`. False when a rule gave the focus to another.
    bool comeTo(Control& next);

    Desk& desk_;
};

/// What a box makes of typed or pasted text: the characters that it takes, made regular, at most its
/// `maxLength`. An amount that is too long for its box loses its separators first.
[[nodiscard]] std::string acceptedText(const TextBox& box, std::string_view typed);
/// The digits that a date box takes of typed or pasted text; "1/5/2561" is 01052561, and Thai digits count.
[[nodiscard]] std::string acceptedDigits(std::string_view typed);

} // namespace lodge
