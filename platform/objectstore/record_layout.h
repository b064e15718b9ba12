// How the values of a record lie in memory, and a record's values as its readers see them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <vector>

#include "platform/objectstore/property.h"

namespace tavix {

// Which properties a record has, in which order, and where each value is in its row of bytes. A
// value takes its own size; of a string or blob the row has the address and the length. Records
// with the same properties share one layout.
class RecordLayout {
 public:
  // The properties are distinct and no removals.
  explicit RecordLayout(std::span<const Property> properties);

  // Whether these properties, in this order, are the layout's.
  [[nodiscard]] bool Fits(std::span<const Property> properties) const;

  [[nodiscard]] std::size_t Count() const { return columns_.size(); }
  // The number of a property, or nothing.
  [[nodiscard]] std::optional<std::size_t> Find(PropertyId id) const {
    for (std::size_t number = 0; number < columns_.size(); ++number) {
      if (columns_[number].id == id) return number;
    }
    return std::nullopt;
  }
  [[nodiscard]] std::size_t RowBytes() const { return row_bytes_; }
  // Whether there are strings or blobs.
  [[nodiscard]] bool HasData() const { return has_data_; }

  [[nodiscard]] Property Read(const std::byte* row, std::size_t number) const {
    return Property::At(columns_[number].id, row + columns_[number].offset);
  }
  // A string or blob is written as it is, not copied.
  void Write(std::byte* row, std::size_t number, const Property& value) const;

 private:
  struct Column {
    PropertyId id;
    std::uint32_t offset;
  };

  std::vector<Column> columns_;
  std::size_t row_bytes_ = 0;
  bool has_data_ = false;
};

// The properties of a record, made from its row as they are asked for. Good until the store next
// changes.
class RecordValues {
 public:
  class Iterator;

  RecordValues() = default;  // none
  RecordValues(const RecordLayout& layout, const std::byte* row) : layout_(&layout), row_(row) {}

  [[nodiscard]] std::size_t size() const { return layout_ ? layout_->Count() : 0; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Property operator[](std::size_t number) const {
    return layout_->Read(row_, number);
  }
  [[nodiscard]] Iterator begin() const;
  [[nodiscard]] Iterator end() const;

  // The property with this identifier, or nothing.
  [[nodiscard]] std::optional<Property> Find(PropertyId id) const {
    const std::optional<std::size_t> number = layout_ ? layout_->Find(id) : std::nullopt;
    if (!number) return std::nullopt;
    return (*this)[*number];
  }

 private:
  const RecordLayout* layout_ = nullptr;
  const std::byte* row_ = nullptr;
};

class RecordValues::Iterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = Property;
  using difference_type = std::ptrdiff_t;
  using pointer = void;
  using reference = Property;

  Iterator() = default;
  Iterator(RecordValues values, std::size_t number) : values_(values), number_(number) {}

  [[nodiscard]] Property operator*() const { return values_[number_]; }
  Iterator& operator++() {
    ++number_;
    return *this;
  }
  Iterator operator++(int) { return {values_, number_++}; }
  // Of iterators of the same values.
  friend bool operator==(const Iterator& one, const Iterator& other) {
    return one.number_ == other.number_;
  }

 private:
  RecordValues values_;
  std::size_t number_ = 0;
};

inline RecordValues::Iterator RecordValues::begin() const { return {*this, 0}; }
inline RecordValues::Iterator RecordValues::end() const { return {*this, size()}; }

}  // namespace tavix
