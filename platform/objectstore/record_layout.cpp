#include "platform/objectstore/record_layout.h"

#include <algorithm>

namespace tavix {
namespace {

// Of a string or blob.
struct Data {
  const void* address;
  std::uint32_t bytes;
};
constexpr std::size_t kDataBytes = sizeof(Data::address) + sizeof(Data::bytes);

template <class Number>
Number ReadNumber(const std::byte* at) {
  Number number = 0;
  std::memcpy(&number, at, sizeof number);
  return number;
}

Data ReadData(const std::byte* at) {
  Data data{};
  std::memcpy(&data.address, at, sizeof data.address);
  std::memcpy(&data.bytes, at + sizeof data.address, sizeof data.bytes);
  return data;
}

void WriteData(std::byte* at, std::span<const std::byte> bytes) {
  const Data data{bytes.data(), static_cast<std::uint32_t>(bytes.size())};
  std::memcpy(at, &data.address, sizeof data.address);
  std::memcpy(at + sizeof data.address, &data.bytes, sizeof data.bytes);
}

template <class Number>
void WriteNumber(std::byte* at, Number number) {
  std::memcpy(at, &number, sizeof number);
}

}  // namespace

RecordLayout::RecordLayout(std::span<const Property> properties) {
  columns_.reserve(properties.size());
  for (const Property& property : properties) {
    columns_.push_back({property.Id(), static_cast<std::uint32_t>(row_bytes_)});
    const bool is_data = IsVariableSize(property.Type());
    has_data_ = has_data_ || is_data;
    row_bytes_ += is_data ? kDataBytes : ValueBytes(property);
  }
}

bool RecordLayout::Fits(std::span<const Property> properties) const {
  return std::ranges::equal(columns_, properties, {}, &Column::id, &Property::Id);
}

std::optional<std::size_t> RecordLayout::Find(PropertyId id) const {
  for (std::size_t number = 0; number < columns_.size(); ++number) {
    if (columns_[number].id == id) return number;
  }
  return std::nullopt;
}

Property RecordLayout::Read(const std::byte* row, std::size_t number) const {
  const Column& column = columns_[number];
  const std::byte* at = row + column.offset;
  const std::uint16_t tag = column.id.Tag();
  switch (column.id.Type()) {
    case PropertyType::kI2:
      return Property::I2(tag, ReadNumber<std::int16_t>(at));
    case PropertyType::kUI2:
      return Property::UI2(tag, ReadNumber<std::uint16_t>(at));
    case PropertyType::kBool:
      return Property::Bool(tag, ReadNumber<std::uint16_t>(at) != 0);
    case PropertyType::kI4:
      return Property::I4(tag, ReadNumber<std::int32_t>(at));
    case PropertyType::kUI4:
      return Property::UI4(tag, ReadNumber<std::uint32_t>(at));
    case PropertyType::kR8:
      return Property::R8Bits(tag, ReadNumber<std::uint64_t>(at));
    case PropertyType::kFileTime:
      return Property::FileTime(tag, ReadNumber<std::uint64_t>(at));
    case PropertyType::kString: {
      const Data data = ReadData(at);
      return Property::String(
          tag, {static_cast<const char16_t*>(data.address), data.bytes / sizeof(char16_t)});
    }
    case PropertyType::kBlob:
      break;
  }
  const Data data = ReadData(at);
  return Property::Blob(tag, {static_cast<const std::byte*>(data.address), data.bytes});
}

void RecordLayout::Write(std::byte* row, std::size_t number, const Property& value) const {
  std::byte* at = row + columns_[number].offset;
  switch (value.Type()) {
    case PropertyType::kI2:
    case PropertyType::kUI2:
      WriteNumber(at, value.AsUI2());
      break;
    case PropertyType::kBool:
      WriteNumber<std::uint16_t>(at, value.AsBool() ? 1 : 0);
      break;
    case PropertyType::kI4:
    case PropertyType::kUI4:
      WriteNumber(at, value.AsUI4());
      break;
    case PropertyType::kR8:
    case PropertyType::kFileTime:
      WriteNumber(at, value.AsFileTime());
      break;
    case PropertyType::kString:
    case PropertyType::kBlob:
      WriteData(at, value.AsBytes());
      break;
  }
}

}  // namespace tavix
