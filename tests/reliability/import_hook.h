// The calls of the library's modules to the system, led elsewhere.
#pragma once

namespace tavix::test {

// What all modules of the library import as `name` goes to `replacement` from now on, until the
// process ends. The number of places that were changed: 0 when none of them calls it.
int ReplaceImports(const char* name, void* replacement);

}  // namespace tavix::test
