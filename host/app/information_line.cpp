#include "host/app/information_line.h"

namespace fieldhost {
namespace {

constexpr int kText = 12;  // pixels; a handheld's width then holds number, name and coordinates
constexpr int kMargin = 3;
constexpr int kRow = 15;
constexpr int kNarrow = 600;  // where a row holds less than a tool has to say

constexpr DWORD kOneRow = SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS;
constexpr DWORD kTwoRows = SS_LEFT | SS_EDITCONTROL;

}  // namespace

BOOL InformationLine::Create(CWnd& parent, UINT id, bool may_wrap) {
  may_wrap_ = may_wrap;
  font_.CreateFontW(-kText, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                    DEFAULT_PITCH | FF_DONTCARE, L"MS UI Gothic");
  constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | SS_NOPREFIX | SS_NOTIFY | kOneRow;
  if (!text_.Create(L"", kStyle, CRect(0, 0, 0, 0), &parent, id)) return FALSE;
  text_.SetFont(&font_);
  return TRUE;
}

bool InformationLine::Wraps(int width) const { return may_wrap_ && width < kNarrow; }

int InformationLine::HeightFor(int width) const { return kMargin + (Wraps(width) ? 2 : 1) * kRow; }

void InformationLine::Place(const CRect& rect) {
  const bool wraps = Wraps(rect.Width());
  text_.ModifyStyle(SS_TYPEMASK | SS_ELLIPSISMASK | SS_EDITCONTROL, wraps ? kTwoRows : kOneRow);
  text_.MoveWindow(rect.left + kMargin, rect.top + kMargin, rect.Width() - 2 * kMargin,
                   rect.Height() - kMargin);
  // The control repaints only what has become visible.
  text_.Invalidate();
}

void InformationLine::Show(const CString& text) {
  CString shown;
  text_.GetWindowText(shown);
  if (shown != text) text_.SetWindowText(text);
}

}  // namespace fieldhost
