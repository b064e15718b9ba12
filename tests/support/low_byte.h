// Flags as old hosts pass them: a whole integer, of which the library reads the low byte.
#pragma once

namespace tavix::test {

// Calls an exported call that takes a BYTE with all of `flag` in the register.
template <class Function>
int CallWithWholeFlag(Function* call, int flag) {
  return reinterpret_cast<int (*)(int)>(reinterpret_cast<void*>(call))(flag);
}

}  // namespace tavix::test
