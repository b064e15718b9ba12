#include "tests/runner/system_facts.h"

#include <windows.h>

#include <array>
#include <iomanip>
#include <sstream>

#include "tests/runner/utf8.h"

namespace tavix::runner {
namespace {

constexpr wchar_t kVersionKey[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

template <class Function>
Function* CallOf(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(library), name)));
}

// A value of the system's description of itself; empty when there is none.
std::string VersionText(const wchar_t* value) {
  std::array<wchar_t, 100> text{};
  DWORD size = sizeof(text);
  const LSTATUS status = ::RegGetValueW(HKEY_LOCAL_MACHINE, kVersionKey, value, RRF_RT_REG_SZ,
                                        nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? Utf8(text.data()) : "";
}

DWORD VersionNumber(const wchar_t* value) {
  DWORD number = 0;
  DWORD size = sizeof(number);
  ::RegGetValueW(HKEY_LOCAL_MACHINE, kVersionKey, value, RRF_RT_REG_DWORD, nullptr, &number, &size);
  return number;
}

// GetVersionEx answers with the version that a program's manifest names; this is the real one.
std::string Windows() {
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof(version);
  if (const auto ask = CallOf<LONG WINAPI(OSVERSIONINFOW*)>(L"ntdll.dll", "RtlGetVersion")) {
    ask(&version);
  }
  std::ostringstream text;
  text << version.dwMajorVersion << '.' << version.dwMinorVersion << '.' << version.dwBuildNumber
       << '.' << VersionNumber(L"UBR") << " (" << VersionText(L"ProductName");
  const std::string release = VersionText(L"DisplayVersion");
  text << (release.empty() ? "" : " ") << release << ")";
  if (const auto ask = CallOf<const char * CDECL()>(L"ntdll.dll", "wine_get_version")) {
    text << ", through Wine " << ask();
  }
  return text.str();
}

std::string Now() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  TIME_ZONE_INFORMATION zone = {};
  const bool summer = ::GetTimeZoneInformation(&zone) == TIME_ZONE_ID_DAYLIGHT;
  const LONG minutes = -(zone.Bias + (summer ? zone.DaylightBias : zone.StandardBias));
  std::ostringstream text;
  text << std::setfill('0') << now.wYear << '-' << std::setw(2) << now.wMonth << '-' << std::setw(2)
       << now.wDay << ' ' << std::setw(2) << now.wHour << ':' << std::setw(2) << now.wMinute
       << ", minutes ahead of universal time: " << minutes;
  return text.str();
}

std::string Screen() {
  const HDC screen = ::GetDC(nullptr);
  std::ostringstream text;
  text << ::GetDeviceCaps(screen, HORZRES) << " x " << ::GetDeviceCaps(screen, VERTRES)
       << " pixels, " << ::GetDeviceCaps(screen, BITSPIXEL) * ::GetDeviceCaps(screen, PLANES)
       << " bits, " << ::GetDeviceCaps(screen, LOGPIXELSX) << " DPI, "
       << ::GetSystemMetrics(SM_CMONITORS) << " monitors";
  ::ReleaseDC(nullptr, screen);
  if (::GetSystemMetrics(SM_REMOTESESSION)) text << ", a remote session";
  return text.str();
}

// The tests are programs that know nothing of DPI: Windows may show them another screen.
std::string ScreenItself() {
  const auto set = CallOf<DPI_AWARENESS_CONTEXT WINAPI(DPI_AWARENESS_CONTEXT)>(
      L"user32.dll", "SetThreadDpiAwarenessContext");
  if (!set) return "not known";
  const DPI_AWARENESS_CONTEXT before = set(DPI_AWARENESS_CONTEXT_SYSTEM_AWARE);
  std::string text = Screen();
  set(before);
  return text;
}

std::string TextSmoothing() {
  BOOL is_on = FALSE;
  UINT type = 0;
  UINT contrast = 0;
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &is_on, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type, 0);
  ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGCONTRAST, 0, &contrast, 0);
  const char* const name = type == FE_FONTSMOOTHINGCLEARTYPE  ? "ClearType"
                           : type == FE_FONTSMOOTHINGSTANDARD ? "standard"
                                                              : "unknown";
  std::ostringstream text;
  text << (is_on ? "on" : "off") << ", type " << type << " (" << name << "), contrast " << contrast;
  return text.str();
}

std::string Language() {
  ULONG count = 0;
  std::array<wchar_t, 200> names{};
  auto size = static_cast<ULONG>(names.size());
  if (!::GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, names.data(), &size)) {
    return "not known";
  }
  return Utf8(names.data());  // the first of the list
}

std::string Locale() {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> user{};
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> system{};
  ::GetUserDefaultLocaleName(user.data(), LOCALE_NAME_MAX_LENGTH);
  ::GetSystemDefaultLocaleName(system.data(), LOCALE_NAME_MAX_LENGTH);
  return Utf8(user.data()) + " of the user, " + Utf8(system.data()) + " of the system";
}

std::string CodePages() {
  return std::to_string(::GetACP()) + " Windows, " + std::to_string(::GetOEMCP()) + " OEM, " +
         std::to_string(::GetConsoleOutputCP()) + " console";
}

}  // namespace

std::vector<Fact> SystemFacts() {
  SYSTEM_INFO system = {};
  ::GetNativeSystemInfo(&system);
  return {{"Started", Now()},
          {"Windows", Windows()},
          {"Processors", std::to_string(system.dwNumberOfProcessors)},
          {"Screen for tests", Screen()},
          {"Screen itself", ScreenItself()},
          {"Text smoothing", TextSmoothing()},
          {"Language", Language()},
          {"Locale", Locale()},
          {"Code pages", CodePages()}};
}

}  // namespace tavix::runner
