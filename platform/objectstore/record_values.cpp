#include "platform/objectstore/record_values.h"

#include <algorithm>
#include <cstddef>

namespace tavix {

StoreError CheckValues(std::span<const Property> properties) {
  for (const Property& property : properties) {
    if (!IsKnownType(property.Type())) return StoreError::kInvalidParameter;
    if (property.IsRemoval() || !IsVariableSize(property.Type())) continue;
    const std::span<const std::byte> bytes = property.AsBytes();
    const bool missing = bytes.data() == nullptr && !bytes.empty();
    if (missing || bytes.size() > Property::kMaxValueBytes) return StoreError::kInvalidParameter;
  }
  return StoreError::kNone;
}

bool AreDistinct(std::span<const Property> properties) {
  for (std::size_t i = 0; i < properties.size(); ++i) {
    if (properties[i].IsRemoval()) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (properties[i].Id() == properties[j].Id()) return false;
    }
  }
  return true;
}

std::vector<Property> MergeValues(std::span<const Property> record,
                                  std::span<const Property> written) {
  std::vector<Property> merged(record.begin(), record.end());
  for (const Property& property : written) {
    const auto same = std::ranges::find(merged, property.Id(), &Property::Id);
    if (property.IsRemoval()) {
      if (same != merged.end()) merged.erase(same);
    } else if (same != merged.end()) {
      *same = property;
    } else {
      merged.push_back(property);
    }
  }
  return merged;
}

bool FitInRecord(std::span<const Property> properties) {
  std::size_t bytes = 0;
  for (const Property& property : properties) bytes += ValueBytes(property);
  return bytes <= Property::kMaxRecordBytes;
}

}  // namespace tavix
