#include "platform/objectstore/current_store.h"

#include <utility>

#include "platform/objectstore/memory_store.h"

namespace tavix {
namespace {

ObjectStore*& Installed() {
  static ObjectStore* installed = nullptr;
  return installed;
}

}  // namespace

ObjectStore& CurrentStore() {
  if (Installed()) return *Installed();
  static MemoryStore own;
  return own;
}

ObjectStore* SetCurrentStore(ObjectStore* store) { return std::exchange(Installed(), store); }

}  // namespace tavix
