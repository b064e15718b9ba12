// A DLL between framework.dll and the tests: exceptions start here, end here, or pass through.
#pragma once

#include <afx.h>

#if defined(EXCEPTION_RELAY_BUILD)
#define EXCEPTION_RELAY __declspec(dllexport)
#else
#define EXCEPTION_RELAY __declspec(dllimport)
#endif

// An exception class of this DLL. Counts its destructions in `destroyed`.
class EXCEPTION_RELAY CRelayException : public CException {
  DECLARE_DYNAMIC(CRelayException)
 public:
  explicit CRelayException(int* destroyed) : destroyed_(destroyed) {}

 protected:
  ~CRelayException() override;

 private:
  int* destroyed_;
};

// Opens a file that is not there; framework.dll throws. `unwound` counts the DLL's own objects that
// were destroyed on the way.
EXCEPTION_RELAY void RelayOpen(LPCWSTR path, int* unwound);
EXCEPTION_RELAY void RelayThrow(int* destroyed);
EXCEPTION_RELAY void RelayCall(void (*call)(), int* unwound);

enum class RelayCaught { nothing, file, memory, other };

// Calls, catches what comes and deletes it.
EXCEPTION_RELAY RelayCaught RelayCatch(void (*call)());
