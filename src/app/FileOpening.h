// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <string>

namespace songsweep {

/// Hears of the files and folders that the system has the running program open: on macOS they come as events,
/// and not as arguments. Main thread; goes before what its handler reaches.
class FileOpening : public QObject {
    Q_OBJECT
  public:
    /// `handler` gets the path of each.
    explicit FileOpening(std::function<void(const std::string& path)> handler);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    std::function<void(const std::string& path)> m_handler;
};

} // namespace songsweep
