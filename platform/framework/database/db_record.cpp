#include "framework/db_record.h"

#include <algorithm>
#include <cstring>
#include <utility>

// ---- CCeDBProp

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

// ---- CCeDBRecord

CCeDBRecord::CCeDBRecord() = default;

CCeDBRecord::~CCeDBRecord() = default;

BOOL CCeDBRecord::AddProp(CCeDBProp* pProp) {
  if (!pProp) return FALSE;
  m_props.push_back(pProp);
  return TRUE;
}

BOOL CCeDBRecord::AddProps(CCeDBProp* pPropArray, int nNumProps) {
  if (!pPropArray || nNumProps < 0) return FALSE;
  m_props.reserve(m_props.size() + static_cast<size_t>(nNumProps));
  for (int i = 0; i < nNumProps; ++i) m_props.push_back(pPropArray + i);
  return TRUE;
}

WORD CCeDBRecord::GetNumProps() const { return static_cast<WORD>(m_props.size()); }

CCeDBProp* CCeDBRecord::GetPropFromIdent(WORD wIdent) const {
  const auto found = std::ranges::find(m_props, wIdent, &CCeDBProp::GetIdent);
  return found == m_props.end() ? nullptr : *found;
}

CCeDBProp* CCeDBRecord::GetPropFromIndex(int nIndex) const {
  const bool inside = nIndex >= 0 && static_cast<size_t>(nIndex) < m_props.size();
  return inside ? m_props[static_cast<size_t>(nIndex)] : nullptr;
}

BOOL CCeDBRecord::GetMultiProps(CCeDBProp* pPropArray, int nNumProps) const {
  BOOL all_there = TRUE;
  for (int i = 0; i < nNumProps; ++i) {
    const CCeDBProp* found = GetPropFromIdent(pPropArray[i].GetIdent());
    if (found) {
      pPropArray[i] = *found;
    } else {
      all_there = FALSE;
    }
  }
  return all_there;
}

void CCeDBRecord::DeleteProp(WORD wPropIdent) {
  std::erase_if(m_props, [&](const CCeDBProp* prop) { return prop->GetIdent() == wPropIdent; });
}

void CCeDBRecord::DeleteAllProps() {
  m_props.clear();
  m_read.clear();
}

void CCeDBRecord::Reserve(size_t count) {
  m_props.reserve(count);
  m_read.reserve(count);
}

void CCeDBRecord::ListRead() {
  for (CCeDBProp& prop : m_read) m_props.push_back(&prop);
}
