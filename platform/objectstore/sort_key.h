// The order of property values, folded into one number as far as it goes.
#pragma once

#include <compare>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/objectstore/object_store.h"

namespace tavix {

// Makes one character of all its cases, so that strings can be compared without regard to case.
using CaseFold = char16_t (*)(char16_t);

// Of the letters A to Z only.
char16_t FoldAscii(char16_t character);

// A number that rises as the order goes on. Two values of one type other than string have equal
// numbers exactly when they are equal; two strings with equal numbers agree in their first four
// characters, and CompareStrings decides.
std::uint64_t SortNumber(const Property& value, const SortOrder& order, CaseFold fold);

// The rest of the order of two strings: by UTF-16 units, a beginning before the whole.
std::strong_ordering CompareStrings(std::u16string_view one, std::u16string_view other,
                                    const SortOrder& order, CaseFold fold);

}  // namespace tavix
