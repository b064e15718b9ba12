#include "store/legend_file.h"

#include <rovcond.h>

#include <array>

namespace tavix {
namespace {

constexpr UINT kMostBytes = 1024;  // a good file has 510

// False for a folder and for a read-only file: not every system refuses to move a file over a
// read-only one, or to write into it.
bool MayBeReplaced(const CString& path) {
  const DWORD attributes = GetFileAttributesW(path);
  return attributes == INVALID_FILE_ATTRIBUTES ||
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

// Gives an open file these bytes and no others, and closes it. False when it could not take them.
bool WriteWhole(CFile& file, const std::string& bytes) {
  try {
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SetLength(bytes.size());
    file.Flush();
    file.Close();
    return true;
  } catch (CFileException* error) {
    error->Delete();
    file.Abort();
    return false;
  }
}

// What the file holds is written over and not emptied first, so that a full disk has room for it.
void WriteInPlace(const CString& path, const std::string& bytes) {
  constexpr UINT kKeepContents = CFile::modeCreate | CFile::modeNoTruncate;
  CFile file;
  if (file.Open(path, kKeepContents | CFile::modeWrite | CFile::shareDenyWrite)) {
    WriteWhole(file, bytes);
  }
}

}  // namespace

LegendFile LegendFile::InDataFolder() {
  std::array<wchar_t, MAX_PATH> folder{};
  GetDataFolder(folder.data());
  LegendFile file;
  file.path_ = AfxMapDevicePath(CString(folder.data()) + L"\\HANREI.DAT");
  file.beside_ = AfxMapDevicePath(CString(folder.data()) + L"\\HANREI.NEW");
  return file;
}

bool LegendFile::Exists() const {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(path_, &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return true;
}

std::optional<std::string> LegendFile::Read() const {
  CFile file;
  if (!file.Open(path_, CFile::modeRead | CFile::shareDenyWrite)) return std::nullopt;
  try {
    std::string bytes(kMostBytes, '\0');
    bytes.resize(file.Read(bytes.data(), kMostBytes));
    return bytes;
  } catch (CFileException* error) {
    error->Delete();
    return std::nullopt;
  }
}

void LegendFile::Remove() const { DeleteFileW(path_); }

void LegendFile::Save(const std::string& bytes) const {
  if (!MayBeReplaced(path_)) return;
  CFile beside;
  if (MayBeReplaced(beside_) &&
      beside.Open(beside_, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive)) {
    const bool written = WriteWhole(beside, bytes);
    if (written &&
        MoveFileExW(beside_, path_, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return;
    }
    DeleteFileW(beside_);
    if (!written) return;
  }
  WriteInPlace(path_, bytes);
}

}  // namespace tavix
