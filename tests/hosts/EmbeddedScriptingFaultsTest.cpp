// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScripting.h"
#include "hosts/RecordingDesktop.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace songsweep {
namespace {

using test::manyTracks;
using test::persistentIdOf;
using testing::SizeIs;

/// Until its end no file can be opened.
class NoDescriptors {
  public:
    NoDescriptors() {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;
    ~NoDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_before); }

  private:
    rlimit m_before{};
};

/// A library whose file cannot be read or written for a while.
class EmbeddedScriptingFaultsTest : public testing::Test {
  protected:
    EmbeddedScriptingFaultsTest() {
        EmbeddedScripting::Options options;
        options.library.lockTimeout = std::chrono::milliseconds(1);
        options.writes = {std::chrono::hours(1), std::chrono::hours(1)};
        options.writeFailed = [this](const Error& error) { m_told.push_back(error.message); };
        m_scripts = std::make_unique<EmbeddedScripting>(m_path, m_desktop, m_files, options);
    }

    void deleteTrack(int number) {
        ASSERT_TRUE(m_scripts->executeAndReturnError(test::deleteTrackText(persistentIdOf(number))));
    }
    CleanupLock lock() {
        auto lock = CleanupLock::acquire(m_path, {"another program"});
        EXPECT_TRUE(lock);
        return std::move(lock).value();
    }

    test::Folder m_folder;
    std::string m_path = m_folder.write("library.xml", manyTracks(4));
    test::RecordingDesktop m_desktop;
    Files m_files;
    std::vector<std::string> m_told;
    std::unique_ptr<EmbeddedScripting> m_scripts;
};

TEST_F(EmbeddedScriptingFaultsTest, EveryFailureIsTold) {
    const CleanupLock held = lock();
    for (int n = 0; n < 2; ++n) {
        deleteTrack(n);
        EXPECT_FALSE(m_scripts->flush());
    }
    EXPECT_THAT(m_told, SizeIs(2)); // Each took other deletions with it.
}

TEST_F(EmbeddedScriptingFaultsTest, AFailureAfterAGoodWriteIsTold) {
    for (int n = 0; n < 4; n += 2) {
        deleteTrack(n);
        EXPECT_TRUE(m_scripts->flush());
        const CleanupLock held = lock();
        deleteTrack(n + 1);
        EXPECT_FALSE(m_scripts->flush());
        EXPECT_THAT(m_told, SizeIs(n / 2 + 1));
    }
}

TEST_F(EmbeddedScriptingFaultsTest, ALibraryThatCouldNotBeOpenedIsLookedAtAgain) {
    {
        const NoDescriptors none;
        EXPECT_FALSE(m_scripts->trackCount());
    }
    const auto count = m_scripts->trackCount(); // of the same version of the file
    ASSERT_TRUE(count) << count.error().message;
    EXPECT_EQ(count.value(), 4);
}

} // namespace
} // namespace songsweep
