#include "platform/tdialog/device_template.h"

#include <cstring>

namespace tdialog {
namespace {

constexpr DWORD kCaptionOkButton = 0x80000000;  // WS_EX_CAPTIONOKBTN

// An extended template begins with the words 1 and 0xFFFF and has its extended style third, a plain
// one has it second.
constexpr DWORD kExtendedTemplate = 0xFFFF0001;
constexpr std::size_t kExtendedStyleInPlain = 1;
constexpr std::size_t kExtendedStyleInExtended = 2;

}  // namespace

DeviceTemplate::DeviceTemplate(LPCWSTR name) {
  const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
  const HRSRC found = ::FindResourceW(module, name, RT_DIALOG);
  if (!found) return;
  const DWORD size = ::SizeofResource(module, found);
  if (size < sizeof(DLGTEMPLATE)) return;
  words_.resize((size + sizeof(DWORD) - 1) / sizeof(DWORD));
  std::memcpy(words_.data(), ::LockResource(::LoadResource(module, found)), size);

  DWORD& style =
      words_[words_[0] == kExtendedTemplate ? kExtendedStyleInExtended : kExtendedStyleInPlain];
  captionOkButton_ = (style & kCaptionOkButton) != 0;
  style &= ~kCaptionOkButton;
}

}  // namespace tdialog
