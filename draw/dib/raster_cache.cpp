#include "draw/dib/raster_cache.h"

#include <afxwin.h>

#include "draw/dib/gdi_probe.h"
#include "draw/dib/verification.h"

namespace tavix {
namespace {

UINT TextSmoothing() {
  BOOL on = FALSE;
  UINT type = 0;
  UINT contrast = 0;
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &on, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGCONTRAST, 0, &contrast, 0);
  return (on ? 1u : 0u) | type << 1 | contrast << 8;
}

// At most a second old: asking can take longer than a small redraw, and a user rarely changes it.
int ScreenDepth() {
  constexpr ULONGLONG kAskedAgainAfter = 1000;  // milliseconds
  static ULONGLONG asked_at = 0;
  static int depth = 0;
  const ULONGLONG now = ::GetTickCount64();
  if (depth == 0 || now - asked_at > kAskedAgainAfter) {
    const CClientDC screen(nullptr);
    depth = screen.GetDeviceCaps(BITSPIXEL) * screen.GetDeviceCaps(PLANES);
    asked_at = now;
  }
  return depth;
}

}  // namespace

ScreenSettings ScreenSettings::Now() { return {TextSmoothing(), ScreenDepth()}; }

RasterCache::CachedMark::CachedMark(const PointSymbol& symbol) : mask(ProbeMark(symbol)) {}

RasterCache& RasterCache::OfProcess() {
  static RasterCache cache;
  return cache;
}

void RasterCache::FollowSettings(const ScreenSettings& settings) {
  ++redraws_;
  marks_.BeginRedraw();
  strokes_.BeginRedraw(stroke_memory_.IsSpent());
  labels_.BeginRedraw();
  if (settings == settings_) return;
  if (settings.depth != settings_.depth) {
    lines_probed_ = false;
    marks_.Clear();
    strokes_.Clear();
  }
  settings_ = settings;
  labels_.Clear();
  blends_.clear();
}

const TieRule* RasterCache::Lines() {
  if (!lines_probed_) lines_ = ProbeTieRule();
  lines_probed_ = true;
  return lines_ ? &*lines_ : nullptr;
}

const MarkMask* RasterCache::Mark(const PointSymbol& symbol) {
  const PointSymbol mark = MarkOnly(symbol);
  const CachedMark* cached = marks_.Get(mark, mark);
  return cached && cached->mask ? &*cached->mask : nullptr;
}

Strokes* RasterCache::StrokesOf(const Pen& pen) {
  return PixelBlock::ValueOf(pen.color) ? strokes_.Get(pen, pen, stroke_memory_) : nullptr;
}

SmoothLabels* RasterCache::Labels(int height, std::uint32_t color) {
  return labels_.Get({height, color}, SmoothFont(height, color, blends_[color]));
}

}  // namespace tavix
