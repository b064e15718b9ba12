// The encodings that survey files come in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fieldhost {

enum class TextEncoding { kUtf8, kShiftJis };

// True for well-formed UTF-8; ASCII is.
[[nodiscard]] bool IsUtf8(std::string_view bytes);

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // of UTF-8

[[nodiscard]] std::string_view WithoutByteOrderMark(std::string_view bytes);

// UTF-8 when all of the bytes are well-formed UTF-8, else Shift-JIS. Judges a whole file at once:
// a short piece of Shift-JIS may look like UTF-8.
[[nodiscard]] TextEncoding EncodingOf(std::string_view bytes);

// Encodings of one or two bytes a character. Latin 1 gives every byte a meaning.
enum class CodePage { kShiftJis /* Windows code page 932 */, kLatin1, kWindows1252 };

// Text of a code page in UTF-8, or nothing when the bytes are not valid in it. There is one source
// for each system.
[[nodiscard]] std::optional<std::string> Utf8From(CodePage code_page, std::string_view bytes);

}  // namespace fieldhost
