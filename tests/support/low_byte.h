// Flags as old hosts pass them: a whole integer, of which the library reads the low byte.
#pragma once

namespace tavix::test {

// Calls an exported call that takes a BYTE first, with all of `flag` in the register, and `rest`.
template <class Function, class... Rest>
int CallWithWholeFlag(Function* call, int flag, Rest... rest) {
  return reinterpret_cast<int (*)(int, Rest...)>(reinterpret_cast<void*>(call))(flag, rest...);
}

}  // namespace tavix::test
