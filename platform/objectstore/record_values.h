// What a write makes of a record's properties.
#pragma once

#include <span>
#include <vector>

#include "platform/objectstore/error.h"
#include "platform/objectstore/property.h"

namespace tavix {

// kInvalidParameter for a property of no known type, a missing text, or a value that is too long.
StoreError CheckValues(std::span<const Property> properties);

// True when the properties can be a new record as they are: none twice and no removals.
bool AreDistinct(std::span<const Property> properties);

// The properties of a record after a write: values replace those with the same identifier, new ones
// go to the end, removals take away. The views point where they did.
std::vector<Property> MergeValues(std::span<const Property> record,
                                  std::span<const Property> written);

// False when the values of one record are too long together.
bool FitInRecord(std::span<const Property> properties);

}  // namespace tavix
