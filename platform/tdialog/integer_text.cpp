#include "platform/tdialog/integer_text.h"

#include <algorithm>

namespace tdialog {
namespace {

bool IsDigit(wchar_t character) { return L'0' <= character && character <= L'9'; }

}  // namespace

bool MayStand(std::wstring_view text, const IntegerLimits& limits) {
  if (text.starts_with(L'-')) {
    if (limits.smallest >= 0) return false;
    text.remove_prefix(1);
  }
  return text.size() <= static_cast<std::size_t>(limits.digits) &&
         std::all_of(text.begin(), text.end(), IsDigit);
}

std::optional<int> ValueWithin(std::wstring_view text, const IntegerLimits& limits) {
  const bool negative = text.starts_with(L'-');
  if (negative) text.remove_prefix(1);
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;
  // Larger than any limit, and small enough that the next step cannot overflow.
  constexpr long long kBeyondAnyLimit = 1LL << 40;
  long long value = 0;
  for (const wchar_t character : text) {
    if (!IsDigit(character)) break;
    value = std::min(value * 10 + (character - L'0'), kBeyondAnyLimit);
  }
  return static_cast<int>(
      std::clamp<long long>(negative ? -value : value, limits.smallest, limits.largest));
}

}  // namespace tdialog
