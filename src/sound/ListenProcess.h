// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "sound/Fingerprint.h"

#include <QProcess>

#include <chrono>
#include <functional>
#include <string>

namespace songsweep {

/// A process that decodes files, one after the other, and is started again where it died or was ended.
///
/// Codecs read foreign bytes: what a file may do to them stays in there. A file gets `limit`; one that takes
/// longer, or brings the process down, costs itself alone. Used by one thread, that which made it; waits
/// without an event loop.
class ListenProcess {
  public:
    ListenProcess(std::string program, std::chrono::milliseconds limit);
    ~ListenProcess();
    ListenProcess(const ListenProcess&) = delete;
    ListenProcess& operator=(const ListenProcess&) = delete;

    /// The fingerprint of the file; `cancelled` is asked about twenty times a second.
    Result<Fingerprint> listen(const std::string& path, const std::function<bool()>& cancelled);

  private:
    bool start();
    void end();
    Result<std::string> readLine(const std::function<bool()>& cancelled);

    std::string m_program;
    std::chrono::milliseconds m_limit;
    QProcess m_process;
};

} // namespace songsweep
