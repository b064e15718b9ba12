#include "window/settings/legend_editor.h"

#include <algorithm>

namespace tavix {
namespace {

constexpr int kPixelsPerLine = 2;
constexpr int kLastLine = LegendEditor::kLines - 1;

// The line of a size, which is cut to the last line's when it is larger.
int LineOf(std::int32_t& size) {
  const int line = size / kPixelsPerLine;
  if (line > kLastLine) {
    size = kLastLine * kPixelsPerLine;
    return kLastLine;
  }
  return std::max(line, 0);
}

}  // namespace

LegendEditor::LegendEditor(const LegendTable& legend) {
  legend.CopyOut(entries_.size(), entries_.data());
  for (std::size_t i = 0; i < titles_.size(); ++i) {
    legend.GetTitle(static_cast<int>(i) + 1, &titles_[i]);
  }
}

LegendChoice LegendEditor::Select(int entry) {
  selected_ = static_cast<std::size_t>(entry);
  LegendStyle& style = Current();
  return {LineOf(style.prm1), LineOf(style.prm2), style.prm3 != 0};
}

void LegendEditor::Take(const LegendChoice& choice) {
  LegendStyle& style = Current();
  style.prm1 = std::max(choice.mark_line, 0) * kPixelsPerLine;
  style.prm2 = std::max(choice.text_line, 0) * kPixelsPerLine;
  style.prm3 = choice.shows_number ? 1 : 0;
}

void LegendEditor::CopyToAll() {
  const LegendStyle from = Current();
  for (HanRec& entry : entries_) {
    entry.style.prm1 = from.prm1;
    entry.style.prm2 = from.prm2;
    entry.style.prm3 = from.prm3;
    entry.style.color = from.color;
  }
}

void LegendEditor::Save(LegendTable& legend) const {
  for (const HanRec& entry : entries_) legend.Change(entry.number, true, entry.style);
}

}  // namespace tavix
