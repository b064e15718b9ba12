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
  // Creates the database, empty and closed, in place of one left on the device.
  explicit CMemDb(int instance);

  // False when it is open already or cannot be opened.
  bool Open();

  // Closes it and deletes it from the device. The store must not be used afterwards.
  void Discard();

  // Each of these opens a closed database first.

  // Stores the text of a key, replacing an older one. Compatibility: an empty text removes the memo
  // of a key that has one, and is stored for a key that has none. -1 it cannot be written, also
  // because the database cannot be opened; -3 the older one cannot be read or removed.
  int Enter(std::int32_t key, const CString& text);

  // The text of a key. -1 no memo or an unreadable one, -2 the database cannot be opened; `text` is
  // then empty.
  int Read(std::int32_t key, CString* text);

  // -1 no memo for this key, -2 the database cannot be opened, -3 the deletion failed.
  int Remove(std::int32_t key);

  // Deletes the database, creates it again and opens it. 0 when it is open, or 1 when it stays
  // closed.
  //
  // Compatibility: a database that could not be deleted is opened again with all its memos, and
  // that counts as success.
  int Clear();

 private:
  // Makes the memo of a key current. -1 no memo, -2 the database cannot be opened.
  int Seek(std::int32_t key);

  int Add(std::int32_t key, const CString& text);
  int ReadCur(CString* text);
  int UpdateCur(const CString& text);

  DeviceDatabase database_;
  bool open_ = false;
};

}  // namespace tavix
