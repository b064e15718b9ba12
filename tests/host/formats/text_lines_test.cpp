#include "host/formats/text_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fieldhost {
namespace {

using Numbered = std::vector<std::pair<int, std::string>>;

Numbered LinesOf(std::string_view bytes, ReadLog& log) {
  const TextLines lines(bytes, log);
  Numbered all;
  for (const TextLine& line : lines.All()) all.emplace_back(line.number, line.text);
  return all;
}

TEST(TextLines, EndAtEveryKindOfLineEnd) {
  const struct {
    std::string_view bytes;
    Numbered lines;
  } rows[] = {
      {"", {}},
      {"a", {{1, "a"}}},
      {"a\nb", {{1, "a"}, {2, "b"}}},
      {"a\r\nb\r\n", {{1, "a"}, {2, "b"}}},
      {"a\rb\r", {{1, "a"}, {2, "b"}}},
      {"a\n\n \t\nb", {{1, "a"}, {4, "b"}}},
      {"\r\n\r\na", {{3, "a"}}},
      {"a\n\r\nb", {{1, "a"}, {3, "b"}}},
  };
  for (const auto& row : rows) {
    ReadLog log("x");
    EXPECT_EQ(row.lines, LinesOf(row.bytes, log)) << row.bytes;
    EXPECT_EQ(0U, log.SkippedLines());
  }
}

TEST(TextLines, LeaveOutTheByteOrderMarkAndCtrlZ) {
  ReadLog log("x");
  EXPECT_EQ((Numbered{{1, "基準点"}}), LinesOf("\xEF\xBB\xBF基準点\r\n\x1A", log));
  EXPECT_EQ(0U, log.SkippedLines());
}

TEST(TextLines, ConvertShiftJisOfTheWholeFile) {
  // The half-width kana of the second line would be well-formed UTF-8 by themselves.
  ReadLog log("x");
  EXPECT_EQ((Numbered{{1, "基準点"}, {2, "ﾃｱ"}}),
            LinesOf("\x8A\xEE\x8F\x80\x93\x5F\n\xC3\xB1\n", log));
}

TEST(TextLines, SkipAndSayWhatIsNoText) {
  const std::string too_long(TextLines::kLongestLine + 1, 'x');
  const struct {
    const char* what;
    std::string bytes;
    std::string sentence;
  } rows[] = {
      {"null character", std::string("a\nb\0c\nd", 7), "the line holds a null character"},
      {"too long", "a\n" + too_long + "\nd", "the line is too long"},
      {"bad UTF-8 behind a mark",
       "\xEF\xBB\xBF"
       "a\n\xFF\nd",
       "the line is not UTF-8 text"},
      {"bad Shift-JIS", "a\n\x81\x20\nd", "the line is neither UTF-8 nor Shift-JIS text"},
  };
  for (const auto& row : rows) {
    ReadLog log("site.csv");
    EXPECT_EQ((Numbered{{1, "a"}, {3, "d"}}), LinesOf(row.bytes, log)) << row.what;
    ASSERT_EQ(1U, log.Diagnostics().size()) << row.what;
    EXPECT_EQ("site.csv", log.Diagnostics()[0].file);
    EXPECT_EQ(2, log.Diagnostics()[0].line);
    EXPECT_EQ(row.sentence, log.Diagnostics()[0].sentence);
  }
}

TEST(ReadLog, CountsAllAndKeepsTheFirst) {
  ReadLog log("x");
  for (int line = 1; line <= 1000; ++line) log.Skip(line, "bad");
  log.Skip(1001, "bad", 50);
  EXPECT_EQ(1050U, log.SkippedLines());
  ASSERT_EQ(ReadLog::kKept, log.Diagnostics().size());
  EXPECT_EQ(100, log.Diagnostics().back().line);
}

}  // namespace
}  // namespace fieldhost
