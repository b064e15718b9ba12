#include "store/device_database.h"

#include <windbase.h>

#include <new>

namespace tavix {

DeviceDatabase::DeviceDatabase(LPCWSTR base_name, int instance, DWORD ident,
                               std::span<CCeDBProp> sort_properties)
    : ident_(ident), sort_properties_(sort_properties) {
  name_.Format(L"%s%d", base_name, instance);
  database_.m_bAutoSeekNext = FALSE;
  Recreate();
}

DeviceDatabase::~DeviceDatabase() {
  try {
    Discard();
  } catch (const std::bad_alloc&) {
    // It stays on the device, and is replaced by the next one of its name.
  }
}

bool DeviceDatabase::Open(CCeDBProp* sort_property) {
  return database_.Open(name_, sort_property) != FALSE;
}

bool DeviceDatabase::Close() {
  if (!database_.IsOpen()) return false;
  database_.Close();
  return true;
}

void DeviceDatabase::Recreate() {
  Discard();
  database_.Create(name_, ident_, static_cast<WORD>(sort_properties_.size()),
                   sort_properties_.data());
}

bool DeviceDatabase::DeleteCurrent() {
  const CEOID record = database_.GetCurrRecord();
  return record != 0 && CeDeleteRecord(database_.m_hDatabase, record) != FALSE;
}

void DeviceDatabase::Discard() {
  if (database_.IsOpen() || (CCeDBDatabase::Exists(name_) && database_.Open(name_))) {
    database_.Delete();
  }
}

}  // namespace tavix
