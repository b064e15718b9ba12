// The cause of the file exception that a call throws.
#pragma once

#include <afx.h>

// CFileException::none when it throws nothing. `thrown` receives what was thrown.
template <class Call>
int CauseOf(Call call, CFileException* thrown = nullptr) {
  try {
    call();
  } catch (CFileException* error) {
    const int cause = error->m_cause;
    if (thrown) {
      thrown->m_cause = cause;
      thrown->m_lOsError = error->m_lOsError;
      thrown->m_strFileName = error->m_strFileName;
    }
    error->Delete();
    return cause;
  }
  return CFileException::none;
}
