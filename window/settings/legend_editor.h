// The working copy of the point legends that the settings dialog edits.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "store/legend_table.h"

namespace tavix {

// What the dialog's controls say of one legend. A size is chosen by its line in a list: line 0 is
// none, line i stands for 2 i pixels, up to line 10.
struct LegendChoice {
  int mark_line = 0;
  int text_line = 0;
  bool shows_number = false;
};

class LegendEditor {
 public:
  static constexpr int kLines = 11;

  explicit LegendEditor(const LegendTable& legend);

  // Makes an entry (0..10) current and says what to show for it. A size above 20 pixels shows as
  // 20.
  LegendChoice Select(int entry);
  [[nodiscard]] int Selected() const { return static_cast<int>(selected_); }

  // The first entry's mark size is fixed.
  [[nodiscard]] bool MarkSizeIsFixed() const { return selected_ == 0; }

  // Takes what the controls say into the current entry.
  void Take(const LegendChoice& choice);

  [[nodiscard]] std::int32_t Color() const { return entries_[selected_].values.color; }
  void SetColor(std::int32_t color) { entries_[selected_].values.color = color; }

  // Gives the ten other entries the sizes, the label and the colour of the current one.
  void CopyToAll();

  // Writes all entries into a legend.
  void Save(LegendTable& legend) const;

  [[nodiscard]] const std::array<HanRec, LegendTable::kPointLegends>& Entries() const {
    return entries_;
  }

  // The title of an entry (0..10); empty when it has none.
  [[nodiscard]] const std::u16string& Title(std::size_t entry) const { return titles_[entry]; }

 private:
  [[nodiscard]] PointSymbol Current() const {
    return Decode<PointSymbol>(entries_[selected_].values);
  }

  std::array<HanRec, LegendTable::kPointLegends> entries_;
  std::array<std::u16string, LegendTable::kPointLegends> titles_;
  std::size_t selected_ = 0;
};

}  // namespace tavix
