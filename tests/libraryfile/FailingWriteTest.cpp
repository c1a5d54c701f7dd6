// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"
#include "libraryfile/TemporaryName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::persistentIdOf;
using test::SystemCalls;

constexpr int trackCount = 40;

std::string oldText() { return test::manyTracks(trackCount); }
std::string newText() { return test::withoutTracks(oldText(), {1000, 1002}); }

RecordHeading headingFor(const LibraryDocument& library) {
    RecordHeading heading;
    heading.program = "a test";
    heading.library = library.path();
    heading.backup = library.backup();
    heading.tracks = 2;
    return heading;
}

/// A clean-up of the first two tracks, with its record, in two writes. The tracks that it believes written.
int cleanUp(const std::string& path) {
    auto opened = LibraryDocument::open(path);
    if (!opened) return 0;
    LibraryDocument& library = *opened.value();
    if (!library.beginCleanup({"a test"})) return 0;
    auto created = CleanupRecord::create(headingFor(library));
    if (!created) return 0;
    CleanupRecord record = std::move(created).value();
    for (int n = 0; n < 2; ++n)
        record.plan({persistentIdOf(n), 1000 + 2 * n, "Song " + std::to_string(n), "", "", "", {}});
    if (!record.planned()) return 0;
    int written = 0;
    for (int n = 0; n < 2; ++n) {
        for (const auto track : library.tracksWithPersistentId(persistentIdOf(n)))
            if (!library.remove(track)) return written;
        if (!record.writing(1) || !library.flush()) break;
        record.written();
        record.outcome(static_cast<std::size_t>(n), {RecordedOutcome::Track::deleted, {}, ""});
        ++written;
    }
    using How = RecordEnd::How;
    static_cast<void>(record.end(written == 2 ? How::complete : How::failed, ""));
    return written;
}

std::string textAfter(int written) {
    return written == 2 ? newText() : written == 1 ? test::withoutTracks(oldText(), {1000}) : oldText();
}

/// What is true of the folder whenever a program has ended or was killed.
void expectNothingHalf(const Folder& folder) {
    for (const std::string& name : folder.names()) {
        if (name.ends_with(".xml") && name != "library.xml") {
            EXPECT_TRUE(contentOf(folder.pathOf(name)) == oldText()) << name;
        }
        if (name.ends_with(".jsonl")) {
            const auto record = RecordedCleanup::read(folder.pathOf(name));
            const bool isBegun = std::filesystem::file_size(folder.pathOf(name)) > 0;
            EXPECT_TRUE(record || !isBegun) << record.error().message;
        }
    }
}

/// After a program that lives on, or the next one, nothing is left that nobody can use.
void expectNoRubbish(const Folder& folder) {
    for (const std::string& name : folder.names())
        EXPECT_FALSE(name.starts_with(".")) << name;
}

class FailingWrite : public testing::TestWithParam<int> {};

TEST_P(FailingWrite, LeavesTheOldLibraryOrTheNewAndSaysWhich) {
    int failures = 0;
    for (int call = 1;; ++call) {
        const Folder folder;
        const std::string path = folder.write("library.xml", oldText());
        SystemCalls::failAt(call, GetParam());
        const int written = cleanUp(path);
        SystemCalls::stop();
        const std::string failed = SystemCalls::failed();
        if (failed.empty()) break;
        ++failures;
        SCOPED_TRACE(failed + ", call " + std::to_string(call));
        EXPECT_TRUE(contentOf(path) == textAfter(written)) << "after " << written;
        expectNothingHalf(folder);
        expectNoRubbish(folder);
        // What failed once need not fail for ever.
        EXPECT_EQ(cleanUp(path), 2);
        EXPECT_TRUE(contentOf(path) == newText());
    }
    EXPECT_GT(failures, 60); // The calls are seen, or the test would show nothing.
    RecordProperty("failures", failures);
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingWrite, testing::Values(EIO, ENOSPC, EACCES, EINVAL));

TEST(KilledWrite, AtAnyCallLeavesTheOldLibraryOrTheNew) {
    int kills = 0;
    for (int call = 1;; ++call) {
        const Folder folder;
        const std::string path = folder.write("library.xml", oldText());
        const pid_t child = ::fork();
        if (child == 0) {
            SystemCalls::killAt(call);
            ::_exit(cleanUp(path) == 2 ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSIGNALED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
            break;
        }
        ++kills;
        SCOPED_TRACE("call " + std::to_string(call));
        const std::string left = contentOf(path);
        EXPECT_TRUE(left == textAfter(0) || left == textAfter(1) || left == textAfter(2));
        for (const std::string& name : folder.names())
            if (name.starts_with("library (") && name.ends_with(".xml")) {
                EXPECT_TRUE(contentOf(folder.pathOf(name)) == oldText()) << name;
            }
        EXPECT_EQ(cleanUp(path), 2);
        EXPECT_TRUE(contentOf(path) == newText());
        expectNoRubbish(folder);
    }
    EXPECT_GT(kills, 60);
    RecordProperty("kills", kills);
}

} // namespace
} // namespace songsweep
