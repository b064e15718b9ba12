#include "figure/file_window.h"

#include <algorithm>

namespace tavix {

const unsigned char* FileWindow::Bytes(std::uint64_t offset, std::uint64_t size) {
  const bool inside = offset >= start_ && offset - start_ + size <= held_;
  if (!inside && !MoveTo(offset, size)) return nullptr;
  return buffer_.data() + (offset - start_);
}

// A damaged record may ask for any size: before the buffer grows the file must hold so much.
bool FileWindow::MoveTo(std::uint64_t offset, std::uint64_t size) {
  constexpr std::uint64_t kWindow = 64 * 1024;
  if (size > kWindow && !Holds(offset, size)) return false;
  return Fill(offset, std::max(size, kWindow), size) || Fill(offset, size, size);
}

bool FileWindow::Holds(std::uint64_t offset, std::uint64_t size) const {
  try {
    const std::uint64_t length = file_.GetLength();
    return offset <= length && size <= length - offset;
  } catch (CFileException* error) {
    error->Delete();
    return false;
  }
}

bool FileWindow::Fill(std::uint64_t offset, std::uint64_t room, std::uint64_t wanted) {
  start_ = offset;
  held_ = 0;
  if (buffer_.size() < room) buffer_.resize(static_cast<std::size_t>(room));
  try {
    file_.Seek(static_cast<LONGLONG>(offset), CFile::begin);
    held_ = file_.Read(buffer_.data(), static_cast<UINT>(room));
  } catch (CFileException* error) {
    error->Delete();
  }
  return held_ >= wanted;
}

}  // namespace tavix
