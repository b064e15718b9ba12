// The legend: how point marks and lines look, by legend number.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavix {

// What a legend entry says of its look. For points `kind` is the mark's shape, `prm1` its size and
// `prm2` the label's height in pixels, `prm3` whether the label is the number (non-zero) or the
// name. For lines `kind` is the style (101 solid) and the parameters are the pattern's lengths in
// pixels.
struct LegendStyle {
  std::int32_t kind = 0;
  std::int32_t prm1 = 0;
  std::int32_t prm2 = 0;
  std::int32_t prm3 = 0;
  std::int32_t width = 0;  // pen width, pixels
  std::int32_t color = 0;  // COLORREF: 0x00BBGGRR

  friend bool operator==(const LegendStyle&, const LegendStyle&) = default;
};

struct HanRec {
  std::int16_t number = 0;
  bool is_point = false;  // not part of the lookup, and not stored in the file
  LegendStyle style;

  friend bool operator==(const HanRec&, const HanRec&) = default;
};

// The table of legend entries, in list order; the first entry with a number counts. Finding one
// takes the same time however many there are. Operations return 0, or -1 when there is no such
// entry.
class LegendTable {
 public:
  static constexpr int kPointLegends = 11;   // numbered 1..11
  static constexpr int kStoredLegends = 16;  // and five line legends, 101..105
  static constexpr std::int32_t kDefaultRotationStep = 10;

  // Starts with the built-in entries.
  LegendTable();

  // Appends an entry with the next run-time number, from 201 up.
  int Add(bool is_point, const LegendStyle& style, std::int16_t* number);
  int Change(std::int16_t number, bool is_point, const LegendStyle& style);
  int Get(std::int16_t number, HanRec* entry) const;

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

  // Calls `change(LegendStyle&)` for every entry.
  template <class Change>
  void ForEachStyle(Change change) {
    for (HanRec& entry : entries_) change(entry.style);
  }

  // Takes the sixteen entries of a file in place of the built-in ones. Their numbers come from
  // their places: 1..11, then 101..105.
  void TakeStored(const std::array<LegendStyle, kStoredLegends>& styles);

 private:
  static constexpr std::int16_t kFirstAdded = 201;

  [[nodiscard]] const HanRec* Find(std::int16_t number) const;

  std::vector<HanRec>
      entries_;  // the stored ones, then the added ones in the order of their numbers
  std::int16_t next_number_ = kFirstAdded;
  std::int32_t rotation_step_ = kDefaultRotationStep;
  std::array<std::u16string, kPointLegends> titles_;
};

}  // namespace tavix
