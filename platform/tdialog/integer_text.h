// The text of an edit for a whole number: what is allowed in it, and its value.
#pragma once

#include <optional>
#include <string_view>

namespace tdialog {

struct IntegerLimits {
  int smallest;
  int largest;
  int digits;  // the most digits, without the minus
};

// Whether the text is allowed in the edit while the user is typing: an optional minus (if
// `smallest` is below 0) and at most `digits` digits, or nothing. The value may still be outside
// the limits.
bool MayStand(std::wstring_view text, const IntegerLimits& limits);

// The number, clamped to the limits; nothing for a text without digits.
std::optional<int> ValueWithin(std::wstring_view text, const IntegerLimits& limits);

}  // namespace tdialog
