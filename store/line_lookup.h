// Searches the line database for the line between two keys.
#pragma once

#include <wcedb.h>

#include <optional>

#include "store/line_index.h"

namespace tavix {

// The database sorts by the smaller key only, and many lines may share one: reading them until the
// larger key matches, which is what a search means, is too slow then. An index from both keys to
// the record is kept beside the database. It is valid while the database's count of changes is the
// one the index has seen, so that changes by other programs are noticed. While it is not valid, or
// where a record lacks a key, searches read the records; once they have read as many as the
// database holds, the index is built again.
class LineLookup {
 public:
  // The database is not owned and outlives the lookup. It is open by smaller key in every search.
  explicit LineLookup(CCeDBDatabase& records) : records_(records) {}

  // Makes the first record with these keys current. -1 no such record, -5 a record cannot be read,
  // -6 and -7 one lacks its smaller or larger key; which record is current then is undefined.
  int Find(LineKeys keys);

  // Whether Find finds one, where the index alone can answer; nothing where it cannot. The order of
  // the database is not used, which would have to be kept while lines are entered.
  [[nodiscard]] std::optional<bool> IsThere(LineKeys keys);

  // ---- To be called after each change the owner makes to the database

  void Added(LineKeys keys, CEOID record);
  // The record that Find found.
  void Deleted(LineKeys keys);
  // A property that is not a key.
  void Changed() { ++indexed_changes_; }

  // The database has been created again or may have changed: the index is empty, for a database
  // without changes.
  void Forget();

 private:
  [[nodiscard]] bool IsInStep() const { return records_.GetNumChanges() == indexed_changes_; }
  // Builds the index again when it is time.
  [[nodiscard]] bool IsIndexed();
  [[nodiscard]] bool IndexAll();
  int MatchIndexed(LineKeys keys);
  // It is read although nothing of it is used: an unreadable record counts as not found.
  [[nodiscard]] bool CanReadCurrent();
  int MatchReading(LineKeys keys);

  CCeDBDatabase& records_;
  CCeDBRecord record_;  // read into; a member to reuse its memory
  LineIndex index_;
  ULONGLONG indexed_changes_ = 0;  // the changes the index has seen
  DWORD records_read_ = 0;         // by searches since the index became invalid
};

}  // namespace tavix
