#include "platform/objectstore/object_directory.h"

namespace tavix {

ObjectId ObjectDirectory::Add() {
  if (next_ == 0) return 0;
  const std::uint32_t page = next_ / kPageSize;
  if (page >= pages_.size()) pages_.resize(page + 1);
  if (!pages_[page]) pages_[page] = std::make_unique<Page>();
  ++pages_[page]->used;
  return next_++;
}

void ObjectDirectory::Set(ObjectId id, Place place) {
  pages_[id / kPageSize]->places[id % kPageSize] = place;
}

void ObjectDirectory::Remove(ObjectId id) {
  std::unique_ptr<Page>& page = pages_[id / kPageSize];
  page->places[id % kPageSize] = Place();
  if (--page->used == 0) page.reset();
}

const ObjectDirectory::Place* ObjectDirectory::Find(ObjectId id) const {
  const std::uint32_t page = id / kPageSize;
  if (page >= pages_.size() || !pages_[page]) return nullptr;
  const Place& place = pages_[page]->places[id % kPageSize];
  return place.database ? &place : nullptr;
}

}  // namespace tavix
