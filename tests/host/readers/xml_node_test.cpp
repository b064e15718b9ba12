#include "host/readers/xml_node.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(ReadXmlTree, KeepsWhatThereIsInItsOrder) {
  const XmlTree tree = ReadXmlTree("<a x=\"1\">2<b>3</b>\n<b>4</b><c/>5</a>", {});
  EXPECT_FALSE(tree.problem);
  EXPECT_EQ(tree.root.name, "a");
  EXPECT_EQ(tree.root.Attribute("x"), "1");
  EXPECT_EQ(tree.root.Attribute("y"), "");
  ASSERT_EQ(tree.root.children.size(), 3U);
  EXPECT_EQ(tree.root.children[1].text, "4");
  EXPECT_EQ(tree.root.children[1].line, 2);
  ASSERT_TRUE(tree.root.Child("b"));
  EXPECT_EQ(tree.root.Child("b")->text, "3");
  EXPECT_FALSE(tree.root.Child("d"));
  EXPECT_EQ(tree.root.text.front(), '2');
  EXPECT_EQ(tree.root.text.back(), '5');
}

TEST(ReadXmlTree, LeavesElementsOutWithAllThatIsInThem) {
  constexpr std::string_view kLeftOut[] = {"b", "d"};
  const XmlTree tree = ReadXmlTree("<a>1<b>2<c>3</c><b/></b><c>4<d/></c>5</a>", kLeftOut);
  EXPECT_FALSE(tree.problem);
  EXPECT_EQ(tree.root.text, "15");
  ASSERT_EQ(tree.root.children.size(), 1U);
  EXPECT_EQ(tree.root.children[0].text, "4");
  EXPECT_TRUE(tree.root.children[0].children.empty());
}

TEST(ReadXmlTree, SaysWhatIsWrong) {
  constexpr std::string_view kRoot[] = {"a"};
  EXPECT_TRUE(ReadXmlTree("", {}).problem);
  EXPECT_TRUE(ReadXmlTree("<a><b></a>", {}).problem);
  EXPECT_EQ(ReadXmlTree("<a/>", kRoot).root.name, "");
}

}  // namespace
}  // namespace fieldhost
