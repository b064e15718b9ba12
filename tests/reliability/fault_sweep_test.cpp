// A life of an instance in which one call to the system fails, once for each call: the step that
// meets the fault answers what its call documents, everything else works, and nothing is left.
#include <tavix/tavix.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <optional>

#include "tests/reliability/scripted_life.h"
#include "tests/reliability/system_faults.h"
#include "tests/reliability/whole_run.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"
#include "tests/support/plot_host.h"

namespace tavix::test {
namespace {

using Life = std::vector<LifeStep>;

// An exception is no answer of any call.
std::string RunGuarded(const std::function<std::string()>& run) {
  try {
    return run();
  } catch (const std::exception& exception) {
    return std::string("exception: ") + exception.what();
  } catch (CException*) {
    return "exception of the framework";
  }
}

struct FaultedLife {
  std::vector<std::string> answers;
  std::optional<std::size_t> faulted;  // the step that met the fault
  std::string call;
};

class FaultSweep : public LibraryTest {
 protected:
  FaultedLife Live(const Life& life, SystemFaults& faults) {
    WriteBytes(LegendFile(), BuiltInLegendBytes());
    if (faults.Of() == Resource::kMemory || faults.Of() == Resource::kDrawing) HaveScreenChanged();
    FaultedLife lived;
    for (std::size_t i = 0; i < life.size(); ++i) {
      const LifeStep& step = life[i];
      lived.answers.push_back(RunGuarded(step.run));
      if (lived.faulted || faults.Failed().empty()) continue;
      lived.faulted = i;
      lived.call = faults.Failed();
      met_ = lived.answers.back();
      // A button that could not paint itself does so when it is uncovered, not at a redraw.
      if (Tavix_Wnd())
        Tavix_Wnd()->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
      lived.answers.back() = RunGuarded(step.mend ? step.mend : step.run);
    }
    return lived;
  }

  // Lives once for every call that the life makes for the resource, or for every `stride`-th.
  void Sweep(const Life& life, Resource resource, int stride) {
    std::vector<std::string> expected;
    int calls = 0;
    for (int warm_up = 0; warm_up < 3; ++warm_up) {
      SystemFaults none(resource);
      expected = Live(life, none).answers;
      calls = none.Calls();
    }
    ASSERT_LT(0, calls);
    const std::string saved = ReadBytes(LegendFile());
    const Holdings held = HeldByLibrary();
    int swept = 0;
    for (int nth = 1; nth <= calls; nth += stride, ++swept) {
      SystemFaults faults(resource, nth);
      const FaultedLife lived = Live(life, faults);
      if (!lived.faulted) continue;  // a cache made it fewer calls
      const LifeStep& step = life[*lived.faulted];
      SCOPED_TRACE(testing::Message() << NameOf(resource) << " call " << nth << " of " << calls
                                      << ", " << lived.call << " in '" << step.name << "'");
      EXPECT_TRUE(met_ == expected[*lived.faulted] || step.MayAnswer(met_))
          << "it answers " << met_;
      for (std::size_t i = 0; i < life.size(); ++i) {
        EXPECT_EQ(expected[i], lived.answers[i]) << "in '" << life[i].name << "'";
      }
      EXPECT_EQ(nullptr, Tavix_Wnd());
      const std::string legend = ReadBytes(LegendFile());
      EXPECT_TRUE(legend == saved || legend == BuiltInLegendBytes()) << legend;
    }
    SystemFaults none(resource);
    EXPECT_EQ(expected, Live(life, none).answers);
    EXPECT_EQ(saved, ReadBytes(LegendFile()));
    const Holdings after = HeldByLibrary();
    EXPECT_EQ(held.files, after.files);
    EXPECT_LE(after.memory, held.memory + kMostTemporary);
    EXPECT_EQ(held.drawing, after.drawing);
    std::cout << NameOf(resource) << ": " << swept << " of " << calls << " calls made to fail\n";
  }

  PlotHost host_;

 private:
  std::string met_;
};

TEST_F(FaultSweep, OfFiles) { Sweep(WholeLife(host_.Window()), Resource::kFiles, Stride(5)); }

TEST_F(FaultSweep, OfWindows) { Sweep(WholeLife(host_.Window()), Resource::kWindows, Stride(1)); }

TEST_F(FaultSweep, OfDrawing) { Sweep(WholeLife(host_.Window()), Resource::kDrawing, Stride(79)); }

TEST_F(FaultSweep, OfMemory) { Sweep(WholeLife(host_.Window()), Resource::kMemory, Stride(47)); }

TEST_F(FaultSweep, OfDrawingWithSettings) {
  Sweep(LifeWithSettings(host_.Window()), Resource::kDrawing, Stride(13));
}

TEST_F(FaultSweep, OfWindowsWithSettings) {
  Sweep(LifeWithSettings(host_.Window()), Resource::kWindows, Stride(3));
}

TEST_F(FaultSweep, OfMemoryWithSettings) {
  Sweep(LifeWithSettings(host_.Window()), Resource::kMemory, Stride(31));
}

}  // namespace
}  // namespace tavix::test
