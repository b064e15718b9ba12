// What is not given back is seen.
#include "tests/storm/counts.h"

#include <tavix/tavix.h>

#include <fstream>

#include "tests/support/message_pump.h"
#include "tests/support/plot_test.h"

namespace tavix::storm {
namespace {

using test::DrainMessages;

class StormCounts : public test::PlotTest {
 protected:
  // A whole life, so that what is made once in a process is there.
  void SetUp() override {
    MakePlot(200, 200);
    ASSERT_EQ(0, Tavix_Del());
    DrainMessages();
    before_ = CountAll();
  }

  [[nodiscard]] std::string Left() const { return Difference(before_, CountAll()); }

  Counts before_;
};

TEST_F(StormCounts, AreTheSameAfterALife) {
  MakePlot(200, 200);
  ASSERT_EQ(0, Tavix_Del());
  DrainMessages();
  EXPECT_EQ("", Left());
}

TEST_F(StormCounts, SeeTheWindowAndTheFilesOfAnInstanceThatStays) {
  MakePlot(200, 200);
  const std::string left = Left();
  for (const char* what : {"file handles", "GDI objects", "windows", "files: HANREI.DAT before"}) {
    EXPECT_NE(std::string::npos, left.find(what)) << left;
  }
}

TEST_F(StormCounts, SeeMemoryBeyondWhatTheFrameworkMayKeep) {
  ASSERT_EQ(0, Tavix_Crt());
  for (int key = 0; key < 1000; ++key) Tavix_EntPntMem(key, L"a memo of its own");
  const std::string left = Left();
  EXPECT_NE(std::string::npos, left.find("blocks of memory")) << left;
}

TEST_F(StormCounts, SeeAFileThatStays) {
  std::ofstream(FileBeside()) << "left";
  EXPECT_EQ("files: HANREI.DAT before, HANREI.DAT HANREI.NEW after\n", Left());
}

}  // namespace
}  // namespace tavix::storm
