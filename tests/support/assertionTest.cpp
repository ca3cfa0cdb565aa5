#include "support/assertion.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

TEST(AssertionDeathTest, ConditionSourceAndLineAreToldInEveryBuild) {
    const int* node = nullptr;
    const int line = __LINE__ + 1;
    EXPECT_DEATH(ZDT_ASSERT(node, "resNode"), "\"node\".*resNode.*line " + std::to_string(line));
    ZDT_ASSERT(!node, "resNode");
}

} // namespace
} // namespace zdt
