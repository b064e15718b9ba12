// Searching the line database for the line between two keys.
#pragma once

#include <wcedb.h>

#include "store/line_index.h"
#include "store/line_key.h"

namespace tavix {

// The database sorts by the smaller key only, and any number of lines may share one: reading them
// one after another until the larger key matches is what a search means, and too slow where many
// do. So the records of both keys are kept beside the database. That index counts only while it
// fits: whoever else changes the database is seen by its count of changes, and then, or where a
// record lacks a key, the search goes by reading, until that has cost as much as making the index
// anew.
class LineLookup {
 public:
  // The database is not owned and outlives the lookup. It is open by smaller key in every search.
  explicit LineLookup(CCeDBDatabase& records) : records_(records) {}

  // Makes the first record with these keys current. -1 there is none, -5 a record cannot be read,
  // -6 and -7 one lacks its smaller or larger key; which record is current then is left open.
  int Find(LineKeys keys);

  // ---- What the owner has done to the database, by one call each

  void Added(LineKeys keys, CEOID record);
  // The record that Find found.
  void Deleted(LineKeys keys);
  // In a property that is no key.
  void Changed() { ++indexed_changes_; }

  // The database is another one now, which nobody has changed so far, or it is to be looked at
  // afresh.
  void Forget();

 private:
  [[nodiscard]] bool IsIndexed();
  [[nodiscard]] bool IndexAll();
  int MatchIndexed(LineKeys keys);
  int MatchReading(LineKeys keys);

  CCeDBDatabase& records_;
  CCeDBRecord record_;  // read into again and again
  LineIndex index_;
  ULONGLONG indexed_changes_ = 0;  // those the index has seen
  DWORD records_read_ = 0;         // by searches since the index no longer fits
};

}  // namespace tavix
