// Stores whose changes run out of memory, once at each allocation: a change that throws has changed
// nothing, and can be made afterwards.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <tuple>
#include <vector>

#include "platform/objectstore/memory_store.h"
#include "store/legend_table.h"
#include "store/line_index.h"
#include "store/point_list.h"
#include "tests/reliability/failing_new.h"

namespace tavix {
namespace {

using test::FailingNew;

// Makes the change in stores made alike, each time with the next allocation failing, until there
// are no more. `state` is all that the store answers.
template <class Make, class Change, class State>
void ForEachFailure(Make make, Change change, State state) {
  auto whole = make();
  const auto before = state(*whole);
  change(*whole);
  const auto after = state(*whole);
  for (int nth = 1;; ++nth) {
    auto store = make();
    bool thrown = false;
    {
      const FailingNew failing(nth);
      try {
        change(*store);
      } catch (const std::bad_alloc&) {
        thrown = true;
      }
    }
    if (thrown) {
      ASSERT_EQ(before, state(*store)) << "after allocation " << nth << " failed";
      change(*store);
    }
    ASSERT_EQ(after, state(*store)) << "allocation " << nth;
    if (!FailingNew::HasFailed()) return;
  }
}

// ---- Points

using PointState = std::vector<std::tuple<std::int32_t, std::int32_t, std::u16string, double, int>>;

GroundPoint PlaceOf(int key) { return {1.0 * (key % 37), 2.0 * (key / 37)}; }

std::unique_ptr<CPntList> Points(int count) {
  auto points = std::make_unique<CPntList>();
  for (int key = 0; key < count; ++key) {
    const std::u16string name(static_cast<std::size_t>(20 + key % 50), u'n');
    points->Add({key, key, name, PlaceOf(key), 1});
  }
  return points;
}

// Every point in order, then every point by its key and by its place.
PointState StateOf(CPntList& points) {
  PointState state;
  const auto add = [&](const Point& point) {
    state.emplace_back(point.key, point.number, point.name, point.at.north, point.legend);
  };
  points.ForEach(add);
  const std::size_t count = state.size();
  for (std::size_t i = 0; i < count; ++i) {
    Point point;
    EXPECT_EQ(0, points.Find(std::get<0>(state[i])));
    EXPECT_EQ(0, points.GetCur(&point));
    add(point);
    std::int32_t nearest = -1;
    EXPECT_EQ(0, points.FindNearest(0.1, point.at, &nearest));
    state.emplace_back(nearest, 0, u"", 0.0, 0);
  }
  return state;
}

TEST(MemoryFailures, LeavePointsAsTheyWere) {
  using Change = std::function<void(CPntList&)>;
  const std::u16string long_name(5000, u'l');
  const std::array<Change, 4> changes{[&](CPntList& points) {
                                        points.Add({-5, 1, long_name, {-10.0, -10.0}, 2});
                                      },
                                      [&](CPntList& points) {
                                        points.Find(0);
                                        points.SetCur(9, long_name, {-10.0, -10.0}, 2);
                                      },
                                      [&](CPntList& points) {
                                        points.Find(0);
                                        points.SetCurNoNam(9, long_name);
                                      },
                                      [&](CPntList& points) { points.Remove(0); }};
  for (const int count : {1, 31, 32, 33, 63, 64, 500}) {
    for (std::size_t i = 0; i < changes.size(); ++i) {
      SCOPED_TRACE(testing::Message() << count << " points, change " << i);
      ForEachFailure([=] { return Points(count); }, changes[i], &StateOf);
    }
  }
}

// Holes in the list and gaps among the names are closed by one of the removals.
TEST(MemoryFailures, LeavePointsAsTheyWereWhenHolesAreClosed) {
  const auto make = [] {
    auto points = Points(400);
    for (int key = 0; key < 199; ++key) points->Remove(key);
    return points;
  };
  for (int key = 199; key < 202; ++key) {
    const auto remove = [=](CPntList& points) {
      for (int removed = 199; removed <= key; ++removed) points.Remove(removed);
    };
    // Of several removals the first ones stay: the state after is asked for only.
    auto expected = make();
    remove(*expected);
    for (int nth = 1; nth < 10; ++nth) {
      auto points = make();
      {
        const FailingNew failing(nth);
        remove(*points);
      }
      EXPECT_EQ(StateOf(*expected), StateOf(*points)) << "allocation " << nth;
    }
  }
}

// Before the index has anything, while it has built nothing yet, and once it has built its tree.
TEST(MemoryFailures, LeaveTheSpatialIndexRight) {
  const auto search = [](CPntList& points, int times) {
    std::int32_t nearest = 0;
    for (int i = 0; i < times; ++i) points.FindNearest(0.1, {-1.0, -1.0}, &nearest);
  };
  for (const int searches : {0, 1, 100}) {
    SCOPED_TRACE(testing::Message() << searches << " searches before");
    const auto make = [=] {
      auto points = Points(2000);
      search(*points, searches);
      return points;
    };
    ForEachFailure(
        make,
        [=](CPntList& points) {
          search(points, 100);
          points.Find(1500);
          points.SetCurCrd({-20.0, -20.0});
        },
        &StateOf);
  }
}

// ---- Lines and legend

TEST(MemoryFailures, LeaveTheLineIndexAsItWas) {
  for (const int count : {0, 31, 32, 64, 100}) {
    const auto make = [=] {
      auto index = std::make_unique<LineIndex>();
      for (int i = 0; i < count; ++i)
        index->Enter(LineKeys::Of(i, i + 1), 100U + static_cast<unsigned>(i));
      return index;
    };
    ForEachFailure(
        make, [](LineIndex& index) { index.Enter(LineKeys::Of(7000, 8000), 7); },
        [=](LineIndex& index) {
          std::vector<std::uint32_t> found{index.Find(LineKeys::Of(7000, 8000))};
          for (int i = 0; i < count; ++i) found.push_back(index.Find(LineKeys::Of(i, i + 1)));
          return found;
        });
  }
}

TEST(MemoryFailures, LeaveTheLegendAsItWas) {
  ForEachFailure([] { return std::make_unique<LegendTable>(); },
                 [](LegendTable& legend) {
                   std::int16_t number = 0;
                   legend.Add(true, {1, 2, 3, 4, 5, 6}, &number);
                 },
                 [](LegendTable& legend) { return legend.Entries(); });
}

// ---- Device databases

constexpr std::uint16_t kNumber = 1;
constexpr std::uint16_t kName = 2;

struct Databases {
  MemoryStore store;
  ObjectId database = 0;
  StoreHandle by_number = 0;
  std::vector<ObjectId> records;

  void Write(ObjectId record, int number, const std::u16string& name) {
    const std::array<Property, 2> properties{
        Property::I2(kNumber, static_cast<std::int16_t>(number)), Property::String(kName, name)};
    const Outcome<ObjectId> written = store.Write(by_number, record, properties);
    EXPECT_EQ(StoreError::kNone, written.error);
    if (record == 0) records.push_back(written.value);
  }
};

std::unique_ptr<Databases> DatabaseWith(int count) {
  auto made = std::make_unique<Databases>();
  const std::array<SortOrder, 2> orders{SortOrder{PropertyId(kNumber, PropertyType::kI2)},
                                        SortOrder{PropertyId(kName, PropertyType::kString)}};
  made->database = made->store.CreateDatabase(u"test", 1, orders).value;
  made->by_number =
      made->store.Open(made->database, PropertyId(kNumber, PropertyType::kI2), false).value;
  made->records.reserve(static_cast<std::size_t>(count) + 8);
  for (int i = 0; i < count; ++i) made->Write(0, (i * 7) % 50, std::u16string(5, u'a'));
  return made;
}

// All records in the order of number, then in that of name.
std::vector<std::u16string> RecordsOf(Databases& databases) {
  std::vector<std::u16string> all;
  for (const PropertyId sort :
       {PropertyId(kNumber, PropertyType::kI2), PropertyId(kName, PropertyType::kString)}) {
    const StoreHandle handle = databases.store.Open(databases.database, sort, true).value;
    SeekTarget first;
    first.kind = SeekTarget::Kind::kBeginning;
    for (auto at = databases.store.Seek(handle, first, nullptr); at;) {
      const auto record = databases.store.Read(handle);
      if (!record) break;
      std::u16string text;
      for (const Property& property : record.value.properties) {
        if (property.Type() == PropertyType::kString) text += property.AsString();
        if (property.Type() == PropertyType::kI2)
          text += static_cast<char16_t>(property.AsI2() + 1);
      }
      all.push_back(text);
    }
    databases.store.Close(handle);
  }
  return all;
}

TEST(MemoryFailures, LeaveTheRecordsOfADatabaseAsTheyWere) {
  using Change = std::function<void(Databases&)>;
  const std::u16string long_name(3000, u'b');
  const auto write = [](Databases& databases, ObjectId record, const Property& value) {
    EXPECT_EQ(StoreError::kNone,
              databases.store.Write(databases.by_number, record, {&value, 1}).error);
  };
  const std::array<Change, 7> changes{
      [&](Databases& databases) { databases.Write(0, 25, long_name); },
      // Properties that the other records have not, or have and it has not.
      [&](Databases& databases) { write(databases, 0, Property::String(3, long_name)); },
      [&](Databases& databases) {
        write(databases, databases.records[1], Property::String(3, long_name));
      },
      [&](Databases& databases) {
        write(databases, databases.records[1],
              Property::Removal(PropertyId(kName, PropertyType::kString)));
      },
      [&](Databases& databases) { databases.Write(databases.records[0], 49, long_name); },
      [&](Databases& databases) {
        databases.store.DeleteRecord(databases.by_number, databases.records[0]);
        databases.records[0] = databases.records[1];
      },
      [&](Databases& databases) {
        const auto opened = databases.store.Open(databases.database, PropertyId(), false);
        databases.store.Close(opened.value);
      }};
  for (const int count : {2, 16, 33, 300}) {
    for (std::size_t i = 0; i < changes.size(); ++i) {
      SCOPED_TRACE(testing::Message() << count << " records, change " << i);
      ForEachFailure([=] { return DatabaseWith(count); }, changes[i], &RecordsOf);
    }
  }
}

}  // namespace
}  // namespace tavix
