#include "draw/dib/raster_cache.h"

#include <afxwin.h>
#include <framework/scoped_select.h>

#include "draw/dib/gdi_probe.h"
#include "draw/dib/verification.h"
#include "draw/gdi_scopes.h"

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

// The sum that a font file carries over all of it; the same value for all fonts without such a
// file.
DWORD CheckSum(CDC& dc) {
  constexpr DWORD kHead = 'h' | 'e' << 8 | 'a' << 16 | 'd' << 24;
  constexpr DWORD kCheckSumAt = 8;
  DWORD sum = 0;
  ::GetFontData(dc.m_hDC, kHead, kCheckSumAt, &sum, sizeof sum);
  return sum;
}

}  // namespace

ScreenSettings ScreenSettings::Now() { return {TextSmoothing(), ScreenDepth()}; }

FontIdentity FontIdentity::OfLabels(int height) {
  CDC dc;
  dc.CreateCompatibleDC(nullptr);
  const LOGFONTW wanted = LabelFont(height);
  CFont font;
  font.CreateFontIndirect(&wanted);
  const CScopedSelect selected(dc, font);
  wchar_t face[LF_FULLFACESIZE] = {};
  ::GetTextFaceW(dc.m_hDC, LF_FULLFACESIZE, face);
  TEXTMETRICW metrics = {};
  dc.GetTextMetrics(&metrics);
  return {face,
          CheckSum(dc),
          metrics.tmHeight,
          metrics.tmAscent,
          metrics.tmAveCharWidth,
          metrics.tmMaxCharWidth,
          metrics.tmWeight};
}

RasterCache::CachedMark::CachedMark(const PointSymbol& symbol) : mask(ProbeMark(symbol)) {}

RasterCache::CachedLabels::CachedLabels(const SmoothFont& labels_font, MemoryBudget& glyph_memory)
    : labels(labels_font, glyph_memory), font(FontIdentity::OfLabels(labels_font.Height())) {}

void RasterCache::FollowSettings(const ScreenSettings& settings) {
  labels_.ForEach([](CachedLabels& cached) { cached.checked = false; });
  if (settings == settings_) return;
  if (settings.depth != settings_.depth) {
    lines_probed_ = false;
    marks_.Clear();
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

SmoothLabels* RasterCache::Labels(int height, std::uint32_t color) {
  const LabelKey key{height, color};
  const SmoothFont font(height, color, blends_[color]);
  CachedLabels* cached = labels_.Get(key, font, glyph_memory_);
  if (cached && !cached->checked) {
    cached->checked = true;
    if (cached->font != FontIdentity::OfLabels(height)) {
      labels_.Remove(key);
      cached = labels_.Get(key, font, glyph_memory_);
    }
  }
  return cached ? &cached->labels : nullptr;
}

}  // namespace tavix
