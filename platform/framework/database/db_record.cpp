#include "framework/db_record.h"

#include <algorithm>

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
