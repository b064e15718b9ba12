#include "host/survey/memo_text.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(MemoBeginning, IsTheFirstLineThatSaysSomething) {
  const struct {
    std::string_view memo;
    std::size_t most;
    std::string_view beginning;
  } rows[] = {
      {"", 10, ""},
      {" \r\n\t", 10, ""},
      {"nail", 10, "nail"},
      {"nail", 4, "nail"},
      {"nail", 3, "nai…"},
      {"nail in the kerb", 5, "nail…"},
      {"nail \r\nin the kerb", 10, "nail…"},
      {"nail\nkerb", 10, "nail…"},
      {"\r\n  nail\r\n\r\n", 10, "nail"},
      {"杭が傾いている", 3, "杭が傾…"},
      {"杭が傾いている", 7, "杭が傾いている"},
      {"nail", 0, "…"},
      {"a\xE6\x9C", 10, "a\xE6\x9C"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.beginning, MemoBeginning(row.memo, row.most)) << row.memo << ' ' << row.most;
  }
}

}  // namespace
}  // namespace fieldhost
