#include "draw/drawing_way.h"

#include <gtest/gtest.h>

#include "tests/platform/support/environment_variable.h"

namespace tavix::test {
namespace {

TEST(DrawingWayOfTheEnvironment, IsWhatTheVariableNames) {
  EnvironmentVariable drawing(L"TAVIX_DRAWING", L"gdi");
  EXPECT_EQ(DrawingWay::kGdi, DrawingWayOfEnvironment());
  drawing.Set(L"fast");
  EXPECT_EQ(DrawingWay::kFast, DrawingWayOfEnvironment());
}

TEST(DrawingWayOfTheEnvironment, IsTheBuildsWithoutOneOfTheTwo) {
  EnvironmentVariable drawing(L"TAVIX_DRAWING", nullptr);
  const DrawingWay built = DrawingWayOfEnvironment();
  for (const wchar_t* value : {L"", L"GDI", L"gdi ", L"fast, please", L"0"}) {
    drawing.Set(value);
    EXPECT_EQ(built, DrawingWayOfEnvironment()) << value;
  }
}

}  // namespace
}  // namespace tavix::test
