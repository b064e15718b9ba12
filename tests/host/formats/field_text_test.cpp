#include "host/formats/field_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {
namespace {

using Texts = std::vector<std::string_view>;

TEST(SplitFields, CutsAtTheSeparatorAndTrims) {
  const struct {
    std::string_view line;
    char separator;
    std::size_t most;
    Texts fields;
  } rows[] = {
      {"1,2,3", ',', 9, {"1", "2", "3"}},
      {" 1 , 2\t, 3 \r", ',', 9, {"1", "2", "3"}},
      {"1,,3,", ',', 9, {"1", "", "3", ""}},
      {"", ',', 9, {""}},
      {",", ',', 9, {"", ""}},
      {"1,2,3,4", ',', 3, {"1", "2", "3,4"}},
      {"1,2,3,4", ',', 1, {"1,2,3,4"}},
      {"1;2;3", ';', 9, {"1", "2", "3"}},
      {"1\t\t3 4", '\t', 9, {"1", "", "3 4"}},
      {"  1   2\t 3  ", ' ', 9, {"1", "2", "3"}},
      {"1 2 big  tree", ' ', 3, {"1", "2", "big  tree"}},
      {"\"1,5\",2", ',', 9, {"\"1,5\"", "2"}},
      {"\"a \"\"b\"\", c\" ,2", ',', 9, {"\"a \"\"b\"\", c\"", "2"}},
      {"\"big tree\" 2", ' ', 9, {"\"big tree\"", "2"}},
      {"5\" pipe,2", ',', 9, {"5\" pipe", "2"}},
      {"\"open,2", ',', 9, {"\"open", "2"}},
      {"\"a\"b,2", ',', 9, {"\"a\"b", "2"}},
  };
  for (const auto& row : rows) {
    Texts fields;
    SplitFields(row.line, row.separator, row.most, fields);
    EXPECT_EQ(row.fields, fields) << row.line;
  }
}

TEST(SplitFields, TakesALineFullOfQuotesInItsStride) {
  std::string line;
  while (line.size() < 60000) line += "\"a,";
  Texts fields;
  SplitFields(line, ',', 8, fields);
  EXPECT_EQ(8U, fields.size());
}

TEST(FieldText, LosesOuterQuotesOnly) {
  const struct {
    std::string_view field;
    std::string_view text;
  } rows[] = {
      {" T-1 ", "T-1"},
      {"\"T-1\"", "T-1"},
      {"\" T-1 \"", "T-1"},
      {"\"a \"\"b\"\"\"", "a \"b\""},
      {"\"", "\""},
      {"\"\"", ""},
      {"5\" pipe", "5\" pipe"},
      {"a\"\"b", "a\"\"b"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.text, FieldText(row.field)) << row.field;
}

TEST(RealNumber, TakesNumbers) {
  const struct {
    std::string_view field;
    double number;
  } rows[] = {
      {"0", 0.0},         {"-24010.239", -24010.239},
      {"+12.5", 12.5},    {".5", 0.5},
      {"5.", 5.0},        {"  7 ", 7.0},
      {"\"7.25\"", 7.25}, {"6.783e6", 6783000},
      {"\" 7 \"", 7.0},
  };
  for (const auto& row : rows) {
    const auto number = RealNumber(row.field);
    ASSERT_TRUE(number) << row.field;
    EXPECT_EQ(row.number, *number) << row.field;
  }
}

TEST(RealNumber, RefusesEverythingElse) {
  for (const std::string_view field : {"", " ", "-", "+", "+-1", "--1", "abc", "1a", "1 2", "1,5",
                                       "nan", "inf", "-inf", "1e999", "0x10", "1e", "\"\"", "１"}) {
    EXPECT_FALSE(RealNumber(field)) << field;
  }
}

TEST(RealNumber, DoesNotAskTheLocale) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  const bool comma = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr ||
                     std::setlocale(LC_NUMERIC, "German_Germany.1252") != nullptr;
  const auto number = RealNumber("1.5");
  std::setlocale(LC_NUMERIC, before.c_str());
  if (!comma) GTEST_SKIP() << "This system has no locale with a decimal comma.";
  EXPECT_EQ(1.5, number);
}

TEST(WholeNumber, TakesIntegersOfTheSystem) {
  EXPECT_EQ(42, WholeNumber("42"));
  EXPECT_EQ(7, WholeNumber(" 007 "));
  EXPECT_EQ(-3, WholeNumber("-3"));
  EXPECT_EQ(2147483647, WholeNumber("2147483647"));
  for (const std::string_view field : {"", "1.0", "T-1", "1A", "2147483648", "1e3"}) {
    EXPECT_FALSE(WholeNumber(field)) << field;
  }
}

TEST(Quoted, KeepsMessagesShortAndPrintable) {
  EXPECT_EQ("'abc'", Quoted(" abc "));
  EXPECT_EQ("'a [2Jb'", Quoted("a\x1b[2Jb"));
  EXPECT_EQ("'" + std::string(24, 'x') + "...'", Quoted(std::string(100, 'x')));
  // Twenty-three bytes and a character of three: the cut goes before it.
  EXPECT_EQ("'" + std::string(23, 'x') + "...'", Quoted(std::string(23, 'x') + "木木"));
}

}  // namespace
}  // namespace fieldhost
