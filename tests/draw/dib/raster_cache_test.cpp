#include "draw/dib/raster_cache.h"

#include <gtest/gtest.h>

#include <string>

#include "draw/dib/dib_canvas.h"
#include "draw/dib/reference_bitmap.h"
#include "draw/dib/smooth_labels.h"

namespace tavix::test {
namespace {

PointSymbol Symbol(int mark, int size, int color) {
  return {mark, size, 10, LabelContent::kName, {1, color}};
}

class RasterCacheTest : public testing::Test {
 protected:
  // Whether a label is drawn here and not left to GDI.
  bool DrawsLabel(int height, const std::u16string& text) {
    ReferenceBitmap reference(200, 60);
    reference.Fill(0x00FFFFFF);
    const TrialBitmap paper(reference);
    const bool draws = cache_.Labels(height)->Draw(reference.Pixels(), {5, 5}, text);
    const bool is_blank = paper.Equals(reference);
    const bool has_ink = text.find_first_not_of(u' ') != std::u16string::npos;
    EXPECT_EQ(draws && has_ink, !is_blank) << "nothing is drawn of what is left to GDI";
    return draws;
  }

  RasterCache cache_;
};

TEST_F(RasterCacheTest, LinesAreKept) {
  const TieRule* lines = cache_.Lines();
  ASSERT_TRUE(lines);
  EXPECT_EQ(lines, cache_.Lines());
}

TEST_F(RasterCacheTest, MarksAreKeptWhateverTheLabel) {
  const MarkMask* mask = cache_.Mark(Symbol(2, 10, 0x00FF0000));
  ASSERT_TRUE(mask);
  EXPECT_EQ(mask, cache_.Mark({2, 10, 14, LabelContent::kNumber, {1, 0x00FF0000}}));
  EXPECT_NE(mask, cache_.Mark(Symbol(2, 10, 0x00FF0001)));
  EXPECT_NE(mask, cache_.Mark(Symbol(3, 10, 0x00FF0000)));
}

// What a canvas holds of the cache may be gone once another window has been redrawn.
TEST_F(RasterCacheTest, ACanvasIsOutOfDateOnceAnotherIsMade) {
  ReferenceBitmap first(20, 20);
  ReferenceBitmap second(20, 20);
  const DibCanvas canvas(first.Dc(), first.Pixels(), cache_);
  EXPECT_TRUE(canvas.IsCurrent());
  const DibCanvas other(second.Dc(), second.Pixels(), cache_);
  EXPECT_FALSE(canvas.IsCurrent());
  EXPECT_TRUE(other.IsCurrent());
}

// Memory stays within bounds, and what is known stays known.
TEST_F(RasterCacheTest, MarksOfSymbolsWithoutEndAreLeftToGdi) {
  const MarkMask* first = cache_.Mark(Symbol(2, 4, 0));
  ASSERT_TRUE(first);
  const MarkMask* last = first;
  for (int color = 1; color < 400; ++color) last = cache_.Mark(Symbol(2, 4, color));
  EXPECT_FALSE(last);
  EXPECT_EQ(first, cache_.Mark(Symbol(2, 4, 0)));
}

TEST_F(RasterCacheTest, LabelsOfHeightsWithoutEndAreLeftToGdi) {
  SmoothLabels* first = cache_.Labels(10);
  ASSERT_TRUE(first);
  SmoothLabels* last = first;
  for (int height = 1000; height < 1100; ++height) last = cache_.Labels(height);
  EXPECT_FALSE(last);
  EXPECT_EQ(first, cache_.Labels(10));
}

TEST_F(RasterCacheTest, LabelsOfLettersSideBySideAreDrawnHere) {
  for (const int height : {8, 10, 12, 16}) {
    for (const char16_t* text : {u"P1", u"0123456789", u"P 7", u" ", u"基準点", u"ｱｲｳﾞ", u"é",
                                 u"a&b", u"&", u"&&", u"点&", u"&点"}) {
      EXPECT_TRUE(DrawsLabel(height, text)) << height;
    }
  }
}

TEST_F(RasterCacheTest, OtherLabelsAreLeftToGdi) {
  const std::u16string rows[] = {u"P\n1",
                                 u"P\t1",
                                 u"&a&b",
                                 u"e\u0301",
                                 u"\u05D0",
                                 std::u16string(1, char16_t{0xD840}),
                                 u"\x7F",
                                 u"\x1F",
                                 std::u16string(1, u'\0'),
                                 std::u16string(500, u'1')};
  for (const std::u16string& text : rows) {
    EXPECT_FALSE(DrawsLabel(10, text)) << static_cast<int>(text[0]);
    EXPECT_FALSE(DrawsLabel(10, u"P1" + text)) << static_cast<int>(text[0]);
  }
  EXPECT_TRUE(DrawsLabel(10, u"P1"));
  EXPECT_FALSE(DrawsLabel(500, u"P1"));
}

TEST_F(RasterCacheTest, StaysWhileTheSettingsDo) {
  cache_.FollowSettings();
  SmoothLabels* labels = cache_.Labels(10);
  const MarkMask* mark = cache_.Mark(Symbol(2, 4, 0));
  cache_.FollowSettings();
  EXPECT_EQ(labels, cache_.Labels(10));
  EXPECT_EQ(mark, cache_.Mark(Symbol(2, 4, 0)));
}

// What is dropped makes room for more.
class FullRasterCache : public RasterCacheTest {
 protected:
  void SetUp() override {
    cache_.FollowSettings(kSettings);
    for (int number = 0; number < 400; ++number) {
      EXPECT_EQ(number < 256, cache_.Mark(Symbol(2, 4, number)) != nullptr) << number;
      EXPECT_EQ(number < 64, cache_.Labels(1000 + number) != nullptr) << number;
    }
  }

  bool HasRoomForMarks() { return cache_.Mark(Symbol(2, 4, 1000)) != nullptr; }
  bool HasRoomForLabels() { return cache_.Labels(2000) != nullptr; }

  static constexpr ScreenSettings kSettings{1, 32};
};

TEST_F(FullRasterCache, StaysWhileTheScreenDoes) {
  cache_.FollowSettings(kSettings);
  EXPECT_FALSE(HasRoomForMarks());
  EXPECT_FALSE(HasRoomForLabels());
}

TEST_F(FullRasterCache, IsDroppedWithAnotherDepthOfTheScreen) {
  cache_.FollowSettings({kSettings.smoothing, 16});
  EXPECT_TRUE(HasRoomForMarks());
  EXPECT_TRUE(HasRoomForLabels());
}

// Not at once: windows that draw in turn share the cache.
TEST_F(FullRasterCache, MakesRoomForNewSymbolsWhenNoneOfTheOldIsDrawn) {
  for (int redraw = 0; redraw < 16; ++redraw) {
    cache_.FollowSettings(kSettings);
    EXPECT_FALSE(HasRoomForMarks());
    EXPECT_FALSE(HasRoomForLabels());
  }
  cache_.FollowSettings(kSettings);
  EXPECT_TRUE(HasRoomForMarks());
  EXPECT_TRUE(HasRoomForLabels());
}

TEST_F(FullRasterCache, KeepsWhatIsDrawn) {
  const MarkMask* mark = cache_.Mark(Symbol(2, 4, 7));
  SmoothLabels* labels = cache_.Labels(1007);
  for (int redraw = 0; redraw < 40; ++redraw) {
    cache_.FollowSettings(kSettings);
    ASSERT_EQ(mark, cache_.Mark(Symbol(2, 4, 7)));
    ASSERT_EQ(labels, cache_.Labels(1007));
  }
}

TEST_F(FullRasterCache, DropsOnlyTextWithOtherSmoothing) {
  cache_.FollowSettings({0, kSettings.depth});
  EXPECT_FALSE(HasRoomForMarks());
  EXPECT_TRUE(HasRoomForLabels());
}

}  // namespace
}  // namespace tavix::test
