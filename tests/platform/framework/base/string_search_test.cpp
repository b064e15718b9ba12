// CString: comparing, searching, parts.
#include <afx.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/base/text_printer.h"

namespace {

constexpr int kMost = 0x7FFFFFFF;
constexpr int kLeast = -kMost - 1;

int Sign(int value) { return (value > 0) - (value < 0); }

TEST(StringComparison, OrdersByCharacterValueAndWithoutCase) {
  static constexpr struct {
    LPCWSTR a;
    LPCWSTR b;
    int order;
    int order_without_case;
  } kRows[] = {
      {L"", L"", 0, 0},
      {L"", nullptr, 0, 0},
      {L"a", nullptr, 1, 1},
      {L"", L"a", -1, -1},
      {L"a", L"a", 0, 0},
      {L"a", L"b", -1, -1},
      {L"a", L"ab", -1, -1},
      {L"a", L"A", 1, 0},
      {L"B", L"a", -1, 1},
      {L"Z", L"_", -1, 1},  // as lower-case letters, which come after the underscore
      {L"T10", L"t9", -1, -1},
      {L"境界点", L"境界点", 0, 0},
      {L"境界点", L"境界線", -1, -1},
      {L"Ａ", L"ａ", -1, 0},  // full-width letters
      {L"\x8000", L"\x7FFF", 1, 1},
      {L"ÉTÉ", L"été", -1, 0},
  };
  for (const auto& row : kRows) {
    const CString a(row.a);
    const CString b(row.b);
    EXPECT_EQ(row.order, Sign(a.Compare(row.b))) << ::testing::PrintToString(a);
    EXPECT_EQ(-row.order, Sign(b.Compare(row.a))) << ::testing::PrintToString(a);
    EXPECT_EQ(row.order_without_case, Sign(a.CompareNoCase(row.b))) << ::testing::PrintToString(a);
    EXPECT_EQ(-row.order_without_case, Sign(b.CompareNoCase(row.a))) << ::testing::PrintToString(a);
    EXPECT_EQ(row.order == 0, a == b);
    EXPECT_EQ(row.order != 0, a != b);
    EXPECT_EQ(row.order < 0, a < b);
    EXPECT_EQ(row.order > 0, a > b);
    EXPECT_EQ(row.order <= 0, a <= b);
    EXPECT_EQ(row.order >= 0, a >= b);
    EXPECT_EQ(row.order == 0, a == row.b);
    EXPECT_EQ(row.order != 0, a != row.b);
    EXPECT_EQ(row.order < 0, a < row.b);
    EXPECT_EQ(row.order > 0, a > row.b);
    EXPECT_EQ(row.order <= 0, a <= row.b);
    EXPECT_EQ(row.order >= 0, a >= row.b);
    EXPECT_EQ(row.order == 0, row.a == b);
    EXPECT_EQ(row.order != 0, row.a != b);
    EXPECT_EQ(row.order < 0, row.a < b);
    EXPECT_EQ(row.order > 0, row.a > b);
    EXPECT_EQ(row.order <= 0, row.a <= b);
    EXPECT_EQ(row.order >= 0, row.a >= b);
  }
}

TEST(StringComparison, StopsAtTheFirstNul) {
  const CString text(L"a\0b", 3);
  const CString copy(text);
  EXPECT_TRUE(text == copy);
  EXPECT_TRUE(text == L"a");
  EXPECT_TRUE(L"a" == text);
  EXPECT_EQ(0, text.CompareNoCase(L"A"));
}

TEST(StringComparison, WithOneCharacter) {
  EXPECT_TRUE(CString(L"a") == L'a');
  EXPECT_TRUE(L'a' == CString(L"a"));
  EXPECT_FALSE(CString(L"ab") == L'a');
  EXPECT_TRUE(CString() != L'a');
  EXPECT_TRUE(L'b' != CString(L"a"));
}

TEST(StringComparison, LeavesBothSidesAsTheyWere) {
  const CString a(L"Ab");
  const CString b(L"aB");
  EXPECT_EQ(0, a.CompareNoCase(b));
  EXPECT_STREQ(L"Ab", a);
  EXPECT_STREQ(L"aB", b);
}

TEST(StringParts, AreClampedToTheString) {
  static constexpr struct {
    int first;
    int count;
    LPCWSTR mid;
  } kRows[] = {
      {0, 0, L""},
      {0, 2, L"01"},
      {1, 3, L"123"},
      {4, 1, L"4"},
      {4, 2, L"4"},
      {5, 1, L""},
      {6, 1, L""},
      {kMost, kMost, L""},
      {1, kMost, L"1234"},
      {-1, 2, L"01"},
      {kLeast, kMost, L"01234"},
      {2, -1, L""},
      {2, kLeast, L""},
      {0, 5, L"01234"},
  };
  const CString text(L"01234");
  for (const auto& row : kRows) {
    EXPECT_STREQ(row.mid, text.Mid(row.first, row.count)) << row.first << ", " << row.count;
  }
  EXPECT_STREQ(L"", CString().Mid(0, 3));
  EXPECT_STREQ(L"234", text.Mid(2));
  EXPECT_STREQ(L"01234", text.Mid(-2));
  EXPECT_STREQ(L"", text.Mid(5));
  EXPECT_STREQ(L"", text.Mid(99));
}

TEST(StringParts, LeftAndRightAreClampedToTheString) {
  static constexpr struct {
    int count;
    LPCWSTR left;
    LPCWSTR right;
  } kRows[] = {
      {0, L"", L""},           {1, L"0", L"4"},         {3, L"012", L"234"},
      {5, L"01234", L"01234"}, {6, L"01234", L"01234"}, {kMost, L"01234", L"01234"},
      {-1, L"", L""},          {kLeast, L"", L""},
  };
  const CString text(L"01234");
  for (const auto& row : kRows) {
    EXPECT_STREQ(row.left, text.Left(row.count)) << row.count;
    EXPECT_STREQ(row.right, text.Right(row.count)) << row.count;
    EXPECT_STREQ(L"", CString().Left(row.count));
    EXPECT_STREQ(L"", CString().Right(row.count));
  }
}

TEST(StringParts, SpanOfASetOfCharacters) {
  static constexpr struct {
    LPCWSTR text;
    LPCWSTR set;
    LPCWSTR including;
    LPCWSTR excluding;
  } kRows[] = {
      {L"", L"", L"", L""},
      {L"cabinet", L"abc", L"cab", L""},
      {L"cabinet", L"in", L"", L"cab"},
      {L"abc", L"abc", L"abc", L""},
      {L"abc", L"xyz", L"", L"abc"},
      {L"abc", L"", L"", L"abc"},
      {L"abc", nullptr, L"", L"abc"},
      {L"点12", L"点", L"点", L""},
      {L"12.5点", L".0123456789", L"12.5", L""},
  };
  for (const auto& row : kRows) {
    EXPECT_STREQ(row.including, CString(row.text).SpanIncluding(row.set));
    EXPECT_STREQ(row.excluding, CString(row.text).SpanExcluding(row.set));
  }
}

TEST(StringSearch, FindsACharacterFromAStart) {
  static constexpr struct {
    WCHAR ch;
    int start;
    int place;
  } kRows[] = {
      {L'a', 0, 0},   {L'a', 1, 3},  {L'a', 3, 3},      {L'a', 4, -1},
      {L'a', 5, -1},  {L'a', 6, -1}, {L'a', kMost, -1}, {L'a', kLeast, -1},
      {L'a', -1, -1}, {L'点', 0, 4}, {L'x', 0, -1},
  };
  const CString text(L"abca点");
  for (const auto& row : kRows) EXPECT_EQ(row.place, text.Find(row.ch, row.start)) << row.start;
  EXPECT_EQ(0, text.Find(L'a'));
  EXPECT_EQ(-1, CString().Find(L'a'));
  EXPECT_EQ(3, text.ReverseFind(L'a'));
  EXPECT_EQ(4, text.ReverseFind(L'点'));
  EXPECT_EQ(-1, text.ReverseFind(L'x'));
  EXPECT_EQ(-1, CString().ReverseFind(L'a'));
}

TEST(StringSearch, FindsATextFromAStart) {
  static constexpr struct {
    LPCWSTR text;
    int start;
    int place;
  } kRows[] = {
      {L"ab", 0, 0},       {L"ab", 1, 3}, {L"ab", 4, -1}, {L"bca", 0, 1},  {L"abcabd", 0, -1},
      {L"abcabcd", 0, -1}, {L"", 0, 0},   {L"", 3, 3},    {L"ab", 99, -1}, {L"ab", -1, -1},
      {L"abcabc", 0, 0},   {L"c", 5, 5},  {L"c", 6, -1},  {L"AB", 0, -1},  {nullptr, 0, 0},
  };
  const CString text(L"abcabc");
  for (const auto& row : kRows) EXPECT_EQ(row.place, text.Find(row.text, row.start)) << row.start;
  EXPECT_EQ(4, CString(L"no. 測量点").Find(L"測量"));
}

TEST(StringSearch, FindsTheFirstOfASet) {
  const CString text(L"12.5m");
  EXPECT_EQ(2, text.FindOneOf(L"m."));
  EXPECT_EQ(4, text.FindOneOf(L"m"));
  EXPECT_EQ(-1, text.FindOneOf(L"x"));
  EXPECT_EQ(-1, text.FindOneOf(L""));
  EXPECT_EQ(-1, text.FindOneOf(nullptr));
  EXPECT_EQ(-1, CString().FindOneOf(L"x"));
}

}  // namespace
