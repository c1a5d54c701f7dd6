// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "restore/RestoreProc.h"

#include <string>

namespace songsweep {

class Files;

/// What came of the end of an interrupted deletion.
struct FinishAnswer {
    RecordedCleanup cleanup; ///< with the outcome of each track
    std::string problem;     ///< why it could not be finished; the clean-up is empty then
};

/// Finishes an interrupted deletion on a worker thread; "cleanupFinished" at the end, cancelled or not.
class FinishProc final : public Operation {
  public:
    /// `record` is a path. Files outlive it.
    FinishProc(std::string library, std::string record, const Files& files, const RestoreServices& services)
        : m_library(std::move(library))
        , m_record(std::move(record))
        , m_files(files)
        , m_services(services) {}

    void main() override;

  private:
    Result<RecordedCleanup> finish();

    std::string m_library;
    std::string m_record;
    const Files& m_files;
    RestoreServices m_services;
};

} // namespace songsweep
