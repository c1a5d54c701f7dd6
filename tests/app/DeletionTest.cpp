// SPDX-License-Identifier: MIT
// The confirmation of a deletion while the files are looked at on another thread.
#include "app/ControllerFixture.h"
#include "delete/DeleteTexts.h"
#include "platform/HfsPath.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::Not;

/// Files on a disk that stands still until it is told to go on.
class SlowFiles final : public Files {
  public:
    std::optional<FileAttributes> attributes(const std::string& path) const override {
        std::unique_lock lock(m_lock);
        ++m_looks;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_goesOn; });
        if (path.ends_with("gone.mp3")) return std::nullopt;
        return FileAttributes{.size = 1000, .inode = std::hash<std::string>()(path)};
    }

    bool isReadable(const std::string&) const override { return true; }

    void goOn() {
        const std::lock_guard lock(m_lock);
        m_goesOn = true;
        m_changed.notify_all();
    }
    void waitForALook() {
        std::unique_lock lock(m_lock);
        m_changed.wait(lock, [this] { return m_looks > 0; });
    }
    int looks() const {
        const std::lock_guard lock(m_lock);
        return m_looks;
    }

  private:
    mutable std::mutex m_lock;
    mutable std::condition_variable m_changed;
    mutable int m_looks = 0;
    bool m_goesOn = false;
};

/// Two groups of two; the first rows of both are marked, and one of these has no file.
class DeletionTest : public ControllerFixture {
  protected:
    DeletionTest() {
        ControllerServices slow = services(slowFiles);
        slow.libraryLocations = [this](const LocationVisitor& visit) { return visitAll(visit); };
        controller = std::make_unique<AppController>(std::move(slow), view.views());
        controller->awakeFromNib();
        addRows({1, 1, 2, 2});
        const std::array locations = {"/music/a.mp3", "/music/a2.mp3", "/music/gone.mp3", "/music/b2.mp3"};
        for (std::size_t row = 0; row < records.size(); ++row) {
            records[row]->pid = locations.at(row);
            records[row]->location = locations.at(row);
            records[row]->checkbox = row % 2 == 0;
        }
        view.calls.clear();
    }
    ~DeletionTest() override { slowFiles.goOn(); }

    bool visitAll(const LocationVisitor& visit) const {
        return std::all_of(records.begin(), records.end(),
                           [&](const auto& record) { return visit(record->pid, record->location.string()); });
    }
    bool isAnswered() const { return view.has("updateDeleteConfirmation"); }
    void waitForTheAnswer() {
        slowFiles.goOn();
        ASSERT_TRUE(runEventLoopUntil([this] { return isAnswered(); }));
    }
    void runUntilDeleted() {
        ASSERT_TRUE(
            runEventLoopUntil([this] { return !controller->isDeleting() && !controller->isWorking(); }));
    }
    int deletedTracks() const {
        const auto texts = iTunes.texts();
        return static_cast<int>(std::count_if(texts.begin(), texts.end(), [](const std::string& text) {
            return text.starts_with("tell application \"iTunes\" to delete");
        }));
    }

    SlowFiles slowFiles;
};

TEST_F(DeletionTest, TheConfirmationOpensBeforeAnyFileWasLookedAt) {
    controller->deleteButtonClick();
    EXPECT_THAT(view.calls, Contains("beginDeleteConfirmation"));
    EXPECT_EQ(view.deleteFacts,
              (DeleteConfirmationFacts{.tracks = 2, .embeddedLibrary = true, .filesPending = true}));
    EXPECT_FALSE(isAnswered());
}

TEST_F(DeletionTest, WhatIsToldOfFilesComesWhenTheyWereLookedAt) {
    controller->deleteButtonClick();
    waitForTheAnswer();
    EXPECT_EQ(view.deleteFacts, (DeleteConfirmationFacts{.tracks = 2,
                                                         .filesToTrash = 1,
                                                         .bytesToTrash = 1000,
                                                         .missingFiles = 1,
                                                         .embeddedLibrary = true}));
}

TEST_F(DeletionTest, FilesAreNotDeletedBeforeTheyWereLookedAt) {
    controller->deleteButtonClick();
    controller->delConfOkButtonClick(true);
    EXPECT_THAT(view.calls, Not(Contains("endDeleteConfirmation")));
    waitForTheAnswer();
    controller->delConfOkButtonClick(true);
    EXPECT_THAT(view.calls, Contains("endDeleteConfirmation"));
    runUntilDeleted();
    EXPECT_EQ(deletedTracks(), 2);
}

TEST_F(DeletionTest, ADeletionWithoutFilesWaitsForNoFile) {
    controller->deleteButtonClick();
    slowFiles.waitForALook();
    controller->delConfOkButtonClick(false);
    runUntilDeleted(); // while the disk stands still
    EXPECT_EQ(deletedTracks(), 2);
    slowFiles.goOn();
    controller.reset();
    handleWaitingEvents();
    EXPECT_FALSE(isAnswered());
    EXPECT_EQ(slowFiles.looks(), 1);
}

TEST_F(DeletionTest, CancellingEndsTheLookAtTheFiles) {
    controller->deleteButtonClick();
    slowFiles.waitForALook();
    controller->delConfCancelButtonClick();
    EXPECT_FALSE(controller->isDeleting());
    slowFiles.goOn();
    controller.reset();
    handleWaitingEvents();
    EXPECT_FALSE(isAnswered());
    EXPECT_EQ(slowFiles.looks(), 1);
    EXPECT_EQ(deletedTracks(), 0);
}

TEST_F(DeletionTest, AConfirmationAfterACancelledOneHearsOfItsOwnFilesAlone) {
    controller->deleteButtonClick();
    slowFiles.waitForALook();
    controller->delConfCancelButtonClick();
    records[1]->checkbox = true;
    controller->deleteButtonClick();
    EXPECT_EQ(view.deleteFacts.groupsLosingEveryCopy, 1);
    waitForTheAnswer();
    EXPECT_EQ(view.deleteFacts.filesToTrash, 2);
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "updateDeleteConfirmation"), 1);
}

TEST_F(DeletionTest, TheAnswerOfACancelledConfirmationIsForgotten) {
    slowFiles.goOn();
    controller->deleteButtonClick();
    ASSERT_TRUE(runEventLoopUntil([this] { return isAnswered(); }));
    controller->delConfCancelButtonClick();
    view.calls.clear();
    controller->deleteButtonClick();
    EXPECT_TRUE(view.deleteFacts.filesPending);
    controller->delConfOkButtonClick(true);
    EXPECT_THAT(view.calls, Not(Contains("endDeleteConfirmation"))) << "the former answer is of no use";
}

TEST_F(DeletionTest, CancellingAConfirmedDeletionChangesNothing) {
    const TemporaryFolder folder;
    const std::string file = folder.write("a.mp3", "sound");
    records[0]->location = file.c_str();
    controller->deleteButtonClick();
    waitForTheAnswer();
    controller->delConfOkButtonClick(true);
    controller->delConfCancelButtonClick(); // as a sheet that closes late does
    runUntilDeleted();
    EXPECT_THAT(iTunes.texts(), Contains(deleteTexts::deleteFile(hfsPath(file).value())));
}

TEST_F(DeletionTest, QuittingEndsTheLookAtTheFiles) {
    controller->deleteButtonClick();
    slowFiles.waitForALook();
    EXPECT_TRUE(controller->applicationShouldTerminate());
    slowFiles.goOn();
    controller.reset(); // waits for the thread
    handleWaitingEvents();
    EXPECT_FALSE(isAnswered());
    EXPECT_EQ(slowFiles.looks(), 1);
}

TEST_F(DeletionTest, WithNothingMarkedNoFileIsLookedAt) {
    for (const auto& record : records)
        record->checkbox = false;
    controller->deleteButtonClick();
    EXPECT_EQ(view.deleteFacts, DeleteConfirmationFacts{.embeddedLibrary = true});
    controller->delConfOkButtonClick(true);
    runUntilDeleted();
    EXPECT_EQ(slowFiles.looks(), 0);
}

} // namespace
} // namespace songsweep::test
