// The calls on the records of an open database.
#include <windbase.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

#include "platform/framework/database/conversion.h"
#include "platform/framework/database/device_store.h"

using tavix::Outcome;
using tavix::Property;
using tavix::PropertyType;
using tavix::SeekTarget;

namespace {

// ---- The buffer that a read fills

// Aligns every string and blob as a CEPROPVAL.
std::size_t Aligned(std::size_t bytes) {
  return (bytes + alignof(CEPROPVAL) - 1) / alignof(CEPROPVAL) * alignof(CEPROPVAL);
}

// The requested values of a record, to be written to one buffer: the CEPROPVAL structures first,
// then the strings and blobs they point to.
class ReadLayout {
 public:
  // All properties of the record; or those of `wanted`, in this order, with missing ones marked.
  explicit ReadLayout(const tavix::RecordValues& record);
  ReadLayout(const tavix::RecordValues& record, std::span<const CEPROPID> wanted);

  [[nodiscard]] std::size_t Count() const { return values_.size(); }
  [[nodiscard]] bool HasAnyValue() const { return found_ > 0; }
  [[nodiscard]] std::size_t Bytes() const;

  // Writes Bytes() bytes to memory that is aligned as that of LocalAlloc.
  void Write(LPBYTE buffer) const;

 private:
  void Add(CEPROPID id, const std::optional<Property>& property);

  struct Value {
    CEPROPVAL head;
    std::span<const std::byte> data;  // of a string with its zero, or of a blob
  };
  std::vector<Value> values_;
  std::size_t found_ = 0;
};

ReadLayout::ReadLayout(const tavix::RecordValues& record) {
  for (const Property& property : record) Add(property.Id().Value(), property);
}

ReadLayout::ReadLayout(const tavix::RecordValues& record, std::span<const CEPROPID> wanted) {
  for (const CEPROPID id : wanted) Add(id, record.Find(tavix::PropertyId(id)));
}

std::size_t ReadLayout::Bytes() const {
  std::size_t bytes = values_.size() * sizeof(CEPROPVAL);
  for (const Value& value : values_) bytes += Aligned(value.data.size());
  return bytes;
}

void ReadLayout::Write(LPBYTE buffer) const {
  LPBYTE head = buffer;
  LPBYTE data = buffer + values_.size() * sizeof(CEPROPVAL);
  for (const Value& value : values_) {
    CEPROPVAL laid_out = value.head;
    if (!value.data.empty()) {
      std::memcpy(data, value.data.data(), value.data.size());
      const bool is_text = TypeFromPropID(laid_out.propid) == CEVT_LPWSTR;
      if (is_text) {
        laid_out.val.lpwstr = reinterpret_cast<LPWSTR>(data);
      } else {
        laid_out.val.blob.lpb = data;
      }
      data += Aligned(value.data.size());
    }
    std::memcpy(head, &laid_out, sizeof laid_out);
    head += sizeof laid_out;
  }
}

void ReadLayout::Add(CEPROPID id, const std::optional<Property>& property) {
  Value value{};
  if (property) {
    ++found_;
    value.head = ToPropVal(*property);
    if (IsVariableSize(property->Type())) value.data = property->AsBytes();
    // In the store a zero follows every string.
    if (property->Type() == PropertyType::kString) {
      value.data = {value.data.data(), value.data.size() + sizeof(WCHAR)};
    }
  } else {
    value.head.propid = id;
    value.head.wFlags = CEDB_PROPNOTFOUND;
  }
  values_.push_back(value);
}

// Makes *buffer hold at least `wanted` bytes and stores that number in *size. A buffer that is too
// small is freed and reallocated if that is allowed. False with ERROR_INSUFFICIENT_BUFFER if not,
// and with ERROR_OUTOFMEMORY and a null buffer if the allocation fails.
bool MakeRoom(LPBYTE* buffer, LPDWORD size, std::size_t wanted, bool may_reallocate) {
  const bool too_small = !*buffer || *size < wanted;
  *size = static_cast<DWORD>(wanted);
  if (!too_small) return true;
  if (!may_reallocate) {
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return false;
  }
  if (*buffer) LocalFree(*buffer);
  *buffer = static_cast<LPBYTE>(LocalAlloc(LMEM_FIXED, wanted));
  if (*buffer) return true;
  SetLastError(ERROR_OUTOFMEMORY);
  return false;
}

// ---- Seeking

// Converts a seek type and its value; false when they are invalid.
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
  // If the buffer is too small, the seek pointer must not move: Peek until there is room.
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
  constexpr std::size_t kUsual = 8;  // up to this number without an allocation
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
