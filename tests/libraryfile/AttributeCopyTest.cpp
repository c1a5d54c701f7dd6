// SPDX-License-Identifier: MIT
#include "libraryfile/AttributeCopy.h"

#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <map>
#include <string>

namespace songsweep {
namespace {

using test::SystemCalls;
using testing::Pair;
using testing::UnorderedElementsAre;

/// Two files, of which the second takes over the first one's attributes.
class AttributeCopyTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!set(m_from, "user.a", "1")) GTEST_SKIP() << "the file system has no attributes";
        ASSERT_TRUE(set(m_from, "user.b", "2"));
        ASSERT_TRUE(set(m_from, "user.c", "3"));
    }
    void TearDown() override {
        ::close(m_from);
        ::close(m_to);
    }

    static bool set(int file, const char* name, const std::string& value) {
        return ::fsetxattr(file, name, value.data(), value.size(), 0) == 0;
    }
    std::map<std::string, std::string> attributes() const {
        std::map<std::string, std::string> found;
        for (const char* const name : {"user.a", "user.b", "user.c", "user.d"}) {
            std::array<char, 16> value{};
            const ssize_t size = ::fgetxattr(m_to, name, value.data(), value.size());
            if (size >= 0) found[name] = std::string(value.data(), static_cast<std::size_t>(size));
        }
        return found;
    }
    Result<void> copy() const { return copyAttributes(m_from, m_to, "to"); }

    test::Folder m_folder;
    int m_from = ::open(m_folder.write("from", "").c_str(), O_RDWR | O_CLOEXEC);
    int m_to = ::open(m_folder.write("to", "").c_str(), O_RDWR | O_CLOEXEC);
};

TEST_F(AttributeCopyTest, GivesEveryAttribute) {
    ASSERT_TRUE(copy());
    EXPECT_THAT(attributes(),
                UnorderedElementsAre(Pair("user.a", "1"), Pair("user.b", "2"), Pair("user.c", "3")));
}

TEST_F(AttributeCopyTest, WhatIsAlreadyAlikeHoldsNothingElseUp) {
    for (const char* const name : {"user.a", "user.b", "user.c"}) {
        for (const char* const other : {"user.a", "user.b", "user.c"})
            ::fremovexattr(m_to, other);
        ASSERT_TRUE(set(m_to, name, std::string(1, static_cast<char>('1' + name[5] - 'a'))));
        ASSERT_TRUE(copy());
        EXPECT_EQ(attributes().size(), 3U) << name;
    }
}

TEST_F(AttributeCopyTest, TakesAwayWhatTheOtherHasNot) {
    ASSERT_TRUE(set(m_to, "user.d", "4"));
    ASSERT_TRUE(copy());
    EXPECT_EQ(attributes().count("user.d"), 0U);
}

TEST_F(AttributeCopyTest, OneThatGoesMeanwhileLeavesTheOthers) {
    constexpr int firstValue = 3; // after the length of the list of names, and the list
    SystemCalls::failAt(firstValue, ENODATA);
    const auto copied = copy();
    SystemCalls::stop();
    EXPECT_TRUE(copied);
    EXPECT_EQ(SystemCalls::failed(), "fgetxattr");
    EXPECT_EQ(attributes().size(), 2U);
}

TEST_F(AttributeCopyTest, OneThatCannotBeReadFailsIt) {
    SystemCalls::failAll("fgetxattr", EIO);
    const auto copied = copy();
    SystemCalls::stop();
    ASSERT_FALSE(copied);
    EXPECT_THAT(copied.error().message, testing::HasSubstr("keep the attributes of to"));
}

} // namespace
} // namespace songsweep
