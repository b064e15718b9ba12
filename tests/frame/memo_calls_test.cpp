// Memos: a text for a point key.
#include <tavix/tavix.h>

#include "tests/support/device_records.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using Memos = std::vector<MemoRecord>;

class MemoCalls : public InstanceTest {
 protected:
  static std::wstring Memo(int key) {
    CString memo = L"(untouched)";
    EXPECT_EQ(0, Tavix_GetPntMem(key, &memo));
    return memo.GetString();
  }
};

TEST_F(MemoCalls, WithoutAnInstance) {
  Tavix_Del();
  EXPECT_EQ(-1, Tavix_EntPntMem(1, L"memo"));
  EXPECT_EQ(L"", Memo(1));
}

TEST_F(MemoCalls, NeedNoPoint) {
  EXPECT_EQ(0, Tavix_EntPntMem(1, L"境界標"));
  EXPECT_EQ(0, Tavix_EntPntMem(-5, L"second"));
  EXPECT_EQ(L"境界標", Memo(1));
  EXPECT_EQ(L"second", Memo(-5));
  EXPECT_EQ(L"", Memo(2));
}

TEST_F(MemoCalls, OfOneKeyIsReplacedInPlace) {
  for (const wchar_t* text : {L"a", L"a much longer one than before", L"b"}) {
    EXPECT_EQ(0, Tavix_EntPntMem(7, text));
    EXPECT_EQ((Memos{{7, text}}), MemosOnDevice());
    EXPECT_EQ(text, Memo(7));
  }
}

TEST_F(MemoCalls, AnEmptyTextDeletesAndIsKeptWhereThereIsNone) {
  EXPECT_EQ(0, Tavix_EntPntMem(7, L""));
  EXPECT_EQ((Memos{{7, L""}}), MemosOnDevice()) << "kept";
  EXPECT_EQ(L"", Memo(7));
  EXPECT_EQ(0, Tavix_EntPntMem(7, L""));
  EXPECT_TRUE(MemosOnDevice().empty()) << "an empty memo is a memo: deleted";
  EXPECT_EQ(0, Tavix_EntPntMem(7, L"text"));
  EXPECT_EQ(0, Tavix_EntPntMem(7, L""));
  EXPECT_TRUE(MemosOnDevice().empty());
  EXPECT_EQ(L"", Memo(7));
}

TEST_F(MemoCalls, KeepSixteenBitsOfAKey) {
  EXPECT_EQ(0, Tavix_EntPntMem(70000, L"far"));
  EXPECT_EQ((Memos{{4464, L"far"}}), MemosOnDevice());
  EXPECT_EQ(L"far", Memo(4464));
  EXPECT_EQ(L"far", Memo(70000));
  EXPECT_EQ(0, Tavix_EntPntMem(4464, L"near"));
  EXPECT_EQ(L"near", Memo(70000));
}

TEST_F(MemoCalls, KeepLongTexts) {
  const std::wstring text(20'000, L'測');
  EXPECT_EQ(0, Tavix_EntPntMem(1, text.c_str()));
  EXPECT_EQ(text, Memo(1));
}

TEST_F(MemoCalls, GoWithThePoint) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"P", 0.0, 0.0));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  ASSERT_EQ(0, Tavix_EntPntMem(2, L"other"));
  EXPECT_EQ(0, Tavix_DelEntPnt(1));
  EXPECT_EQ((Memos{{2, L"other"}}), MemosOnDevice());
}

TEST_F(MemoCalls, GoEvenWithAPointThatIsNotThere) {
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  EXPECT_EQ(-1, Tavix_DelEntPnt(1));
  EXPECT_EQ(L"", Memo(1));
  EXPECT_TRUE(MemosOnDevice().empty());
}

TEST_F(MemoCalls, StayWhenAPointWithAHeightGoes) {
  ASSERT_EQ(0, Tavix_EntPnt3(1, 1, L"P", 0.0, 0.0, 0.0));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  EXPECT_EQ(0, Tavix_DelEntPnt3(1));
  EXPECT_EQ(L"memo", Memo(1));
}

TEST_F(MemoCalls, StayWhenAPointIsEnteredAnew) {
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"P", 0.0, 0.0));
  ASSERT_EQ(0, Tavix_EntPntMem(1, L"memo"));
  ASSERT_EQ(0, Tavix_EntPnt(1, 2, L"Q", 1.0, 1.0));
  EXPECT_EQ(L"memo", Memo(1));
}

}  // namespace
}  // namespace tavix::test
