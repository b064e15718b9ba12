#include "platform/objectstore/record_heap.h"

#include <cstring>

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
  Slot slot = SlotEnd();
  if (free_slots_.empty()) {
    records_.emplace_back();
  } else {
    slot = free_slots_.back();
    free_slots_.pop_back();
  }
  Record& record = records_[slot];
  record.id = id;
  Fill(record, properties);
  return slot;
}

void RecordHeap::Replace(Slot slot, std::span<const Property> properties) {
  // The new values are copied before the old ones are freed: they may be in the same memory.
  Record& record = records_[slot];
  const std::vector<Property> wanted(properties.begin(), properties.end());
  const Record old = record;
  Fill(record, wanted);
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
  if (count >= free_cells_.size()) free_cells_.resize(count + 1);
  free_cells_[count].push_back(first);
}

void RecordHeap::Fill(Record& record, std::span<const Property> properties) {
  record.count = static_cast<std::uint32_t>(properties.size());
  record.first = TakeCells(record.count);
  for (std::size_t i = 0; i < properties.size(); ++i) {
    cells_[record.first + i] = Copy(properties[i]);
    bytes_ += ValueBytes(properties[i]);
  }
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
