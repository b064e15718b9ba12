#include "draw/dib/system_look.h"

#include <afxwin.h>
#include <framework/scoped_select.h>

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

// At most a second old: asking can take longer than a small redraw, and a depth changes by hand.
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

ScreenLook ScreenLook::Now() { return {TextSmoothing(), ScreenDepth()}; }

FontLook FontLook::OfLabels(int height) {
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

}  // namespace tavix
