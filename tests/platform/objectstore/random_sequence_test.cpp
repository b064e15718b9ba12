// Long random sequences of calls: the store must do what the plain model does.
#include <gtest/gtest.h>

#include <random>

#include "tests/platform/objectstore/store_pair.h"

namespace tavix {
namespace {

TEST(RandomSequence, TheStoreDoesWhatThePlainModelDoes) {
  for (const bool descending : {false, true}) {
    for (const bool unknown_first : {false, true}) {
      SCOPED_TRACE(testing::Message() << descending << unknown_first);
      std::mt19937 random(descending ? 11U : 12U);
      StorePair pair([&] { return static_cast<std::uint32_t>(random()); }, descending,
                     unknown_first);
      for (int step = 0; step < 1500; ++step) {
        ASSERT_NO_THROW(pair.Step()) << "step " << step;
        if (step % 250 == 249) {
          ASSERT_NO_THROW(pair.CheckEverything()) << "step " << step;
        }
      }
    }
  }
}

}  // namespace
}  // namespace tavix
