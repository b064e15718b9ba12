// The properties of a line record in the device database; docs/formats/device-databases.md.
#pragma once

#include <wcedb.h>

#include <cstdint>

namespace tavix::line_record {

// Do not change.
constexpr WORD kId = 111;
constexpr WORD kSmallerKey = 112;
constexpr WORD kLargerKey = 113;
constexpr WORD kLargerFirst = 114;
constexpr WORD kLegend = 115;

// The value of a 16-bit property of a record; false when it is missing.
inline bool Get(const CCeDBRecord& record, WORD ident, std::int16_t* value) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  if (!property) return false;
  *value = property->GetShort();
  return true;
}

}  // namespace tavix::line_record
