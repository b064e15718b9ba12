// CCeDBDatabase: a database of the device's object store; CCeDBEnum: an enumeration of databases.
//
// A seek returns the record it found, or 0. When a call fails, GetLastError gives the reason.
//
// Differs from the usual class: windows are not notified, so pParent is ignored and there are no
// OnRecord... calls; the number of records is a DWORD and the last modification a FILETIME;
// GetNumChanges is an addition.
#pragma once

#include "db_record.h"
#include "string.h"

class CWnd;

class AFX_FRAMEWORK CCeDBDatabase {
 public:
  CCeDBDatabase();
  ~CCeDBDatabase();  // closes
  CCeDBDatabase(const CCeDBDatabase&) = delete;
  CCeDBDatabase& operator=(const CCeDBDatabase&) = delete;

  // ---- Databases as a whole

  static BOOL Exists(LPCWSTR lpszName);
  // The identifier of the new database, which is not opened; 0 on failure. Up to CEDB_MAXSORTORDER
  // properties to sort by.
  CEOID Create(LPCWSTR lpszName, DWORD dwIdent = 0, WORD wNumProps = 0,
               CCeDBProp* pSortProps = NULL);
  static BOOL Delete(LPCWSTR lpszName);
  static BOOL Delete(CEOID oidDatabase);
  // Closes the open database and deletes it.
  BOOL Delete();

  // ---- Opening
  //
  // Closes the open database first. The first record in the order becomes the current one. Without
  // a property to sort by, the database's first order is used.

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
  // The number of calls that added, changed or deleted a record, through any handle. Data derived
  // from the database is up to date while it stays the same. 0xFFFFFFFFFFFFFFFF when it is unknown.
  ULONGLONG GetNumChanges() const;
  BOOL SetIdent(DWORD dwIdent);
  BOOL SetName(LPCWSTR lpszName);
  WORD GetNumSortProps() const;
  // Fills up to wNumProps properties and returns their number.
  WORD GetSortProps(CCeDBProp* pSortProps, WORD wNumProps) const;
  // FALSE when the database is not sorted by such a property.
  BOOL GetSortPropFromIdent(WORD wIdent, CCeDBProp* pSortProp) const;
  // Closes the database, because the orders of an open one cannot change.
  BOOL SetSortProps(WORD wNumProps, CCeDBProp* pSortProps);

  // ---- Seeking. After a seek that finds nothing there is no current record, and m_bEOF is set,
  //      except by SeekValueSmaller. A value must be of the property sorted by.

  CEOID SeekFirst();
  CEOID SeekLast();
  CEOID SeekNext();
  CEOID SeekPrev();
  CEOID SeekToIndex(DWORD dwIndex);
  CEOID SeekToRecord(CEOID oidRecord);
  CEOID SeekFirstEqual(const CCeDBProp& prop);
  // The next record if its value is equal. A read with m_bAutoSeekNext has already moved to the
  // next record.
  CEOID SeekNextEqual(const CCeDBProp& prop);
  // The first record with the nearest smaller value; in a descending order, the nearest larger one.
  CEOID SeekValueSmaller(const CCeDBProp& prop);
  // The first record with this value or a larger one; in a descending order, this or a smaller one.
  CEOID SeekValueGreater(const CCeDBProp& prop);

  CEOID GetCurrRecord() const { return m_oidCurrRec; }
  // 0xFFFFFFFF without a current record.
  DWORD GetCurrIndex() const;

  // ---- Records
  //
  // A filter is an array of properties: only properties with their identifiers are read or written.
  // Their types and values are ignored.

  // The new record becomes the current one.
  CEOID AddRecord(CCeDBRecord* pRec);
  BOOL ReadCurrRecord(CCeDBRecord* pRec, int nNumFilterProps = 0,
                      CCeDBProp* PropFilterArray = NULL);
  // Properties that the record does not hold stay as they are.
  BOOL WriteCurrRecord(CCeDBRecord* pRec, int nNumFilterProps = 0,
                       CCeDBProp* PropFilterArray = NULL);
  // Removes properties from the current record, by identifier and type.
  BOOL DeleteCurrProps(CCeDBProp* pPropArray, int nNumProps);
  // SeekNext then finds the following record; with m_bAutoSeekNext that becomes the current one.
  BOOL DeleteCurrRecord();

  // ---- Data members

  HANDLE m_hDatabase = INVALID_HANDLE_VALUE;  // for the device's calls; closed by Close
  BOOL m_bAutoSeekNext = TRUE;                // move to the next record after a read or a deletion
  BOOL m_bEOF = FALSE;                        // the last seek, or step after a read, found nothing

 private:
  BOOL Opened(CEOID oidDatabase);
  CEOID SeekTo(DWORD seekType, DWORD_PTR value);
  CEOID SeekValue(DWORD seekType, const CCeDBProp& prop);
  void StepAfter();
  BOOL WriteCurrent(std::vector<CEPROPVAL>& values);
  CEOID Write(CEOID oidRecord, std::vector<CEPROPVAL>& values);
  CEDBASEINFO Describe() const;

  CEOID m_oidDatabase = 0;  // of the open database
  CEOID m_oidCurrRec = 0;
};

class AFX_FRAMEWORK CCeDBEnum {
 public:
  // The databases of one type, or all for 0.
  explicit CCeDBEnum(DWORD dwIdentifier = 0);
  ~CCeDBEnum();
  CCeDBEnum(const CCeDBEnum&) = delete;
  CCeDBEnum& operator=(const CCeDBEnum&) = delete;

  // The next database, or 0 after the last. After a database was deleted, Next fails with
  // ERROR_KEY_DELETED until Reset.
  CEOID Next();

  // Restarts the enumeration.
  BOOL Reset(DWORD dwIdentifier = 0);

  HANDLE m_hEnum = INVALID_HANDLE_VALUE;
};
