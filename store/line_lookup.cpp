#include "store/line_lookup.h"

#include <new>

#include "store/line_codec.h"

namespace tavix {

using line_property::kLargerKey;
using line_property::kSmallerKey;

int LineLookup::Find(LineKeys keys) {
  const bool indexed = IsIndexed();
  if (records_.SeekFirstEqual(CCeDBProp(keys.Smaller(), kSmallerKey)) == 0) return -1;
  return indexed ? MatchIndexed(keys) : MatchReading(keys);
}

std::optional<bool> LineLookup::IsThere(LineKeys keys) {
  if (!IsInStep()) return std::nullopt;
  const CEOID found = index_.Find(keys);
  return found != LineIndex::kNoRecord && records_.SeekToRecord(found) != 0 && CanReadCurrent();
}

void LineLookup::Added(LineKeys keys, CEOID record) {
  try {
    index_.Enter(keys, record);
    ++indexed_changes_;
  } catch (const std::bad_alloc&) {
    // The index is behind the database now, and is built again by a later search.
  }
}

void LineLookup::Deleted(LineKeys keys) {
  ++indexed_changes_;
  index_.Remove(keys);
}

void LineLookup::Forget() {
  index_.Clear();
  indexed_changes_ = 0;
  records_read_ = 0;
}

bool LineLookup::IsIndexed() {
  if (IsInStep()) return true;
  if (records_read_ < records_.GetNumRecords()) return false;
  records_read_ = 0;
  const ULONGLONG changes = records_.GetNumChanges();
  if (!IndexAll()) return false;
  indexed_changes_ = changes;
  return true;
}

// False for a foreign or unreadable record: searches then read the records.
bool LineLookup::IndexAll() {
  index_.Clear();
  DWORD seen = 0;
  for (CEOID at = records_.SeekFirst(); at != 0; at = records_.SeekNext()) {
    if (!records_.ReadCurrRecord(&record_)) return false;
    const CCeDBProp* smaller = record_.GetPropFromIdent(kSmallerKey);
    const CCeDBProp* larger = record_.GetPropFromIdent(kLargerKey);
    if (!smaller || smaller->GetType() != CCeDBProp::Type_Short || !larger) return false;
    // A search never asks for the larger key first, so it cannot find a record with swapped keys.
    if (smaller->GetShort() <= larger->GetShort()) {
      index_.Enter({smaller->GetShort(), larger->GetShort()}, at);
    }
    ++seen;
  }
  return seen == records_.GetNumRecords();
}

// From the first record with the smaller key to the one that has the larger key too.
int LineLookup::MatchIndexed(LineKeys keys) {
  const CEOID found = index_.Find(keys);
  if (found != LineIndex::kNoRecord && found != records_.GetCurrRecord() &&
      records_.SeekToRecord(found) == 0) {
    return -1;
  }
  if (!CanReadCurrent()) return -5;
  return found != LineIndex::kNoRecord ? 0 : -1;
}

bool LineLookup::CanReadCurrent() {
  CCeDBProp filter(CCeDBProp::Type_Short, kSmallerKey);
  return records_.ReadCurrRecord(&record_, 1, &filter) != FALSE;
}

// From the first record with the smaller key on, the one that has the larger key too.
int LineLookup::MatchReading(LineKeys keys) {
  do {
    ++records_read_;
    if (!records_.ReadCurrRecord(&record_)) return -5;
    const auto smaller = ShortOf(record_, kSmallerKey);
    if (!smaller) return -6;
    if (*smaller != keys.Smaller()) return -1;
    const auto larger = ShortOf(record_, kLargerKey);
    if (!larger) return -7;
    if (*larger == keys.Larger()) return 0;
  } while (records_.SeekNext() != 0);
  return -1;
}

}  // namespace tavix
