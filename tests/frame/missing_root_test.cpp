// An instance whose figure files cannot be made: it has no figures, and everything else.
#include <tavix/tavix.h>

#include <filesystem>
#include <optional>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class MissingRoot : public LibraryTest {
 protected:
  // From here on the device's root folder is one that is not there.
  void TakeRootAway() {
    root_.emplace(L"CE_DEVICE_ROOT");
    std::filesystem::remove(root_->Path());
  }

  void TearDown() override {
    LibraryTest::TearDown();
    root_.reset();
  }

 private:
  std::optional<PrivateFolder> root_;
};

TEST_F(MissingRoot, EndsTheClearingOfTheDrawingAtTheFigures) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  TakeRootAway();
  EXPECT_EQ(-1, Tavix_DrwClr());
  double x = 0.0;
  double y = 0.0;
  EXPECT_EQ(-1, Tavix_GetPntCrd(1, &x, &y)) << "emptied before";
  EXPECT_EQ(-3, Tavix_DelEntLin(1, 2)) << "emptied before";
}

// Errors of writing are not reported, and that the files are not there is one.
TEST_F(MissingRoot, LosesFiguresWithoutAWord) {
  TakeRootAway();
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(0, Tavix_FigStt(1, 101));
  EXPECT_EQ(0, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(0, Tavix_FigEnd());
  EXPECT_EQ(-1, Tavix_DelFig(1)) << "there are none";
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  EXPECT_EQ(0, Tavix_Del());
}

}  // namespace
}  // namespace tavix::test
