// Why the last call on a thread was refused.
#pragma once

namespace tavix_c {

// After a success there is no reason.
void ForgetReason();

// Keeps the sentence "`call`: `reason`", in which %d stands for `number`.
void KeepReason(const char* call, const wchar_t* reason, int number = 0);

// Of this thread; valid until its next call.
[[nodiscard]] const wchar_t* KeptReason();

}  // namespace tavix_c
