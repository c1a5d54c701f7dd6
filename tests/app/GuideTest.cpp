// SPDX-License-Identifier: MIT
#include "app/Guide.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace songsweep::test {
namespace {

TEST(GuideTest, IsFoundWhereItIsInstalledAndWhereItIsBuilt) {
    const TemporaryFolder folder;
    folder.write("usr/bin/songsweep", "");
    EXPECT_EQ(guideFile(folder.path() + "/usr/bin"), std::nullopt);
    folder.write("usr/bin/doc/user-guide.html", "built");
    EXPECT_EQ(guideFile(folder.path() + "/usr/bin"), folder.path() + "/usr/bin/doc/user-guide.html");
    folder.write("usr/share/doc/songsweep/user-guide.html", "installed");
    EXPECT_EQ(guideFile(folder.path() + "/usr/bin"),
              folder.path() + "/usr/share/doc/songsweep/user-guide.html");
}

} // namespace
} // namespace songsweep::test
