// Which column of a coordinate list holds what.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace fieldhost {

enum class Column { kNumber, kNorth, kEast, kHeight, kDescription, kName, kKind };
inline constexpr std::size_t kColumnKinds = 7;

class ColumnLayout {
 public:
  // Number, northing, easting, elevation, description: the order of lists without a header.
  [[nodiscard]] static ColumnLayout Pnezd();

  // By the names in a header line, in any order and among columns of other meanings; nothing when
  // the line does not name a north and an east column. X is north and Y is east.
  [[nodiscard]] static std::optional<ColumnLayout> OfHeader(std::string_view line, char separator);

  // The place of a column from 0, or nothing when the list has none.
  [[nodiscard]] std::optional<std::size_t> Place(Column column) const {
    return places_[static_cast<std::size_t>(column)];
  }

  // True where the order is the usual one and not given by a header.
  [[nodiscard]] bool IsAssumed() const { return assumed_; }

  // How many fields to cut a line into. A text column at the end takes the rest of the line.
  [[nodiscard]] std::size_t Fields() const { return fields_; }

 private:
  void Put(Column column, std::size_t place) { places_[static_cast<std::size_t>(column)] = place; }

  std::array<std::optional<std::size_t>, kColumnKinds> places_;
  std::size_t fields_ = 0;
  bool assumed_ = false;
};

}  // namespace fieldhost
