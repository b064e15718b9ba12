// One device database of an instance: what the line and the memo store share.
#pragma once

#include <afx.h>
#include <wcedb.h>

#include <span>

namespace tavix {

// A database that belongs to one instance: created empty with the object, in place of one of that
// name left on the device, and deleted with it.
class DeviceDatabase {
 public:
  // `sort_properties` are the orders it can be opened in; they outlive the object.
  DeviceDatabase(LPCWSTR base_name, int instance, DWORD ident,
                 std::span<CCeDBProp> sort_properties);
  ~DeviceDatabase();
  DeviceDatabase(const DeviceDatabase&) = delete;
  DeviceDatabase& operator=(const DeviceDatabase&) = delete;

  // Opens it in the order of a property, or in its first order for null. Reading leaves the current
  // record where it is.
  bool Open(CCeDBProp* sort_property);

  // False when it could not be closed.
  bool Close();

  // Deletes it with all records and creates it again, closed. If it cannot be deleted it stays as
  // it is, since a second one of its name cannot be created.
  void Recreate();

  // Deletes it from the device, as its destructor does.
  void Discard();

  // Deletes the current record.
  bool DeleteCurrent();

  [[nodiscard]] CCeDBDatabase& Records() { return database_; }

 private:
  CString name_;  // the base name and the instance
  DWORD ident_;
  std::span<CCeDBProp> sort_properties_;
  CCeDBDatabase database_;
};

}  // namespace tavix
