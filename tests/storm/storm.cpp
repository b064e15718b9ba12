#include "tests/storm/storm.h"

#include <tavix/tavix.h>

#include <tuple>

#include "tests/storm/counts.h"
#include "tests/support/message_pump.h"

namespace tavix::storm {

Storm::Storm(std::uint64_t seed) : chance_(seed) { Tavix_SetIdx(0); }

Storm::~Storm() {
  for (int index = 0; index < kInstances; ++index) {
    Tavix_SetIdx(index);
    Tavix_Del();
  }
  host_.reset();
  test::DrainMessages();
}

void Storm::Step() {
  constexpr int kHandsAmongCalls = 6;
  constexpr int kStepsBetweenPictures = 100;
  if (chance_.OneIn(kHandsAmongCalls)) {
    MoveHands(*this);
  } else {
    MakeCall(*this);
  }
  CheckAfterStep();
  if (++steps_ % kStepsBetweenPictures == 0) CheckPicture(*this);
}

test::PlotHost& Storm::Host() {
  if (!host_) host_ = std::make_unique<test::PlotHost>();
  return *host_;
}

void Storm::DestroyHost() {
  host_.reset();
  test::DrainMessages();
}

void Storm::Note(std::string text) {
  constexpr std::size_t kKept = 40;
  notes_.push_back(std::to_string(index_) + ": " + std::move(text));
  if (notes_.size() > kKept) notes_.pop_front();
}

std::string Storm::Recent() const {
  std::string text = "step " + std::to_string(steps_) + ", after these calls:";
  for (const std::string& note : notes_) text += "\n  " + note;
  return text;
}

void Storm::Expect(bool holds, const std::string& what) const {
  if (!holds) throw Broken(what + "\n" + Recent());
}

void Storm::ExpectCode(int expected, int code) const {
  Expect(code == expected,
         "the code is " + std::to_string(code) + ", not " + std::to_string(expected));
}

void Storm::CheckAfterStep() {
  int index = -1;
  Tavix_GetIdx(&index);
  Expect(index == index_, "instance " + std::to_string(index) + " is current");
  const Model& model = Now();
  Expect((Tavix_Wnd() != nullptr) == model.linked, "there is a window, or none, against the model");
  if (model.linked) {
    const HWND window = Tavix_Wnd()->m_hWnd;
    Expect(!window || ::IsWindow(window), "the window's handle is a dead one");
  }
  CheckFlags(*this);
  ReadBack(*this);
  constexpr int kStepsBetweenViews = 12;
  if (chance_.OneIn(kStepsBetweenViews)) CheckView(*this);
}

void Run(std::uint64_t seed, int steps, const std::function<void(const Storm*)>& running) {
  const auto run = [&](int count) {
    Storm storm(seed);
    running(&storm);
    for (int i = 0; i < count; ++i) storm.Step();
    running(nullptr);
  };
  std::ignore = CountAll();
  run(steps - steps / 5);
  Counts before = CountAll();
  // The shapes that the library keeps for drawing depend on what was drawn last, and are bounded:
  // what is lost is lost again each time.
  std::string difference;
  for (int tries = 0; tries < 5; ++tries) {
    run(steps / 5);
    const Counts after = CountAll();
    difference = Difference(before, after);
    if (difference.empty()) return;
    before = after;
  }
  throw Broken("not given back:\n" + difference);
}

}  // namespace tavix::storm
