#include "framework/db_prop.h"

#include <cstring>
#include <utility>

CCeDBProp::CCeDBProp() = default;

CCeDBProp::CCeDBProp(enType nType, WORD wIdent, WORD wSortFlags) : m_wSortFlags(wSortFlags) {
  m_propVal.propid = static_cast<CEPROPID>(MAKELONG(nType, wIdent));
}

CCeDBProp::CCeDBProp(short iVal, WORD wIdent) : CCeDBProp(Type_Short, wIdent) { SetShort(iVal); }

CCeDBProp::CCeDBProp(USHORT uiVal, WORD wIdent) : CCeDBProp(Type_UShort, wIdent) {
  SetUShort(uiVal);
}

CCeDBProp::CCeDBProp(long lVal, WORD wIdent) : CCeDBProp(Type_Long, wIdent) { SetLong(lVal); }

CCeDBProp::CCeDBProp(ULONG ulVal, WORD wIdent) : CCeDBProp(Type_ULong, wIdent) { SetULong(ulVal); }

CCeDBProp::CCeDBProp(FILETIME filetime, WORD wIdent) : CCeDBProp(Type_Filetime, wIdent) {
  SetFiletime(filetime);
}

CCeDBProp::CCeDBProp(LPCWSTR lpwstr, WORD wIdent, enMode nMode) : CCeDBProp(Type_String, wIdent) {
  SetString(lpwstr, nMode);
}

CCeDBProp::CCeDBProp(CEBLOB blob, WORD wIdent, enMode nMode) : CCeDBProp(Type_Blob, wIdent) {
  SetBlob(blob, nMode);
}

CCeDBProp::CCeDBProp(const CEPROPVAL& value) : m_propVal(value) {
  if (GetType() == Type_String) SetString(value.val.lpwstr);
  if (GetType() == Type_Blob) SetBlob(value.val.blob);
}

CCeDBProp::CCeDBProp(const CCeDBProp& prop)
    : m_wSortFlags(prop.m_wSortFlags), m_propVal(prop.m_propVal) {
  if (!prop.m_copy) return;
  if (GetType() == Type_String) SetString(prop.GetString());
  if (GetType() == Type_Blob) SetBlob(prop.GetBlob());
}

CCeDBProp::CCeDBProp(CCeDBProp&& prop) noexcept { Swap(prop); }

CCeDBProp& CCeDBProp::operator=(const CCeDBProp& prop) {
  CCeDBProp copy(prop);
  Swap(copy);
  return *this;
}

CCeDBProp& CCeDBProp::operator=(CCeDBProp&& prop) noexcept {
  Swap(prop);
  return *this;
}

CCeDBProp::~CCeDBProp() = default;

void CCeDBProp::SetIdent(WORD wIdent) {
  m_propVal.propid = static_cast<CEPROPID>(MAKELONG(GetType(), wIdent));
}

void CCeDBProp::SetShort(short iVal) {
  SetType(Type_Short);
  m_propVal.val.iVal = iVal;
}

void CCeDBProp::SetUShort(USHORT uiVal) {
  SetType(Type_UShort);
  m_propVal.val.uiVal = uiVal;
}

void CCeDBProp::SetLong(long lVal) {
  SetType(Type_Long);
  m_propVal.val.lVal = lVal;
}

void CCeDBProp::SetULong(ULONG ulVal) {
  SetType(Type_ULong);
  m_propVal.val.ulVal = ulVal;
}

void CCeDBProp::SetFiletime(FILETIME filetime) {
  SetType(Type_Filetime);
  m_propVal.val.filetime = filetime;
}

void CCeDBProp::SetBool(BOOL boolVal) {
  SetType(Type_Bool);
  m_propVal.val.boolVal = boolVal;
}

void CCeDBProp::SetDouble(double dblVal) {
  SetType(Type_Double);
  m_propVal.val.dblVal = dblVal;
}

void CCeDBProp::SetString(LPCWSTR lpwstr, enMode nMode) {
  // The text may be the property's own: it is copied before anything is let go.
  auto* text = const_cast<LPWSTR>(lpwstr);
  std::unique_ptr<BYTE[]> old = std::move(m_copy);
  if (nMode == Copy && text) {
    text = reinterpret_cast<LPWSTR>(Keep(text, (std::wcslen(text) + 1) * sizeof(WCHAR)));
  }
  SetType(Type_String);
  m_propVal.val.lpwstr = text;
}

void CCeDBProp::SetBlob(CEBLOB blob, enMode nMode) {
  std::unique_ptr<BYTE[]> old = std::move(m_copy);
  if (nMode == Copy && blob.lpb) blob.lpb = Keep(blob.lpb, blob.dwCount);
  SetType(Type_Blob);
  m_propVal.val.blob = blob;
}

void CCeDBProp::SetType(enType type) {
  m_propVal.propid = static_cast<CEPROPID>(MAKELONG(type, GetIdent()));
  m_propVal.wFlags = 0;
  m_propVal.val = {};
  if (type != Type_String && type != Type_Blob) m_copy.reset();
}

void CCeDBProp::Swap(CCeDBProp& other) noexcept {
  std::swap(m_wSortFlags, other.m_wSortFlags);
  std::swap(m_propVal, other.m_propVal);
  std::swap(m_copy, other.m_copy);
}

LPBYTE CCeDBProp::Keep(const void* bytes, size_t count) {
  m_copy = std::make_unique<BYTE[]>(count);
  if (count > 0) std::memcpy(m_copy.get(), bytes, count);
  return m_copy.get();
}
