// A store with one database, and short names for what the tests do with it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "platform/objectstore/failing_store.h"
#include "platform/objectstore/memory_store.h"

namespace tavix {

inline std::span<const Property> Values(std::initializer_list<Property> values) {
  return {values.begin(), values.size()};
}

using enum SeekTarget::Kind;

// Every test of the contract runs with the store itself and with a failing store that forwards all
// calls, so that both behave alike.
enum class StoreKind { kMemory, kPassingOn };

class StoreTest : public testing::TestWithParam<StoreKind> {
 protected:
  static constexpr std::uint16_t kKey = 111;
  static constexpr std::uint16_t kOther = 112;

  ObjectStore& Store() {
    return GetParam() == StoreKind::kMemory ? static_cast<ObjectStore&>(memory_) : passing_on_;
  }

  // A database with one order, and a handle on it.
  StoreHandle Make(const SortOrder& order, bool auto_increment = false) {
    database_ = Store().CreateDatabase(u"test", 1, {&order, 1}).value;
    return Open(order.property, auto_increment);
  }
  StoreHandle Open(PropertyId sort, bool auto_increment = false) {
    const Outcome<StoreHandle> handle = Store().Open(database_, sort, auto_increment);
    EXPECT_TRUE(handle);
    return handle.value;
  }
  ObjectId Add(StoreHandle handle, std::initializer_list<Property> values) {
    const Outcome<ObjectId> record = Store().Write(handle, 0, Values(values));
    EXPECT_TRUE(record);
    return record.value;
  }
  // A record with a number in the key property.
  ObjectId AddKey(StoreHandle handle, std::int16_t key) {
    return Add(handle, {Property::I2(kKey, key)});
  }
  // All records from the first on, by walking.
  std::vector<ObjectId> Walk(StoreHandle handle) {
    std::vector<ObjectId> order;
    Outcome<ObjectId> record = Store().Seek(handle, SeekTarget::To(kBeginning), nullptr);
    while (record) {
      order.push_back(record.value);
      record = Store().Seek(handle, SeekTarget::To(kCurrent, 1), nullptr);
    }
    return order;
  }
  // The record under the pointer, or 0.
  ObjectId Current(StoreHandle handle) {
    return Store().Seek(handle, SeekTarget::To(kCurrent, 0), nullptr).value;
  }

  ObjectId database_ = 0;

 private:
  MemoryStore memory_;
  FailingStore passing_on_{memory_};
};

#define TAVIX_STORE_TESTS(Fixture)                                                            \
  INSTANTIATE_TEST_SUITE_P(Stores, Fixture,                                                   \
                           testing::Values(StoreKind::kMemory, StoreKind::kPassingOn),        \
                           [](const testing::TestParamInfo<StoreKind>& store) {               \
                             return store.param == StoreKind::kMemory ? "Memory" : "Passing"; \
                           })

constexpr PropertyId kNoSort;

}  // namespace tavix
