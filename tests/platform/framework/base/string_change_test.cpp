// CString: changes in place.
#include <afx.h>
#include <gtest/gtest.h>

#include <cwchar>

#include "tests/platform/framework/base/text_printer.h"

namespace {

constexpr int kMost = 0x7FFFFFFF;
constexpr int kLeast = -kMost - 1;

TEST(StringChange, CaseAndOrder) {
  EXPECT_STREQ(L"AZ9 É 点 Ａ", CString(L"aZ9 é 点 ａ").MakeUpper());
  EXPECT_STREQ(L"az9 é 点 ａ", CString(L"aZ9 É 点 Ａ").MakeLower());
  EXPECT_STREQ(L"点cba", CString(L"abc点").MakeReverse());
  EXPECT_STREQ(L"x", CString(L"x").MakeReverse());
  EXPECT_STREQ(L"", CString().MakeUpper().MakeLower().MakeReverse());
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
    EXPECT_STREQ(row.left, CString(row.text).TrimLeft());
    EXPECT_STREQ(row.right, CString(row.text).TrimRight());
    EXPECT_STREQ(row.both, CString(row.text).Trim());
  }
}

TEST(StringChange, TrimsASetAndACharacter) {
  const CString text(L"xxyabcyxx");
  EXPECT_STREQ(L"abcyxx", CString(text).TrimLeft(L"xy"));
  EXPECT_STREQ(L"xxyabc", CString(text).TrimRight(L"xy"));
  EXPECT_STREQ(L"abc", CString(text).Trim(L"xy"));
  EXPECT_STREQ(L"yabcyxx", CString(text).TrimLeft(L'x'));
  EXPECT_STREQ(L"xxyabcy", CString(text).TrimRight(L'x'));
  EXPECT_STREQ(L"yabcy", CString(text).Trim(L'x'));
  EXPECT_STREQ(text, CString(text).Trim(L""));
  EXPECT_STREQ(text, CString(text).Trim(static_cast<LPCWSTR>(nullptr)));
  EXPECT_STREQ(L"", CString(L"xyx").Trim(L"yx"));
  CString itself(L"xyx");
  EXPECT_STREQ(L"", itself.Trim(itself.GetString()));
  CString tail(L"abcx");
  EXPECT_STREQ(L"abc", tail.Trim(tail.GetString() + 3));
}

TEST(StringChange, ReplacesCharactersAndTexts) {
  CString text(L"a.b.c");
  EXPECT_EQ(2, text.Replace(L'.', L','));
  EXPECT_STREQ(L"a,b,c", text);
  EXPECT_EQ(0, text.Replace(L'x', L'y'));
  EXPECT_EQ(0, text.Replace(L'a', L'a'));
  EXPECT_STREQ(L"a,b,c", text);

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
    EXPECT_EQ(row.count, changed.Replace(row.from, row.to));
    EXPECT_STREQ(row.result, changed);
  }
}

TEST(StringChange, RemovesACharacter) {
  CString text(L"This is a test.");
  EXPECT_EQ(2, text.Remove(L't'));
  EXPECT_STREQ(L"This is a es.", text);
  EXPECT_EQ(0, text.Remove(L'x'));
  EXPECT_STREQ(L"This is a es.", text);
  CString all(L"xxx");
  EXPECT_EQ(3, all.Remove(L'x'));
  EXPECT_STREQ(L"", all);
  EXPECT_EQ(0, CString().Remove(L'x'));
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
    EXPECT_EQ(static_cast<int>(std::wcslen(row.result)), text.Insert(row.index, row.inserted));
    EXPECT_STREQ(row.result, text) << row.index;
  }
  CString text(L"abc");
  EXPECT_EQ(4, text.Insert(1, L'点'));
  EXPECT_STREQ(L"a点bc", text);
  EXPECT_EQ(5, text.Insert(99, L'!'));
  EXPECT_STREQ(L"a点bc!", text);
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
    EXPECT_EQ(static_cast<int>(std::wcslen(row.result)), text.Delete(row.index, row.count));
    EXPECT_STREQ(row.result, text) << row.index << ", " << row.count;
  }
  CString text(L"01234");
  EXPECT_EQ(4, text.Delete(2));
  EXPECT_STREQ(L"0134", text);
  EXPECT_EQ(0, CString().Delete(0));
}

}  // namespace
