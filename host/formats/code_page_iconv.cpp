#include <iconv.h>

#include <cstddef>

#include "host/formats/text_encoding.h"

namespace fieldhost {
namespace {

class Converter {
 public:
  explicit Converter(const char* from) : handle_(iconv_open("UTF-8", from)) {}
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // iconv_open returns -1 as a pointer when it fails.
  [[nodiscard]] bool IsOpen() const {
    return handle_ != iconv_t(-1);  // NOLINT(performance-no-int-to-ptr)
  }
  [[nodiscard]] iconv_t Handle() const { return handle_; }

 private:
  iconv_t handle_;
};

const Converter& ConverterFrom(CodePage code_page) {
  static const Converter shift_jis("CP932");
  static const Converter latin1("ISO-8859-1");
  static const Converter windows1252("CP1252");
  switch (code_page) {
    case CodePage::kShiftJis:
      return shift_jis;
    case CodePage::kLatin1:
      return latin1;
    case CodePage::kWindows1252:
      break;
  }
  return windows1252;
}

}  // namespace

std::optional<std::string> Utf8From(CodePage code_page, std::string_view bytes) {
  const Converter& converter = ConverterFrom(code_page);
  if (!converter.IsOpen()) return std::nullopt;
  iconv(converter.Handle(), nullptr, nullptr, nullptr, nullptr);

  std::string text(bytes.size() * 3, '\0');  // a half-width kana byte becomes three
  // The call's parameter is not const, but it does not write there.
  char* in = const_cast<char*>(bytes.data());
  std::size_t in_left = bytes.size();
  char* out = text.data();
  std::size_t out_left = text.size();
  if (iconv(converter.Handle(), &in, &in_left, &out, &out_left) == std::size_t(-1)) {
    return std::nullopt;
  }
  text.resize(text.size() - out_left);
  return text;
}

}  // namespace fieldhost
