// The store behind the device's database calls and classes.
#pragma once

#include "framework/platform.h"
#include "platform/objectstore/object_store.h"

// The installed store, or the process's own in-memory store, whose case-insensitive orders use the
// system's CharLower.
AFX_FRAMEWORK tavix::ObjectStore& DeviceStore();

// Installs a store, or the process's own store for null, and returns the previous one. The caller
// keeps the store alive until another is installed. A handle is valid only for the store that
// returned it.
AFX_FRAMEWORK tavix::ObjectStore* SetDeviceStore(tavix::ObjectStore* store);
