// The parser's interface, over Expat natively and over MSXML on Windows.
#include "host/formats/xml/xml_parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace fieldhost {
namespace {

// Writes down what comes: <name@line attribute=value> text </>
class Recorder final : public XmlHandler {
 public:
  void BeginElement(std::string name, std::vector<XmlAttribute> attributes, int line) override {
    events += '<' + name + '@' + std::to_string(line);
    for (const XmlAttribute& attribute : attributes) {
      events += ' ' + attribute.name + '=' + attribute.value;
    }
    events += '>';
  }
  void EndElement() override { events += "</>"; }
  void TakeText(std::string_view text) override {
    if (text.find_first_not_of(" \t\r\n") != std::string_view::npos) events += text;
  }

  std::string events;
};

std::string Nested(unsigned depth) {
  std::string text;
  for (unsigned i = 0; i < depth; ++i) text += "<a>";
  for (unsigned i = 0; i < depth; ++i) text += "</a>";
  return text;
}

TEST(ParseXml, HandsOutElementsAttributesAndText) {
  const struct {
    const char* what;
    std::string_view text;
    std::string_view events;
  } rows[] = {
      {"an empty element", "<a/>", "<a@1></>"},
      {"an element in another", "<a><b>1 2</b></a>", "<a@1><b@1>1 2</></>"},
      {"attributes", "<a x=\"1\" y='2 3'/>", "<a@1 x=1 y=2 3></>"},
      {"an empty element with attributes, and the next", "<a><b x=\"1\"/><c/></a>",
       "<a@1><b@1 x=1></><c@1></></>"},
      {"lines", "\n<a>\r\n<b/>\n\n<c/></a>", "<a@2><b@3></><c@5></></>"},
      {"comments and instructions", "<!-- < --><a><?x y?>1<!-- 2 -->3</a>", "<a@1>13</>"},
      {"text as it stands", "<a><![CDATA[<1&2>]]></a>", "<a@1><1&2></>"},
      {"references", "<a x=\"&lt;&quot;\">&amp;&#65;&#x42;</a>", "<a@1 x=<\">&AB</>"},
      {"other letters", "<点 名=\"表\">é</点>", "<点@1 名=表>é</>"},
      {"a namespace of its own", "<a xmlns=\"urn:a\"><b/></a>", "<a@1><b@1></></>"},
      {"a prefix", "<p:a xmlns:p=\"urn:p\" p:x=\"1\" x=\"2\"/>", "<a@1 x=2></>"},
  };
  for (const auto& row : rows) {
    Recorder recorder;
    EXPECT_FALSE(ParseXml(row.text, recorder)) << row.what;
    EXPECT_EQ(row.events, recorder.events) << row.what;
  }
}

TEST(ParseXml, SaysWhereTextIsNoXml) {
  const struct {
    const char* what;
    std::string_view text;
    int line;
  } rows[] = {
      {"nothing", "", 1},
      {"blanks", " \n ", 2},
      {"no element", "plain", 1},
      {"an element that never ends", "<a>\n<b>\n", 3},
      {"a tag that never ends", "<a>\n<b ", 2},
      {"another end tag", "<a>\n<b>\n</a>", 3},
      {"an attribute without quotes", "<a>\n<b x=1/></a>", 2},
      {"an attribute without value", "<a x/>", 1},
      {"an attribute twice", "<a x=\"1\" x=\"2\"/>", 1},
      {"an unknown entity", "<a>\n&b;</a>", 2},
      {"a bare ampersand", "<a>\n1 & 2</a>", 2},
      {"a prefix that stands for nothing", "<p:a/>", 1},
      {"a second root", "<a/>\n<b/>", 2},
      {"text behind the root", "<a/>\nb", 2},
      {"a control character", "<a>\n\x01</a>", 2},
  };
  for (const auto& row : rows) {
    Recorder recorder;
    const std::optional<XmlProblem> problem = ParseXml(row.text, recorder);
    ASSERT_TRUE(problem) << row.what;
    EXPECT_EQ(XmlFault::kNotWellFormed, problem->fault) << row.what;
    EXPECT_LE(problem->line, row.line) << row.what;
    EXPECT_GE(problem->line, std::max(1, row.line - 1)) << row.what;
  }
}

TEST(ParseXml, TakesElementsToItsDepthAndNoDeeper) {
  Recorder recorder;
  EXPECT_FALSE(ParseXml(Nested(kDeepestXml), recorder));
  for (const unsigned depth : {kDeepestXml + 1, 100000U}) {
    const std::optional<XmlProblem> problem = ParseXml(Nested(depth), recorder);
    ASSERT_TRUE(problem) << depth;
    EXPECT_EQ(XmlFault::kTooDeep, problem->fault) << depth;
  }
}

TEST(ParseXml, TakesTagsToTheirLengthAndNoLonger) {
  const std::string begin = "<a>\n<!-- it's -->\n<b x='>' y=\"";
  const std::string end = "\"/></a>";
  const std::size_t others = std::string_view("<b x='>' y=\"\"/>").size();
  Recorder recorder;
  const std::string longest(kLongestTag - others, '7');
  EXPECT_FALSE(ParseXml(begin + longest + end, recorder));
  EXPECT_EQ(recorder.events, "<a@1><b@3 x=> y=" + longest + "></></>");
  const std::optional<XmlProblem> problem = ParseXml(begin + longest + '7' + end, recorder);
  ASSERT_TRUE(problem);
  EXPECT_EQ(XmlFault::kLongTag, problem->fault);
  EXPECT_EQ(3, problem->line);
}

// Twenty entities, each ten of the one before: expanded, more text than any machine holds.
std::string GrowingEntities() {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 \"grow\">";
  for (int i = 1; i <= 20; ++i) {
    text += "<!ENTITY e" + std::to_string(i) + " \"";
    for (int k = 0; k < 10; ++k) text += "&e" + std::to_string(i - 1) + ";";
    text += "\">";
  }
  return text + "]><a>&e20;</a>";
}

TEST(ParseXml, RefusesDocumentTypesAndSoEntitiesThatGrow) {
  const std::string growing = GrowingEntities();
  for (const std::string_view text : {
           std::string_view(growing),
           std::string_view("<!DOCTYPE a><a/>"),
           std::string_view("<!DOCTYPE a SYSTEM \"http://localhost/a.dtd\"><a/>"),
       }) {
    Recorder recorder;
    const std::optional<XmlProblem> problem = ParseXml(text, recorder);
    ASSERT_TRUE(problem) << text;
    EXPECT_EQ(XmlFault::kDocumentType, problem->fault) << text;
    EXPECT_EQ("", recorder.events) << text;
  }
}

TEST(ParseXml, TakesMuchText) {
  const std::string text(3U << 20U, '7');
  Recorder recorder;
  EXPECT_FALSE(ParseXml("<a>" + text + "</a>", recorder));
  EXPECT_EQ(recorder.events.size(), text.size() + std::string_view("<a@1></>").size());
}

}  // namespace
}  // namespace fieldhost
