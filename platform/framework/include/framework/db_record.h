// CCeDBProp and CCeDBRecord: the properties of a database record, and a record in memory.
#pragma once

#include "../windbase.h"

#include <memory>
#include <vector>

// A property of a record, or, without a value, a property to sort by.
class AFX_FRAMEWORK CCeDBProp {
 public:
  enum enType : WORD {
    Type_Undefined = 0,
    Type_Short = CEVT_I2,
    Type_UShort = CEVT_UI2,
    Type_Long = CEVT_I4,
    Type_ULong = CEVT_UI4,
    Type_Filetime = CEVT_FILETIME,
    Type_String = CEVT_LPWSTR,
    Type_Blob = CEVT_BLOB,
    Type_Bool = CEVT_BOOL,
    Type_Double = CEVT_R8,
  };

  enum enSortFlags : WORD {
    Sort_Ascending = 0,
    Sort_Descending = CEDB_SORT_DESCENDING,
    Sort_CaseInsensitive = CEDB_SORT_CASEINSENSITIVE,
    Sort_UnknownFirst = CEDB_SORT_UNKNOWNFIRST,
    Sort_GenericOrder = CEDB_SORT_GENERICORDER,
  };

  // Whether a string or blob is copied, or is the caller's and must outlive the property.
  enum enMode { Copy, NoCopy };

  // ---- Construction. A property without a value is for sorting, filtering and deleting.

  CCeDBProp();
  CCeDBProp(enType nType, WORD wIdent = 0, WORD wSortFlags = Sort_Ascending);
  CCeDBProp(short iVal, WORD wIdent = 0);
  CCeDBProp(USHORT uiVal, WORD wIdent = 0);
  CCeDBProp(long lVal, WORD wIdent = 0);
  CCeDBProp(ULONG ulVal, WORD wIdent = 0);
  CCeDBProp(FILETIME filetime, WORD wIdent = 0);
  CCeDBProp(LPCWSTR lpwstr, WORD wIdent = 0, enMode nMode = Copy);
  CCeDBProp(CEBLOB blob, WORD wIdent = 0, enMode nMode = Copy);
  // From a value of the device's calls; its string or blob is copied.
  explicit CCeDBProp(const CEPROPVAL& value);

  // A copy owns its string or blob if the original does.
  CCeDBProp(const CCeDBProp& prop);
  CCeDBProp(CCeDBProp&& prop) noexcept;
  CCeDBProp& operator=(const CCeDBProp& prop);
  CCeDBProp& operator=(CCeDBProp&& prop) noexcept;
  ~CCeDBProp();

  // ---- Identifier and type

  WORD GetIdent() const { return HIWORD(m_propVal.propid); }
  enType GetType() const { return static_cast<enType>(LOWORD(m_propVal.propid)); }
  WORD GetSortFlags() const { return m_wSortFlags; }
  void SetIdent(WORD wIdent);
  void SetSortFlags(WORD wSortFlags) { m_wSortFlags = wSortFlags; }
  // As the device's calls take it; valid until the property changes.
  const CEPROPVAL& GetPropVal() const { return m_propVal; }

  // ---- Value. Get does not convert: use the one for the property's type. Set changes the type to
  //      that of the value. What GetString and GetBlob point to is valid until the value changes.

  short GetShort() const { return m_propVal.val.iVal; }
  USHORT GetUShort() const { return m_propVal.val.uiVal; }
  long GetLong() const { return m_propVal.val.lVal; }
  ULONG GetULong() const { return m_propVal.val.ulVal; }
  FILETIME GetFiletime() const { return m_propVal.val.filetime; }
  LPWSTR GetString() const { return m_propVal.val.lpwstr; }
  CEBLOB GetBlob() const { return m_propVal.val.blob; }
  BOOL GetBool() const { return m_propVal.val.boolVal; }
  double GetDouble() const { return m_propVal.val.dblVal; }

  void SetShort(short iVal);
  void SetUShort(USHORT uiVal);
  void SetLong(long lVal);
  void SetULong(ULONG ulVal);
  void SetFiletime(FILETIME filetime);
  void SetString(LPCWSTR lpwstr, enMode nMode = Copy);
  void SetBlob(CEBLOB blob, enMode nMode = Copy);
  void SetBool(BOOL boolVal);
  void SetDouble(double dblVal);

  WORD m_wSortFlags = Sort_Ascending;  // of a property to sort by

 private:
  void SetType(enType type);
  void Swap(CCeDBProp& other) noexcept;
  // Copies a string or blob into m_copy.
  LPBYTE Keep(const void* bytes, size_t count);

  CEPROPVAL m_propVal{};
  std::unique_ptr<BYTE[]> m_copy;  // what the value points to, if the property owns it
};

// A record on its way to or from a database.
//
// Added properties stay owned by the caller and must exist as long as the record uses them.
// Properties that a read put in belong to the record; their addresses are valid until the next
// read.
class AFX_FRAMEWORK CCeDBRecord {
 public:
  CCeDBRecord();
  ~CCeDBRecord();
  CCeDBRecord(const CCeDBRecord&) = delete;
  CCeDBRecord& operator=(const CCeDBRecord&) = delete;

  // FALSE for null.
  BOOL AddProp(CCeDBProp* pProp);
  BOOL AddProps(CCeDBProp* pPropArray, int nNumProps);

  WORD GetNumProps() const;
  // Null when there is no such property.
  CCeDBProp* GetPropFromIdent(WORD wIdent) const;
  CCeDBProp* GetPropFromIndex(int nIndex) const;
  CCeDBProp* operator[](int nIndex) const { return GetPropFromIndex(nIndex); }
  // Sets each property of the array to the record's value for its identifier. FALSE when a property
  // is not in the record; it is not changed.
  BOOL GetMultiProps(CCeDBProp* pPropArray, int nNumProps) const;

  void DeleteProp(WORD wPropIdent);
  void DeleteAllProps();

 private:
  friend class CCeDBDatabase;

  // So that repeated reads into one record allocate memory only once.
  void Reserve(size_t count);
  // Copies a value that was read. ListRead adds it to m_props after the last value.
  void TakeRead(const CEPROPVAL& value) { m_read.emplace_back(value); }
  void ListRead();
  // Collects in m_values the values of the properties for which takesPart is true.
  template <class TakesPart>
  void GatherValues(TakesPart takesPart) {
    m_values.clear();
    for (const CCeDBProp* prop : m_props) {
      if (takesPart(*prop)) m_values.push_back(prop->GetPropVal());
    }
  }

  std::vector<CCeDBProp*> m_props;  // all, in order
  std::vector<CCeDBProp> m_read;    // those owned by the record
  std::vector<CEPROPVAL> m_values;  // to be written to the database
};
