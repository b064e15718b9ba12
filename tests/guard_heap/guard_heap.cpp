// A heap that catches what goes over the end of a block, and whoever uses a block after its end.
//
// Every block has pages of its own and ends at one that cannot be read. Freed pages stay
// unreadable: no address is given out twice. In a build with TAVIX_GUARD_HEAP all modules call
// these functions in place of the C runtime's. No static local here: the lock that guards its
// initialisation takes memory from this heap.
#include <windows.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kRoom = std::size_t{1} << 38;  // of addresses, not of memory
constexpr std::uint64_t kMark = 0x6B636F6C42786154;  // before a block that is in use
constexpr unsigned char kFresh = 0xA5;               // what a new block is filled with

// In front of a block, on its first page.
struct Head {
  std::uint64_t mark;
  std::size_t size;   // as asked for
  char* pages;        // where the block's pages begin
  std::size_t count;  // of bytes of pages that can be read
};

std::atomic<char*> room{nullptr};
std::atomic<std::size_t> used{0};  // bytes of the room that have been given out
std::atomic<long> blocks{0};

char* Room() {
  char* begin = room;
  if (begin) return begin;
  auto* reserved = static_cast<char*>(::VirtualAlloc(nullptr, kRoom, MEM_RESERVE, PAGE_NOACCESS));
  if (room.compare_exchange_strong(begin, reserved)) return reserved;
  ::VirtualFree(reserved, 0, MEM_RELEASE);  // another thread was first
  return begin;
}

bool IsOurs(const void* block) {
  const auto* at = static_cast<const char*>(block);
  return at >= Room() && at < Room() + kRoom;
}

Head& HeadOf(void* block) { return static_cast<Head*>(block)[-1]; }

[[noreturn]] void Stop(const char* what) {
  ::OutputDebugStringA(what);
  ::RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
  ::ExitProcess(3);
}

void* Allocate(std::size_t size) {
  if (size > kRoom / 4 || !Room()) return nullptr;
  const std::size_t count = (sizeof(Head) + size + kPage - 1) / kPage * kPage;
  const std::size_t at = used.fetch_add(count + kPage);
  if (at + count + kPage > kRoom) return nullptr;
  char* pages = Room() + at;
  if (!::VirtualAlloc(pages, count, MEM_COMMIT, PAGE_READWRITE)) return nullptr;
  // A block is as strictly aligned as its size is, and so is what it holds: the size of an object
  // is a multiple of its alignment. Where a header stands before the elements of an array it may be
  // less aligned than it asks for, which this processor allows.
  char* block = pages + count - size;
  HeadOf(block) = {kMark, size, pages, count};
  std::memset(block, kFresh, size);
  ++blocks;
  return block;
}

void Release(void* block) {
  Head& head = HeadOf(block);
  if (head.mark != kMark) Stop("guard heap: freed what is no block\n");
  ::VirtualFree(head.pages, head.count, MEM_DECOMMIT);
  --blocks;
}

// One of the C runtime's own functions, for blocks that it made itself.
template <class Function>
Function OfRuntime(const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("msvcrt.dll"), name)));
}

}  // namespace

extern "C" {

__declspec(dllexport) void* malloc(std::size_t size) {
  void* block = Allocate(size);
  if (!block) errno = ENOMEM;
  return block;
}

__declspec(dllexport) void* calloc(std::size_t count, std::size_t size) {
  if (size != 0 && count > kRoom / size) return nullptr;
  void* block = malloc(count * size);
  if (block) std::memset(block, 0, count * size);
  return block;
}

__declspec(dllexport) void free(void* block) {
  if (!block) return;
  if (IsOurs(block)) {
    Release(block);
  } else {
    OfRuntime<void (*)(void*)>("free")(block);
  }
}

__declspec(dllexport) void* realloc(void* block, std::size_t size) {
  if (!block) return malloc(size);
  if (!IsOurs(block)) {
    return OfRuntime<void* (*)(void*, std::size_t)>("realloc")(block, size);
  }
  if (size == 0) {
    free(block);
    return nullptr;
  }
  void* moved = malloc(size);
  if (!moved) return nullptr;
  std::memcpy(moved, block, HeadOf(block).size < size ? HeadOf(block).size : size);
  free(block);
  return moved;
}

// How many blocks are in use.
__declspec(dllexport) long GuardHeapBlocks() { return blocks; }

}  // extern "C"
