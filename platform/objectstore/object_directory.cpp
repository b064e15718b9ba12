#include "platform/objectstore/object_directory.h"

namespace tavix {

void ObjectDirectory::MakeRoom(Database* database) {
  const std::uint32_t number = next_ / kPageSize;
  if (number >= pages_.size()) pages_.resize(number + 1);
  if (!pages_[number]) pages_[number] = std::make_unique<Page>();
  Page& page = *pages_[number];
  if (page.owners || page.used == 0 || page.owner == database) return;
  page.owners = std::make_unique<std::array<Database*, kPageSize>>();
  page.owners->fill(page.owner);
}

void ObjectDirectory::Add(Place place) {
  Page& page = *pages_[next_ / kPageSize];
  if (page.owners) {
    (*page.owners)[next_ % kPageSize] = place.database;
  } else {
    page.owner = place.database;
  }
  page.slots[next_ % kPageSize] = place.slot;
  ++page.used;
  ++next_;
}

void ObjectDirectory::Remove(ObjectId id) {
  std::unique_ptr<Page>& page = pages_[id / kPageSize];
  page->slots[id % kPageSize] = kNothing;
  if (--page->used == 0) page.reset();
}

std::optional<ObjectDirectory::Place> ObjectDirectory::Find(ObjectId id) const {
  const std::uint32_t number = id / kPageSize;
  if (number >= pages_.size() || !pages_[number]) return std::nullopt;
  const Page& page = *pages_[number];
  const std::uint32_t slot = page.slots[id % kPageSize];
  if (slot == kNothing) return std::nullopt;
  return Place{page.owners ? (*page.owners)[id % kPageSize] : page.owner, slot};
}

}  // namespace tavix
