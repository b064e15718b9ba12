#include "store/name_pool.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

namespace tavix {
namespace {

TEST(NamePool, KeepsEachName) {
  NamePool pool;
  const PooledName first = pool.Add(u"T1");
  const PooledName empty = pool.Add(u"");
  const PooledName second = pool.Add(u"測点");
  EXPECT_EQ(u"T1", pool.View(first));
  EXPECT_EQ(u"", pool.View(empty));
  EXPECT_EQ(u"測点", pool.View(second));
}

TEST(NamePool, ReplacingLeavesTheOtherNamesAlone) {
  for (const NameView text :
       {NameView(u""), NameView(u"x"), NameView(u"abc"), NameView(u"longer")}) {
    NamePool pool;
    const PooledName before = pool.Add(u"before");
    PooledName name = pool.Add(u"abc");
    const PooledName after = pool.Add(u"after");
    pool.Replace(name, text);
    EXPECT_EQ(pool.View(name), text);
    EXPECT_EQ(u"before", pool.View(before));
    EXPECT_EQ(u"after", pool.View(after));
  }
}

TEST(NamePool, ANameMayBeCopiedFromThePoolItself) {
  NamePool pool;
  const std::u16string text(50, u'n');
  const PooledName first = pool.Add(text);
  for (int i = 0; i < 200; ++i) EXPECT_EQ(pool.View(pool.Add(pool.View(first))), text);
  PooledName other = pool.Add(u"-");
  pool.Replace(other, pool.View(first));
  EXPECT_EQ(pool.View(other), text);
  pool.Replace(other, pool.View(other).substr(7));
  EXPECT_EQ(std::u16string(43, u'n'), pool.View(other));
}

TEST(NamePool, SaysWhenGapsOutweighNames) {
  NamePool pool;
  std::array<PooledName, 10> names;
  for (PooledName& name : names) name = pool.Add(std::u16string(1000, u'n'));
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_FALSE(pool.IsMostlyGaps());
    pool.Drop(names[i]);
  }
  EXPECT_FALSE(pool.IsMostlyGaps());  // exactly half
  pool.Replace(names[9], std::u16string(999, u'n'));
  EXPECT_TRUE(pool.IsMostlyGaps());
  pool.Clear();
  EXPECT_FALSE(pool.IsMostlyGaps());
}

TEST(NamePool, FewGapsAreNotWorthARewrite) {
  NamePool pool;
  pool.Drop(pool.Add(std::u16string(4096, u'n')));
  EXPECT_FALSE(pool.IsMostlyGaps());
  pool.Drop(pool.Add(u"n"));
  EXPECT_TRUE(pool.IsMostlyGaps());
}

}  // namespace
}  // namespace tavix
