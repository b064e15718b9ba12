// Scales 1:N of a sheet.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace fieldhost {

inline constexpr int kLargestScale = 1000000;

// The N of the scales that plans are drawn at, small ones first.
[[nodiscard]] std::span<const int> UsualScales();

// What a user typed: N, or 1:N, or 1/N, from 1 to kLargestScale. Commas and blanks may group the
// digits, which may be full-width ones, as a Japanese keyboard gives them.
[[nodiscard]] std::optional<int> ParseScale(std::string_view typed);

// What is wrong with a text that ParseScale refused.
[[nodiscard]] std::string NoScale(std::string_view typed);

// The N that stands behind what Tavix_GetWakScl told. It cuts 1 / (1 / N) to a whole number, which
// for some N, such as 93 or 25000, gives N - 1: then what was set last is meant.
[[nodiscard]] int MeantScale(int told, int set);

}  // namespace fieldhost
