// SPDX-License-Identifier: MIT
// A Trash that takes a file and does not note, or not truly, where it came from.
#include "TrashFixture.h"

#include <gio/gio.h>
#include <gmock/gmock.h>

#include <functional>
#include <utility>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// What happens behind the next file that the system has moved to the Trash.
std::function<void()>& behindTheMove() {
    static std::function<void()> action; // The linker's call has no other way to know of it.
    return action;
}

} // namespace
} // namespace songsweep

// NOLINTBEGIN: the names are the linker's.
extern "C" {
gboolean __real_g_file_trash(GFile* file, GCancellable* cancellable, GError** error);
gboolean __wrap_g_file_trash(GFile* file, GCancellable* cancellable, GError** error) {
    const gboolean moved = __real_g_file_trash(file, cancellable, error);
    if (const auto action = std::exchange(songsweep::behindTheMove(), nullptr)) action();
    return moved;
}
}
// NOLINTEND

namespace songsweep {
namespace {

struct Fault {
    std::string name;
    std::function<void(const std::string& record)> happens;
    std::string told;
};

void write(const std::string& file, std::string_view contents) {
    std::ofstream(file, std::ios::binary) << contents;
}

const std::string unknown = "could not note where ";
const std::string wrong = "The Trash noted another place than ";

class UntruthfulTrash : public test::TrashFixture, public testing::WithParamInterface<Fault> {
  protected:
    UntruthfulTrash() { fs::create_directories(m_place); }

    std::string recordPath() const { return m_place / "info/song.mp3.trashinfo"; }
    void happens(const Fault& fault) {
        behindTheMove() = [&fault, record = recordPath()] { fault.happens(record); };
    }
    bool isTrashEmpty() const { return fs::is_empty(m_place / "files") && fs::is_empty(m_place / "info"); }

    std::string m_path = m_folder.write("song.mp3", "sound");
};

TEST_P(UntruthfulTrash, GivesTheFileBack) {
    happens(GetParam());
    const auto moved = m_trash.moveToTrash(m_path);
    ASSERT_FALSE(moved);
    EXPECT_THAT(moved.error().message, HasSubstr(GetParam().told + m_path));
    EXPECT_THAT(moved.error().message, HasSubstr("; the file was put back"));
    EXPECT_EQ(m_folder.read("song.mp3"), "sound");
    EXPECT_TRUE(isTrashEmpty());
}

TEST_P(UntruthfulTrash, KeepsTheFileWhereItsPlaceWasTakenMeanwhileAndIsToldSo) {
    behindTheMove() = [this] {
        GetParam().happens(recordPath());
        m_folder.write("song.mp3", "another sound");
    };
    const auto moved = m_trash.moveToTrash(m_path);
    ASSERT_FALSE(moved);
    const std::string place = m_place / "files/song.mp3";
    EXPECT_THAT(moved.error().message, HasSubstr("; the file is " + place));
    EXPECT_EQ(test::contentsOf(place), "sound");
    EXPECT_EQ(m_folder.read("song.mp3"), "another sound");
}

INSTANTIATE_TEST_SUITE_P(
    Records, UntruthfulTrash,
    testing::Values(
        Fault{"Empty", [](const auto& record) { fs::resize_file(record, 0); }, unknown},
        Fault{"Missing", [](const auto& record) { fs::remove(record); }, unknown},
        Fault{"CutOff", [](const auto& record) { fs::resize_file(record, 20); }, unknown},
        Fault{"CutOffBehindThePath",
              [](const auto& record) { write(record, "[Trash Info]\nPath=/music/song.mp3"); }, unknown},
        Fault{"OfNoTrash", [](const auto& record) { write(record, "Path=/music/song.mp3\n"); }, unknown},
        Fault{"OfAnotherFolder",
              [](const auto& record) { write(record, "[Trash Info]\nPath=/elsewhere/song.mp3\n"); }, wrong},
        Fault{"OfAnotherName",
              [](const auto& record) {
                  const std::string text = test::contentsOf(record);
                  write(record, text.substr(0, text.find("song")) + "other.mp3\n");
              },
              wrong}),
    [](const auto& fault) { return fault.param.name; });

class LosingTrash : public test::TrashFixture {};

TEST_F(LosingTrash, IsNotTakenForOneThatHasTheFile) {
    behindTheMove() = [this] { fs::remove_all(m_place); };
    const auto moved = m_trash.moveToTrash(m_folder.write("song.mp3", "sound"));
    ASSERT_FALSE(moved);
    EXPECT_THAT(moved.error().message, HasSubstr("which does not tell of it"));
}

} // namespace
} // namespace songsweep
