#include "platform/objectstore/database.h"

#include <algorithm>
#include <new>

namespace tavix {

DatabaseInfo Database::Info() const {
  DatabaseInfo info = info_;
  info.record_count = static_cast<std::uint32_t>(records_.Count());
  info.bytes = records_.Bytes();
  return info;
}

std::u16string_view Database::CutName(std::u16string_view name) {
  return name.substr(0, DatabaseInfo::kMaxName - 1);
}

void Database::SetName(std::u16string_view name) {
  info_.name.fill(u'\0');
  std::ranges::copy(CutName(name), info_.name.begin());
  info_.modified = clock_();
}

void Database::SetType(std::uint32_t type) {
  info_.type = type;
  info_.modified = clock_();
}

StoreError Database::CheckOrders(std::span<const SortOrder> orders) {
  if (orders.size() > DatabaseInfo::kMaxSortOrders) return StoreError::kInvalidParameter;
  for (std::size_t i = 0; i < orders.size(); ++i) {
    const PropertyId id = orders[i].property;
    if (!IsKnownType(id.Type()) || id.Type() == PropertyType::kBlob) {
      return StoreError::kInvalidParameter;
    }
    for (std::size_t j = 0; j < i; ++j) {
      if (orders[j].property.Tag() == id.Tag()) return StoreError::kInvalidParameter;
    }
  }
  return StoreError::kNone;
}

void Database::SetOrders(std::span<const SortOrder> orders) {
  info_.orders.fill(SortOrder());
  std::ranges::copy(orders, info_.orders.begin());
  info_.order_count = orders.size();
  info_.modified = clock_();

  indexes_.clear();
  for (const SortOrder& order : orders) {
    indexes_.push_back(std::make_unique<SortIndex>(order, records_, fold_));
  }
  // A database without sort orders is walked in the order of creation.
  if (orders.empty()) {
    indexes_.push_back(std::make_unique<SortIndex>(SortOrder(), records_, fold_));
  }
}

std::unique_ptr<Cursor> Database::OpenCursor(PropertyId sort, bool auto_increment) {
  const auto index = std::ranges::find_if(indexes_, [&](const auto& candidate) {
    return sort.IsNone() || candidate->Order().property == sort;
  });
  if (index == indexes_.end()) return nullptr;
  auto cursor = std::make_unique<Cursor>(**index, records_, auto_increment);
  cursors_.push_back(cursor.get());
  return cursor;
}

void Database::CloseCursor(const Cursor& cursor) { std::erase(cursors_, &cursor); }

Database::Slot Database::AddRecord(ObjectId id, std::span<const Property> properties) {
  const Slot slot = records_.Add(id, properties);
  for (const auto& index : indexes_) index->Add(slot);
  CountChange();
  return slot;
}

void Database::ChangeRecord(Slot slot, std::span<const Property> properties) {
  std::array<SortIndex*, DatabaseInfo::kMaxSortOrders> moving{};
  std::size_t count = 0;
  for (const auto& index : indexes_) {
    if (!index->Moves(slot, properties)) continue;
    for (Cursor* cursor : cursors_) {
      if (cursor->Order().property == index->Order().property) cursor->BeforeMove(slot);
    }
    index->Remove(slot);
    moving[count++] = index.get();
  }
  const auto move_in = [&] {
    for (std::size_t i = 0; i < count; ++i) moving[i]->Add(slot);
  };
  try {
    records_.Replace(slot, properties);
  } catch (const std::bad_alloc&) {
    move_in();
    throw;
  }
  move_in();
  CountChange();
}

void Database::DeleteRecord(Slot slot) {
  for (Cursor* cursor : cursors_) cursor->BeforeDelete(slot);
  for (const auto& index : indexes_) index->Remove(slot);
  records_.Remove(slot);
  CountChange();
}

void Database::CountChange() {
  ++info_.changes;
  info_.modified = clock_();
}

}  // namespace tavix
