// Where the object with an identifier is.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

class Database;

// Gives out identifiers in rising order, each once, and finds their objects in constant time. The
// places lie in pages by identifier; a page goes when its last object has gone, so that what stays
// behind of an old identifier is one empty pointer for every 1024 of them.
class ObjectDirectory {
 public:
  static constexpr std::uint32_t kIsDatabase = 0xFFFFFFFF;

  struct Place {
    Database* database = nullptr;
    std::uint32_t slot = kIsDatabase;  // of a record
  };

  // A new identifier, or 0 when all have been given out. Its place is set as soon as it is known.
  ObjectId Add();
  void Set(ObjectId id, Place place);

  void Remove(ObjectId id);

  // Null when there is no such object.
  [[nodiscard]] const Place* Find(ObjectId id) const;

 private:
  static constexpr std::uint32_t kPageSize = 1024;

  struct Page {
    std::array<Place, kPageSize> places{};
    std::uint32_t used = 0;
  };

  std::vector<std::unique_ptr<Page>> pages_;
  ObjectId next_ = 1;
};

}  // namespace tavix
