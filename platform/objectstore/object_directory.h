// From an identifier to its object.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

class Database;

// Assigns identifiers in ascending order, each once, and finds their objects in constant time. The
// places are kept in pages of 1024 identifiers. A page is freed with its last object, so old
// identifiers cost one null pointer for each page.
class ObjectDirectory {
 public:
  static constexpr std::uint32_t kIsDatabase = 0xFFFFFFFF;

  struct Place {
    Database* database = nullptr;
    std::uint32_t slot = kIsDatabase;  // of a record
  };

  // A new identifier, or 0 when all have been used. The caller sets its place next.
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
