#include "host/pictures/plan_picture.h"

#include <tavix/tavix.h>

namespace fieldhost {
namespace {

// The library's picture, held for as long as this lives.
class HeldPicture {
 public:
  explicit HeldPicture(const PictureSize& size)
      : held_(Tavix_GrpStt(size.height, size.width) == 0) {}
  ~HeldPicture() {
    if (held_) Tavix_GrpEnd();
  }
  HeldPicture(const HeldPicture&) = delete;
  HeldPicture& operator=(const HeldPicture&) = delete;

  [[nodiscard]] bool IsHeld() const { return held_; }

 private:
  bool held_;
};

}  // namespace

std::optional<OneBitPicture> DrawPlanPicture(const PictureSize& size) {
  const HeldPicture held(size);
  if (!held.IsHeld()) return std::nullopt;
  OneBitPicture picture(size.width, size.height);
  bool has_ink = false;
  for (int row = 0; row < size.height; ++row) {
    for (int column = 0; column < size.width; ++column) {
      int ink = 0;
      Tavix_GrpGet(row, column, &ink);
      if (ink == 0) continue;
      picture.SetInk(row, column);
      has_ink = true;
    }
  }
  // Every picture has a north arrow: without any ink, memory did not suffice.
  if (!has_ink) return std::nullopt;
  return picture;
}

}  // namespace fieldhost
