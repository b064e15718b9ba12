// CString: changes in place.
#include <afx.h>
#include <gtest/gtest.h>

#include <cwchar>

#include "tests/platform/framework_base/text_printer.h"

namespace {

constexpr int kMost = 0x7FFFFFFF;
constexpr int kLeast = -kMost - 1;

TEST(StringChange, CaseAndOrder) {
  EXPECT_STREQ(CString(L"aZ9 é 点 ａ").MakeUpper(), L"AZ9 É 点 Ａ");
  EXPECT_STREQ(CString(L"aZ9 É 点 Ａ").MakeLower(), L"az9 é 点 ａ");
  EXPECT_STREQ(CString(L"abc点").MakeReverse(), L"点cba");
  EXPECT_STREQ(CString(L"x").MakeReverse(), L"x");
  EXPECT_STREQ(CString().MakeUpper().MakeLower().MakeReverse(), L"");
}

TEST(StringChange, TrimsWhiteSpace) {
  static constexpr struct {
    LPCWSTR text;
    LPCWSTR left;
    LPCWSTR right;
    LPCWSTR both;
  } kRows[] = {
      {L"", L"", L"", L""},
      {L"abc", L"abc", L"abc", L"abc"},
      {L"  a b  ", L"a b  ", L"  a b", L"a b"},
      {L"\t\r\n\v\f a", L"a", L"\t\r\n\v\f a", L"a"},
      {L"a\t\r\n\v\f ", L"a\t\r\n\v\f ", L"a", L"a"},
      {L" \t\r\n ", L"", L"", L""},
      {L"\x3000点\x3000", L"点\x3000", L"\x3000点", L"点"},
  };
  for (const auto& row : kRows) {
    EXPECT_STREQ(CString(row.text).TrimLeft(), row.left);
    EXPECT_STREQ(CString(row.text).TrimRight(), row.right);
    EXPECT_STREQ(CString(row.text).Trim(), row.both);
  }
}

TEST(StringChange, TrimsASetAndACharacter) {
  const CString text(L"xxyabcyxx");
  EXPECT_STREQ(CString(text).TrimLeft(L"xy"), L"abcyxx");
  EXPECT_STREQ(CString(text).TrimRight(L"xy"), L"xxyabc");
  EXPECT_STREQ(CString(text).Trim(L"xy"), L"abc");
  EXPECT_STREQ(CString(text).TrimLeft(L'x'), L"yabcyxx");
  EXPECT_STREQ(CString(text).TrimRight(L'x'), L"xxyabcy");
  EXPECT_STREQ(CString(text).Trim(L'x'), L"yabcy");
  EXPECT_STREQ(CString(text).Trim(L""), text);
  EXPECT_STREQ(CString(text).Trim(static_cast<LPCWSTR>(nullptr)), text);
  EXPECT_STREQ(CString(L"xyx").Trim(L"yx"), L"");
  CString itself(L"xyx");
  EXPECT_STREQ(itself.Trim(itself.GetString()), L"");
  CString tail(L"abcx");
  EXPECT_STREQ(tail.Trim(tail.GetString() + 3), L"abc");
}

TEST(StringChange, ReplacesCharactersAndTexts) {
  CString text(L"a.b.c");
  EXPECT_EQ(text.Replace(L'.', L','), 2);
  EXPECT_STREQ(text, L"a,b,c");
  EXPECT_EQ(text.Replace(L'x', L'y'), 0);
  EXPECT_EQ(text.Replace(L'a', L'a'), 0);
  EXPECT_STREQ(text, L"a,b,c");

  static constexpr struct {
    LPCWSTR text;
    LPCWSTR from;
    LPCWSTR to;
    int count;
    LPCWSTR result;
  } kRows[] = {
      {L"abab", L"ab", L"x", 2, L"xx"},
      {L"abab", L"ab", L"", 2, L""},
      {L"abab", L"ab", nullptr, 2, L""},
      {L"abab", L"b", L"bb", 2, L"abbabb"},
      {L"aaa", L"aa", L"b", 1, L"ba"},
      {L"aaaa", L"a", L"aa", 4, L"aaaaaaaa"},
      {L"abab", L"x", L"y", 0, L"abab"},
      {L"abab", L"", L"y", 0, L"abab"},
      {L"abab", nullptr, L"y", 0, L"abab"},
      {L"", L"a", L"b", 0, L""},
      {L"点-線", L"点", L"point", 1, L"point-線"},
  };
  for (const auto& row : kRows) {
    CString changed(row.text);
    EXPECT_EQ(changed.Replace(row.from, row.to), row.count);
    EXPECT_STREQ(changed, row.result);
  }
}

TEST(StringChange, RemovesACharacter) {
  CString text(L"This is a test.");
  EXPECT_EQ(text.Remove(L't'), 2);
  EXPECT_STREQ(text, L"This is a es.");
  EXPECT_EQ(text.Remove(L'x'), 0);
  EXPECT_STREQ(text, L"This is a es.");
  CString all(L"xxx");
  EXPECT_EQ(all.Remove(L'x'), 3);
  EXPECT_STREQ(all, L"");
  EXPECT_EQ(CString().Remove(L'x'), 0);
}

TEST(StringChange, InsertsAtAPlaceInsideTheString) {
  static constexpr struct {
    int index;
    LPCWSTR inserted;
    LPCWSTR result;
  } kRows[] = {
      {0, L"xy", L"xyabc"},      {1, L"xy", L"axybc"},  {3, L"xy", L"abcxy"},
      {99, L"xy", L"abcxy"},     {-1, L"xy", L"xyabc"}, {kMost, L"xy", L"abcxy"},
      {kLeast, L"xy", L"xyabc"}, {1, L"", L"abc"},      {1, nullptr, L"abc"},
  };
  for (const auto& row : kRows) {
    CString text(L"abc");
    EXPECT_EQ(text.Insert(row.index, row.inserted), static_cast<int>(std::wcslen(row.result)));
    EXPECT_STREQ(text, row.result) << row.index;
  }
  CString text(L"abc");
  EXPECT_EQ(text.Insert(1, L'点'), 4);
  EXPECT_STREQ(text, L"a点bc");
  EXPECT_EQ(text.Insert(99, L'!'), 5);
  EXPECT_STREQ(text, L"a点bc!");
}

TEST(StringChange, DeletesWhatLiesInsideTheString) {
  static constexpr struct {
    int index;
    int count;
    LPCWSTR result;
  } kRows[] = {
      {0, 1, L"1234"},  {1, 3, L"04"},     {4, 1, L"0123"}, {4, 9, L"0123"},
      {5, 1, L"01234"}, {99, 1, L"01234"}, {0, kMost, L""}, {1, kMost, L"0"},
      {2, 0, L"01234"}, {2, -1, L"01234"}, {-1, 2, L"234"}, {kLeast, 1, L"1234"},
  };
  for (const auto& row : kRows) {
    CString text(L"01234");
    EXPECT_EQ(text.Delete(row.index, row.count), static_cast<int>(std::wcslen(row.result)));
    EXPECT_STREQ(text, row.result) << row.index << ", " << row.count;
  }
  CString text(L"01234");
  EXPECT_EQ(text.Delete(2), 4);
  EXPECT_STREQ(text, L"0134");
  EXPECT_EQ(CString().Delete(0), 0);
}

}  // namespace
