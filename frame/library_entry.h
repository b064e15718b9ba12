// The library as an extension module of the framework.
#pragma once

namespace tavix {

// Chains the library's resources into the framework's search, so that its bitmaps and its dialog
// are found. To be called before the first window is made; later calls do nothing.
void ChainResources();

}  // namespace tavix
