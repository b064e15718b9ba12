// The store that code without a handle to one uses.
#pragma once

#include "platform/objectstore/object_store.h"

namespace tavix {

// The store installed last, or the process's own in-memory one. Each module that links this library
// has its own.
ObjectStore& CurrentStore();

// Installs a store and returns the one before it; null, given or returned, is the process's own.
// The caller keeps the store alive until another is installed.
ObjectStore* SetCurrentStore(ObjectStore* store);

}  // namespace tavix
