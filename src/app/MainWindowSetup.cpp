// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "platform/Words.h"
#include "theme/Icons.h"
#include "theme/Metrics.h"
#include "ui/ColumnLook.h"
#include "ui/MessagePageView.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

namespace songsweep {

namespace {

/// The picture of every size as one of its own, since it grows with the font and not only with the screen.
QIcon dtrackImage() {
    QIcon icon;
    for (const char* file : {":/dtrack.png", ":/dtrack@2x.png", ":/dtrack@3x.png"}) {
        QPixmap pixmap(QString::fromLatin1(file));
        pixmap.setDevicePixelRatio(1);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

void MainWindow::setUpToolbar() {
    m_ui->searchButton->setIcon(themedIcon(Icon::search));
    m_ui->autoMarkButton->setIcon(themedIcon(Icon::mark));
    m_ui->deleteButton->setIcon(themedIcon(Icon::bin));
    m_ui->formprogressCancelButton->setIcon(themedIcon(Icon::cancel));
    connect(m_ui->searchButton, &QToolButton::clicked, this, &MainWindow::startButtonClick);
    connect(m_ui->autoMarkButton, &QToolButton::clicked, this, &MainWindow::markButtonClick);
    connect(m_ui->deleteButton, &QToolButton::clicked, this, &MainWindow::deleteButtonClick);
    connect(m_ui->formprogressCancelButton, &QToolButton::clicked, this, &MainWindow::cancelformButtonClick);
}

void MainWindow::setUpToolTips() {
    const auto describe = [](QWidget* button, const QString& text, const QKeySequence& key) {
        button->setToolTip(QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    };
    describe(m_ui->searchButton, tr("Find duplicates"), m_ui->searchMenuitem->shortcut());
    describe(m_ui->autoMarkButton, tr("Mark copies by a rule"), m_ui->autoMarkMenuitem->shortcut());
    describe(m_ui->deleteButton, tr("Delete the marked tracks"), m_ui->deleteMarkedMenuitem->shortcut());
    describe(m_ui->formprogressCancelButton, tr("Cancel search"), Qt::Key_Escape);
}

/// The keys of two pages; a page out of sight hears none. Escape is no shortcut of its button, which would
/// press it a tenth of a second late.
void MainWindow::setUpPageKeys() {
    auto* cancel = new QShortcut(Qt::Key_Escape, m_ui->progressPage);
    connect(cancel, &QShortcut::activated, m_ui->formprogressCancelButton, &QToolButton::click);
    auto* search = new QShortcut(Qt::Key_Return, m_ui->emptyPage);
    search->setContext(Qt::WidgetShortcut);
    connect(search, &QShortcut::activated, this, [this] { m_ui->emptyPage->leadingButton().click(); });
}

void MainWindow::setUpTable(Log& log) {
    m_model->setDtrackImage(dtrackImage());
    m_model->setObjectValueHandler([this](Column column, int row, bool value) {
        Q_EMIT setObjectValue(value, column, m_filter->rowOf(row));
    });
    SWTableView* table = m_ui->tableview;
    table->setUp(*m_model, log);
    connect(table, &SWTableView::tableviewSpacebar, this, &MainWindow::tableviewSpacebar);
    connect(table, &SWTableView::tableviewDoubleClick, this, &MainWindow::tableviewDoubleClick);
    connect(table, &SWTableView::didClickTableColumn, this, &MainWindow::didClickTableColumn);
}

void MainWindow::setUpContextMenu() {
    auto* menu = new QMenu(m_ui->tableview);
    menu->addAction(m_ui->playMenuitem);
    menu->addAction(m_ui->showinFinderMenuitem);
    menu->addSeparator();
    menu->addAction(m_ui->markSelectedMenuitem);
    menu->addAction(m_ui->unmarkSelectedMenuitem);
    menu->addSeparator();
    menu->addAction(m_ui->markAllMenuitem);
    menu->addAction(m_ui->unmarkAllMenuitem);
    m_ui->tableview->setContextMenu(menu);
}

void MainWindow::connectFileMenu() {
    connect(m_ui->openLibraryMenuitem, &QAction::triggered, this, &MainWindow::chooseLibrary);
    connect(m_ui->openFolderMenuitem, &QAction::triggered, this, &MainWindow::chooseFolder);
    connect(m_ui->searchMenuitem, &QAction::triggered, this, &MainWindow::startButtonClick);
    connect(m_ui->exportMenuitem, &QAction::triggered, this, &MainWindow::chooseExport);
    connect(m_ui->deleteMarkedMenuitem, &QAction::triggered, this, &MainWindow::deleteMarkedMenuClick);
    connect(m_ui->restoreMenuitem, &QAction::triggered, this, &MainWindow::restoreMenuClick);
    connect(m_ui->closeMenuitem, &QAction::triggered, this, &MainWindow::close);
    connect(m_ui->quitMenuitem, &QAction::triggered, this, &MainWindow::quit);
#ifdef Q_OS_MACOS
    m_ui->deleteMarkedMenuitem->setShortcut(Qt::CTRL | Qt::Key_Backspace);
    m_ui->guideMenuitem->setShortcut(Qt::CTRL | Qt::Key_Question);
    m_ui->showinFinderMenuitem->setText(MainWindow::tr("Show in Finder"));
#endif
}

void MainWindow::connectMarkAndTrackMenu() {
    fillSortMenu();
    connect(m_ui->autoMarkMenuitem, &QAction::triggered, this, &MainWindow::markButtonClick);
    const std::array<QAction*, 4> byTag = {m_ui->markSelectedMenuitem, m_ui->unmarkSelectedMenuitem,
                                           m_ui->markAllMenuitem, m_ui->unmarkAllMenuitem};
    for (std::size_t tag = 0; tag < byTag.size(); ++tag)
        connect(byTag[tag], &QAction::triggered, this,
                [this, tag] { Q_EMIT markMenuClick(static_cast<std::int32_t>(tag)); });
    connect(m_ui->compareSoundMenuitem, &QAction::triggered, this, &MainWindow::compareSoundMenuClick);
    connect(m_ui->undoMenuitem, &QAction::triggered, this, &MainWindow::undoMarksClick);
    connect(m_ui->redoMenuitem, &QAction::triggered, this, &MainWindow::redoMarksClick);
    connect(m_ui->copyRowsMenuitem, &QAction::triggered, this, &MainWindow::copyRows);
    connect(m_ui->playMenuitem, &QAction::triggered, this, &MainWindow::playMenuClick);
    connect(m_ui->showinFinderMenuitem, &QAction::triggered, this, &MainWindow::showinFinderMenuClick);
}

/// For whoever has no pointer; the titles stand in their order, but for those that order nothing.
void MainWindow::fillSortMenu() {
    for (const Column column : allColumns) {
        if (column == Column::dtrack) continue;
        QAction* item = m_ui->sortMenu->addAction(columnLook(column).spokenTitle);
        connect(item, &QAction::triggered, this, [this, column] { Q_EMIT didClickTableColumn(column); });
        if (column == Column::sound) m_sortBySound = item;
    }
}

/// "Ctrl+F: Search" of every menu, and the keys of the table, which stand in no menu.
std::vector<std::string> MainWindow::keyboardLines() const {
    std::vector<std::string> lines;
    const auto add = [&](const QString& keys, const QString& what) {
        lines.push_back((keys + QStringLiteral(": ") + what).toStdString());
    };
    for (const QMenu* menu : m_ui->mainMenu->findChildren<QMenu*>())
        for (const QAction* item : menu->actions())
            if (!item->shortcut().isEmpty())
                add(item->shortcut().toString(QKeySequence::NativeText), item->text()
                                                                             .remove(QLatin1Char('&'))
                                                                             .remove(QStringLiteral("..."))
                                                                             .remove(QChar(0x2026)));
    struct Key {
        const char* keys;
        const char* what;
    };
    static constexpr std::array tableKeys = {
        Key{translatable("Keyboard", "Space"),
            translatable("Keyboard", "Mark the selected rows, or unmark them where all are marked")},
        Key{translatable("Keyboard", "Up, Down"),
            translatable("Keyboard", "The row before, the next row; with Shift more rows")},
        Key{translatable("Keyboard", "Home, End"), translatable("Keyboard", "The first row, the last row")},
        Key{translatable("Keyboard", "Ctrl+Up, Ctrl+Down"),
            translatable("Keyboard", "The first row of the group before, of the next group")},
        Key{translatable("Keyboard", "Esc"), translatable("Keyboard", "In the filter: all rows again")},
        Key{translatable("Keyboard", "Letters"),
            translatable("Keyboard", "The next track whose name begins so")},
        Key{translatable("Keyboard", "Tab"), translatable("Keyboard", "From control to control")},
        Key{translatable("Keyboard", "Esc"),
            translatable("Keyboard", "Cancel a search or a deletion, close a dialog")},
    };
    for (const Key& key : tableKeys)
        add(QCoreApplication::translate("Keyboard", key.keys),
            QCoreApplication::translate("Keyboard", key.what));
    return lines;
}

void MainWindow::connectWindowAndHelpMenu() {
    connect(m_ui->keyboardMenuitem, &QAction::triggered, this,
            [this] { Q_EMIT keyboardMenuClick(keyboardLines()); });
    connect(m_ui->mainWindowMenuitem, &QAction::triggered, this, &MainWindow::mainWindowMenuClick);
    connect(m_ui->guideMenuitem, &QAction::triggered, this, &MainWindow::guideMenuClick);
    connect(m_ui->helpMenuitem, &QAction::triggered, this, &MainWindow::helpButtonClick);
    connect(m_ui->websiteMenuitem, &QAction::triggered, this, &MainWindow::websiteButtonClick);
    connect(m_ui->contactMenuitem, &QAction::triggered, this, &MainWindow::contactButtonClick);
    connect(m_ui->aboutMenuitem, &QAction::triggered, this, &MainWindow::aboutButtonClick);
}

void MainWindow::applyMetrics() {
    const auto grown = [this](int length) { return scaledLength(length, this); };
    constexpr int line = 1;
    m_lengths->grow(*this);
    setMinimumSize(grown(760), grown(420));
    m_ui->toolbar->setFixedHeight(grown(48) - line);
    m_ui->strip->setFixedHeight(grown(24) - line);
    m_ui->toolbarSeparator->setFixedSize(line, grown(20));
    const QSize icon(grown(20), grown(20));
    for (QToolButton* button :
         {m_ui->searchButton, m_ui->autoMarkButton, m_ui->deleteButton, m_ui->formprogressCancelButton})
        button->setIconSize(icon);
    m_ui->formprogress->setFixedWidth(grown(364));
    m_ui->formprogressCancelButton->setFixedSize(grown(28), grown(28));
}

} // namespace songsweep
