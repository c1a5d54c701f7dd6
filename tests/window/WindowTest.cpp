// SPDX-License-Identifier: MIT
#include "window/WindowTest.h"

#include "sample-library/DesktopLibrary.h"
#include "support/EventLoop.h"

#include <QDBusVariant>
#include <QProcessEnvironment>

#include <algorithm>
#include <sstream>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;

/// On a disk: GIO has no Trash for what lies in memory, as the folder for temporary files may.
std::string folderOnDisk() {
    fs::create_directories(SONGSWEEP_WINDOW_FOLDER);
    return SONGSWEEP_WINDOW_FOLDER;
}

std::optional<QList<QVariant>> idlePlayer(const QDBusMessage& call) {
    if (call.member() != QStringLiteral("Get")) return QList<QVariant>{};
    if (call.arguments().value(1) != QStringLiteral("PlaybackStatus")) return std::nullopt;
    return QList<QVariant>{QVariant::fromValue(QDBusVariant(QStringLiteral("Stopped")))};
}

std::optional<QList<QVariant>> willing(const QDBusMessage&) { return QList<QVariant>{}; }

} // namespace

WindowTest::WindowTest()
    : m_folder(folderOnDisk())
    , m_input(m_display.name())
    , m_fileManager(m_bus, QStringLiteral("org.freedesktop.FileManager1"),
                    QStringLiteral("/org/freedesktop/FileManager1"), willing)
    , m_player(m_bus, QStringLiteral("org.mpris.MediaPlayer2.test"),
               QStringLiteral("/org/mpris/MediaPlayer2"), idlePlayer)
    , m_screen(m_bus) {}

void WindowTest::SetUp() {
    ASSERT_FALSE(m_display.name().isEmpty()) << "Xvfb does not start";
    ASSERT_FALSE(m_bus.address().isEmpty()) << "dbus-daemon does not start";
    ASSERT_TRUE(sample::makeDesktopLibrary(m_folder.path()));
    for (const char* name : {"home/Documents", "home/data", "home/config", "home/runtime"})
        fs::create_directories(path(name));
    fs::permissions(path("home/runtime"), fs::perms::owner_all);
}

void WindowTest::TearDown() {
    if (HasFailure()) keepPicture();
    m_program.kill();
    m_program.waitForFinished();
}

/// The developer's own desktop, its theme and scale must not show in the test, nor the test on it.
QProcessEnvironment WindowTest::environment() const {
    const QProcessEnvironment outer = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const char* name : {"PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "TSAN_OPTIONS", "LSAN_OPTIONS"}) {
        const QString key = QLatin1String(name);
        if (outer.contains(key)) environment.insert(key, outer.value(key));
    }
    const auto insert = [&](const char* name, const QString& value) {
        environment.insert(QLatin1String(name), value);
    };
    const QString home = QString::fromStdString(path("home"));
    insert("DISPLAY", m_display.name());
    insert("DBUS_SESSION_BUS_ADDRESS", m_bus.address());
    insert("QT_QPA_PLATFORMTHEME", m_desktop);
    insert("HOME", home);
    insert("XDG_DATA_HOME", home + QStringLiteral("/data"));
    insert("XDG_CONFIG_HOME", home + QStringLiteral("/config"));
    insert("XDG_RUNTIME_DIR", home + QStringLiteral("/runtime"));
    insert("PULSE_SERVER", QStringLiteral("unix:/nonexistent"));
    insert("LC_ALL", QStringLiteral("C.UTF-8"));
    insert("TZ", QStringLiteral("UTC"));
    return environment;
}

void WindowTest::start() {
    m_program.setProcessEnvironment(environment());
    m_program.start(QStringLiteral(SONGSWEEP_PROGRAM),
                    {QStringLiteral("--library"), QString::fromStdString(path("library.xml"))});
    ASSERT_TRUE(becomesActive(mainWindow));
    ASSERT_TRUE(comes("the library's facts", [this] { return hasText(", saved "); }));
}

void WindowTest::quit() {
    m_input.press("ctrl+q");
    waitForTheEnd();
}

void WindowTest::waitForTheEnd() {
    ASSERT_TRUE(comes("the end", [this] { return m_program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 0);
}

void WindowTest::search() {
    m_input.press("ctrl+f");
    ASSERT_TRUE(becomesActive("Search for duplicates"));
    m_input.press("Return");
    ASSERT_TRUE(comes("results", [this] { return m_screen.rowCount() > 0; }));
    ASSERT_TRUE(becomesActive(mainWindow));
}

void WindowTest::markByRule() {
    m_input.press("ctrl+r");
    ASSERT_TRUE(becomesActive("Mark copies"));
    m_input.press("Return");
    ASSERT_TRUE(comes("marks", [this] { return hasText(" marked"); }));
    m_input.press("Escape");
    ASSERT_TRUE(becomesActive(mainWindow));
}

void WindowTest::askToDelete() {
    m_input.press("ctrl+Delete");
    ASSERT_TRUE(becomesActive("Delete tracks"));
}

bool WindowTest::hasText(const std::string& part) const {
    const auto texts = m_screen.texts();
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::string& text) { return text.find(part) != std::string::npos; });
}

::testing::AssertionResult WindowTest::becomesActive(const std::string& title) const {
    return comes("the window \"" + title + '"', [&] { return m_input.activeWindow() == title; });
}

::testing::AssertionResult WindowTest::appears(const std::string& text) const {
    return comes("the text \"" + text + '"', [&] { return m_screen.shows(text); });
}

::testing::AssertionResult WindowTest::comes(const std::string& what,
                                             const std::function<bool()>& condition) const {
    if (runEventLoopUntil(condition)) return ::testing::AssertionSuccess();
    auto failure = ::testing::AssertionFailure() << what << " did not come. Active is \""
                                                 << m_input.activeWindow() << "\". The screen shows:";
    for (const std::string& text : m_screen.texts())
        if (!text.empty()) failure << "\n  " << text;
    failure << "\nThe log ends:";
    const auto lines = log();
    constexpr std::size_t lastLines = 20;
    for (std::size_t at = lines.size() - std::min(lines.size(), lastLines); at < lines.size(); ++at)
        failure << "\n  " << lines[at];
    return failure;
}

std::vector<std::string> WindowTest::log() const {
    std::istringstream text(m_folder.read("home/Documents/songsweep-log.txt"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

bool WindowTest::logHas(const std::string& line) const {
    const auto lines = log();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

int WindowTest::countMarked() const {
    const auto rows = m_screen.rows();
    return static_cast<int>(std::count_if(rows.begin(), rows.end(),
                                          [](const auto& row) { return row[Column::checkbox] == "Marked"; }));
}

void WindowTest::keepPicture() const {
    const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string file = std::string(SONGSWEEP_WINDOW_FOLDER) + "/" + test->name() + ".png";
    if (m_display.picture().save(QString::fromStdString(file)))
        GTEST_LOG_(INFO) << "The screen as it was: " << file;
}

} // namespace songsweep::test
