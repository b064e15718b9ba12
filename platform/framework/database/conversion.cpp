#include "platform/framework/database/conversion.h"

#include <string_view>

using tavix::Property;
using tavix::PropertyId;
using tavix::PropertyType;
using tavix::StoreError;

static_assert(sizeof(WCHAR) == sizeof(char16_t));

DWORD ToLastError(StoreError error) {
  switch (error) {
    case StoreError::kNone:
      break;
    case StoreError::kInvalidParameter:
      return ERROR_INVALID_PARAMETER;
    case StoreError::kNotFound:
      return ERROR_FILE_NOT_FOUND;
    case StoreError::kDuplicateName:
      return ERROR_DUP_NAME;
    case StoreError::kInUse:
      return ERROR_SHARING_VIOLATION;
    case StoreError::kNoMoreItems:
      return ERROR_NO_MORE_ITEMS;
    case StoreError::kDeleted:
      return ERROR_KEY_DELETED;
    case StoreError::kFull:
      return ERROR_DISK_FULL;
    case StoreError::kTooManyOpen:
      return ERROR_OUTOFMEMORY;
  }
  return ERROR_SUCCESS;
}

bool Worked(StoreError error) {
  if (error == StoreError::kNone) return true;
  SetLastError(ToLastError(error));
  return false;
}

Property ToProperty(const CEPROPVAL& value) {
  const PropertyId id(value.propid);
  if (value.wFlags & CEDB_PROPDELETE) return Property::Removal(id);
  switch (id.Type()) {
    case PropertyType::kI2:
      return Property::I2(id.Tag(), value.val.iVal);
    case PropertyType::kUI2:
      return Property::UI2(id.Tag(), value.val.uiVal);
    case PropertyType::kI4:
      return Property::I4(id.Tag(), value.val.lVal);
    case PropertyType::kUI4:
      return Property::UI4(id.Tag(), value.val.ulVal);
    case PropertyType::kR8:
      return Property::R8(id.Tag(), value.val.dblVal);
    case PropertyType::kBool:
      return Property::Bool(id.Tag(), value.val.boolVal != FALSE);
    case PropertyType::kFileTime:
      return Property::FileTime(id.Tag(), std::uint64_t{value.val.filetime.dwHighDateTime} << 32 |
                                              value.val.filetime.dwLowDateTime);
    case PropertyType::kString: {
      const auto* text = reinterpret_cast<const char16_t*>(value.val.lpwstr);
      return Property::String(id.Tag(),
                              text ? std::u16string_view(text) : std::u16string_view(text, 1));
    }
    case PropertyType::kBlob:
      return Property::Blob(id.Tag(), {reinterpret_cast<const std::byte*>(value.val.blob.lpb),
                                       value.val.blob.dwCount});
  }
  return {};
}

CEPROPVAL ToPropVal(const Property& property) {
  CEPROPVAL value{};
  value.propid = property.Id().Value();
  switch (property.Type()) {
    case PropertyType::kI2:
      value.val.iVal = property.AsI2();
      break;
    case PropertyType::kUI2:
      value.val.uiVal = property.AsUI2();
      break;
    case PropertyType::kI4:
      value.val.lVal = property.AsI4();
      break;
    case PropertyType::kUI4:
      value.val.ulVal = property.AsUI4();
      break;
    case PropertyType::kR8:
      value.val.dblVal = property.AsR8();
      break;
    case PropertyType::kBool:
      value.val.boolVal = property.AsBool() ? TRUE : FALSE;
      break;
    case PropertyType::kFileTime:
      value.val.filetime = {static_cast<DWORD>(property.AsFileTime()),
                            static_cast<DWORD>(property.AsFileTime() >> 32)};
      break;
    case PropertyType::kString:
      value.val.lpwstr =
          reinterpret_cast<LPWSTR>(const_cast<std::byte*>(property.AsBytes().data()));
      break;
    case PropertyType::kBlob:
      value.val.blob = {
          static_cast<DWORD>(property.AsBytes().size()),
          reinterpret_cast<LPBYTE>(const_cast<std::byte*>(property.AsBytes().data()))};
      break;
  }
  return value;
}

tavix::SortOrder ToSortOrder(const SORTORDERSPEC& sorting) {
  return {.property = PropertyId(sorting.propid),
          .descending = (sorting.dwFlags & CEDB_SORT_DESCENDING) != 0,
          .ignore_case = (sorting.dwFlags & CEDB_SORT_CASEINSENSITIVE) != 0,
          .unknown_first = (sorting.dwFlags & CEDB_SORT_UNKNOWNFIRST) != 0};
}

SORTORDERSPEC ToSortSpec(const tavix::SortOrder& order) {
  DWORD flags = 0;
  if (order.descending) flags |= CEDB_SORT_DESCENDING;
  if (order.ignore_case) flags |= CEDB_SORT_CASEINSENSITIVE;
  if (order.unknown_first) flags |= CEDB_SORT_UNKNOWNFIRST;
  return {order.property.Value(), flags};
}
