// Names the texts and numbers of a return for the layout table:
// textSource<&ReturnState::strFldPage1>("strFldPage1").
#pragma once

#include "file/layout.h"

#include <type_traits>

namespace lodge {

namespace detail {

template <typename T>
inline constexpr bool isArray = false;
template <typename T, std::size_t N>
inline constexpr bool isArray<std::array<T, N>> = true;

// The value at the end of a path of members, or its element.
template <auto... Path>
constexpr auto& follow(ReturnState& state, [[maybe_unused]] std::size_t index) {
    auto& end = (state.*....*Path);
    if constexpr (isArray<std::remove_reference_t<decltype(end)>>) {
        return end[index];
    } else {
        return end;
    }
}

template <auto... Path>
inline constexpr bool leadsToArray =
    isArray<std::remove_reference_t<decltype((std::declval<ReturnState&>().*....*Path))>>;

} // namespace detail

template <auto... Path>
constexpr Source textSource(std::string_view name) {
    return {name, detail::leadsToArray<Path...>, &detail::follow<Path...>, nullptr};
}

template <auto... Path>
constexpr Source numberSource(std::string_view name) {
    return {name, detail::leadsToArray<Path...>, nullptr, &detail::follow<Path...>};
}

namespace source {

// The page arrays, under the short names that the layout table uses.
inline constexpr Source P1 = textSource<&ReturnState::strFldPage1>("strFldPage1");
inline constexpr Source P2 = textSource<&ReturnState::strFldPage2>("strFldPage2");
inline constexpr Source P3_3 = textSource<&ReturnState::strFldPage3_3>("strFldPage3_3");
inline constexpr Source P3_4 = textSource<&ReturnState::strFldPage3_4>("strFldPage3_4");
inline constexpr Source P4_5 = textSource<&ReturnState::strFldPage4_5>("strFldPage4_5");
inline constexpr Source P4_6 = textSource<&ReturnState::strFldPage4_6>("strFldPage4_6");
inline constexpr Source P4_7 = textSource<&ReturnState::strFldPage4_7>("strFldPage4_7");
inline constexpr Source P5_8 = textSource<&ReturnState::strFldPage5_8>("strFldPage5_8");
inline constexpr Source P5_9 = textSource<&ReturnState::strFldPage5_9>("strFldPage5_9");
inline constexpr Source P6_10 = textSource<&ReturnState::strFldPage6_10>("strFldPage6_10");
inline constexpr Source P6_11 = textSource<&ReturnState::strFldPage6_11>("strFldPage6_11");
inline constexpr Source P7_12 = textSource<&ReturnState::strFldPage7_12>("strFldPage7_12");
inline constexpr Source P8 = textSource<&ReturnState::strFldPage8>("strFldPage8");

} // namespace source

} // namespace lodge
