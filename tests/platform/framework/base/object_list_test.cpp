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
  EXPECT_EQ(forwards, Items(backwards.rbegin(), backwards.rend()));
  EXPECT_EQ(static_cast<INT_PTR>(forwards.size()), list.GetCount());
  EXPECT_EQ(list.GetCount(), list.GetSize());
  EXPECT_EQ(forwards.empty() ? TRUE : FALSE, list.IsEmpty());
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
  EXPECT_EQ(Items(), Contents(list_));
  EXPECT_EQ(nullptr, list_.GetHeadPosition());
  EXPECT_EQ(nullptr, list_.GetTailPosition());
  EXPECT_EQ(nullptr, list_.Find(a_));
  EXPECT_EQ(nullptr, list_.FindIndex(0));
  list_.RemoveAll();
  EXPECT_EQ(Items(), Contents(list_));
}

TEST_F(ObjectList, GrowsAtBothEnds) {
  const POSITION b = list_.AddTail(b_);
  const POSITION a = list_.AddHead(a_);
  const POSITION c = list_.AddTail(c_);
  EXPECT_EQ((Items{a_, b_, c_}), Contents(list_));
  EXPECT_EQ(a, list_.GetHeadPosition());
  EXPECT_EQ(c, list_.GetTailPosition());
  EXPECT_EQ(b_, list_.GetAt(b));
  EXPECT_EQ(a_, list_.GetHead());
  EXPECT_EQ(c_, list_.GetTail());
  const CObList& fixed = list_;
  EXPECT_EQ(a_, fixed.GetHead());
  EXPECT_EQ(c_, fixed.GetTail());
  EXPECT_EQ(b_, fixed.GetAt(b));
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
  EXPECT_EQ(a_, list_.RemoveHead());
  EXPECT_EQ(c_, list_.RemoveTail());
  EXPECT_EQ(Items{b_}, Contents(list_));
  EXPECT_EQ(b_, list_.RemoveTail());
  EXPECT_EQ(Items(), Contents(list_));
  list_.AddHead(d_);
  EXPECT_EQ(d_, list_.RemoveHead());
  EXPECT_EQ(Items(), Contents(list_));
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
  EXPECT_EQ(Items(), Contents(list_));
}

TEST_F(ObjectList, InsertsAroundAPosition) {
  const POSITION b = list_.AddTail(b_);
  const POSITION a = list_.InsertBefore(b, a_);
  const POSITION d = list_.InsertAfter(b, d_);
  const POSITION c = list_.InsertBefore(d, c_);
  EXPECT_EQ((Items{a_, b_, c_, d_}), Contents(list_));
  EXPECT_EQ(a, list_.GetHeadPosition());
  EXPECT_EQ(d, list_.GetTailPosition());
  EXPECT_EQ(c_, list_.GetAt(c));
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
  EXPECT_EQ(place, list_.Find(null));
  EXPECT_EQ((Items{a_, null}), Contents(list_));
}

TEST_F(ObjectList, FindsTheNextEqualElementBehindAPosition) {
  const POSITION first = list_.AddTail(a_);
  list_.AddTail(b_);
  const POSITION second = list_.AddTail(a_);
  EXPECT_EQ(first, list_.Find(a_));
  EXPECT_EQ(second, list_.Find(a_, first));
  EXPECT_EQ(nullptr, list_.Find(a_, second));
  EXPECT_EQ(nullptr, list_.Find(b_, second));
  EXPECT_EQ(nullptr, list_.Find(c_));
}

TEST_F(ObjectList, FindsAnIndexInsideOnly) {
  const POSITION a = list_.AddTail(a_);
  const POSITION b = list_.AddTail(b_);
  EXPECT_EQ(a, list_.FindIndex(0));
  EXPECT_EQ(b, list_.FindIndex(1));
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
