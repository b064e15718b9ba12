// The legend: the symbols of points and lines, by legend number.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/symbols.h"

namespace tavix {

struct HanRec {
  std::int16_t number = 0;
  bool is_point = false;  // not part of the lookup, and not stored in the file
  LegendValues values;

  friend bool operator==(const HanRec&, const HanRec&) = default;
};

// The table of legend entries, in list order; the first entry with a number counts. Finding one
// takes the same time however many there are. Operations return 0, or -1 when there is no such
// entry or title.
class LegendTable {
 public:
  static constexpr int kPointLegends = 11;   // numbered 1..11
  static constexpr int kStoredLegends = 16;  // and five line legends, 101..105
  static constexpr std::int32_t kDefaultRotationStep = 10;

  // Starts with the built-in entries.
  LegendTable();

  // Appends an entry with the next run-time number, from 201 up.
  int Add(bool is_point, const LegendValues& values, std::int16_t* number);
  int Change(std::int16_t number, bool is_point, const LegendValues& values);

  // The entry of a number, valid until an entry is added. Null when there is none.
  [[nodiscard]] const HanRec* Find(std::int16_t number) const;

  // Copies entries in list order, at most `count` of them (at least one, when there is one).
  // Returns how many were copied.
  std::size_t CopyOut(std::size_t count, HanRec* entries) const;

  // Titles of point legends 1..11, empty at first.
  int SetTitle(int n, std::u16string_view title);
  int GetTitle(int n, std::u16string* title) const;

  // The number in the legend file's header: the step of the rotate buttons in whole degrees.
  // Carried through the file as it is, whatever it is.
  [[nodiscard]] std::int32_t RotationStep() const { return rotation_step_; }
  void SetRotationStep(std::int32_t degrees) { rotation_step_ = degrees; }

  // All entries in list order; the file keeps the first sixteen.
  [[nodiscard]] const std::vector<HanRec>& Entries() const { return entries_; }

  // Takes the sixteen entries of a file in place of the built-in ones. Their numbers come from
  // their places: 1..11, then 101..105.
  void TakeStored(const std::array<LegendValues, kStoredLegends>& values);

 private:
  static constexpr std::int16_t kFirstAdded = 201;

  // The stored entries, then the added ones in the order of their numbers.
  std::vector<HanRec> entries_;
  std::int16_t next_number_ = kFirstAdded;
  std::int32_t rotation_step_ = kDefaultRotationStep;
  std::array<std::u16string, kPointLegends> titles_;
};

}  // namespace tavix
