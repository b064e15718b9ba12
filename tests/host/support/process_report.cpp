#include "tests/host/support/process_report.h"

#include <tlhelp32.h>

#include <array>
#include <filesystem>
#include <sstream>
#include <vector>

#include "tests/host/support/owned_handle.h"

namespace fieldhost {
namespace {

std::string Narrow(const wchar_t* text) { return std::filesystem::path(text).string(); }

struct WindowList {
  DWORD process;
  std::ostringstream text;
};

BOOL CALLBACK TellWindow(HWND window, LPARAM list_address) {
  auto& list = *reinterpret_cast<WindowList*>(list_address);
  DWORD process = 0;
  const DWORD thread = ::GetWindowThreadProcessId(window, &process);
  if (process != list.process) return TRUE;
  std::array<wchar_t, 100> class_name = {};
  std::array<wchar_t, 100> title = {};
  ::GetClassNameW(window, class_name.data(), static_cast<int>(class_name.size()));
  // Of another process this is what the system knows; no message is sent.
  ::GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
  list.text << "  window of thread " << thread << ": " << Narrow(class_name.data()) << " \""
            << Narrow(title.data()) << '"' << (::IsWindowVisible(window) ? "" : ", hidden")
            << (::IsWindowEnabled(window) ? "" : ", disabled") << '\n';
  return TRUE;
}

struct Module {
  std::string name;
  ULONG_PTR begin;
  ULONG_PTR end;
};

std::vector<Module> ModulesOf(DWORD process) {
  std::vector<Module> modules;
  const OwnedHandle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process));
  MODULEENTRY32W entry = {};
  entry.dwSize = sizeof(entry);
  for (BOOL more = ::Module32FirstW(snapshot.Get(), &entry); more;
       more = ::Module32NextW(snapshot.Get(), &entry)) {
    const auto begin = reinterpret_cast<ULONG_PTR>(entry.modBaseAddr);
    modules.push_back({Narrow(entry.szModule), begin, begin + entry.modBaseSize});
  }
  return modules;
}

std::vector<DWORD> ThreadsOf(DWORD process) {
  std::vector<DWORD> threads;
  const OwnedHandle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
  THREADENTRY32 entry = {};
  entry.dwSize = sizeof(entry);
  for (BOOL more = ::Thread32First(snapshot.Get(), &entry); more;
       more = ::Thread32Next(snapshot.Get(), &entry)) {
    if (entry.th32OwnerProcessID == process) threads.push_back(entry.th32ThreadID);
  }
  return threads;
}

// Where the code is, then what on the stack looks like a place to return to. Some of it may be left
// over; the order of the rest is true.
std::vector<ULONG_PTR> PlacesOf(HANDLE process, HANDLE thread) {
  std::vector<ULONG_PTR> places;
  CONTEXT context = {};
  context.ContextFlags = CONTEXT_CONTROL;
  ::SuspendThread(thread);
  if (::GetThreadContext(thread, &context)) {
#ifdef _WIN64
    const ULONG_PTR code = context.Rip;
    const ULONG_PTR stack = context.Rsp;
#else
    const ULONG_PTR code = context.Eip;
    const ULONG_PTR stack = context.Esp;
#endif
    std::vector<ULONG_PTR> words(1024);
    SIZE_T read = 0;
    while (!words.empty() &&
           !::ReadProcessMemory(process, reinterpret_cast<const void*>(stack), words.data(),
                                words.size() * sizeof(ULONG_PTR), &read)) {
      words.resize(words.size() / 2);  // less than that is left of the stack
    }
    places.push_back(code);
    places.insert(places.end(), words.begin(), words.end());
  }
  ::ResumeThread(thread);
  return places;
}

void TellThread(DWORD id, HANDLE process, const std::vector<Module>& modules,
                std::ostringstream& text) {
  constexpr int kMostPlaces = 24;
  text << "  thread " << id << ':' << std::hex;
  const OwnedHandle thread(::OpenThread(
      THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT | THREAD_QUERY_INFORMATION, FALSE, id));
  int listed = 0;
  for (const ULONG_PTR place : PlacesOf(process, thread.Get())) {
    for (const Module& module : modules) {
      if (place <= module.begin || place >= module.end || listed == kMostPlaces) continue;
      text << ' ' << module.name << "+0x" << place - module.begin;
      ++listed;
    }
  }
  text << std::dec << (listed == 0 ? " unknown\n" : "\n");
}

}  // namespace

std::string ReportOn(DWORD process) {
  WindowList list{process, {}};
  list.text << "process " << process << '\n';
  ::EnumWindows(TellWindow, reinterpret_cast<LPARAM>(&list));
  const OwnedHandle opened(
      ::OpenProcess(PROCESS_VM_READ | PROCESS_QUERY_INFORMATION, FALSE, process));
  const std::vector<Module> modules = ModulesOf(process);
  for (const DWORD thread : ThreadsOf(process)) {
    TellThread(thread, opened.Get(), modules, list.text);
  }
  return list.text.str();
}

}  // namespace fieldhost
