// CCeDBRecord: a record in memory, on its way to or from a database.
#pragma once

#include <vector>

#include "framework/db_prop.h"

// Properties that are added stay their owner's, who keeps them until the record is done with them.
// Those that a read put in belong to the record, and their addresses are good until the next read.
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
  // Null when there is none.
  CCeDBProp* GetPropFromIdent(WORD wIdent) const;
  CCeDBProp* GetPropFromIndex(int nIndex) const;
  CCeDBProp* operator[](int nIndex) const { return GetPropFromIndex(nIndex); }
  // Gives each property of the array, which has an identifier, the value it has in this record.
  // FALSE when one is not there; it is left as it was.
  BOOL GetMultiProps(CCeDBProp* pPropArray, int nNumProps) const;

  void DeleteProp(WORD wPropIdent);
  void DeleteAllProps();

 private:
  friend class CCeDBDatabase;

  // A record that is read into again and again takes memory the first time only.
  void Reserve(size_t count);
  // Copies a value that was read; its place among all properties follows when all are there.
  void TakeRead(const CEPROPVAL& value) { m_read.emplace_back(value); }
  void ListRead();
  // Puts the values of the properties that take part into m_values.
  template <class TakesPart>
  void GatherValues(TakesPart takesPart) {
    m_values.clear();
    for (const CCeDBProp* prop : m_props) {
      if (takesPart(*prop)) m_values.push_back(prop->GetPropVal());
    }
  }

  std::vector<CCeDBProp*> m_props;  // all, in order
  std::vector<CCeDBProp> m_read;    // those of the record's own
  std::vector<CEPROPVAL> m_values;  // on their way into the database
};
