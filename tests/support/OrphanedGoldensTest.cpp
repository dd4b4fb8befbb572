#include "support/GoldenFolder.h"

// An accepted text that no test asks for any more has to be deleted.
TEST(GoldenFilesTest, AreAllAskedForByATest) {
    EXPECT_EQ(support::OrphanedGoldens(), std::vector<std::string>());
}
