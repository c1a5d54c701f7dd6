// SPDX-License-Identifier: MIT
#include "platform/OwnDescriptor.h"

#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace songsweep {
namespace {

TEST(OwnDescriptor, IsWhatItsPathsStandFor) {
    EXPECT_EQ(ownDescriptor("/dev/stdout"), 1);
    EXPECT_EQ(ownDescriptor("/dev/stderr"), 2);
    EXPECT_EQ(ownDescriptor("/dev/fd/0"), 0);
}

TEST(OwnDescriptor, IsFoundThroughALink) {
    const test::TemporaryFolder folder;
    const std::string file = folder.write("file", "");
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    std::filesystem::create_symlink("/dev/fd/" + std::to_string(descriptor), folder.path() + "/link");
    EXPECT_EQ(ownDescriptor(folder.path() + "/link"), descriptor);
    ::close(descriptor);
    EXPECT_EQ(ownDescriptor(folder.path() + "/link"), std::nullopt);
}

TEST(OwnDescriptor, IsNoOtherPath) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(ownDescriptor(folder.write("1", "")), std::nullopt);
    EXPECT_EQ(ownDescriptor(folder.path() + "/missing"), std::nullopt);
    EXPECT_EQ(ownDescriptor("/dev/null"), std::nullopt);
    EXPECT_EQ(ownDescriptor("/dev/fd/x"), std::nullopt);
    EXPECT_EQ(ownDescriptor(""), std::nullopt);
    EXPECT_EQ(ownDescriptor("1"), std::nullopt);
}

} // namespace
} // namespace songsweep
