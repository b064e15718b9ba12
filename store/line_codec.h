// A line as a record of the device database; docs/formats/device-databases.md.
#pragma once

#include <wcedb.h>

#include <array>
#include <cstdint>
#include <optional>

#include "store/line_index.h"

namespace tavix {

// A line as it was entered, from its first key to its second.
struct Line {
  std::int32_t id = 0;  // 1, 2, ... in the order of entry; its record keeps the low 16 bits
  LineKeys keys;
  std::int16_t legend = 0;
};

// The properties of a line record; do not change.
namespace line_property {
constexpr WORD kId = 111;
constexpr WORD kSmallerKey = 112;
constexpr WORD kLargerKey = 113;
constexpr WORD kLargerFirst = 114;
constexpr WORD kLegend = 115;
}  // namespace line_property

// The value of a 16-bit property of a record; nothing when it is missing.
[[nodiscard]] std::optional<std::int16_t> ShortOf(const CCeDBRecord& record, WORD ident);

// Lines on their way into the database, one after another in the same memory.
class LineRecord {
 public:
  LineRecord();
  LineRecord(const LineRecord&) = delete;
  LineRecord& operator=(const LineRecord&) = delete;

  // The record that holds this line, until the next.
  [[nodiscard]] CCeDBRecord& Of(const Line& line);

 private:
  std::array<CCeDBProp, 5> properties_;  // in the order in which they are written
  CCeDBRecord record_;
};

// Nothing when a property is missing.
[[nodiscard]] std::optional<Line> DecodeLine(const CCeDBRecord& record);

}  // namespace tavix
