// SPDX-License-Identifier: MIT
#pragma once

#include "app/EmbeddedCleanup.h"
#include "delete/DeleteFixture.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteProc.h"
#include "delete/FolderTrash.h"
#include "delete/TrackFacts.h"
#include "dupes/BuildResultProc.h"
#include "dupes/MarkingRules.h"
#include "hosts/EmbeddedScripting.h"
#include "library/SWXMLParser.h"
#include "library/WorkerEvent.h"
#include "libraryfile/LibraryFixture.h"
#include "operations/NotificationCenter.h"
#include "platform/FileUrl.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "support/RecordingLog.h"

#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace songsweep::test {

class OneLibrary final : public Preferences {
  public:
    explicit OneLibrary(const std::string& path)
        : m_domain{{QUrl::fromLocalFile(QString::fromStdString(path)).toEncoded().toStdString()}} {}
    std::optional<IAppsDomain> iAppsDomain() const override { return m_domain; }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return m_domain; }
    std::string homeFolder() const override { return "/"; }

  private:
    IAppsDomain m_domain;
};

class NoSleep final : public Sleeper {
  public:
    void sleep(std::chrono::milliseconds) override {}
};

/// Pairs of copies, a song a name; of each pair the second has the higher bit rate.
class EmbeddedDeletionFixture : public testing::Test {
  protected:
    void writeLibrary(const std::vector<std::string>& fileNames) {
        std::vector<FixtureTrack> tracks;
        std::vector<int> all;
        for (std::size_t n = 0; n < fileNames.size(); ++n) {
            const int id = 100 + static_cast<int>(n);
            tracks.push_back({id, persistentIdOf(id), values(n, m_folder.write(fileNames[n], "sound"))});
            all.push_back(id);
        }
        m_text = libraryXml(tracks, {{"Library", "<key>Master</key><true/>", all}, {"Party", "", all}});
        m_folder.write("library.xml", m_text);
        m_scripts = std::make_unique<EmbeddedScripting>(m_folder.pathOf("library.xml"), m_desktop, m_files);
    }

    /// Replaces a text of the library, everywhere or at its last place alone.
    void replaceAll(const std::string& text, const std::string& by) {
        for (std::size_t at = m_text.find(text); at != std::string::npos; at = m_text.find(text, at))
            m_text.replace(at, text.size(), by);
        m_folder.write("library.xml", m_text);
    }
    void replaceLast(const std::string& text, const std::string& by) {
        m_text.replace(m_text.rfind(text), text.size(), by);
        m_folder.write("library.xml", m_text);
    }

    /// A search by name, as its two workers make it, on this thread.
    DisplayedList search(int trackCount) {
        const SearchParameters parameters = {.issamename = true, .playlist = "Library"};
        const auto list = std::make_shared<TrackList>();
        DisplayedList found = {{}, list->storage};
        m_center.setObserver([&](const WorkerEvent& event) {
            EXPECT_NE(event.name, EventName::xmlErrorParsing);
            if (event.name == EventName::step2) found.rows.push_back(std::get<TrackRecord*>(event.payload));
        });
        OneLibrary preferences(m_folder.pathOf("library.xml"));
        SWXMLParser(list, parameters, trackCount, 0, false, 5, 10,
                    {m_center, *m_scripts, m_files, preferences, m_sleeper, m_log})
            .main();
        BuildResultProc(list, parameters, m_center).main();
        return found;
    }

    DeleteReport deleteMarked(DisplayedList& list, bool leaveSharedFiles = true) {
        const LibraryLocations locations = [this](const LocationVisitor& visit) {
            return m_scripts->forEachLocation(visit).hasValue();
        };
        DeleteReport report;
        m_events.clear();
        m_center.setObserver([&, this](const WorkerEvent& event) {
            m_events.emplace_back(text(event.name));
            if (m_onEvent) m_onEvent(event.name);
            if (const auto* told = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
                report = **told;
        });
        EmbeddedCleanup cleanup(*m_scripts, [] { return true; }, {{"a test", {}}, "Songsweep test"});
        const TracksOfId tracksOfId = [this](std::string_view pid) { return m_scripts->tracksOfId(pid); };
        DeletePlan plan = test::makeDeletePlan(list.rows, m_files, locations);
        if (!leaveSharedFiles) plan.giveUpSharedFiles();
        DeleteProc operation(list, true, {m_center, *m_scripts, m_files, m_log, cleanup, tracksOfId},
                             std::move(plan));
        m_operation = &operation;
        operation.main();
        m_operation = nullptr;
        return report;
    }

    std::string libraryText() const { return contentOf(m_folder.pathOf("library.xml")); }

    Folder m_folder;
    std::string m_text; ///< of the library as it was
    FolderTrash m_trash{m_folder.pathOf("Trash")};
    TrashOnlyDesktop m_desktop{m_trash};
    Files m_files;
    RecordingLog m_log;
    NoSleep m_sleeper;
    NotificationCenter<WorkerEvent> m_center;
    std::unique_ptr<EmbeddedScripting> m_scripts;
    std::vector<std::string> m_events; ///< of the deletion
    DeleteProc* m_operation = nullptr; ///< while it runs
    std::function<void(EventName)> m_onEvent;

  private:
    static std::string values(std::size_t n, const std::string& path) {
        return "<key>Name</key><string>Song " + std::to_string(n / 2) +
               "</string>\n\t\t\t<key>Track Type</key><string>File</string>\n\t\t\t<key>Bit "
               "Rate</key><integer>" +
               std::to_string(128 + 64 * (n % 2)) + "</integer>\n\t\t\t<key>Location</key><string>" +
               fileUrl(path) + "</string>";
    }
};

} // namespace songsweep::test
