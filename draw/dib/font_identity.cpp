#include "draw/dib/font_identity.h"

#include <afxwin.h>
#include <framework/scoped_select.h>

#include "draw/gdi_scopes.h"

namespace tavix {
namespace {

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

}  // namespace tavix
