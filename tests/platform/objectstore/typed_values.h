// Records of random values of every type, and plain copies of them to compare with.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "platform/objectstore/record_layout.h"

namespace tavix {

// A property that owns its string or blob.
struct Value {
  Property property;
  std::u16string data;

  [[nodiscard]] Property Get() const {
    return IsVariableSize(property.Type()) ? Property::WithData(property, data.data()) : property;
  }
};

class RandomValues {
 public:
  explicit RandomValues(unsigned seed) : random_(seed) {}

  std::uint32_t Below(std::size_t end) { return static_cast<std::uint32_t>(random_() % end); }

  // A value of any type, under one of `tags` tags.
  Value Any(std::size_t tags) {
    const auto tag = static_cast<std::uint16_t>(Below(tags));
    const auto bits = static_cast<std::uint32_t>(random_());
    switch (Below(9)) {
      case 0:
        return {Property::I2(tag, static_cast<std::int16_t>(bits)), u""};
      case 1:
        return {Property::UI2(tag, static_cast<std::uint16_t>(bits)), u""};
      case 2:
        return {Property::I4(tag, static_cast<std::int32_t>(bits)), u""};
      case 3:
        return {Property::UI4(tag, bits), u""};
      case 4:
        return {Property::Bool(tag, bits % 2 == 0), u""};
      case 5:
        return {Property::R8(tag, bits * 1.7 - 3e9), u""};
      case 6:
        return {Property::FileTime(tag, std::uint64_t{bits} << 32 | bits), u""};
      case 7: {
        Value text{{}, std::u16string(Below(20), static_cast<char16_t>(u'a' + bits % 26))};
        text.property = Property::String(tag, text.data);
        return text;
      }
      default: {
        Value blob{{}, std::u16string(Below(9), static_cast<char16_t>(bits))};
        blob.property = Property::Blob(tag, std::as_bytes(std::span(blob.data)));
        return blob;
      }
    }
  }

 private:
  std::mt19937 random_;
};

// The values of a record in their order.
using Record = std::vector<Value>;

inline std::vector<Property> PropertiesOf(const Record& record) {
  std::vector<Property> properties;
  std::ranges::transform(record, std::back_inserter(properties), &Value::Get);
  return properties;
}

// As a write does it: in place of the value with the same identifier, or last.
inline void Put(Record& record, const Value& value) {
  const auto same = std::ranges::find(record, value.property.Id(),
                                      [](const Value& each) { return each.property.Id(); });
  if (same != record.end()) {
    *same = value;
  } else {
    record.push_back(value);
  }
}

inline std::size_t BytesOf(const Record& record) {
  std::size_t bytes = 0;
  for (const Value& value : record) bytes += ValueBytes(value.Get());
  return bytes;
}

inline void ExpectSame(const Record& expected, const RecordValues& values) {
  ASSERT_EQ(expected.size(), values.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const Property property = values[i];
    ASSERT_TRUE(SameProperty(expected[i].Get(), property)) << i;
    ASSERT_TRUE(SameProperty(property, *values.Find(property.Id()))) << i;
    if (property.Type() == PropertyType::kString) {
      ASSERT_EQ(u'\0', property.AsString().data()[property.AsString().size()]);
    }
  }
}

}  // namespace tavix
