// What lies beside a test program.
#pragma once

#include <windows.h>

#include <filesystem>

namespace tavix::test {

// The path of a file in the folder of the program that runs; it may lead out of it.
inline std::filesystem::path BesideProgram(const std::filesystem::path& name) {
  constexpr DWORD kLongest = 32768;  // characters of any path
  std::wstring program(kLongest, L'\0');
  program.resize(::GetModuleFileNameW(nullptr, program.data(), kLongest));
  return std::filesystem::path(program).parent_path() / name;
}

}  // namespace tavix::test
