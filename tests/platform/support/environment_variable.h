// Sets an environment variable for a scope.
#pragma once

#include <windows.h>

#include <string>

// Null unsets it. The old value comes back at the end.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const wchar_t* name, const wchar_t* value) : name_(name) {
    before_.resize(GetEnvironmentVariableW(name, nullptr, 0));
    was_set_ = !before_.empty();  // the size asked for counts the closing NUL
    const auto room = static_cast<DWORD>(before_.size());
    if (was_set_) before_.resize(GetEnvironmentVariableW(name, before_.data(), room));
    Set(value);
  }
  ~EnvironmentVariable() { Set(was_set_ ? before_.c_str() : nullptr); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  void Set(const wchar_t* value) { SetEnvironmentVariableW(name_, value); }

 private:
  const wchar_t* name_;
  std::wstring before_;
  bool was_set_ = false;
};
