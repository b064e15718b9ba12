#include <iconv.h>

#include <cstddef>

#include "host/readers/text_encoding.h"

namespace fieldhost {
namespace {

class Converter {
 public:
  Converter() : handle_(iconv_open("UTF-8", "CP932")) {}
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // The call says -1 as a pointer when it fails.
  [[nodiscard]] bool IsOpen() const {
    return handle_ != iconv_t(-1);  // NOLINT(performance-no-int-to-ptr)
  }
  [[nodiscard]] iconv_t Handle() const { return handle_; }

 private:
  iconv_t handle_;
};

}  // namespace

std::optional<std::string> Utf8FromShiftJis(std::string_view bytes) {
  static const Converter converter;
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
