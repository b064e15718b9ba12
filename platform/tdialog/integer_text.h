// What may stand in an edit for a whole number, and what it means.
#pragma once

#include <optional>
#include <string_view>

namespace tdialog {

struct IntegerLimits {
  int smallest;
  int largest;
  int digits;  // the most digits, without the minus
};

// Whether the text may stand in the edit while the user is typing: nothing, a minus (with a
// smallest below 0), at most so many digits. The value need not be within the limits yet.
bool MayStand(std::wstring_view text, const IntegerLimits& limits);

// The number, brought within the limits; nothing for a text without digits.
std::optional<int> ValueWithin(std::wstring_view text, const IntegerLimits& limits);

}  // namespace tdialog
