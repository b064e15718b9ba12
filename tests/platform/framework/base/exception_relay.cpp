#include "tests/platform/framework/base/exception_relay.h"

IMPLEMENT_DYNAMIC(CRelayException, CException)

namespace {

class Witness {
 public:
  explicit Witness(int* count) : count_(count) {}
  ~Witness() { ++*count_; }
  Witness(const Witness&) = delete;
  Witness& operator=(const Witness&) = delete;

 private:
  int* count_;
};

}  // namespace

CRelayException::~CRelayException() { ++*destroyed_; }

void RelayOpen(LPCWSTR path, int* unwound) {
  const Witness witness(unwound);
  const CFile file(path, CFile::modeRead);
}

void RelayThrow(int* destroyed) { throw new CRelayException(destroyed); }

void RelayCall(void (*call)(), int* unwound) {
  const Witness witness(unwound);
  call();
}

RelayCaught RelayCatch(void (*call)()) {
  try {
    call();
  } catch (CFileException* error) {
    error->Delete();
    return RelayCaught::file;
  } catch (CMemoryException* error) {
    error->Delete();
    return RelayCaught::memory;
  } catch (CException* error) {
    error->Delete();
    return RelayCaught::other;
  }
  return RelayCaught::nothing;
}
