#include "platform/framework/database/read_buffer.h"

#include <cstring>

#include "platform/framework/database/conversion.h"

using tavix::Property;
using tavix::PropertyType;

namespace {

// Every string and blob starts where a pointer could stand.
std::size_t Aligned(std::size_t bytes) {
  return (bytes + alignof(CEPROPVAL) - 1) / alignof(CEPROPVAL) * alignof(CEPROPVAL);
}

}  // namespace

ReadLayout::ReadLayout(std::span<const Property> record) {
  for (const Property& property : record) Add(property.Id().Value(), &property);
}

ReadLayout::ReadLayout(std::span<const Property> record, std::span<const CEPROPID> wanted) {
  for (const CEPROPID id : wanted) Add(id, FindProperty(record, tavix::PropertyId(id)));
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

void ReadLayout::Add(CEPROPID id, const Property* property) {
  Value value{};
  if (property) {
    ++found_;
    value.head = ToPropVal(*property);
    if (IsVariableSize(property->Type())) value.data = property->AsBytes();
    // The store keeps a zero behind every string.
    if (property->Type() == PropertyType::kString) {
      value.data = {value.data.data(), value.data.size() + sizeof(WCHAR)};
    }
  } else {
    value.head.propid = id;
    value.head.wFlags = CEDB_PROPNOTFOUND;
  }
  values_.push_back(value);
}

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
