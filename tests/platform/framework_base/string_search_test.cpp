// CString: comparing, searching, parts.
#include <afx.h>
#include <gtest/gtest.h>

#include "tests/platform/framework_base/text_printer.h"

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
      {L"Z", L"_", -1, 1},  // as lower-case letters, which stand behind the underscore
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
    EXPECT_EQ(Sign(a.Compare(row.b)), row.order) << ::testing::PrintToString(a);
    EXPECT_EQ(Sign(b.Compare(row.a)), -row.order) << ::testing::PrintToString(a);
    EXPECT_EQ(Sign(a.CompareNoCase(row.b)), row.order_without_case) << ::testing::PrintToString(a);
    EXPECT_EQ(Sign(b.CompareNoCase(row.a)), -row.order_without_case) << ::testing::PrintToString(a);
    EXPECT_EQ(a == b, row.order == 0);
    EXPECT_EQ(a != b, row.order != 0);
    EXPECT_EQ(a < b, row.order < 0);
    EXPECT_EQ(a > b, row.order > 0);
    EXPECT_EQ(a <= b, row.order <= 0);
    EXPECT_EQ(a >= b, row.order >= 0);
    EXPECT_EQ(a == row.b, row.order == 0);
    EXPECT_EQ(a != row.b, row.order != 0);
    EXPECT_EQ(a < row.b, row.order < 0);
    EXPECT_EQ(a > row.b, row.order > 0);
    EXPECT_EQ(a <= row.b, row.order <= 0);
    EXPECT_EQ(a >= row.b, row.order >= 0);
    EXPECT_EQ(row.a == b, row.order == 0);
    EXPECT_EQ(row.a != b, row.order != 0);
    EXPECT_EQ(row.a < b, row.order < 0);
    EXPECT_EQ(row.a > b, row.order > 0);
    EXPECT_EQ(row.a <= b, row.order <= 0);
    EXPECT_EQ(row.a >= b, row.order >= 0);
  }
}

TEST(StringComparison, StopsAtTheFirstNul) {
  const CString text(L"a\0b", 3);
  const CString copy(text);
  EXPECT_TRUE(text == copy);
  EXPECT_TRUE(text == L"a");
  EXPECT_TRUE(L"a" == text);
  EXPECT_EQ(text.CompareNoCase(L"A"), 0);
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
  EXPECT_EQ(a.CompareNoCase(b), 0);
  EXPECT_STREQ(a, L"Ab");
  EXPECT_STREQ(b, L"aB");
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
    EXPECT_STREQ(text.Mid(row.first, row.count), row.mid) << row.first << ", " << row.count;
  }
  EXPECT_STREQ(CString().Mid(0, 3), L"");
  EXPECT_STREQ(text.Mid(2), L"234");
  EXPECT_STREQ(text.Mid(-2), L"01234");
  EXPECT_STREQ(text.Mid(5), L"");
  EXPECT_STREQ(text.Mid(99), L"");
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
    EXPECT_STREQ(text.Left(row.count), row.left) << row.count;
    EXPECT_STREQ(text.Right(row.count), row.right) << row.count;
    EXPECT_STREQ(CString().Left(row.count), L"");
    EXPECT_STREQ(CString().Right(row.count), L"");
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
    EXPECT_STREQ(CString(row.text).SpanIncluding(row.set), row.including);
    EXPECT_STREQ(CString(row.text).SpanExcluding(row.set), row.excluding);
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
  for (const auto& row : kRows) EXPECT_EQ(text.Find(row.ch, row.start), row.place) << row.start;
  EXPECT_EQ(text.Find(L'a'), 0);
  EXPECT_EQ(CString().Find(L'a'), -1);
  EXPECT_EQ(text.ReverseFind(L'a'), 3);
  EXPECT_EQ(text.ReverseFind(L'点'), 4);
  EXPECT_EQ(text.ReverseFind(L'x'), -1);
  EXPECT_EQ(CString().ReverseFind(L'a'), -1);
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
  for (const auto& row : kRows) EXPECT_EQ(text.Find(row.text, row.start), row.place) << row.start;
  EXPECT_EQ(CString(L"no. 測量点").Find(L"測量"), 4);
}

TEST(StringSearch, FindsTheFirstOfASet) {
  const CString text(L"12.5m");
  EXPECT_EQ(text.FindOneOf(L"m."), 2);
  EXPECT_EQ(text.FindOneOf(L"m"), 4);
  EXPECT_EQ(text.FindOneOf(L"x"), -1);
  EXPECT_EQ(text.FindOneOf(L""), -1);
  EXPECT_EQ(text.FindOneOf(nullptr), -1);
  EXPECT_EQ(CString().FindOneOf(L"x"), -1);
}

}  // namespace
