#include "store/lin_db.h"

#include <array>

#include "store/line_record.h"

namespace tavix {
namespace {

using namespace line_record;

DWORD IdentOf(int instance) { return static_cast<DWORD>(10002 + 10 * instance); }

std::span<CCeDBProp> SortProperties() {
  static std::array<CCeDBProp, 2> properties{CCeDBProp(CCeDBProp::Type_Short, kId),
                                             CCeDBProp(CCeDBProp::Type_Short, kSmallerKey)};
  return properties;
}

}  // namespace

CLinDb::CLinDb(int instance)
    : database_(L"QZLinDB", instance, IdentOf(instance), SortProperties()),
      lookup_(database_.Records()),
      instance_(instance) {}

int CLinDb::Open() {
  if (state_ != State::kClosed) return -2;
  return Reopen(State::kOpenBySmallerKey) ? 1 : 2;
}

int CLinDb::Close() {
  const bool was_open = state_ != State::kClosed;
  state_ = State::kClosed;
  return was_open && database_.Close() ? 0 : -1;
}

void CLinDb::Discard() {
  Close();
  database_.Discard();
}

bool CLinDb::Reopen(State state) {
  if (state_ == state) return true;
  if (state_ == State::kClosed) {
    lookup_.Forget();
  } else {
    Close();
  }
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
  return lookup_.Find(keys);
}

int CLinDb::Add(LineKeys keys, std::int16_t legend, std::int32_t* id) {
  std::array<CCeDBProp, 5> properties{
      CCeDBProp(static_cast<short>(next_id_), kId), CCeDBProp(keys.Smaller(), kSmallerKey),
      CCeDBProp(keys.Larger(), kLargerKey),
      CCeDBProp(static_cast<short>(keys.LargerFirst() ? 1 : 0), kLargerFirst),
      CCeDBProp(legend, kLegend)};
  if (state_ == State::kClosed) return -1;
  record_.DeleteAllProps();
  record_.AddProps(properties.data(), static_cast<int>(properties.size()));
  const CEOID added = database_.Records().AddRecord(&record_);
  record_.DeleteAllProps();
  if (added == 0) return -1;
  lookup_.Added(keys, added);
  *id = next_id_;
  changed_ = true;
  ++next_id_;
  return 0;
}

int CLinDb::Remove(LineKeys keys) {
  changed_ = true;
  if (const int code = Find(keys); code != 0) return code;
  if (!database_.DeleteCurrent()) return -7;
  lookup_.Deleted(keys);
  return 0;
}

int CLinDb::ReadCur(Line* line) {
  if (state_ == State::kClosed) return -2;
  std::int16_t id = 0;
  std::int16_t smaller = 0;
  std::int16_t larger = 0;
  std::int16_t larger_first = 0;
  std::int16_t legend = 0;
  if (!database_.Records().ReadCurrRecord(&record_) || !Get(record_, kId, &id) ||
      !Get(record_, kSmallerKey, &smaller) || !Get(record_, kLargerKey, &larger) ||
      !Get(record_, kLargerFirst, &larger_first) || !Get(record_, kLegend, &legend)) {
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
  lookup_.Changed();
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
  database_.Recreate();
  next_id_ = 1;
  const bool opened = Reopen(State::kOpenBySmallerKey);
  changed_ = false;
  return opened ? 0 : -1;
}

}  // namespace tavix
