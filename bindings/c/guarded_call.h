// The way from a C call into tavix.dll: one instance, one thread, no exception.
#pragma once

#include <optional>

namespace tavix_c {

struct CallOn {
  const char* name;
  std::optional<int> instance;  // none for a call that concerns no instance
  bool restores_index;          // whether tavix.dll's current instance is as before afterwards
};

// Makes the call's instance current while it lives.
class GuardedCall {
 public:
  // `pointers_given` is false when the caller passed a null where the call needs a place.
  GuardedCall(const CallOn& call, bool pointers_given);
  ~GuardedCall();
  GuardedCall(const GuardedCall&) = delete;
  GuardedCall& operator=(const GuardedCall&) = delete;

  // The code with which the call has to end before it reaches tavix.dll.
  [[nodiscard]] std::optional<int> Refusal() const { return refusal_; }

  // Notes why the call ends with `code`, for TavixC_LastError.
  int Finish(int code) const;

  // To be called while an exception is being handled, in place of Finish.
  int FinishByException() const;

 private:
  [[nodiscard]] std::optional<int> Refuse(bool pointers_given) const;

  const CallOn& call_;
  std::optional<int> refusal_;
  int index_before_ = 0;
};

// What `call` returns in the instance, or the refusal.
template <class Call>
int On(const CallOn& on, bool pointers_given, Call call) {
  const GuardedCall guard(on, pointers_given);
  if (const auto refusal = guard.Refusal()) return *refusal;
  try {
    return guard.Finish(call());
  } catch (...) {
    return guard.FinishByException();
  }
}

// The same for a call that returns a window: null when refused.
template <class Call>
void* OnWindowOf(const CallOn& on, bool pointers_given, Call call) {
  void* window = nullptr;
  On(on, pointers_given, [&] {
    window = call();
    return 0;
  });
  return window;
}

}  // namespace tavix_c
