#include "store/hanrei.h"

#include <afxwin.h>
#include <rovcond.h>

#include <array>
#include <optional>
#include <string>

#include "store/legend_codec.h"

namespace tavix {
namespace {

constexpr const wchar_t* kFileName = L"\\HANREI.DAT";
constexpr const wchar_t* kNewFileName = L"\\HANREI.NEW";
constexpr UINT kMostBytes = 1024;  // a good file has 510

struct LegendPath {
  CString file;
  CString beside;  // written first, then put in the file's place
};

// Library-wide: see the class comment.
LegendPath& SharedPath() {
  static LegendPath path;
  return path;
}

void RebuildSharedPath() {
  std::array<wchar_t, MAX_PATH> folder{};
  GetDataFolder(folder.data());
  SharedPath().file = CString(folder.data()) + kFileName;
  SharedPath().beside = CString(folder.data()) + kNewFileName;
}

bool FileExists(const CString& path) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(path, &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return true;
}

std::optional<std::string> ReadWhole(const CString& path) {
  CFile file;
  if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite)) return std::nullopt;
  try {
    std::string bytes(kMostBytes, '\0');
    bytes.resize(file.Read(bytes.data(), kMostBytes));
    return bytes;
  } catch (CFileException* error) {
    error->Delete();
    return std::nullopt;
  }
}

bool WriteWhole(const CString& path, const std::string& bytes) {
  CFile file;
  if (!file.Open(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive)) return false;
  try {
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.Flush();
    file.Close();
    return true;
  } catch (CFileException* error) {
    error->Delete();
    return false;
  }
}

// Moving a file over another one does not heed this everywhere; writing into it would.
bool IsReadOnly(const CString& path) {
  const DWORD attributes = GetFileAttributesW(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

// A crash or a full disk while saving leaves the old file as it was, and so does a read-only one.
void ReplaceFile(const LegendPath& path, const std::string& bytes) {
  if (IsReadOnly(path.file)) return;
  if (!WriteWhole(path.beside, bytes) ||
      !MoveFileExW(path.beside, path.file, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    DeleteFileW(path.beside);
  }
}

}  // namespace

CHanrei::CHanrei() {
  RebuildSharedPath();
  const CString& path = SharedPath().file;
  if (!FileExists(path)) return;
  const std::optional<std::string> bytes = ReadWhole(path);
  if (!bytes || !DecodeLegend(*bytes, table_)) DeleteFileW(path);
}

CHanrei::~CHanrei() { ReplaceFile(SharedPath(), EncodeLegend(table_)); }

}  // namespace tavix
