#include "view/side_projection.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavix {
namespace {

// One pixel may be lost in the projection, which the way back stretches by up to 2.3, and one more
// in the way back itself.
constexpr int kLostOnTheWay = 3;

// The height of the buffer only shifts the picture: every one undoes its own projection.
TEST(SideProjection, IsUndoneByItsInverse) {
  for (const int height : {1, 99, 180, 241, 1024}) {
    const SideProjection projection(height);
    for (int x = -50; x < 1300; x += 7) {
      for (int y = -50; y < 1100; y += 7) {
        const ScreenPoint back = projection.Unproject(projection.Project({x, y}));
        ASSERT_LE(std::abs(back.x - x), kLostOnTheWay) << x << ", " << y << " of " << height;
        ASSERT_LE(std::abs(back.y - y), kLostOnTheWay) << x << ", " << y << " of " << height;
      }
    }
  }
}

TEST(SideProjection, UndoesItsInverse) {
  for (const int height : {1, 99, 180, 241, 1024}) {
    const SideProjection projection(height);
    for (int x = -50; x < 1300; x += 7) {
      for (int y = -50; y < 1100; y += 7) {
        const ScreenPoint back = projection.Project(projection.Unproject({x, y}));
        ASSERT_LE(std::abs(back.x - x), kLostOnTheWay) << x << ", " << y << " of " << height;
        ASSERT_LE(std::abs(back.y - y), kLostOnTheWay) << x << ", " << y << " of " << height;
      }
    }
  }
}

}  // namespace
}  // namespace tavix
