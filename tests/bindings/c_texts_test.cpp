// Texts through the C layer: UTF-16 in, buffer, capacity and length out.
#include <gtest/gtest.h>
#include <tavix/tavix_c.h>

#include <string>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

constexpr wchar_t kUntouched = L'?';

// What a call left in a buffer of this capacity, that was full of question marks.
struct Written {
  int code;
  int number;
  int length;
  std::wstring buffer;
};

class CTexts : public LibraryTest {
 protected:
  CTexts() { TavixC_Crt(2); }
  ~CTexts() override { TavixC_Del(2); }

  static Written Name(int key, int capacity) {
    Written written{0, -1, -1, std::wstring(40, kUntouched)};
    written.code = TavixC_GetPntNoNam(2, key, &written.number, written.buffer.data(), capacity,
                                      &written.length);
    return written;
  }
};

TEST_F(CTexts, ComeBackWhole) {
  ASSERT_EQ(0, TavixC_EntPnt(2, 1, 17, L"境界点 １", 0, 0));
  const Written written = Name(1, 40);
  EXPECT_EQ(0, written.code);
  EXPECT_EQ(17, written.number);
  EXPECT_EQ(5, written.length);
  EXPECT_EQ(std::wstring(L"境界点 １") + L'\0' + std::wstring(34, kUntouched), written.buffer);
}

TEST_F(CTexts, AreCutAtAWholeCharacterAndEnded) {
  ASSERT_EQ(0, TavixC_EntPnt(2, 1, 0, L"ab\U00020BB7cd", 0, 0));  // a pair after two letters
  const struct {
    int capacity;
    std::wstring kept;
  } rows[] = {{1, L""},
              {2, L"a"},
              {3, L"ab"},
              {4, L"ab"},
              {5, L"ab\U00020BB7"},
              {6, L"ab\U00020BB7c"},
              {7, L"ab\U00020BB7cd"},
              {8, L"ab\U00020BB7cd"}};
  for (const auto& row : rows) {
    const Written written = Name(1, row.capacity);
    EXPECT_EQ(0, written.code) << row.capacity;
    EXPECT_EQ(6, written.length) << row.capacity;
    const std::wstring ended = row.kept + L'\0';
    EXPECT_EQ(ended + std::wstring(40 - ended.size(), kUntouched), written.buffer) << row.capacity;
  }
}

TEST_F(CTexts, OfNoCapacityGiveTheLengthAlone) {
  ASSERT_EQ(0, TavixC_EntPnt(2, 1, 0, L"name", 0, 0));
  int number = 0;
  int length = 0;
  EXPECT_EQ(0, TavixC_GetPntNoNam(2, 1, &number, nullptr, 0, &length));
  EXPECT_EQ(4, length);
  const Written written = Name(1, -5);
  EXPECT_EQ(4, written.length);
  EXPECT_EQ(std::wstring(40, kUntouched), written.buffer);
}

TEST_F(CTexts, ThatAreNullAreEmpty) {
  ASSERT_EQ(0, TavixC_EntPnt(2, 1, 0, nullptr, 0, 0));
  EXPECT_EQ(0, Name(1, 40).length);
  ASSERT_EQ(0, TavixC_EntPntMem(2, 1, L"memo"));
  ASSERT_EQ(0, TavixC_EntPntMem(2, 1, nullptr)) << "an empty memo removes the one there is";
  int length = -1;
  EXPECT_EQ(0, TavixC_GetPntMem(2, 1, nullptr, 0, &length));
  EXPECT_EQ(0, length);
  EXPECT_EQ(0, TavixC_PntHanTtl(2, 1, nullptr));
}

TEST_F(CTexts, OfARefusedCallAreUntouched) {
  const Written written = Name(99, 40);
  EXPECT_EQ(-1, written.code);
  EXPECT_EQ(-1, written.number);
  EXPECT_EQ(-1, written.length);
  EXPECT_EQ(std::wstring(40, kUntouched), written.buffer);
}

TEST_F(CTexts, GoThroughEveryCallThatCarriesThem) {
  ASSERT_EQ(0, TavixC_EntPnt3(2, 5, 50, L"高さ", 1, 2, 3));
  ASSERT_EQ(0, TavixC_ChgPnt3NoNam(2, 5, 51, L"標高点"));
  wchar_t text[20];
  int number = 0;
  int length = 0;
  ASSERT_EQ(0, TavixC_GetPnt3NoNam(2, 5, &number, text, 20, &length));
  EXPECT_EQ(51, number);
  EXPECT_STREQ(L"標高点", text);
  ASSERT_EQ(0, TavixC_EntPnt(2, 5, 1, L"a", 0, 0));
  ASSERT_EQ(0, TavixC_ChgPntNoNam(2, 5, 2, L"bc"));
  ASSERT_EQ(0, TavixC_GetPntNoNam(2, 5, &number, text, 20, &length));
  EXPECT_EQ(2, number);
  EXPECT_STREQ(L"bc", text);
  ASSERT_EQ(0, TavixC_EntPntMem(2, 5, L"杭あり"));
  ASSERT_EQ(0, TavixC_GetPntMem(2, 5, text, 3, &length));
  EXPECT_EQ(3, length);
  EXPECT_STREQ(L"杭あ", text);
}

TEST_F(CTexts, OfTheLastErrorAreCutLikeAnyOther) {
  ASSERT_EQ(TAVIX_C_NO_SUCH_INSTANCE, TavixC_Drw(7, 0));
  wchar_t text[8];
  int length = 0;
  ASSERT_EQ(0, TavixC_LastError(text, 8, &length));
  EXPECT_STREQ(L"TavixC_", text);
  EXPECT_LT(30, length);
  EXPECT_EQ(TAVIX_C_NULL_OUTPUT, TavixC_LastError(text, 8, nullptr));
  EXPECT_EQ(TAVIX_C_NULL_OUTPUT, TavixC_LastError(nullptr, 8, &length));
}

}  // namespace
}  // namespace tavix::test
