#include "window/settings/legend_editor.h"

#include <algorithm>

namespace tavix {
namespace {

constexpr int kPixelsPerLine = 2;

// The line of a size; the last line's for a larger one.
int LineOf(int size) { return std::clamp(size / kPixelsPerLine, 0, LegendEditor::kLines - 1); }

}  // namespace

LegendEditor::LegendEditor(const LegendTable& legend) {
  legend.CopyOut(entries_.size(), entries_.data());
  for (std::size_t i = 0; i < titles_.size(); ++i) {
    legend.GetTitle(static_cast<int>(i) + 1, &titles_[i]);
  }
}

LegendChoice LegendEditor::Select(int entry) {
  selected_ = static_cast<std::size_t>(entry);
  const PointSymbol symbol = Current();
  return {LineOf(symbol.size), LineOf(symbol.label_height), symbol.label == LabelContent::kNumber};
}

void LegendEditor::Take(const LegendChoice& choice) {
  entries_[selected_].values.SetMarkAndLabel(
      std::max(choice.mark_line, 0) * kPixelsPerLine,
      std::max(choice.text_line, 0) * kPixelsPerLine,
      choice.shows_number ? LabelContent::kNumber : LabelContent::kName);
}

void LegendEditor::CopyToAll() {
  const PointSymbol from = Current();
  for (HanRec& entry : entries_) {
    entry.values.SetMarkAndLabel(from.size, from.label_height, from.label);
    entry.values.color = from.pen.color;
  }
}

void LegendEditor::Save(LegendTable& legend) const {
  for (const HanRec& entry : entries_) legend.Change(entry.number, true, entry.values);
}

}  // namespace tavix
