// A store whose records have values of every type, lack properties and change their types, beside a
// plain map of their values.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <utility>
#include <vector>

#include "platform/objectstore/memory_store.h"
#include "tests/platform/objectstore/typed_values.h"

namespace tavix {
namespace {

TEST(TypedRecords, AreReadInOrderAfterAHundredThousandRandomOperations) {
  constexpr std::uint16_t kSorted = 1;
  constexpr std::size_t kTags = 4;
  constexpr PropertyId kNumber(kSorted, PropertyType::kI2);
  RandomValues random(4);
  MemoryStore store;
  const std::array<SortOrder, 1> orders{SortOrder{kNumber}};
  const ObjectId database = store.CreateDatabase(u"typed", 0, orders).value;
  const StoreHandle handle = store.Open(database, kNumber, false).value;
  std::map<ObjectId, Record> model;
  const auto some_id = [&] {
    const auto at = model.lower_bound(random.Below(model.rbegin()->first) + 1);
    return at->first;
  };
  for (int step = 0; step < 100000; ++step) {
    const std::uint32_t choice = random.Below(100);
    if (choice < 45 || model.empty()) {
      Record record;
      Put(record, {Property::I2(kSorted, static_cast<std::int16_t>(random.Below(300))), u""});
      for (std::size_t i = random.Below(4); i > 0; --i) Put(record, random.Any(kTags));
      const Outcome<ObjectId> added = store.Write(handle, 0, PropertiesOf(record));
      ASSERT_TRUE(added);
      model[added.value] = record;
    } else if (choice < 70) {
      const ObjectId id = some_id();
      Record& record = model[id];
      Property written;
      Value value = random.Any(kTags);
      if (choice < 55 && !record.empty()) {
        const std::size_t removed = random.Below(record.size());
        written = Property::Removal(record[removed].property.Id());
        record.erase(record.begin() + static_cast<std::ptrdiff_t>(removed));
      } else {
        Put(record, value);
        written = value.Get();
      }
      ASSERT_EQ(id, store.Write(handle, id, {&written, 1}).value);
    } else if (choice < 98) {
      const ObjectId id = some_id();
      ASSERT_EQ(StoreError::kNone, store.DeleteRecord(handle, id));
      model.erase(id);
    } else {
      const Property wanted = Property::I2(kSorted, static_cast<std::int16_t>(random.Below(300)));
      store.Seek(handle, SeekTarget::ToValue(SeekTarget::Kind::kFirstEqual, wanted), nullptr);
    }
  }
  // By value and age; those without a 16-bit number last.
  std::vector<std::pair<int, ObjectId>> sorted;
  std::size_t bytes = 0;
  for (const auto& [id, record] : model) {
    const auto number =
        std::ranges::find(record, kNumber, [](const Value& value) { return value.property.Id(); });
    sorted.emplace_back(
        number == record.end() ? std::numeric_limits<int>::max() : number->property.AsI2(), id);
    bytes += BytesOf(record);
  }
  std::ranges::sort(sorted);
  EXPECT_LT(5000U, sorted.size());
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    const auto target = SeekTarget::To(SeekTarget::Kind::kBeginning, static_cast<std::int64_t>(i));
    ASSERT_EQ(sorted[i].second, store.Seek(handle, target, nullptr).value) << i;
    const RecordView view = store.Read(handle).value;
    ASSERT_EQ(sorted[i].second, view.id);
    ASSERT_NO_FATAL_FAILURE(ExpectSame(model[view.id], view.properties)) << i;
  }
  EXPECT_EQ(bytes, store.Info(database).value.database.bytes);
  EXPECT_EQ(sorted.size(), store.Info(database).value.database.record_count);
}

}  // namespace
}  // namespace tavix
