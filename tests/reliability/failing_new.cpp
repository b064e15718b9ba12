#include "tests/reliability/failing_new.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

int g_left = 0;  // allocations until the one that fails; 0 and below none does
bool g_failed = false;

void* Allocate(std::size_t bytes) {
  if (g_left > 0 && --g_left == 0) {
    g_failed = true;
    throw std::bad_alloc();
  }
  void* block = std::malloc(bytes > 0 ? bytes : 1);
  if (!block) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(std::size_t bytes) { return Allocate(bytes); }
void* operator new[](std::size_t bytes) { return Allocate(bytes); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace tavix::test {

FailingNew::FailingNew(int nth) {
  g_left = nth;
  g_failed = false;
}

FailingNew::~FailingNew() { g_left = 0; }

bool FailingNew::HasFailed() { return g_failed; }

}  // namespace tavix::test
