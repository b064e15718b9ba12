// Reads many small pieces of a file with few system calls.
#pragma once

#include <afx.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavix {

// A buffer of 64 KiB or more that moves over a file. The buffer is kept from one pass over the file
// to the next, what it holds is not: other programs may write the file.
class FileWindow {
 public:
  explicit FileWindow(CFile& file) : file_(file) {}

  // Begins a pass: what was read before is read again.
  void Forget() { held_ = 0; }

  // `size` bytes from `offset` on, or null when the file does not hold them all or cannot be read.
  // Valid until the next call.
  const unsigned char* Bytes(std::uint64_t offset, std::uint64_t size);

 private:
  // Bytes that cannot be read must not cost those before them: a read of the whole buffer that
  // fails is tried again with only the bytes that were asked for.
  bool MoveTo(std::uint64_t offset, std::uint64_t size);

  [[nodiscard]] bool Holds(std::uint64_t offset, std::uint64_t size) const;
  bool Fill(std::uint64_t offset, std::uint64_t room, std::uint64_t wanted);

  CFile& file_;
  std::uint64_t start_ = 0;
  std::size_t held_ = 0;  // bytes of the file in the buffer, from `start_` on
  std::vector<unsigned char> buffer_;
};

}  // namespace tavix
