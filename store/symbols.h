// What a legend entry says: six numbers as stored, and the symbols of points and lines they mean.
#pragma once

#include <cstdint>

namespace tavix {

// What a label shows.
enum class LabelContent { kName, kNumber };

// The six numbers of a legend entry in the order of the legend file. They are kept exactly as given
// and read by Decode alone; `tavix.h`, "Legend", says what they mean.
struct LegendValues {
  std::int32_t kind = 0;
  std::int32_t prm1 = 0;
  std::int32_t prm2 = 0;
  std::int32_t prm3 = 0;
  std::int32_t width = 0;
  std::int32_t color = 0;

  // Gives a point legend another mark size and label, heights in pixels. The rest stays.
  void SetMarkAndLabel(int size, int label_height, LabelContent label);

  friend bool operator==(const LegendValues&, const LegendValues&) = default;
};

// The widest pen, the largest mark and the highest label that are drawn, in pixels. GDI takes from
// seconds to minutes for larger ones.
constexpr int kLargestDrawn = 100;

struct Pen {
  int width = 0;           // pixels, held to -100..100; the sign does not count
  std::int32_t color = 0;  // COLORREF: 0x00BBGGRR

  friend bool operator==(const Pen&, const Pen&) = default;
};

// How a point is drawn.
struct PointSymbol {
  int mark = 0;          // a kind of the table in draw/marks.h; any other draws nothing
  int size = 0;          // of the mark, pixels, at most 100; 0 or less: no mark
  int label_height = 0;  // pixels, at most 100; 0 or less: no label
  LabelContent label = LabelContent::kName;
  Pen pen;

  friend bool operator==(const PointSymbol&, const PointSymbol&) = default;
};

// How a line is drawn. The lengths are pixels without a limit, and their sign does not count.
struct LineSymbol {
  int style = 0;  // a kind of the table in draw/line_styles.cpp; any other draws nothing
  int dash = 0;
  int gap = 0;
  int short_dash = 0;
  Pen pen;

  friend bool operator==(const LineSymbol&, const LineSymbol&) = default;
};

// The symbol that an entry's numbers mean, its sizes held to what is drawn. `Symbol` is PointSymbol
// or LineSymbol. Compatibility: a point may use a line legend and a line a point legend; the
// numbers are then read as those of its own class.
template <class Symbol>
[[nodiscard]] Symbol Decode(const LegendValues& values);

template <>
PointSymbol Decode<PointSymbol>(const LegendValues& values);
template <>
LineSymbol Decode<LineSymbol>(const LegendValues& values);

}  // namespace tavix
