#include "platform/objectstore/record_heap.h"

#include <cstring>
#include <new>

namespace tavix {
namespace {

// A copy of a string or blob, followed by a zero character, so that readers can use a string in
// place.
const std::byte* Copy(std::span<const std::byte> bytes) {
  auto* data = new std::byte[bytes.size() + sizeof(char16_t)];
  if (!bytes.empty()) std::memcpy(data, bytes.data(), bytes.size());
  std::memset(data + bytes.size(), 0, sizeof(char16_t));
  return data;
}

void FreeData(const RecordValues& values, std::size_t count) {
  for (std::size_t number = 0; number < count; ++number) {
    const Property property = values[number];
    if (IsVariableSize(property.Type())) delete[] property.AsBytes().data();
  }
}

std::size_t HashOf(std::span<const Property> properties) {
  constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = properties.size();
  for (const Property& property : properties) hash = (hash ^ property.Id().Value()) * kSpread;
  return static_cast<std::size_t>(hash ^ hash >> 32);
}

std::uint64_t BytesOf(const RecordLayout& layout, const std::byte* row) {
  if (!layout.HasData()) return layout.RowBytes();
  std::uint64_t bytes = 0;
  const RecordValues values(layout, row);
  for (const Property& property : values) bytes += ValueBytes(property);
  return bytes;
}

}  // namespace

RecordHeap::~RecordHeap() {
  for (Slot row = 0; row < SlotEnd(); ++row) {
    const Page& page = pages_[row / kRows];
    // The row of a record whose values have moved holds none.
    if (!page.taken.Has(row % kRows) || !page.shape->layout.HasData()) continue;
    if (page.moved > 0 && moved_.contains(row)) continue;
    FreeData({page.shape->layout, ValuesIn(row)}, page.shape->layout.Count());
  }
}

ObjectId RecordHeap::Id(Slot slot) const {
  if (!pages_[slot / kRows].taken.Has(slot % kRows)) return 0;
  ObjectId id = 0;
  std::memcpy(&id, RowAt(slot), sizeof id);
  return id;
}

// ---- Records

RecordHeap::Slot RecordHeap::Add(ObjectId id, std::span<const Property> properties) {
  Shape& shape = ShapeFor(properties);
  const Slot slot = FreeRow(shape);
  Encode(shape, id, properties);
  Take(slot);
  CopyFresh(slot);
  ++count_;
  return slot;
}

void RecordHeap::Replace(Slot slot, std::span<const Property> properties) {
  const Slot old = RowOf(slot);
  Shape& home = *pages_[slot / kRows].shape;
  Shape& shape = ShapeFor(properties);
  if (&shape == pages_[old / kRows].shape || &shape == &home) {
    // In the row that the values are in, or back in the record's own.
    const bool returns = &shape == &home && old != slot;
    Encode(shape, old == slot || returns ? Id(slot) : ObjectId{0}, properties);
    FreeValues(old);
    CopyFresh(returns ? slot : old);
    if (!returns) return;
    GiveBack(old);
    moved_.erase(slot);
    --pages_[slot / kRows].moved;
    return;
  }
  const Slot row = FreeRow(shape);
  const auto [entry, is_first] = moved_.try_emplace(slot, old);
  try {
    Encode(shape, 0, properties);
  } catch (const std::bad_alloc&) {
    if (is_first) moved_.erase(entry);
    throw;
  }
  Take(row);
  CopyFresh(row);
  FreeValues(old);
  entry->second = row;
  if (is_first) {
    ++pages_[slot / kRows].moved;
  } else {
    GiveBack(old);
  }
}

void RecordHeap::Remove(Slot slot) {
  const Slot row = RowOf(slot);
  FreeValues(row);
  if (row != slot) {
    GiveBack(row);
    moved_.erase(slot);
    --pages_[slot / kRows].moved;
  }
  GiveBack(slot);
  --count_;
}

RecordHeap::Slot RecordHeap::MovedRowOf(Slot slot) const {
  const auto moved = moved_.find(slot);
  return moved == moved_.end() ? slot : moved->second;
}

void RecordHeap::Encode(const Shape& shape, ObjectId id, std::span<const Property> properties) {
  const RecordLayout& layout = shape.layout;
  fresh_.resize(RowBytes(shape));
  std::memcpy(fresh_.data(), &id, sizeof id);
  std::byte* values = fresh_.data() + sizeof id;
  std::size_t written = 0;
  try {
    for (; written < properties.size(); ++written) {
      const Property& property = properties[written];
      const bool is_data = IsVariableSize(property.Type());
      layout.Write(values, written,
                   is_data ? Property::WithData(property, Copy(property.AsBytes())) : property);
    }
  } catch (const std::bad_alloc&) {
    FreeData({layout, values}, written);
    throw;
  }
}

void RecordHeap::CopyFresh(Slot row) {
  std::memcpy(RowAt(row), fresh_.data(), fresh_.size());
  bytes_ += BytesOf(pages_[row / kRows].shape->layout, ValuesIn(row));
}

void RecordHeap::FreeValues(Slot row) {
  const RecordLayout& layout = pages_[row / kRows].shape->layout;
  bytes_ -= BytesOf(layout, ValuesIn(row));
  if (layout.HasData()) FreeData({layout, ValuesIn(row)}, layout.Count());
}

// ---- Rows

RecordHeap::Slot RecordHeap::FreeRow(Shape& shape) {
  const std::uint32_t number = shape.with_room != kNone ? shape.with_room : MakePage(shape);
  Page& page = pages_[number];
  const Slot row = page.taken.FirstFree();
  const std::size_t end = (row + 1) * RowBytes(shape);
  if (page.rows.size() < end) page.rows.resize(end);
  return number * kRows + row;
}

void RecordHeap::Take(Slot row) {
  Page& page = pages_[row / kRows];
  page.taken.Insert(row % kRows);
  if (page.taken.IsFull()) Unlist(row / kRows);
}

void RecordHeap::GiveBack(Slot row) {
  const std::uint32_t number = row / kRows;
  Page& page = pages_[number];
  if (page.taken.IsFull()) ListAsWithRoom(number);
  page.taken.Erase(row % kRows);
  if (page.taken.IsEmpty()) DropPage(number);
}

// ---- Pages and layouts

RecordHeap::Shape& RecordHeap::ShapeFor(std::span<const Property> properties) {
  if (recent_ && recent_->layout.Fits(properties)) return *recent_;
  const std::size_t hash = HashOf(properties);
  const auto [first, last] = shapes_.equal_range(hash);
  for (auto shape = first; shape != last; ++shape) {
    if (shape->second.layout.Fits(properties)) return *(recent_ = &shape->second);
  }
  return *(recent_ = &shapes_.emplace(hash, Shape{RecordLayout(properties), hash})->second);
}

std::uint32_t RecordHeap::MakePage(Shape& shape) {
  if (empty_pages_ == kNone) {
    pages_.emplace_back();
    empty_pages_ = static_cast<std::uint32_t>(pages_.size() - 1);
  }
  const std::uint32_t number = empty_pages_;
  empty_pages_ = pages_[number].next;
  pages_[number].shape = &shape;
  ++shape.pages;
  ListAsWithRoom(number);
  return number;
}

// A page without records gives its memory back, and with the last page of a layout the layout goes.
void RecordHeap::DropPage(std::uint32_t number) {
  Unlist(number);
  Shape* shape = pages_[number].shape;
  pages_[number] = Page();
  pages_[number].next = empty_pages_;
  empty_pages_ = number;
  if (--shape->pages > 0) return;
  if (recent_ == shape) recent_ = nullptr;
  auto entry = shapes_.equal_range(shape->hash).first;
  while (&entry->second != shape) ++entry;
  shapes_.erase(entry);
}

void RecordHeap::ListAsWithRoom(std::uint32_t number) {
  Page& page = pages_[number];
  page.previous = kNone;
  page.next = page.shape->with_room;
  if (page.next != kNone) pages_[page.next].previous = number;
  page.shape->with_room = number;
}

void RecordHeap::Unlist(std::uint32_t number) {
  Page& page = pages_[number];
  if (page.previous != kNone) {
    pages_[page.previous].next = page.next;
  } else {
    page.shape->with_room = page.next;
  }
  if (page.next != kNone) pages_[page.next].previous = page.previous;
}

}  // namespace tavix
