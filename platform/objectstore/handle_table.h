// The open handles of a store.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/objectstore/database.h"

namespace tavix {

// What a handle refers to: a database with a seek pointer, or an enumeration of databases.
struct OpenObject {
  Database* database = nullptr;  // null for an enumeration
  std::unique_ptr<Cursor> cursor;

  std::uint32_t type = 0;       // of the databases to find, 0 for all
  ObjectId last_found = 0;      // the enumeration continues after this one
  std::uint64_t deletions = 0;  // number of databases deleted before the enumeration began
};

// A closed handle finds nothing, even when its slot is in use again: a handle contains how often
// its slot has been used. All handles have a high bit set that system handles do not have, so that
// one passed to CloseHandle by mistake closes nothing.
class HandleTable {
 public:
  [[nodiscard]] bool IsFull() const;

  // The table must not be full. Makes room for one handle, so that the next Add needs no memory.
  void MakeRoom();

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
