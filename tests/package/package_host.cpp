// The smallest host: makes an instance, enters a point and asks for it again. A window is not
// needed for that. Exits with 0 when the point came back.

#include <tavix/tavix.h>

#include <cstdio>

static_assert(__cplusplus >= 201703L, "the package's CMake target asks for C++17");

namespace {

int Fail(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  return 1;
}

}  // namespace

int main() {
  Tavix_SetIdx(3);
  int index = -1;
  Tavix_GetIdx(&index);
  if (index != 3) return Fail("the instance is not current");
  if (Tavix_Crt() != 0) return Fail("the instance cannot be made");

  if (Tavix_EntPnt(7, 101, CString(L"BM-1"), -35123.456, 12345.678) != 0) {
    return Fail("the point cannot be entered");
  }
  double x = 0;
  double y = 0;
  if (Tavix_GetPntCrd(7, &x, &y) != 0 || x != -35123.456 || y != 12345.678) {
    return Fail("the point's coordinates did not come back");
  }
  int number = 0;
  CString name;
  if (Tavix_GetPntNoNam(7, &number, &name) != 0 || number != 101 || name != L"BM-1") {
    return Fail("the point's number and name did not come back");
  }
  if (Tavix_GetPntCrd(8, &x, &y) != -1) return Fail("a point that is not there was found");
  return Tavix_Del() == 0 ? 0 : Fail("the instance cannot be destroyed");
}
