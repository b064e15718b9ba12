// The mode that is on while the user has chosen none: a tap picks a point.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <optional>

#include "view/coordinates.h"
#include "window/modes/stylus_mode.h"

namespace tavix {

class CPntList;
class CViewState;
class PlotDisplay;

// What a tap on the plan needs.
struct TapTarget {
  CWnd& window;  // its parent gets the reports
  PlotDisplay& display;
  CViewState& view;
  CPntList& points;
};

// What picking and capturing share: looks for a point where the plan was tapped. Drags, and taps on
// the side view, do nothing.
class TapMode : public StylusMode {
 public:
  Progress Release(const StylusGesture& gesture) final;

 protected:
  explicit TapMode(const TapTarget& target) : target_(target) {}

  // `key` is that of the point within ten pixels of `tapped`.
  virtual void Tapped(GroundPoint tapped, std::optional<std::int32_t> key) = 0;

  // Posts a command to the window's parent.
  void Report(UINT command, LPARAM value) const;

  const TapTarget target_;
};

// Reports the key of the point that was tapped.
class PickMode : public TapMode {
 public:
  PickMode(const TapTarget& target, UINT notify_id) : TapMode(target), notify_id_(notify_id) {}

 protected:
  void Tapped(GroundPoint tapped, std::optional<std::int32_t> key) override;

 private:
  UINT notify_id_;
};

}  // namespace tavix
