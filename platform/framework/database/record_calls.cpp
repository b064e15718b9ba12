// The calls on the records of an open database.
#include <windbase.h>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "platform/framework/database/conversion.h"
#include "platform/framework/database/device_store.h"
#include "platform/framework/database/read_buffer.h"

using tavix::Outcome;
using tavix::Property;
using tavix::SeekTarget;

namespace {

// What a seek type and its value ask for; false when they ask for nothing that there is.
bool ToTarget(DWORD seek_type, DWORD_PTR value, SeekTarget& target) {
  const auto number = static_cast<DWORD>(value);
  SeekTarget::Kind kind = SeekTarget::Kind::kSmaller;
  switch (seek_type) {
    case CEDB_SEEK_CEOID:
      target = SeekTarget::ToObject(number);
      return true;
    case CEDB_SEEK_BEGINNING:
      target = SeekTarget::To(SeekTarget::Kind::kBeginning, number);
      return true;
    case CEDB_SEEK_END:
      target = SeekTarget::To(SeekTarget::Kind::kEnd, number);
      return true;
    case CEDB_SEEK_CURRENT:
      target = SeekTarget::To(SeekTarget::Kind::kCurrent, static_cast<LONG>(number));
      return true;
    case CEDB_SEEK_VALUESMALLER:
      break;
    case CEDB_SEEK_VALUEFIRSTEQUAL:
      kind = SeekTarget::Kind::kFirstEqual;
      break;
    case CEDB_SEEK_VALUEGREATER:
      kind = SeekTarget::Kind::kGreater;
      break;
    case CEDB_SEEK_VALUENEXTEQUAL:
      kind = SeekTarget::Kind::kNextEqual;
      break;
    default:
      return false;
  }
  const auto* wanted = reinterpret_cast<const CEPROPVAL*>(value);
  if (!wanted) return false;
  const bool has_value = TypeFromPropID(wanted->propid) != CEVT_LPWSTR || wanted->val.lpwstr;
  target = SeekTarget::ToValue(kind, ToProperty(*wanted));
  return has_value && !target.value.IsRemoval();
}

}  // namespace

CEOID WINAPI CeSeekDatabase(HANDLE hDatabase, DWORD dwSeekType, DWORD_PTR dwValue,
                            LPDWORD lpdwIndex) {
  SeekTarget target;
  if (!ToTarget(dwSeekType, dwValue, target)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  std::uint32_t index = 0;
  const Outcome<tavix::ObjectId> record =
      DeviceStore().Seek(ToStoreHandle(hDatabase), target, lpdwIndex ? &index : nullptr);
  if (!Worked(record.error)) return 0;
  if (lpdwIndex) *lpdwIndex = index;
  return record.value;
}

CEOID WINAPI CeReadRecordProps(HANDLE hDbase, DWORD dwFlags, LPWORD lpcPropID, CEPROPID* rgPropID,
                               LPBYTE* lplpBuffer, LPDWORD lpcbBuffer) {
  if (!lpcPropID || !lplpBuffer || !lpcbBuffer) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  tavix::ObjectStore& store = DeviceStore();
  const tavix::StoreHandle handle = ToStoreHandle(hDbase);
  const auto lay_out = [&](const tavix::RecordView& record) {
    return rgPropID ? ReadLayout(record.properties, {rgPropID, *lpcPropID})
                    : ReadLayout(record.properties);
  };
  // A buffer that is too small must not move the seek pointer: only look until there is room.
  const Outcome<tavix::RecordView> next = store.Peek(handle);
  if (!Worked(next.error)) return 0;
  const std::size_t wanted = lay_out(next.value).Bytes();
  const bool may_reallocate = (dwFlags & CEDB_ALLOWREALLOC) != 0;
  if (!MakeRoom(lplpBuffer, lpcbBuffer, wanted, may_reallocate)) return 0;

  const Outcome<tavix::RecordView> record = store.Read(handle);
  if (!Worked(record.error)) return 0;
  const ReadLayout layout = lay_out(record.value);
  layout.Write(*lplpBuffer);
  if (!rgPropID) *lpcPropID = static_cast<WORD>(layout.Count());
  if (layout.HasAnyValue()) return record.value.id;
  SetLastError(ERROR_NO_DATA);
  return 0;
}

CEOID WINAPI CeWriteRecordProps(HANDLE hDbase, CEOID oidRecord, WORD cPropID,
                                CEPROPVAL* rgPropVal) {
  if (!rgPropVal) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  constexpr std::size_t kUsual = 16;  // as many take no memory of their own
  std::array<Property, kUsual> few;
  std::vector<Property> many(cPropID > kUsual ? cPropID : 0);
  const std::span<Property> properties =
      many.empty() ? std::span<Property>(few).first(cPropID) : std::span<Property>(many);
  std::transform(rgPropVal, rgPropVal + cPropID, properties.begin(), ToProperty);
  const Outcome<tavix::ObjectId> record =
      DeviceStore().Write(ToStoreHandle(hDbase), oidRecord, properties);
  return Worked(record.error) ? record.value : 0;
}

BOOL WINAPI CeDeleteRecord(HANDLE hDatabase, CEOID oidRecord) {
  return Worked(DeviceStore().DeleteRecord(ToStoreHandle(hDatabase), oidRecord));
}
