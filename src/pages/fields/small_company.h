// What makes a company a small one for the reduced tax rates.
#pragma once

namespace lodge {

/// The largest paid-up capital with which a company has the rates of a small one, baht.
inline constexpr double largestSmallCapital = 5'000'000;

} // namespace lodge
