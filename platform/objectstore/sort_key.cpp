#include "platform/objectstore/sort_key.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tavix {
namespace {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;

// Two's complement to a number that rises: the negative half comes first.
std::uint64_t FromSigned(std::int64_t value) {
  return static_cast<std::uint64_t>(value) ^ kSignBit;
}

// IEEE doubles rise with their bits when positive and fall when negative. Both zeros are one value;
// what is no number stands beyond the infinities.
std::uint64_t FromDouble(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value == 0.0 ? 0.0 : value);
  return (bits & kSignBit) != 0 ? ~bits : bits | kSignBit;
}

std::uint64_t FromString(std::u16string_view text, const SortOrder& order, CaseFold fold) {
  constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < kUnits; ++i) {
    const char16_t unit = i < text.size() ? text[i] : u'\0';
    number = number << 16 | (order.ignore_case ? fold(unit) : unit);
  }
  return number;
}

std::uint64_t Ascending(const Property& value, const SortOrder& order, CaseFold fold) {
  switch (value.Type()) {
    case PropertyType::kI2:
      return FromSigned(value.AsI2());
    case PropertyType::kI4:
      return FromSigned(value.AsI4());
    case PropertyType::kR8:
      return FromDouble(value.AsR8());
    case PropertyType::kString:
      return FromString(value.AsString(), order, fold);
    case PropertyType::kUI2:
    case PropertyType::kUI4:
    case PropertyType::kBool:
    case PropertyType::kFileTime:
    case PropertyType::kBlob:
      break;
  }
  return value.AsFileTime();
}

}  // namespace

char16_t FoldAscii(char16_t character) {
  const bool small = character >= u'a' && character <= u'z';
  return small ? static_cast<char16_t>(character - u'a' + u'A') : character;
}

std::uint64_t SortNumber(const Property& value, const SortOrder& order, CaseFold fold) {
  const std::uint64_t number = Ascending(value, order, fold);
  return order.descending ? ~number : number;
}

std::strong_ordering CompareStrings(std::u16string_view one, std::u16string_view other,
                                    const SortOrder& order, CaseFold fold) {
  const auto compare_units = [&](char16_t left, char16_t right) {
    return order.ignore_case ? fold(left) <=> fold(right) : left <=> right;
  };
  if (order.descending) std::swap(one, other);
  return std::lexicographical_compare_three_way(one.begin(), one.end(), other.begin(), other.end(),
                                                compare_units);
}

}  // namespace tavix
