#include "tests/draw/dib/block_picture.h"

namespace tavix::test {

BlockPicture::BlockPicture(int width, int height, std::uint32_t paper)
    : paper_(paper),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), paper),
      block_{pixels_.data(), width, height} {}

std::string BlockPicture::Text() const {
  std::string text;
  for (int y = 0; y < block_.height; ++y) {
    for (int x = 0; x < block_.width; ++x) text += At(x, y) == paper_ ? '.' : '#';
    text += '\n';
  }
  return text;
}

}  // namespace tavix::test
