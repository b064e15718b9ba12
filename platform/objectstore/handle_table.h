// The open handles of a store.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/objectstore/database.h"

namespace tavix {

// What a handle stands for: a database with a seek pointer, or a walk over the databases.
struct OpenObject {
  Database* database = nullptr;  // null for an enumeration
  std::unique_ptr<Cursor> cursor;

  std::uint32_t type = 0;       // of the databases to find, 0 for all
  ObjectId last_found = 0;      // the walk goes on behind this one
  std::uint64_t deletions = 0;  // how many databases had been deleted when the walk began
};

// A handle that was closed finds nothing, also when its place is in use again: handles count how
// often their place was taken. All have a high bit set that keeps them apart from the system's
// handles, so that one passed to the system's CloseHandle by mistake closes nothing.
class HandleTable {
 public:
  [[nodiscard]] bool IsFull() const;

  // The table must not be full.
  StoreHandle Add(OpenObject object);

  // Null for a handle that is not open.
  [[nodiscard]] OpenObject* Find(StoreHandle handle);

  void Remove(StoreHandle handle);

 private:
  struct Place {
    bool used = false;
    std::uint16_t times_used = 0;
    OpenObject object;
  };

  std::vector<Place> places_;
  std::vector<std::uint32_t> free_;
};

}  // namespace tavix
