// Every value of the return by its name, as scripts, listings and messages write it: strFldPage2[44],
// DataCtrl_P1.IndcBusType, modIHQ.BoxA(3), strItem11Start(0), FucChk.TmpSum8_15to25, RateList.
//
// Values are read and written as texts: integers in decimal, flags True or False, reals as a plain decimal,
// dates YYYY-MM-DD in the Christian era (empty when not set), lists joined by ",".
#pragma once

#include "state/return_state.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lodge {

/// One value of a return, reached by its name. It refers into the state and is valid as long as that.
class StateValue {
  public:
    using Place =
        std::variant<std::string*, std::int16_t*, int*, bool*, double*, std::optional<std::int16_t>*,
            std::optional<Date>*, std::vector<std::string>*, std::vector<std::int16_t>*>;

    explicit StateValue(Place place) : place(place) {}

    /// The value as a text.
    [[nodiscard]] std::string get() const;

    /// Takes a text in the form that get() gives. False, with nothing changed, when the text does not fit the
    /// value: no number, out of range, neither True nor False, no day.
    bool set(std::string_view text);

  private:
    Place place;
};

/// The value of that name. An index stands in [ ] or ( ); a list is read whole without one. A member of a
/// record is also found without its record's name when no other value bears the member's. Nothing for an
/// unknown name or an index outside the array. An element of a list is valid until the list changes its
/// length.
std::optional<StateValue> findStateValue(ReturnState& state, std::string_view name);

/// Calls `visit` for every value of the return in a fixed order, that of ReturnState. The lookup lists, which
/// are no part of the return, are left out.
void forEachStateValue(
    ReturnState& state, const std::function<void(const std::string& name, StateValue value)>& visit);

/// All names that forEachStateValue gives, in its order.
std::vector<std::string> stateValueNames();

} // namespace lodge
