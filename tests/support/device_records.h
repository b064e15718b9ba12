// The instances' databases on the device, read past the library.
#pragma once

#include <gtest/gtest.h>
#include <wcedb.h>

#include <ostream>
#include <string>
#include <vector>

namespace tavix::test {

// A line as its record holds it: properties 111 to 115.
struct LineRecord {
  int id;
  int smaller;
  int larger;
  int larger_first;
  int legend;

  friend bool operator==(const LineRecord&, const LineRecord&) = default;
  friend std::ostream& operator<<(std::ostream& out, const LineRecord& line) {
    return out << "{" << line.id << ", " << line.smaller << ", " << line.larger << ", "
               << line.larger_first << ", " << line.legend << "}";
  }
};

// A memo as its record holds it: properties 121 and 122.
struct MemoRecord {
  int key;
  std::wstring text;

  friend bool operator==(const MemoRecord&, const MemoRecord&) = default;
};

// What the database holds, by line id or by key; a missing database is a failure.
[[nodiscard]] std::vector<LineRecord> LinesOnDevice(int instance = 0);
[[nodiscard]] std::vector<MemoRecord> MemosOnDevice(int instance = 0);

// Takes a property of a 16-bit or a text value out of the first record.
void TakePropertyOut(const wchar_t* database, WORD ident, CCeDBProp::enType type);

}  // namespace tavix::test
