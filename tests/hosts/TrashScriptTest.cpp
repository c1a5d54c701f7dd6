// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScripting.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"
#include "platform/linux/LinuxDesktop.h"
#include "support/SystemTexts.h"

#include <QDir>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace songsweep {
namespace {

using test::contentOf;

/// A folder on the file system of the user's home, whose Trash is in the folder too.
class TrashScriptTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        s_folder =
            std::make_unique<QTemporaryDir>(QDir::homePath() + QStringLiteral("/.songsweep-test-XXXXXX"));
        // GIO reads it once in a process, so that all tests of this suite share the folder.
        qputenv("XDG_DATA_HOME", s_folder->path().toUtf8());
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    static std::string path(const std::string& name) { return s_folder->path().toStdString() + "/" + name; }

    static std::unique_ptr<QTemporaryDir> s_folder;
};

std::unique_ptr<QTemporaryDir> TrashScriptTest::s_folder;

TEST_F(TrashScriptTest, AFileGoesToTheTrashWithARecordOfItsPlace) {
    const std::string name = "a:b \xC3\xA4 %20 [1].mp3";
    std::ofstream(path(name)) << "sound";
    LinuxDesktop desktop;
    Files files;
    EmbeddedScripting scripts(path("library.xml"), desktop, files);
    const auto deleted = scripts.executeAndReturnError(test::deleteFileText(hfsPath(path(name)).value()));
    ASSERT_TRUE(deleted) << deleted.error().message;
    EXPECT_FALSE(files.exists(path(name)));
    EXPECT_EQ(contentOf(path("Trash/files/" + name)), "sound");

    const std::string record = contentOf(path("Trash/info/" + name + ".trashinfo"));
    const std::size_t begin = record.find("\nPath=") + 6;
    const std::string place = record.substr(begin, record.find('\n', begin) - begin);
    EXPECT_EQ(QUrl::fromPercentEncoding(QByteArray::fromStdString(place)).toStdString(), path(name));
}

} // namespace
} // namespace songsweep
