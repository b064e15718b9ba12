#include "platform/framework/database/device_store.h"

#include <utility>

#include "platform/objectstore/memory_store.h"

namespace {

// CharLowerW converts a single character when the upper part of its pointer argument is 0.
char16_t FoldAsSystem(char16_t character) {
  auto* const in_place_of_text = reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(character));
  return static_cast<char16_t>(reinterpret_cast<ULONG_PTR>(CharLowerW(in_place_of_text)));
}

tavix::ObjectStore& OwnStore() {
  static tavix::MemoryStore store(&FoldAsSystem);
  return store;
}

tavix::ObjectStore*& Installed() {
  static tavix::ObjectStore* installed = &OwnStore();
  return installed;
}

}  // namespace

tavix::ObjectStore& DeviceStore() { return *Installed(); }

tavix::ObjectStore* SetDeviceStore(tavix::ObjectStore* store) {
  return std::exchange(Installed(), store ? store : &OwnStore());
}
