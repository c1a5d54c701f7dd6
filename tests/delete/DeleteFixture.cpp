// SPDX-License-Identifier: MIT
#include "delete/DeleteFixture.h"

#include "delete/DeleteConfirmationFacts.h"
#include "platform/HfsPath.h"
#include "scripting/interpreter/Lexer.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace songsweep::test {

namespace {

/// The part of the text between the two others; nothing where it has another form.
std::optional<std::string> between(std::string_view text, std::string_view before, std::string_view after) {
    if (!text.starts_with(before) || !text.ends_with(after)) return std::nullopt;
    text.remove_prefix(before.size());
    text.remove_suffix(after.size());
    return std::string(text);
}

std::optional<std::string> fileOfText(std::string_view text) {
    return between(text, "tell application \"Finder\" \nset file_to_delete to alias \"",
                   "\" \nset locked of file_to_delete to false \ndelete file_to_delete \nend tell");
}

/// The journal's word for a text. One that is not exactly a text of a deletion stands as it is.
std::string entryOf(std::string_view text) {
    if (text == "tell application \"Finder\" \nset volume with output muted \nend tell") return "mute";
    if (text == "tell application \"Finder\" \nset volume without output muted \nend tell") return "unmute";
    if (const auto pid =
            between(text, "tell application \"iTunes\" to delete (tracks whose persistent ID is \"", "\")"))
        return "track " + *pid;
    if (const auto file = fileOfText(text)) return "file " + *file;
    return std::string(text);
}

} // namespace

DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations) {
    DeleteConfirmationFacts ignored;
    return surveyFiles(SurveyedRows(rows), {files, locations}, ignored, [] { return false; }).value();
}

DeleteFixture::DeleteFixture() {
    m_list.storage = std::make_shared<TrackStorage>();
    m_scripts.setAnswer([this](std::string_view text) { return answer(text); });
    m_center.setObserver([this](const WorkerEvent& event) {
        EXPECT_EQ(event.sender, m_operation);
        if (const auto* report = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload))
            m_report = **report;
        note("event " + std::string(text(event.name)));
    });
    std::filesystem::create_directory(path("Trash"));
}

TrackRecord& DeleteFixture::add(int gid, const char* pid, bool marked, std::string_view location) {
    TrackRecord& record = m_list.storage->makeRecord();
    record.gid = gid;
    record.pid = m_list.storage->store(pid);
    record.name = "Song";
    record.artist = "Artist";
    record.checkbox = marked;
    record.location = m_list.storage->store(location);
    m_list.rows.push_back(&record);
    return record;
}

TrackRecord& DeleteFixture::addFile(const char* pid, bool marked, const std::string& name) {
    return add(1, pid, marked, m_folder.write(name, name));
}

void DeleteFixture::run(bool deleteFiles, DeletePlan plan) {
    DeleteProc operation(m_list, deleteFiles, {m_center, m_scripts, m_files, m_log, m_cleanup, m_tracksOfId},
                         std::move(plan));
    m_operation = &operation;
    operation.main();
}

void DeleteFixture::failAt(const std::string& entry, const std::string& message) {
    m_failingEntry = entry;
    m_failure = message;
}

std::vector<std::string> DeleteFixture::journal(std::string_view beginning) const {
    std::vector<std::string> found;
    std::copy_if(m_journal.begin(), m_journal.end(), std::back_inserter(found),
                 [&](const std::string& entry) {
                     return beginning.empty() ? !entry.starts_with("log ") : entry.starts_with(beginning);
                 });
    return found;
}

std::vector<std::string> DeleteFixture::outcomesOf(const DeleteReport& report) {
    std::vector<std::string> texts;
    for (const DeleteOutcome& outcome : report.outcomes)
        texts.push_back(outcome.pid + ": " + outcomeText(outcome));
    return texts;
}

std::vector<std::string> DeleteFixture::pidsLeft() const {
    std::vector<std::string> pids;
    for (const TrackRecord* const record : m_list.rows)
        pids.push_back(record->pid.string());
    return pids;
}

bool DeleteFixture::exists(const std::string& name) const { return std::filesystem::exists(path(name)); }

int DeleteFixture::trashedCount() const {
    const std::filesystem::directory_iterator files(path("Trash"));
    return static_cast<int>(std::distance(begin(files), end(files)));
}

void DeleteFixture::note(const std::string& entry) {
    m_journal.push_back(entry);
    if (m_hook) m_hook(entry);
}

Result<Descriptor> DeleteFixture::answer(std::string_view text) {
    const std::string entry = entryOf(text);
    note(entry);
    if (entry == m_failingEntry) return Error{Error::Code::failed, m_failure};
    const auto hfs = fileOfText(text);
    if (!hfs) return Descriptor();
    const auto file = posixPath(interpreter::unescapedText(*hfs));
    if (!file) return Error{Error::Code::notFound, "no such volume"};
    moveToTrash(*file);
    return Descriptor();
}

void DeleteFixture::moveToTrash(const std::string& file) const {
    std::filesystem::rename(m_files.localPath(file), path("Trash/" + std::to_string(trashedCount())));
}

} // namespace songsweep::test
