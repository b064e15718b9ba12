#include "store/symbols.h"

#include <algorithm>

namespace tavix {
namespace {

int Drawn(std::int32_t pixels) { return std::clamp(pixels, -kLargestDrawn, kLargestDrawn); }

Pen PenOf(const LegendValues& values) { return {Drawn(values.width), values.color}; }

}  // namespace

void LegendValues::SetMarkAndLabel(int size, int label_height, LabelContent label) {
  prm1 = size;
  prm2 = label_height;
  prm3 = label == LabelContent::kNumber ? 1 : 0;
}

template <>
PointSymbol Decode<PointSymbol>(const LegendValues& values) {
  return {values.kind, Drawn(values.prm1), Drawn(values.prm2),
          values.prm3 != 0 ? LabelContent::kNumber : LabelContent::kName, PenOf(values)};
}

template <>
LineSymbol Decode<LineSymbol>(const LegendValues& values) {
  return {values.kind, values.prm1, values.prm2, values.prm3, PenOf(values)};
}

}  // namespace tavix
