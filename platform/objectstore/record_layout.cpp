#include "platform/objectstore/record_layout.h"

#include <algorithm>

namespace tavix {

RecordLayout::RecordLayout(std::span<const Property> properties) {
  columns_.reserve(properties.size());
  for (const Property& property : properties) {
    columns_.push_back({property.Id(), static_cast<std::uint32_t>(row_bytes_)});
    has_data_ = has_data_ || IsVariableSize(property.Type());
    row_bytes_ += property.StoredBytes();
  }
}

bool RecordLayout::Fits(std::span<const Property> properties) const {
  return std::ranges::equal(columns_, properties, {}, &Column::id, &Property::Id);
}

void RecordLayout::Write(std::byte* row, std::size_t number, const Property& value) const {
  value.Store(row + columns_[number].offset);
}

}  // namespace tavix
