// SPDX-License-Identifier: MIT
#pragma once

#include "app/CopyActions.h"
#include "app/ExportActions.h"
#include "app/FolderActions.h"
#include "app/MapGuess.h"
#include "app/OpenedLibrary.h"
#include "app/SoundActions.h"
#include "app/views/NoticeView.h"
#include "operations/BackgroundCall.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>

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
    void setExporter(Exporter exporter) { m_export.setExporter(std::move(exporter)); }
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
    void guessMap(const std::string& folder);
    void offerMap(const std::string& folder, const std::optional<MapGuess>& guess);
    void chooseLibrary(const std::string& path);
    void openLibrary(const std::string& path);
    void openFolder(const std::string& path);
    void openFile(const std::string& path);
    void previewMarks();
    void updateMarkPreview();
    QString markReason(int row) const;
    void quit();

    Windows& m_windows;
    AppController& m_controller;
    OpenLibrary m_openLibrary;
    FolderActions m_folder;
    SoundActions m_sound;
    ExportActions m_export;
    CopyActions m_copies;
    QTimer m_previewing;
    BackgroundCall<std::optional<MapGuess>> m_guess;
};

} // namespace songsweep
