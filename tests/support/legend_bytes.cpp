#include "tests/support/legend_bytes.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tavix::test {
namespace {

// Written out, blanks and all: this is what files in the field look like.
constexpr const char* kHeader = " 10                       CHK";
constexpr const char* kEntries[] = {
    " 1  2 10  1  1          0 chk",  " 2 10 10  1  1          0 chk",
    " 3 10 10  1  1          0 chk",  " 4 10 10  1  1          0 chk",
    " 5 10 10  1  1        255 chk",  " 6 10 10  1  1        255 chk",
    " 7 10 10  1  1        255 chk",  " 8 10 10  1  1          0 chk",
    " 9 10 10  1  1        255 chk",  "10 10 10  1  1        255 chk",
    "11 10 10  1  1        255 chk",  "101  0  0  0  1          0 chk",
    "103  0  0  0  1        255 chk", "102  4  2  0  1          0 chk",
    "104  4  2  2  1        255 chk", "105  4  2  2  1        255 chk",
};

}  // namespace

std::string LegendRecord(const std::string& text) {
  std::string record = text;
  record.resize(kLegendRecord, '\0');
  return record;
}

std::string LegendBytesWithHeader(const std::string& header) {
  std::string bytes = LegendRecord(header);
  for (const char* entry : kEntries) bytes += LegendRecord(entry);
  return bytes;
}

std::string BuiltInLegendBytes() { return LegendBytesWithHeader(kHeader); }

std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  ASSERT_TRUE(out.good());
}

}  // namespace tavix::test
