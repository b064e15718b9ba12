#include "platform/tdialog/device_template.h"

#include <cstring>

namespace tdialog {
namespace {

// Offsets in a template, in WORDs. The names of menu and class and the title follow the header,
// then the size of the font, if there is one. An extended template begins with 1 and 0xFFFF.
struct Layout {
  std::size_t style;
  std::size_t extendedStyle;
  std::size_t itemCount;
  std::size_t names;
};

constexpr Layout kPlain = {0, 2, 4, 9};
constexpr Layout kExtended = {6, 4, 8, 13};

const Layout& LayoutOf(const std::vector<WORD>& words) {
  return words[0] == 1 && words[1] == 0xFFFF ? kExtended : kPlain;
}

// The upper halves of the styles that are read or changed here.
constexpr WORD kCaptionOkButton = 0x8000;  // WS_EX_CAPTIONOKBTN
constexpr WORD kVisible = HIWORD(WS_VISIBLE);

// The offset after the name at `at`: a text with its NUL, or 0xFFFF and a number.
std::size_t PastName(const std::vector<WORD>& words, std::size_t at) {
  constexpr WORD kNumber = 0xFFFF;
  if (at < words.size() && words[at] == kNumber) return at + 2;
  while (at < words.size() && words[at] != 0) ++at;
  return at + 1;
}

// The offset of the font size; 0 when the template has no font of its own, or the system's message
// font.
std::size_t PointsAt(const std::vector<WORD>& words) {
  constexpr WORD kMessageFont = 0x7FFF;
  const Layout& layout = LayoutOf(words);
  if (!(words[layout.style] & DS_SETFONT)) return 0;
  std::size_t at = layout.names;
  for (int name = 0; name < 3; ++name) at = PastName(words, at);
  return at < words.size() && words[at] != kMessageFont ? at : 0;
}

INT_PTR CALLBACK LeaveToTheSystem(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

}  // namespace

DeviceTemplate::DeviceTemplate(LPCWSTR name) {
  const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
  const HRSRC found = ::FindResourceW(module, name, RT_DIALOG);
  if (!found) return;
  const DWORD size = ::SizeofResource(module, found);
  const void* bytes = ::LockResource(::LoadResource(module, found));
  if (!bytes || size < kPlain.names * sizeof(WORD)) return;
  words_.resize((size + sizeof(WORD) - 1) / sizeof(WORD));
  std::memcpy(words_.data(), bytes, size);

  pointsAt_ = PointsAt(words_);
  WORD& style = words_[LayoutOf(words_).extendedStyle + 1];
  captionOkButton_ = (style & kCaptionOkButton) != 0;
  style &= static_cast<WORD>(~kCaptionOkButton);
}

int DeviceTemplate::FontPoints() const { return pointsAt_ ? words_[pointsAt_] : 0; }

void DeviceTemplate::SetFontPoints(int points) { words_[pointsAt_] = static_cast<WORD>(points); }

// Only the system knows the size of a dialog unit with a font, and of borders and captions. The
// window is created without items and never shown.
SIZE DeviceTemplate::WindowSize(int extraHeight) const {
  std::vector<WORD> bare = words_;
  const Layout& layout = LayoutOf(bare);
  bare[layout.itemCount] = 0;
  bare[layout.style + 1] &= static_cast<WORD>(~kVisible);
  const HWND window = ::CreateDialogIndirectParamW(
      AfxGetResourceHandle(), reinterpret_cast<const DLGTEMPLATE*>(bare.data()), nullptr,
      &LeaveToTheSystem, 0);
  if (!window) return {0, 0};
  RECT extra = {0, 0, 0, extraHeight};
  ::MapDialogRect(window, &extra);
  RECT place;
  ::GetWindowRect(window, &place);
  ::DestroyWindow(window);
  return {place.right - place.left, place.bottom - place.top + extra.bottom};
}

}  // namespace tdialog
