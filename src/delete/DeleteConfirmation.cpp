// SPDX-License-Identifier: MIT
#include "delete/DeleteConfirmation.h"

#include "delete/ConfirmationTexts.h"
#include "theme/Announcement.h"
#include "theme/DialogFrame.h"
#include "ui_DeleteConfirmation.h"

#include <QList>
#include <QPushButton>
#include <QStringList>
#include <QToolButton>

#include <algorithm>

namespace songsweep {

namespace {

int countOf(const QStringList& lines) {
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [](auto& line) { return !line.isEmpty(); }));
}

void hideKeepingRoom(QLabel& label, bool keepsRoom) {
    QSizePolicy policy = label.sizePolicy();
    policy.setRetainSizeWhenHidden(keepsRoom);
    label.setSizePolicy(policy);
    label.ensurePolished(); // The style gives it the height that it keeps.
    label.hide();
}

/// "" hides it.
void showLine(QLabel& label, const QString& text) {
    label.setVisible(!text.isEmpty());
    showLive(label, text);
}

/// Shows each line that has something to say, and keeps room below them for as many as there can be. The
/// others go first: the sheet grows at once when one is shown.
void showInLabels(const QStringList& lines, const QList<QLabel*>& labels, int mostLines) {
    int spare = mostLines - countOf(lines);
    for (qsizetype i = lines.size(); i-- > 0;)
        if (lines[i].isEmpty()) hideKeepingRoom(*labels[i], spare-- > 0);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        labels[i]->setVisible(!lines[i].isEmpty());
        showLive(*labels[i], lines[i]);
    }
}

} // namespace

DeleteConfirmation::DeleteConfirmation(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Sheet))
    , m_ui(std::make_unique<Ui::DeleteConfirmation>()) {
    m_ui->setupUi(this);
    setUpButtons();
    connect(m_ui->delConfFileCK, &QCheckBox::toggled, this, &DeleteConfirmation::updateLines);
    connect(m_ui->delConfTrashSharedCK, &QCheckBox::toggled, this, &DeleteConfirmation::updateLines);
    connect(m_ui->delConfLostSongsButton, &QToolButton::clicked, this,
            [this] { Q_EMIT lostSongsRequested(filesToTrash()); });
    connect(m_ui->delConfOptionsButton, &QToolButton::toggled, this, &DeleteConfirmation::showOptions);
    setFacts({});
}

DeleteConfirmation::~DeleteConfirmation() = default;

void DeleteConfirmation::setFacts(const DeleteConfirmationFacts& facts) {
    m_facts = facts;
    m_ui->delConfTrashSharedCK->setChecked(false);
    m_ui->delConfOptionsButton->setChecked(false);
    updateHeading();
    updateLines();
}

void DeleteConfirmation::updateFacts(const DeleteConfirmationFacts& facts) {
    m_facts = facts;
    updateHeading();
    updateLines();
}

void DeleteConfirmation::setFilesAlwaysGo(bool always) {
    m_filesAlwaysGo = always;
    updateHeading();
    updateLines();
}

bool DeleteConfirmation::deletesFiles() const { return m_filesAlwaysGo || m_ui->delConfFileCK->isChecked(); }

bool DeleteConfirmation::leavesSharedFiles() const {
    return !hasSharedOption() || !m_ui->delConfTrashSharedCK->isChecked();
}

FilesToTrash DeleteConfirmation::filesToTrash() const {
    if (!deletesFiles()) return FilesToTrash::none;
    return leavesSharedFiles() ? FilesToTrash::unshared : FilesToTrash::all;
}

bool DeleteConfirmation::hasSharedOption() const {
    return deletesFiles() && m_facts.sharedFiles > 0 && !m_facts.filesPending && !m_facts.libraryUnknown;
}

MergeChoice DeleteConfirmation::mergeChoice() const {
    if (!m_facts.mergeOffered) return {};
    return {.places = !m_filesAlwaysGo && m_ui->delConfPlacesCK->isChecked(),
            .history = m_ui->delConfHistoryCK->isChecked(),
            .fillIns = m_ui->delConfFillInCK->isChecked()};
}

void DeleteConfirmation::showEvent(QShowEvent* event) {
    m_cancelButton->setFocus();
    QDialog::showEvent(event);
}

void DeleteConfirmation::setUpButtons() {
    m_cancelButton =
        m_ui->delConfButtons->addButton(DeleteConfirmation::tr("&Cancel"), QDialogButtonBox::RejectRole);
    m_deleteButton =
        m_ui->delConfButtons->addButton(DeleteConfirmation::tr("&Delete"), QDialogButtonBox::AcceptRole);
    m_cancelButton->setObjectName(QStringLiteral("delConfCancelButton"));
    m_deleteButton->setObjectName(QStringLiteral("delConfOkButton"));
    m_deleteButton->setProperty("role", QStringLiteral("destructive"));
    m_deleteButton->setAutoDefault(false);
    m_cancelButton->setDefault(true);
    connect(m_cancelButton, &QPushButton::clicked, this, &DeleteConfirmation::reject);
    connect(m_deleteButton, &QPushButton::clicked, this,
            [this] { Q_EMIT deleteRequested(deletesFiles(), leavesSharedFiles(), mergeChoice()); });
}

void DeleteConfirmation::updateHeading() {
    const bool some = m_facts.tracks > m_facts.keptTracks;
    m_ui->delConfHeadingLabel->setText(confirmationTexts::heading(m_facts));
    DeleteConfirmationFacts told = m_facts;
    told.mergeOffered = m_facts.mergeOffered && !m_filesAlwaysGo; // No box there tells of playlists.
    QString explanation = confirmationTexts::explanation(told);
    if (m_filesAlwaysGo && some) explanation += QChar::Space + confirmationTexts::filesGo(m_facts);
    // A line for each sentence of more than one line, so that no word or two are left for the last.
    const bool isLong = m_facts.embeddedLibrary || m_filesAlwaysGo;
    if (isLong) explanation.replace(QStringLiteral(". "), QStringLiteral(".\n"));
    m_ui->delConfTextLabel->setText(explanation);
    m_ui->delConfFileCK->setText(confirmationTexts::fileOption(m_facts));
    m_ui->delConfFileCK->setVisible(some && !m_filesAlwaysGo);
    m_ui->delConfLines->setVisible(some);
    m_deleteButton->setText(confirmationTexts::deleteButton(m_facts));
#ifdef Q_OS_MACOS
    m_deleteButton->setShortcut(Qt::CTRL | Qt::Key_D); // there are no mnemonics; a new text takes it away
#endif
    setAccessibleDescription(m_ui->delConfHeadingLabel->text() + QChar::Space +
                             m_ui->delConfTextLabel->text().replace(QLatin1Char('\n'), QChar::Space));
}

void DeleteConfirmation::updateMerge() {
    using namespace confirmationTexts;
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_ui->delConfHistoryCK), static_cast<QWidget*>(m_ui->delConfHistoryLabel),
          static_cast<QWidget*>(m_ui->delConfFillInCK), static_cast<QWidget*>(m_ui->delConfFillInLabel)})
        widget->setVisible(m_facts.mergeOffered);
    m_ui->delConfPlacesCK->setVisible(m_facts.mergeOffered && !m_filesAlwaysGo);
    m_ui->delConfPlacesLabel->setVisible(m_facts.mergeOffered && !m_filesAlwaysGo);
    showLive(*m_ui->delConfPlacesLabel, placesNumber(m_facts));
    showLive(*m_ui->delConfHistoryLabel, historyNumber(m_facts));
    showLive(*m_ui->delConfFillInLabel, fillInNumber(m_facts));
    showLine(*m_ui->delConfITunesLabel, iTunesLine(m_facts));
    showLine(*m_ui->delConfUnmergedLabel, unmergedLine(m_facts));
}

void DeleteConfirmation::updateLines() {
    updateMerge();
    m_deleteButton->setEnabled(!deletesFiles() || !m_facts.filesPending);
    showWarning();
    showLines();
    showOptions();
}

void DeleteConfirmation::showOptions() {
    const bool isOpen = m_ui->delConfOptionsButton->isChecked();
    // So that nothing moves when the box of the files is switched.
    QSizePolicy policy = m_ui->delConfOptionsButton->sizePolicy();
    policy.setRetainSizeWhenHidden(m_facts.sharedFiles > 0);
    m_ui->delConfOptionsButton->setSizePolicy(policy);
    m_ui->delConfOptionsButton->setVisible(hasSharedOption());
    m_ui->delConfOptionsButton->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    m_ui->delConfTrashSharedCK->setVisible(hasSharedOption() && isOpen);
}

/// Of each label; "" hides it.
QStringList DeleteConfirmation::linesWithFiles() const {
    using namespace confirmationTexts;
    if (m_facts.filesPending) return {filesPendingLine(), {}, {}, {}};
    if (m_facts.libraryUnknown) return {libraryUnknownLine(m_facts), {}, missingLine(m_facts), {}};
    return {trashLine(m_facts, leavesSharedFiles()), sharedLine(m_facts, leavesSharedFiles()),
            missingLine(m_facts), refusedLine(m_facts)};
}

void DeleteConfirmation::showLines() {
    const QStringList withFiles = linesWithFiles();
    const QStringList withoutFiles = {confirmationTexts::filesStayLine(m_facts), {}, {}, {}};
    showInLabels(deletesFiles() ? withFiles : withoutFiles,
                 {m_ui->delConfTrashLabel, m_ui->delConfSharedLabel, m_ui->delConfMissingLabel,
                  m_ui->delConfRefusedLabel},
                 std::max(countOf(withFiles), countOf(withoutFiles)));
    m_ui->delConfRefusedLabel->setToolTip(QString::fromStdString(m_facts.refusal));
}

void DeleteConfirmation::showWarning() {
    const QString text = confirmationTexts::warning(m_facts, filesToTrash());
    showLive(*m_ui->delConfWarningLabel, text);
    m_ui->delConfWarningLabel->setToolTip(QString::fromStdString(m_facts.libraryObstacle));
    m_ui->delConfWarning->setVisible(!text.isEmpty());
    m_ui->delConfLostSongsButton->setVisible(m_facts.songsLost(filesToTrash()) > 0);
}

} // namespace songsweep
