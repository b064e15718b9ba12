// The typed values in the records of a database.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace tavix {

// Type numbers of property values, as in a property identifier's low word.
enum class PropertyType : std::uint16_t {
  kI2 = 2,
  kI4 = 3,
  kR8 = 5,
  kBool = 11,
  kUI2 = 18,
  kUI4 = 19,
  kString = 31,
  kFileTime = 64,
  kBlob = 65,
};

// True for the nine types above, false for any other number.
bool IsKnownType(PropertyType type);

// Strings and blobs: their value lies outside the property itself.
inline bool IsVariableSize(PropertyType type) {
  return type == PropertyType::kString || type == PropertyType::kBlob;
}

// Identifies a property in a record: the application's tag and the type of the value. Two
// properties with the same tag and different types are different properties.
class PropertyId {
 public:
  constexpr PropertyId() = default;
  constexpr explicit PropertyId(std::uint32_t value) : value_(value) {}
  constexpr PropertyId(std::uint16_t tag, PropertyType type)
      : value_(std::uint32_t{tag} << 16 | static_cast<std::uint32_t>(type)) {}

  // The number as the device's calls carry it: tag in the high word, type in the low one.
  [[nodiscard]] constexpr std::uint32_t Value() const { return value_; }
  [[nodiscard]] constexpr std::uint16_t Tag() const {
    return static_cast<std::uint16_t>(value_ >> 16);
  }
  [[nodiscard]] constexpr PropertyType Type() const {
    return static_cast<PropertyType>(value_ & 0xFFFFU);
  }
  [[nodiscard]] constexpr bool IsNone() const { return value_ == 0; }

  friend constexpr bool operator==(PropertyId, PropertyId) = default;

 private:
  std::uint32_t value_ = 0;
};

// One property with its value. A string or blob is not owned: the creator of the property keeps the
// text or bytes alive, and a property returned by a store is valid until that store changes. Read
// the value as the type that the property has.
class Property {
 public:
  // The largest size in bytes of a string or blob, and of all values of one record together.
  static constexpr std::size_t kMaxValueBytes = 65471;
  static constexpr std::size_t kMaxRecordBytes = 131072;

  static Property I2(std::uint16_t tag, std::int16_t value) {
    return {PropertyId(tag, PropertyType::kI2), static_cast<std::uint64_t>(value)};
  }
  static Property UI2(std::uint16_t tag, std::uint16_t value) {
    return {PropertyId(tag, PropertyType::kUI2), value};
  }
  static Property I4(std::uint16_t tag, std::int32_t value) {
    return {PropertyId(tag, PropertyType::kI4), static_cast<std::uint64_t>(value)};
  }
  static Property UI4(std::uint16_t tag, std::uint32_t value) {
    return {PropertyId(tag, PropertyType::kUI4), value};
  }
  static Property Bool(std::uint16_t tag, bool value) {
    return {PropertyId(tag, PropertyType::kBool), value ? 1U : 0U};
  }
  // value: 100 ns steps since the start of 1601, UTC.
  static Property FileTime(std::uint16_t tag, std::uint64_t value) {
    return {PropertyId(tag, PropertyType::kFileTime), value};
  }
  static Property R8(std::uint16_t tag, double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return {PropertyId(tag, PropertyType::kR8), bits};
  }
  static Property String(std::uint16_t tag, std::u16string_view text) {
    return {PropertyId(tag, PropertyType::kString), text.data(), text.size() * sizeof(char16_t)};
  }
  static Property Blob(std::uint16_t tag, std::span<const std::byte> bytes) {
    return {PropertyId(tag, PropertyType::kBlob), bytes.data(), bytes.size()};
  }
  // For writing only: removes the property from the record.
  static Property Removal(PropertyId id) { return {id, nullptr, kRemoval}; }
  // The same property with its string or blob at another address.
  static Property WithData(const Property& other, const void* data) {
    return {other.id_, data, other.size_};
  }

  // ---- Values in memory without their identifiers, in their own sizes; of a string or blob the
  //      address and the length, as the data stays where it is.

  [[nodiscard]] std::size_t StoredBytes() const;
  // Takes StoredBytes() bytes; they need not be aligned.
  void Store(std::byte* at) const;
  [[nodiscard]] static Property At(PropertyId id, const std::byte* at) {
    switch (id.Type()) {
      case PropertyType::kI2:
        return {id, static_cast<std::uint64_t>(NumberAt<std::int16_t>(at))};
      case PropertyType::kUI2:
      case PropertyType::kBool:
        return {id, NumberAt<std::uint16_t>(at)};
      case PropertyType::kI4:
        return {id, static_cast<std::uint64_t>(NumberAt<std::int32_t>(at))};
      case PropertyType::kUI4:
        return {id, NumberAt<std::uint32_t>(at)};
      case PropertyType::kR8:
      case PropertyType::kFileTime:
        return {id, NumberAt<std::uint64_t>(at)};
      case PropertyType::kString:
      case PropertyType::kBlob:
        break;
    }
    const auto bytes = NumberAt<std::uint32_t>(at + sizeof(const void*));
    return {id, NumberAt<const void*>(at), std::size_t{bytes}};
  }

  Property() : Property(PropertyId(), std::uint64_t{0}) {}

  [[nodiscard]] PropertyId Id() const { return id_; }
  [[nodiscard]] PropertyType Type() const { return id_.Type(); }
  [[nodiscard]] bool IsRemoval() const { return size_ == kRemoval; }

  [[nodiscard]] std::int16_t AsI2() const { return static_cast<std::int16_t>(bits_); }
  [[nodiscard]] std::uint16_t AsUI2() const { return static_cast<std::uint16_t>(bits_); }
  [[nodiscard]] std::int32_t AsI4() const { return static_cast<std::int32_t>(bits_); }
  [[nodiscard]] std::uint32_t AsUI4() const { return static_cast<std::uint32_t>(bits_); }
  [[nodiscard]] bool AsBool() const { return bits_ != 0; }
  [[nodiscard]] std::uint64_t AsFileTime() const { return bits_; }
  [[nodiscard]] double AsR8() const {
    double value = 0.0;
    std::memcpy(&value, &bits_, sizeof value);
    return value;
  }
  [[nodiscard]] std::u16string_view AsString() const {
    return {static_cast<const char16_t*>(data_), size_ / sizeof(char16_t)};
  }
  // The bytes of a blob, or of a string without its terminating zero.
  [[nodiscard]] std::span<const std::byte> AsBytes() const {
    return {static_cast<const std::byte*>(data_), size_};
  }

 private:
  static constexpr std::uint32_t kRemoval = 0xFFFFFFFF;

  template <class Number>
  static Number NumberAt(const std::byte* at) {
    Number number{};
    std::memcpy(&number, at, sizeof number);
    return number;
  }

  Property(PropertyId id, std::uint64_t bits) : id_(id), bits_(bits) {}
  Property(PropertyId id, const void* data, std::size_t size)
      : id_(id), size_(static_cast<std::uint32_t>(size)), data_(data) {}

  PropertyId id_;
  std::uint32_t size_ = 0;  // bytes of a string or blob; kRemoval; 0 for the other types
  union {
    std::uint64_t bits_;
    const void* data_;
  };
};

// The property with this identifier, or null.
const Property* FindProperty(std::span<const Property> properties, PropertyId id);

// The size of the value in bytes: 2, 4 or 8, or the length of the string or blob.
std::size_t ValueBytes(const Property& property);

// True when both hold the same property with the same value.
bool SameProperty(const Property& one, const Property& other);

// ---- The properties of a record that is written

// False when a property has no known type, a string or blob is missing, or its value is too long.
bool AreValid(std::span<const Property> properties);

// True when the properties can be stored as a new record unchanged: no duplicates and no removals.
bool AreDistinct(std::span<const Property> properties);

// The properties of a record after a write: a value replaces one with the same identifier or is
// appended, a removal removes it. Strings and blobs are not copied.
std::vector<Property> MergeValues(std::vector<Property> record, std::span<const Property> written);

// False when the values are too large for one record.
bool FitInRecord(std::span<const Property> properties);

}  // namespace tavix
