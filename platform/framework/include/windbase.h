// The device's database calls, by their usual names.
//
// Differs from the device:
//  - a handle is closed with CeCloseDatabaseHandle: it is not a system handle for CloseHandle;
//  - the value of CeSeekDatabase is a DWORD_PTR, because for some seek types it is a pointer;
//  - databases are kept in memory until the process ends;
//  - windows are not notified of changes: hwndNotify is ignored;
//  - the time of the last modification is exact to the system's tick, some 16 ms;
//  - use from one thread at a time.
#pragma once

#include "framework/platform.h"

// ---- Objects and properties

typedef DWORD CEOID;  // of a database or a record; never reused within the process
typedef CEOID* PCEOID;
typedef DWORD CEPROPID;  // application's tag in the high word, CEVT_ type in the low one
typedef CEPROPID* PCEPROPID;

#define TypeFromPropID(propid) LOWORD(propid)

#define CEVT_I2 2
#define CEVT_I4 3
#define CEVT_R8 5
#define CEVT_BOOL 11
#define CEVT_UI2 18
#define CEVT_UI4 19
#define CEVT_LPWSTR 31
#define CEVT_FILETIME 64
#define CEVT_BLOB 65

#define CEDB_MAXPROPDATASIZE 65471  // bytes of one string or blob
#define CEDB_MAXRECORDSIZE 131072   // bytes of all values of a record

typedef struct _CEBLOB {
  DWORD dwCount;  // bytes
  LPBYTE lpb;
} CEBLOB;
typedef CEBLOB* PCEBLOB;

typedef union _CEVALUNION {
  short iVal;         // CEVT_I2
  USHORT uiVal;       // CEVT_UI2
  long lVal;          // CEVT_I4
  ULONG ulVal;        // CEVT_UI4
  FILETIME filetime;  // CEVT_FILETIME
  LPWSTR lpwstr;      // CEVT_LPWSTR, zero terminated
  CEBLOB blob;        // CEVT_BLOB
  BOOL boolVal;       // CEVT_BOOL
  double dblVal;      // CEVT_R8
} CEVALUNION;
typedef CEVALUNION* PCEVALUNION;

#define CEDB_PROPNOTFOUND 0x0100  // set by a read: the record has no such property
#define CEDB_PROPDELETE 0x0200    // for a write: removes the property

typedef struct _CEPROPVAL {
  CEPROPID propid;
  WORD wLenData;  // not used
  WORD wFlags;
  CEVALUNION val;
} CEPROPVAL;
typedef CEPROPVAL* PCEPROPVAL;

// ---- Sort orders and descriptions

#define CEDB_MAXDBASENAMELEN 32  // characters, the terminating zero included
#define CEDB_MAXSORTORDER 4

#define CEDB_SORT_DESCENDING 0x00000001
#define CEDB_SORT_CASEINSENSITIVE 0x00000002
#define CEDB_SORT_UNKNOWNFIRST 0x00000004
#define CEDB_SORT_GENERICORDER 0x00000008  // with a propid of 0: a placeholder

typedef struct _SORTORDERSPEC {
  CEPROPID propid;  // of any type but CEVT_BLOB
  DWORD dwFlags;
} SORTORDERSPEC;
typedef SORTORDERSPEC* PSORTORDERSPEC;

#define CEDB_VALIDNAME 0x0001
#define CEDB_VALIDTYPE 0x0002
#define CEDB_VALIDSORTSPEC 0x0004
#define CEDB_VALIDMODTIME 0x0008  // when setting: ignored
#define CEDB_VALIDDBFLAGS 0x0010  // when setting: ignored
#define CEDB_NOCOMPRESS 0x00010000

typedef struct _CEDBASEINFO {
  DWORD dwFlags;
  WCHAR szDbaseName[CEDB_MAXDBASENAMELEN];
  DWORD dwDbaseType;
  WORD wNumRecords;  // 65535: that many or more
  WORD wNumSortOrder;
  DWORD dwSize;  // bytes of all values
  FILETIME ftLastModified;
  SORTORDERSPEC rgSortSpecs[CEDB_MAXSORTORDER];
} CEDBASEINFO;
typedef CEDBASEINFO* PCEDBASEINFO;

#define OBJTYPE_INVALID 0
#define OBJTYPE_FILE 1  // these two do not occur: files have no identifiers
#define OBJTYPE_DIRECTORY 2
#define OBJTYPE_DATABASE 3
#define OBJTYPE_RECORD 4

typedef struct _CERECORDINFO {
  CEOID oidParent;
} CERECORDINFO;

typedef struct _CEOIDINFO {
  WORD wObjType;
  WORD wPad;
  __extension__ union {
    CEDBASEINFO infDatabase;
    CERECORDINFO infRecord;
  };
} CEOIDINFO;
typedef CEOIDINFO* PCEOIDINFO;

// ---- Calls. When a call fails, GetLastError gives the reason.

#define CEDB_AUTOINCREMENT 0x00000001  // of CeOpenDatabase
#define CEDB_ALLOWREALLOC 0x00000001   // of CeReadRecordProps

#define CEDB_SEEK_CEOID 0x00000001            // the record dwValue
#define CEDB_SEEK_BEGINNING 0x00000002        // dwValue records after the first
#define CEDB_SEEK_END 0x00000004              // dwValue records before the last
#define CEDB_SEEK_CURRENT 0x00000008          // dwValue, as a LONG, records forward or back
#define CEDB_SEEK_VALUESMALLER 0x00000010     // the nearest value before *dwValue in the order
#define CEDB_SEEK_VALUEFIRSTEQUAL 0x00000020  // the first record with *dwValue
#define CEDB_SEEK_VALUEGREATER 0x00000040     // the first record with *dwValue or a later value
#define CEDB_SEEK_VALUENEXTEQUAL 0x00000080   // the next record, if it has *dwValue

#ifdef __cplusplus
extern "C" {
#endif

// The identifier of the new database, or 0: ERROR_DUP_NAME, ERROR_INVALID_PARAMETER,
// ERROR_DISK_FULL. A longer name is cut to 31 characters.
AFX_FRAMEWORK CEOID WINAPI CeCreateDatabase(LPWSTR lpszName, DWORD dwDbaseType, WORD wNumSortOrder,
                                            SORTORDERSPEC* rgSortSpecs);

// FALSE with ERROR_SHARING_VIOLATION while the database is open, ERROR_INVALID_PARAMETER when there
// is no such database.
AFX_FRAMEWORK BOOL WINAPI CeDeleteDatabase(CEOID oidDbase);

// Opens the database *poid, or, when *poid is 0, the database with the given name, and stores its
// identifier in *poid. The seek pointer starts at the first record in the order of propid; 0 uses
// the database's first order. INVALID_HANDLE_VALUE on failure: ERROR_FILE_NOT_FOUND for the name,
// ERROR_INVALID_PARAMETER.
AFX_FRAMEWORK HANDLE WINAPI CeOpenDatabase(PCEOID poid, LPWSTR lpszName, CEPROPID propid,
                                           DWORD dwFlags, HWND hwndNotify);

// Closes a handle of CeOpenDatabase or CeFindFirstDatabase.
AFX_FRAMEWORK BOOL WINAPI CeCloseDatabaseHandle(HANDLE hObject);

// Enumerates the databases of one type, or of all types for 0; INVALID_HANDLE_VALUE on failure.
AFX_FRAMEWORK HANDLE WINAPI CeFindFirstDatabase(DWORD dwDbaseType);

// 0 with ERROR_NO_MORE_ITEMS after the last database, with ERROR_KEY_DELETED if a database was
// deleted since the enumeration began.
AFX_FRAMEWORK CEOID WINAPI CeFindNextDatabase(HANDLE hEnum);

// FALSE with ERROR_INVALID_HANDLE when there is no such object.
AFX_FRAMEWORK BOOL WINAPI CeOidGetInfo(CEOID oid, CEOIDINFO* poidInfo);

// Sets the members that dwFlags marks as valid. Sort orders cannot change while the database is
// open: ERROR_SHARING_VIOLATION.
AFX_FRAMEWORK BOOL WINAPI CeSetDatabaseInfo(CEOID oidDbase, CEDBASEINFO* pNewInfo);

// Moves the seek pointer and returns the record there; stores its index in the order in *lpdwIndex
// when that is not null. 0 with ERROR_NO_MORE_ITEMS moves the pointer to the end. 0 with
// ERROR_INVALID_PARAMETER, or with ERROR_KEY_DELETED for a step of 0 from a deleted record, does
// not move it. A value is a CEPROPVAL of the sort property.
AFX_FRAMEWORK CEOID WINAPI CeSeekDatabase(HANDLE hDatabase, DWORD dwSeekType, DWORD_PTR dwValue,
                                          LPDWORD lpdwIndex);

// Reads the *lpcPropID properties of rgPropID, or all properties when that is null, and then stores
// their number in *lpcPropID. The values are an array of CEPROPVAL, followed by the strings and
// blobs they point to; they are written to *lplpBuffer of *lpcbBuffer bytes. With CEDB_ALLOWREALLOC
// the buffer is null or from LocalAlloc; it is reallocated when it is too small, and the caller
// frees it with LocalFree.
//
// The record's identifier, or 0: ERROR_NO_MORE_ITEMS, ERROR_KEY_DELETED, ERROR_INVALID_PARAMETER;
// ERROR_INSUFFICIENT_BUFFER with the required size in *lpcbBuffer; ERROR_NO_DATA, with the buffer
// filled, when the record has none of the properties.
AFX_FRAMEWORK CEOID WINAPI CeReadRecordProps(HANDLE hDbase, DWORD dwFlags, LPWORD lpcPropID,
                                             CEPROPID* rgPropID, LPBYTE* lplpBuffer,
                                             LPDWORD lpcbBuffer);

// Writes to a record, or to a new one for 0, and leaves the seek pointer on it. Returns its
// identifier, 0 on failure: ERROR_INVALID_PARAMETER, ERROR_DISK_FULL. The values are copied.
AFX_FRAMEWORK CEOID WINAPI CeWriteRecordProps(HANDLE hDbase, CEOID oidRecord, WORD cPropID,
                                              CEPROPVAL* rgPropVal);

// FALSE with ERROR_INVALID_PARAMETER when there is no such record. A handle whose seek pointer was
// on the record cannot read until it seeks; one that increments moves to the next record.
AFX_FRAMEWORK BOOL WINAPI CeDeleteRecord(HANDLE hDatabase, CEOID oidRecord);

#ifdef __cplusplus
}
#endif
