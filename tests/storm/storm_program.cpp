// Random calls for as long as one likes:  storm [CALLS [SEED]]
//
// A million calls and a seed of the clock without arguments. Ends at the first promise that does
// not hold, with the calls that led to it and the seed that repeats it.
#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "tests/storm/storm.h"
#include "tests/support/private_folder.h"

namespace {

const tavix::storm::Storm* running = nullptr;

// Says where a crash is, as module and offset, and what led to it.
LONG CALLBACK OnCrash(EXCEPTION_POINTERS* exception) {
  if (exception->ExceptionRecord->ExceptionCode != EXCEPTION_ACCESS_VIOLATION) {
    return EXCEPTION_CONTINUE_SEARCH;
  }
  auto* address = static_cast<char*>(exception->ExceptionRecord->ExceptionAddress);
  MEMORY_BASIC_INFORMATION memory{};
  ::VirtualQuery(address, &memory, sizeof(memory));
  std::array<char, MAX_PATH> module{};
  auto* base = static_cast<char*>(memory.AllocationBase);
  ::GetModuleFileNameA(reinterpret_cast<HMODULE>(base), module.data(),
                       static_cast<DWORD>(module.size()));
  std::printf("crash in %s at 0x%llx\n%s\n", module.data(),
              static_cast<unsigned long long>(address - base),
              running ? running->Recent().c_str() : "");
  std::fflush(stdout);
  ::ExitProcess(3);
}

}  // namespace

int main(int argc, char** argv) {
  ::AddVectoredExceptionHandler(1, OnCrash);
  const long calls = argc > 1 ? std::atol(argv[1]) : 1000000;
  constexpr long kCallsOfASeed = 20000;
  const auto clock = std::chrono::system_clock::now().time_since_epoch().count();
  auto seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : static_cast<std::uint64_t>(clock);
  const tavix::test::PrivateFolder data(L"ROVCOND_DATA_FOLDER");
  const tavix::test::PrivateFolder root(L"CE_DEVICE_ROOT");
  for (long done = 0; done < calls; done += kCallsOfASeed, ++seed) {
    std::printf("seed %llu, %ld of %ld calls\n", static_cast<unsigned long long>(seed), done,
                calls);
    std::fflush(stdout);
    try {
      const long left = std::min(kCallsOfASeed, calls - done);
      tavix::storm::Run(seed, static_cast<int>(left), [](const auto* storm) { running = storm; });
    } catch (const tavix::storm::Broken& broken) {
      std::printf("%s\n", broken.what());
      return 1;
    }
  }
  std::printf("%ld calls, every promise held\n", calls);
  return 0;
}
