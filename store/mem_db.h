// The memos of one instance: a text for a point key.
#pragma once

#include <cstdint>

#include "store/device_database.h"

namespace tavix {

// Memos in the device database "QZMemDB<instance>". A key needs no point. The record has room for
// 16 bits of a key, so a key beyond that range stands for the one with the same low 16 bits.
//
// Operations return 0 for success and negative codes for the step that failed.
class CMemDb {
 public:
  // Makes the database anew, closed; one left on the device is discarded.
  explicit CMemDb(int instance);

  // 0 opened, 1 not, -2 when it is open already.
  int Open();

  // 0, or -1 when it is closed already or cannot be closed.
  int Close();

  // Closes it and deletes it from the device. Nothing may be asked of the store any more.
  void Discard();

  // Makes the memo of a key current, opening the database if it is closed. -1 there is none, -2 the
  // database cannot be opened.
  int Seek(std::int32_t key);

  // Keeps a text for a key, in place of one there is. Compatibility: an empty text removes the memo
  // of a key that has one, and is kept for a key that has none. The code of the step that failed.
  int Enter(std::int32_t key, const CString& text);

  // The text of a key. The code of the step that failed; `text` is then empty.
  int Read(std::int32_t key, CString* text);

  // -1 when the record cannot be added.
  int Add(std::int32_t key, const CString& text);

  // -2 closed, -1 unreadable.
  int ReadCur(CString* text);

  // -2 closed, -3 unreadable, -1 the write failed.
  int UpdateCur(const CString& text);

  // The code of Seek when there is none, -3 when the deletion failed.
  int Remove(std::int32_t key);

  // Deletes the database, creates it again and opens it. 0 when it is open, or 1 when it stays
  // closed.
  //
  // Compatibility: a database that could not be deleted is opened again with all its memos, and
  // that counts as success.
  int Clear();

  [[nodiscard]] int Instance() const { return instance_; }

 private:
  // The numbers are those of the device's own state word; the line store counts the other way.
  enum class State : std::uint16_t { kOpen = 0, kClosed = 1 };

  DeviceDatabase database_;
  State state_ = State::kClosed;
  int instance_;
};

}  // namespace tavix
