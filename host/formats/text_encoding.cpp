#include "host/formats/text_encoding.h"

#include <cstddef>
#include <cstdint>

namespace fieldhost {
namespace {

std::uint8_t ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes[at]);
}

// The length of the well-formed sequence at `at`, or 0. Overlong forms, surrogates and values past
// U+10FFFF are recognised by the range of the second byte.
std::size_t SequenceLength(std::string_view bytes, std::size_t at) {
  const std::uint8_t lead = ByteAt(bytes, at);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (at + length > bytes.size()) return 0;

  const std::uint8_t lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const std::uint8_t highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  const std::uint8_t second = ByteAt(bytes, at + 1);
  if (second < lowest || second > highest) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((ByteAt(bytes, at + i) & 0xC0) != 0x80) return 0;
  }
  return length;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = SequenceLength(bytes, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

std::string_view WithoutByteOrderMark(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return bytes;
}

TextEncoding EncodingOf(std::string_view bytes) {
  return IsUtf8(bytes) ? TextEncoding::kUtf8 : TextEncoding::kShiftJis;
}

}  // namespace fieldhost
