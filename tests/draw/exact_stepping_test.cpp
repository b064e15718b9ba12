// Every result is compared bit by bit with the loop that the function stands for.
#include "draw/exact_stepping.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tavix {
namespace {

using Steps = std::vector<GroundStep>;

GroundPoint StepPlainly(GroundPoint at, const Steps& steps, std::int64_t rounds) {
  for (; rounds > 0; --rounds) {
    for (const GroundStep& step : steps) at = at + step;
  }
  return at;
}

bool SameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

::testing::AssertionResult StepsAsThePlainLoop(GroundPoint at, const Steps& steps,
                                               std::int64_t rounds) {
  const GroundPoint expected = StepPlainly(at, steps, rounds);
  const GroundPoint actual = StepExactly(at, steps, rounds);
  if (SameBits(actual.north, expected.north) && SameBits(actual.east, expected.east)) {
    return ::testing::AssertionSuccess();
  }
  ::testing::AssertionResult failure = ::testing::AssertionFailure();
  failure << std::hexfloat << "from " << at.north << ", " << at.east << " by";
  for (const GroundStep& step : steps) failure << " (" << step.dx << ", " << step.dy << ")";
  return failure << ", " << rounds << " rounds: " << actual.north << ", " << actual.east
                 << " and not " << expected.north << ", " << expected.east;
}

TEST(StepExactly, NoRoundsAndNoStepsStayInPlace) {
  EXPECT_TRUE(StepsAsThePlainLoop({3, 4}, {{1, 1}}, 0));
  EXPECT_TRUE(StepsAsThePlainLoop({3, 4}, {{1, 1}}, -5));
  EXPECT_TRUE(StepsAsThePlainLoop({3, 4}, {}, 1000));
}

TEST(StepExactly, HandPickedStarts) {
  constexpr double kUlp = 0x1p-52;  // of numbers from 1 to 2
  constexpr double kLeast = std::numeric_limits<double>::denorm_min();
  const struct {
    const char* what;
    double at;
    std::vector<double> steps;
  } rows[] = {
      {"whole numbers", 0, {1, 2}},
      {"across many powers of two", 1, {0.1, 0.3}},
      {"half a spacing: ties to even", 1, {kUlp / 2}},
      {"half a spacing from an odd place", 1 + kUlp, {kUlp / 2}},
      {"one and a half spacings", 1, {1.5 * kUlp}},
      {"two ties in a round", 1, {1.5 * kUlp, 2.5 * kUlp}},
      {"ties that alternate", 1 + kUlp, {1.5 * kUlp, kUlp, 0.5 * kUlp}},
      {"just above half a spacing", 1, {kUlp / 2 * (1 + kUlp)}},
      {"just below half a spacing", 1, {kUlp / 2 * (1 - kUlp / 2)}},
      {"far below the spacing", 1e9, {1e-12}},
      {"up to a power of two", 2 - 40 * kUlp, {kUlp}},
      {"tie at a power of two", 2 - 8 * kUlp, {0.5 * kUlp, 0.75 * kUlp}},
      {"down through zero", 1e-3, {-7e-6}},
      {"up through zero", -1, {1e-3, 2e-3}},
      {"onto zero exactly", -1, {0x1p-10}},
      {"down from a power of two", 1, {-kUlp / 4}},
      {"negative outward", -100, {-0.1}},
      {"from zero", 0, {1e-3, 2e-3}},
      {"from negative zero", -0.0, {0.0}},
      {"negative zero kept", -0.0, {-0.0}},
      {"zero steps", 12.5, {0.0, 0.0}},
      {"zero steps at zero", 0, {0.0, 0.0}},
      {"forth and back", 5, {0.1, -0.1}},
      {"forth and back around zero", 0, {0.1, -0.1}},
      {"forth and a little less back", 5, {0.3, -0.1}},
      {"least numbers", 0, {kLeast, 3 * kLeast}},
      {"out of the least numbers", std::numeric_limits<double>::min() - 900 * kLeast, {kLeast}},
      {"beyond the largest number", 1.7e308, {1e305}},
      {"infinite", std::numeric_limits<double>::infinity(), {1.0}},
      {"no number", std::nan(""), {1.0}},
  };
  for (const auto& row : rows) {
    Steps steps;
    for (const double step : row.steps) steps.push_back({step, -step});
    for (const std::int64_t rounds : {1, 2, 3, 15, 16, 17, 18, 33, 100, 1001, 20000}) {
      EXPECT_TRUE(StepsAsThePlainLoop({row.at, row.at}, steps, rounds)) << row.what;
    }
  }
}

// Starts near powers of two, steps of a few spacings with exact halves and quarters: where the
// rounding is at its worst.
TEST(StepExactly, RandomStartsNearPowersOfTwo) {
  std::mt19937_64 random(71);
  const auto in = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  for (int i = 0; i < 6000; ++i) {
    const int power = in(-30, 30);
    const double spacing = std::ldexp(1.0, power - 52);
    const double sign = in(0, 1) == 0 ? 1.0 : -1.0;
    const double at = sign * (std::ldexp(1.0, power) + in(-2000, 2000) * spacing);
    Steps steps(static_cast<std::size_t>(in(1, 6)));
    const double direction = in(0, 1) == 0 ? 1.0 : -1.0;
    for (GroundStep& step : steps) {
      step.dx = direction * in(0, 40) / 8.0 * spacing;
      step.dy = (in(0, 9) == 0 ? -direction : direction) * in(0, 40) / 8.0 * spacing;
    }
    ASSERT_TRUE(StepsAsThePlainLoop({at, -at}, steps, in(0, 1500))) << i;
  }
}

TEST(StepExactly, RandomSurveyCoordinates) {
  std::mt19937_64 random(72);
  std::uniform_real_distribution<double> coordinate(-200000, 200000);
  std::uniform_real_distribution<double> exponent(-7, 3);
  for (int i = 0; i < 1500; ++i) {
    Steps steps(static_cast<std::size_t>(2 + 2 * (i % 3)));
    const double sign_x = i % 2 == 0 ? 1 : -1;
    const double sign_y = i % 4 < 2 ? 1 : -1;
    for (GroundStep& step : steps) {
      step = {sign_x * std::pow(10, exponent(random)), sign_y * std::pow(10, exponent(random))};
    }
    const std::int64_t rounds = std::uniform_int_distribution<std::int64_t>(0, 8000)(random);
    ASSERT_TRUE(StepsAsThePlainLoop({coordinate(random), coordinate(random)}, steps, rounds)) << i;
  }
}

TEST(StepExactly, GoingOnEqualsGoingAtOnce) {
  std::mt19937_64 random(73);
  const Steps steps{{4e-5 / 3, 2e-5 / 7}, {2e-5 / 3, 1e-5 / 7}};
  for (int i = 0; i < 200; ++i) {
    const auto first = std::uniform_int_distribution<std::int64_t>(0, 1LL << 40)(random);
    const auto second = std::uniform_int_distribution<std::int64_t>(0, 1LL << 40)(random);
    const GroundPoint start{-35000.123, 12.5};
    const GroundPoint at_once = StepExactly(start, steps, first + second);
    const GroundPoint in_two = StepExactly(StepExactly(start, steps, first), steps, second);
    ASSERT_TRUE(SameBits(at_once.north, in_two.north)) << first << ' ' << second;
    ASSERT_TRUE(SameBits(at_once.east, in_two.east)) << first << ' ' << second;
  }
}

// The plain loop would take centuries: these end at all because the work does not grow with the
// number of rounds.
TEST(StepExactly, AnyNumberOfRoundsIsPassedAtOnce) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const struct {
    const char* what;
    double at;
    std::vector<double> steps;
    double end;
  } rows[] = {{"stuck below the spacing", 1e9, {1e-12}, 1e9},
              {"grows until it is stuck", 1, {1}, 0x1p53},
              {"zero steps", 12.5, {0, 0}, 12.5},
              {"zero steps at zero", 0, {0, 0}, 0},
              {"forth and back", 5, {2, -2}, 5},
              {"forth and back around zero", 0, {2, -2}, 0},
              {"infinite", kInfinity, {1}, kInfinity},
              {"to infinity", 1e308, {1e308}, kInfinity}};
  for (const auto& row : rows) {
    Steps steps;
    for (const double step : row.steps) steps.push_back({step, -step});
    const GroundPoint end = StepExactly({row.at, -row.at}, steps, kMost);
    EXPECT_EQ(row.end, end.north) << row.what;
    EXPECT_EQ(-row.end, end.east) << row.what;
  }
  EXPECT_TRUE(std::isnan(StepExactly({std::nan(""), 0}, Steps{{1, 1}}, kMost).north));
}

}  // namespace
}  // namespace tavix
