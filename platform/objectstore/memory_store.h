// The object store in memory: its contents are lost when it is destroyed.
#pragma once

#include <memory>
#include <vector>

#include "platform/objectstore/handle_table.h"
#include "platform/objectstore/object_directory.h"

namespace tavix {

// UTC from the system's clock.
std::uint64_t SystemFileTime();

class MemoryStore : public ObjectStore {
 public:
  // `fold` defines case-insensitive sorting; `clock` gives the time of a change.
  explicit MemoryStore(CaseFold fold = &FoldAscii, FileTimeClock clock = &SystemFileTime);

  Outcome<ObjectId> CreateDatabase(std::u16string_view name, std::uint32_t type,
                                   std::span<const SortOrder> orders) override;
  StoreError DeleteDatabase(ObjectId database) override;
  Outcome<ObjectId> FindDatabase(std::u16string_view name) override;
  Outcome<ObjectInfo> Info(ObjectId object) override;
  Outcome<std::uint64_t> Changes(ObjectId database) override;
  StoreError ChangeDatabase(ObjectId database, const DatabaseChange& change) override;

  Outcome<StoreHandle> Open(ObjectId database, PropertyId sort, bool auto_increment) override;
  Outcome<StoreHandle> OpenEnumeration(std::uint32_t type) override;
  Outcome<ObjectId> NextDatabase(StoreHandle enumeration) override;
  StoreError Close(StoreHandle handle) override;

  Outcome<ObjectId> Seek(StoreHandle handle, const SeekTarget& target,
                         std::uint32_t* index) override;
  Outcome<RecordView> Read(StoreHandle handle) override;
  Outcome<RecordView> Peek(StoreHandle handle) override;
  Outcome<ObjectId> Write(StoreHandle handle, ObjectId record,
                          std::span<const Property> properties) override;
  StoreError DeleteRecord(StoreHandle handle, ObjectId record) override;

 private:
  [[nodiscard]] Database* DatabaseOf(ObjectId id) const;
  [[nodiscard]] Database* DatabaseNamed(std::u16string_view name) const;
  // The open database of a handle; null for an enumeration or a closed handle.
  [[nodiscard]] OpenObject* OpenDatabaseOf(StoreHandle handle);
  // Stores the slot of a record of this database in `slot`; false when there is no such record.
  [[nodiscard]] bool FindRecord(const Database& database, ObjectId record,
                                Database::Slot& slot) const;
  Outcome<ObjectId> WriteNew(OpenObject& open, std::span<const Property> properties);
  Outcome<ObjectId> WriteExisting(OpenObject& open, ObjectId record,
                                  std::span<const Property> properties);

  CaseFold fold_;
  FileTimeClock clock_;
  ObjectDirectory directory_;
  std::vector<std::unique_ptr<Database>> databases_;  // in the order of creation
  std::uint64_t deletions_ = 0;                       // of databases, so far
  HandleTable handles_;  // last member, so that its cursors are destroyed before the databases
};

}  // namespace tavix
