// The object store: databases of typed records, as on the device.
//
// Rules for every implementation:
//  1. Every database and every record has an identifier that is unique in the store. Identifiers
//     are never reused: the identifier of a deleted object finds nothing.
//  2. A handle has one sort order and one seek pointer. The pointer is on a record, at the end of
//     the order, or at the place of a deleted record.
//  3. The order: by the value of the sort property, according to the flags of the sort order;
//     records with equal values in the order of their creation; records without the property last,
//     or first if the order has `unknown_first`.
//  4. A seek pointer stays on its record when a write moves the record in the order.
//  5. A call that fails changes nothing, except that a seek that finds nothing moves the pointer to
//     the end.
//  6. One thread at a time.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "platform/objectstore/property.h"
#include "platform/objectstore/record_layout.h"

namespace tavix {

// ---- Results

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

// A result, or the reason why there is no result. True in a condition when the call succeeded.
template <class T>
struct Outcome {
  T value{};
  StoreError error = StoreError::kNone;

  Outcome() = default;
  Outcome(T result) : value(result) {}           // NOLINT: results convert, as intended
  Outcome(StoreError reason) : error(reason) {}  // NOLINT
  explicit operator bool() const { return error == StoreError::kNone; }
};

// ---- What a store holds

using ObjectId = std::uint32_t;  // 0: none

// An open database or an enumeration. 0: none.
using StoreHandle = std::uint32_t;

// One way to sort the records of a database. Blobs do not sort.
struct SortOrder {
  PropertyId property;
  bool descending = false;
  bool ignore_case = false;    // strings only
  bool unknown_first = false;  // records without the property come first
};

struct DatabaseInfo {
  static constexpr std::size_t kMaxName = 32;  // characters, the terminating zero included
  static constexpr std::size_t kMaxSortOrders = 4;

  std::array<char16_t, kMaxName> name{};
  std::uint32_t type = 0;  // the application's own number
  std::array<SortOrder, kMaxSortOrders> orders{};
  std::size_t order_count = 0;
  std::uint32_t record_count = 0;
  std::uint64_t bytes = 0;     // of all values
  std::uint64_t modified = 0;  // 100 ns steps since the start of 1601, UTC
  // The number of calls that added, changed or deleted a record. Data derived from the database is
  // up to date while this number stays the same.
  std::uint64_t changes = 0;

  [[nodiscard]] std::u16string_view Name() const { return name.data(); }
  [[nodiscard]] std::span<const SortOrder> Orders() const { return {orders.data(), order_count}; }
};

// Changes to a database; members without a value change nothing.
struct DatabaseChange {
  std::optional<std::u16string_view> name = std::nullopt;
  std::optional<std::uint32_t> type = std::nullopt;
  std::optional<std::span<const SortOrder>> orders = std::nullopt;
};

struct ObjectInfo {
  bool is_database = false;
  ObjectId parent = 0;    // of a record: its database
  DatabaseInfo database;  // of a database
};

// What to seek, and from where. A seek by value takes a value of the handle's sort property.
struct SeekTarget {
  enum class Kind {
    kObject,      // the record with identifier `object`
    kBeginning,   // `offset` records after the first
    kEnd,         // `offset` records before the last
    kCurrent,     // `offset` records on, or back when negative; 0 finds the current record
    kSmaller,     // the nearest value before `value` in the order; of equals the first
    kFirstEqual,  // the first record with `value`
    kGreater,     // the first record with `value` or a value after it in the order
    kNextEqual,   // the next record, if it has `value`
  };

  Kind kind = Kind::kBeginning;
  std::int64_t offset = 0;
  ObjectId object = 0;
  Property value = Property();

  static SeekTarget To(Kind kind, std::int64_t offset = 0) {
    return {.kind = kind, .offset = offset};
  }
  static SeekTarget ToValue(Kind kind, const Property& value) {
    return {.kind = kind, .value = value};
  }
  static SeekTarget ToObject(ObjectId object) { return {.kind = Kind::kObject, .object = object}; }
};

// The current record of a handle. The properties are good until the store next changes.
struct RecordView {
  ObjectId id = 0;
  RecordValues properties;
};

// ---- The store

class ObjectStore {
 public:
  ObjectStore() = default;
  ObjectStore(const ObjectStore&) = delete;
  ObjectStore& operator=(const ObjectStore&) = delete;
  virtual ~ObjectStore() = default;

  // ---- Databases

  // A longer name is cut to 31 characters. Fails with kDuplicateName, or with kInvalidParameter for
  // an empty name, more than four orders, two orders on one tag, or an order on a blob.
  virtual Outcome<ObjectId> CreateDatabase(std::u16string_view name, std::uint32_t type,
                                           std::span<const SortOrder> orders) = 0;

  // kInUse while a handle is open on it.
  virtual StoreError DeleteDatabase(ObjectId database) = 0;

  // By name, cut as above; kNotFound.
  virtual Outcome<ObjectId> FindDatabase(std::u16string_view name) = 0;

  // Of any object; kNotFound.
  virtual Outcome<ObjectInfo> Info(ObjectId object) = 0;

  // The number of changes in a database's description, by itself; kNotFound.
  virtual Outcome<std::uint64_t> Changes(ObjectId database) = 0;

  // Makes all changes or none. Fails as CreateDatabase does, and with kInUse for new orders while a
  // handle is open on the database.
  virtual StoreError ChangeDatabase(ObjectId database, const DatabaseChange& change) = 0;

  // ---- Handles

  // The seek pointer starts at the first record. `sort` is one of the database's sort properties;
  // without one the first order is used. With `auto_increment` a read moves the pointer to the next
  // record. Fails with kTooManyOpen.
  virtual Outcome<StoreHandle> Open(ObjectId database, PropertyId sort, bool auto_increment) = 0;

  // Enumerates the databases of one type, or of all types for 0, in the order of their creation.
  virtual Outcome<StoreHandle> OpenEnumeration(std::uint32_t type) = 0;

  // The next database of an enumeration; kNoMoreItems after the last one, kDeleted if any database
  // was deleted since the enumeration began.
  virtual Outcome<ObjectId> NextDatabase(StoreHandle enumeration) = 0;

  // Closes a handle of either kind.
  virtual StoreError Close(StoreHandle handle) = 0;

  // ---- Records

  // Moves the seek pointer and returns the record it is on. `index`, when not null, receives the
  // record's position from the start of the order.
  virtual Outcome<ObjectId> Seek(StoreHandle handle, const SeekTarget& target,
                                 std::uint32_t* index) = 0;

  // kNoMoreItems at the end; kDeleted if the record was deleted, unless the handle increments: then
  // the next record is read.
  virtual Outcome<RecordView> Read(StoreHandle handle) = 0;

  // The same without moving the pointer of a handle that increments.
  virtual Outcome<RecordView> Peek(StoreHandle handle) = 0;

  // Sets, adds and removes properties of a record, or of a new one when `record` is 0, and leaves
  // the seek pointer on it. Of two values for one property the later one is used.
  virtual Outcome<ObjectId> Write(StoreHandle handle, ObjectId record,
                                  std::span<const Property> properties) = 0;

  virtual StoreError DeleteRecord(StoreHandle handle, ObjectId record) = 0;
};

}  // namespace tavix
