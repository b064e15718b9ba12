// The symbol of one entity after another.
#pragma once

#include <cstdint>

#include "store/legend_table.h"

namespace tavix {

// Looks a legend number up each time it changes from one entity of a pass to the next. `Symbol` is
// PointSymbol or LineSymbol. Before the first entry is found it is empty: no mark, no label, no
// segment.
//
// Compatibility: a number without an entry leaves the symbol of the entity before it in use.
template <class Symbol>
class SymbolInUse {
 public:
  explicit SymbolInUse(const LegendTable& legend) : legend_(legend) {}

  // True when an entry was found, and its symbol is the one in use from now on.
  bool Use(std::int16_t number) {
    if (number == number_) return false;
    number_ = number;
    const HanRec* entry = legend_.Find(number);
    if (entry) symbol_ = Decode<Symbol>(entry->values);
    return entry != nullptr;
  }

  [[nodiscard]] const Symbol& Get() const { return symbol_; }

 private:
  const LegendTable& legend_;
  std::int16_t number_ = -1;  // the last one used, with an entry or without
  Symbol symbol_;
};

}  // namespace tavix
