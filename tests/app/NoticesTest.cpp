// SPDX-License-Identifier: MIT
// What the window is told when a deletion has ended, and what the message's buttons do.
#include "app/ControllerFixture.h"

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class Notices : public ControllerFixture {
  protected:
    /// The end of a deletion of two tracks, one of them with its file in the Trash.
    std::shared_ptr<DeleteReport> report() const {
        auto made = std::make_shared<DeleteReport>();
        made->outcomes.resize(2);
        for (DeleteOutcome& outcome : made->outcomes) {
            outcome.track = DeleteOutcome::Track::deleted;
            outcome.dealtWith = true;
        }
        made->outcomes[0].file = DeleteOutcome::File::trashed;
        made->outcomes[0].trash = TrashedFile{"/Trash/files", "a.2.mp3"};
        made->backup = "/music/Library (before).xml";
        made->record = "/music/Library (before).jsonl";
        return made;
    }
};

TEST_F(Notices, ADeletionIsToldWithWhatCanBeDoneAboutIt) {
    post(EventName::deleteFinish, report());
    ASSERT_THAT(view.notices, SizeIs(1));
    EXPECT_EQ(view.notices[0].line, "2 tracks deleted, 1 file in the Trash.");
    EXPECT_FALSE(view.notices[0].isWarning);
    EXPECT_THAT(view.notices[0].actions, ElementsAre(NoticeAction::details, NoticeAction::showTrash,
                                                     NoticeAction::showBackup, NoticeAction::restore));
    controller->noticeActionClick(NoticeAction::showTrash);
    controller->noticeActionClick(NoticeAction::showBackup);
    EXPECT_THAT(desktop.calls, ElementsAre("show /Trash/files/a.2.mp3", "show /music/Library (before).xml"));
    controller->noticeActionClick(NoticeAction::details);
    EXPECT_THAT(view.noticeDetails, SizeIs(2));
}

TEST_F(Notices, ACancelledDeletionIsToldToo) {
    auto cancelled = report();
    cancelled->outcomes[1].track = DeleteOutcome::Track::notAttempted;
    cancelled->outcomes[1].dealtWith = false;
    cancelled->how = RecordEnd::How::cancelled;
    post(EventName::deleteCancel, cancelled);
    ASSERT_THAT(view.notices, SizeIs(1));
    EXPECT_EQ(view.notices[0].title, "Cancelled: 1 of 2 tracks deleted");
    EXPECT_TRUE(view.notices[0].isWarning);
}

TEST_F(Notices, WhatCannotBeShownIsNotOffered) {
    auto bare = report();
    bare->outcomes[0].trash.reset();
    bare->backup.clear();
    bare->record.clear();
    post(EventName::deleteFinish, bare);
    EXPECT_THAT(view.notices.at(0).actions, ElementsAre(NoticeAction::details));
}

TEST_F(Notices, ADeletionThatDidNotBeginIsNotTold) {
    auto none = report();
    none->notBegun = "the library is locked";
    post(EventName::deleteCancel, none);
    EXPECT_THAT(view.notices, IsEmpty());
    post(EventName::deleteFinish, std::make_shared<DeleteReport>());
    EXPECT_THAT(view.notices, IsEmpty());
}

TEST_F(Notices, AMessageGoesByItsCrossTheNextSearchAndAnotherLibrary) {
    post(EventName::deleteFinish, report());
    controller->noticeCloseButtonClick();
    EXPECT_THAT(view.notices, IsEmpty());
    post(EventName::deleteFinish, report());
    EXPECT_TRUE(controller->resetForLibrary());
    EXPECT_THAT(view.notices, IsEmpty());
    post(EventName::deleteFinish, report());
    controller->paramOkButtonClick({});
    EXPECT_THAT(view.notices, IsEmpty());
    runUntilIdle();
}

TEST_F(Notices, ALibraryOfTheSystemsITunesIsNotRestored) {
    post(EventName::deleteFinish, report());
    controller->noticeActionClick(NoticeAction::restore);
    controller->restoreMenuClick();
    EXPECT_THAT(view.calls, Contains("beep").Times(2));
}

} // namespace
} // namespace songsweep::test
