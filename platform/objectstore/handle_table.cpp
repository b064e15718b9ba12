#include "platform/objectstore/handle_table.h"

#include <utility>

namespace tavix {
namespace {

constexpr StoreHandle kMark = 0x40000000;
constexpr std::uint32_t kPlaceBits = 12;
constexpr std::uint32_t kMaxPlaces = 1U << kPlaceBits;

std::uint32_t PlaceOf(StoreHandle handle) { return handle & (kMaxPlaces - 1); }

StoreHandle MakeHandle(std::uint32_t place, std::uint16_t times_used) {
  return kMark | std::uint32_t{times_used} << kPlaceBits | place;
}

}  // namespace

bool HandleTable::IsFull() const { return free_.empty() && places_.size() == kMaxPlaces; }

void HandleTable::MakeRoom() {
  if (!free_.empty()) return;
  // Removing a handle then needs no memory.
  if (free_.capacity() <= places_.size()) free_.reserve(2 * places_.size() + 1);
  places_.emplace_back();
  free_.push_back(static_cast<std::uint32_t>(places_.size() - 1));
}

StoreHandle HandleTable::Add(OpenObject object) {
  MakeRoom();
  const std::uint32_t index = free_.back();
  free_.pop_back();
  Place& place = places_[index];
  place.used = true;
  ++place.times_used;
  place.object = std::move(object);
  return MakeHandle(index, place.times_used);
}

OpenObject* HandleTable::Find(StoreHandle handle) {
  const std::uint32_t index = PlaceOf(handle);
  if (index >= places_.size()) return nullptr;
  Place& place = places_[index];
  return place.used && handle == MakeHandle(index, place.times_used) ? &place.object : nullptr;
}

void HandleTable::Remove(StoreHandle handle) {
  Place& place = places_[PlaceOf(handle)];
  place.used = false;
  place.object = OpenObject();
  free_.push_back(PlaceOf(handle));
}

}  // namespace tavix
