// The lines of one instance.
#pragma once

#include <cstdint>
#include <optional>

#include "store/device_database.h"
#include "store/drawn_lines.h"
#include "store/line_codec.h"
#include "store/line_lookup.h"

namespace tavix {

// Lines in the device database "QZLinDB<instance>", open in one of two orders: by the smaller key
// of a line, or by its id. Calls that need the other order close the database and open it in that
// order.
//
// Operations return 0 for success and negative codes for the step that failed.
class CLinDb {
 public:
  enum class Order { kById, kBySmallerKey };

  // Creates the database, empty and closed, in place of one left on the device.
  explicit CLinDb(int instance);

  // Opens it by smaller key. False when it is open already or cannot be opened.
  bool Open();

  // False when it is closed already or cannot be closed.
  bool Close();

  // Closes it and deletes it from the device. The store must not be used afterwards.
  void Discard();

  // Makes the line between two keys, in either order, current. -1 no such line, -2 the database
  // cannot be opened, -3 it has no records, -4 no first record, -5 a record cannot be read, -6 and
  // -7 its smaller or larger key is missing.
  int Find(LineKeys keys);

  // Whether Find finds it. While the index of the lines is valid no record is read for one that is
  // not there.
  bool Contains(LineKeys keys);

  // -1 when the record cannot be added.
  int Add(LineKeys keys, std::int16_t legend, std::int32_t* id);

  // The code of Find when there is no such line, -7 when the deletion failed. Marks the store
  // changed in any case.
  int Remove(LineKeys keys);

  // -2 closed, -1 unreadable.
  int ReadCur(Line* line);

  // -1 the write failed, -2 closed, -3 unreadable, -4 no legend in the record.
  int SetCurHan(std::int16_t legend);

  // Calls `visit(std::int16_t legend, GroundPoint start, GroundPoint end)` in the order of ids for
  // each line whose ends are both among `points`, always the same list; lines that `sieve` holds
  // back are left out. The records are read again only when others have changed the database. Moves
  // the current record; visits nothing when the database cannot be opened.
  template <class Visit>
  void ForEachIn(const CPntList& points, const SegmentSieve& sieve, Visit visit) {
    if (ReadForDrawing()) drawn_.ForEach(points, sieve, visit);
  }

  // The first line in an order. -1 empty, -2 the database cannot be opened, -3 no first record.
  int First(Order order);

  // -1 at the end, -2 closed.
  int Next();

  // Deletes the database, creates it again with ids from 1 on, and opens it by smaller key. 0 when
  // it is open, or -1 with the database closed.
  //
  // Compatibility: every step is taken, also after one that failed. A database that could not be
  // deleted is opened again with all its lines, and that counts as success; new lines then take ids
  // that old ones have.
  int Clear();

  // Whether the extents may have changed since the last fit: set by Add, SetCurHan and Remove, a
  // failed one too.
  [[nodiscard]] bool Changed() const { return changed_; }
  void SetChanged(bool changed) { changed_ = changed; }

 private:
  bool Reopen(Order order);
  // Of an empty database: what is entered from now on need not be read back for drawing.
  void StartDrawn();
  // Brings drawn_ up to date. False when there is no first record.
  bool ReadForDrawing();
  // Whether drawn_ is up to date.
  [[nodiscard]] bool IsDrawn();
  // Adds a line that was entered just now to drawn_, if its place is the last.
  void DrawLast(std::int16_t id, LineKeys keys, std::int16_t legend);

  DeviceDatabase database_;
  LineLookup lookup_;
  LineRecord written_;
  CCeDBRecord record_;          // read into; a member to reuse its memory
  std::optional<Order> order_;  // nothing while closed
  std::int32_t next_id_ = 1;
  DrawnLines drawn_;
  std::optional<ULONGLONG> drawn_changes_;  // those of the database that drawn_ has seen, if whole
  std::int16_t last_drawn_ = 0;             // the id of the last one
  bool changed_ = false;
};

}  // namespace tavix
