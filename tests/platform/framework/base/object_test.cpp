// CObject and the run-time description of a class.
#include <afx.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace {

class Mark : public CObject {
  DECLARE_DYNAMIC(Mark)
};
class RoundMark : public Mark {
  DECLARE_DYNAMIC(RoundMark)
 public:
  int radius = 0;
};
class Plain : public CObject {};

IMPLEMENT_DYNAMIC(Mark, CObject)
IMPLEMENT_DYNAMIC(RoundMark, Mark)

static_assert(!std::is_copy_constructible_v<Mark> && !std::is_copy_assignable_v<Mark>);
static_assert(!std::is_copy_constructible_v<CObList> && !std::is_copy_assignable_v<CFile>);
static_assert(std::has_virtual_destructor_v<CObject>);

TEST(RuntimeClass, KnowsItsNameSizeAndBase) {
  EXPECT_STREQ("RoundMark", RUNTIME_CLASS(RoundMark)->m_lpszClassName);
  EXPECT_EQ(static_cast<int>(sizeof(RoundMark)), RUNTIME_CLASS(RoundMark)->m_nObjectSize);
  EXPECT_EQ(RUNTIME_CLASS(Mark), RUNTIME_CLASS(RoundMark)->m_pBaseClass);
  EXPECT_STREQ("CObject", RUNTIME_CLASS(CObject)->m_lpszClassName);
  EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->m_pBaseClass);
}

TEST(RuntimeClass, AnObjectIsOfItsClassAndOfEveryBase) {
  const RoundMark round;
  const CObject& object = round;
  EXPECT_EQ(RUNTIME_CLASS(RoundMark), object.GetRuntimeClass());
  EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(RoundMark)));
  EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(Mark)));
  EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
  EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CFile)));
  EXPECT_FALSE(Mark().IsKindOf(RUNTIME_CLASS(RoundMark)));
}

TEST(RuntimeClass, AClassThatDeclaresNothingCountsAsItsBase) {
  EXPECT_EQ(RUNTIME_CLASS(CObject), Plain().GetRuntimeClass());
}

TEST(RuntimeClass, OfTheFrameworksOwnClasses) {
  EXPECT_TRUE(CFile().IsKindOf(RUNTIME_CLASS(CFile)));
  EXPECT_TRUE(CObList().IsKindOf(RUNTIME_CLASS(CObList)));
  const CFileException error;
  EXPECT_TRUE(error.IsKindOf(RUNTIME_CLASS(CFileException)));
  EXPECT_TRUE(error.IsKindOf(RUNTIME_CLASS(CException)));
  EXPECT_FALSE(error.IsKindOf(RUNTIME_CLASS(CMemoryException)));
}

}  // namespace
