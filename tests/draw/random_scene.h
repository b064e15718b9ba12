// Random scenes that are the same in every run.
#pragma once

#include <cstdint>
#include <iterator>
#include <random>

#include "store/symbols.h"
#include "view/coordinates.h"

namespace tavix::test {

// Labels that GDI lays out and draws in different ways.
inline constexpr const char16_t* kLabels[] = {
    u"P1",
    u"P20931",
    u"T-7 (east)",
    u"测",
    u"基準点12",
    u"ｱｲｳ",
    u"a&b",
    u"&",
    u"&&",
    u"&点",
    u"&a&b",
    u"R&&D &x",
    u"end&",
    u"ﾃﾞｰﾀ&ｶﾞ",
    u"三角点ｶﾗ１２３号",
    u"\U00020000\U0002A6D6吉",
    u"\xD840",
    u"e\x0301",
    u"\x05D0\x05D1 12",
    u"ÀÿŒřЖλ",
    u"①㈱㎡→■°",
    u"two\tparts",
    u"two\nlines",
    u"two\r\nlines",
    u"\x01",
    u" ",
    u"  in  between  ",
    u"~!@#$%^*()_+|`-=\\{}[]:\";'<>?,./",
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
    u"abcdefghijklmnopqrstuvwxyz",
    u"fjfjjJgypqWWMiil1||",
    u"a name that is a good deal longer than any other name of a point that is in use",
    u"0123456789",
    u"é",
    u"P1\x7F",
};

// How large a picture is, how much is drawn in it, and with which sizes at most, in pixels.
struct Scene {
  unsigned seed;
  int width;
  int height;
  int entities;
  int most_size;
  int most_width;
};

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  // low..high, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
  }

  // A pixel of a picture, or up to `outside` pixels around it.
  ScreenPoint Place(int width, int height, int outside) {
    const int x = Between(-outside, width + outside);
    return {x, Between(-outside, height + outside)};
  }

  std::int32_t Color() { return static_cast<std::int32_t>(random_() & 0x00FFFFFF); }

  Pen AnyPen(int most_width) {
    const int width = Between(0, most_width);
    return {width, Color()};
  }

  const char16_t* Label() { return kLabels[Between(0, static_cast<int>(std::size(kLabels)) - 1)]; }

 private:
  std::mt19937 random_;
};

}  // namespace tavix::test
