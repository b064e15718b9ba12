// CObList, call by call.
#include <afx.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

class Item : public CObject {};

using Items = std::vector<CObject*>;

// Forwards; backwards must give the same in reverse.
Items Contents(const CObList& list) {
  Items forwards;
  for (POSITION at = list.GetHeadPosition(); at;) forwards.push_back(list.GetNext(at));
  Items backwards;
  for (POSITION at = list.GetTailPosition(); at;) backwards.push_back(list.GetPrev(at));
  EXPECT_EQ(Items(backwards.rbegin(), backwards.rend()), forwards);
  EXPECT_EQ(list.GetCount(), static_cast<INT_PTR>(forwards.size()));
  EXPECT_EQ(list.GetSize(), list.GetCount());
  EXPECT_EQ(list.IsEmpty(), forwards.empty() ? TRUE : FALSE);
  return forwards;
}

class ObjectList : public ::testing::Test {
 protected:
  Item items_[6];
  CObject* const a_ = &items_[0];
  CObject* const b_ = &items_[1];
  CObject* const c_ = &items_[2];
  CObject* const d_ = &items_[3];
  CObList list_;
};

TEST_F(ObjectList, IsEmptyAtFirst) {
  EXPECT_EQ(Contents(list_), Items());
  EXPECT_EQ(nullptr, list_.GetHeadPosition());
  EXPECT_EQ(nullptr, list_.GetTailPosition());
  EXPECT_EQ(nullptr, list_.Find(a_));
  EXPECT_EQ(nullptr, list_.FindIndex(0));
  list_.RemoveAll();
  EXPECT_EQ(Contents(list_), Items());
}

TEST_F(ObjectList, GrowsAtBothEnds) {
  const POSITION b = list_.AddTail(b_);
  const POSITION a = list_.AddHead(a_);
  const POSITION c = list_.AddTail(c_);
  EXPECT_EQ((Items{a_, b_, c_}), Contents(list_));
  EXPECT_EQ(list_.GetHeadPosition(), a);
  EXPECT_EQ(list_.GetTailPosition(), c);
  EXPECT_EQ(list_.GetAt(b), b_);
  EXPECT_EQ(list_.GetHead(), a_);
  EXPECT_EQ(list_.GetTail(), c_);
  const CObList& fixed = list_;
  EXPECT_EQ(fixed.GetHead(), a_);
  EXPECT_EQ(fixed.GetTail(), c_);
  EXPECT_EQ(fixed.GetAt(b), b_);
}

TEST_F(ObjectList, TakesAnotherListsElementsInTheirOrder) {
  CObList more;
  more.AddTail(a_);
  more.AddTail(b_);
  list_.AddTail(c_);
  list_.AddHead(&more);
  EXPECT_EQ((Items{a_, b_, c_}), Contents(list_));
  list_.AddTail(&more);
  EXPECT_EQ((Items{a_, b_, c_, a_, b_}), Contents(list_));
  EXPECT_EQ((Items{a_, b_}), Contents(more));
  CObList none;
  list_.AddHead(&none);
  list_.AddTail(&none);
  EXPECT_EQ(5, list_.GetCount());
}

TEST_F(ObjectList, TakesItsOwnElementsOnce) {
  list_.AddTail(a_);
  list_.AddTail(b_);
  list_.AddTail(&list_);
  EXPECT_EQ((Items{a_, b_, a_, b_}), Contents(list_));
  list_.RemoveTail();
  list_.AddHead(&list_);
  EXPECT_EQ((Items{a_, b_, a_, a_, b_, a_}), Contents(list_));
}

TEST_F(ObjectList, ShrinksAtBothEnds) {
  for (CObject* item : {a_, b_, c_}) list_.AddTail(item);
  EXPECT_EQ(list_.RemoveHead(), a_);
  EXPECT_EQ(list_.RemoveTail(), c_);
  EXPECT_EQ(Items{b_}, Contents(list_));
  EXPECT_EQ(list_.RemoveTail(), b_);
  EXPECT_EQ(Contents(list_), Items());
  list_.AddHead(d_);
  EXPECT_EQ(list_.RemoveHead(), d_);
  EXPECT_EQ(Contents(list_), Items());
}

TEST_F(ObjectList, RemovesAtAPosition) {
  list_.AddTail(a_);
  const POSITION b = list_.AddTail(b_);
  const POSITION c = list_.AddTail(c_);
  list_.RemoveAt(b);
  EXPECT_EQ((Items{a_, c_}), Contents(list_));
  list_.RemoveAt(c);
  EXPECT_EQ(Items{a_}, Contents(list_));
  list_.RemoveAt(list_.GetHeadPosition());
  EXPECT_EQ(Contents(list_), Items());
}

TEST_F(ObjectList, InsertsAroundAPosition) {
  const POSITION b = list_.AddTail(b_);
  const POSITION a = list_.InsertBefore(b, a_);
  const POSITION d = list_.InsertAfter(b, d_);
  const POSITION c = list_.InsertBefore(d, c_);
  EXPECT_EQ((Items{a_, b_, c_, d_}), Contents(list_));
  EXPECT_EQ(list_.GetHeadPosition(), a);
  EXPECT_EQ(list_.GetTailPosition(), d);
  EXPECT_EQ(list_.GetAt(c), c_);
  list_.InsertAfter(a, d_);
  EXPECT_EQ((Items{a_, d_, b_, c_, d_}), Contents(list_));
}

TEST_F(ObjectList, InsertsAtTheEndsForNoPosition) {
  list_.InsertBefore(nullptr, b_);
  list_.InsertBefore(nullptr, a_);
  list_.InsertAfter(nullptr, c_);
  EXPECT_EQ((Items{a_, b_, c_}), Contents(list_));
}

TEST_F(ObjectList, ElementsAreReplacedInPlace) {
  const POSITION a = list_.AddTail(a_);
  list_.AddTail(b_);
  list_.AddTail(c_);
  list_.SetAt(a, d_);
  EXPECT_EQ((Items{d_, b_, c_}), Contents(list_));
  list_.GetAt(a) = c_;
  list_.GetTail() = a_;
  EXPECT_EQ((Items{c_, b_, a_}), Contents(list_));
  list_.GetHead() = a_;
  POSITION next = list_.GetHeadPosition();
  list_.GetNext(next);
  list_.GetNext(next) = d_;
  POSITION previous = list_.GetTailPosition();
  list_.GetPrev(previous) = b_;
  EXPECT_EQ((Items{a_, d_, b_}), Contents(list_));
}

TEST_F(ObjectList, HoldsNullLikeAnyOther) {
  CObject* const null = nullptr;
  list_.AddTail(a_);
  const POSITION place = list_.AddTail(null);
  EXPECT_EQ(list_.Find(null), place);
  EXPECT_EQ((Items{a_, null}), Contents(list_));
}

TEST_F(ObjectList, FindsTheNextEqualElementBehindAPosition) {
  const POSITION first = list_.AddTail(a_);
  list_.AddTail(b_);
  const POSITION second = list_.AddTail(a_);
  EXPECT_EQ(list_.Find(a_), first);
  EXPECT_EQ(list_.Find(a_, first), second);
  EXPECT_EQ(nullptr, list_.Find(a_, second));
  EXPECT_EQ(nullptr, list_.Find(b_, second));
  EXPECT_EQ(nullptr, list_.Find(c_));
}

TEST_F(ObjectList, FindsAnIndexInsideOnly) {
  const POSITION a = list_.AddTail(a_);
  const POSITION b = list_.AddTail(b_);
  EXPECT_EQ(list_.FindIndex(0), a);
  EXPECT_EQ(list_.FindIndex(1), b);
  for (INT_PTR outside : {INT_PTR{-1}, INT_PTR{2}, INT_PTR{1000000}}) {
    EXPECT_EQ(nullptr, list_.FindIndex(outside));
  }
}

// Any of these leaves the objects alone: the list never owned them.
TEST_F(ObjectList, NeverOwnsItsElements) {
  struct Counted : CObject {
    explicit Counted(int* count) : destroyed(count) {}
    ~Counted() override { ++*destroyed; }
    int* destroyed;
  };
  int destroyed = 0;
  {
    Counted object(&destroyed);
    {
      CObList list;
      list.AddTail(&object);
      list.RemoveAll();
      list.AddTail(&object);
      list.RemoveHead();
      list.AddTail(&object);
    }
    EXPECT_EQ(0, destroyed);
  }
  EXPECT_EQ(1, destroyed);
}

}  // namespace
