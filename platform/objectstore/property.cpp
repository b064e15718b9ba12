#include "platform/objectstore/property.h"

#include <algorithm>

namespace tavix {

bool IsKnownType(PropertyType type) {
  switch (type) {
    case PropertyType::kI2:
    case PropertyType::kI4:
    case PropertyType::kR8:
    case PropertyType::kBool:
    case PropertyType::kUI2:
    case PropertyType::kUI4:
    case PropertyType::kString:
    case PropertyType::kFileTime:
    case PropertyType::kBlob:
      return true;
  }
  return false;
}

std::size_t Property::StoredBytes() const {
  return IsVariableSize(Type()) ? sizeof data_ + sizeof size_ : ValueBytes(*this);
}

void Property::Store(std::byte* at) const {
  const auto store = [at](const auto& value) { std::memcpy(at, &value, sizeof value); };
  switch (Type()) {
    case PropertyType::kI2:
    case PropertyType::kUI2:
    case PropertyType::kBool:
      store(AsUI2());
      break;
    case PropertyType::kI4:
    case PropertyType::kUI4:
      store(AsUI4());
      break;
    case PropertyType::kR8:
    case PropertyType::kFileTime:
      store(bits_);
      break;
    case PropertyType::kString:
    case PropertyType::kBlob:
      store(data_);
      std::memcpy(at + sizeof data_, &size_, sizeof size_);
      break;
  }
}

const Property* FindProperty(std::span<const Property> properties, PropertyId id) {
  for (const Property& property : properties) {
    if (property.Id() == id) return &property;
  }
  return nullptr;
}

std::size_t ValueBytes(const Property& property) {
  switch (property.Type()) {
    case PropertyType::kI2:
    case PropertyType::kUI2:
    case PropertyType::kBool:
      return 2;
    case PropertyType::kI4:
    case PropertyType::kUI4:
      return 4;
    case PropertyType::kR8:
    case PropertyType::kFileTime:
      return 8;
    case PropertyType::kString:
    case PropertyType::kBlob:
      break;
  }
  return property.AsBytes().size();
}

bool SameProperty(const Property& one, const Property& other) {
  if (one.Id() != other.Id() || one.IsRemoval() != other.IsRemoval()) return false;
  if (one.IsRemoval()) return true;
  if (!IsVariableSize(one.Type())) return one.AsFileTime() == other.AsFileTime();
  return std::ranges::equal(one.AsBytes(), other.AsBytes());
}

bool AreValid(std::span<const Property> properties) {
  for (const Property& property : properties) {
    if (!IsKnownType(property.Type())) return false;
    if (property.IsRemoval() || !IsVariableSize(property.Type())) continue;
    const std::span<const std::byte> bytes = property.AsBytes();
    const bool missing = bytes.data() == nullptr && !bytes.empty();
    if (missing || bytes.size() > Property::kMaxValueBytes) return false;
  }
  return true;
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

std::vector<Property> MergeValues(std::vector<Property> record, std::span<const Property> written) {
  for (const Property& property : written) {
    const auto same = std::ranges::find(record, property.Id(), &Property::Id);
    if (property.IsRemoval()) {
      if (same != record.end()) record.erase(same);
    } else if (same != record.end()) {
      *same = property;
    } else {
      record.push_back(property);
    }
  }
  return record;
}

bool FitInRecord(std::span<const Property> properties) {
  std::size_t bytes = 0;
  for (const Property& property : properties) bytes += ValueBytes(property);
  return bytes <= Property::kMaxRecordBytes;
}

}  // namespace tavix
