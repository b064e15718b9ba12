#include "store/lin_db.h"

#include <array>
#include <limits>
#include <new>

namespace tavix {
namespace {

using namespace line_property;

DWORD IdentOf(int instance) { return static_cast<DWORD>(10002 + 10 * instance); }

std::span<CCeDBProp> SortProperties() {
  static std::array<CCeDBProp, 2> properties{CCeDBProp(CCeDBProp::Type_Short, kId),
                                             CCeDBProp(CCeDBProp::Type_Short, kSmallerKey)};
  return properties;
}

// The number a record is sorted by. One whose id is of another type stands behind all others.
std::int16_t PlaceOf(const CCeDBRecord& record) {
  const CCeDBProp* id = record.GetPropFromIdent(kId);
  const bool is_sorted = id && id->GetType() == CCeDBProp::Type_Short;
  return is_sorted ? id->GetShort() : std::numeric_limits<std::int16_t>::max();
}

}  // namespace

CLinDb::CLinDb(int instance)
    : database_(L"QZLinDB", instance, IdentOf(instance), SortProperties()),
      lookup_(database_.Records()) {}

bool CLinDb::Open() { return !order_ && Reopen(Order::kBySmallerKey); }

bool CLinDb::Close() {
  const bool was_open = order_.has_value();
  order_.reset();
  return was_open && database_.Close();
}

void CLinDb::Discard() {
  Close();
  database_.Discard();
}

bool CLinDb::Reopen(Order order) {
  if (order_ == order) return true;
  const bool was_closed = !order_;
  if (was_closed) {
    lookup_.Forget();
    drawn_changes_.reset();
  } else {
    Close();
  }
  if (!database_.Open(&SortProperties()[order == Order::kById ? 0 : 1])) return false;
  order_ = order;
  if (was_closed && database_.Records().GetNumRecords() == 0) StartDrawn();
  return true;
}

void CLinDb::StartDrawn() {
  drawn_.Clear();
  last_drawn_ = std::numeric_limits<std::int16_t>::min();
  drawn_changes_ = database_.Records().GetNumChanges();
}

int CLinDb::Find(LineKeys keys) {
  if (!Reopen(Order::kBySmallerKey)) return -2;
  CCeDBDatabase& records = database_.Records();
  if (records.GetNumRecords() == 0) return -3;
  if (records.SeekFirst() == 0) return -4;
  return lookup_.Find(keys);
}

bool CLinDb::Contains(LineKeys keys) {
  const std::optional<bool> known =
      Reopen(Order::kBySmallerKey) ? lookup_.IsThere(keys) : std::nullopt;
  return known ? *known : Find(keys) == 0;
}

int CLinDb::Add(LineKeys keys, std::int16_t legend, std::int32_t* id) {
  if (!order_) return -1;
  const bool is_drawn = IsDrawn();
  const CEOID added = database_.Records().AddRecord(&written_.Of({next_id_, keys, legend}));
  if (added == 0) return -1;
  lookup_.Added(keys, added);
  if (is_drawn) DrawLast(static_cast<std::int16_t>(next_id_), keys, legend);
  *id = next_id_;
  changed_ = true;
  ++next_id_;
  return 0;
}

// The last in the order of ids, too, unless these have gone round their 16 bits.
void CLinDb::DrawLast(std::int16_t id, LineKeys keys, std::int16_t legend) {
  if (id < last_drawn_ || last_drawn_ == std::numeric_limits<std::int16_t>::max()) return;
  try {
    drawn_.Append(id, keys, legend);
    last_drawn_ = id;
    drawn_changes_ = *drawn_changes_ + 1;
  } catch (const std::bad_alloc&) {
    drawn_changes_.reset();  // the line is in the database: the next redraw reads all of them
  }
}

bool CLinDb::IsDrawn() {
  return drawn_changes_ && drawn_changes_ == database_.Records().GetNumChanges();
}

int CLinDb::Remove(LineKeys keys) {
  changed_ = true;
  if (const int code = Find(keys); code != 0) return code;
  const bool is_drawn = IsDrawn() && database_.Records().ReadCurrRecord(&record_);
  if (!database_.DeleteCurrent()) return -7;
  lookup_.Deleted(keys);
  if (is_drawn && drawn_.Remove(PlaceOf(record_), keys)) drawn_changes_ = *drawn_changes_ + 1;
  return 0;
}

int CLinDb::ReadCur(Line* line) {
  if (!order_) return -2;
  if (!database_.Records().ReadCurrRecord(&record_)) return -1;
  const std::optional<Line> decoded = DecodeLine(record_);
  if (!decoded) return -1;
  *line = *decoded;
  return 0;
}

int CLinDb::SetCurHan(std::int16_t legend) {
  if (!order_) return -2;
  CCeDBRecord record;
  if (!database_.Records().ReadCurrRecord(&record)) return -3;
  CCeDBProp* property = record.GetPropFromIdent(kLegend);
  if (!property) return -4;
  // A number of another type stays beside the new one, and counts.
  const bool is_replaced = property->GetType() == CCeDBProp::Type_Short;
  property->SetShort(legend);
  const bool is_drawn = is_replaced && IsDrawn();
  if (!database_.Records().WriteCurrRecord(&record)) return -1;
  lookup_.Changed();
  const std::optional<Line> line = DecodeLine(record);
  if (is_drawn && line && drawn_.SetLegend(PlaceOf(record), line->keys, legend)) {
    drawn_changes_ = *drawn_changes_ + 1;
  }
  changed_ = true;
  return 0;
}

int CLinDb::First(Order order) {
  if (!Reopen(order)) return -2;
  if (database_.Records().GetNumRecords() == 0) return -1;
  return database_.Records().SeekFirst() != 0 ? 0 : -3;
}

bool CLinDb::ReadForDrawing() {
  if (order_ && IsDrawn()) return true;
  if (First(Order::kById) != 0) return false;
  const ULONGLONG changes = database_.Records().GetNumChanges();
  drawn_.Clear();
  drawn_changes_.reset();  // until all of them are read: there may be no memory for some
  drawn_.Reserve(database_.Records().GetNumRecords());
  bool is_whole = true;
  do {
    Line line;
    if (ReadCur(&line) == 0) {
      last_drawn_ = PlaceOf(record_);
      drawn_.Append(last_drawn_, line.keys, line.legend);
    } else {
      is_whole = false;
    }
  } while (Next() == 0);
  if (is_whole) drawn_changes_ = changes;
  return true;
}

int CLinDb::Next() {
  if (!order_) return -2;
  return database_.Records().SeekNext() != 0 ? 0 : -1;
}

int CLinDb::Clear() {
  order_.reset();
  database_.Recreate();
  next_id_ = 1;
  const bool opened = Reopen(Order::kBySmallerKey);
  changed_ = false;
  return opened ? 0 : -1;
}

}  // namespace tavix
