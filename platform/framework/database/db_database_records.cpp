// CCeDBDatabase: seeking, and the records.
#include <algorithm>
#include <span>

#include "framework/db_database.h"
#include "platform/framework/database/conversion.h"
#include "platform/framework/database/device_store.h"

namespace {

// Whether a property of this identifier takes part; without a filter every one does.
bool Passes(WORD ident, int filter_count, const CCeDBProp* filter) {
  if (filter_count <= 0 || !filter) return true;
  const std::span<const CCeDBProp> props(filter, static_cast<size_t>(filter_count));
  return std::ranges::find(props, ident, &CCeDBProp::GetIdent) != props.end();
}

}  // namespace

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
  // A seek that could not be tried at all leaves everything where it was.
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
  // Straight from the store: the device's call would copy everything once more.
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
