// Two programs of one user, each with an instance 0: neither touches the figures of the other.
#include <tavix/tavix.h>

#include <optional>

#include "tests/figure/second_program.h"
#include "tests/platform/support/environment_variable.h"
#include "tests/support/figure_bytes.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

const std::string kOwnRecord = WordBytes(1, 101, 2, 0, 0, 0);
const std::string kOwnPoints = NumberBytes(0, 0, 1, 1);
const std::string kOtherRecord = WordBytes(2, 101, 2, 0, 0, 0);
const std::string kOtherPoints = NumberBytes(2, 2, 3, 3);

// The files of instance 0 in a root folder.
struct Files {
  std::string index;
  std::string coordinates;

  friend bool operator==(const Files&, const Files&) = default;
};

Files FilesIn(const std::filesystem::path& root) {
  return {ReadBytes(root / L"FIG0.DAT"), ReadBytes(root / L"FIG0.XY")};
}

void AddOwnFigure() {
  ASSERT_EQ(0, Tavix_FigStt(1, 101));
  ASSERT_EQ(0, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
  ASSERT_EQ(0, Tavix_FigEnd());
}

void HaveFigureAdded(SecondProgram& other) {
  ASSERT_EQ("0", other.Ask("create"));
  ASSERT_EQ("0", other.Ask("start figure 2"));
  ASSERT_EQ("0", other.Ask("add line"));
}

class ProgramsWithoutACommonRoot : public LibraryTest {
 protected:
  static std::filesystem::path OwnRoot() {
    return std::filesystem::path(AfxMapDevicePath(L"\\").GetString()).parent_path();
  }

 private:
  EnvironmentVariable no_root_{L"CE_DEVICE_ROOT", nullptr};
};

TEST_F(ProgramsWithoutACommonRoot, HaveFiguresOfTheirOwn) {
  ASSERT_EQ(0, Tavix_Crt());
  AddOwnFigure();
  SecondProgram other;
  HaveFigureAdded(other);
  const Files own{kOwnRecord, kOwnPoints};
  EXPECT_EQ(own, FilesIn(OwnRoot()));
  EXPECT_EQ((Files{kOtherRecord, kOtherPoints}), FilesIn(other.Root()));
  EXPECT_EQ("0", other.Ask("clear"));
  EXPECT_EQ(own, FilesIn(OwnRoot()));
  EXPECT_EQ("0", other.Ask("delete"));
  EXPECT_EQ(own, FilesIn(OwnRoot()));
}

TEST_F(ProgramsWithoutACommonRoot, TakeTheirFolderWithThem) {
  SecondProgram other;
  HaveFigureAdded(other);
  const std::filesystem::path root = other.Root();
  WriteBytes(root / L"something else.txt", "of the program's own");
  ASSERT_EQ("0", other.Ask("delete"));
  ASSERT_TRUE(std::filesystem::exists(root));
  EXPECT_TRUE(other.EndByItself());
  EXPECT_FALSE(std::filesystem::exists(root));
}

TEST_F(ProgramsWithoutACommonRoot, RemoveWhatOneLeftThatWasEndedByForce) {
  ASSERT_EQ(0, Tavix_Crt());
  AddOwnFigure();
  SecondProgram living;
  HaveFigureAdded(living);
  SecondProgram killed;
  HaveFigureAdded(killed);
  const std::filesystem::path left = killed.Root();
  killed.EndByForce();
  ASSERT_EQ((Files{kOtherRecord, kOtherPoints}), FilesIn(left));
  std::filesystem::create_directories(left / L"folder" / L"folder");
  WriteBytes(left / L"folder" / L"read-only", "text");
  ::SetFileAttributesW((left / L"folder" / L"read-only").c_str(), FILE_ATTRIBUTE_READONLY);

  SecondProgram next;
  ASSERT_FALSE(next.Root().empty());
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_EQ((Files{kOwnRecord, kOwnPoints}), FilesIn(OwnRoot())) << "this one runs";
  EXPECT_EQ((Files{kOtherRecord, kOtherPoints}), FilesIn(living.Root())) << "and so does that";
}

// Another program has the number now that the one had which left the folder.
TEST_F(ProgramsWithoutACommonRoot, RemoveAFolderWithoutAnOwnerWhateverItsNumber) {
  const std::filesystem::path left = OwnRoot().wstring() + L"-7";
  std::filesystem::create_directory(left);
  WriteBytes(left / L"FIG0.DAT", kOtherRecord);
  SecondProgram other;
  ASSERT_FALSE(other.Root().empty());
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_TRUE(std::filesystem::exists(OwnRoot()));
}

TEST_F(ProgramsWithoutACommonRoot, LeaveAloneWhatElseLiesThere) {
  const std::filesystem::path parent = OwnRoot().parent_path();
  const std::filesystem::path folder = parent / L"a test's own folder";
  std::filesystem::create_directory(folder);
  WriteBytes(parent / L"process-a test's own file", "text");
  SecondProgram other;
  ASSERT_FALSE(other.Root().empty());
  EXPECT_TRUE(std::filesystem::remove(folder));
  EXPECT_TRUE(std::filesystem::remove(parent / L"process-a test's own file"));
}

class ProgramsWithOneRoot : public LibraryTest {
 protected:
  void SetUp() override {
    other_.emplace();
    HaveFigureAdded(*other_);
    ASSERT_EQ(others_, FilesIn(DeviceRoot()));
    ASSERT_EQ(0, Tavix_Crt());
  }

  void TearDown() override {
    LibraryTest::TearDown();
    other_.reset();
  }

  std::optional<SecondProgram> other_;
  const Files others_{kOtherRecord, kOtherPoints};
};

TEST_F(ProgramsWithOneRoot, OnlyTheFirstHasFiguresAndTheOtherSaysSo) {
  const double places[] = {0.0, 1.0};
  EXPECT_EQ(-1, Tavix_FigStt(1, 101));
  EXPECT_EQ(-1, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(-1, Tavix_FigMdlCir(0.0, 0.0, 1.0));
  EXPECT_EQ(-1, Tavix_FigMdlPly(2, places, places));
  EXPECT_EQ(-1, Tavix_FigMdlPly(0, nullptr, nullptr));
  EXPECT_EQ(-1, Tavix_FigMdlArc(0.0, 0.0, 6.0, 0.0, 50.0));
  EXPECT_EQ(-1, Tavix_FigMdlClo(0.0, 0.0, 35.0, 5.0, 160.0, 200.0, 140.0));
  EXPECT_EQ(-1, Tavix_FigEnd());
  EXPECT_EQ(-1, Tavix_DelFig(2));
  EXPECT_EQ(-1, Tavix_DrwClr());
  EXPECT_EQ(others_, FilesIn(DeviceRoot()));
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_EQ(others_, FilesIn(DeviceRoot()));
}

TEST_F(ProgramsWithOneRoot, HaveAllElseOfTheirOwn) {
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", 1.0, 2.0));
  double x = 0.0;
  double y = 0.0;
  EXPECT_EQ(0, Tavix_GetPntCrd(1, &x, &y));
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  AddOwnFigure();
  EXPECT_EQ(kOwnRecord, ReadBytes(IndexFile(1))) << "nobody else has an instance 1";
}

TEST_F(ProgramsWithOneRoot, GetFiguresByClearingWhenTheOtherHasGone) {
  EXPECT_EQ("0", other_->Ask("delete"));
  EXPECT_EQ(-1, Tavix_FigStt(1, 101)) << "not by itself";
  ASSERT_EQ(0, Tavix_DrwClr());
  AddOwnFigure();
  EXPECT_EQ((Files{kOwnRecord, kOwnPoints}), FilesIn(DeviceRoot()));
  EXPECT_EQ("0", other_->Ask("create"));
  EXPECT_EQ("-1", other_->Ask("add line")) << "now this one has them";
  EXPECT_EQ((Files{kOwnRecord, kOwnPoints}), FilesIn(DeviceRoot()));
}

TEST_F(ProgramsWithOneRoot, MayTakeTheFilesOfOneThatWasEndedByForce) {
  other_->EndByForce();
  EXPECT_EQ(others_, FilesIn(DeviceRoot())) << "left behind";
  ASSERT_EQ(0, Tavix_DrwClr());
  AddOwnFigure();
  EXPECT_EQ((Files{kOwnRecord, kOwnPoints}), FilesIn(DeviceRoot()));
}

}  // namespace
}  // namespace tavix::test
