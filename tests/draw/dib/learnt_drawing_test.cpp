#include "draw/dib/learnt_drawing.h"

#include <gtest/gtest.h>

#include <string>

#include "draw/dib/label_sample.h"
#include "draw/dib/system_sample.h"

namespace tavix::test {
namespace {

PointSymbol Symbol(int mark, int size, int color) {
  return {mark, size, 10, LabelContent::kName, {1, color}};
}

class Learnt : public testing::Test {
 protected:
  // Whether a label is drawn here and not left to the system.
  bool DrawsLabel(int height, const std::u16string& text) {
    SystemSample sample(200, 60);
    sample.Fill(0x00FFFFFF);
    const OwnSample paper(sample);
    const bool draws = learnt_.Labels(height)->Draw(sample.Pixels(), {5, 5}, text);
    const bool is_blank = paper.Equals(sample);
    const bool has_ink = text.find_first_not_of(u' ') != std::u16string::npos;
    EXPECT_EQ(draws && has_ink, !is_blank) << "what is left to the system is not begun";
    return draws;
  }

  LearntDrawing learnt_;
};

class LearntLabels : public Learnt {
 protected:
  void SetUp() override {
    if (!LabelSample(10, 1).ReadGlyph(u'8')) {
      GTEST_SKIP() << "the system smooths text in colours: labels are left to it";
    }
  }
};

TEST_F(Learnt, LinesAreKept) {
  const LineRule* lines = learnt_.Lines();
  ASSERT_TRUE(lines);
  EXPECT_EQ(lines, learnt_.Lines());
}

TEST_F(Learnt, MarksAreKeptWhateverTheLabel) {
  const Stamp* stamp = learnt_.Mark(Symbol(2, 10, 0x00FF0000));
  ASSERT_TRUE(stamp);
  EXPECT_EQ(stamp, learnt_.Mark({2, 10, 14, LabelContent::kNumber, {1, 0x00FF0000}}));
  EXPECT_NE(stamp, learnt_.Mark(Symbol(2, 10, 0x00FF0001)));
  EXPECT_NE(stamp, learnt_.Mark(Symbol(3, 10, 0x00FF0000)));
}

// Memory stays within bounds, and what is known stays known.
TEST_F(Learnt, MarksOfLooksWithoutEndAreLeftToTheSystem) {
  const Stamp* first = learnt_.Mark(Symbol(2, 4, 0));
  ASSERT_TRUE(first);
  const Stamp* last = first;
  for (int color = 1; color < 400; ++color) last = learnt_.Mark(Symbol(2, 4, color));
  EXPECT_FALSE(last);
  EXPECT_EQ(first, learnt_.Mark(Symbol(2, 4, 0)));
}

TEST_F(Learnt, LabelsOfHeightsWithoutEndAreLeftToTheSystem) {
  LabelGlyphs* first = learnt_.Labels(10);
  ASSERT_TRUE(first);
  LabelGlyphs* last = first;
  for (int height = 1000; height < 1100; ++height) last = learnt_.Labels(height);
  EXPECT_FALSE(last);
  EXPECT_EQ(first, learnt_.Labels(10));
}

TEST_F(LearntLabels, OfPrintableCharactersAreDrawnHere) {
  for (const int height : {8, 10, 12, 16}) {
    for (const char16_t* text : {u"P1", u"0123456789", u"P 7", u" "}) {
      EXPECT_TRUE(DrawsLabel(height, text)) << height;
    }
  }
}

TEST_F(LearntLabels, OfOtherCharactersAreLeftToTheSystem) {
  const std::u16string rows[] = {u"基準点",
                                 u"P\n1",
                                 u"P\t1",
                                 u"a&b",
                                 u"é",
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

TEST_F(Learnt, StaysWhileTheSettingsDo) {
  learnt_.FollowSettings();
  LabelGlyphs* labels = learnt_.Labels(10);
  const Stamp* mark = learnt_.Mark(Symbol(2, 4, 0));
  learnt_.FollowSettings();
  EXPECT_EQ(labels, learnt_.Labels(10));
  EXPECT_EQ(mark, learnt_.Mark(Symbol(2, 4, 0)));
}

// What is forgotten makes room for more.
class LearntToTheFull : public Learnt {
 protected:
  void SetUp() override {
    learnt_.FollowSettings(kLook);
    for (int number = 0; number < 400; ++number) {
      EXPECT_EQ(number < 256, learnt_.Mark(Symbol(2, 4, number)) != nullptr) << number;
      EXPECT_EQ(number < 64, learnt_.Labels(1000 + number) != nullptr) << number;
    }
  }

  bool HasRoomForMarks() { return learnt_.Mark(Symbol(2, 4, 1000)) != nullptr; }
  bool HasRoomForLabels() { return learnt_.Labels(2000) != nullptr; }

  static constexpr ScreenLook kLook{1, 32};
};

TEST_F(LearntToTheFull, StaysWhileTheScreenDoes) {
  learnt_.FollowSettings(kLook);
  EXPECT_FALSE(HasRoomForMarks());
  EXPECT_FALSE(HasRoomForLabels());
}

TEST_F(LearntToTheFull, IsForgottenWithOtherColoursOfTheScreen) {
  learnt_.FollowSettings({kLook.smoothing, 16});
  EXPECT_TRUE(HasRoomForMarks());
  EXPECT_TRUE(HasRoomForLabels());
}

TEST_F(LearntToTheFull, ForgetsOnlyTextWithOtherSmoothing) {
  learnt_.FollowSettings({0, kLook.depth});
  EXPECT_FALSE(HasRoomForMarks());
  EXPECT_TRUE(HasRoomForLabels());
}

}  // namespace
}  // namespace tavix::test
