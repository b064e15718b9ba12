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
    ASSERT_NE(id, 0U);
    EXPECT_EQ(Store().Info(id).value.database.Name(), longest);
    EXPECT_EQ(Store().FindDatabase(name).value, id);
    EXPECT_EQ(Store().FindDatabase(longest).value, id);
    EXPECT_EQ(Store().CreateDatabase(longest + u"b", 0, {}).error, StoreError::kDuplicateName);
    EXPECT_EQ(Store().DeleteDatabase(id), StoreError::kNone);
  }
}

TEST_P(DatabaseTest, NamesAreUniqueAndNotEmpty) {
  EXPECT_EQ(Store().CreateDatabase(u"", 0, {}).error, StoreError::kInvalidParameter);
  const ObjectId lines = Store().CreateDatabase(u"lines", 0, {}).value;
  EXPECT_EQ(Store().CreateDatabase(u"lines", 0, {}).error, StoreError::kDuplicateName);
  EXPECT_TRUE(Store().CreateDatabase(u"Lines", 0, {})) << "case counts in names";
  EXPECT_EQ(Store().FindDatabase(u"lines").value, lines);
  EXPECT_EQ(Store().FindDatabase(u"memos").error, StoreError::kNotFound);
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
  EXPECT_EQ(info.database.Name(), u"info");
  EXPECT_EQ(info.database.type, 42U);
  EXPECT_EQ(info.database.record_count, 1U);
  ASSERT_EQ(info.database.Orders().size(), 2U);
  EXPECT_TRUE(info.database.Orders()[0].descending);
  EXPECT_EQ(info.database.Orders()[1].property, orders[1].property);
  EXPECT_TRUE(info.database.Orders()[1].unknown_first);
  EXPECT_FALSE(Store().Info(record).value.is_database);
  EXPECT_EQ(Store().Info(record).value.parent, database_);
  EXPECT_EQ(Store().Info(0).error, StoreError::kNotFound);
  EXPECT_EQ(Store().Info(record + 1).error, StoreError::kNotFound);
}

TEST_P(DatabaseTest, NameTypeAndOrdersCanChangeTogetherOrAlone) {
  const SortOrder order = {.property = PropertyId(1, PropertyType::kI2)};
  database_ = Store().CreateDatabase(u"old", 1, {}).value;
  Store().CreateDatabase(u"taken", 1, {});
  const auto change = [this](const DatabaseChange& to) {
    return Store().ChangeDatabase(database_, to);
  };
  EXPECT_EQ(change({.name = u"old"}), StoreError::kNone) << "its own name is free";
  EXPECT_EQ(change({.type = 2}), StoreError::kNone);
  EXPECT_EQ(Store().Info(database_).value.database.Name(), u"old");
  EXPECT_EQ(change({.name = u"new", .type = 3, .orders = std::span(&order, 1)}), StoreError::kNone);
  EXPECT_EQ(Store().FindDatabase(u"new").value, database_);
  EXPECT_EQ(Store().FindDatabase(u"old").error, StoreError::kNotFound);
  EXPECT_EQ(Store().Info(database_).value.database.type, 3U);
  EXPECT_EQ(Store().Info(database_).value.database.Orders().size(), 1U);
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
    EXPECT_EQ(Store().ChangeDatabase(database_, row.change), row.error);
    EXPECT_EQ(Store().Info(database_).value.database.Name(), u"old");
    EXPECT_EQ(Store().Info(database_).value.database.type, 1U);
    EXPECT_TRUE(Store().Info(database_).value.database.Orders().empty());
  }
  EXPECT_EQ(Store().ChangeDatabase(AddKey(handle, 1), {.type = 2}), StoreError::kInvalidParameter);
}

TEST(Database, ChangesOfRecordsAreCounted) {
  MemoryStore store;
  const ObjectId database = store.CreateDatabase(u"counted", 0, {}).value;
  const auto changes = [&] { return store.Info(database).value.database.changes; };
  EXPECT_EQ(changes(), 0U);
  const StoreHandle handle = store.Open(database, kNoSort, false).value;
  const StoreHandle other = store.Open(database, kNoSort, false).value;
  const ObjectId record = store.Write(handle, 0, Values({Property::I2(1, 1)})).value;
  EXPECT_EQ(changes(), 1U);
  store.Write(other, record, Values({Property::I2(1, 2), Property::I2(2, 3)}));
  EXPECT_EQ(changes(), 2U) << "one for a call";
  store.Write(other, record, Values({Property::I2(1, 2)}));
  EXPECT_EQ(changes(), 3U) << "of the same value, too";
  store.Read(handle);
  store.Write(handle, 0, {});
  store.Write(handle, record + 9, Values({Property::I2(1, 1)}));
  store.DeleteRecord(handle, record + 9);
  store.ChangeDatabase(database, {.type = 2});
  EXPECT_EQ(changes(), 3U) << "none for what changes no record";
  store.DeleteRecord(other, record);
  EXPECT_EQ(changes(), 4U);
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
  EXPECT_EQ(modified(), last);
  const ObjectId record = store.Write(handle, 0, Values({Property::I2(1, 1)})).value;
  expect_later();
  EXPECT_TRUE(store.Read(handle));
  EXPECT_EQ(modified(), last);
  EXPECT_TRUE(store.Write(handle, record, Values({Property::I2(1, 2)})));
  expect_later();
  EXPECT_EQ(store.DeleteRecord(handle, record), StoreError::kNone);
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
  EXPECT_EQ(Store().DeleteDatabase(database_), StoreError::kInUse);
  EXPECT_EQ(Store().Close(first), StoreError::kNone);
  EXPECT_EQ(Store().DeleteDatabase(database_), StoreError::kInUse);
  EXPECT_EQ(Store().Seek(second, SeekTarget::To(kBeginning), nullptr).value, record);
  EXPECT_EQ(Store().Close(second), StoreError::kNone);
  EXPECT_EQ(Store().DeleteDatabase(database_), StoreError::kNone);
  EXPECT_EQ(Store().DeleteDatabase(database_), StoreError::kInvalidParameter);
  EXPECT_EQ(Store().Open(database_, kNoSort, false).error, StoreError::kInvalidParameter);
}

TEST_P(DatabaseTest, OnlyDatabasesOpenAndGo) {
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  const ObjectId record = AddKey(Open(kNoSort), 1);
  EXPECT_EQ(Store().Open(record, kNoSort, false).error, StoreError::kInvalidParameter);
  EXPECT_EQ(Store().DeleteDatabase(record), StoreError::kInvalidParameter);
  EXPECT_EQ(Store().Open(database_, PropertyId(1, PropertyType::kI2), false).error,
            StoreError::kInvalidParameter);
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
    EXPECT_EQ(Store().Read(bad).error, StoreError::kInvalidParameter);
    EXPECT_EQ(Store().Peek(bad).error, StoreError::kInvalidParameter);
    EXPECT_EQ(Store().Seek(bad, SeekTarget::To(kBeginning), nullptr).error,
              StoreError::kInvalidParameter);
    EXPECT_EQ(Store().Write(bad, 0, {&value, 1}).error, StoreError::kInvalidParameter);
    EXPECT_EQ(Store().DeleteRecord(bad, record), StoreError::kInvalidParameter);
    EXPECT_EQ(Store().NextDatabase(bad).error, StoreError::kInvalidParameter);
    EXPECT_EQ(Store().Close(bad), StoreError::kInvalidParameter);
  }
  EXPECT_EQ(Store().Read(young).value.id, record);
}

TEST_P(DatabaseTest, HandlesRunOutAndComeBack) {
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  std::vector<StoreHandle> handles;
  Outcome<StoreHandle> handle = Store().Open(database_, kNoSort, false);
  while (handle) {
    handles.push_back(handle.value);
    handle = Store().Open(database_, kNoSort, false);
  }
  EXPECT_EQ(handle.error, StoreError::kTooManyOpen);
  EXPECT_EQ(handles.size(), 4096U);
  EXPECT_EQ(Store().OpenEnumeration(0).error, StoreError::kTooManyOpen);
  EXPECT_EQ(Store().Close(handles.back()), StoreError::kNone);
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
    EXPECT_EQ(database.error, StoreError::kNoMoreItems);
    EXPECT_EQ(Store().Close(walk), StoreError::kNone);
    return found;
  };
  EXPECT_EQ(all_of(0), (std::vector{a, b, c}));
  EXPECT_EQ(all_of(7), (std::vector{a, c}));
  EXPECT_EQ(all_of(9), std::vector<ObjectId>());
}

TEST_P(DatabaseTest, AnEnumerationEndsWhenADatabaseGoesAndSeesNewOnes) {
  const ObjectId a = Store().CreateDatabase(u"a", 0, {}).value;
  const StoreHandle walk = Store().OpenEnumeration(0).value;
  EXPECT_EQ(Store().NextDatabase(walk).value, a);
  const ObjectId b = Store().CreateDatabase(u"b", 0, {}).value;
  EXPECT_EQ(Store().NextDatabase(walk).value, b);
  EXPECT_EQ(Store().DeleteDatabase(a), StoreError::kNone);
  EXPECT_EQ(Store().NextDatabase(walk).error, StoreError::kDeleted);
  EXPECT_EQ(Store().NextDatabase(walk).error, StoreError::kDeleted);
}

TEST_P(DatabaseTest, AnEnumerationIsNoDatabase) {
  const StoreHandle walk = Store().OpenEnumeration(0).value;
  EXPECT_EQ(Store().Read(walk).error, StoreError::kInvalidParameter);
  database_ = Store().CreateDatabase(u"db", 0, {}).value;
  EXPECT_EQ(Store().NextDatabase(Open(kNoSort)).error, StoreError::kInvalidParameter);
}

TAVIX_STORE_TESTS(DatabaseTest);

}  // namespace
}  // namespace tavix
