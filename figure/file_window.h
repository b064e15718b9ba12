// Reading many small pieces of a file with few calls to the system.
#pragma once

#include <afx.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavix {

// A window of 64 KiB or more that moves over a file. It lives for one pass over the file, so what
// it holds is never older than that.
class FileWindow {
 public:
  explicit FileWindow(CFile& file) : file_(file) {}

  // `size` bytes from `offset` on, or null when the file does not hold them all or cannot be read.
  // Valid until the next call.
  const unsigned char* Bytes(std::uint64_t offset, std::uint64_t size);

 private:
  bool MoveTo(std::uint64_t offset, std::uint64_t size);

  CFile& file_;
  std::uint64_t start_ = 0;
  std::vector<unsigned char> bytes_;
};

}  // namespace tavix
