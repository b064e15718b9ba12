// Calls of the object store in any order: it does what the plain model does.

#include "fuzzers/fuzz_input.h"
#include "tests/platform/objectstore/store_pair.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tavix::fuzz::FuzzInput input(data, size);
  const bool descending = input.Coin();
  const bool unknown_first = input.Coin();
  tavix::StorePair pair([&] { return input.Take<std::uint8_t>(); }, descending, unknown_first);
  // The model sorts all of its records at each step.
  for (int steps = 0; steps < 300 && !input.IsEmpty(); ++steps) pair.Step();
  pair.CheckEverything();
  return 0;
}
