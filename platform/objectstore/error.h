// How the calls of an object store say why they failed.
#pragma once

namespace tavix {

enum class StoreError {
  kNone,
  kInvalidParameter,  // a handle, an object or a value that the call cannot use
  kNotFound,          // no object with this name or identifier
  kDuplicateName,     // a database of this name exists
  kInUse,             // the database is open
  kNoMoreItems,       // the seek pointer is at the end, or nothing was left to find
  kDeleted,           // the record at the seek pointer, or a database of the enumeration, is gone
  kFull,              // no identifiers are left
  kTooManyOpen,       // no handles are left
};

// A result with the reason when there is none. True as a condition when the call worked.
template <class T>
struct Outcome {
  T value{};
  StoreError error = StoreError::kNone;

  Outcome() = default;
  Outcome(T result) : value(result) {}           // NOLINT: results convert, as intended
  Outcome(StoreError reason) : error(reason) {}  // NOLINT
  explicit operator bool() const { return error == StoreError::kNone; }
};

}  // namespace tavix
