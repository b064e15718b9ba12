#include "tests/reliability/import_hook.h"

#include <windows.h>

#include <cstdint>
#include <cstring>

namespace tavix::test {
namespace {

template <class T>
T* At(HMODULE module, std::uint32_t offset) {
  return reinterpret_cast<T*>(reinterpret_cast<unsigned char*>(module) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* ImportsOf(HMODULE module) {
  const auto* dos = At<const IMAGE_DOS_HEADER>(module, 0);
  const auto* headers =
      At<const IMAGE_NT_HEADERS>(module, static_cast<std::uint32_t>(dos->e_lfanew));
  return At<const IMAGE_IMPORT_DESCRIPTOR>(
      module, headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
}

void Overwrite(ULONGLONG* place, void* replacement) {
  DWORD protection = 0;
  ::VirtualProtect(place, sizeof *place, PAGE_READWRITE, &protection);
  *place = reinterpret_cast<ULONGLONG>(replacement);
  ::VirtualProtect(place, sizeof *place, protection, &protection);
}

int ReplaceIn(HMODULE module, const char* name, void* replacement) {
  int replaced = 0;
  for (const auto* from = ImportsOf(module); from->Name != 0; ++from) {
    const auto* names = At<const IMAGE_THUNK_DATA64>(module, from->OriginalFirstThunk);
    auto* places = At<IMAGE_THUNK_DATA64>(module, from->FirstThunk);
    for (; names->u1.AddressOfData != 0; ++names, ++places) {
      if (IMAGE_SNAP_BY_ORDINAL64(names->u1.Ordinal)) continue;
      const auto* imported = At<const IMAGE_IMPORT_BY_NAME>(
          module, static_cast<std::uint32_t>(names->u1.AddressOfData));
      if (std::strcmp(imported->Name, name) != 0) continue;
      Overwrite(&places->u1.Function, replacement);
      ++replaced;
    }
  }
  return replaced;
}

}  // namespace

int ReplaceImports(const char* name, void* replacement) {
  int replaced = 0;
  for (const wchar_t* const module :
       {L"tavix.dll", L"framework.dll", L"rovcond.dll", L"tdialog.dll"}) {
    replaced += ReplaceIn(::GetModuleHandleW(module), name, replacement);
  }
  return replaced;
}

}  // namespace tavix::test
