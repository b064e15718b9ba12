// CCeDBEnum: a walk over the databases of the object store.
#pragma once

#include <windbase.h>

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
