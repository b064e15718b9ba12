// One database: its description, its records and its sort orders.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/objectstore/cursor.h"

namespace tavix {

// The time now in 100 ns steps since the start of 1601, UTC.
using FileTimeClock = std::uint64_t (*)();

class Database {
 public:
  using Slot = RecordHeap::Slot;

  Database(ObjectId id, CaseFold fold, FileTimeClock clock) : id_(id), fold_(fold), clock_(clock) {}

  [[nodiscard]] ObjectId Id() const { return id_; }
  [[nodiscard]] std::u16string_view Name() const { return info_.Name(); }
  [[nodiscard]] std::uint32_t Type() const { return info_.type; }
  [[nodiscard]] DatabaseInfo Info() const;
  [[nodiscard]] std::uint64_t Changes() const { return info_.changes; }

  // ---- Description

  // The significant part of a name: its first 31 characters.
  static std::u16string_view CutName(std::u16string_view name);
  void SetName(std::u16string_view name);
  void SetType(std::uint32_t type);

  // kInvalidParameter for more than four orders, an order on a blob or on an unknown type, or two
  // orders on one tag.
  static StoreError CheckOrders(std::span<const SortOrder> orders);
  // The orders have been checked, and no cursor is open.
  void SetOrders(std::span<const SortOrder> orders);

  // ---- Cursors

  // Null when no sort order uses this property. The cursor must be destroyed before the database.
  std::unique_ptr<Cursor> OpenCursor(PropertyId sort, bool auto_increment);
  void CloseCursor(const Cursor& cursor);
  [[nodiscard]] bool IsOpen() const { return !cursors_.empty(); }

  // ---- Records

  [[nodiscard]] const RecordHeap& Records() const { return records_; }

  // The properties have been checked and merged: each once, no removals.
  Slot AddRecord(ObjectId id, std::span<const Property> properties);
  void ChangeRecord(Slot slot, std::span<const Property> properties);
  void DeleteRecord(Slot slot);

 private:
  void CountChange();  // of a record

  ObjectId id_;
  CaseFold fold_;
  FileTimeClock clock_;
  DatabaseInfo info_;
  RecordHeap records_;
  std::vector<std::unique_ptr<SortIndex>> indexes_;
  std::vector<Cursor*> cursors_;  // open; not owned
};

}  // namespace tavix
