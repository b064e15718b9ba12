#include "bindings/c/guarded_call.h"

#include <tavix/tavix.h>
#include <tavix/tavix_c.h>

#include <atomic>
#include <new>

#include "bindings/c/last_error.h"

namespace tavix_c {
namespace {

constexpr int kInstances = 5;

// The thread on which the instances live; 0 while there are none. It is taken by the first call
// and given back by the call after which no instance is left.
std::atomic<DWORD> g_thread{0};

thread_local int t_depth = 0;  // of calls within calls: a message may be answered by one

bool TakeThread() {
  const DWORD here = ::GetCurrentThreadId();
  DWORD owner = 0;
  return g_thread.compare_exchange_strong(owner, here) || owner == here;
}

bool Exists(int instance) {
  int angle = 0;
  Tavix_SetIdx(instance);
  return Tavix_GetAng(&angle) == 0;
}

bool AnyExists() {
  for (int i = 0; i < kInstances; ++i) {
    if (Exists(i)) return true;
  }
  return false;
}

// Of the exception that is being handled. The framework's own are thrown by pointer.
const wchar_t* ReasonOfException() {
  bool is_memory = false;
  try {
    throw;
  } catch (CException* exception) {
    is_memory = exception->IsKindOf(RUNTIME_CLASS(CMemoryException));
    exception->Delete();
  } catch (const std::bad_alloc&) {
    is_memory = true;
  } catch (...) {  // not of this library: the host's own
  }
  return is_memory ? L"there was not enough memory" : L"an exception ended the call";
}

}  // namespace

GuardedCall::GuardedCall(const CallOn& call, bool pointers_given)
    : call_(call), refusal_(Refuse(pointers_given)) {
  if (refusal_) return;
  ++t_depth;
  Tavix_GetIdx(&index_before_);
  if (call.instance) Tavix_SetIdx(*call.instance);
}

std::optional<int> GuardedCall::Refuse(bool pointers_given) const {
  ForgetReason();
  if (call_.instance && (*call_.instance < 0 || *call_.instance >= kInstances)) {
    KeepReason(call_.name, L"there is no instance %d, they are 0 to 4", *call_.instance);
    return TAVIX_C_NO_SUCH_INSTANCE;
  }
  if (!pointers_given) {
    KeepReason(call_.name, L"a pointer that the call needs is null");
    return TAVIX_C_NULL_OUTPUT;
  }
  if (!TakeThread()) {
    KeepReason(call_.name, L"the instances live on another thread");
    return TAVIX_C_WRONG_THREAD;
  }
  return std::nullopt;
}

GuardedCall::~GuardedCall() {
  if (refusal_) return;
  const int index_after = call_.restores_index ? index_before_ : *call_.instance;
  --t_depth;
  const bool is_left = call_.instance && Exists(*call_.instance);
  if (t_depth == 0 && !is_left && !AnyExists()) g_thread = 0;
  Tavix_SetIdx(index_after);
}

int GuardedCall::Finish(int code) const {
  if (code < 0) KeepReason(call_.name, L"tavix.dll answered %d, see the call's description", code);
  return code;
}

int GuardedCall::FinishByException() const {
  KeepReason(call_.name, ReasonOfException());
  return TAVIX_C_FAILED;
}

}  // namespace tavix_c
