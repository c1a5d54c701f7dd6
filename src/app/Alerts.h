// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

/// The alerts, opened as sheets over `parent` and gone when answered; nothing waits for them. Main thread.
namespace songsweep {
struct MapGuess;
}

namespace songsweep::alerts {

/// What the buttons of an alert are called in its end handler: the first, the second.
enum ReturnCode { firstButton = 1000, secondButton = 1001 };

/// "No duplicates found."; `explanation`, where it is not empty, is a second paragraph.
QMessageBox* openNoDuplicates(QWidget* parent, const QString& explanation = {});

/// That iTunes does not answer, with "OK" and "Help". `reason` is a second paragraph, or empty; `ended` is
/// told the return code, `firstButton` also for Escape.
QMessageBox* openCantAccess(QWidget* parent, const QString& message, const QString& reason,
                            std::function<void(int)> ended);

/// "Can't write the library.", with the reason as a second paragraph.
QMessageBox* openCantWriteLibrary(QWidget* parent, const QString& reason);

/// "Can't open the library.", with the reason as a second paragraph.
QMessageBox* openCantOpenLibrary(QWidget* parent, const QString& reason);

/// That the results could not be written, with the reason as a second paragraph.
QMessageBox* openCantExport(QWidget* parent, const QString& reason);

/// Shows the rule by which missing files are found, and asks whether to search with it.
QMessageBox* openSearchWithMap(QWidget* parent, const MapGuess& guess, std::function<void()> accepted);
/// That not one of the files that were tried lies in the folder.
QMessageBox* openNoFilesIn(QWidget* parent, const QString& folder);

/// Whether another library may be opened though marks are lost; `accepted` comes where it may.
QMessageBox* openMarksAreLost(QWidget* parent, int marks, std::function<void()> accepted);

} // namespace songsweep::alerts
