// A system that runs out of things: calls of the library to it that fail on request, and what the
// library has taken from it and not given back.
#pragma once

#include <cstddef>
#include <string>

namespace tavix::test {

enum class Resource { kFiles, kMemory, kDrawing, kWindows };

const char* NameOf(Resource resource);

// Counts the calls for a resource that this thread makes inside the library's modules, and makes
// one of them fail. Calls of the test program itself are not seen. One at a time.
class SystemFaults {
 public:
  // Has the `nth` call from here on fail, 1 the next; 0 none.
  explicit SystemFaults(Resource resource, int nth = 0);
  ~SystemFaults();
  SystemFaults(const SystemFaults&) = delete;
  SystemFaults& operator=(const SystemFaults&) = delete;

  [[nodiscard]] Resource Of() const { return resource_; }

  [[nodiscard]] int Calls() const { return calls_; }

  // The name of the call that failed; empty as long as none has.
  [[nodiscard]] const std::string& Failed() const { return failed_; }

  // Of the replaced calls, by name: whether this one is to fail.
  bool Refuses(Resource resource, const char* call);

 private:
  const Resource resource_;
  const int nth_;
  const unsigned long thread_;
  int calls_ = 0;
  std::string failed_;
};

// Has the library find the screen changed from here on, as by a user who chooses another depth: it
// probes GDI's drawing again, which it otherwise does once in a process.
void HaveScreenChanged();

// How much the library holds at this moment: file and search handles, blocks of memory, GDI objects
// and device contexts. Counted from the first call of this function on.
struct Holdings {
  std::size_t files = 0;
  std::size_t memory = 0;
  std::size_t drawing = 0;

  friend bool operator==(const Holdings&, const Holdings&) = default;
};
[[nodiscard]] Holdings HeldByLibrary();

// The framework keeps objects for handles of others until it has many for dead ones: the blocks of
// memory may differ by these, whatever was done before.
inline constexpr std::size_t kMostTemporary = 256;

}  // namespace tavix::test
