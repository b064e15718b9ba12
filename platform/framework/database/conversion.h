// Between what the device's calls take and what the store takes.
#pragma once

#include <windbase.h>

#include "platform/objectstore/object_store.h"

inline HANDLE ToHandle(tavix::StoreHandle handle) {
  return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(handle));
}

// 0, which no store gives out, for anything that cannot be a store's handle.
inline tavix::StoreHandle ToStoreHandle(HANDLE handle) {
  const auto value = reinterpret_cast<ULONG_PTR>(handle);
  const auto narrow = static_cast<tavix::StoreHandle>(value);
  return narrow == value ? narrow : 0;
}

// The last-error code for a reason, and 0 for none.
DWORD ToLastError(tavix::StoreError error);

// Sets the last error when there is one. True when there is none.
bool Worked(tavix::StoreError error);

// The store's view of a value, which goes on pointing to the caller's text or bytes. A null string
// or a null blob of some length comes out as one the store refuses.
tavix::Property ToProperty(const CEPROPVAL& value);

// The device's view of a value, which points to the store's text or bytes.
CEPROPVAL ToPropVal(const tavix::Property& property);

tavix::SortOrder ToSortOrder(const SORTORDERSPEC& sorting);
SORTORDERSPEC ToSortSpec(const tavix::SortOrder& order);
