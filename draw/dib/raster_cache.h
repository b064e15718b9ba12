// What has been probed of GDI's drawing, kept from one redraw to the next.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "draw/dib/blend_table.h"
#include "draw/dib/bounded_cache.h"
#include "draw/dib/bresenham.h"
#include "draw/dib/label_cache.h"
#include "draw/dib/mark_mask.h"
#include "draw/dib/smooth_labels.h"
#include "draw/dib/strokes.h"
#include "store/symbols.h"

namespace tavix {

// The settings of the screen that GDI's drawing depends on. They are read before each redraw: the
// messages that announce a change go to top-level windows only, and not every host hands them on.
struct ScreenSettings {
  UINT smoothing = 0;  // of text: whether, and how, as one number
  int depth = 0;       // bits of a pixel, a second old at most

  [[nodiscard]] static ScreenSettings Now();

  friend bool operator==(const ScreenSettings&, const ScreenSettings&) = default;
};

// Probes how GDI draws as that is needed, each thing once, and keeps it for the redraws to come.
// Whatever it hands out has been verified against GDI's drawing; null stands for what is left to
// GDI: what is not the same everywhere, and what comes after very many others. A pointer is valid
// until FollowSettings is called or the cache destroyed.
class RasterCache {
 public:
  RasterCache() = default;
  RasterCache(const RasterCache&) = delete;
  RasterCache& operator=(const RasterCache&) = delete;

  // The one that all windows of the process share, whichever instance they are of. It stays until
  // the library is unloaded. Only the thread that draws may use it.
  [[nodiscard]] static RasterCache& OfProcess();

  // To be called before a redraw: drops what has changed since the last one. That is text when its
  // smoothing has changed, a label's height when GDI takes another font for it, and everything when
  // the screen has another depth.
  void FollowSettings(const ScreenSettings& settings = ScreenSettings::Now());

  // How often that has been called: whoever keeps a pointer can see whether it is still valid.
  [[nodiscard]] unsigned Redraws() const { return redraws_; }

  // Solid lines of one pixel.
  [[nodiscard]] const TieRule* Lines();

  // The mark of a symbol.
  [[nodiscard]] const MarkMask* Mark(const PointSymbol& symbol);

  // Short wide lines and small circles of a pen; null for a pen whose colour has a high byte.
  [[nodiscard]] Strokes* StrokesOf(const Pen& pen);

  // Labels of this height in pixels and this colour.
  [[nodiscard]] SmoothLabels* Labels(int height, std::uint32_t color = 0);

 private:
  struct CachedMark {
    explicit CachedMark(const PointSymbol& symbol);
    std::optional<MarkMask> mask;
  };

  bool lines_probed_ = false;
  std::optional<TieRule> lines_;
  BoundedCache<PointSymbol, CachedMark, kMostMarks> marks_;
  MemoryBudget stroke_memory_{std::size_t{8} << 20};
  BoundedCache<Pen, Strokes, kMostPens> strokes_;
  std::map<std::uint32_t, BlendTable> blends_;                    // by the text's colour
  LabelCache<std::pair<int, std::uint32_t>, SmoothFont> labels_;  // by height and colour
  ScreenSettings settings_;
  unsigned redraws_ = 0;
};

}  // namespace tavix
