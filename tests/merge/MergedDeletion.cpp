// SPDX-License-Identifier: MIT
#include "merge/MergedDeletion.h"

#include "app/EmbeddedCleanup.h"
#include "delete/DeleteProc.h"
#include "library/WorkerEvent.h"
#include "merge/LibraryMerge.h"
#include "restore/CleanupRestore.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep::test {

/// The scripts, but for texts that fail.
class MergedDeletion::Scripts final : public AppleScript {
  public:
    explicit Scripts(MergedDeletion& deletion)
        : m_deletion(deletion) {}

    Result<Descriptor> executeAndReturnError(std::string_view source) override {
        const Error failure{Error::Code::failed, "it failed"};
        if (isPart(m_deletion.refusedPart, source)) return failure;
        auto result = m_deletion.m_scripts->executeAndReturnError(source);
        if (isPart(m_deletion.failingPart, source)) return failure;
        return result;
    }

  private:
    static bool isPart(const std::string& part, std::string_view source) {
        return !part.empty() && source.find(part) != std::string_view::npos;
    }

    MergedDeletion& m_deletion;
};

MergedDeletion::MergedDeletion(std::string_view library, const std::vector<MarkedCopy>& copies)
    : m_path(m_folder.write("library.xml", library))
    , m_center(std::make_unique<NotificationCenter<WorkerEvent>>()) {
    EmbeddedScripting::Options options;
    options.log = &m_log;
    options.writes = {std::chrono::hours(1), std::chrono::hours(1)};
    m_scripts = std::make_unique<EmbeddedScripting>(m_path, m_desktop, m_files, options);
    for (const MarkedCopy& copy : copies) {
        TrackRecord& record = m_records.emplace_back();
        record.gid = copy.gid;
        record.pid = m_texts.emplace_back(copy.pid).c_str();
        record.checkbox = copy.isMarked;
        m_list.rows.push_back(&record);
    }
    m_center->setObserver([this](const WorkerEvent& event) {
        if (const auto* merged = std::get_if<std::shared_ptr<MergeReport>>(&event.payload))
            m_merged = *merged;
        if (const auto* report = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
            m_report = **report;
        observer(event);
    });
}

MergedDeletion::~MergedDeletion() = default;

DeleteReport MergedDeletion::carryOut(const MergeChoice& choice) {
    EmbeddedCleanup cleanup(*m_scripts, [] { return true; }, {{"a test"}, "Songsweep of a test"});
    Scripts scripts(*this);
    DeletePlan plan;
    plan.merge = merge(choice, cleanup, scripts);
    DeleteProc(m_list, false, {*m_center, scripts, m_files, m_log, cleanup}, std::move(plan)).main();
    return m_report;
}

MergeReport MergedDeletion::merge(const MergeChoice& choice, Cleanup& cleanup, AppleScript& scripts) {
    const auto plan = [this](const SongsToMerge& songs, const MergeChoice& chosen) {
        return m_scripts->withLibrary(
            [&](LibraryDocument& library) { return planMerge(library, songs, chosen, road); });
    };
    MergeProc(m_list, choice, {*m_center, scripts, m_log, cleanup, plan}).main();
    EXPECT_EQ(m_merged->notBegun, "");
    return *m_merged;
}

void MergedDeletion::restore() {
    m_scripts.reset();
    const auto record = RecordedCleanup::read(m_report.record);
    ASSERT_TRUE(record) << record.error().message;
    const auto restored = CleanupRestore(m_path, record.value(), m_desktop.trash())
                              .carryOut({.program = "a test", .purpose = "a test"});
    ASSERT_TRUE(restored) << restored.error().message;
    EXPECT_EQ(restored.value().problem, "");
}

int MergedDeletion::writes() const {
    const auto lines = m_log.lines();
    return static_cast<int>(std::ranges::count_if(
        lines, [](const std::string& line) { return line.starts_with("Library written"); }));
}

} // namespace songsweep::test
