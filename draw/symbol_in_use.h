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
    has_entry_ = entry != nullptr;
    if (entry) symbol_ = Decode<Symbol>(entry->values);
    return has_entry_;
  }

  // Whether Use(number) brings the number's symbol into use whatever was used before.
  [[nodiscard]] bool Decides(std::int16_t number) const {
    if (number == number_) return has_entry_;
    return number != kNoNumber && legend_.Find(number) != nullptr;
  }

  [[nodiscard]] const Symbol& Get() const { return symbol_; }

 private:
  // Compatibility: of this number there is nothing to find as long as no other has been used.
  static constexpr std::int16_t kNoNumber = -1;

  const LegendTable& legend_;
  std::int16_t number_ = kNoNumber;  // the last one used, with an entry or without
  bool has_entry_ = false;
  Symbol symbol_;
};

}  // namespace tavix
