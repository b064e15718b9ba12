#include "host/app/display_text.h"

#include <cmath>

#include "host/formats/code_page_windows.h"

namespace fieldhost {
namespace {

// To the millimetre, so that what rounds to zero has no minus sign.
double Rounded(double metres) { return std::round(metres * 1000.0) / 1000.0 + 0.0; }

}  // namespace

CString WideOf(std::string_view utf8) {
  if (utf8.empty()) return CString();
  const int size = static_cast<int>(utf8.size());
  CString text;
  LPWSTR buffer = text.GetBuffer(size);  // UTF-16 never takes more units than UTF-8 has bytes
  text.ReleaseBuffer(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, buffer, size));
  return text;
}

std::string Utf8Of(const CString& text) {
  return Utf8FromWide({text.GetString(), static_cast<std::size_t>(text.GetLength())});
}

CString PositionText(const GroundPosition& position) {
  CString text;
  text.Format(L"X %.3f  Y %.3f", Rounded(position.north), Rounded(position.east));
  return text;
}

CString LengthText(double metres) {
  CString text;
  text.Format(L"%.3f m", metres);
  return text;
}

CString AreaText(double square_metres) {
  CString text;
  text.Format(L"%.2f m\u00B2", square_metres);
  return text;
}

}  // namespace fieldhost
