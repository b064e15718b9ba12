// CString::Format and similar members.
#include <afx.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <string>

#include "tests/platform/framework/base/text_printer.h"

namespace {

template <class... Arguments>
CString Formatted(LPCWSTR format, Arguments... arguments) {
  CString text(L"what was there before");
  text.Format(format, arguments...);
  return text;
}

TEST(StringFormat, WritesNumbersAndTexts) {
  EXPECT_STREQ(L"42", Formatted(L"%d", 42));
  EXPECT_STREQ(L"-42", Formatted(L"%d", -42));
  EXPECT_STREQ(L"   42|42   |00042|+42", Formatted(L"%5d|%-5d|%05d|%+d", 42, 42, 42, 42));
  EXPECT_STREQ(L"4000000000", Formatted(L"%u", 4000000000U));
  EXPECT_STREQ(L"-7 7", Formatted(L"%ld %lu", -7L, 7UL));
  EXPECT_STREQ(L"9000000000", Formatted(L"%I64d", 9000000000LL));
  EXPECT_STREQ(L"ff FF 00ff 0xff", Formatted(L"%x %X %04x %#x", 255, 255, 255, 255));
  EXPECT_STREQ(L"1.500000", Formatted(L"%lf", 1.5));
  EXPECT_STREQ(L"-0.250000", Formatted(L"%f", -0.25));
  EXPECT_STREQ(L"3.14", Formatted(L"%.2lf", 3.14159));
  EXPECT_STREQ(L"   3.142|3.1     |", Formatted(L"%8.3lf|%-8.1lf|", 3.14159, 3.14159));
  EXPECT_STREQ(L"1000000000000000", Formatted(L"%.0lf", 1e15));
  EXPECT_STREQ(L"0.5", Formatted(L"%g", 0.5));
  EXPECT_STREQ(L"1.000", Formatted(L"%.*lf", 3, 1.0));
  EXPECT_STREQ(L"a点", Formatted(L"%c%c", L'a', L'点'));
  EXPECT_STREQ(L"%", Formatted(L"%%"));
  EXPECT_STREQ(L"100%: 7%", Formatted(L"100%%: %d%%", 7));
}

TEST(StringFormat, TakesWideStringsForS) {
  EXPECT_STREQ(L"測量点", Formatted(L"%s", L"測量点"));
  EXPECT_STREQ(L"[  abc|abc  |ab]", Formatted(L"[%5s|%-5s|%.2s]", L"abc", L"abc", L"abc"));
  EXPECT_STREQ(L"narrow short wide", Formatted(L"%S %hs %ls", "narrow", "short", L"wide"));
  EXPECT_STREQ(L"text", Formatted(L"%s", static_cast<LPCWSTR>(CString(L"text"))));
  EXPECT_STREQ(L"点 3 線 境界", Formatted(L"点 %d 線 %s", 3, L"境界"));
}

TEST(StringFormat, GivesAnEmptyStringForAnEmptyOrNullFormat) {
  EXPECT_STREQ(L"", Formatted(L""));
  EXPECT_STREQ(L"", Formatted(L"%s", L""));
  EXPECT_STREQ(L"", Formatted(nullptr));
}

TEST(StringFormat, HasNoLimitOfLength) {
  for (std::size_t length : {255U, 256U, 1023U, 1024U, 65535U, 65536U, 1000000U}) {
    const std::wstring piece(length, L'測');
    const CString text = Formatted(L"<%s>", piece.c_str());
    ASSERT_EQ(static_cast<int>(length) + 2, text.GetLength());
    EXPECT_EQ(L'<', text[0]);
    EXPECT_EQ(L'測', text[static_cast<int>(length)]);
    EXPECT_EQ(L'>', text[static_cast<int>(length) + 1]);
  }
}

TEST(StringFormat, MayUseTheStringsOwnCharacters) {
  CString text(L"abc");
  text.Format(L"%s-%s", text.GetString(), text.GetString());
  EXPECT_STREQ(L"abc-abc", text);
  text = L"%d items";
  text.Format(text, 3);
  EXPECT_STREQ(L"3 items", text);
  text.AppendFormat(L" (%s)", text.GetString());
  EXPECT_STREQ(L"3 items (3 items)", text);
}

TEST(StringFormat, AppendsToWhatIsThere) {
  CString text;
  text.AppendFormat(L"%d", 1);
  text.AppendFormat(L", %d", 2);
  text.AppendFormat(L"");
  EXPECT_STREQ(L"1, 2", text);
}

void FormatWithList(CString& text, LPCWSTR format, ...) {
  va_list arguments;
  va_start(arguments, format);
  text.FormatV(format, arguments);
  va_end(arguments);
}

TEST(StringFormat, TakesAListOfArguments) {
  CString text;
  FormatWithList(text, L"%s %d %.1lf", L"a", 1, 2.5);
  EXPECT_STREQ(L"a 1 2.5", text);
}

TEST(StringFormat, KeepsTheStringWhenTheResourceIsMissing) {
  CString text(L"before");
  text.Format(54321U, 1);
  EXPECT_STREQ(L"before", text);
}

}  // namespace
