// Exported calls on the paper frame and the scale bar.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "window/refusal_beep.h"

using tavix::PaperFrame;
using tavix::Slots;
using tavix::TavixSlot;

namespace {

// The paper frame of the current instance's window while it is on, else null.
PaperFrame* FrameThatIsOn() {
  TavixSlot& slot = Slots().Current();
  return slot.window && slot.window->Frame().IsOn() ? &slot.window->Frame() : nullptr;
}

}  // namespace

int Tavix_SetWak(BYTE on, int heightPerInch, int heightUnits, int widthPerInch, int widthUnits) {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  PaperFrame& frame = slot.window->Frame();
  if (on) {
    frame.TurnOn(*slot.view, heightPerInch, heightUnits, widthPerInch, widthUnits);
  } else {
    frame.TurnOff();
  }
  return 0;
}

int Tavix_WakDsp(BYTE show) {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  slot.window->Frame().SetShown(show != 0);
  return 0;
}

int Tavix_SetWakScl(int N) {
  PaperFrame* frame = FrameThatIsOn();
  if (!frame || N < 1) return -1;
  tavix::BeepIfCut(frame->SetScale(*Slots().Current().view, N));
  return 0;
}

int Tavix_GetWakScl(int* N) {
  const PaperFrame* frame = FrameThatIsOn();
  if (!frame || !tavix::CanWrite(N)) return -1;
  *N = frame->Scale();
  return 0;
}

int Tavix_SetWakGen(double X, double Y) {
  PaperFrame* frame = FrameThatIsOn();
  if (!frame) return -1;
  frame->SetOrigin(*Slots().Current().view, {X, Y});
  return 0;
}

int Tavix_GetWakGen(double* X, double* Y) {
  if (!tavix::CanWrite(X, Y)) return -1;
  const PaperFrame* frame = FrameThatIsOn();
  const tavix::GroundPoint origin = frame ? frame->Origin() : tavix::GroundPoint{};
  *X = origin.x;
  *Y = origin.y;
  return frame ? 0 : -1;
}

int Tavix_SclBarDsp(BYTE show) {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  slot.window->ShowScaleBar(show != 0);
  return 0;
}
