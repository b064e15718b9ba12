#include "framework/db_database.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/framework/database/conversion.h"
#include "platform/framework/database/device_store.h"

namespace {

// The calls take names as LPWSTR but do not change them.
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

// False, with the last error set, for more properties than a database can have sort orders.
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

// Whether a property with this identifier passes the filter; without a filter every property
// passes.
bool Passes(WORD ident, int filter_count, const CCeDBProp* filter) {
  if (filter_count <= 0 || !filter) return true;
  const std::span<const CCeDBProp> props(filter, static_cast<size_t>(filter_count));
  return std::ranges::find(props, ident, &CCeDBProp::GetIdent) != props.end();
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
  // From the store itself: the device's call counts records in a WORD.
  const auto info = DeviceStore().Info(m_oidDatabase);
  return info ? info.value.database.record_count : 0;
}

ULONGLONG CCeDBDatabase::GetNumChanges() const {
  constexpr ULONGLONG kUnknown = ~ULONGLONG{0};
  const auto changes = DeviceStore().Changes(m_oidDatabase);
  return changes ? changes.value : kUnknown;
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

// ---- Seeking

CEOID CCeDBDatabase::SeekFirst() { return SeekTo(CEDB_SEEK_BEGINNING, 0); }

CEOID CCeDBDatabase::SeekLast() { return SeekTo(CEDB_SEEK_END, 0); }

CEOID CCeDBDatabase::SeekNext() { return SeekTo(CEDB_SEEK_CURRENT, 1); }

CEOID CCeDBDatabase::SeekPrev() { return SeekTo(CEDB_SEEK_CURRENT, static_cast<DWORD>(-1)); }

CEOID CCeDBDatabase::SeekToIndex(DWORD dwIndex) { return SeekTo(CEDB_SEEK_BEGINNING, dwIndex); }

CEOID CCeDBDatabase::SeekToRecord(CEOID oidRecord) { return SeekTo(CEDB_SEEK_CEOID, oidRecord); }

CEOID CCeDBDatabase::SeekFirstEqual(const CCeDBProp& prop) {
  return SeekValue(CEDB_SEEK_VALUEFIRSTEQUAL, prop);
}

CEOID CCeDBDatabase::SeekNextEqual(const CCeDBProp& prop) {
  return SeekValue(CEDB_SEEK_VALUENEXTEQUAL, prop);
}

CEOID CCeDBDatabase::SeekValueSmaller(const CCeDBProp& prop) {
  const BOOL eof = m_bEOF;
  const CEOID record = SeekValue(CEDB_SEEK_VALUESMALLER, prop);
  if (record == 0) m_bEOF = eof;
  return record;
}

CEOID CCeDBDatabase::SeekValueGreater(const CCeDBProp& prop) {
  return SeekValue(CEDB_SEEK_VALUEGREATER, prop);
}

DWORD CCeDBDatabase::GetCurrIndex() const {
  constexpr DWORD kNoIndex = 0xFFFFFFFF;
  DWORD index = kNoIndex;
  if (m_oidCurrRec != 0) CeSeekDatabase(m_hDatabase, CEDB_SEEK_CURRENT, 0, &index);
  return index;
}

CEOID CCeDBDatabase::SeekTo(DWORD seekType, DWORD_PTR value) {
  const CEOID found = CeSeekDatabase(m_hDatabase, seekType, value, nullptr);
  // A seek with invalid arguments changes nothing.
  if (found == 0 && GetLastError() != ERROR_NO_MORE_ITEMS) return 0;
  m_oidCurrRec = found;
  m_bEOF = found == 0;
  return found;
}

CEOID CCeDBDatabase::SeekValue(DWORD seekType, const CCeDBProp& prop) {
  return SeekTo(seekType, reinterpret_cast<DWORD_PTR>(&prop.GetPropVal()));
}

void CCeDBDatabase::StepAfter() {
  if (m_bAutoSeekNext) SeekNext();
}

// ---- Records

CEOID CCeDBDatabase::AddRecord(CCeDBRecord* pRec) {
  pRec->GatherValues([](const CCeDBProp&) { return true; });
  return Write(0, pRec->m_values);
}

BOOL CCeDBDatabase::ReadCurrRecord(CCeDBRecord* pRec, int nNumFilterProps,
                                   CCeDBProp* PropFilterArray) {
  // Directly from the store: the device's call would copy all values once more.
  const auto record = DeviceStore().Read(ToStoreHandle(m_hDatabase));
  if (!Worked(record.error)) return FALSE;
  pRec->DeleteAllProps();
  pRec->Reserve(record.value.properties.size());
  for (const tavix::Property& property : record.value.properties) {
    if (Passes(property.Id().Tag(), nNumFilterProps, PropFilterArray)) {
      pRec->TakeRead(ToPropVal(property));
    }
  }
  pRec->ListRead();
  StepAfter();
  return TRUE;
}

BOOL CCeDBDatabase::WriteCurrRecord(CCeDBRecord* pRec, int nNumFilterProps,
                                    CCeDBProp* PropFilterArray) {
  pRec->GatherValues([&](const CCeDBProp& prop) {
    return Passes(prop.GetIdent(), nNumFilterProps, PropFilterArray);
  });
  return WriteCurrent(pRec->m_values);
}

BOOL CCeDBDatabase::DeleteCurrProps(CCeDBProp* pPropArray, int nNumProps) {
  std::vector<CEPROPVAL> values;
  for (int i = 0; i < nNumProps; ++i) {
    CEPROPVAL& value = values.emplace_back(pPropArray[i].GetPropVal());
    value.wFlags = CEDB_PROPDELETE;
  }
  return WriteCurrent(values);
}

BOOL CCeDBDatabase::DeleteCurrRecord() {
  if (!CeDeleteRecord(m_hDatabase, m_oidCurrRec)) return FALSE;
  m_oidCurrRec = 0;
  StepAfter();
  return TRUE;
}

BOOL CCeDBDatabase::WriteCurrent(std::vector<CEPROPVAL>& values) {
  if (m_oidCurrRec == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  return Write(m_oidCurrRec, values) != 0;
}

CEOID CCeDBDatabase::Write(CEOID oidRecord, std::vector<CEPROPVAL>& values) {
  const CEOID written =
      CeWriteRecordProps(m_hDatabase, oidRecord, static_cast<WORD>(values.size()), values.data());
  if (written == 0) return 0;
  m_oidCurrRec = written;
  m_bEOF = FALSE;
  return written;
}

// ---- CCeDBEnum

CCeDBEnum::CCeDBEnum(DWORD dwIdentifier) : m_hEnum(CeFindFirstDatabase(dwIdentifier)) {}

CCeDBEnum::~CCeDBEnum() { CeCloseDatabaseHandle(m_hEnum); }

CEOID CCeDBEnum::Next() { return CeFindNextDatabase(m_hEnum); }

BOOL CCeDBEnum::Reset(DWORD dwIdentifier) {
  CeCloseDatabaseHandle(m_hEnum);
  m_hEnum = CeFindFirstDatabase(dwIdentifier);
  return m_hEnum != INVALID_HANDLE_VALUE;
}
