// SPDX-License-Identifier: MIT
#include "support/TemporaryFolder.h"

#include <QFile>
#include <QMimeDatabase>
#include <QProcess>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

const std::string documentType =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple Computer//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n";
const std::string library = documentType + "\t<key>Major Version</key><integer>1</integer>\n"
                                           "\t<key>Minor Version</key><integer>1</integer>\n";
const QString libraryType = QStringLiteral("audio/x-itunes-library+xml");
const QString xmlType = QStringLiteral("application/xml");

/// The system's types and the package's in one folder, as they are when it is installed.
class MimeType : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!QFile::exists(systemTypes)) GTEST_SKIP() << "the desktop's own types are not installed";
        const QString packages = folder() + QStringLiteral("/mime/packages/");
        m_folder.write("mime/packages/none", {});
        ASSERT_TRUE(QFile::copy(systemTypes, packages + QStringLiteral("freedesktop.org.xml")));
        ASSERT_TRUE(QFile::copy(QStringLiteral(SONGSWEEP_LINUX "/songsweep.xml"),
                                packages + QStringLiteral("songsweep.xml")));
        QProcess update;
        update.setProcessChannelMode(QProcess::MergedChannels);
        update.start(QStringLiteral("update-mime-database"), {folder() + QStringLiteral("/mime")});
        ASSERT_TRUE(update.waitForFinished());
        ASSERT_EQ(update.exitCode(), 0) << update.readAll().toStdString();
        qputenv("XDG_DATA_HOME", "/nowhere");
        qputenv("XDG_DATA_DIRS", folder().toUtf8());
    }

    /// As Qt and the desktops upon it see it.
    static QString qtType(const std::string& path) {
        return QMimeDatabase().mimeTypeForFile(QString::fromStdString(path)).name();
    }

    /// As GLib and the desktops upon it see it.
    static QString glibType(const std::string& path) {
        QProcess info;
        info.start(QStringLiteral("gio"),
                   {QStringLiteral("info"), QStringLiteral("-a"), QStringLiteral("standard::content-type"),
                    QString::fromStdString(path)});
        info.waitForFinished();
        return QString::fromUtf8(info.readAllStandardOutput())
            .section(QStringLiteral("content-type: "), 1)
            .trimmed();
    }

    void expectType(const std::string& path, const QString& type) {
        EXPECT_EQ(qtType(path), type) << path;
        EXPECT_EQ(glibType(path), type) << path;
    }

    QString folder() const { return QString::fromStdString(m_folder.path()); }

    const QString systemTypes = QStringLiteral("/usr/share/mime/packages/freedesktop.org.xml");
    test::TemporaryFolder m_folder;
};

TEST_F(MimeType, KnowsALibraryWhateverItsName) {
    expectType(m_folder.write("iTunes Library.xml", library), libraryType);
    expectType(m_folder.write("old.xml", library), libraryType);
    expectType(m_folder.write("Library", library), libraryType);
}

TEST_F(MimeType, LeavesOtherXmlAlone) {
    expectType(m_folder.write("note.xml", "<?xml version=\"1.0\"?>\n<note/>\n"), xmlType);
    expectType(m_folder.write("bare.xml", "<note/>\n"), xmlType);
    expectType(m_folder.write("Info.xml", documentType + "\t<key>CFBundleName</key><string>x</string>\n"),
               xmlType);
    EXPECT_EQ(qtType(m_folder.write("empty.xml", "")), xmlType);
    EXPECT_NE(qtType(m_folder.write("drawing.svg", "<?xml version=\"1.0\"?>\n<svg/>\n")), libraryType);
}

} // namespace
} // namespace songsweep
