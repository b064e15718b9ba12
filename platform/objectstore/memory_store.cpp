#include "platform/objectstore/memory_store.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace tavix {

std::uint64_t SystemFileTime() {
  using Steps = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  constexpr std::int64_t kFrom1601To1970 = 116'444'736'000'000'000;
  const auto since_1970 = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<Steps>(since_1970).count() +
                                    kFrom1601To1970);
}

MemoryStore::MemoryStore(CaseFold fold, FileTimeClock clock) : fold_(fold), clock_(clock) {}

// ---- Databases

Outcome<ObjectId> MemoryStore::CreateDatabase(std::u16string_view name, std::uint32_t type,
                                              std::span<const SortOrder> orders) {
  if (name.empty()) return StoreError::kInvalidParameter;
  if (const StoreError error = Database::CheckOrders(orders); error != StoreError::kNone) {
    return error;
  }
  if (DatabaseNamed(name)) return StoreError::kDuplicateName;
  const ObjectId id = directory_.Next();
  if (id == 0) return StoreError::kFull;
  auto database = std::make_unique<Database>(id, fold_, clock_);
  database->SetName(name);
  database->SetType(type);
  database->SetOrders(orders);
  directory_.MakeRoom(database.get());
  databases_.push_back(std::move(database));
  directory_.Add({databases_.back().get(), ObjectDirectory::kIsDatabase});
  return id;
}

StoreError MemoryStore::DeleteDatabase(ObjectId database) {
  Database* found = DatabaseOf(database);
  if (!found) return StoreError::kInvalidParameter;
  if (found->IsOpen()) return StoreError::kInUse;
  const RecordHeap& records = found->Records();
  for (RecordHeap::Slot slot = 0; slot < records.SlotEnd(); ++slot) {
    if (records.Id(slot) != 0) directory_.Remove(records.Id(slot));
  }
  directory_.Remove(database);
  std::erase_if(databases_, [&](const auto& candidate) { return candidate.get() == found; });
  ++deletions_;
  return StoreError::kNone;
}

Outcome<ObjectId> MemoryStore::FindDatabase(std::u16string_view name) {
  const Database* found = DatabaseNamed(name);
  if (!found) return StoreError::kNotFound;
  return found->Id();
}

Outcome<ObjectInfo> MemoryStore::Info(ObjectId object) {
  const std::optional<ObjectDirectory::Place> place = directory_.Find(object);
  if (!place) return StoreError::kNotFound;
  ObjectInfo info;
  info.is_database = place->slot == ObjectDirectory::kIsDatabase;
  if (info.is_database) {
    info.database = place->database->Info();
  } else {
    info.parent = place->database->Id();
  }
  return info;
}

Outcome<std::uint64_t> MemoryStore::Changes(ObjectId database) {
  const Database* found = DatabaseOf(database);
  if (!found) return StoreError::kNotFound;
  return found->Changes();
}

StoreError MemoryStore::ChangeDatabase(ObjectId database, const DatabaseChange& change) {
  Database* found = DatabaseOf(database);
  if (!found) return StoreError::kInvalidParameter;
  if (change.name) {
    if (change.name->empty()) return StoreError::kInvalidParameter;
    const Database* holder = DatabaseNamed(*change.name);
    if (holder && holder != found) return StoreError::kDuplicateName;
  }
  if (change.orders) {
    const StoreError error = Database::CheckOrders(*change.orders);
    if (error != StoreError::kNone) return error;
    if (found->IsOpen()) return StoreError::kInUse;
    found->SetOrders(*change.orders);
  }
  if (change.name) found->SetName(*change.name);
  if (change.type) found->SetType(*change.type);
  return StoreError::kNone;
}

// ---- Handles

Outcome<StoreHandle> MemoryStore::Open(ObjectId database, PropertyId sort, bool auto_increment) {
  Database* found = DatabaseOf(database);
  if (!found) return StoreError::kInvalidParameter;
  if (handles_.IsFull()) return StoreError::kTooManyOpen;
  handles_.MakeRoom();
  OpenObject open;
  open.database = found;
  open.cursor = found->OpenCursor(sort, auto_increment);
  if (!open.cursor) return StoreError::kInvalidParameter;
  return handles_.Add(std::move(open));
}

Outcome<StoreHandle> MemoryStore::OpenEnumeration(std::uint32_t type) {
  if (handles_.IsFull()) return StoreError::kTooManyOpen;
  OpenObject walk;
  walk.type = type;
  walk.deletions = deletions_;
  return handles_.Add(std::move(walk));
}

Outcome<ObjectId> MemoryStore::NextDatabase(StoreHandle enumeration) {
  OpenObject* walk = handles_.Find(enumeration);
  if (!walk || walk->database) return StoreError::kInvalidParameter;
  if (walk->deletions != deletions_) return StoreError::kDeleted;
  for (const auto& database : databases_) {
    const bool wanted = walk->type == 0 || database->Type() == walk->type;
    if (!wanted || database->Id() <= walk->last_found) continue;
    walk->last_found = database->Id();
    return database->Id();
  }
  return StoreError::kNoMoreItems;
}

StoreError MemoryStore::Close(StoreHandle handle) {
  OpenObject* open = handles_.Find(handle);
  if (!open) return StoreError::kInvalidParameter;
  if (open->database) open->database->CloseCursor(*open->cursor);
  handles_.Remove(handle);
  return StoreError::kNone;
}

// ---- Records

Outcome<ObjectId> MemoryStore::Seek(StoreHandle handle, const SeekTarget& target,
                                    std::uint32_t* index) {
  OpenObject* open = OpenDatabaseOf(handle);
  if (!open) return StoreError::kInvalidParameter;
  Outcome<ObjectId> found = target.object;
  if (target.kind == SeekTarget::Kind::kObject) {
    Database::Slot slot = 0;
    if (!FindRecord(*open->database, target.object, slot)) return StoreError::kInvalidParameter;
    open->cursor->StandOn(slot);
  } else {
    found = open->cursor->Seek(target);
  }
  if (found && index) *index = open->cursor->Index();
  return found;
}

Outcome<RecordView> MemoryStore::Read(StoreHandle handle) {
  OpenObject* open = OpenDatabaseOf(handle);
  if (!open) return StoreError::kInvalidParameter;
  return open->cursor->Read();
}

Outcome<RecordView> MemoryStore::Peek(StoreHandle handle) {
  const OpenObject* open = OpenDatabaseOf(handle);
  if (!open) return StoreError::kInvalidParameter;
  return open->cursor->Peek();
}

Outcome<ObjectId> MemoryStore::Write(StoreHandle handle, ObjectId record,
                                     std::span<const Property> properties) {
  OpenObject* open = OpenDatabaseOf(handle);
  if (!open || properties.empty() || !AreValid(properties)) return StoreError::kInvalidParameter;
  if (record != 0) return WriteExisting(*open, record, properties);
  if (AreDistinct(properties)) return WriteNew(*open, properties);
  return WriteNew(*open, MergeValues({}, properties));
}

StoreError MemoryStore::DeleteRecord(StoreHandle handle, ObjectId record) {
  OpenObject* open = OpenDatabaseOf(handle);
  Database::Slot slot = 0;
  if (!open || !FindRecord(*open->database, record, slot)) return StoreError::kInvalidParameter;
  open->database->DeleteRecord(slot);
  directory_.Remove(record);
  return StoreError::kNone;
}

// ---- Finding things

Database* MemoryStore::DatabaseOf(ObjectId id) const {
  const std::optional<ObjectDirectory::Place> place = directory_.Find(id);
  return place && place->slot == ObjectDirectory::kIsDatabase ? place->database : nullptr;
}

Database* MemoryStore::DatabaseNamed(std::u16string_view name) const {
  const std::u16string_view cut = Database::CutName(name);
  const auto found = std::ranges::find_if(
      databases_, [&](const auto& database) { return database->Name() == cut; });
  return found == databases_.end() ? nullptr : found->get();
}

OpenObject* MemoryStore::OpenDatabaseOf(StoreHandle handle) {
  OpenObject* open = handles_.Find(handle);
  return open && open->database ? open : nullptr;
}

bool MemoryStore::FindRecord(const Database& database, ObjectId record,
                             Database::Slot& slot) const {
  const std::optional<ObjectDirectory::Place> place = directory_.Find(record);
  if (!place || place->database != &database) return false;
  slot = place->slot;
  return slot != ObjectDirectory::kIsDatabase;
}

Outcome<ObjectId> MemoryStore::WriteNew(OpenObject& open, std::span<const Property> properties) {
  if (!FitInRecord(properties)) return StoreError::kInvalidParameter;
  const ObjectId id = directory_.Next();
  if (id == 0) return StoreError::kFull;
  directory_.MakeRoom(open.database);
  const Database::Slot slot = open.database->AddRecord(id, properties);
  directory_.Add({open.database, slot});
  open.cursor->StandOn(slot);
  return id;
}

Outcome<ObjectId> MemoryStore::WriteExisting(OpenObject& open, ObjectId record,
                                             std::span<const Property> properties) {
  Database::Slot slot = 0;
  if (!FindRecord(*open.database, record, slot)) return StoreError::kInvalidParameter;
  const RecordValues values = open.database->Records().Properties(slot);
  std::vector<Property> merged;
  merged.reserve(values.size() + properties.size());
  merged.assign(values.begin(), values.end());
  merged = MergeValues(std::move(merged), properties);
  if (!FitInRecord(merged)) return StoreError::kInvalidParameter;
  open.database->ChangeRecord(slot, merged);
  open.cursor->StandOn(slot);
  return record;
}

}  // namespace tavix
