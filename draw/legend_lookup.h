// The legend entry of one entity after another.
#pragma once

#include <cstdint>

#include "store/legend_table.h"

namespace tavix {

// Looks a legend number up each time it changes from one entity to the next. A number without an
// entry has an empty style, with which nothing is drawn.
class LegendLookup {
 public:
  explicit LegendLookup(const LegendTable& legend) : legend_(legend) {}

  // True when the number has changed.
  bool Use(std::int16_t number) {
    if (number == entry_.number) return false;
    if (legend_.Get(number, &entry_) != 0) entry_ = {number, true, {}};
    return true;
  }

  [[nodiscard]] const LegendStyle& Style() const { return entry_.style; }

 private:
  const LegendTable& legend_;
  HanRec entry_{-1, true, {}};  // -1 stands for no legend: it is never looked up
};

}  // namespace tavix
