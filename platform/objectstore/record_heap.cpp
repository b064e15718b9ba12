#include "platform/objectstore/record_heap.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace tavix {
namespace {

// A copy of a string or blob, followed by a zero character, so that readers can use a string in
// place. Other values have no data to copy.
Property Copy(const Property& property) {
  if (!IsVariableSize(property.Type())) return property;
  const std::span<const std::byte> bytes = property.AsBytes();
  auto* data = new std::byte[bytes.size() + sizeof(char16_t)];
  if (!bytes.empty()) std::memcpy(data, bytes.data(), bytes.size());
  std::memset(data + bytes.size(), 0, sizeof(char16_t));
  return Property::WithData(property, data);
}

void Free(const Property& property) {
  if (IsVariableSize(property.Type())) delete[] property.AsBytes().data();
}

}  // namespace

RecordHeap::~RecordHeap() {
  for (const Record& record : records_) {
    if (record.id != 0) Drop(record);
  }
}

RecordHeap::Slot RecordHeap::Add(ObjectId id, std::span<const Property> properties) {
  if (free_slots_.empty()) MakeSlot();
  const Slot slot = free_slots_.back();
  records_[slot] = Store(id, properties);
  free_slots_.pop_back();
  return slot;
}

// All slots have room among the free ones, so that giving one back needs no memory.
void RecordHeap::MakeSlot() {
  if (records_.size() == records_.capacity()) {
    constexpr std::size_t kFirst = 16;
    records_.reserve(std::max(kFirst, 2 * records_.size()));
  }
  free_slots_.reserve(records_.capacity());
  free_slots_.push_back(SlotEnd());
  records_.emplace_back();
}

void RecordHeap::Replace(Slot slot, std::span<const Property> properties) {
  // The new values are copied before the old ones are freed: they may be in the same memory.
  const std::vector<Property> wanted(properties.begin(), properties.end());
  const Record old = records_[slot];
  records_[slot] = Store(old.id, wanted);
  Drop(old);
}

void RecordHeap::Remove(Slot slot) {
  Drop(records_[slot]);
  records_[slot] = Record();
  free_slots_.push_back(slot);
}

std::uint32_t RecordHeap::TakeCells(std::uint32_t count) {
  if (count < free_cells_.size() && !free_cells_[count].empty()) {
    const std::uint32_t first = free_cells_[count].back();
    free_cells_[count].pop_back();
    return first;
  }
  const auto first = static_cast<std::uint32_t>(cells_.size());
  cells_.resize(cells_.size() + count);
  return first;
}

void RecordHeap::GiveCellsBack(std::uint32_t first, std::uint32_t count) {
  if (count == 0) return;
  try {
    if (count >= free_cells_.size()) free_cells_.resize(count + 1);
    free_cells_[count].push_back(first);
  } catch (const std::bad_alloc&) {
    // They are not used again.
  }
}

RecordHeap::Record RecordHeap::Store(ObjectId id, std::span<const Property> properties) {
  Record record{id, 0, static_cast<std::uint32_t>(properties.size())};
  record.first = TakeCells(record.count);
  std::uint32_t copied = 0;
  try {
    for (; copied < record.count; ++copied) {
      cells_[record.first + copied] = Copy(properties[copied]);
    }
  } catch (const std::bad_alloc&) {
    while (copied > 0) Free(cells_[record.first + --copied]);
    GiveCellsBack(record.first, record.count);
    throw;
  }
  for (const Property& property : properties) bytes_ += ValueBytes(property);
  return record;
}

void RecordHeap::Drop(const Record& record) {
  for (std::uint32_t i = 0; i < record.count; ++i) {
    const Property& property = cells_[record.first + i];
    bytes_ -= ValueBytes(property);
    Free(property);
  }
  GiveCellsBack(record.first, record.count);
}

}  // namespace tavix
