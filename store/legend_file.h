// The legend's file on the disk, as a whole.
#pragma once

#include <afx.h>

#include <optional>
#include <string>

namespace tavix {

// HANREI.DAT in one data folder. Every operation uses the same path, as the device maps
// it: a data folder that begins with one backslash lies in the root folder of the device. No
// operation reports an error.
class LegendFile {
 public:
  // In the data folder that is current at this moment.
  static LegendFile InDataFolder();

  [[nodiscard]] bool Exists() const;

  // Its bytes, as far as a good file goes. Null when it cannot be read now, because another program
  // holds it or for any other reason; that says nothing about what is in it.
  [[nodiscard]] std::optional<std::string> Read() const;

  void Remove() const;

  // Puts `bytes` in the place of what it holds, or makes it. They are written to HANREI.NEW beside
  // it, which is then moved over it: a crash or a full disk leaves the old file as it was. Where
  // that cannot be, because a program reads the file or the name beside it is taken by a folder or
  // a read-only file, they are written into the file itself. A read-only file is left as it is.
  void Save(const std::string& bytes) const;

 private:
  CString path_;
  CString beside_;
};

}  // namespace tavix
