// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "library/Groups.h"
#include "theme/Metrics.h"
#include "ui/CopiesPanelView.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QSplitter>

namespace songsweep {

void MainWindow::setUpDetails() {
    auto* splitter = new QSplitter(Qt::Vertical, m_ui->tableviewContainer);
    splitter->setObjectName(QStringLiteral("detailsSplitter"));
    splitter->setHandleWidth(1);
    delete m_ui->tableLayout->replaceWidget(m_ui->tableview, splitter);
    m_details = new CopiesPanelView(splitter);
    splitter->addWidget(m_ui->tableview);
    splitter->addWidget(m_details);
    splitter->setStretchFactor(0, 1);
    splitter->setCollapsible(0, false);
    m_details->hide();
    connect(m_ui->detailsMenuitem, &QAction::toggled, this, [this](bool shown) {
        m_details->setVisible(shown);
        updateDetails();
    });
    connect(m_ui->tableview->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MainWindow::updateDetails);
    connect(m_details, &CopiesPanelView::markClicked, this, [this](int copy, bool marked) {
        Q_EMIT setObjectValue(marked, Column::checkbox, m_filter->rowOf(m_firstOfDetails + copy));
    });
}

/// The group of the current row; nothing while nobody looks.
void MainWindow::updateDetails() {
    if (m_details->isHidden()) return noteCopies({});
    const std::vector<TrackRecord*>& rows = m_model->rows();
    const int current = m_ui->tableview->currentIndex().row();
    std::vector<TrackRecord*> copies;
    QStringList reasons;
    if (current >= 0 && static_cast<std::size_t>(current) < rows.size()) {
        auto first = static_cast<std::size_t>(current);
        // Of a group without an end the copies before the current one are enough.
        while (first > 0 && rows[first - 1]->gid == rows[first]->gid &&
               static_cast<std::size_t>(current) - first + 1 < CopiesPanelView::mostCopies)
            --first;
        m_firstOfDetails = static_cast<int>(first);
        for (std::size_t row = first; row < rows.size() && rows[row]->gid == rows[first]->gid &&
                                      copies.size() < CopiesPanelView::mostCopies;
             ++row) {
            copies.push_back(rows[row]);
            reasons << m_copyReason(*rows[row]);
        }
    }
    m_details->showCopies({copies.begin(), copies.end()}, reasons, m_copyDifferences(copies));
    noteCopies(copies);
}

/// A mark that changes leaves the copies what they are.
void MainWindow::noteCopies(const std::vector<TrackRecord*>& copies) {
    std::vector<CopyLook::Copy> shown;
    shown.reserve(copies.size());
    for (const TrackRecord* const record : copies)
        shown.push_back({record->pid.string(), record->location.string()});
    if (shown == m_copies) return;
    m_copies = std::move(shown);
    m_details->setFindings({});
    Q_EMIT otherCopiesShown(m_copies);
}

void MainWindow::showCopyFindings(std::vector<CopyFinding> findings) {
    m_details->setFindings(std::move(findings));
}

} // namespace songsweep
