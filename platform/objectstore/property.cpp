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

}  // namespace tavix
