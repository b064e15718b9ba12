#include "host/formats/xml/xml_text.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(Utf8XmlText, FollowsTheDeclaration) {
  const struct {
    const char* what;
    std::string_view bytes;
    std::string_view text;  // behind the blanks
  } rows[] = {
      {"no declaration", "<a/>", "<a/>"},
      {"a declaration without an encoding", "<?xml version=\"1.0\"?><a>点</a>", "<a>点</a>"},
      {"UTF-8", "<?xml version=\"1.0\" encoding=\"utf-8\"?><a>é</a>", "<a>é</a>"},
      {"UTF-8 with its mark", "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><a>é</a>",
       "<a>é</a>"},
      {"Latin 1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE4</a>", "<a>ä</a>"},
      {"Latin 1 that looks like UTF-8", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\xC3\xA4",
       "Ã¤"},
      {"Windows", "<?xml version=\"1.0\" encoding = 'windows-1252' ?><a>\x80</a>", "<a>€</a>"},
      {"Shift-JIS", "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\x95\x5C</a>", "<a>表</a>"},
      {"Shift-JIS with no label", "<a>\x95\x5C</a>", "<a>表</a>"},
      {"Latin 1 with a wrong label", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>\xF8</a>",
       "<a>ø</a>"},
      {"a name not known here over UTF-8", "<?xml version=\"1.0\" encoding=\"x-mine\"?><a/>",
       "<a/>"},
      {"nothing", "", ""},
  };
  for (const auto& row : rows) {
    const XmlText read = Utf8XmlText(row.bytes);
    EXPECT_EQ("", read.problem) << row.what;
    const std::size_t begin = read.text.find_first_not_of(' ');
    EXPECT_EQ(row.text, begin == std::string::npos ? "" : read.text.substr(begin)) << row.what;
  }
}

TEST(Utf8XmlText, KeepsTheLinesOfTheDeclaration) {
  EXPECT_EQ("\n     \n               \n<a/>", Utf8XmlText("\n<?xml\nversion='1.0'?>\n<a/>").text);
}

TEST(Utf8XmlText, RefusesAnEncodingItDoesNotKnow) {
  EXPECT_EQ("is not text in an encoding that is known here ('euc-jp'); save it as UTF-8",
            Utf8XmlText("<?xml version=\"1.0\" encoding=\"EUC-JP\"?><a>\xC0\xB1</a>").problem);
  EXPECT_EQ("is not text in an encoding that is known here ('shift_jis'); save it as UTF-8",
            Utf8XmlText("<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\x8A</a>").problem);
}

// The bytes of the name went into the sentence, which was then no text itself.
TEST(Utf8XmlText, RefusesANameThatIsNoTextInASentenceThatIs) {
  EXPECT_EQ("is not text in an encoding that is known here ('þtf'); save it as UTF-8",
            Utf8XmlText("<?xml version=\"1.0\" encoding=\"\xFEtf\"?><a>\xC0\xB1</a>").problem);
}

}  // namespace
}  // namespace fieldhost
