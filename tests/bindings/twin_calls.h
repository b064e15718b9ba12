// A call of the C layer, and the call of tavix.dll behind it.
#pragma once

#include <tavix/tavix.h>
#include <tavix/tavix_c.h>

#include <array>

namespace tavix::test {

// Places that calls write to, by type.
struct Places {
  std::array<int, 9> ints{};
  std::array<short, 9> shorts{};
  std::array<double, 9> doubles{};
  wchar_t text[8] = L"";
  int length = 0;
  CString string;
};

// Both with the same harmless arguments: keys and numbers 1, flags off, no texts, no arrays.
struct TwinCall {
  const char* name;
  bool gives_window;  // then 1 stands for a window and 0 for null
  int (*c)(Places& places, int instance);
  int (*plain)(Places& places, int instance);
};

// The C call with one of its outputs null.
struct NullCall {
  const char* name;
  const char* output;
  int (*c)(Places& places, int instance);
};

}  // namespace tavix::test
