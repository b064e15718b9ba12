// The settings dialog over a legend whose file could not be read: OK saves over it when it changed
// something.
#include <tavix/tavix.h>

#include "tests/support/held_file.h"
#include "tests/support/legend_bytes.h"
#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

class SettingsOfHeldLegend : public SettingsTest {
 protected:
  // The file is held while the instance is made.
  void SetUp() override {
    WriteBytes(LegendFile(), own_bytes_);
    const HeldFile held(LegendFile(), GENERIC_READ, 0);
    SettingsTest::SetUp();
    SetTitle(1, L"点");
  }

  std::string FileAfterwards() {
    EXPECT_EQ(0, Tavix_Del());
    return ReadBytes(LegendFile());
  }

  const std::string own_bytes_ = LegendBytesWithHeader(" 25                       CHK");
};

TEST_F(SettingsOfHeldLegend, LeaveTheFileAloneWhenNothingIsChanged) {
  Confirm();
  EXPECT_EQ(own_bytes_, FileAfterwards());
}

TEST_F(SettingsOfHeldLegend, LeaveTheFileAloneWhenTheyAreCancelled) {
  Cancel({Choose(kTextSizes, 3)});
  EXPECT_EQ(own_bytes_, FileAfterwards());
}

TEST_F(SettingsOfHeldLegend, AreSavedWhenAnEntryIsChanged) {
  Confirm({Choose(kTextSizes, 3)});
  std::string wanted = BuiltInLegendBytes();
  wanted.replace(kLegendRecord, kLegendRecord, LegendRecord(" 1  2  6  1  1          0 chk"));
  EXPECT_EQ(wanted, FileAfterwards());
}

TEST_F(SettingsOfHeldLegend, AreSavedWhenTheRotationStepIsChanged) {
  Confirm({Type(kStep, L"30")});
  EXPECT_EQ(LegendBytesWithHeader(" 30                       CHK"), FileAfterwards());
}

}  // namespace
}  // namespace tavix::test
