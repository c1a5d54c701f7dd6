// SPDX-License-Identifier: MIT
#include "hosts/ITunesObjects.h"

#include "hosts/RecordingDesktop.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using interpreter::Candidates;

constexpr const char* digits = "00A1B2C3D4E5F607";

class ITunesObjectsTest : public testing::Test {
  protected:
    /// What the index finds for `tracks whose persistent ID is "…"`.
    Candidates withPersistentId(const std::string& id) {
        const interpreter::PropertyTest test{static_cast<interpreter::TermCode>(ITunesProperty::persistentId),
                                             interpreter::Comparison::equal, id};
        return PlaylistObject(m_services, 0)
            .candidates(static_cast<interpreter::TermCode>(ITunesClass::track), test)
            .value()
            .value();
    }

    test::Folder m_folder;
    EmbeddedLibrary m_library{
        m_folder.write("library.xml", test::libraryXml({{1, digits, ""}, {2, "B2", ""}}, {})),
        LibraryDocument::Options()};
    Files m_files;
    test::RecordingDesktop m_desktop;
    ITunesServices m_services{m_library, m_files, m_desktop, "12.0"};
};

TEST_F(ITunesObjectsTest, AnIdOfSixteenDigitsIsFoundForCertainInAnyCase) {
    for (const std::string id : {"00A1B2C3D4E5F607", "00a1b2c3d4e5f607"}) {
        const Candidates found = withPersistentId(id);
        EXPECT_EQ(found.objects.size(), 1U) << id;
        EXPECT_EQ(found.certainty, Candidates::Certainty::exact) << id;
    }
}

TEST_F(ITunesObjectsTest, AnyOtherIdIsToBeTestedAgain) {
    const Candidates found = withPersistentId("b2");
    EXPECT_EQ(found.objects.size(), 1U);
    EXPECT_EQ(found.certainty, Candidates::Certainty::tentative);
}

} // namespace
} // namespace songsweep
