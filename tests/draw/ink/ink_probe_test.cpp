#include "draw/ink/ink_probe.h"

#include <gtest/gtest.h>

#include "draw/ink/ink_probe.h"

namespace tavix::test {
namespace {

constexpr int kWhite = 0x00FFFFFF;

PointSymbol Symbol(int mark, int size, int width, int color) {
  return {mark, size, 0, LabelContent::kName, {width, color}};
}

// Without this the rest would hold for a canvas on which GDI draws everything.
TEST(InkMarks, AreReadBackOfEveryKindInBlackAndWhite) {
  for (int kind = 1; kind <= 11; ++kind) {
    for (const int size : {1, 2, 9, 10, 40}) {
      for (int width = 0; width <= 3; ++width) {
        for (const int color : {0, kWhite}) {
          EXPECT_TRUE(InkMark::Probe(Symbol(kind, size, width, color)))
              << kind << ", " << size << ", " << width << ", " << color;
        }
      }
    }
  }
}

TEST(InkMarks, AreLeftToGdiWhenLargeOrOfAnotherColour) {
  for (const PointSymbol& symbol :
       {Symbol(2, 1000, 1, 0), Symbol(2, 5, 1000, 0), Symbol(2, 5, -1, 0), Symbol(2, 10, 1, 255),
        Symbol(2, 10, 1, 0x01FFFFFF)}) {
    EXPECT_FALSE(InkMark::Probe(symbol))
        << symbol.size << ", " << symbol.pen.width << ", " << symbol.pen.color;
  }
}

TEST(InkLines, AreDrawnHere) { EXPECT_TRUE(ProbeInkTieRule()); }

TEST(InkLabels, OfLettersSideBySideAreDrawnHere) {
  for (const int height : {8, 10, 12, 16}) {
    MemoryBudget memory(1 << 20);
    InkLabels labels{InkFont(height), memory};
    OneBitReference reference(200, 60);
    for (const char16_t* text : {u"P1", u"0123456789", u"Wf j", u" ", u"点", u"a&b"}) {
      EXPECT_TRUE(labels.Draw(reference.Pixels(), {5, 5}, text)) << height;
    }
    EXPECT_FALSE(labels.Draw(reference.Pixels(), {5, 5}, u"a\nb")) << height;
  }
}

}  // namespace
}  // namespace tavix::test
