// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryRestore.h"

#include "libraryfile/Attempt.h"
#include "libraryfile/WellFormedness.h"

#include <optional>
#include <utility>

namespace songsweep {

struct LibraryRestore::State {
    LibraryTransaction transaction;
    Wanted wanted;
    IndexedLibrary old;
    std::optional<IndexedLibrary> present;
    std::optional<Restoration> plan; // refers to the two
    Outcome outcome;

    Result<void> planNow();
    Result<void> prepare();
    Result<void> replace();
};

namespace {

LibraryRestore::Outcome outcomeOf(const Restoration& plan) {
    return {plan.fates(), plan.notes(), plan.trackCount()};
}

std::uint64_t sizeOf(const std::vector<FilePiece>& pieces) {
    std::uint64_t size = 0;
    for (const FilePiece& piece : pieces)
        size += piece.range.length + piece.text.size();
    return size;
}

} // namespace

/// Looks at the library as it is now, unless it has been looked at and is the same.
Result<void> LibraryRestore::State::planNow() {
    if (present) {
        const auto stamp = LibraryFile::stampOf(transaction.library());
        if (stamp && stamp.value() == present->index.stamp) return {};
    }
    auto opened = IndexedLibrary::open(transaction.library());
    if (!opened) return opened.error();
    plan.reset();
    present = std::move(opened).value();
    auto planned = Restoration::plan(old, *present, wanted.tracks, wanted.merges);
    if (!planned) return planned.error();
    plan = std::move(planned).value();
    outcome = outcomeOf(*plan);
    return {};
}

Result<void> LibraryRestore::State::prepare() {
    if (auto planned = planNow(); !planned) return planned;
    if (plan->trackCount() == 0 && wanted.ownBackup == OwnBackup::forEntries) return {};
    return transaction.prepare(present->file, present->index.stamp, sizeOf(plan->pieces()));
}

Result<void> LibraryRestore::State::replace() {
    if (auto prepared = prepare(); !prepared) return prepared;
    if (plan->trackCount() == 0) return {};
    const auto check = [&](const LibraryFile& written, const LibraryIndex& readBack) -> Result<void> {
        if (!plan->isResult(readBack)) return transaction.readsBackOtherwise();
        return checkWellFormedness(written);
    };
    auto replaced = transaction.replace(present->file, present->index.stamp, plan->pieces(), check);
    return replaced ? Result<void>() : Result<void>(replaced.error());
}

Result<LibraryRestore::Outcome> LibraryRestore::foresee(const std::string& library, const Wanted& wanted) {
    const auto old = IndexedLibrary::open(wanted.backup);
    if (!old) return old.error();
    const auto present = IndexedLibrary::open(library);
    if (!present) return present.error();
    const auto plan = Restoration::plan(old.value(), present.value(), wanted.tracks, wanted.merges);
    if (!plan) return plan.error();
    return outcomeOf(plan.value());
}

Result<LibraryRestore> LibraryRestore::begin(const std::string& library, Wanted wanted,
                                             const CleanupLock::Request& request) {
    auto transaction = LibraryTransaction::begin(library, request, Backup::Purpose::restoration);
    if (!transaction) return transaction.error();
    auto old = IndexedLibrary::open(wanted.backup);
    if (!old) return old.error();
    LibraryRestore restore(std::make_unique<State>(
        State{std::move(transaction).value(), std::move(wanted), std::move(old).value(), {}, {}, {}}));
    if (auto prepared = attempt([&] { return restore.m_state->prepare(); }); !prepared)
        return prepared.error();
    return restore;
}

LibraryRestore::LibraryRestore(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}
LibraryRestore::LibraryRestore(LibraryRestore&& other) noexcept = default;
LibraryRestore::~LibraryRestore() = default;

const std::string& LibraryRestore::library() const { return m_state->transaction.library(); }

std::string LibraryRestore::backup() const {
    const auto& backup = m_state->transaction.backup();
    return backup ? backup->path() : std::string();
}

FileStamp LibraryRestore::version() const {
    const auto& backup = m_state->transaction.backup();
    return backup ? backup->version() : FileStamp();
}

bool LibraryRestore::isNarrowed() const { return m_state->transaction.isNarrowed(); }

const LibraryRestore::Outcome& LibraryRestore::expected() const { return m_state->outcome; }

void LibraryRestore::abandon() { m_state->transaction.abandon(); }

Result<LibraryRestore::Outcome> LibraryRestore::write() {
    if (auto written = attempt([&] { return m_state->replace(); }); !written) return written.error();
    return m_state->outcome;
}

} // namespace songsweep
