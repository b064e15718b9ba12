// The legend entry of one entity after another.
#pragma once

#include <cstdint>

#include "store/legend_table.h"

namespace tavix {

// Looks a legend number up each time it changes from one entity of a pass to the next. Before the
// first entry is found the style is empty: no mark, no label, no segment.
//
// Compatibility: a number without an entry leaves the style as it is, so that its entity looks like
// the one before it.
class LegendLookup {
 public:
  explicit LegendLookup(const LegendTable& legend) : legend_(legend) {}

  // True when an entry was found, and its style is the one in use from now on.
  bool Use(std::int16_t number) {
    if (number == number_) return false;
    number_ = number;
    return legend_.Get(number, &entry_) == 0;
  }

  [[nodiscard]] const LegendStyle& Style() const { return entry_.style; }

 private:
  const LegendTable& legend_;
  std::int16_t number_ = -1;  // the last one used, with an entry or without
  HanRec entry_;
};

}  // namespace tavix
