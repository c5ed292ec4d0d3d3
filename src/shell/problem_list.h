// Everything that stands in the way of filing a return, at once: what a complete store would refuse, one
// refusal after the other, listed over a copy of the return that nobody sees.
#pragma once

#include "program/checks.h"
#include "program/program.h"
#include "shell/navigation.h"
#include "shell/shell.h"
#include "shell/silent_host.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lodge {

/// One thing that stands in the way, with the place to mend it at.
struct Problem {
    Refusal refusal;
    std::int16_t page = 0; ///< The code of the page of `refusal.form`.
    std::string pageName;  ///< "รายการที่ 3"
};

/// The text on one line: a message's line breaks and the blanks around them become one blank.
[[nodiscard]] std::string onOneLine(std::string_view text);

/// Lists one return after the other; making a lister is what costs. Listing runs the procedures of page 1 and
/// page 2 on the copy, as every complete store does, so that what a store would make regular is regular.
class ProblemLister {
  public:
    explicit ProblemLister(Today today);

    void setToday(Today today) { host_.setToday(today); }

    /// The problems in the order in which a complete store would meet them; each once, although a store may
    /// ask for a thing at two of its steps. Empty when the return can be filed.
    [[nodiscard]] std::vector<Problem> list(const ReturnState& state);
    /// The same for a return of which a page is on screen: first the copy takes what its controls show.
    [[nodiscard]] std::vector<Problem> list(const ReturnState& state, const Form& pageOnScreen);

    /// The copy as the last listing left it, which is what a store would write.
    [[nodiscard]] const ReturnState& stored() const { return program_.state; }

  private:
    std::vector<Problem> listCopy();

    SilentHost host_;
    Program program_{host_};
    Shell shell_{program_};
    Navigation navigation_{program_};
};

/// A lister for this return alone.
[[nodiscard]] std::vector<Problem> listProblems(const ReturnState& state, Today today);

} // namespace lodge
