// CString as a value: construction, copies, moves, sharing, joining, conversions, direct writing.
#include <afx.h>
#include <gtest/gtest.h>

#include <cwchar>
#include <string>
#include <type_traits>
#include <utility>

#include "tests/platform/framework/base/text_printer.h"

namespace {

constexpr LPCWSTR kLong = L"測量 - a text that is longer than any small buffer would be - 測量";

static_assert(sizeof(CString) == sizeof(void*), "crosses DLL borders by value as one pointer");
static_assert(std::is_nothrow_move_constructible_v<CString>);
static_assert(std::is_nothrow_move_assignable_v<CString>);

// Usable in every way a fresh empty string is.
void ExpectEmptyAndUsable(CString& text) {
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(0, text.GetLength());
  EXPECT_STREQ(L"", text);
  const CString copy(text);
  EXPECT_EQ(text, copy);
  text.MakeUpper().MakeReverse().Trim();
  text += L"x";
  EXPECT_EQ(L"x", text);
  text = copy;
  EXPECT_STREQ(L"", text);
}

TEST(String, IsEmptyFromNothingAndFromNull) {
  CString fresh;
  CString wide(static_cast<LPCWSTR>(nullptr));
  CString narrow(static_cast<LPCSTR>(nullptr));
  CString counted(nullptr, 5);
  CString none(L"abc", 0);
  CString negative(L"abc", -1);
  CString never(L'x', 0);
  CString less(L'x', -3);
  for (CString* text : {&fresh, &wide, &narrow, &counted, &none, &negative, &never, &less}) {
    ExpectEmptyAndUsable(*text);
  }
}

TEST(String, BecomesEmptyByAssigningNull) {
  CString text(kLong);
  text = static_cast<LPCWSTR>(nullptr);
  ExpectEmptyAndUsable(text);
  text = kLong;
  text = static_cast<LPCSTR>(nullptr);
  ExpectEmptyAndUsable(text);
  text = kLong;
  text = "";
  ExpectEmptyAndUsable(text);
  text = kLong;
  text.Empty();
  ExpectEmptyAndUsable(text);
}

TEST(String, IsMadeFromTextCharactersAndLength) {
  EXPECT_STREQ(kLong, CString(kLong));
  EXPECT_STREQ(L"abc", CString(L"abcdef", 3));
  EXPECT_STREQ(L"点", CString(L'点'));
  EXPECT_STREQ(L"bbbb", CString(L'b', 4));
  CString text;
  text = L'z';
  EXPECT_STREQ(L"z", text);
  EXPECT_EQ(1, text.GetLength());
}

TEST(String, KeepsANulInsideItsLength) {
  const CString text(L"a\0b", 3);
  EXPECT_EQ(3, text.GetLength());
  EXPECT_EQ(L'b', text[2]);
  EXPECT_EQ(CString(text), text);
  EXPECT_EQ(4, (text + L"c").GetLength());
}

TEST(String, IsConvertedFromTheAnsiCodePage) {
  // The expected result is the system's own conversion, which depends on the code page.
  static constexpr LPCSTR kRows[] = {"", "a", "Tavix 1.0", "\x93\x5F", "\xE9t\xE9", "\xFF\xFE\x80"};
  for (LPCSTR narrow : kRows) {
    WCHAR expected[32];
    ASSERT_GT(MultiByteToWideChar(CP_ACP, 0, narrow, -1, expected, 32), 0);
    EXPECT_STREQ(expected, CString(narrow));
    CString assigned(kLong);
    assigned = narrow;
    EXPECT_STREQ(expected, assigned);
    EXPECT_EQ(static_cast<int>(std::wstring(expected).size()), assigned.GetLength());
  }
}

TEST(String, CopiesShareTheirCharactersUntilOneChanges) {
  const CString original(kLong);
  CString copy(original);
  CString assigned;
  assigned = original;
  EXPECT_EQ(original.GetString(), copy.GetString());
  EXPECT_EQ(original.GetString(), assigned.GetString());
  copy.SetAt(0, L'X');
  EXPECT_NE(original.GetString(), copy.GetString());
  EXPECT_EQ(original.GetString(), assigned.GetString());
  EXPECT_EQ(L'X', copy[0]);
  EXPECT_STREQ(kLong, original);
}

// Every call that changes a string in place leaves the copies of it alone.
TEST(String, ChangesOfACopyDoNotReachTheOriginal) {
  using Change = void (*)(CString&);
  static constexpr Change kChanges[] = {
      [](CString& s) { s.SetAt(1, L'X'); },
      [](CString& s) { s += L"tail"; },
      [](CString& s) { s += L'x'; },
      [](CString& s) { s.MakeUpper(); },
      [](CString& s) { s.MakeLower(); },
      [](CString& s) { s.MakeReverse(); },
      [](CString& s) { s.Trim(); },
      [](CString& s) { s.TrimLeft(L" A"); },
      [](CString& s) { s.TrimRight(L' '); },
      [](CString& s) { s.Replace(L'b', L'c'); },
      [](CString& s) { s.Replace(L"bB", L""); },
      [](CString& s) { s.Remove(L'B'); },
      [](CString& s) { s.Insert(0, L'x'); },
      [](CString& s) { s.Insert(2, L"xyz"); },
      [](CString& s) { s.Delete(1, 2); },
      [](CString& s) { s.Format(L"%d", 1); },
      [](CString& s) { s.AppendFormat(L"%d", 1); },
      [](CString& s) { s.GetBuffer(100)[0] = L'X'; },
      [](CString& s) { s.GetBufferSetLength(2)[0] = L'X'; },
      [](CString& s) { s.Empty(); },
      [](CString& s) { s = L"other"; },
      [](CString& s) { s = "other"; },
  };
  for (const Change& change : kChanges) {
    const CString original(L" AbBz ");
    CString copy(original);
    change(copy);
    EXPECT_STREQ(L" AbBz ", original) << &change - kChanges;
    EXPECT_EQ(6, original.GetLength());
    EXPECT_NE(original, copy) << &change - kChanges;
  }
}

TEST(String, MovedFromIsEmptyAndUsable) {
  CString from(kLong);
  const LPCWSTR characters = from;
  CString to(std::move(from));
  EXPECT_EQ(characters, to.GetString());
  ExpectEmptyAndUsable(from);

  CString target(L"old");
  target = std::move(to);
  EXPECT_EQ(characters, target.GetString());
  to = L"again";  // a moved-from string can be assigned
  EXPECT_STREQ(L"again", to);
  EXPECT_STREQ(kLong, target);
}

TEST(String, SurvivesAssignmentToItself) {
  CString text(kLong);
  CString& same = text;
  text = same;
  EXPECT_STREQ(kLong, text);
  text = std::move(same);
  EXPECT_STREQ(kLong, text);
  text = text.GetString();
  EXPECT_STREQ(kLong, text);
}

TEST(String, TakesPartsOfItselfAsArguments) {
  CString text(L"abc");
  text = static_cast<LPCWSTR>(text) + 1;
  EXPECT_STREQ(L"bc", text);
  text += text;
  EXPECT_STREQ(L"bcbc", text);
  text += text.GetString() + 2;
  EXPECT_STREQ(L"bcbcbc", text);
  text += text[0];
  EXPECT_STREQ(L"bcbcbcb", text);
  text = L"ab";
  EXPECT_EQ(4, text.Insert(0, text));
  EXPECT_STREQ(L"abab", text);
  EXPECT_EQ(7, text.Insert(1, text.GetString() + 1));
  EXPECT_STREQ(L"ababbab", text);
  EXPECT_EQ(3, text.Replace(text.GetString() + 5, text));  // each "ab" by the whole
  EXPECT_STREQ(
      L"ababbab"
      L"ababbab"
      L"b"
      L"ababbab",
      text);
}

// Room behind the end is used for the next piece; the piece may lie in the same block.
TEST(String, GrowsByItselfAgainAndAgain) {
  CString text(L"0123");
  std::wstring expected = L"0123";
  for (int i = 0; i < 12; ++i) {
    text += text;
    expected += expected;
    text += text.GetString() + i;
    expected += expected.substr(static_cast<std::size_t>(i));
    ASSERT_EQ(static_cast<int>(expected.size()), text.GetLength());
    ASSERT_STREQ(expected.c_str(), text);
  }
}

TEST(String, PiecesAreAppendedWithoutReachingCopies) {
  CString text(L"ab");
  text += L"cdefgh";  // leaves room
  const CString copy(text);
  text += L"1";
  EXPECT_STREQ(L"abcdefgh", copy);
  EXPECT_STREQ(L"abcdefgh1", text);
}

TEST(String, IsJoinedFromEveryKindOfPiece) {
  const CString a(L"a");
  EXPECT_STREQ(L"ab", a + CString(L"b"));
  EXPECT_STREQ(L"ab", a + L"b");
  EXPECT_STREQ(L"ba", L"b" + a);
  EXPECT_STREQ(L"ab", a + L'b');
  EXPECT_STREQ(L"ba", L'b' + a);
  EXPECT_STREQ(L"a", a + static_cast<LPCWSTR>(nullptr));
  EXPECT_STREQ(L"a", static_cast<LPCWSTR>(nullptr) + a);
  EXPECT_STREQ(L"", CString() + CString());
  EXPECT_STREQ(L"abca", a + L"b" + L'c' + a);
  EXPECT_STREQ(L"a", a);
}

TEST(String, GivesDirectAccessToItsBuffer) {
  CString text(L"abc");
  LPWSTR buffer = text.GetBuffer(10);
  EXPECT_STREQ(L"abc", buffer);
  std::wcscpy(buffer, L"0123456789");
  text.ReleaseBuffer();
  EXPECT_EQ(10, text.GetLength());
  text.GetBuffer()[4] = L'\0';
  EXPECT_EQ(10, text.GetLength());  // known only after ReleaseBuffer
  text.ReleaseBuffer();
  EXPECT_EQ(4, text.GetLength());
  text.GetBuffer();
  text.ReleaseBuffer(2);
  EXPECT_STREQ(L"01", text);
  text.GetBuffer();
  text.ReleaseBuffer(0);
  ExpectEmptyAndUsable(text);
}

TEST(String, FindsTheEndOfABufferFilledToTheBrim) {
  CString text;
  LPWSTR buffer = text.GetBuffer(4);
  for (int i = 0; i < 4; ++i) buffer[i] = L'x';
  text.ReleaseBuffer();
  EXPECT_STREQ(L"xxxx", text);
  text.GetBuffer(4);
  text.ReleaseBuffer(4000);  // more than there is room for
  EXPECT_STREQ(L"xxxx", text);
}

TEST(String, SetsTheLengthOfItsBuffer) {
  CString text(L"abc");
  LPWSTR buffer = text.GetBufferSetLength(5);
  EXPECT_EQ(5, text.GetLength());
  EXPECT_EQ(L'\0', buffer[5]);
  EXPECT_EQ(L"abc", text.Left(3));
  buffer[3] = L'd';
  buffer[4] = L'e';
  EXPECT_STREQ(L"abcde", text);
  text.GetBufferSetLength(2);
  EXPECT_STREQ(L"ab", text);
  text.GetBufferSetLength(0);
  ExpectEmptyAndUsable(text);
}

TEST(String, GivesItsCharactersByIndexAndAsAPointer) {
  CString text(L"点abc");
  EXPECT_EQ(L'点', text.GetAt(0));
  EXPECT_EQ(L'c', text[3]);
  EXPECT_EQ(L'\0', text[4]);
  text.SetAt(3, L'd');
  const LPCWSTR characters = text;
  EXPECT_STREQ(L"点abd", characters);
}

}  // namespace
