#include "platform/objectstore/failing_store.h"

namespace tavix {

void FailingStore::Fail(Operation operation, StoreError error, int passing, int times) {
  Plan& plan = plans_[static_cast<std::size_t>(operation)];
  plan = {error, passing, times, plan.calls};
}

void FailingStore::Pass(Operation operation) { Fail(operation, StoreError::kNone, 0, 0); }

int FailingStore::Calls(Operation operation) const {
  return plans_[static_cast<std::size_t>(operation)].calls;
}

StoreError FailingStore::Turn(Operation operation) {
  Plan& plan = plans_[static_cast<std::size_t>(operation)];
  ++plan.calls;
  if (plan.passing > 0) {
    --plan.passing;
    return StoreError::kNone;
  }
  if (plan.times == 0) return StoreError::kNone;
  if (plan.times > 0) --plan.times;
  return plan.error;
}

Outcome<ObjectId> FailingStore::CreateDatabase(std::u16string_view name, std::uint32_t type,
                                               std::span<const SortOrder> orders) {
  const StoreError error = Turn(Operation::kCreate);
  if (error != StoreError::kNone) return error;
  return inner_.CreateDatabase(name, type, orders);
}

StoreError FailingStore::DeleteDatabase(ObjectId database) {
  const StoreError error = Turn(Operation::kDelete);
  if (error != StoreError::kNone) return error;
  return inner_.DeleteDatabase(database);
}

Outcome<ObjectId> FailingStore::FindDatabase(std::u16string_view name) {
  const StoreError error = Turn(Operation::kFind);
  if (error != StoreError::kNone) return error;
  return inner_.FindDatabase(name);
}

Outcome<ObjectInfo> FailingStore::Info(ObjectId object) {
  const StoreError error = Turn(Operation::kInfo);
  if (error != StoreError::kNone) return error;
  return inner_.Info(object);
}

Outcome<std::uint64_t> FailingStore::Changes(ObjectId database) {
  const StoreError error = Turn(Operation::kInfo);
  if (error != StoreError::kNone) return error;
  return inner_.Changes(database);
}

StoreError FailingStore::ChangeDatabase(ObjectId database, const DatabaseChange& change) {
  const StoreError error = Turn(Operation::kChange);
  if (error != StoreError::kNone) return error;
  return inner_.ChangeDatabase(database, change);
}

Outcome<StoreHandle> FailingStore::Open(ObjectId database, PropertyId sort, bool auto_increment) {
  const StoreError error = Turn(Operation::kOpen);
  if (error != StoreError::kNone) return error;
  return inner_.Open(database, sort, auto_increment);
}

Outcome<StoreHandle> FailingStore::OpenEnumeration(std::uint32_t type) {
  const StoreError error = Turn(Operation::kOpenEnumeration);
  if (error != StoreError::kNone) return error;
  return inner_.OpenEnumeration(type);
}

Outcome<ObjectId> FailingStore::NextDatabase(StoreHandle enumeration) {
  const StoreError error = Turn(Operation::kNextDatabase);
  if (error != StoreError::kNone) return error;
  return inner_.NextDatabase(enumeration);
}

StoreError FailingStore::Close(StoreHandle handle) {
  const StoreError error = Turn(Operation::kClose);
  if (error != StoreError::kNone) return error;
  return inner_.Close(handle);
}

Outcome<ObjectId> FailingStore::Seek(StoreHandle handle, const SeekTarget& target,
                                     std::uint32_t* index) {
  const StoreError error = Turn(Operation::kSeek);
  if (error != StoreError::kNone) return error;
  return inner_.Seek(handle, target, index);
}

Outcome<RecordView> FailingStore::Read(StoreHandle handle) {
  const StoreError error = Turn(Operation::kRead);
  if (error != StoreError::kNone) return error;
  return inner_.Read(handle);
}

Outcome<RecordView> FailingStore::Peek(StoreHandle handle) {
  const StoreError error = Turn(Operation::kPeek);
  if (error != StoreError::kNone) return error;
  return inner_.Peek(handle);
}

Outcome<ObjectId> FailingStore::Write(StoreHandle handle, ObjectId record,
                                      std::span<const Property> properties) {
  const StoreError error = Turn(Operation::kWrite);
  if (error != StoreError::kNone) return error;
  return inner_.Write(handle, record, properties);
}

StoreError FailingStore::DeleteRecord(StoreHandle handle, ObjectId record) {
  const StoreError error = Turn(Operation::kDeleteRecord);
  if (error != StoreError::kNone) return error;
  return inner_.DeleteRecord(handle, record);
}

}  // namespace tavix
