// A store for tests that fails on request.
#pragma once

#include <array>

#include "platform/objectstore/object_store.h"

namespace tavix {

// Forwards every call to another store, except those that Fail makes fail: they do not reach the
// other store.
class FailingStore : public ObjectStore {
 public:
  enum class Operation {
    kCreate,
    kDelete,  // of a database
    kFind,
    kInfo,    // and the number of changes
    kChange,  // of a database
    kOpen,
    kOpenEnumeration,
    kNextDatabase,
    kClose,
    kSeek,
    kRead,
    kPeek,
    kWrite,
    kDeleteRecord,
  };
  static constexpr int kAlways = -1;

  // The other store is not owned and must outlive this one.
  explicit FailingStore(ObjectStore& inner) : inner_(inner) {}

  // After `passing` more calls of this operation, the next `times` calls fail with `error`.
  void Fail(Operation operation, StoreError error, int passing = 0, int times = kAlways);
  // Undoes Fail.
  void Pass(Operation operation);
  // The number of calls of the operation, failures included.
  [[nodiscard]] int Calls(Operation operation) const;

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
  struct Plan {
    StoreError error = StoreError::kNone;
    int passing = 0;
    int times = 0;
    int calls = 0;
  };

  // kNone when the call is to be forwarded.
  StoreError Turn(Operation operation);

  ObjectStore& inner_;
  std::array<Plan, static_cast<std::size_t>(Operation::kDeleteRecord) + 1> plans_{};
};

}  // namespace tavix
