// SPDX-License-Identifier: MIT
#include "restore/RestoreDialog.h"

#include "platform/Words.h"
#include "restore/CleanupCell.h"
#include "restore/RestoreTexts.h"
#include "theme/Announcement.h"
#include "theme/DialogFrame.h"
#include "ui_RestoreDialog.h"

#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

constexpr int headerHeight = 26; // like that of the table of tracks
constexpr std::array numberColumns = {2, 3, 4};

QTreeWidgetItem* rowOf(const CleanupSummary& cleanup) {
    const restoreTexts::CleanupCells cells = restoreTexts::cellsOf(cleanup);
    auto* row = new QTreeWidgetItem;
    int column = 0;
    for (const std::string& cell : {cells.date, cells.state, cells.tracks, cells.files, cells.size})
        row->setText(column++, QString::fromStdString(cell));
    for (const int number : numberColumns)
        row->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    return row;
}

bool hasLostFiles(const RestoreReport& report) {
    return std::any_of(report.tracks.begin(), report.tracks.end(),
                       [](const RestoredTrack& track) { return track.file == RestoredTrack::File::isGone; });
}

} // namespace

RestoreDialog::RestoreDialog(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Sheet))
    , m_ui(std::make_unique<Ui::RestoreDialog>()) {
    m_ui->setupUi(this);
    setUpList();
    setUpButtons();
    connect(m_ui->restoreLeaveLostCK, &QCheckBox::toggled, this, &RestoreDialog::choose);
    setUnknown();
}

RestoreDialog::~RestoreDialog() = default;

void RestoreDialog::setUpList() {
    QTreeWidget* list = m_ui->restoreList;
    for (const int number : numberColumns)
        list->headerItem()->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    list->header()->setSectionsMovable(false);
    list->header()->setProperty("baseFixedHeight", headerHeight);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    list->setItemDelegate(new CleanupCell(list));
    connect(list, &QTreeWidget::currentItemChanged, this, &RestoreDialog::choose);
}

void RestoreDialog::setUpButtons() {
    m_cancelButton =
        m_ui->restoreButtons->addButton(RestoreDialog::tr("&Cancel"), QDialogButtonBox::RejectRole);
    m_restoreButton =
        m_ui->restoreButtons->addButton(RestoreDialog::tr("&Restore"), QDialogButtonBox::AcceptRole);
    m_detailsButton =
        m_ui->restoreButtons->addButton(RestoreDialog::tr("&Details"), QDialogButtonBox::ActionRole);
    m_cancelButton->setObjectName(QStringLiteral("restoreCancelButton"));
    m_restoreButton->setObjectName(QStringLiteral("restoreOkButton"));
    m_detailsButton->setObjectName(QStringLiteral("restoreDetailsButton"));
    m_cancelButton->setAutoDefault(false);
    m_detailsButton->setAutoDefault(false);
    m_restoreButton->setDefault(true);
    connect(m_cancelButton, &QPushButton::clicked, this, &RestoreDialog::reject);
    connect(m_restoreButton, &QPushButton::clicked, this, &RestoreDialog::restoreRequested);
    connect(m_detailsButton, &QPushButton::clicked, this, [this] { Q_EMIT detailsRequested(m_details); });
}

void RestoreDialog::reject() { Q_EMIT cancelRequested(); }

LostFiles RestoreDialog::lostFiles() const {
    return m_ui->restoreLeaveLostCK->isChecked() ? LostFiles::tracksStayAway : LostFiles::tracksComeBack;
}

void RestoreDialog::choose() {
    Q_EMIT chosen(m_ui->restoreList->indexOfTopLevelItem(m_ui->restoreList->currentItem()), lostFiles());
}

void RestoreDialog::setUnknown() {
    const QSignalBlocker quietList(m_ui->restoreList);
    const QSignalBlocker quietBox(m_ui->restoreLeaveLostCK);
    m_ui->restoreList->clear();
    m_ui->restoreList->setEnabled(true);
    m_ui->restoreLeaveLostCK->setChecked(false);
    m_cancelButton->setText(RestoreDialog::tr("&Cancel"));
    setForeseeing();
    showLines({tr("Looking for deletions...").toStdString()});
}

void RestoreDialog::setListing(const CleanupListing& listing, int chosen) {
    const QSignalBlocker quiet(m_ui->restoreList);
    for (const CleanupSummary& cleanup : listing.cleanups)
        m_ui->restoreList->addTopLevelItem(rowOf(cleanup));
    m_ui->restoreList->setCurrentItem(m_ui->restoreList->topLevelItem(chosen));
    m_ui->restoreList->setFocus();
    if (!listing.cleanups.empty()) return;
    showLines(
        {listing.problem.empty()
             ? words("RestoreDialog", "Nothing was deleted from this library by Songsweep, or the records "
                                      "of it are no longer beside the library.")
             : filled(words("RestoreDialog", "The deletions cannot be listed: %1."), {listing.problem})});
}

void RestoreDialog::setForeseeing() {
    m_ui->restoreLeaveLostCK->setVisible(m_ui->restoreLeaveLostCK->isChecked());
    m_ui->restoreProgress->hide();
    m_restoreButton->setEnabled(false);
    m_detailsButton->setEnabled(false);
    showLines({tr("Looking what can come back...").toStdString()});
}

void RestoreDialog::setForeseen(const RestoreAnswer& answer) {
    showAnswer(answer, restoreTexts::foreseen(answer.report));
    const bool asks = answer.problem.empty() && hasLostFiles(answer.report);
    m_ui->restoreLeaveLostCK->setVisible(asks);
    m_restoreButton->setEnabled(answer.problem.empty() && answer.report.hasWork());
}

void RestoreDialog::showAnswer(const RestoreAnswer& answer, const std::vector<std::string>& lines) {
    showLines(
        answer.problem.empty()
            ? lines
            : std::vector{filled(words("RestoreDialog", "Nothing can be restored: %1."), {answer.problem})});
    m_details = restoreTexts::details(answer.report);
    m_detailsButton->setEnabled(!m_details.empty());
}

void RestoreDialog::setRestoring() {
    m_ui->restoreList->setEnabled(false);
    m_ui->restoreLeaveLostCK->hide();
    m_restoreButton->setEnabled(false);
    m_detailsButton->setEnabled(false);
    m_ui->restoreProgress->show();
    setProgress(0);
    showLines({tr("Restoring...").toStdString()});
    m_cancelButton->setFocus();
}

void RestoreDialog::setProgress(int percent) { m_ui->restoreProgress->setValue(percent); }

void RestoreDialog::setRestored(const RestoreAnswer& answer) {
    m_ui->restoreProgress->hide();
    showAnswer(answer, restoreTexts::done(answer.report));
    m_cancelButton->setText(RestoreDialog::tr("&Close"));
}

void RestoreDialog::showLines(const std::vector<std::string>& lines) {
    QString text;
    for (const std::string& line : lines)
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + QString::fromStdString(line);
    showLive(*m_ui->restoreLinesLabel, text);
}

} // namespace songsweep
