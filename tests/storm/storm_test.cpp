#include "tests/storm/storm.h"

#include "tests/support/library_test.h"

namespace {

using tavix::storm::Broken;

class RandomCalls : public tavix::test::LibraryTest, public testing::WithParamInterface<int> {};

TEST_P(RandomCalls, KeepEveryPromise) {
  constexpr int kSteps = 20000;
  try {
    tavix::storm::Run(static_cast<std::uint64_t>(GetParam()), kSteps);
  } catch (const Broken& broken) {
    FAIL() << broken.what();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCalls, testing::Range(1, 6));

}  // namespace
