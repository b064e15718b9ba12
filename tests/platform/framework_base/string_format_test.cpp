// CString::Format and its kin.
#include <afx.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <string>

#include "tests/platform/framework_base/text_printer.h"

namespace {

template <class... Arguments>
CString Formatted(LPCWSTR format, Arguments... arguments) {
  CString text(L"what was there before");
  text.Format(format, arguments...);
  return text;
}

TEST(StringFormat, WritesNumbersAndTexts) {
  EXPECT_STREQ(Formatted(L"%d", 42), L"42");
  EXPECT_STREQ(Formatted(L"%d", -42), L"-42");
  EXPECT_STREQ(Formatted(L"%5d|%-5d|%05d|%+d", 42, 42, 42, 42), L"   42|42   |00042|+42");
  EXPECT_STREQ(Formatted(L"%u", 4000000000U), L"4000000000");
  EXPECT_STREQ(Formatted(L"%ld %lu", -7L, 7UL), L"-7 7");
  EXPECT_STREQ(Formatted(L"%I64d", 9000000000LL), L"9000000000");
  EXPECT_STREQ(Formatted(L"%x %X %04x %#x", 255, 255, 255, 255), L"ff FF 00ff 0xff");
  EXPECT_STREQ(Formatted(L"%lf", 1.5), L"1.500000");
  EXPECT_STREQ(Formatted(L"%f", -0.25), L"-0.250000");
  EXPECT_STREQ(Formatted(L"%.2lf", 3.14159), L"3.14");
  EXPECT_STREQ(Formatted(L"%8.3lf|%-8.1lf|", 3.14159, 3.14159), L"   3.142|3.1     |");
  EXPECT_STREQ(Formatted(L"%.0lf", 1e15), L"1000000000000000");
  EXPECT_STREQ(Formatted(L"%g", 0.5), L"0.5");
  EXPECT_STREQ(Formatted(L"%.*lf", 3, 1.0), L"1.000");
  EXPECT_STREQ(Formatted(L"%c%c", L'a', L'点'), L"a点");
  EXPECT_STREQ(Formatted(L"%%"), L"%");
  EXPECT_STREQ(Formatted(L"100%%: %d%%", 7), L"100%: 7%");
}

TEST(StringFormat, TakesWideStringsForS) {
  EXPECT_STREQ(Formatted(L"%s", L"測量点"), L"測量点");
  EXPECT_STREQ(Formatted(L"[%5s|%-5s|%.2s]", L"abc", L"abc", L"abc"), L"[  abc|abc  |ab]");
  EXPECT_STREQ(Formatted(L"%S %hs %ls", "narrow", "short", L"wide"), L"narrow short wide");
  EXPECT_STREQ(Formatted(L"%s", static_cast<LPCWSTR>(CString(L"text"))), L"text");
  EXPECT_STREQ(Formatted(L"点 %d 線 %s", 3, L"境界"), L"点 3 線 境界");
}

TEST(StringFormat, GivesAnEmptyStringForAnEmptyOrNullFormat) {
  EXPECT_STREQ(Formatted(L""), L"");
  EXPECT_STREQ(Formatted(L"%s", L""), L"");
  EXPECT_STREQ(Formatted(nullptr), L"");
}

TEST(StringFormat, HasNoLimitOfLength) {
  for (std::size_t length : {255U, 256U, 1023U, 1024U, 65535U, 65536U, 1000000U}) {
    const std::wstring piece(length, L'測');
    const CString text = Formatted(L"<%s>", piece.c_str());
    ASSERT_EQ(text.GetLength(), static_cast<int>(length) + 2);
    EXPECT_EQ(text[0], L'<');
    EXPECT_EQ(text[static_cast<int>(length)], L'測');
    EXPECT_EQ(text[static_cast<int>(length) + 1], L'>');
  }
}

TEST(StringFormat, MayUseTheStringsOwnCharacters) {
  CString text(L"abc");
  text.Format(L"%s-%s", text.GetString(), text.GetString());
  EXPECT_STREQ(text, L"abc-abc");
  text = L"%d items";
  text.Format(text, 3);
  EXPECT_STREQ(text, L"3 items");
  text.AppendFormat(L" (%s)", text.GetString());
  EXPECT_STREQ(text, L"3 items (3 items)");
}

TEST(StringFormat, AppendsToWhatIsThere) {
  CString text;
  text.AppendFormat(L"%d", 1);
  text.AppendFormat(L", %d", 2);
  text.AppendFormat(L"");
  EXPECT_STREQ(text, L"1, 2");
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
  EXPECT_STREQ(text, L"a 1 2.5");
}

TEST(StringFormat, KeepsTheStringWhenTheResourceIsMissing) {
  CString text(L"before");
  text.Format(54321U, 1);
  EXPECT_STREQ(text, L"before");
}

}  // namespace
