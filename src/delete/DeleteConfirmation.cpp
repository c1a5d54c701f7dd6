// SPDX-License-Identifier: MIT
#include "delete/DeleteConfirmation.h"

#include "delete/ConfirmationTexts.h"
#include "theme/Announcement.h"
#include "theme/DialogFrame.h"
#include "ui_DeleteConfirmation.h"

#include <QPushButton>
#include <QToolButton>

namespace songsweep {

namespace {

/// Shows a line, or hides it where it has nothing to say.
template <class Control>
void showLine(Control* control, const QString& text) {
    control->setVisible(!text.isEmpty());
    showLive(*control, text);
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

void DeleteConfirmation::showEvent(QShowEvent* event) {
    m_cancelButton->setFocus();
    QDialog::showEvent(event);
}

void DeleteConfirmation::setUpButtons() {
    m_cancelButton = m_ui->delConfButtons->addButton(QStringLiteral("&Cancel"), QDialogButtonBox::RejectRole);
    m_deleteButton = m_ui->delConfButtons->addButton(QStringLiteral("&Delete"), QDialogButtonBox::AcceptRole);
    m_cancelButton->setObjectName(QStringLiteral("delConfCancelButton"));
    m_deleteButton->setObjectName(QStringLiteral("delConfOkButton"));
    m_deleteButton->setProperty("role", QStringLiteral("destructive"));
    m_deleteButton->setAutoDefault(false);
    m_cancelButton->setDefault(true);
    connect(m_cancelButton, &QPushButton::clicked, this, &DeleteConfirmation::reject);
    connect(m_deleteButton, &QPushButton::clicked, this,
            [this] { Q_EMIT deleteRequested(deletesFiles(), leavesSharedFiles()); });
}

void DeleteConfirmation::updateHeading() {
    const bool some = m_facts.tracks > m_facts.keptTracks;
    m_ui->delConfHeadingLabel->setText(confirmationTexts::heading(m_facts));
    QString explanation = confirmationTexts::explanation(m_facts);
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

void DeleteConfirmation::updateLines() {
    m_deleteButton->setEnabled(!deletesFiles() || !m_facts.filesPending);
    showWarning();
    showLines(lines());
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

DeleteConfirmation::Lines DeleteConfirmation::lines() const {
    using namespace confirmationTexts;
    if (!deletesFiles()) return {.trash = filesStayLine(m_facts)};
    if (m_facts.filesPending) return {.trash = filesPendingLine()};
    if (m_facts.libraryUnknown)
        return {.trash = libraryUnknownLine(m_facts), .missing = missingLine(m_facts)};
    return {.trash = trashLine(m_facts, leavesSharedFiles()),
            .shared = sharedLine(m_facts, leavesSharedFiles()),
            .missing = missingLine(m_facts),
            .refused = refusedLine(m_facts)};
}

void DeleteConfirmation::showLines(const Lines& lines) {
    showLine(m_ui->delConfTrashLabel, lines.trash);
    showLine(m_ui->delConfSharedLabel, lines.shared);
    showLine(m_ui->delConfMissingLabel, lines.missing);
    showLine(m_ui->delConfRefusedLabel, lines.refused);
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
