// A storm: random exported calls on all instances, with a user's hands in between, held against a
// model after each.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "tests/storm/chance.h"
#include "tests/storm/model.h"
#include "tests/support/plot_host.h"

namespace tavix::storm {

// A promise of the library that did not hold; the text has the calls that led to it.
class Broken : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Storm {
 public:
  static constexpr int kInstances = 5;

  explicit Storm(std::uint64_t seed);
  // Deletes all instances.
  ~Storm();
  Storm(const Storm&) = delete;
  Storm& operator=(const Storm&) = delete;

  // One call, or one movement of the user, and what has to hold after it. Throws Broken.
  void Step();

  // ---- For the calls

  [[nodiscard]] Chance& Any() { return chance_; }
  // Of the current instance.
  [[nodiscard]] Model& Now() { return models_[static_cast<std::size_t>(index_)]; }
  [[nodiscard]] std::array<Model, kInstances>& Models() { return models_; }
  [[nodiscard]] int Index() const { return index_; }
  void SetIndex(int index) { index_ = index; }
  // The host's window; made again after it has been destroyed.
  [[nodiscard]] test::PlotHost& Host();
  void DestroyHost();

  // Notes a call with its arguments, for the text of Broken.
  void Note(std::string text);
  // The calls of late, one a line.
  [[nodiscard]] std::string Recent() const;
  // Fails the storm when `holds` is false.
  void Expect(bool holds, const std::string& what) const;
  // Expects a call's code.
  void ExpectCode(int expected, int code) const;

 private:
  void CheckAfterStep();

  Chance chance_;
  std::array<Model, kInstances> models_;
  int index_ = 0;
  std::unique_ptr<test::PlotHost> host_;
  std::deque<std::string> notes_;
  std::int64_t steps_ = 0;
};

// Runs a storm of so many steps, after a few others that fill what the process keeps: at its end
// the library holds what it held at its beginning. Throws Broken. `running` is called with the
// storm before its first step.
void Run(
    std::uint64_t seed, int steps, const std::function<void(const Storm*)>& running = [](auto*) {});

// A random exported call with random arguments.
void MakeCall(Storm& storm);

// A random movement of the user: stylus, buttons, keys, dialogs, the host's window.
void MoveHands(Storm& storm);

// Reads something of every store of the current instance back, by keys at random.
void ReadBack(Storm& storm);

// What the current instance says of its angle, its ratio, its overlays and what it shows.
void CheckFlags(Storm& storm);

// Taps the middle and the corners of the drawing area: they lie where the angle, the ratio and what
// else the model knows put them, they are in view, and they stay as long as no call changes the
// view. Ends the coordinate capture.
void CheckView(Storm& storm);

// Compares what the current instance shows after a redraw with a redraw from nothing: another
// instance into which the model is entered. Does nothing where there is no room for one.
void CheckPicture(Storm& storm);

}  // namespace tavix::storm
