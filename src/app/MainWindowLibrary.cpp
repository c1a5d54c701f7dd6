// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "library/LocationUrl.h"
#include "library/ValueFormats.h"
#include "platform/DataFolder.h"
#include "scan/FolderLibrary.h"
#include "theme/CountedText.h"
#include "ui/MessagePageView.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStandardPaths>

namespace songsweep {

namespace {

using State = LibraryOverview::State;

QFileInfo fileOf(const std::string& path) { return QFileInfo(QFile::decodeName(path.c_str())); }

/// "~/Music" for "/home/ann/Music"
QString shortened(const QString& path) {
    const QString home = QDir::homePath();
    const bool isBelow = path == home || path.startsWith(home + QLatin1Char('/'));
    return isBelow ? QLatin1Char('~') + path.mid(home.size()) : path;
}

/// "~/Music" for the library of that folder, which lies elsewhere under a name that says nothing; nothing for
/// any other library.
QString folderRead(const std::string& path) {
    const std::optional<FolderLibrary> place = FolderLibrary::ofLibrary(path, dataFolder());
    return place ? shortened(fileOf(place->folder).filePath()) : QString();
}

QString nameOfLibrary(const std::string& path) {
    const QString folder = folderRead(path);
    return folder.isEmpty() ? fileOf(path).fileName() : folder;
}

QString nameAndFolder(const std::string& path) {
    if (const QString folder = folderRead(path); !folder.isEmpty()) return folder;
    const QFileInfo file = fileOf(path);
    return MainWindow::tr("%1 in %2").arg(file.fileName(), shortened(file.path()));
}

QString countedTracks(int count) { return countedText("MainWindow", "%1 tracks", "1 track", count); }

QString countedPlaylists(int count) { return countedText("MainWindow", "%1 playlists", "1 playlist", count); }

QString contentsText(const LibraryContents& contents) {
    return MainWindow::tr("%1, %2, saved %3")
        .arg(countedTracks(contents.tracks), countedPlaylists(contents.playlists),
             QString::fromStdString(shortDateTime(contents.savedSeconds)));
}

QString placesText(const std::vector<std::string>& places) {
    QStringList names;
    for (const std::string& place : places)
        names << shortened(fileOf(place).filePath());
    return MainWindow::tr("Looked in %1").arg(names.join(QStringLiteral(", ")));
}

/// Of a library that is a file; a folder has no iTunes elsewhere.
QString whatIsEdited(const std::string& path) {
    if (!folderRead(path).isEmpty()) return {};
    return MainWindow::tr(
        "Without iTunes Songsweep edits the library file; iTunes elsewhere keeps a database of its own.");
}

MessagePageView::Words pageWords(const LibraryOverview& library) {
    const QString name = nameOfLibrary(library.path);
    const QString title = MainWindow::tr("Find the songs you have twice");
    const QString promise = MainWindow::tr("Nothing is deleted until you say so.");
    switch (library.state) {
    case State::unknown:
        break;
    case State::none:
        return {MainWindow::tr("No iTunes library was found"),
                MainWindow::tr("Open its XML file, or drop it here."), promise, placesText(library.places)};
    case State::reading:
        return {title, QStringLiteral("%1 – %2").arg(name, MainWindow::tr("Reading the library...")),
                promise};
    case State::read:
        return {title, QStringLiteral("%1 – %2").arg(name, contentsText(library.contents)), promise,
                whatIsEdited(library.path)};
    case State::unreadable:
        return {MainWindow::tr("The library can't be read"), QString::fromStdString(library.problem),
                promise};
    }
    return {title, MainWindow::tr("Songsweep reads your iTunes library and shows its duplicates in groups."),
            promise};
}

bool hasNoUse(State state) { return state == State::none || state == State::unreadable; }

} // namespace

void MainWindow::setUpEmptyPage() {
    MessagePageView* page = m_ui->emptyPage;
    page->nameParts(QStringLiteral("empty"));
    page->findChild<QLabel*>(QStringLiteral("emptyTitle"))->setObjectName(QStringLiteral("performLabel"));
    connect(page, &MessagePageView::buttonClicked, this, [this](int index) {
        if (!hasNoUse(m_library.state)) return Q_EMIT startButtonClick();
        index == 0 ? chooseLibrary() : chooseFolder();
    });
    connect(page, &MessagePageView::choiceClicked, this,
            [this](int index) { Q_EMIT openLibrary(m_library.others.at(static_cast<std::size_t>(index))); });
    showPageWords();
}

void MainWindow::showLibrary(const LibraryOverview& library) {
    m_library = library;
    const QString name = nameOfLibrary(library.path);
    setWindowTitle(name.isEmpty() ? QStringLiteral("Songsweep") : QStringLiteral("Songsweep – ") + name);
    showPageWords();
    QStringList choices;
    QStringList paths;
    for (const std::string& other : library.others) {
        choices << nameAndFolder(other);
        paths << fileOf(other).filePath();
    }
    m_ui->emptyPage->setChoices(choices, paths);
    fillRecentMenu();
}

void MainWindow::showPageWords() {
    MessagePageView* page = m_ui->emptyPage;
    page->setWords(pageWords(m_library));
    if (hasNoUse(m_library.state)) {
        page->setButtons({{MainWindow::tr("&Open library...")}, {MainWindow::tr("Choose m&usic folder...")}},
                         0);
    } else {
        page->setButtons({{MainWindow::tr("&Search..."), MainWindow::tr("Find duplicates")}}, 0);
    }
}

void MainWindow::fillRecentMenu() {
    QMenu* menu = m_ui->openRecentMenu;
    menu->clear();
    for (const std::string& path : m_library.others)
        connect(menu->addAction(nameAndFolder(path).replace(QLatin1Char('&'), QStringLiteral("&&"))),
                &QAction::triggered, this, [this, path] { Q_EMIT openLibrary(path); });
    menu->setEnabled(!menu->isEmpty());
}

void MainWindow::chooseLibrary() {
    if (!m_mayOpenLibrary()) {
        QApplication::beep();
        return;
    }
    auto* dialog = new QFileDialog(this, MainWindow::tr("Open library"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({MainWindow::tr("iTunes libraries (*.xml)"), MainWindow::tr("All files (*)")});
    dialog->setDirectory(m_library.path.empty()
                             ? QStandardPaths::writableLocation(QStandardPaths::MusicLocation)
                             : fileOf(m_library.path).path());
    connect(dialog, &QFileDialog::urlSelected, this, [this](const QUrl& url) {
        const auto path = pathOfUrl(url.toEncoded(QUrl::FullyEncoded).toStdString());
        if (path && !path->empty()) Q_EMIT openLibrary(*path);
    });
    dialog->open();
}

template <typename Chosen>
void MainWindow::openFolderChooser(const QString& title, const QString& start, Chosen chosen) {
    auto* dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setDirectory(start);
    connect(dialog, &QFileDialog::urlSelected, this, [chosen](const QUrl& url) {
        const auto path = pathOfUrl(url.toEncoded(QUrl::FullyEncoded).toStdString());
        if (path && !path->empty()) chosen(*path);
    });
    dialog->open();
}

void MainWindow::chooseFolder() {
    if (!m_mayOpenLibrary()) {
        QApplication::beep();
        return;
    }
    openFolderChooser(MainWindow::tr("Choose music folder"),
                      QStandardPaths::writableLocation(QStandardPaths::MusicLocation),
                      [this](const std::string& path) { Q_EMIT openLibrary(path); });
}

/// The music often lies where its library does.
void MainWindow::chooseFilesFolder() {
    openFolderChooser(MainWindow::tr("Choose the music folder"), fileOf(m_library.path).path(),
                      [this](const std::string& path) { Q_EMIT filesFolderChosen(path); });
}

/// The format is that of the name's ending, which the chosen filter gives to a name without one.
void MainWindow::chooseExport() {
    if (m_filter->all().rows.empty()) {
        QApplication::beep();
        return;
    }
    auto* dialog = new QFileDialog(this, MainWindow::tr("Export results"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({MainWindow::tr("Table (*.csv)"), MainWindow::tr("JSON (*.json)"),
                            MainWindow::tr("Web page (*.html)")});
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(MainWindow::tr("Duplicates.csv"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        const QString ending = filter.section(QLatin1Char('.'), -1).chopped(1);
        dialog->setDefaultSuffix(ending);
        const QStringList files = dialog->selectedFiles();
        if (files.size() == 1)
            dialog->selectFile(QFileInfo(files.front()).completeBaseName() + QLatin1Char('.') + ending);
    });
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& path) { Q_EMIT exportChosen(QFile::encodeName(path).toStdString()); });
    dialog->open();
}

} // namespace songsweep
