#include "tests/draw/group/group_test.h"

#include <tavix/tavix.h>

namespace tavix::test {

int GroupTest::Ink(int row, int column) {
  int ink = -1;
  EXPECT_EQ(0, Tavix_GrpGet(row, column, &ink));
  EXPECT_TRUE(ink == 0 || ink == 1) << ink;
  return ink;
}

Picture GroupTest::Read(int height, int width) {
  constexpr std::uint32_t kWhite = 0xFFFFFF;
  Picture picture{width, height, {}};
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      picture.pixels.push_back(Ink(row, column) ? 0 : kWhite);
    }
  }
  return picture;
}

Picture GroupTest::Build(int height, int width) {
  EXPECT_EQ(0, Tavix_GrpStt(height, width));
  return Read(height, width);
}

}  // namespace tavix::test
