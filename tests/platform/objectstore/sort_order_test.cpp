// Sort orders: which record comes first.
#include <cmath>
#include <limits>

#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

class SortOrderTest : public StoreTest {};

constexpr std::uint16_t kTag = 50;
constexpr std::uint16_t kUnsorted = 60;

// Values in the order they must come in when the order rises.
struct Rising {
  const char* name;
  std::vector<Property> values;
};

std::vector<Rising> RisingRows() {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  return {
      {"I2",
       {Property::I2(kTag, -32768), Property::I2(kTag, -1), Property::I2(kTag, 0),
        Property::I2(kTag, 1), Property::I2(kTag, 32767)}},
      {"UI2", {Property::UI2(kTag, 0), Property::UI2(kTag, 32768), Property::UI2(kTag, 65535)}},
      {"I4",
       {Property::I4(kTag, std::numeric_limits<int>::min()), Property::I4(kTag, -1),
        Property::I4(kTag, 0), Property::I4(kTag, std::numeric_limits<int>::max())}},
      {"UI4",
       {Property::UI4(kTag, 0), Property::UI4(kTag, 0x80000000), Property::UI4(kTag, 0xFFFFFFFF)}},
      {"Bool", {Property::Bool(kTag, false), Property::Bool(kTag, true)}},
      {"FileTime",
       {Property::FileTime(kTag, 0), Property::FileTime(kTag, 1),
        Property::FileTime(kTag, 0x8000000000000000), Property::FileTime(kTag, ~std::uint64_t{0})}},
      {"R8",
       {Property::R8(kTag, -kInfinity), Property::R8(kTag, -1e300), Property::R8(kTag, -1e-300),
        Property::R8(kTag, -0.0), Property::R8(kTag, 1e-300), Property::R8(kTag, 2.0),
        Property::R8(kTag, kInfinity)}},
      {"String",
       {Property::String(kTag, u""), Property::String(kTag, u"A"), Property::String(kTag, u"AAAA"),
        Property::String(kTag, u"AAAAA"), Property::String(kTag, u"AAAAB"),
        Property::String(kTag, u"AAAB"), Property::String(kTag, u"B"), Property::String(kTag, u"a"),
        Property::String(kTag, u"点"), Property::String(kTag, u"\xFFFF")}},
  };
}

TEST_P(SortOrderTest, EveryTypeRises) {
  for (const Rising& row : RisingRows()) {
    SCOPED_TRACE(row.name);
    const StoreHandle handle = Make({.property = row.values[0].Id()});
    std::vector<ObjectId> expected;
    for (auto value = row.values.rbegin(); value != row.values.rend(); ++value) {
      expected.insert(expected.begin(), Add(handle, {*value}));
    }
    EXPECT_EQ(expected, Walk(handle));
    Store().Close(handle);
    Store().DeleteDatabase(database_);
  }
}

TEST_P(SortOrderTest, EveryTypeFalls) {
  for (const Rising& row : RisingRows()) {
    SCOPED_TRACE(row.name);
    const StoreHandle handle = Make({.property = row.values[0].Id(), .descending = true});
    std::vector<ObjectId> expected;
    for (const Property& value : row.values)
      expected.insert(expected.begin(), Add(handle, {value}));
    EXPECT_EQ(expected, Walk(handle));
    Store().Close(handle);
    Store().DeleteDatabase(database_);
  }
}

TEST_P(SortOrderTest, EqualValuesStayInTheOrderTheyCameRisingAndFalling) {
  for (const bool descending : {false, true}) {
    const StoreHandle handle =
        Make({.property = PropertyId(kKey, PropertyType::kI2), .descending = descending});
    const ObjectId a = AddKey(handle, 5);
    const ObjectId b = AddKey(handle, descending ? 4 : 6);
    const ObjectId c = AddKey(handle, 5);
    const ObjectId d = AddKey(handle, 5);
    EXPECT_EQ((std::vector{a, c, d, b}), Walk(handle));
    Store().Close(handle);
    Store().DeleteDatabase(database_);
  }
}

TEST_P(SortOrderTest, BothZerosAreOneValue) {
  const StoreHandle handle = Make({.property = PropertyId(kTag, PropertyType::kR8)});
  const ObjectId first = Add(handle, {Property::R8(kTag, 0.0)});
  const ObjectId second = Add(handle, {Property::R8(kTag, -0.0)});
  EXPECT_EQ((std::vector{first, second}), Walk(handle));
  const SeekTarget target = SeekTarget::ToValue(kFirstEqual, Property::R8(kTag, -0.0));
  EXPECT_EQ(first, Store().Seek(handle, target, nullptr).value);
}

TEST_P(SortOrderTest, RecordsWithoutThePropertyComeLastOrFirst) {
  for (const bool descending : {false, true}) {
    for (const bool unknown_first : {false, true}) {
      const StoreHandle handle = Make({.property = PropertyId(kKey, PropertyType::kI2),
                                       .descending = descending,
                                       .unknown_first = unknown_first});
      const ObjectId missing = Add(handle, {Property::I2(kUnsorted, 1)});
      const ObjectId low = AddKey(handle, -5);
      const ObjectId other_type = Add(handle, {Property::I4(kKey, 1)});
      const ObjectId high = AddKey(handle, 5);
      std::vector<ObjectId> expected = {descending ? high : low, descending ? low : high};
      expected.insert(unknown_first ? expected.begin() : expected.end(), {missing, other_type});
      EXPECT_EQ(expected, Walk(handle));
      Store().Close(handle);
      Store().DeleteDatabase(database_);
    }
  }
}

TEST_P(SortOrderTest, CaseCountsUnlessTheOrderIgnoresIt) {
  for (const bool ignore_case : {false, true}) {
    const StoreHandle handle =
        Make({.property = PropertyId(kTag, PropertyType::kString), .ignore_case = ignore_case});
    const ObjectId small_b = Add(handle, {Property::String(kTag, u"bench")});
    const ObjectId large_b = Add(handle, {Property::String(kTag, u"BENCH")});
    const ObjectId small_a = Add(handle, {Property::String(kTag, u"bencA")});
    const std::vector<ObjectId> expected = ignore_case ? std::vector{small_a, small_b, large_b}
                                                       : std::vector{large_b, small_a, small_b};
    EXPECT_EQ(expected, Walk(handle));
    const SeekTarget target = SeekTarget::ToValue(kFirstEqual, Property::String(kTag, u"BENCH"));
    EXPECT_EQ(ignore_case ? small_b : large_b, Store().Seek(handle, target, nullptr).value);
    Store().Close(handle);
    Store().DeleteDatabase(database_);
  }
}

TEST(SortOrder, TheStoreFoldsCaseAsItIsTold) {
  // A case fold that includes full-width letters.
  MemoryStore store(+[](char16_t unit) {
    return unit >= 0xFF41 && unit <= 0xFF5A ? static_cast<char16_t>(unit - 0x20) : FoldAscii(unit);
  });
  const SortOrder order = {.property = PropertyId(kTag, PropertyType::kString),
                           .ignore_case = true};
  const ObjectId database = store.CreateDatabase(u"fold", 0, {&order, 1}).value;
  const StoreHandle handle = store.Open(database, order.property, false).value;
  store.Write(handle, 0, Values({Property::String(kTag, u"ｂ")}));
  const SeekTarget target = SeekTarget::ToValue(kFirstEqual, Property::String(kTag, u"Ｂ"));
  EXPECT_TRUE(store.Seek(handle, target, nullptr));
}

TEST_P(SortOrderTest, OneDatabaseHasFourOrdersAtOnce) {
  const std::array<SortOrder, 4> orders = {
      SortOrder{.property = PropertyId(1, PropertyType::kI2)},
      SortOrder{.property = PropertyId(2, PropertyType::kI2), .descending = true},
      SortOrder{.property = PropertyId(3, PropertyType::kString)},
      SortOrder{.property = PropertyId(4, PropertyType::kR8)}};
  database_ = Store().CreateDatabase(u"four", 0, orders).value;
  const StoreHandle writer = Open(kNoSort);
  const auto add = [&](std::int16_t one, std::int16_t two, std::u16string_view three, double four) {
    return Add(writer, {Property::I2(1, one), Property::I2(2, two), Property::String(3, three),
                        Property::R8(4, four)});
  };
  const ObjectId a = add(1, 1, u"b", 9.0);
  const ObjectId b = add(2, 3, u"a", 7.0);
  const ObjectId c = add(3, 2, u"c", 8.0);
  EXPECT_EQ((std::vector{a, b, c}), Walk(Open(orders[0].property)));
  EXPECT_EQ((std::vector{b, c, a}), Walk(Open(orders[1].property)));
  EXPECT_EQ((std::vector{b, a, c}), Walk(Open(orders[2].property)));
  EXPECT_EQ((std::vector{b, c, a}), Walk(Open(orders[3].property)));
  EXPECT_EQ((std::vector{a, b, c}), Walk(writer)) << "no sort property takes the first order";
}

TEST_P(SortOrderTest, WithoutOrdersRecordsComeAsCreated) {
  database_ = Store().CreateDatabase(u"plain", 0, {}).value;
  const StoreHandle handle = Open(kNoSort);
  const ObjectId a = AddKey(handle, 9);
  const ObjectId b = AddKey(handle, 1);
  EXPECT_EQ((std::vector{a, b}), Walk(handle));
}

TEST_P(SortOrderTest, OrdersThatCannotBeAreRefused) {
  const SortOrder key = {.property = PropertyId(kKey, PropertyType::kI2)};
  const std::vector<std::vector<SortOrder>> rows = {
      {{.property = PropertyId(1, PropertyType::kBlob)}},
      {{.property = PropertyId(0x00010099)}},
      {key, {.property = PropertyId(kKey, PropertyType::kString)}},
      {key,
       {.property = PropertyId(1, PropertyType::kI2)},
       {.property = PropertyId(2, PropertyType::kI2)},
       {.property = PropertyId(3, PropertyType::kI2)},
       {.property = PropertyId(4, PropertyType::kI2)}},
  };
  for (const std::vector<SortOrder>& row : rows) {
    EXPECT_EQ(StoreError::kInvalidParameter, Store().CreateDatabase(u"bad", 0, row).error);
  }
  EXPECT_EQ(StoreError::kNotFound, Store().FindDatabase(u"bad").error);
}

TEST_P(SortOrderTest, NewOrdersSortWhatIsThere) {
  const StoreHandle handle = Make({.property = PropertyId(kKey, PropertyType::kI2)});
  const ObjectId a = Add(handle, {Property::I2(kKey, 1), Property::I2(kOther, 2)});
  const ObjectId b = Add(handle, {Property::I2(kKey, 2), Property::I2(kOther, 1)});
  const SortOrder other = {.property = PropertyId(kOther, PropertyType::kI2)};
  const DatabaseChange change = {.orders = std::span(&other, 1)};
  EXPECT_EQ(StoreError::kInUse, Store().ChangeDatabase(database_, change));
  EXPECT_EQ((std::vector{a, b}), Walk(handle));
  Store().Close(handle);
  EXPECT_EQ(StoreError::kNone, Store().ChangeDatabase(database_, change));
  EXPECT_EQ((std::vector{b, a}), Walk(Open(other.property)));
  EXPECT_EQ(StoreError::kInvalidParameter,
            Store().Open(database_, PropertyId(kKey, PropertyType::kI2), false).error);
}

TAVIX_STORE_TESTS(SortOrderTest);

}  // namespace
}  // namespace tavix
