// What the object store's calls cost for a line store of 100,000 records: five 16-bit properties,
// two of them sorted, eight records to each value of the first.
//
//   Floor/*       what the memory alone costs: the same bytes appended to, or walked in, a vector
//   AddRecords    new records, no order asked for; then with one and two orders in use
//   AddThenSort   new records and the first seek after them, which puts them in order
//   WalkEqual     first-equal, next-equal over all values, with a read of each record
//   SeekValue     first-equal to values at random
//   SeekIndex     to places at random, with the index back
//   Reopen        close, and open with the other order
//   ChangeKey     a record moves to another value and a seek asks for the order
//   DeleteAdd     a record goes, another comes, and a seek asks for the order
#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <vector>

#include "platform/objectstore/memory_store.h"

namespace tavix {
namespace {

constexpr int kRecords = 100000;
constexpr int kEqual = 8;
constexpr std::uint16_t kLine = 111;
constexpr std::uint16_t kPoint = 112;
constexpr PropertyId kByLine(kLine, PropertyType::kI2);
constexpr PropertyId kByPoint(kPoint, PropertyType::kI2);
constexpr std::array<SortOrder, 2> kOrders = {SortOrder{.property = kByLine},
                                              SortOrder{.property = kByPoint}};

// A number below 32749 that looks like chance.
std::int16_t Mixed(int i) { return static_cast<std::int16_t>(std::int64_t{i} * 25033 % 32749); }

std::array<Property, 5> Record(int i) {
  const auto line = static_cast<std::int16_t>(i / kEqual);
  return {Property::I2(kLine, line), Property::I2(kPoint, Mixed(i)), Property::I2(113, 3),
          Property::I2(114, 4), Property::I2(115, 5)};
}

struct LineStore {
  LineStore() {
    database = store.CreateDatabase(u"lines", 0, kOrders).value;
    by_line = store.Open(database, kByLine, false).value;
  }
  void Fill() {
    for (int i = 0; i < kRecords; ++i) ids.push_back(store.Write(by_line, 0, Record(i)).value);
  }

  MemoryStore store;
  ObjectId database = 0;
  StoreHandle by_line = 0;
  std::vector<ObjectId> ids;
};

void PerItem(benchmark::State& state, int items) {
  state.SetItemsProcessed(state.iterations() * items);
}

void FloorAppend(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::array<Property, 5>> records;
    for (int i = 0; i < kRecords; ++i) records.push_back(Record(i));
    benchmark::DoNotOptimize(records.data());
  }
  PerItem(state, kRecords);
}

void FloorWalk(benchmark::State& state) {
  std::vector<std::array<Property, 5>> records;
  for (int i = 0; i < kRecords; ++i) records.push_back(Record(i));
  for (auto _ : state) {
    int sum = 0;
    for (const auto& record : records) sum += FindProperty(record, kByLine)->AsI2();
    benchmark::DoNotOptimize(sum);
  }
  PerItem(state, kRecords);
}

// state.range(0): how many of the orders have been asked for before.
void AddRecords(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      LineStore lines;
      if (state.range(0) > 1) lines.store.Open(lines.database, kByPoint, false);
      state.ResumeTiming();
      lines.Fill();
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  PerItem(state, kRecords);
}

void AddThenSort(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      LineStore lines;
      state.ResumeTiming();
      lines.Fill();
      lines.store.Seek(lines.by_line, SeekTarget::To(SeekTarget::Kind::kBeginning), nullptr);
      const StoreHandle by_point = lines.store.Open(lines.database, kByPoint, false).value;
      benchmark::DoNotOptimize(by_point);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  PerItem(state, kRecords);
}

void WalkEqual(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  for (auto _ : state) {
    int sum = 0;
    for (int line = 0; line < kRecords / kEqual; ++line) {
      const Property value = Property::I2(kLine, static_cast<std::int16_t>(line));
      SeekTarget target = SeekTarget::ToValue(SeekTarget::Kind::kFirstEqual, value);
      while (lines.store.Seek(lines.by_line, target, nullptr)) {
        sum += lines.store.Read(lines.by_line).value.properties[1].AsI2();
        target.kind = SeekTarget::Kind::kNextEqual;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  PerItem(state, kRecords);
}

void SeekValue(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  int i = 0;
  for (auto _ : state) {
    const Property value = Property::I2(kLine, static_cast<std::int16_t>(Mixed(++i) % 12500));
    benchmark::DoNotOptimize(lines.store.Seek(
        lines.by_line, SeekTarget::ToValue(SeekTarget::Kind::kFirstEqual, value), nullptr));
  }
  PerItem(state, 1);
}

void SeekIndex(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  int i = 0;
  for (auto _ : state) {
    std::uint32_t index = 0;
    benchmark::DoNotOptimize(lines.store.Seek(
        lines.by_line, SeekTarget::To(SeekTarget::Kind::kBeginning, Mixed(++i)), &index));
  }
  PerItem(state, 1);
}

void Reopen(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  bool by_point = false;
  for (auto _ : state) {
    lines.store.Close(lines.by_line);
    by_point = !by_point;
    lines.by_line = lines.store.Open(lines.database, by_point ? kByPoint : kByLine, false).value;
  }
  PerItem(state, 1);
}

void ChangeKey(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  std::mt19937 random(1);
  for (auto _ : state) {
    const ObjectId id = lines.ids[random() % kRecords];
    const Property value = Property::I2(kLine, static_cast<std::int16_t>(random() % 12500));
    lines.store.Write(lines.by_line, id, {&value, 1});
    benchmark::DoNotOptimize(
        lines.store.Seek(lines.by_line, SeekTarget::To(SeekTarget::Kind::kCurrent, 1), nullptr));
  }
  PerItem(state, 1);
}

void DeleteAdd(benchmark::State& state) {
  LineStore lines;
  lines.Fill();
  std::mt19937 random(1);
  int i = 0;
  for (auto _ : state) {
    ObjectId& id = lines.ids[random() % kRecords];
    lines.store.DeleteRecord(lines.by_line, id);
    id = lines.store.Write(lines.by_line, 0, Record(++i % kRecords)).value;
    benchmark::DoNotOptimize(
        lines.store.Seek(lines.by_line, SeekTarget::To(SeekTarget::Kind::kCurrent, 1), nullptr));
  }
  PerItem(state, 1);
}

BENCHMARK(FloorAppend);
BENCHMARK(FloorWalk);
BENCHMARK(AddRecords)->Arg(1)->Arg(2);
BENCHMARK(AddThenSort);
BENCHMARK(WalkEqual);
BENCHMARK(SeekValue);
BENCHMARK(SeekIndex);
BENCHMARK(Reopen);
BENCHMARK(ChangeKey);
BENCHMARK(DeleteAdd);

}  // namespace
}  // namespace tavix

BENCHMARK_MAIN();
