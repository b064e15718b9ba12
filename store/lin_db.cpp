#include "store/lin_db.h"

#include <array>

namespace tavix {
namespace {

// Properties of a line record; do not change.
constexpr WORD kId = 111;
constexpr WORD kSmallerKey = 112;
constexpr WORD kLargerKey = 113;
constexpr WORD kLargerFirst = 114;
constexpr WORD kLegend = 115;

DWORD IdentOf(int instance) { return static_cast<DWORD>(10002 + 10 * instance); }

std::span<CCeDBProp> SortProperties() {
  static std::array<CCeDBProp, 2> properties{CCeDBProp(CCeDBProp::Type_Short, kId),
                                             CCeDBProp(CCeDBProp::Type_Short, kSmallerKey)};
  return properties;
}

// The value of a 16-bit property of a record; false when it is missing.
bool Get(const CCeDBRecord& record, WORD ident, std::int16_t* value) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  if (!property) return false;
  *value = property->GetShort();
  return true;
}

}  // namespace

CLinDb::CLinDb(int instance)
    : database_(L"QZLinDB", instance, IdentOf(instance), SortProperties()), instance_(instance) {}

int CLinDb::Open() {
  if (state_ != State::kClosed) return -2;
  return Reopen(State::kOpenBySmallerKey) ? 1 : 2;
}

int CLinDb::Close() {
  const bool was_open = state_ != State::kClosed;
  state_ = State::kClosed;
  return was_open && database_.Close() ? 0 : -1;
}

bool CLinDb::Reopen(State state) {
  if (state_ == state) return true;
  if (state_ != State::kClosed) Close();
  CCeDBProp& order = SortProperties()[state == State::kOpenById ? 0 : 1];
  if (!database_.Open(&order)) return false;
  state_ = state;
  return true;
}

int CLinDb::Find(LineKeys keys) {
  if (!Reopen(State::kOpenBySmallerKey)) return -2;
  CCeDBDatabase& records = database_.Records();
  if (records.GetNumRecords() == 0) return -3;
  if (records.SeekFirst() == 0) return -4;
  if (records.SeekFirstEqual(CCeDBProp(keys.Smaller(), kSmallerKey)) == 0) return -1;
  return Match(keys);
}

// From the first record with the smaller key on, the one that has the larger key too.
int CLinDb::Match(LineKeys keys) {
  CCeDBDatabase& records = database_.Records();
  do {
    CCeDBRecord record;
    std::int16_t smaller = 0;
    std::int16_t larger = 0;
    if (!records.ReadCurrRecord(&record)) return -5;
    if (!Get(record, kSmallerKey, &smaller)) return -6;
    if (smaller != keys.Smaller()) return -1;
    if (!Get(record, kLargerKey, &larger)) return -7;
    if (larger == keys.Larger()) return 0;
  } while (records.SeekNext() != 0);
  return -1;
}

int CLinDb::Add(LineKeys keys, std::int16_t legend, std::int32_t* id) {
  std::array<CCeDBProp, 5> properties{
      CCeDBProp(static_cast<short>(next_id_), kId), CCeDBProp(keys.Smaller(), kSmallerKey),
      CCeDBProp(keys.Larger(), kLargerKey),
      CCeDBProp(static_cast<short>(keys.LargerFirst() ? 1 : 0), kLargerFirst),
      CCeDBProp(legend, kLegend)};
  CCeDBRecord record;
  record.AddProps(properties.data(), static_cast<int>(properties.size()));
  if (state_ == State::kClosed || database_.Records().AddRecord(&record) == 0) return -1;
  *id = next_id_;
  changed_ = true;
  ++next_id_;
  return 0;
}

int CLinDb::Remove(LineKeys keys) {
  changed_ = true;
  if (const int code = Find(keys); code != 0) return code;
  return database_.DeleteCurrent() ? 0 : -7;
}

int CLinDb::ReadCur(Line* line) {
  if (state_ == State::kClosed) return -2;
  CCeDBRecord record;
  std::int16_t id = 0;
  std::int16_t smaller = 0;
  std::int16_t larger = 0;
  std::int16_t larger_first = 0;
  std::int16_t legend = 0;
  if (!database_.Records().ReadCurrRecord(&record) || !Get(record, kId, &id) ||
      !Get(record, kSmallerKey, &smaller) || !Get(record, kLargerKey, &larger) ||
      !Get(record, kLargerFirst, &larger_first) || !Get(record, kLegend, &legend)) {
    return -1;
  }
  const LineKeys keys = larger_first != 0 ? LineKeys{larger, smaller} : LineKeys{smaller, larger};
  *line = {id, keys, legend};
  return 0;
}

int CLinDb::SetCurHan(std::int16_t legend) {
  if (state_ == State::kClosed) return -2;
  CCeDBRecord record;
  if (!database_.Records().ReadCurrRecord(&record)) return -3;
  CCeDBProp* property = record.GetPropFromIdent(kLegend);
  if (!property) return -4;
  property->SetShort(legend);
  if (!database_.Records().WriteCurrRecord(&record)) return -1;
  changed_ = true;
  return 0;
}

int CLinDb::First(Order order) {
  if (!Reopen(order == Order::kById ? State::kOpenById : State::kOpenBySmallerKey)) return -2;
  if (database_.Records().GetNumRecords() == 0) return -1;
  return database_.Records().SeekFirst() != 0 ? 0 : -3;
}

int CLinDb::Next() {
  if (state_ == State::kClosed) return -2;
  return database_.Records().SeekNext() != 0 ? 0 : -1;
}

int CLinDb::Clear() {
  state_ = State::kClosed;
  if (!database_.Recreate()) return -1;
  next_id_ = 1;
  if (!Reopen(State::kOpenBySmallerKey)) return -1;
  changed_ = false;
  return 0;
}

}  // namespace tavix
