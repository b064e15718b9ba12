#include "framework/db_enum.h"

CCeDBEnum::CCeDBEnum(DWORD dwIdentifier) : m_hEnum(CeFindFirstDatabase(dwIdentifier)) {}

CCeDBEnum::~CCeDBEnum() { CeCloseDatabaseHandle(m_hEnum); }

CEOID CCeDBEnum::Next() { return CeFindNextDatabase(m_hEnum); }

BOOL CCeDBEnum::Reset(DWORD dwIdentifier) {
  CeCloseDatabaseHandle(m_hEnum);
  m_hEnum = CeFindFirstDatabase(dwIdentifier);
  return m_hEnum != INVALID_HANDLE_VALUE;
}
