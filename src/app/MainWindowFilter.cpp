// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "platform/Words.h"
#include "theme/Icons.h"
#include "ui/SWTableView.h"
#include "ui_MainWindow.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

#include <array>

namespace songsweep {

namespace {

using Kind = RowFilter::Kind;

struct KindItem {
    Kind kind;
    const char* name;
};

constexpr std::array kindItems = {
    KindItem{Kind::all, translatable("Filter", "All")},
    KindItem{Kind::marked, translatable("Filter", "Marked")},
    KindItem{Kind::missing, translatable("Filter", "Missing")},
    KindItem{Kind::losingEveryCopy, translatable("Filter", "Losing every copy")}};

} // namespace

void MainWindow::setUpFilter() {
    QLineEdit* field = m_ui->filterField;
    QAction* magnifier = field->addAction(themedIcon(Icon::search), QLineEdit::LeadingPosition);
    magnifier->setToolTip(MainWindow::tr("What is shown"));
    auto* kinds = new QMenu(field);
    m_filterKinds = new QActionGroup(this);
    for (const KindItem& each : kindItems) {
        QAction* item = kinds->addAction(QCoreApplication::translate("Filter", each.name));
        item->setCheckable(true);
        item->setChecked(each.kind == Kind::all);
        item->setData(static_cast<int>(each.kind));
        m_filterKinds->addAction(item);
    }
    connect(magnifier, &QAction::triggered, kinds,
            [field, kinds] { kinds->popup(field->mapToGlobal(QPoint(0, field->height()))); });
    connect(m_filterKinds, &QActionGroup::triggered, this, [this] {
        m_lostSongs.clear(); // Chosen here, the kind goes by the marks as they are.
        filterRows();
    });
    connect(field, &QLineEdit::textChanged, this, &MainWindow::filterRows);
    connect(field, &QLineEdit::returnPressed, m_ui->tableview, [this] { m_ui->tableview->setFocus(); });
    auto* leave = new QShortcut(Qt::Key_Escape, field);
    leave->setContext(Qt::WidgetShortcut);
    connect(leave, &QShortcut::activated, this, &MainWindow::endFilter);
    connect(m_ui->filterMenuitem, &QAction::triggered, field, [field] {
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    });
    connect(m_filter, &TableFilter::changed, this, &MainWindow::showFilteredRows);
    connect(m_filter, &TableFilter::dropped, this, &MainWindow::clearFilterControls);
}

void MainWindow::filterRows() {
    const auto kind = static_cast<Kind>(m_filterKinds->checkedAction()->data().toInt());
    if (kind != Kind::losingEveryCopy) m_lostSongs.clear();
    m_filter->setFilter({kind, m_ui->filterField->text().toStdString(), m_lostSongs});
}

/// The field's signals are left on, since its sign for clearing goes by them, too.
void MainWindow::clearFilterControls() {
    m_filterKinds->actions().first()->setChecked(true);
    m_ui->filterField->clear();
}

/// Escape shows all rows again, and goes back to them.
void MainWindow::endFilter() {
    clearFilterControls();
    filterRows();
    m_ui->tableview->setFocus(Qt::OtherFocusReason);
}

void MainWindow::showSongsLosingEveryCopy(std::unordered_set<std::int32_t> songs) {
    clearFilterControls();
    m_lostSongs = std::move(songs);
    for (QAction* item : m_filterKinds->actions())
        if (item->data().toInt() == static_cast<int>(Kind::losingEveryCopy)) item->setChecked(true);
    filterRows();
    m_ui->tableview->setFocus(Qt::OtherFocusReason);
}

void MainWindow::showFilteredRows() {
    m_ui->tableview->reloadData(m_filter->shown());
    updateGainLabel();
}

} // namespace songsweep
