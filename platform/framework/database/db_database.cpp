// CCeDBDatabase: databases as a whole, opening, and what is known of the open one. Its records are
// in db_database_records.cpp.
#include "framework/db_database.h"

#include <algorithm>
#include <array>

#include "platform/framework/database/device_store.h"

namespace {

// The calls take names as LPWSTR and leave them as they are.
LPWSTR Name(LPCWSTR name) { return const_cast<LPWSTR>(name); }

CEPROPID SortId(const CCeDBProp& prop) { return prop.GetPropVal().propid; }

// The identifier of a database, or 0.
CEOID FindByName(LPCWSTR name) {
  CEOID oid = 0;
  const HANDLE handle = CeOpenDatabase(&oid, Name(name), 0, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return 0;
  CeCloseDatabaseHandle(handle);
  return oid;
}

using SortSpecs = std::array<SORTORDERSPEC, CEDB_MAXSORTORDER>;

// False, with the last error set, for more properties than a database can be sorted by.
bool ToSortSpecs(const CCeDBProp* props, WORD count, SortSpecs& sortings) {
  if (count > sortings.size() || (count > 0 && !props)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
  }
  std::transform(props, props + count, sortings.begin(), [](const CCeDBProp& prop) {
    return SORTORDERSPEC{SortId(prop), prop.GetSortFlags()};
  });
  return true;
}

CCeDBProp ToSortProp(const SORTORDERSPEC& sorting) {
  return {static_cast<CCeDBProp::enType>(LOWORD(sorting.propid)), HIWORD(sorting.propid),
          static_cast<WORD>(sorting.dwFlags)};
}

}  // namespace

CCeDBDatabase::CCeDBDatabase() = default;

CCeDBDatabase::~CCeDBDatabase() { Close(); }

// ---- Databases as a whole

BOOL CCeDBDatabase::Exists(LPCWSTR lpszName) { return FindByName(lpszName) != 0; }

CEOID CCeDBDatabase::Create(LPCWSTR lpszName, DWORD dwIdent, WORD wNumProps,
                            CCeDBProp* pSortProps) {
  SortSpecs sortings;
  if (!ToSortSpecs(pSortProps, wNumProps, sortings)) return 0;
  return CeCreateDatabase(Name(lpszName), dwIdent, wNumProps, sortings.data());
}

BOOL CCeDBDatabase::Delete(LPCWSTR lpszName) {
  const CEOID oid = FindByName(lpszName);
  return oid != 0 && CeDeleteDatabase(oid);
}

BOOL CCeDBDatabase::Delete(CEOID oidDatabase) { return CeDeleteDatabase(oidDatabase); }

BOOL CCeDBDatabase::Delete() {
  const CEOID oid = m_oidDatabase;
  Close();
  return CeDeleteDatabase(oid);
}

// ---- Opening

BOOL CCeDBDatabase::Open(LPCWSTR lpszName, CCeDBProp* pSortProp, CWnd* /*pParent*/) {
  Close();
  CEOID oid = 0;
  m_hDatabase =
      CeOpenDatabase(&oid, Name(lpszName), pSortProp ? SortId(*pSortProp) : 0, 0, nullptr);
  return Opened(oid);
}

BOOL CCeDBDatabase::Open(CEOID oidDatabase, CCeDBProp* pSortProp, CWnd* /*pParent*/) {
  Close();
  if (oidDatabase == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  m_hDatabase =
      CeOpenDatabase(&oidDatabase, nullptr, pSortProp ? SortId(*pSortProp) : 0, 0, nullptr);
  return Opened(oidDatabase);
}

BOOL CCeDBDatabase::Opened(CEOID oidDatabase) {
  if (!IsOpen()) return FALSE;
  m_oidDatabase = oidDatabase;
  m_oidCurrRec = CeSeekDatabase(m_hDatabase, CEDB_SEEK_CURRENT, 0, nullptr);
  m_bEOF = m_oidCurrRec == 0;
  return TRUE;
}

void CCeDBDatabase::Close() {
  if (IsOpen()) CeCloseDatabaseHandle(m_hDatabase);
  m_hDatabase = INVALID_HANDLE_VALUE;
  m_oidDatabase = 0;
  m_oidCurrRec = 0;
  m_bEOF = FALSE;
}

// ---- The open database

DWORD CCeDBDatabase::GetNumRecords() const {
  // From the store itself: the device's call counts no further than a WORD does.
  const auto info = DeviceStore().Info(m_oidDatabase);
  return info ? info.value.database.record_count : 0;
}

ULONGLONG CCeDBDatabase::GetNumChanges() const {
  constexpr ULONGLONG kUnknown = ~ULONGLONG{0};
  const auto info = DeviceStore().Info(m_oidDatabase);
  return info ? info.value.database.changes : kUnknown;
}

DWORD CCeDBDatabase::GetSize() const { return Describe().dwSize; }

DWORD CCeDBDatabase::GetIdent() const { return Describe().dwDbaseType; }

CString CCeDBDatabase::GetName() const { return Describe().szDbaseName; }

FILETIME CCeDBDatabase::GetLastModified() const { return Describe().ftLastModified; }

BOOL CCeDBDatabase::SetIdent(DWORD dwIdent) {
  CEDBASEINFO info{};
  info.dwFlags = CEDB_VALIDTYPE;
  info.dwDbaseType = dwIdent;
  return CeSetDatabaseInfo(m_oidDatabase, &info);
}

BOOL CCeDBDatabase::SetName(LPCWSTR lpszName) {
  CEDBASEINFO info{};
  info.dwFlags = CEDB_VALIDNAME;
  lstrcpynW(info.szDbaseName, lpszName, CEDB_MAXDBASENAMELEN);
  return CeSetDatabaseInfo(m_oidDatabase, &info);
}

WORD CCeDBDatabase::GetNumSortProps() const { return Describe().wNumSortOrder; }

WORD CCeDBDatabase::GetSortProps(CCeDBProp* pSortProps, WORD wNumProps) const {
  const CEDBASEINFO info = Describe();
  const WORD count = std::min(wNumProps, info.wNumSortOrder);
  std::transform(info.rgSortSpecs, info.rgSortSpecs + count, pSortProps, ToSortProp);
  return count;
}

BOOL CCeDBDatabase::GetSortPropFromIdent(WORD wIdent, CCeDBProp* pSortProp) const {
  const CEDBASEINFO info = Describe();
  for (WORD i = 0; i < info.wNumSortOrder; ++i) {
    if (HIWORD(info.rgSortSpecs[i].propid) != wIdent) continue;
    *pSortProp = ToSortProp(info.rgSortSpecs[i]);
    return TRUE;
  }
  return FALSE;
}

BOOL CCeDBDatabase::SetSortProps(WORD wNumProps, CCeDBProp* pSortProps) {
  SortSpecs sortings;
  if (!ToSortSpecs(pSortProps, wNumProps, sortings)) return FALSE;
  CEDBASEINFO info{};
  info.dwFlags = CEDB_VALIDSORTSPEC;
  info.wNumSortOrder = wNumProps;
  std::copy_n(sortings.begin(), wNumProps, info.rgSortSpecs);
  const CEOID oid = m_oidDatabase;
  Close();
  return CeSetDatabaseInfo(oid, &info);
}

// All zeros when nothing is open.
CEDBASEINFO CCeDBDatabase::Describe() const {
  CEOIDINFO info{};
  if (!CeOidGetInfo(m_oidDatabase, &info)) return {};
  return info.infDatabase;
}
