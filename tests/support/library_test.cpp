#include "tests/support/library_test.h"

#include <tavix/tavix.h>

namespace tavix::test {

LibraryTest::LibraryTest() { Tavix_SetIdx(0); }

void LibraryTest::TearDown() {
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    Tavix_Del();
  }
}

int LibraryTest::CurrentIndex() {
  int index = -1;
  Tavix_GetIdx(&index);
  return index;
}

int LibraryTest::Angle() {
  int angle = -1;
  EXPECT_EQ(0, Tavix_GetAng(&angle));
  return angle;
}

void InstanceTest::SetUp() { ASSERT_EQ(0, Tavix_Crt()); }

}  // namespace tavix::test
