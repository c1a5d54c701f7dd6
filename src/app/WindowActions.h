// SPDX-License-Identifier: MIT
#pragma once

#include "app/CopyActions.h"
#include "app/FolderActions.h"
#include "app/OpenedLibrary.h"
#include "app/ResultsExport.h"
#include "app/SoundActions.h"
#include "app/views/NoticeView.h"

#include <QObject>

#include <functional>
#include <string>
#include <QTimer>

namespace songsweep {

class AppController;
class Windows;

/// Connects what users do in the windows with the actions of the controller, for as long as it lives.
///
/// Windows know no controller and the controller knows no window; this is the one place that knows both. Made
/// after both and gone before either. Main thread.
class WindowActions : public QObject {
    Q_OBJECT
  public:
    /// Turns the embedded library to another file.
    using OpenLibrary = std::function<OpenedLibrary(const std::string& path)>;

    /// `listener` is the program that decodes sounds.
    WindowActions(Windows& windows, AppController& controller, OpenLibrary openLibrary, Log& log,
                  const std::string& listener);

    /// How results are written to a file.
    void setExporter(Exporter exporter) { m_exporter = std::move(exporter); }
    /// Opens a library file or a folder, as if the user had dropped it on the window.
    void open(const std::string& path) { chooseLibrary(path); }

  private:
    void connectToolbarAndMenus();
    void connectLinks();
    void connectTable();
    void connectParametersDialog();
    void connectMarkDialog();
    void connectDeletion();
    void connectRestoring();
    void connectNotices();
    void connectApplication();
    void takeNoticeAction(NoticeAction action);
    void exportResults(const std::string& path);
    void offerMap(const std::string& folder);
    void chooseLibrary(const std::string& path);
    void openLibrary(const std::string& path);
    void openFolder(const std::string& path);
    void openFile(const std::string& path);
    void updateMarkPreview();
    QString markReason(int row) const;
    void quit();

    void previewMarks();
    Windows& m_windows;
    AppController& m_controller;
    OpenLibrary m_openLibrary;
    FolderActions m_folder;
    SoundActions m_sound;
    CopyActions m_copies;
    QTimer m_previewing;
    Exporter m_exporter = [](const ResultsExport&) { return Result<void>(); };
};

} // namespace songsweep
