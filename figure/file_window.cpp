#include "figure/file_window.h"

#include <algorithm>

namespace tavix {

const unsigned char* FileWindow::Bytes(std::uint64_t offset, std::uint64_t size) {
  const bool inside = offset >= start_ && offset - start_ + size <= bytes_.size();
  if (!inside && !MoveTo(offset, size)) return nullptr;
  return bytes_.data() + (offset - start_);
}

bool FileWindow::MoveTo(std::uint64_t offset, std::uint64_t size) {
  constexpr std::uint64_t kWindow = 64 * 1024;
  return Holds(offset, size) &&
         (Fill(offset, std::max(size, kWindow), size) || Fill(offset, size, size));
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
  try {
    start_ = offset;
    bytes_.resize(static_cast<std::size_t>(room));
    file_.Seek(static_cast<LONGLONG>(offset), CFile::begin);
    bytes_.resize(file_.Read(bytes_.data(), static_cast<UINT>(bytes_.size())));
    return bytes_.size() >= wanted;
  } catch (CFileException* error) {
    error->Delete();
    bytes_.clear();
    return false;
  }
}

}  // namespace tavix
