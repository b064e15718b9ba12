// Databases and handles: names, enumeration, opening, closing, deleting.
#include <string>

#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

class DatabaseTest : public StoreTest {};

TEST_P(DatabaseTest, NamesAreCutTo31Characters) {
  const std::u16string longest(31, u'a');
  for (const std::size_t length : {32U, 33U, 300U}) {
    const std::u16string name(length, u'a');
    const ObjectId id = Store().CreateDatabase(name, 0, {}).value;
    ASSERT_NE(0U, id);
    EXPECT_EQ(longest, Store().Info(id).value.database.Name());
    EXPECT_EQ(id, Store().FindDatabase(name).value);
    EXPECT_EQ(id, Store().FindDatabase(longest).value);
    EXPECT_EQ(StoreError::kDuplicateName, Store().CreateDatabase(longest + u"b", 0, {}).error);
    EXPECT_EQ(StoreError::kNone, Store().DeleteDatabase(id));
  }
}

TEST_P(DatabaseTest, NamesAreUniqueAndNotEmpty) {
  EXPECT_EQ(StoreError::kInvalidParameter, Store().CreateDatabase(u"", 0, {}).error);
  const ObjectId lines = Store().CreateDatabase(u"lines", 0, {}).value;
  EXPECT_EQ(StoreError::kDuplicateName, Store().CreateDatabase(u"lines", 0, {}).error);
  EXPECT_TRUE(Store().CreateDatabase(u"Lines", 0, {})) << "case counts in names";
  EXPECT_EQ(lines, Store().FindDatabase(u"lines").value);
  EXPECT_EQ(StoreError::kNotFound, Store().FindDatabase(u"memos").error);
}

TEST_P(DatabaseTest, InfoTellsWhatADatabaseIs) {
  const std::array<SortOrder, 2> orders = {
      SortOrder{.property = PropertyId(1, PropertyType::kI2), .descending = true},
      SortOrder{.property = PropertyId(2, PropertyType::kString),
                .ignore_case = true,
                .unknown_first = true}};
  database_ = Store().CreateDatabase(u"info", 42, orders).value;
  const StoreHandle handle = Open(kNoSort);
  const ObjectId record = AddKey(handle, 1);
  const ObjectInfo info = Store().Info(database_).value;
  EXPECT_TRUE(info.is_database);
  EXPECT_EQ(u"info", info.database.Name());
  EXPECT_EQ(42U, info.database.type);
  EXPECT_EQ(1U, info.database.record_count);
  ASSERT_EQ(2U, info.database.Orders().size());
  EXPECT_TRUE(info.database.Orders()[0].descending);
  EXPECT_EQ(orders[1].property, info.database.Orders()[1].property);
  EXPECT_TRUE(info.database.Orders()[1].unknown_first);
  EXPECT_FALSE(Store().Info(record).value.is_database);
  EXPECT_EQ(database_, Store().Info(record).value.parent);
  EXPECT_EQ(StoreError::kNotFound, Store().Info(0).error);
  EXPECT_EQ(StoreError::kNotFound, Store().Info(record + 1).error);
}

TEST_P(DatabaseTest, NameTypeAndOrdersCanChangeTogetherOrAlone) {
  const SortOrder order = {.property = PropertyId(1, PropertyType::kI2)};
  database_ = Store().CreateDatabase(u"old", 1, {}).value;
  Store().CreateDatabase(u"taken", 1, {});
  const auto change = [this](const DatabaseChange& to) {
    return Store().ChangeDatabase(database_, to);
  };
  EXPECT_EQ(StoreError::kNone, change({.name = u"old"})) << "its own name is free";
  EXPECT_EQ(StoreError::kNone, change({.type = 2}));
  EXPECT_EQ(u"old", Store().Info(database_).value.database.Name());
  EXPECT_EQ(StoreError::kNone, change({.name = u"new", .type = 3, .orders = std::span(&order, 1)}));
  EXPECT_EQ(database_, Store().FindDatabase(u"new").value);
  EXPECT_EQ(StoreError::kNotFound, Store().FindDatabase(u"old").error);
  EXPECT_EQ(3U, Store().Info(database_).value.database.type);
  EXPECT_EQ(1U, Store().Info(database_).value.database.Orders().size());
}

TEST_P(DatabaseTest, AChangeThatFailsChangesNothing) {
  const SortOrder blob = {.property = PropertyId(1, PropertyType::kBlob)};
  const SortOrder order = {.property = PropertyId(1, PropertyType::kI2)};
  database_ = Store().CreateDatabase(u"old", 1, {}).value;
  Store().CreateDatabase(u"taken", 1, {});
  const StoreHandle handle = Open(kNoSort);
  struct Row {
    DatabaseChange change;
    StoreError error;
  };
  for (const Row& row :
       {Row{{.name = u"taken", .type = 2}, StoreError::kDuplicateName},
        Row{{.name = u"", .type = 2}, StoreError::kInvalidParameter},
        Row{{.name = u"new", .orders = std::span(&blob, 1)}, StoreError::kInvalidParameter},
        Row{{.name = u"new", .orders = std::span(&order, 1)}, StoreError::kInUse}}) {
    EXPECT_EQ(row.error, Store().ChangeDatabase(database_, row.change));
    EXPECT_EQ(u"old", Store().Info(database_).value.database.Name());
    EXPECT_EQ(1U, Store().Info(database_).value.database.type);
    EXPECT_TRUE(Store().Info(database_).value.database.Orders().empty());
  }
  EXPECT_EQ(StoreError::kInvalidParameter, Store().ChangeDatabase(AddKey(handle, 1), {.type = 2}));
}

TEST(Database, ChangesOfRecordsAreCounted) {
  MemoryStore store;
  const ObjectId database = store.CreateDatabase(u"counted", 0, {}).value;
  const auto changes = [&] {
    const auto alone = store.Changes(database);
    EXPECT_EQ(store.Info(database).value.database.changes, alone.value);
    return alone.value;
  };
  EXPECT_EQ(0U, changes());
  const StoreHandle handle = store.Open(database, kNoSort, false).value;
  const StoreHandle other = store.Open(database, kNoSort, false).value;
  const ObjectId record = store.Write(handle, 0, Values({Property::I2(1, 1)})).value;
  EXPECT_EQ(1U, changes());
  store.Write(other, record, Values({Property::I2(1, 2), Property::I2(2, 3)}));
  EXPECT_EQ(2U, changes()) << "one for a call";
  store.Write(other, record, Values({Property::I2(1, 2)}));
  EXPECT_EQ(3U, changes()) << "of the same value, too";
  store.Read(handle);
  store.Write(handle, 0, {});
  store.Write(handle, record + 9, Values({Property::I2(1, 1)}));
  store.DeleteRecord(handle, record + 9);
  store.ChangeDatabase(database, {.type = 2});
  EXPECT_EQ(3U, changes()) << "calls that change no record do not count";
  store.DeleteRecord(other, record);
  EXPECT_EQ(4U, changes());
  EXPECT_EQ(StoreError::kNotFound, store.Changes(99).error);
}

TEST(Database, ChangesAreTimed) {
  static std::uint64_t now = 0;
  MemoryStore store(
      &FoldAscii, +[] { return ++now; });
  const ObjectId database = store.CreateDatabase(u"timed", 0, {}).value;
  const auto modified = [&] { return store.Info(database).value.database.modified; };
  std::uint64_t last = modified();
  const auto expect_later = [&] {
    EXPECT_GT(modified(), last);
    last = modified();
  };
  const StoreHandle handle = store.Open(database, kNoSort, false).value;
  EXPECT_EQ(last, modified());
  const ObjectId record = store.Write(handle, 0, Values({Property::I2(1, 1)})).value;
  expect_later();
  EXPECT_TRUE(store.Read(handle));
  EXPECT_EQ(last, modified());
  EXPECT_TRUE(store.Write(handle, record, Values({Property::I2(1, 2)})));
  expect_later();
  EXPECT_EQ(StoreError::kNone, store.DeleteRecord(handle, record));
  expect_later();
}

TEST(Database, TheSystemClockCountsFrom1601) {
  constexpr std::uint64_t kStepsPerYear = 315'569'520'000'000;  // of 365.2425 days
  EXPECT_GT(SystemFileTime() / kStepsPerYear, 2024U - 1601U);
  EXPECT_LT(SystemFileTime() / kStepsPerYear, 2200U - 1601U);
}

TEST_P(DatabaseTest, AnOpenDatabaseCannotBeDeleted) {
  database_ = Store().CreateDatabase(u"open", 0, {}).value;
  const StoreHandle first = Open(kNoSort);
  const StoreHandle second = Open(kNoSort);
  const ObjectId record = AddKey(first, 1);
  EXPECT_EQ(StoreError::kInUse, Store().DeleteDatabase(database_));
  EXPECT_EQ(StoreError::kNone, Store().Close(first));
  EXPECT_EQ(StoreError::kInUse, Store().DeleteDatabase(database_));
  EXPECT_EQ(record, Store().Seek(second, SeekTarget::To(kBeginning), nullptr).value);
  EXPECT_EQ(StoreError::kNone, Store().Close(second));
  EXPECT_EQ(StoreError::kNone, Store().DeleteDatabase(database_));
  EXPECT_EQ(StoreError::kInvalidParameter, Store().DeleteDatabase(database_));
  EXPECT_EQ(StoreError::kInvalidParameter, Store().Open(database_, kNoSort, false).error);
}

TEST_P(DatabaseTest, OnlyDatabasesOpenAndGo) {
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  const ObjectId record = AddKey(Open(kNoSort), 1);
  EXPECT_EQ(StoreError::kInvalidParameter, Store().Open(record, kNoSort, false).error);
  EXPECT_EQ(StoreError::kInvalidParameter, Store().DeleteDatabase(record));
  EXPECT_EQ(StoreError::kInvalidParameter,
            Store().Open(database_, PropertyId(1, PropertyType::kI2), false).error);
}

TEST_P(DatabaseTest, AClosedHandleFindsNothingAlsoWhenItsPlaceIsTakenAgain) {
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  const StoreHandle old = Open(kNoSort);
  const ObjectId record = AddKey(old, 1);
  Store().Close(old);
  const StoreHandle young = Open(kNoSort);
  EXPECT_NE(young, old);
  const Property value = Property::I2(kKey, 1);
  for (const StoreHandle bad : {old, StoreHandle{0}, ~StoreHandle{0}, young ^ 0x1000U}) {
    EXPECT_EQ(StoreError::kInvalidParameter, Store().Read(bad).error);
    EXPECT_EQ(StoreError::kInvalidParameter, Store().Peek(bad).error);
    EXPECT_EQ(StoreError::kInvalidParameter,
              Store().Seek(bad, SeekTarget::To(kBeginning), nullptr).error);
    EXPECT_EQ(StoreError::kInvalidParameter, Store().Write(bad, 0, {&value, 1}).error);
    EXPECT_EQ(StoreError::kInvalidParameter, Store().DeleteRecord(bad, record));
    EXPECT_EQ(StoreError::kInvalidParameter, Store().NextDatabase(bad).error);
    EXPECT_EQ(StoreError::kInvalidParameter, Store().Close(bad));
  }
  EXPECT_EQ(record, Store().Read(young).value.id);
}

TEST_P(DatabaseTest, HandlesRunOutAndComeBack) {
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  std::vector<StoreHandle> handles;
  Outcome<StoreHandle> handle = Store().Open(database_, kNoSort, false);
  while (handle) {
    handles.push_back(handle.value);
    handle = Store().Open(database_, kNoSort, false);
  }
  EXPECT_EQ(StoreError::kTooManyOpen, handle.error);
  EXPECT_EQ(4096U, handles.size());
  EXPECT_EQ(StoreError::kTooManyOpen, Store().OpenEnumeration(0).error);
  EXPECT_EQ(StoreError::kNone, Store().Close(handles.back()));
  EXPECT_TRUE(Store().OpenEnumeration(0));
}

TEST_P(DatabaseTest, AnEnumerationFindsTheDatabasesOfOneTypeOrAll) {
  const ObjectId a = Store().CreateDatabase(u"a", 7, {}).value;
  const ObjectId b = Store().CreateDatabase(u"b", 8, {}).value;
  const ObjectId c = Store().CreateDatabase(u"c", 7, {}).value;
  const auto all_of = [this](std::uint32_t type) {
    std::vector<ObjectId> found;
    const StoreHandle walk = Store().OpenEnumeration(type).value;
    Outcome<ObjectId> database = Store().NextDatabase(walk);
    while (database) {
      found.push_back(database.value);
      database = Store().NextDatabase(walk);
    }
    EXPECT_EQ(StoreError::kNoMoreItems, database.error);
    EXPECT_EQ(StoreError::kNone, Store().Close(walk));
    return found;
  };
  EXPECT_EQ((std::vector{a, b, c}), all_of(0));
  EXPECT_EQ((std::vector{a, c}), all_of(7));
  EXPECT_EQ(std::vector<ObjectId>(), all_of(9));
}

TEST_P(DatabaseTest, AnEnumerationEndsWhenADatabaseGoesAndSeesNewOnes) {
  const ObjectId a = Store().CreateDatabase(u"a", 0, {}).value;
  const StoreHandle walk = Store().OpenEnumeration(0).value;
  EXPECT_EQ(a, Store().NextDatabase(walk).value);
  const ObjectId b = Store().CreateDatabase(u"b", 0, {}).value;
  EXPECT_EQ(b, Store().NextDatabase(walk).value);
  EXPECT_EQ(StoreError::kNone, Store().DeleteDatabase(a));
  EXPECT_EQ(StoreError::kDeleted, Store().NextDatabase(walk).error);
  EXPECT_EQ(StoreError::kDeleted, Store().NextDatabase(walk).error);
}

TEST_P(DatabaseTest, AnEnumerationIsNoDatabase) {
  const StoreHandle walk = Store().OpenEnumeration(0).value;
  EXPECT_EQ(StoreError::kInvalidParameter, Store().Read(walk).error);
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  EXPECT_EQ(StoreError::kInvalidParameter, Store().NextDatabase(Open(kNoSort)).error);
}

TAVIX_STORE_TESTS(DatabaseTest);

}  // namespace
}  // namespace tavix
