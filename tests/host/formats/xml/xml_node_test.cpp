#include "host/formats/xml/xml_node.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(ReadXmlTree, KeepsWhatThereIsInItsOrder) {
  const XmlTree tree = ReadXmlTree("<a x=\"1\">2<b>3</b>\n<b>4</b><c/>5</a>", {});
  EXPECT_FALSE(tree.problem);
  EXPECT_EQ("a", tree.root.name);
  EXPECT_EQ("1", tree.root.Attribute("x"));
  EXPECT_EQ("", tree.root.Attribute("y"));
  ASSERT_EQ(3U, tree.root.children.size());
  EXPECT_EQ("4", tree.root.children[1].text);
  EXPECT_EQ(2, tree.root.children[1].line);
  ASSERT_TRUE(tree.root.Child("b"));
  EXPECT_EQ("3", tree.root.Child("b")->text);
  EXPECT_FALSE(tree.root.Child("d"));
  EXPECT_EQ('2', tree.root.text.front());
  EXPECT_EQ('5', tree.root.text.back());
}

TEST(ReadXmlTree, LeavesElementsOutWithAllThatIsInThem) {
  constexpr std::string_view kLeftOut[] = {"b", "d"};
  const XmlTree tree = ReadXmlTree("<a>1<b>2<c>3</c><b/></b><c>4<d/></c>5</a>", kLeftOut);
  EXPECT_FALSE(tree.problem);
  EXPECT_EQ("15", tree.root.text);
  ASSERT_EQ(1U, tree.root.children.size());
  EXPECT_EQ("4", tree.root.children[0].text);
  EXPECT_TRUE(tree.root.children[0].children.empty());
}

TEST(ReadXmlTree, SaysWhatIsWrong) {
  constexpr std::string_view kRoot[] = {"a"};
  EXPECT_TRUE(ReadXmlTree("", {}).problem);
  EXPECT_TRUE(ReadXmlTree("<a><b></a>", {}).problem);
  EXPECT_EQ("", ReadXmlTree("<a/>", kRoot).root.name);
}

}  // namespace
}  // namespace fieldhost
