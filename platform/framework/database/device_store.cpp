#include "platform/framework/database/device_store.h"

#include <utility>

#include "platform/objectstore/memory_store.h"

namespace {

// CharLowerW converts a single character when the upper part of its pointer argument is 0.
char16_t FoldAsSystem(char16_t character) {
  auto* const in_place_of_text = reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(character));
  return static_cast<char16_t>(reinterpret_cast<ULONG_PTR>(CharLowerW(in_place_of_text)));
}

// The time by the system's tick, some 16 ms: reading the clock itself for each record that is
// written would cost as much as writing it.
std::uint64_t TimeOfTick() {
  static ULONGLONG tick = 0;
  static std::uint64_t time = 0;
  const ULONGLONG now = GetTickCount64();
  if (time == 0 || now != tick) {
    tick = now;
    time = tavix::SystemFileTime();
  }
  return time;
}

tavix::ObjectStore& OwnStore() {
  static tavix::MemoryStore store(&FoldAsSystem, &TimeOfTick);
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
