// SPDX-License-Identifier: MIT
#include "app/TrackActions.h"

#include "app/ControllerServices.h"
#include "library/TrackRecord.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"
#include "platform/Log.h"

namespace songsweep {

TrackActions::TrackActions(const ControllerServices& services)
    : m_queries(services.scripts, services.log)
    , m_files(services.files)
    , m_desktop(services.desktop)
    , m_log(services.log) {}

void TrackActions::play(const TrackRecord& record) const {
    if (const auto path = hfsPath(record.location)) m_queries.play(*path);
}

void TrackActions::showInFileManager(const TrackRecord& record) const {
    const std::string path = m_files.localPath(record.location.string());
    const Result<void> shown = m_desktop.showInFileManager(path);
    if (!shown) m_log.line("Cannot show " + path + ": " + shown.error().message);
}

} // namespace songsweep
