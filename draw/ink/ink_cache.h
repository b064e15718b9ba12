// What has been probed of GDI's drawing in ink, kept from one picture to the next.
#pragma once

#include <optional>

#include "draw/dib/bresenham.h"
#include "draw/dib/label_cache.h"
#include "draw/ink/ink_probe.h"
#include "store/symbols.h"

namespace tavix {

// Probes marks and labels as they are needed, each once. Null stands for what is left to GDI. A
// pointer is valid until the next picture begins.
class InkCache {
 public:
  InkCache() = default;
  InkCache(const InkCache&) = delete;
  InkCache& operator=(const InkCache&) = delete;

  // The one that all instances of the process share. It stays until the library is unloaded. Only
  // the thread that draws may use it.
  [[nodiscard]] static InkCache& OfProcess();

  // To be called before a picture is drawn: follows a change of the font. One-bit pictures depend
  // neither on the screen's depth nor on the smoothing of text.
  void BeginPicture() {
    marks_.BeginRedraw();
    labels_.BeginRedraw();
  }

  // Solid lines of one pixel.
  [[nodiscard]] const TieRule* Lines();

  [[nodiscard]] const InkMark* Mark(const PointSymbol& symbol);

  // Labels of this height in pixels.
  [[nodiscard]] InkLabels* Labels(int height) { return labels_.Get(height, InkFont(height)); }

 private:
  struct CachedMark {
    explicit CachedMark(const PointSymbol& symbol) : mark(InkMark::Probe(symbol)) {}
    std::optional<InkMark> mark;
  };

  bool lines_probed_ = false;
  std::optional<TieRule> lines_;
  BoundedCache<PointSymbol, CachedMark, kMostMarks> marks_;
  LabelCache<int, InkFont> labels_;
};

}  // namespace tavix
