// CObList against std::list: the same random calls on both, every position remembered and checked.
#include <afx.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <list>
#include <random>
#include <vector>

namespace {

struct Item : CObject {};

// The list under test beside the model. A place is a position together with the model's iterator;
// the places of all elements present are kept from the time they were made.
class ListAndModel {
 public:
  ListAndModel(INT_PTR block_size, unsigned seed) : list_(block_size), random_(seed) {}

  void Step() {
    CObject* const item = &items_[Random(std::size(items_))];
    switch (Random(14)) {
      case 0:
      case 1:
        return Keep(list_.AddHead(item), model_.insert(model_.begin(), item));
      case 2:
      case 3:
        return Keep(list_.AddTail(item), model_.insert(model_.end(), item));
      case 4:
        if (places_.empty()) return;
        EXPECT_EQ(Forget(model_.begin()), list_.RemoveHead());
        return;
      case 5:
        if (places_.empty()) return;
        EXPECT_EQ(Forget(std::prev(model_.end())), list_.RemoveTail());
        return;
      case 6:
        return RemoveSomewhere();
      case 7:
      case 8:
        return InsertSomewhere(item);
      case 9:
        return ReplaceSomewhere(item);
      case 10:
        return FindBehindSomewhere(item);
      case 11:
        return FindIndex();
      case 12:
        if (Random(40) == 0) RemoveAll();
        return;
      default:
        return RemoveSomewhere();
    }
  }

  // The contents in both directions, and that each position still names its own element.
  void Check() const {
    ASSERT_EQ(static_cast<INT_PTR>(model_.size()), list_.GetCount());
    POSITION at = list_.GetHeadPosition();
    for (CObject* expected : model_) ASSERT_EQ(expected, list_.GetNext(at));
    ASSERT_EQ(nullptr, at);
    at = list_.GetTailPosition();
    for (auto it = model_.rbegin(); it != model_.rend(); ++it) ASSERT_EQ(*it, list_.GetPrev(at));
    ASSERT_EQ(nullptr, at);
    for (const Place& place : places_) ASSERT_EQ(*place.in_model, list_.GetAt(place.position));
  }

  [[nodiscard]] std::size_t Size() const { return places_.size(); }

 private:
  struct Place {
    POSITION position;
    std::list<CObject*>::iterator in_model;
  };

  std::size_t Random(std::size_t below) { return random_() % below; }
  Place& AnyPlace() { return places_[Random(places_.size())]; }

  void Keep(POSITION position, std::list<CObject*>::iterator in_model) {
    places_.push_back({position, in_model});
  }

  CObject* Forget(std::list<CObject*>::iterator in_model) {
    std::erase_if(places_, [=](const Place& place) { return place.in_model == in_model; });
    CObject* const item = *in_model;
    model_.erase(in_model);
    return item;
  }

  void RemoveSomewhere() {
    if (places_.empty()) return;
    const Place place = AnyPlace();
    list_.RemoveAt(place.position);
    Forget(place.in_model);
  }

  void InsertSomewhere(CObject* item) {
    if (places_.empty()) return;
    const Place place = AnyPlace();
    if (Random(2) == 0) {
      Keep(list_.InsertBefore(place.position, item), model_.insert(place.in_model, item));
    } else {
      Keep(list_.InsertAfter(place.position, item), model_.insert(std::next(place.in_model), item));
    }
  }

  void ReplaceSomewhere(CObject* item) {
    if (places_.empty()) return;
    const Place place = AnyPlace();
    list_.SetAt(place.position, item);
    *place.in_model = item;
  }

  void FindBehindSomewhere(CObject* item) {
    if (places_.empty()) return;
    const Place place = AnyPlace();
    const auto expected = std::find(std::next(place.in_model), model_.end(), item);
    const POSITION found = list_.Find(item, place.position);
    EXPECT_EQ(expected == model_.end(), found == nullptr);
    if (found) {
      EXPECT_EQ(PositionOf(expected), found);
    }
  }

  void FindIndex() {
    const std::size_t index = Random(model_.size() + 2);
    const POSITION found = list_.FindIndex(static_cast<INT_PTR>(index));
    EXPECT_EQ(index >= model_.size(), found == nullptr);
    if (found) {
      EXPECT_EQ(PositionOf(std::next(model_.begin(), static_cast<std::ptrdiff_t>(index))), found);
    }
  }

  void RemoveAll() {
    list_.RemoveAll();
    model_.clear();
    places_.clear();
  }

  [[nodiscard]] POSITION PositionOf(std::list<CObject*>::iterator in_model) const {
    for (const Place& place : places_) {
      if (place.in_model == in_model) return place.position;
    }
    return nullptr;
  }

  Item items_[7];
  CObList list_;
  std::list<CObject*> model_;
  std::vector<Place> places_;
  std::mt19937 random_;
};

class ObjectListModel : public ::testing::TestWithParam<INT_PTR> {};

TEST_P(ObjectListModel, BehavesAsTheModelAndKeepsItsPositions) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    ListAndModel pair(GetParam(), seed);
    std::size_t longest = 0;
    for (int step = 0; step < 3000; ++step) {
      pair.Step();
      longest = std::max(longest, pair.Size());
      pair.Check();
      ASSERT_FALSE(HasFailure()) << "seed " << seed << ", step " << step;
    }
    EXPECT_GT(longest, 15U);  // else the sequence has shown little
  }
}

INSTANTIATE_TEST_SUITE_P(BlockSizes, ObjectListModel, ::testing::Values(-5, 0, 1, 2, 10, 1000));

}  // namespace
