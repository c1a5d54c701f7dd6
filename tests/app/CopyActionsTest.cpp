// SPDX-License-Identifier: MIT
// What the panel of copies is told beyond their records.
#include "WindowsFixture.h"
#include "libraryfile/LibraryFixture.h"
#include "sample-library/SoundSample.h"
#include "support/EventLoop.h"
#include "ui/CopiesPanelView.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QAction>
#include <QBuffer>
#include <QTableWidget>

#include <taglib/attachedpictureframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

namespace songsweep::test {
namespace {

class CopyActionsTest : public WindowsFixture {
  protected:
    void writeSound(const std::string& name, int coverEdge) {
        folder.write("sounds/here", "");
        const std::string path = folder.path() + "/sounds/" + name;
        ASSERT_TRUE(sample::writeSound(path, {.kind = sample::SoundKind::mp3}));
        if (coverEdge == 0) return;
        QImage cover(coverEdge, coverEdge, QImage::Format_RGB32);
        cover.fill(Qt::blue);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        ASSERT_TRUE(cover.save(&buffer, "PNG"));
        TagLib::MPEG::File file(path.c_str());
        auto* const frame = new TagLib::ID3v2::AttachedPictureFrame; // the tag's from then on
        frame->setPicture(TagLib::ByteVector(bytes.constData(), static_cast<unsigned int>(bytes.size())));
        file.ID3v2Tag(true)->addFrame(frame);
        ASSERT_TRUE(file.save());
    }
    std::string values(const std::string& file) const {
        return "<key>Name</key><string>Song</string><key>Total Time</key><integer>1000</integer>"
               "<key>Track Type</key><string>File</string><key>Location</key><string>file://" +
               folder.path() + "/sounds/" + file + "</string>";
    }
    void showCopies() {
        Q_EMIT window().openLibrary(folder.write(
            "copies.xml",
            libraryXml(
                {{1, "A1", values("one.mp3")}, {2, "A2", values("two.mp3")}, {3, "A3", values("gone.mp3")}},
                {{"Library", "<key>Master</key><true/>", {1, 2, 3}},
                 {"Summer", "", {1}},
                 {"Mix", "", {1, 2}}})));
        search();
        ASSERT_EQ(rows().size(), 3U);
        window().findChild<QAction*>(QStringLiteral("detailsMenuitem"))->trigger();
        window().tableview().setCurrentIndex(window().tableModel().index(0, 2));
    }
    CopiesPanelView& panel() { return *window().findChild<CopiesPanelView*>(); }
    QTableWidgetItem& value(const char* title, int copy) {
        for (int row = 0; row < panel().rowCount(); ++row)
            if (panel().verticalHeaderItem(row)->text() == QLatin1String(title))
                return *panel().item(row, copy);
        throw std::runtime_error(title);
    }
};

TEST_F(CopyActionsTest, ThePanelTellsPlaylistsAndTheArtworkInTheFile) {
    writeSound("one.mp3", 600);
    writeSound("two.mp3", 0);
    showCopies();
    EXPECT_EQ(value("Playlists", 0).text(), QString()) << "nothing is known at once";
    ASSERT_TRUE(runEventLoopUntil([&] { return !value("Playlists", 0).text().isEmpty(); }));
    EXPECT_EQ(value("Playlists", 0).text(), QStringLiteral("Summer, Mix"));
    EXPECT_EQ(value("Playlists", 1).text(), QStringLiteral("Mix"));
    EXPECT_EQ(value("Playlists", 2).text(), QStringLiteral("None"));
    EXPECT_EQ(value("Playlists", 0).font().weight(), QFont::DemiBold);
    EXPECT_TRUE(value("Picture", 0).text().startsWith(QStringLiteral("600 × 600, ")));
    EXPECT_FALSE(value("Picture", 0).icon().isNull());
    EXPECT_EQ(value("Picture", 1).text(), QStringLiteral("None"));
    EXPECT_TRUE(value("Picture", 1).icon().isNull());
    EXPECT_EQ(value("Picture", 2).text(), QString());
}

TEST_F(CopyActionsTest, AMarkLeavesWhatWasFound) {
    writeSound("one.mp3", 0);
    writeSound("two.mp3", 0);
    showCopies();
    ASSERT_TRUE(runEventLoopUntil([&] { return !value("Playlists", 0).text().isEmpty(); }));
    click(1, Column::checkbox);
    EXPECT_EQ(value("Marked", 1).checkState(), Qt::Checked);
    EXPECT_EQ(value("Playlists", 0).text(), QStringLiteral("Summer, Mix"));
}

TEST_F(CopyActionsTest, NothingIsLookedAtWhileThePanelIsClosed) {
    writeSound("one.mp3", 0);
    showCopies();
    window().findChild<QAction*>(QStringLiteral("detailsMenuitem"))->trigger();
    runEventLoopUntil([] { return false; }, std::chrono::milliseconds(300));
    EXPECT_TRUE(panel().isHidden());
    EXPECT_EQ(value("Playlists", 0).text(), QString());
}

} // namespace
} // namespace songsweep::test
