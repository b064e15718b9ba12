#include "tests/support/redraw_count.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

namespace tavix::test {
namespace {

// The place where a loaded module keeps the address of a function that it imports, or null.
void* FindImport(HMODULE module, const char* name) {
  auto* const base = reinterpret_cast<std::byte*>(module);
  const auto at = [base](auto place) { return base + place; };
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(at(dos->e_lfanew));
  const auto& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(imports.VirtualAddress));
       library->Name != 0; ++library) {
    auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(at(library->OriginalFirstThunk));
    auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(at(library->FirstThunk));
    for (; names->u1.AddressOfData != 0; ++names, ++entry) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* const import =
          reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(names->u1.AddressOfData));
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return entry;
    }
  }
  return nullptr;
}

}  // namespace

RedrawCount::RedrawCount()
    : entry_(static_cast<Function*>(FindImport(::GetModuleHandleW(L"tavix.dll"), "FillRect"))) {
  EXPECT_NE(nullptr, entry_) << "tavix.dll does not import FillRect";
  if (!entry_) return;
  active_ = this;
  original_ = *entry_;
  Redirect(entry_, &Counted);
}

RedrawCount::~RedrawCount() {
  if (entry_) Redirect(entry_, original_);
  active_ = nullptr;
}

int RedrawCount::Take() { return std::exchange(count_, 0); }

int WINAPI RedrawCount::Counted(HDC dc, const RECT* rect, HBRUSH brush) {
  if (::GetObjectType(dc) == OBJ_MEMDC) ++active_->count_;
  return active_->original_(dc, rect, brush);
}

void RedrawCount::Redirect(Function* entry, Function function) {
  DWORD protection = 0;
  ::VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &protection);
  *entry = function;
  ::VirtualProtect(entry, sizeof *entry, protection, &protection);
}

}  // namespace tavix::test
