// All calls belong on one thread. Builds with assertions stop at one from another thread.
#include <tavix/tavix.h>

#include <thread>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class OtherThread : public LibraryTest {
 protected:
  void SetUp() override {
#ifdef NDEBUG
    GTEST_SKIP() << "only builds with assertions look at the thread (preset win64-debug)";
#endif
  }

  static void Ask() {
    std::thread([] { CurrentIndex(); }).join();
  }
};

TEST_F(OtherThread, IsStoppedWhileAnInstanceExists) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_DEATH(Ask(), "another thread");
}

// A host may take another thread once it has deleted what it created.
TEST_F(OtherThread, MayCallWhileThereAreNoInstances) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_Del());
  Ask();
  EXPECT_EQ(0, CurrentIndex());
}

}  // namespace
}  // namespace tavix::test
