// The pen of one legend entry at a time.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "store/legend_table.h"

namespace tavix {

// Looks a legend number up and selects its pen into the device context, each time the number
// changes from one entity to the next; entities of one legend in a row, as they mostly come, share
// both. The destructor puts back the pen that was selected before.
//
// A number without an entry has an empty style, with which nothing is drawn.
class LegendPen {
 public:
  LegendPen(CDC& dc, const LegendTable& legend) : dc_(dc), legend_(legend) {}
  ~LegendPen() { DropPen(); }
  LegendPen(const LegendPen&) = delete;
  LegendPen& operator=(const LegendPen&) = delete;

  // True when the entry has changed.
  bool Use(std::int16_t number);

  [[nodiscard]] const LegendStyle& Style() const { return entry_.style; }

 private:
  void DropPen();

  CDC& dc_;
  const LegendTable& legend_;
  HanRec entry_{-1, true, {}};  // -1 stands for no legend: it is never looked up
  CPen pen_;
  CPen* old_pen_ = nullptr;
};

}  // namespace tavix
