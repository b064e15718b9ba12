// From an identifier to its object.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

class Database;

// Assigns identifiers in ascending order, each once, and finds their objects in constant time. The
// places are kept in pages of 1024 identifiers. Most pages belong to one database: only where
// several share a page it keeps the database of each identifier. A page is freed with its last
// object, so old identifiers cost one null pointer for each page.
class ObjectDirectory {
 public:
  static constexpr std::uint32_t kIsDatabase = 0xFFFFFFFF;

  struct Place {
    Database* database = nullptr;
    std::uint32_t slot = kIsDatabase;  // of a record
  };

  // The identifier of the next object, or 0 when all have been used.
  [[nodiscard]] ObjectId Next() const { return next_; }

  // Takes the memory that the next object needs: one of this database, or the database itself.
  void MakeRoom(Database* database);

  // Gives the next identifier to an object for which there is room.
  void Add(Place place);

  void Remove(ObjectId id);

  // Nothing when there is no such object.
  [[nodiscard]] std::optional<Place> Find(ObjectId id) const;

 private:
  static constexpr std::uint32_t kPageSize = 1024;
  static constexpr std::uint32_t kNothing = 0xFFFFFFFE;

  struct Page {
    Page() { slots.fill(kNothing); }

    std::array<std::uint32_t, kPageSize> slots;
    std::uint32_t used = 0;
    Database* owner = nullptr;  // of all objects, unless there are `owners`
    std::unique_ptr<std::array<Database*, kPageSize>> owners;
  };

  std::vector<std::unique_ptr<Page>> pages_;
  ObjectId next_ = 1;
};

}  // namespace tavix
