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
  // A place that cannot be read must not cost what lies before it: a window that fails is tried
  // again with no more than was asked for.
  bool MoveTo(std::uint64_t offset, std::uint64_t size);

  // A damaged size is found out before room is made for it.
  [[nodiscard]] bool Holds(std::uint64_t offset, std::uint64_t size) const;
  bool Fill(std::uint64_t offset, std::uint64_t room, std::uint64_t wanted);

  CFile& file_;
  std::uint64_t start_ = 0;
  std::vector<unsigned char> bytes_;
};

}  // namespace tavix
