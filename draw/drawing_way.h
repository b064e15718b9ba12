// One setting that leaves all drawing to the system's calls.
#pragma once

namespace tavix {

// The pictures are the same, pixel for pixel.
enum class DrawingWay {
  kFast,  // into the pixels, where that has been proved to give what GDI gives
  kGdi,   // by GDI calls alone
};

// What the environment variable TAVIX_DRAWING names, "fast" or "gdi"; without either, what the
// library was built for, which CMake's option TAVIX_GDI_DRAWING decides.
[[nodiscard]] DrawingWay DrawingWayOfEnvironment();

}  // namespace tavix
