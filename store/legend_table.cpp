#include "store/legend_table.h"

#include <algorithm>

namespace tavix {
namespace {

constexpr std::int32_t kBlack = 0;
constexpr std::int32_t kRed = 255;

// Compatibility: 103 stands before 102. A saved and reloaded list is numbered by place, so the two
// swap their symbols after the first save.
constexpr HanRec kBuiltIn[LegendTable::kStoredLegends] = {
    {1, true, {1, 2, 10, 1, 1, kBlack}},   {2, true, {2, 10, 10, 1, 1, kBlack}},
    {3, true, {3, 10, 10, 1, 1, kBlack}},  {4, true, {4, 10, 10, 1, 1, kBlack}},
    {5, true, {5, 10, 10, 1, 1, kRed}},    {6, true, {6, 10, 10, 1, 1, kRed}},
    {7, true, {7, 10, 10, 1, 1, kRed}},    {8, true, {8, 10, 10, 1, 1, kBlack}},
    {9, true, {9, 10, 10, 1, 1, kRed}},    {10, true, {10, 10, 10, 1, 1, kRed}},
    {11, true, {11, 10, 10, 1, 1, kRed}},  {101, false, {101, 0, 0, 0, 1, kBlack}},
    {103, false, {103, 0, 0, 0, 1, kRed}}, {102, false, {102, 4, 2, 0, 1, kBlack}},
    {104, false, {104, 4, 2, 2, 1, kRed}}, {105, false, {105, 4, 2, 2, 1, kRed}},
};

std::int16_t NumberAtPlace(int place) {
  const bool is_point = place < LegendTable::kPointLegends;
  return static_cast<std::int16_t>(is_point ? place + 1 : place - LegendTable::kPointLegends + 101);
}

}  // namespace

LegendTable::LegendTable() : entries_(std::begin(kBuiltIn), std::end(kBuiltIn)) {}

int LegendTable::Add(bool is_point, const LegendValues& values, std::int16_t* number) {
  entries_.push_back({next_number_, is_point, values});
  *number = next_number_;
  next_number_ = static_cast<std::int16_t>(next_number_ + 1);
  return 0;
}

int LegendTable::Change(std::int16_t number, bool is_point, const LegendValues& values) {
  const HanRec* found = Find(number);
  if (!found) return -1;
  HanRec& entry = entries_[static_cast<std::size_t>(found - entries_.data())];
  entry.is_point = is_point;
  entry.values = values;
  return 0;
}

std::size_t LegendTable::CopyOut(std::size_t count, HanRec* entries) const {
  const std::size_t copied = std::min(std::max<std::size_t>(count, 1), entries_.size());
  std::copy_n(entries_.begin(), copied, entries);
  return copied;
}

int LegendTable::SetTitle(int n, std::u16string_view title) {
  if (n < 1 || n > kPointLegends) return -1;
  titles_[static_cast<std::size_t>(n - 1)] = title;
  return 0;
}

int LegendTable::GetTitle(int n, std::u16string* title) const {
  if (n < 1 || n > kPointLegends) return -1;
  *title = titles_[static_cast<std::size_t>(n - 1)];
  return 0;
}

void LegendTable::TakeStored(const std::array<LegendValues, kStoredLegends>& values) {
  for (int place = 0; place < kStoredLegends; ++place) {
    const auto i = static_cast<std::size_t>(place);
    entries_[i] = {NumberAtPlace(place), place < kPointLegends, values[i]};
  }
}

// The entries added at run time are numbered in a row, so a number is a place among them; once the
// numbers have gone around, it is the first of its places.
const HanRec* LegendTable::Find(std::int16_t number) const {
  const auto added = entries_.begin() + kStoredLegends;
  const auto stored = std::find_if(entries_.begin(), added,
                                   [=](const HanRec& rec) { return rec.number == number; });
  if (stored != added) return &*stored;
  const std::size_t place = kStoredLegends + static_cast<std::uint16_t>(number - kFirstAdded);
  return place < entries_.size() ? &entries_[place] : nullptr;
}

}  // namespace tavix
