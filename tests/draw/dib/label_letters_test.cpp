#include "draw/dib/label_letters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tavix::test {
namespace {

// What DrawText shows: an underlined letter stands in brackets. "none" where there is no row.
std::u16string Shown(NameView label) {
  const auto letters = LabelLetters::Of(label);
  if (!letters) return u"none";
  std::u16string shown;
  for (const Letter& letter : letters->All()) {
    shown += letter.IsUnderlined() ? u"[" + letter.Plain() + u"]" : letter.Plain();
  }
  return shown;
}

TEST(LabelLetters, FollowThePrefixRule) {
  const struct {
    const char16_t* label;
    const char16_t* shown;
  } rows[] = {{u"", u""},          {u"P1", u"P1"},      {u"a&b", u"a[b]"},
              {u"&点1", u"[点]1"}, {u"a&&b", u"a&b"},   {u"&&&a", u"&[a]"},
              {u"a&", u"a&"},      {u"&", u"&"},        {u"&&", u"&"},
              {u"&&&", u"&&"},     {u"& a", u"[ ]a"},   {u"&\U00020000", u"[\U00020000]"},
              {u"&a&b", u"none"},  {u"&a&&b", u"[a]&b"}};
  for (const auto& [label, shown] : rows) EXPECT_EQ(std::u16string(shown), Shown(label));
}

TEST(LabelLetters, SpellTheLabelAgain) {
  for (const NameView label : {u"a&b", u"&&", u"x&", u"基準点\U0002A6D6ｱ", u"&&&a"}) {
    const auto letters = LabelLetters::Of(label);
    ASSERT_TRUE(letters);
    std::u16string spelled;
    for (const Letter& letter : letters->All()) spelled += letter.Spelled();
    EXPECT_EQ(std::u16string(label), spelled);
  }
}

TEST(LabelLetters, AreOneForASurrogatePair) {
  const auto letters = LabelLetters::Of(u"a\U00020BB7b");
  ASSERT_TRUE(letters);
  ASSERT_EQ(3u, letters->All().size());
  EXPECT_EQ(U'\U00020BB7', letters->All()[1].character);
}

TEST(LabelLetters, AreNotOfWhatDependsOnItsNeighbours) {
  const std::u16string parts[] = {std::u16string(1, u'\0'),
                                  u"\t",
                                  u"\n",
                                  u"\x1E",
                                  u"\x1F",
                                  u"\x7F",
                                  u"\x9F",
                                  u"\u00AD",
                                  u"\u0301",
                                  u"\u05D0",
                                  u"\u0627",
                                  u"\u0915",
                                  u"\u1100",
                                  u"\u200D",
                                  u"\u202E",
                                  u"\u20DD",
                                  u"\u3099",
                                  u"\uFB1D",
                                  u"\uFE0F",
                                  u"\uFEFF",
                                  u"\uFFFF",
                                  std::u16string(1, char16_t{0xD840}),
                                  std::u16string(1, char16_t{0xDC00}),
                                  u"\U0001F3FB",
                                  u"\U000E0100"};
  for (const std::u16string& part : parts) {
    EXPECT_FALSE(LabelLetters::Of(part)) << std::hex << int{part[0]};
    EXPECT_FALSE(LabelLetters::Of(u"a" + part + u"b")) << std::hex << int{part[0]};
    EXPECT_FALSE(LabelLetters::Of(u"a&" + part)) << std::hex << int{part[0]};
  }
}

TEST(LabelLetters, AreNotOfLongLabels) {
  EXPECT_TRUE(LabelLetters::Of(std::u16string(LabelLetters::kLongest, u'点')));
  EXPECT_FALSE(LabelLetters::Of(std::u16string(LabelLetters::kLongest + 1, u'点')));
}

}  // namespace
}  // namespace tavix::test
