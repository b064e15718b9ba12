// Long random sequences of calls: the store must do what the plain model does.
#include <random>

#include "tests/platform/objectstore/store_fixture.h"
#include "tests/platform/objectstore/store_model.h"

namespace tavix {
namespace {

constexpr std::uint16_t kNumber = 1;
constexpr std::uint16_t kText = 2;
constexpr PropertyId kNumberId(kNumber, PropertyType::kI2);
constexpr PropertyId kTextId(kText, PropertyType::kString);

// Runs calls through the store and the model, and compares what they find.
class Pair {
 public:
  Pair(std::uint32_t seed, bool descending, bool unknown_first)
      : random_(seed), descending_(descending), unknown_first_(unknown_first) {
    const std::array<SortOrder, 2> orders = {Order(kNumberId), Order(kTextId)};
    database_ = store_.CreateDatabase(u"random", 0, orders).value;
    for (std::size_t i = 0; i < 3; ++i) Reopen(i);
  }

  void Step() {
    const std::size_t i = Below(handles_.size());
    const std::uint32_t dice = Below(100);
    if (dice < 30) {
      AddRecord(i);
    } else if (dice < 40) {
      ChangeRecord(i);
    } else if (dice < 55) {
      DeleteRecord(i);
    } else if (dice < 57) {
      Reopen(i);
    } else if (dice < 75) {
      Step(i);
    } else {
      SeekValue(i);
    }
  }

  void CheckEverything() {
    for (std::size_t i = 0; i < handles_.size(); ++i) {
      const std::vector<ObjectId> sorted = model_.Sorted(cursors_[i].order);
      const StoreHandle handle = store_.Open(database_, IdOf(i), false).value;
      for (std::uint32_t at = 0; at < sorted.size(); ++at) {
        ASSERT_EQ(sorted[at], store_.Seek(handle, SeekTarget::To(kBeginning, at), nullptr).value);
        ExpectRecord(store_.Read(handle).value);
      }
      ASSERT_FALSE(store_.Seek(
          handle, SeekTarget::To(kBeginning, static_cast<std::int64_t>(sorted.size())), nullptr));
      store_.Close(handle);
      CheckCursor(i);
    }
  }

 private:
  [[nodiscard]] SortOrder Order(PropertyId id) const {
    return {.property = id, .descending = descending_, .unknown_first = unknown_first_};
  }
  [[nodiscard]] PropertyId IdOf(std::size_t i) const {
    return cursors_[i].order.by_text ? kTextId : kNumberId;
  }
  std::uint32_t Below(std::size_t end) { return static_cast<std::uint32_t>(random_() % end); }

  ModelRecord RandomRecord() {
    ModelRecord record;
    if (Below(8) != 0) record.number = static_cast<std::int16_t>(Below(20)) - 10;
    if (Below(8) != 0) record.text = RandomText();
    return record;
  }
  // Short ones and ones that differ only past the fourth character.
  std::u16string RandomText() {
    const std::u16string start = Below(2) == 0 ? u"LINE" : u"";
    return start + std::u16string(Below(3), static_cast<char16_t>(u'a' + Below(3)));
  }
  static std::vector<Property> Written(const ModelRecord& record) {
    std::vector<Property> properties;
    properties.push_back(record.number ? Property::I2(kNumber, *record.number)
                                       : Property::Removal(kNumberId));
    properties.push_back(record.text ? Property::String(kText, *record.text)
                                     : Property::Removal(kTextId));
    return properties;
  }

  void Reopen(std::size_t i) {
    if (handles_[i] != 0) store_.Close(handles_[i]);
    cursors_[i].order = {Below(2) == 0, descending_, unknown_first_};
    handles_[i] = store_.Open(database_, IdOf(i), false).value;
    const std::vector<ObjectId> sorted = model_.Sorted(cursors_[i].order);
    StandAt(i, sorted, 0);
    CheckCursor(i);
  }

  void AddRecord(std::size_t i) {
    const ModelRecord record = RandomRecord();
    const ObjectId id = store_.Write(handles_[i], 0, Written(record)).value;
    ASSERT_NE(0U, id);
    model_.records[id] = record;
    StandOn(i, id);
  }

  void ChangeRecord(std::size_t i) {
    if (model_.records.empty()) return;
    const ObjectId id = AnyRecord();
    const ModelRecord record = RandomRecord();
    ASSERT_EQ(id, store_.Write(handles_[i], id, Written(record)).value);
    for (ModelCursor& cursor : cursors_) {
      const ModelRecord& old = model_.records[id];
      const bool moves =
          cursor.order.by_text ? old.text != record.text : old.number != record.number;
      if (moves && cursor.deleted && cursor.record == id) cursor.record = Behind(cursor, id);
    }
    model_.records[id] = record;
    StandOn(i, id);
  }

  void DeleteRecord(std::size_t i) {
    if (model_.records.empty()) return;
    const ObjectId id = AnyRecord();
    ASSERT_EQ(StoreError::kNone, store_.DeleteRecord(handles_[i], id));
    for (ModelCursor& cursor : cursors_) {
      if (cursor.record != id) continue;
      cursor.record = Behind(cursor, id);
      cursor.deleted = true;
    }
    model_.records.erase(id);
    CheckCursor(i);
  }

  // One seek by place.
  void Step(std::size_t i) {
    const std::vector<ObjectId> sorted = model_.Sorted(cursors_[i].order);
    const auto size = static_cast<std::int64_t>(sorted.size());
    const auto offset = static_cast<std::int64_t>(Below(sorted.size() + 2));
    const std::int64_t step = static_cast<std::int64_t>(Below(7)) - 3;
    const ModelCursor& cursor = cursors_[i];
    std::int64_t to = 0;
    SeekTarget target;
    switch (Below(3)) {
      case 0:
        target = SeekTarget::To(kBeginning, offset);
        to = offset;
        break;
      case 1:
        target = SeekTarget::To(kEnd, offset);
        to = size - 1 - offset;
        break;
      default:
        if (cursor.deleted && step == 0) return;
        target = SeekTarget::To(kCurrent, step);
        to = IndexOf(i, sorted) + step - (cursor.deleted && step > 0 ? 1 : 0);
    }
    Compare(i, target, sorted, to);
  }

  void SeekValue(std::size_t i) {
    const ModelOrder order = cursors_[i].order;
    const std::vector<ObjectId> sorted = model_.Sorted(order);
    // The value to find is a record of the model during the comparison.
    constexpr ObjectId kProbe = 0xFFFFFFFF;
    const std::u16string text = RandomText();
    const auto number = static_cast<std::int16_t>(static_cast<int>(Below(24)) - 12);
    StoreModel with_probe = model_;
    with_probe.records[kProbe] = {number, text};
    const auto side = [&](ObjectId id) { return with_probe.Compare(order, id, kProbe); };
    const auto known = [&](ObjectId id) {
      const ModelRecord& record = model_.records.at(id);
      return order.by_text ? record.text.has_value() : record.number.has_value();
    };
    const auto first = [&](auto wanted) {
      return std::ranges::find_if(sorted, [&](ObjectId id) { return known(id) && wanted(id); }) -
             sorted.begin();
    };
    const Property value =
        order.by_text ? Property::String(kText, text) : Property::I2(kNumber, number);
    std::int64_t to = 0;
    SeekTarget::Kind kind = kFirstEqual;
    switch (Below(4)) {
      case 0:
        to = first([&](ObjectId id) { return side(id) == 0; });
        break;
      case 1:
        kind = kGreater;
        to = first([&](ObjectId id) { return side(id) >= 0; });
        break;
      case 2: {
        kind = kSmaller;
        std::optional<ObjectId> nearest;
        for (const ObjectId id : sorted) {
          if (known(id) && side(id) < 0) nearest = id;
        }
        to = nearest ? first([&](ObjectId id) { return model_.Compare(order, id, *nearest) == 0; })
                     : -1;
        break;
      }
      default: {
        kind = kNextEqual;
        const ModelCursor& cursor = cursors_[i];
        to = IndexOf(i, sorted) + (cursor.record && !cursor.deleted ? 1 : 0);
        const bool inside = to < static_cast<std::int64_t>(sorted.size());
        if (inside && side(sorted[static_cast<std::size_t>(to)]) != 0) to = -1;
      }
    }
    Compare(i, SeekTarget::ToValue(kind, value), sorted, to);
  }

  void Compare(std::size_t i, const SeekTarget& target, const std::vector<ObjectId>& sorted,
               std::int64_t to) {
    std::uint32_t index = 0;
    const Outcome<ObjectId> found = store_.Seek(handles_[i], target, &index);
    StandAt(i, sorted, to);
    ASSERT_EQ(cursors_[i].record.value_or(0), found.value) << static_cast<int>(target.kind);
    if (found) {
      ASSERT_EQ(to, index);
    }
    CheckCursor(i);
  }

  void CheckCursor(std::size_t i) {
    const Outcome<RecordView> view = store_.Read(handles_[i]);
    if (cursors_[i].deleted) {
      ASSERT_EQ(StoreError::kDeleted, view.error);
    } else if (!cursors_[i].record) {
      ASSERT_EQ(StoreError::kNoMoreItems, view.error);
    } else {
      ASSERT_EQ(*cursors_[i].record, view.value.id);
    }
  }

  void ExpectRecord(const RecordView& view) {
    const ModelRecord& record = model_.records.at(view.id);
    const Property* number = FindProperty(view.properties, kNumberId);
    const Property* text = FindProperty(view.properties, kTextId);
    ASSERT_EQ(record.number.has_value(), number != nullptr);
    ASSERT_EQ(record.text.has_value(), text != nullptr);
    if (number) {
      ASSERT_EQ(*record.number, number->AsI2());
    }
    if (text) {
      ASSERT_EQ(*record.text, text->AsString());
    }
  }

  ObjectId AnyRecord() {
    return std::next(model_.records.begin(), Below(model_.records.size()))->first;
  }
  // The index of the cursor's record, or of the end.
  std::int64_t IndexOf(std::size_t i, const std::vector<ObjectId>& sorted) {
    if (!cursors_[i].record) return static_cast<std::int64_t>(sorted.size());
    return std::ranges::find(sorted, *cursors_[i].record) - sorted.begin();
  }
  std::optional<ObjectId> Behind(const ModelCursor& cursor, ObjectId id) {
    const std::vector<ObjectId> sorted = model_.Sorted(cursor.order);
    const auto next = std::next(std::ranges::find(sorted, id));
    if (next == sorted.end()) return std::nullopt;
    return *next;
  }
  void StandOn(std::size_t i, ObjectId id) {
    cursors_[i].record = id;
    cursors_[i].deleted = false;
  }
  void StandAt(std::size_t i, const std::vector<ObjectId>& sorted, std::int64_t at) {
    cursors_[i].deleted = false;
    const bool inside = at >= 0 && at < static_cast<std::int64_t>(sorted.size());
    cursors_[i].record =
        inside ? std::optional(sorted[static_cast<std::size_t>(at)]) : std::nullopt;
  }

  std::mt19937 random_;
  bool descending_;
  bool unknown_first_;
  MemoryStore store_;
  StoreModel model_;
  ObjectId database_ = 0;
  std::array<StoreHandle, 3> handles_{};
  std::array<ModelCursor, 3> cursors_{};
};

TEST(RandomSequence, TheStoreDoesWhatThePlainModelDoes) {
  for (const bool descending : {false, true}) {
    for (const bool unknown_first : {false, true}) {
      SCOPED_TRACE(testing::Message() << descending << unknown_first);
      Pair pair(descending ? 11U : 12U, descending, unknown_first);
      for (int step = 0; step < 1500; ++step) {
        pair.Step();
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "step " << step;
        if (step % 250 == 249) pair.CheckEverything();
      }
    }
  }
}

}  // namespace
}  // namespace tavix
