#include "host/formats/text_encoding.h"

#include <gtest/gtest.h>

#include <string_view>

namespace fieldhost {
namespace {

TEST(IsUtf8, TakesWellFormedText) {
  for (const std::string_view text :
       {std::string_view(), std::string_view("abc"), std::string_view("\xC2\x80"),
        std::string_view("\xDF\xBF"), std::string_view("基準点"), std::string_view("\xEF\xBF\xBD"),
        std::string_view("\xF0\x90\x80\x80"), std::string_view("\xF4\x8F\xBF\xBF"),
        std::string_view("a\0b", 3)}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
}

TEST(IsUtf8, RefusesIllFormedText) {
  const struct {
    const char* what;
    std::string_view text;
  } rows[] = {
      {"a continuation alone", "\x80"},
      {"a cut sequence", "\xE5\x9F"},
      {"a lead without continuation", "\xC3q"},
      {"two bytes for one", "\xC1\xBF"},
      {"three bytes for two", "\xE0\x9F\xBF"},
      {"four bytes for three", "\xF0\x8F\xBF\xBF"},
      {"a surrogate", "\xED\xA0\x80"},
      {"past the last character", "\xF4\x90\x80\x80"},
      {"no lead byte", "\xFF"},
      {"Shift-JIS", "\x8A\xEE\x8F\x80\x93\x5F"},
  };
  for (const auto& row : rows) EXPECT_FALSE(IsUtf8(row.text)) << row.what;
}

TEST(EncodingOf, ShiftJisIsWhatIsNotUtf8) {
  EXPECT_EQ(TextEncoding::kUtf8, EncodingOf("plain"));
  EXPECT_EQ(TextEncoding::kUtf8, EncodingOf("基準点"));
  EXPECT_EQ(TextEncoding::kShiftJis, EncodingOf("\x8A\xEE\x8F\x80\x93\x5F"));
}

TEST(Utf8From, ConvertsEveryCodePage) {
  const struct {
    const char* what;
    CodePage code_page;
    std::string_view bytes;
    std::string_view text;
  } rows[] = {
      {"nothing", CodePage::kShiftJis, "", ""},
      {"ASCII, the backslash too", CodePage::kShiftJis, "A\\~", "A\\~"},
      {"characters of two bytes", CodePage::kShiftJis, "\x8A\xEE\x8F\x80\x93\x5F", "基準点"},
      {"a second byte that looks like a backslash", CodePage::kShiftJis, "\x95\x5C", "表"},
      {"half-width kana", CodePage::kShiftJis, "\xC3\xDE\xB0\xC0", "ﾃﾞｰﾀ"},
      {"a wave dash", CodePage::kShiftJis, "\x81\x60", "～"},
      {"a character only Windows has", CodePage::kShiftJis, "\x87\x40", "①"},
      {"letters of western Europe", CodePage::kLatin1, "ritil\xE4kansi \xD8", "ritiläkansi Ø"},
      {"a control character", CodePage::kLatin1, "\x80", "\xC2\x80"},
      {"the same byte as a sign", CodePage::kWindows1252, "\x80 \xE4", "€ ä"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.text, Utf8From(row.code_page, row.bytes)) << row.what;
}

TEST(Utf8From, RefusesWhatIsNoText) {
  for (const std::string_view bytes : {"\x8A", "ab\x93", "\x81\x20"}) {
    EXPECT_FALSE(Utf8From(CodePage::kShiftJis, bytes)) << bytes.size();
  }
  // A refusal leaves nothing behind for the next call.
  EXPECT_EQ("表", Utf8From(CodePage::kShiftJis, "\x95\x5C"));
}

}  // namespace
}  // namespace fieldhost
