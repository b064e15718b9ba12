// The object store beside its model, for sequences of calls that something else chooses: a random
// generator, or the bytes of a fuzzer.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/objectstore/memory_store.h"
#include "tests/platform/objectstore/store_model.h"

namespace tavix {

// Runs the same calls through the store and the model, and compares what they find. What differs
// throws std::logic_error.
class StorePair {
 public:
  // `dice` gives the numbers that choose the calls and their values.
  using Dice = std::function<std::uint32_t()>;

  StorePair(Dice dice, bool descending, bool unknown_first)
      : dice_(std::move(dice)), descending_(descending), unknown_first_(unknown_first) {
    const std::array<SortOrder, 2> orders = {Order(kNumberId), Order(kTextId)};
    database_ = store_.CreateDatabase(u"random", 0, orders).value;
    for (std::size_t i = 0; i < 3; ++i) Reopen(i);
  }

  // One call.
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

  // Walks through all records in the order of each handle.
  void CheckEverything() {
    for (std::size_t i = 0; i < handles_.size(); ++i) {
      const std::vector<ObjectId> sorted = model_.Sorted(cursors_[i].order);
      const StoreHandle handle = store_.Open(database_, IdOf(i), false).value;
      for (std::uint32_t at = 0; at < sorted.size(); ++at) {
        Require(sorted[at] == store_.Seek(handle, SeekTarget::To(kBeginning, at), nullptr).value,
                "order");
        ExpectRecord(store_.Read(handle).value);
      }
      const auto end = SeekTarget::To(kBeginning, static_cast<std::int64_t>(sorted.size()));
      Require(!store_.Seek(handle, end, nullptr), "number of records");
      store_.Close(handle);
      CheckCursor(i);
    }
  }

 private:
  using enum SeekTarget::Kind;
  static constexpr std::uint16_t kNumber = 1;
  static constexpr std::uint16_t kText = 2;
  static constexpr std::uint16_t kOther = 3;  // and the next
  static constexpr PropertyId kNumberId{kNumber, PropertyType::kI2};
  static constexpr PropertyId kTextId{kText, PropertyType::kString};

  static void Require(bool holds, const char* what) {
    if (!holds) throw std::logic_error(std::string("the store differs: ") + what);
  }

  [[nodiscard]] SortOrder Order(PropertyId id) const {
    return {.property = id, .descending = descending_, .unknown_first = unknown_first_};
  }
  [[nodiscard]] PropertyId IdOf(std::size_t i) const {
    return cursors_[i].order.by_text ? kTextId : kNumberId;
  }
  std::uint32_t Below(std::size_t end) { return static_cast<std::uint32_t>(dice_() % end); }

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
  // Sets a property of any type, or takes one of them out.
  void ChangeOthers(ModelRecord& record) {
    constexpr std::array kTypes = {
        PropertyType::kI4,   PropertyType::kUI2,      PropertyType::kR8,   PropertyType::kUI4,
        PropertyType::kBool, PropertyType::kFileTime, PropertyType::kBlob, PropertyType::kString};
    const auto tag = static_cast<std::uint16_t>(kOther + Below(2));
    const PropertyId id(tag, kTypes[Below(kTypes.size())]);
    if (Below(3) == 0) {
      record.others.erase(id.Value());
    } else {
      record.others[id.Value()] = static_cast<std::uint8_t>(Below(200));
    }
  }
  static Property OtherOf(std::uint32_t number, std::uint8_t value) {
    static const std::u16string kText(200, u'o');
    const PropertyId id(number);
    switch (id.Type()) {
      case PropertyType::kI4:
        return Property::I4(id.Tag(), -value);
      case PropertyType::kUI2:
        return Property::UI2(id.Tag(), value);
      case PropertyType::kR8:
        return Property::R8(id.Tag(), value / 7.0);
      case PropertyType::kUI4:
        return Property::UI4(id.Tag(), 0xFFFFFF00U + value);
      case PropertyType::kBool:
        return Property::Bool(id.Tag(), value % 2 != 0);
      case PropertyType::kFileTime:
        return Property::FileTime(id.Tag(), std::uint64_t{value} << 50);
      case PropertyType::kBlob:
        return Property::Blob(id.Tag(), std::as_bytes(std::span(kText)).first(value));
      default:
        return Property::String(id.Tag(), std::u16string_view(kText).substr(0, value));
    }
  }
  // What makes a record of `old` one of `record`.
  static std::vector<Property> Written(const ModelRecord& record, const ModelRecord& old) {
    std::vector<Property> properties;
    properties.push_back(record.number ? Property::I2(kNumber, *record.number)
                                       : Property::Removal(kNumberId));
    properties.push_back(record.text ? Property::String(kText, *record.text)
                                     : Property::Removal(kTextId));
    for (const auto& [id, value] : record.others) properties.push_back(OtherOf(id, value));
    for (const auto& [id, value] : old.others) {
      if (!record.others.contains(id)) properties.push_back(Property::Removal(PropertyId(id)));
    }
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
    ModelRecord record = RandomRecord();
    if (Below(4) == 0) ChangeOthers(record);
    const ObjectId id = store_.Write(handles_[i], 0, Written(record, {})).value;
    Require(id != 0, "a new record");
    model_.records[id] = record;
    StandOn(i, id);
  }

  void ChangeRecord(std::size_t i) {
    if (model_.records.empty()) return;
    const ObjectId id = AnyRecord();
    const ModelRecord old = model_.records[id];
    ModelRecord record = RandomRecord();
    record.others = old.others;
    if (Below(2) == 0) ChangeOthers(record);
    Require(id == store_.Write(handles_[i], id, Written(record, old)).value, "a changed record");
    for (ModelCursor& cursor : cursors_) {
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
    Require(store_.DeleteRecord(handles_[i], id) == StoreError::kNone, "a deleted record");
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
    with_probe.records[kProbe] = {number, text, {}};
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
    Require(cursors_[i].record.value_or(0) == found.value, "the record found");
    Require(!found || to == index, "its place in the order");
    CheckCursor(i);
  }

  void CheckCursor(std::size_t i) {
    const Outcome<RecordView> view = store_.Read(handles_[i]);
    if (cursors_[i].deleted) {
      Require(view.error == StoreError::kDeleted, "at a deleted record");
    } else if (!cursors_[i].record) {
      Require(view.error == StoreError::kNoMoreItems, "at the end");
    } else {
      Require(*cursors_[i].record == view.value.id, "the current record");
    }
  }

  void ExpectRecord(const RecordView& view) {
    const ModelRecord& record = model_.records.at(view.id);
    const std::optional<Property> number = view.properties.Find(kNumberId);
    const std::optional<Property> text = view.properties.Find(kTextId);
    Require(record.number.has_value() == number.has_value(), "whether there is a number");
    Require(record.text.has_value() == text.has_value(), "whether there is a text");
    Require(!number || *record.number == number->AsI2(), "the number");
    Require(!text || *record.text == text->AsString(), "the text");
    const std::size_t known = (number ? 1U : 0U) + (text ? 1U : 0U);
    Require(record.others.size() + known == view.properties.size(), "the number of properties");
    for (const auto& [id, value] : record.others) {
      const std::optional<Property> other = view.properties.Find(PropertyId(id));
      Require(other && SameProperty(OtherOf(id, value), *other), "a property of another type");
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

  Dice dice_;
  bool descending_;
  bool unknown_first_;
  MemoryStore store_;
  StoreModel model_;
  ObjectId database_ = 0;
  std::array<StoreHandle, 3> handles_{};
  std::array<ModelCursor, 3> cursors_{};
};

}  // namespace tavix
