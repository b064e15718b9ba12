// Memory of dead objects, taken by somebody else.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace tavix::test {

// Takes blocks of all the sizes that objects have and fills them, so that whoever still uses an
// object that is gone finds nothing it knows.
class TakenMemory {
 public:
  TakenMemory() {
    constexpr std::size_t kLargest = 8192;
    constexpr std::size_t kStep = 32;
    constexpr int kOfEachSize = 8;
    for (std::size_t size = kStep; size <= kLargest; size += kStep) {
      for (int n = 0; n < kOfEachSize; ++n) {
        blocks_.push_back(std::make_unique<char[]>(size));
        std::memset(blocks_.back().get(), 0xEE, size);
      }
    }
  }

 private:
  std::vector<std::unique_ptr<char[]>> blocks_;
};

}  // namespace tavix::test
