#include "tests/reliability/system_faults.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <unordered_set>
#include <utility>

#include "tests/reliability/import_hook.h"

namespace tavix::test {
namespace {

SystemFaults* g_faults = nullptr;

// What the library holds of one kind. The library's other threads may call, too.
class Held {
 public:
  void Take(const void* thing) {
    const std::lock_guard lock(mutex_);
    things_.insert(thing);
  }
  void GiveBack(const void* thing) {
    const std::lock_guard lock(mutex_);
    things_.erase(thing);
  }
  std::size_t Count() {
    const std::lock_guard lock(mutex_);
    return things_.size();
  }

 private:
  std::mutex mutex_;
  std::unordered_set<const void*> things_;
};

// Never destroyed: the library's modules give things back until the process ends.
Held& HeldOf(Resource resource) {
  static auto& held = *new std::array<Held, 4>;
  return held[static_cast<std::size_t>(resource)];
}

bool Refuses(Resource resource, const char* call) {
  return g_faults && g_faults->Refuses(resource, call);
}

// The name of a call as a template argument: each has a replacement of its own.
template <std::size_t kSize>
struct CallName {
  // NOLINTNEXTLINE(google-explicit-constructor): so that a literal is one
  consteval CallName(const char (&name)[kSize]) { std::copy_n(name, kSize, text); }
  char text[kSize];
};

struct Hook {
  const char* name;
  void* replacement;
};

template <CallName kName, class Result, class... Arguments>
struct Replaced {
  static inline Result (*call)(Arguments...) = nullptr;
  static inline Resource resource{};
  static inline Result failure{};

  // May fail.
  static Result Fail(Arguments... arguments) {
    if (!Refuses(resource, kName.text)) return call(arguments...);
    ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return failure;
  }

  // May fail, and its result is held until it is given back.
  static Result Take(Arguments... arguments) {
    const Result taken = Fail(arguments...);
    if (taken != failure) HeldOf(resource).Take(taken);
    return taken;
  }
};

template <CallName kName, class Result, class... Arguments>
struct Returned {
  static inline Result (*call)(Arguments...) = nullptr;
  static inline Resource resource{};

  // What is given back is among the arguments.
  static Result GiveBack(Arguments... arguments) {
    (HeldOf(resource).GiveBack(arguments), ...);
    return call(arguments...);
  }
};

template <CallName kName, class Result, class... Arguments>
Hook Fails(Resource resource, std::type_identity_t<Result> failure, Result (*call)(Arguments...)) {
  using Row = Replaced<kName, Result, Arguments...>;
  Row::call = call;
  Row::resource = resource;
  Row::failure = failure;
  return {kName.text, reinterpret_cast<void*>(&Row::Fail)};
}

template <CallName kName, class Result, class... Arguments>
Hook Takes(Resource resource, std::type_identity_t<Result> failure, Result (*call)(Arguments...)) {
  const Hook fails = Fails<kName>(resource, failure, call);
  return {fails.name, reinterpret_cast<void*>(&Replaced<kName, Result, Arguments...>::Take)};
}

template <CallName kName, class Result, class... Arguments>
Hook GivesBack(Resource resource, Result (*call)(Arguments...)) {
  using Row = Returned<kName, Result, Arguments...>;
  Row::call = call;
  Row::resource = resource;
  return {kName.text, reinterpret_cast<void*>(&Row::GiveBack)};
}

// ---- A screen that changes

int g_screen_changes = 0;
bool g_is_change_seen = true;
int (*g_device_caps)(HDC, int) = &::GetDeviceCaps;

// The depth is asked for once a second: time stands still, and each change is long after the last.
ULONGLONG TickCount() {
  constexpr ULONGLONG kBetweenChanges = 10'000;  // milliseconds
  return kBetweenChanges * static_cast<ULONGLONG>(1 + g_screen_changes);
}

// More planes than there are, for the first to ask after a change: the bitmaps that are made for
// the screen then have its real depth.
int DeviceCaps(HDC dc, int index) {
  const int value = g_device_caps(dc, index);
  if (index != PLANES || ::WindowFromDC(dc) != ::GetDesktopWindow()) return value;
  return std::exchange(g_is_change_seen, true) ? value : value + 1 + g_screen_changes % 2;
}

// Every call for files, memory, drawing and windows that the library makes and that can fail.
void InstallHooks() {
  using enum Resource;
  const Hook hooks[] = {
      Takes<"CreateFileW">(kFiles, INVALID_HANDLE_VALUE, &::CreateFileW),
      Takes<"FindFirstFileW">(kFiles, INVALID_HANDLE_VALUE, &::FindFirstFileW),
      GivesBack<"FindClose">(kFiles, &::FindClose),
      GivesBack<"CloseHandle">(kFiles, &::CloseHandle),
      Fails<"ReadFile">(kFiles, FALSE, &::ReadFile),
      Fails<"WriteFile">(kFiles, FALSE, &::WriteFile),
      Fails<"SetFilePointerEx">(kFiles, FALSE, &::SetFilePointerEx),
      Fails<"SetEndOfFile">(kFiles, FALSE, &::SetEndOfFile),
      Fails<"GetFileSizeEx">(kFiles, FALSE, &::GetFileSizeEx),
      Fails<"FlushFileBuffers">(kFiles, FALSE, &::FlushFileBuffers),
      Fails<"LockFile">(kFiles, FALSE, &::LockFile),
      Fails<"MoveFileExW">(kFiles, FALSE, &::MoveFileExW),
      Fails<"DeleteFileW">(kFiles, FALSE, &::DeleteFileW),
      Fails<"GetFileAttributesW">(kFiles, INVALID_FILE_ATTRIBUTES, &::GetFileAttributesW),
      Fails<"GetFullPathNameW">(kFiles, 0, &::GetFullPathNameW),

      Takes<"malloc">(kMemory, nullptr, &std::malloc),
      GivesBack<"free">(kMemory, &std::free),

      Takes<"CreateCompatibleDC">(kDrawing, nullptr, &::CreateCompatibleDC),
      Takes<"CreateCompatibleBitmap">(kDrawing, nullptr, &::CreateCompatibleBitmap),
      Takes<"CreateDIBSection">(kDrawing, nullptr, &::CreateDIBSection),
      Takes<"CreateFontIndirectW">(kDrawing, nullptr, &::CreateFontIndirectW),
      Takes<"CreatePen">(kDrawing, nullptr, &::CreatePen),
      Takes<"CreatePenIndirect">(kDrawing, nullptr, &::CreatePenIndirect),
      Takes<"CreateSolidBrush">(kDrawing, nullptr, &::CreateSolidBrush),
      Takes<"LoadBitmapW">(kDrawing, nullptr, &::LoadBitmapW),
      Takes<"GetDC">(kDrawing, nullptr, &::GetDC),
      Takes<"GetDCEx">(kDrawing, nullptr, &::GetDCEx),
      Takes<"GetWindowDC">(kDrawing, nullptr, &::GetWindowDC),
      Fails<"BeginPaint">(kDrawing, nullptr, &::BeginPaint),
      Fails<"SelectObject">(kDrawing, nullptr, &::SelectObject),
      Fails<"GetFontData">(kDrawing, GDI_ERROR, &::GetFontData),
      Fails<"GetTextMetricsW">(kDrawing, FALSE, &::GetTextMetricsW),
      Fails<"GetTextFaceW">(kDrawing, 0, &::GetTextFaceW),
      Fails<"BitBlt">(kDrawing, FALSE, &::BitBlt),
      GivesBack<"DeleteObject">(kDrawing, &::DeleteObject),
      GivesBack<"DeleteDC">(kDrawing, &::DeleteDC),
      GivesBack<"ReleaseDC">(kDrawing, &::ReleaseDC),

      Fails<"CreateWindowExW">(kWindows, nullptr, &::CreateWindowExW),
      Fails<"CreateDialogIndirectParamW">(kWindows, nullptr, &::CreateDialogIndirectParamW),
      Fails<"SetWindowsHookExW">(kWindows, nullptr, &::SetWindowsHookExW),
      Fails<"LoadResource">(kWindows, nullptr, &::LoadResource),

      {"GetTickCount64", reinterpret_cast<void*>(&TickCount)},
      {"GetDeviceCaps", reinterpret_cast<void*>(&DeviceCaps)},
  };
  for (const Hook& hook : hooks) {
    EXPECT_LT(0, ReplaceImports(hook.name, hook.replacement)) << hook.name;
  }
}

void Install() {
  static const bool installed = (InstallHooks(), true);
  static_cast<void>(installed);
}

}  // namespace

const char* NameOf(Resource resource) {
  static constexpr const char* kNames[] = {"files", "memory", "drawing", "windows"};
  return kNames[static_cast<std::size_t>(resource)];
}

SystemFaults::SystemFaults(Resource resource, int nth)
    : resource_(resource), nth_(nth), thread_(::GetCurrentThreadId()) {
  Install();
  g_faults = this;
}

SystemFaults::~SystemFaults() { g_faults = nullptr; }

bool SystemFaults::Refuses(Resource resource, const char* call) {
  if (resource != resource_ || ::GetCurrentThreadId() != thread_ || ++calls_ != nth_) return false;
  failed_ = call;
  return true;
}

void HaveScreenChanged() {
  Install();
  ++g_screen_changes;
  g_is_change_seen = false;
}

Holdings HeldByLibrary() {
  Install();
  return {HeldOf(Resource::kFiles).Count(), HeldOf(Resource::kMemory).Count(),
          HeldOf(Resource::kDrawing).Count()};
}

}  // namespace tavix::test
