// CCeDBDatabase: a database of the device's object store; CCeDBEnum: a walk over the databases.
//
// A seek returns the record it found, or 0. Calls that fail say why through GetLastError.
//
// Differs from the class that hosts know: windows are not notified, so pParent is taken and ignored
// and there are no OnRecord... calls; the number of records and the last modification come as DWORD
// and FILETIME; GetNumChanges is an addition, for the sake of what is kept beside a database.
#pragma once

#include "framework/db_record.h"
#include "framework/string.h"

class CWnd;

class AFX_FRAMEWORK CCeDBDatabase {
 public:
  CCeDBDatabase();
  ~CCeDBDatabase();  // closes
  CCeDBDatabase(const CCeDBDatabase&) = delete;
  CCeDBDatabase& operator=(const CCeDBDatabase&) = delete;

  // ---- Databases as a whole

  static BOOL Exists(LPCWSTR lpszName);
  // The identifier of the new database, which is not opened; up to CEDB_MAXSORTORDER properties to
  // sort by.
  CEOID Create(LPCWSTR lpszName, DWORD dwIdent = 0, WORD wNumProps = 0,
               CCeDBProp* pSortProps = NULL);
  static BOOL Delete(LPCWSTR lpszName);
  static BOOL Delete(CEOID oidDatabase);
  // Closes and deletes the open one.
  BOOL Delete();

  // ---- Opening
  //
  // Closes what was open. The first record in the order becomes the current one. Without a property
  // to sort by, the database's first order is taken.

  BOOL Open(LPCWSTR lpszName, CCeDBProp* pSortProp = NULL, CWnd* pParent = NULL);
  BOOL Open(CEOID oidDatabase, CCeDBProp* pSortProp = NULL, CWnd* pParent = NULL);
  void Close();
  BOOL IsOpen() const { return m_hDatabase != INVALID_HANDLE_VALUE; }

  // ---- The open database

  DWORD GetNumRecords() const;
  DWORD GetSize() const;  // bytes of all values
  DWORD GetIdent() const;
  CString GetName() const;
  FILETIME GetLastModified() const;
  // How often a record of it was added, changed or deleted, by whomsoever; one for each call that
  // did. 0xFFFFFFFFFFFFFFFF when that cannot be told.
  ULONGLONG GetNumChanges() const;
  BOOL SetIdent(DWORD dwIdent);
  BOOL SetName(LPCWSTR lpszName);
  WORD GetNumSortProps() const;
  // Fills up to wNumProps properties and returns how many.
  WORD GetSortProps(CCeDBProp* pSortProps, WORD wNumProps) const;
  // FALSE when the database is not sorted by such a property.
  BOOL GetSortPropFromIdent(WORD wIdent, CCeDBProp* pSortProp) const;
  // Closes the database, for an open one keeps its orders.
  BOOL SetSortProps(WORD wNumProps, CCeDBProp* pSortProps);

  // ---- Seeking. A seek that finds nothing leaves no current record and sets m_bEOF, but for
  //      SeekValueSmaller, which never sets it. A value must be one of the property sorted by.

  CEOID SeekFirst();
  CEOID SeekLast();
  CEOID SeekNext();
  CEOID SeekPrev();
  CEOID SeekToIndex(DWORD dwIndex);
  CEOID SeekToRecord(CEOID oidRecord);
  CEOID SeekFirstEqual(const CCeDBProp& prop);
  // The next record if its value is equal. After a read with m_bAutoSeekNext one record has been
  // passed already.
  CEOID SeekNextEqual(const CCeDBProp& prop);
  // The nearest smaller value, of equal ones the first; the nearest larger in a falling order.
  CEOID SeekValueSmaller(const CCeDBProp& prop);
  // The first with this value or a larger one; with this or a smaller one in a falling order.
  CEOID SeekValueGreater(const CCeDBProp& prop);

  CEOID GetCurrRecord() const { return m_oidCurrRec; }
  // 0xFFFFFFFF without a current record.
  DWORD GetCurrIndex() const;

  // ---- Records
  //
  // A filter is an array of properties whose identifiers say which ones take part; their types and
  // values do not count.

  // The new record becomes the current one.
  CEOID AddRecord(CCeDBRecord* pRec);
  BOOL ReadCurrRecord(CCeDBRecord* pRec, int nNumFilterProps = 0,
                      CCeDBProp* PropFilterArray = NULL);
  // Properties that the record does not hold stay as they are.
  BOOL WriteCurrRecord(CCeDBRecord* pRec, int nNumFilterProps = 0,
                       CCeDBProp* PropFilterArray = NULL);
  // Takes properties out of the current record, by identifier and type.
  BOOL DeleteCurrProps(CCeDBProp* pPropArray, int nNumProps);
  // SeekNext finds the record behind it; with m_bAutoSeekNext that becomes the current one.
  BOOL DeleteCurrRecord();

  // ---- Data members

  HANDLE m_hDatabase = INVALID_HANDLE_VALUE;  // for the device's calls; closed by Close
  BOOL m_bAutoSeekNext = TRUE;                // go on to the next record after a read or a deletion
  BOOL m_bEOF = FALSE;                        // the last seek, or step after a read, found nothing

 private:
  BOOL Opened(CEOID oidDatabase);
  CEOID SeekTo(DWORD seekType, DWORD_PTR value);
  CEOID SeekValue(DWORD seekType, const CCeDBProp& prop);
  void StepAfter();
  BOOL WriteCurrent(std::vector<CEPROPVAL>& values);
  CEOID Write(CEOID oidRecord, std::vector<CEPROPVAL>& values);
  CEDBASEINFO Describe() const;

  CEOID m_oidDatabase = 0;  // of the open one
  CEOID m_oidCurrRec = 0;
};

class AFX_FRAMEWORK CCeDBEnum {
 public:
  // Over the databases of one type, or over all for 0.
  explicit CCeDBEnum(DWORD dwIdentifier = 0);
  ~CCeDBEnum();
  CCeDBEnum(const CCeDBEnum&) = delete;
  CCeDBEnum& operator=(const CCeDBEnum&) = delete;

  // The next database, 0 behind the last. Once a database was deleted the walk is over
  // (ERROR_KEY_DELETED) until it starts anew.
  CEOID Next();

  // Starts anew.
  BOOL Reset(DWORD dwIdentifier = 0);

  HANDLE m_hEnum = INVALID_HANDLE_VALUE;
};
