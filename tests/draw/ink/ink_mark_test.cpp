#include "draw/ink/ink_mark.h"

#include <gtest/gtest.h>

#include "draw/ink/ink_labels.h"

namespace tavix::test {
namespace {

constexpr int kWhite = 0x00FFFFFF;

// Without this the rest would hold for a room in which the system draws everything.
TEST(InkMarks, AreLearntOfEveryKindInBlackAndWhite) {
  for (int kind = 1; kind <= 11; ++kind) {
    for (const int size : {1, 2, 9, 10, 40}) {
      for (int width = 0; width <= 3; ++width) {
        for (const int color : {0, kWhite}) {
          EXPECT_TRUE(InkMark::Learn({kind, size, 0, 0, width, color}))
              << kind << ", " << size << ", " << width << ", " << color;
        }
      }
    }
  }
}

TEST(InkMarks, AreLeftToTheSystemWhenLargeOrOfAnotherColour) {
  for (const LegendStyle& style :
       {LegendStyle{2, 1000, 0, 0, 1, 0}, LegendStyle{2, 5, 0, 0, 1000, 0},
        LegendStyle{2, 5, 0, 0, -1, 0}, LegendStyle{2, 10, 0, 0, 1, 255},
        LegendStyle{2, 10, 0, 0, 1, 0x01FFFFFF}}) {
    EXPECT_FALSE(InkMark::Learn(style)) << style.prm1 << ", " << style.width << ", " << style.color;
  }
}

TEST(InkLabelsOfPrintableCharacters, AreDrawnHere) {
  for (const int height : {8, 10, 12, 16}) {
    InkLabels labels{InkHand(height)};
    InkSample sample(200, 60);
    for (const char16_t* text : {u"P1", u"0123456789", u"Wf j", u" "}) {
      EXPECT_TRUE(labels.Draw(sample.Pixels(), {5, 5}, text)) << height;
    }
    EXPECT_FALSE(labels.Draw(sample.Pixels(), {5, 5}, u"点")) << height;
    EXPECT_FALSE(labels.Draw(sample.Pixels(), {5, 5}, u"a&b")) << height;
  }
}

}  // namespace
}  // namespace tavix::test
