#include "session/commands.h"
#include "session/fault.h"
#include "session/nearest_name.h"
#include "session/numbers.h"
#include "session/session.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>

namespace lodge {

namespace {

void faultIf(const Refused& refused) {
    if (refused) {
        throw ScriptFault(*refused);
    }
}

template <typename T>
T& controlOf(Session& session, const std::string& name, std::string_view kind) {
    Control& control = session.names().control(name);
    auto* const typed = dynamic_cast<T*>(&control);
    if (typed == nullptr) {
        throw ScriptFault(control.form().name() + '.' + control.fullName() + " is no " + std::string(kind));
    }
    return *typed;
}

void type(Session& session, const Words& words) {
    faultIf(session.user().type(session.names().control(words[0]), words[1]));
}

void focus(Session& session, const Words& words) {
    faultIf(session.user().focus(session.names().control(words[0])));
}

void leave(Session& session, const Words& words) {
    const Control& control = session.names().control(words[0]);
    if (!control.hasFocus()) {
        throw ScriptFault(control.form().name() + '.' + control.fullName()
                          + " does not have the focus, so nobody can leave it");
    }
    session.user().leave();
}

void enter(Session& session, const Words& words) {
    faultIf(session.user().enter(session.names().control(words[0])));
}

void click(Session& session, const Words& words) {
    faultIf(session.user().click(session.names().control(words[0])));
}

bool isTicked(const Control& control) {
    if (const auto* const box = dynamic_cast<const CheckBox*>(&control)) {
        return box->value();
    }
    if (const auto* const option = dynamic_cast<const OptionButton*>(&control)) {
        return option->value();
    }
    throw ScriptFault(control.form().name() + '.' + control.fullName() + " is nothing to tick");
}

void bringTo(Session& session, const std::string& name, bool ticked) {
    Control& control = session.names().control(name);
    if (isTicked(control) == ticked) {
        return;
    }
    if (!ticked && control.kind() == ControlKind::OptionButton) {
        throw ScriptFault(control.form().name() + '.' + control.fullName()
                          + " is an option button: it loses its choice only to another one");
    }
    faultIf(session.user().click(control));
}

void tick(Session& session, const Words& words) { bringTo(session, words[0], true); }
void untick(Session& session, const Words& words) { bringTo(session, words[0], false); }

/// "right+shift+ctrl+alt": one button, each key at most once, in any order.
MouseGesture gestureOf(const std::string& word) {
    struct Part {
        std::string name;
        bool found = false;
    };
    std::array<Part, 5> parts = {Part{"left"}, Part{"right"}, Part{"shift"}, Part{"ctrl"}, Part{"alt"}};
    for (std::size_t at = 0; at <= word.size();) {
        const std::size_t plus = std::min(word.find('+', at), word.size());
        const std::string name = word.substr(at, plus - at);
        auto* const part = std::ranges::find(parts, name, &Part::name);
        if (part == parts.end()) {
            throw ScriptFault("a gesture knows no " + inQuotes(name) + nearestNameHint(name, namesOf(parts)));
        }
        if (part->found) {
            throw ScriptFault("the gesture names " + name + " twice");
        }
        part->found = true;
        at = plus + 1;
    }
    const auto& [left, right, shift, ctrl, alt] = parts;
    if (left.found == right.found) {
        throw ScriptFault("a gesture has one button, left or right");
    }
    return {.button = left.found ? MouseButton::Left : MouseButton::Right,
        .shift = shift.found,
        .ctrl = ctrl.found,
        .alt = alt.found};
}

void mouse(Session& session, const Words& words) {
    const MouseGesture gesture = gestureOf(words[0]);
    if (session.names().isForm(words[1])) {
        faultIf(session.user().mouse(session.names().loadedForm(words[1]), gesture));
    } else {
        faultIf(session.user().mouse(session.names().control(words[1]), gesture));
    }
}

void doubleClick(Session& session, const Words& words) {
    faultIf(session.user().doubleClick(session.names().control(words[0])));
}

/// The place of an entry, told by its text or by "#" and its place.
int entryOf(const ItemList& list, const std::string& word) {
    if (word.starts_with('#')) {
        if (const auto place = wholeNumber<int>(word.substr(1))) {
            return *place;
        }
    }
    const auto entry = std::ranges::find(list.items(), word);
    if (entry == list.items().end()) {
        throw ScriptFault(list.form().name() + '.' + list.fullName() + " has no entry " + inQuotes(word)
                          + nearestNameHint(word, list.items()));
    }
    return static_cast<int>(entry - list.items().begin());
}

void choose(Session& session, const Words& words) {
    auto& list = controlOf<ItemList>(session, words[0], "list or combo box");
    // A list out of reach shows nothing to choose from: that reason goes before a missing entry.
    faultIf(session.user().whyNot(list));
    faultIf(session.user().choose(list, entryOf(list, words[1])));
}

void pick(Session& session, const Words& words) {
    auto& grid = controlOf<Grid>(session, words[0], "grid");
    const auto row = wholeNumber<int>(words[1]);
    if (!row) {
        throw ScriptFault(inQuotes(words[1]) + " is no row number");
    }
    faultIf(session.user().pick(grid, *row));
}

void close(Session& session, const Words& words) {
    faultIf(session.user().close(session.names().loadedForm(words[0])));
}

void wait(Session& session, const Words& words) {
    // A year: the clocks of the program count on beyond any session that a person sits through.
    constexpr long long longest = 366LL * 24 * 60 * 60 * 1000;
    const auto time = wholeNumber<long long>(words[0]);
    if (!time || *time < 0 || *time > longest) {
        throw ScriptFault(
            inQuotes(words[0]) + " is no time in milliseconds from 0 to " + std::to_string(longest));
    }
    session.program().desk.pass(std::chrono::milliseconds(*time));
}

// clang-format off
constexpr std::array commands = {
    CommandRow{"type",        "CONTROL TEXT",    2, 2, Needs::Person,  type},
    CommandRow{"focus",       "CONTROL",         1, 1, Needs::Person,  focus},
    CommandRow{"leave",       "CONTROL",         1, 1, Needs::Person,  leave},
    CommandRow{"enter",       "CONTROL",         1, 1, Needs::Person,  enter},
    CommandRow{"click",       "CONTROL",         1, 1, Needs::Person,  click},
    CommandRow{"tick",        "CONTROL",         1, 1, Needs::Person,  tick},
    CommandRow{"untick",      "CONTROL",         1, 1, Needs::Person,  untick},
    CommandRow{"mouse",       "GESTURE CONTROL", 2, 2, Needs::Person,  mouse},
    CommandRow{"doubleclick", "CONTROL",         1, 1, Needs::Person,  doubleClick},
    CommandRow{"choose",      "CONTROL TEXT",    2, 2, Needs::Person,  choose},
    CommandRow{"pick",        "GRID ROW",        2, 2, Needs::Person,  pick},
    CommandRow{"close",       "FORM",            1, 1, Needs::Person,  close},
    CommandRow{"wait",        "MILLISECONDS",    1, 1, Needs::Program, wait},
};
// clang-format on

} // namespace

std::span<const CommandRow> userCommands() { return commands; }

} // namespace lodge
