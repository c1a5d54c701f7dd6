// SPDX-License-Identifier: MIT
#include "../cli/SampleLibrary.h"
#include "../sound/Pieces.h"
#include "WindowsFixture.h"
#include "support/EventLoop.h"
#include "ui/CopiesPanelView.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>

#include <algorithm>

namespace songsweep::test {
namespace {

using testing::ElementsAre;

/// Two groups by their tags. One has a recording twice, of which the second is quieter, another performance,
/// and a file that is no sound; the other a piece twice.
class SoundActionsTest : public WindowsFixture {
  protected:
    SoundActionsTest() {
        perform("studio.wav", {.score = 11}, 1);
        perform("quiet.wav", {.score = 11}, 0.4F);
        perform("live.wav", {.score = 11, .tempo = 1.03}, 1);
        perform("second.wav", {.score = 12}, 1);
        perform("second copy.wav", {.score = 12}, 1);
        folder.write("broken.wav", "no sound");
        std::vector<SampleTrack> tracks;
        for (const char* file :
             {"studio.wav", "live.wav", "broken.wav", "quiet.wav", "second.wav", "second copy.wav"})
            tracks.push_back({.id = static_cast<int>(tracks.size()) + 1,
                              .name = tracks.size() < 4 ? "Song" : "Tune",
                              .artist = "X",
                              .milliseconds = 25'000,
                              .bitRate = 100 * (static_cast<int>(tracks.size()) + 1),
                              .path = folder.path() + "/" + file});
        openLibrary(folder.write("sounds.xml", libraryText(tracks)));
        search();
    }

    void perform(const char* file, const Piece& piece, float volume) const {
        std::vector<float> samples = play(piece, 25);
        for (float& sample : samples)
            sample *= volume;
        writeWave(folder.path() + "/" + file, samples);
    }

    template <typename Widget>
    Widget& control(const char* name) {
        auto* const found = window().findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(name);
        return *found;
    }
    QAction& menuItem() { return control<QAction>("compareSoundMenuitem"); }
    bool isColumnShown() {
        return !window().tableview().horizontalHeader()->isSectionHidden(static_cast<int>(Column::sound));
    }
    void compare() {
        menuItem().trigger();
        press("soundCompareButton");
        ASSERT_TRUE(runEventLoopUntil([this] { return controller->soundsCompared(); }));
    }
    /// "1:same" of each row.
    std::vector<std::string> sounds() const {
        std::vector<std::string> texts;
        for (const TrackRecord* const row : rows())
            texts.push_back(row->trackid.string() + ":" + std::string(soundWord(row->sound.verdict)));
        return texts;
    }
    std::vector<std::string> markedTracks() const {
        std::vector<std::string> ids;
        for (const TrackRecord* const row : rows())
            if (row->checkbox) ids.push_back(row->trackid.string());
        return ids;
    }
    std::string reason(int row) { return controller->markReason(*rows().at(static_cast<std::size_t>(row))); }
};

TEST_F(SoundActionsTest, ComparesAllSongsAndShowsWhatWasFound) {
    EXPECT_TRUE(menuItem().isVisible());
    EXPECT_FALSE(isColumnShown());
    menuItem().trigger();
    EXPECT_EQ(control<QRadioButton>("soundListedRB").text(), QStringLiteral("&All songs (6 copies)"));
    EXPECT_FALSE(control<QRadioButton>("soundSelectedRB").isEnabled());
    press("soundCompareButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return controller->soundsCompared(); }));
    EXPECT_TRUE(isColumnShown());
    EXPECT_THAT(sounds(), ElementsAre("1:same", "4:same", testing::AnyOf("2:differs", "2:unsure"),
                                      "3:not readable", "5:same", "6:same"))
        << "copies of one recording stand beside each other";
    EXPECT_TRUE(
        label("noticeLabel").startsWith(QStringLiteral("The sound of 6 files was compared: 4 same, ")))
        << label("noticeLabel").toStdString();
    const auto lines = log.lines();
    EXPECT_THAT(lines, testing::Contains(testing::HasSubstr("broken.wav: no sound")));
}

TEST_F(SoundActionsTest, ComparesTheSongsOfSelectedRowsAlone) {
    select(4, 4);
    menuItem().trigger();
    EXPECT_EQ(control<QRadioButton>("soundSelectedRB").text(), QStringLiteral("&Selected songs (2 copies)"));
    EXPECT_TRUE(control<QRadioButton>("soundSelectedRB").isChecked());
    press("soundCompareButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return controller->soundsCompared(); }));
    EXPECT_THAT(sounds(), ElementsAre("1:", "2:", "3:", "4:", "5:same", "6:same"));
}

TEST_F(SoundActionsTest, ARuleKeepsACopyOfEachRecordingAndSaysWhy) {
    compare();
    const MarkChoice choice = {MarkType::highestBitrate, true, ""};
    EXPECT_EQ(controller->markEffect(choice).marked, 2);
    controller->markOkButtonClick(choice);
    EXPECT_THAT(markedTracks(), ElementsAre("1", "5"));
    EXPECT_EQ(reason(0), "lower bit rate than the kept copy: 100 against 400");
    EXPECT_EQ(reason(1), "kept: 400 against 100");
    EXPECT_TRUE(
        QString::fromStdString(reason(2)).endsWith(QStringLiteral("another recording than the copy below")))
        << reason(2);
    EXPECT_EQ(reason(3), "kept: its sound could not be compared");
    clickTitle(Column::bitrate);
    clickTitle(Column::bitrate);
    EXPECT_EQ(rows()[0]->trackid, "4");
    controller->markOkButtonClick(choice);
    EXPECT_THAT(markedTracks(), ElementsAre("1", "5")) << "in whatever order the rows stand";
}

TEST_F(SoundActionsTest, TheConfirmationCountsCopiesThatAreTheLastOfTheirRecordings) {
    compare();
    click(2, Column::checkbox);
    press("deleteButton");
    const auto* const warning =
        windows.deleteConfirmation().findChild<QLabel*>(QStringLiteral("delConfWarningLabel"));
    ASSERT_NE(warning, nullptr);
    EXPECT_EQ(warning->text(), QStringLiteral("1 marked copy is the last of its recording."));
}

TEST_F(SoundActionsTest, TheDetailsNameTheDegree) {
    compare();
    control<QAction>("detailsMenuitem").trigger();
    auto& panel = control<CopiesPanelView>("copiesPanel");
    const QString text = panel.item(2, 0)->text();
    EXPECT_EQ(panel.verticalHeaderItem(2)->text(), QStringLiteral("Sound"));
    EXPECT_TRUE(text.startsWith(QStringLiteral("same, "))) << text.toStdString();
    EXPECT_FALSE(panel.isRowHidden(2));
}

TEST_F(SoundActionsTest, CancellingLeavesAllAsItWas) {
    menuItem().trigger();
    press("soundCompareButton");
    for (QPushButton* const cancel :
         window().findChildren<QPushButton*>(QStringLiteral("progressCancelButton")))
        if (cancel->isVisible()) cancel->click();
    ASSERT_TRUE(runEventLoopUntil([this] {
        const auto sheets = window().findChildren<ProgressSheet*>();
        return std::none_of(sheets.begin(), sheets.end(), [](auto* sheet) { return sheet->isVisible(); });
    }));
    EXPECT_FALSE(controller->soundsCompared());
    EXPECT_FALSE(isColumnShown());
    compare();
}

TEST_F(SoundActionsTest, AnotherSearchKnowsNothingOfIt) {
    compare();
    search();
    EXPECT_FALSE(controller->soundsCompared());
    EXPECT_FALSE(isColumnShown());
}

} // namespace
} // namespace songsweep::test
