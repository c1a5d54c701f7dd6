// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <QImage>
#include <QProcess>
#include <QString>

namespace songsweep::test {

/// A display of the test's own that no screen shows, with a window manager on it.
///
/// An X server that draws into a file, so that pictures need no other program. Both end with this object, and
/// with the test program should that be killed.
class VirtualDisplay {
  public:
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();

    /// As in the variable DISPLAY; empty where the display could not be started.
    QString name() const { return m_name; }

    /// What a screen would show now.
    QImage picture() const;

  private:
    void startServer();
    void startWindowManager();

    TemporaryFolder m_folder;
    QProcess m_server;
    QProcess m_windowManager;
    QString m_name;
};

} // namespace songsweep::test
