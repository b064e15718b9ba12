// The store behind the device's database calls and classes.
#pragma once

#include "framework/platform.h"
#include "platform/objectstore/object_store.h"

// The store installed last, or the process's own in-memory one, which sorts without regard to case
// as the system does.
AFX_FRAMEWORK tavix::ObjectStore& DeviceStore();

// Installs a store, or the process's own again for null, and returns the one before it. The caller
// keeps the store alive until another is installed. Handles belong to the store that gave them.
AFX_FRAMEWORK tavix::ObjectStore* SetDeviceStore(tavix::ObjectStore* store);
