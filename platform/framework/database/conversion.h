// Conversions between the types of the device's calls and those of the store.
#pragma once

#include <windbase.h>

#include "platform/objectstore/object_store.h"

inline HANDLE ToHandle(tavix::StoreHandle handle) {
  return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(handle));
}

// 0, which is no store's handle, for anything that cannot be a handle of a store.
inline tavix::StoreHandle ToStoreHandle(HANDLE handle) {
  const auto value = reinterpret_cast<ULONG_PTR>(handle);
  const auto narrow = static_cast<tavix::StoreHandle>(value);
  return narrow == value ? narrow : 0;
}

// The last-error code of an error; ERROR_SUCCESS for kNone.
DWORD ToLastError(tavix::StoreError error);

// True for kNone; otherwise sets the last error and returns false.
bool Worked(tavix::StoreError error);

// A value as a property, which points to the caller's text or bytes. A null string, or a null blob
// with a length, becomes a property that the store refuses.
tavix::Property ToProperty(const CEPROPVAL& value);

// A property as a value of the device's calls, which points to the store's text or bytes.
CEPROPVAL ToPropVal(const tavix::Property& property);

tavix::SortOrder ToSortOrder(const SORTORDERSPEC& sorting);
SORTORDERSPEC ToSortSpec(const tavix::SortOrder& order);
