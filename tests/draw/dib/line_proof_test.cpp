#include "draw/dib/line_proof.h"

#include <gtest/gtest.h>

namespace tavix::test {
namespace {

TEST(LineProof, FindsTheSystemsRule) {
  const std::optional<LineRule> rule = LearnLineRule();
  ASSERT_TRUE(rule);
  EXPECT_TRUE(IsSystemsLineRule(*rule));
}

// A rule that is wrong in one octant must not pass.
TEST(LineProof, RefusesAFalseRule) {
  const std::optional<LineRule> rule = LearnLineRule();
  ASSERT_TRUE(rule);
  for (int octant = 0; octant < LineRule::kOctants; ++octant) {
    LineRule wrong = *rule;
    wrong.SetStepsAtOnce(octant, !rule->StepsAtOnce(octant));
    EXPECT_FALSE(IsSystemsLineRule(wrong)) << octant;
  }
}

}  // namespace
}  // namespace tavix::test
