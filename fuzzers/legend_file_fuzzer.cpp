// Any bytes as a legend file: a bad one leaves the entries alone, a good one can be written and
// read back unless a value is too wide for its record.

#include <algorithm>
#include <initializer_list>
#include <string>

#include "fuzzers/fuzz_input.h"
#include "store/legend_codec.h"

namespace {

using tavix::HanRec;
using tavix::LegendTable;
using tavix::fuzz::Require;

std::size_t WidthOf(std::int32_t value, std::size_t least) {
  return std::max(least, std::to_string(value).size());
}

// Six numbers, five blanks between them, a blank and the mark "chk" within 30 bytes.
bool FitsItsRecord(const tavix::LegendValues& values) {
  std::size_t width = WidthOf(values.color, 10) + 9;
  for (const std::int32_t value :
       {values.kind, values.prm1, values.prm2, values.prm3, values.width}) {
    width += WidthOf(value, 2);
  }
  return width <= 30;
}

bool Fits(const LegendTable& table) {
  constexpr std::size_t kBlanksAndMark = 26;  // of the header
  return WidthOf(table.RotationStep(), 3) + kBlanksAndMark <= 30 &&
         std::all_of(table.Entries().begin(), table.Entries().end(),
                     [](const HanRec& entry) { return FitsItsRecord(entry.values); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tavix::fuzz::FuzzInput input(data, size);
  const LegendTable built_in;
  LegendTable table;
  const bool good = tavix::DecodeLegend(input.Rest(), table);
  Require(table.Entries().size() == LegendTable::kStoredLegends, "there are sixteen entries");
  Require(good || table.Entries() == built_in.Entries(), "a bad file leaves the entries alone");

  const std::string written = tavix::EncodeLegend(table);
  Require(written.size() == 510, "a file has 17 records of 30 bytes");
  LegendTable read;
  const bool read_back = tavix::DecodeLegend(written, read);
  Require(read_back == Fits(table), "a file is good unless a value is too wide");
  if (read_back) {
    for (std::size_t i = 0; i < LegendTable::kStoredLegends; ++i) {
      Require(read.Entries()[i].values == table.Entries()[i].values, "values are read back");
    }
    Require(read.RotationStep() == table.RotationStep(), "so is the step of rotation");
    Require(tavix::EncodeLegend(read) == written, "and written the same again");
  }
  return 0;
}
