// Small pictures written as text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "draw/dib/dib_section.h"

namespace tavix::test {

// A block with pixels of its own. As text it has a line a row: '.' stands for `paper`, '#' for any
// other colour.
class BlockPicture {
 public:
  BlockPicture(int width, int height, std::uint32_t paper = 0x00FFFFFF);
  BlockPicture(BlockPicture&&) = default;
  BlockPicture(const BlockPicture&) = delete;
  BlockPicture& operator=(const BlockPicture&) = delete;

  [[nodiscard]] const PixelBlock& Block() const { return block_; }
  [[nodiscard]] std::uint32_t At(int x, int y) const { return *block_.At(x, y); }
  void Set(int x, int y, std::uint32_t color) { *block_.At(x, y) = color; }
  [[nodiscard]] std::string Text() const;

 private:
  std::uint32_t paper_;
  std::vector<std::uint32_t> pixels_;
  PixelBlock block_;
};

}  // namespace tavix::test
