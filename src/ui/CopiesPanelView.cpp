// SPDX-License-Identifier: MIT
#include "ui/CopiesPanelView.h"

#include "theme/Metrics.h"
#include "theme/ThemeColors.h"
#include "ui/CellTexts.h"
#include "ui/ColumnLook.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

constexpr int panelHeight = 168;
constexpr int copyWidth = 240;
constexpr int valueHeight = 22;
constexpr int markRow = 0;
constexpr int differenceRow = 1; ///< both rows of findings only where there are some
constexpr int soundRow = 2;
constexpr int firstValueRow = 3;

constexpr std::array shownColumns = {
    Column::file,      Column::name,      Column::artist,     Column::album,
    Column::time,      Column::bitrate,   Column::sizestring, Column::rating,
    Column::playcount, Column::dateadded, Column::hasartwork, Column::location,
};

constexpr int playlistsRow = firstValueRow + static_cast<int>(shownColumns.size());
constexpr int pictureRow = playlistsRow + 1;
constexpr int pictureHeight = 88;
constexpr int pictureEdge = 80;

QString valueOf(const TrackRecord& record, Column column) {
    if (column == Column::rating) return record.rating > 0 ? QString::number(record.rating) : QString();
    return drawnText(record, column);
}

/// "same, 97 %": how much of it agrees with its recording's other copies, or with the sound most like it.
QString soundText(const TrackRecord& record) {
    const QString word = displayText(record, Column::sound);
    return record.sound.percent == 0 ? word : QStringLiteral("%1, %2 %").arg(word).arg(record.sound.percent);
}

QTableWidgetItem* makeItem(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setToolTip(text);
    return item;
}

/// Of each row whether the copies have not all the same there.
template <class Copies>
std::vector<bool> differingRows(const Copies& copies) {
    std::vector<bool> differing(shownColumns.size(), false);
    for (std::size_t row = 0; row < differing.size(); ++row)
        for (const auto& copy : copies)
            if (copy.values[static_cast<int>(row)] != copies.front().values[static_cast<int>(row)])
                differing[row] = true;
    return differing;
}

} // namespace

CopiesPanelView::CopiesPanelView(QWidget* parent)
    : QTableWidget(parent) {
    setObjectName(QStringLiteral("copiesPanel"));
    setAccessibleName(CopiesPanelView::tr("Copies of the song"));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    horizontalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setUpRows();
    applyMetrics();
    connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (!m_isFilling && item->row() == markRow)
            Q_EMIT markClicked(item->column(), item->checkState() == Qt::Checked);
    });
}

void CopiesPanelView::setUpRows() {
    QStringList titles = {CopiesPanelView::tr("Marked"), CopiesPanelView::tr("Difference"),
                          CopiesPanelView::tr("Sound")};
    for (const Column column : shownColumns)
        titles << columnLook(column).spokenTitle;
    titles.last() = CopiesPanelView::tr("Folder");
    titles << CopiesPanelView::tr("Playlists") << CopiesPanelView::tr("Picture");
    setRowCount(static_cast<int>(titles.size()));
    setVerticalHeaderLabels(titles);
}

QSize CopiesPanelView::sizeHint() const {
    return {QTableWidget::sizeHint().width(), scaledLength(panelHeight, this)};
}

void CopiesPanelView::applyMetrics() {
    const int height = scaledLength(valueHeight, this);
    verticalHeader()->setMinimumSectionSize(height); // A style's own would make every row taller.
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setDefaultSectionSize(scaledLength(copyWidth, this));
    const int edge = scaledLength(pictureEdge, this);
    setIconSize({edge, edge});
}

void CopiesPanelView::showCopies(const std::vector<const TrackRecord*>& copies, const QStringList& reasons,
                                 const QStringList& differences) {
    m_copies.clear();
    for (const TrackRecord* const record : copies) {
        if (m_copies.size() == mostCopies) break;
        const auto place = static_cast<int>(m_copies.size());
        Copy copy{record->checkbox, reasons.value(place), differences.value(place), soundText(*record), {}};
        for (const Column column : shownColumns)
            copy.values << valueOf(*record, column);
        m_copies.push_back(std::move(copy));
    }
    fill();
}

void CopiesPanelView::fill() {
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    setColumnCount(static_cast<int>(m_copies.size()));
    if (m_copies.empty()) return;
    const std::vector<bool> differing = differingRows(m_copies);
    const auto has = [this](QString Copy::*text) {
        return std::any_of(m_copies.begin(), m_copies.end(),
                           [text](const Copy& copy) { return !(copy.*text).isEmpty(); });
    };
    setRowHidden(differenceRow, !has(&Copy::difference));
    setRowHidden(soundRow, !has(&Copy::sound));
    for (int column = 0; column < columnCount(); ++column)
        fillCopy(column, differing);
    fillFindings();
}

void CopiesPanelView::fillCopy(int column, const std::vector<bool>& differing) {
    const Copy& copy = m_copies[static_cast<std::size_t>(column)];
    auto* mark = new QTableWidgetItem(copy.reason);
    mark->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    mark->setCheckState(copy.marked ? Qt::Checked : Qt::Unchecked);
    mark->setToolTip(copy.reason);
    setItem(markRow, column, mark);
    setItem(differenceRow, column, makeItem(copy.difference));
    setItem(soundRow, column, makeItem(copy.sound));
    for (int row = 0; row < static_cast<int>(differing.size()); ++row)
        setItem(firstValueRow + row, column,
                makeValue(copy.values[row], differing[static_cast<std::size_t>(row)]));
}

QTableWidgetItem* CopiesPanelView::makeValue(const QString& text, bool differs) const {
    QTableWidgetItem* const item = makeItem(text);
    QFont emphasis = font();
    if (differs) emphasis.setWeight(QFont::DemiBold);
    item->setFont(emphasis);
    item->setForeground(differs ? themeColors(palette()).text : themeColors(palette()).secondaryText);
    return item;
}

void CopiesPanelView::setFindings(std::vector<CopyFinding> findings) {
    m_findings = std::move(findings);
    fillFindings();
}

/// Of the copies that are shown; where nothing is known yet, their cells are empty.
void CopiesPanelView::fillFindings() {
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    m_findings.resize(m_copies.size());
    const auto differ = [this](auto same) {
        return std::any_of(m_findings.begin(), m_findings.end(),
                           [&](const CopyFinding& each) { return !same(each, m_findings.front()); });
    };
    const bool playlistsDiffer =
        differ([](const auto& a, const auto& b) { return a.playlists == b.playlists; });
    const bool picturesDiffer =
        differ([](const auto& a, const auto& b) { return a.artworkHash == b.artworkHash; });
    bool hasPicture = false;
    for (int column = 0; column < static_cast<int>(m_findings.size()); ++column) {
        const CopyFinding& finding = m_findings[static_cast<std::size_t>(column)];
        setItem(playlistsRow, column, makeValue(finding.playlists, playlistsDiffer));
        setItem(pictureRow, column, makeValue(finding.artworkText, picturesDiffer));
        if (finding.artwork.isNull()) continue;
        item(pictureRow, column)->setIcon(QIcon(QPixmap::fromImage(finding.artwork)));
        hasPicture = true;
    }
    setRowHeight(pictureRow, scaledLength(hasPicture ? pictureHeight : valueHeight, this));
}

void CopiesPanelView::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) applyMetrics();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) fill();
}

} // namespace songsweep
