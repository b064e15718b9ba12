// Records of many layouts in memory, beside a plain map of their values.
#include "platform/objectstore/record_heap.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include "tests/platform/objectstore/typed_values.h"

namespace tavix {
namespace {

struct Mix {
  std::size_t tags;        // few: records often have one layout
  std::size_t properties;  // of a new record
};

class RecordHeapTest : public testing::TestWithParam<Mix> {};

TEST_P(RecordHeapTest, HoldsWhatAMapWouldHold) {
  RandomValues random(21);
  RecordHeap heap;
  std::map<RecordHeap::Slot, std::pair<ObjectId, Record>> model;
  ObjectId last_id = 0;
  const auto some = [&] { return std::next(model.begin(), random.Below(model.size())); };
  for (int step = 0; step < 20000; ++step) {
    const std::uint32_t choice = random.Below(100);
    // It grows, stays, and shrinks to nothing.
    const std::uint32_t adding = step < 6000 ? 60 : step < 14000 ? 30 : 5;
    if (choice < adding) {
      Record record;
      for (std::size_t i = random.Below(GetParam().properties + 1); i > 0; --i) {
        Put(record, random.Any(GetParam().tags));
      }
      const RecordHeap::Slot slot = heap.Add(++last_id, PropertiesOf(record));
      ASSERT_TRUE(model.emplace(slot, std::pair(last_id, record)).second) << "a slot in use";
    } else if (!model.empty() && choice < adding + 30) {
      const auto changed = some();
      Record& record = changed->second.second;
      if (!record.empty() && choice % 2 == 0) {
        record.erase(record.begin() + random.Below(record.size()));
      } else {
        Put(record, random.Any(GetParam().tags));
      }
      heap.Replace(changed->first, PropertiesOf(record));
    } else if (!model.empty()) {
      const auto removed = some();
      heap.Remove(removed->first);
      EXPECT_EQ(0U, heap.Id(removed->first));
      model.erase(removed);
    }
    if (step % 500 != 0) continue;
    ASSERT_EQ(model.size(), heap.Count());
    std::size_t bytes = 0;
    std::size_t live = 0;
    for (RecordHeap::Slot slot = 0; slot < heap.SlotEnd(); ++slot) {
      if (heap.Id(slot) == 0) continue;
      ++live;
      const auto& [id, record] = model.at(slot);
      ASSERT_EQ(id, heap.Id(slot));
      ASSERT_NO_FATAL_FAILURE(ExpectSame(record, heap.Properties(slot))) << "step " << step;
      bytes += BytesOf(record);
    }
    ASSERT_EQ(model.size(), live);
    ASSERT_EQ(bytes, heap.Bytes());
  }
}

INSTANTIATE_TEST_SUITE_P(Mixes, RecordHeapTest,
                         testing::Values(Mix{1, 1}, Mix{1, 4}, Mix{3, 3}, Mix{40, 6}));

TEST(RecordHeap, KeepsTheBitsOfANotANumber) {
  constexpr std::uint64_t kSignalling = 0x7FF0000000000123;
  std::array<std::byte, sizeof kSignalling> bits{};
  std::memcpy(bits.data(), &kSignalling, sizeof kSignalling);
  RecordHeap heap;
  const RecordHeap::Slot slot =
      heap.Add(1, std::vector{Property::At(PropertyId(1, PropertyType::kR8), bits.data())});
  EXPECT_EQ(kSignalling, heap.Properties(slot)[0].AsFileTime());
}

TEST(RecordHeap, TakesTheSlotsOfDeletedRecordsForOtherLayouts) {
  RecordHeap heap;
  for (int round = 0; round < 50; ++round) {
    std::vector<RecordHeap::Slot> slots;
    const auto tag = static_cast<std::uint16_t>(round);
    for (ObjectId id = 1; id <= 1000; ++id) {
      slots.push_back(heap.Add(id, std::vector{Property::UI4(tag, id)}));
    }
    EXPECT_EQ(1024U, heap.SlotEnd()) << "in round " << round;
    for (const RecordHeap::Slot slot : slots) heap.Remove(slot);
  }
}

}  // namespace
}  // namespace tavix
