// SPDX-License-Identifier: MIT
#include "app/ParametersDialog.h"

#include "app/BringToFront.h"
#include "theme/Announcement.h"
#include "theme/DialogFrame.h"
#include "ui_ParametersDialog.h"

#include <QPushButton>

namespace songsweep {

ParametersDialog::ParametersDialog(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Dialog))
    , m_ui(std::make_unique<Ui::ParametersDialog>()) {
    m_ui->setupUi(this);
    setUpButtons();
    QSizePolicy keepsItsRoom = m_ui->paramWarningLabel->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    m_ui->paramWarningLabel->setSizePolicy(keepsItsRoom);
    for (QCheckBox* field :
         {m_ui->paramSameNameCK, m_ui->paramSameArtistCK, m_ui->paramSameAlbumCK, m_ui->paramSameTimeCK})
        connect(field, &QCheckBox::toggled, this, &ParametersDialog::updateWarning);
    // A name too long for the box is cut there, so that the dialog does not grow with it.
    connect(m_ui->paramLocationCB, &QComboBox::currentTextChanged, m_ui->paramLocationCB,
            [list = m_ui->paramLocationCB](const QString& name) { list->setToolTip(name); });
    connect(this, &QDialog::rejected, this, &ParametersDialog::putBack);
    updateWarning();
}

ParametersDialog::~ParametersDialog() = default;

SearchParameters ParametersDialog::parameters() const {
    SearchParameters parameters;
    parameters.issamename = m_ui->paramSameNameCK->isChecked();
    parameters.issameartist = m_ui->paramSameArtistCK->isChecked();
    parameters.issamealbum = m_ui->paramSameAlbumCK->isChecked();
    parameters.issametime = m_ui->paramSameTimeCK->isChecked();
    parameters.issimilar = m_ui->paramSimilarCK->isChecked();
    parameters.isignoredead = m_ui->paramIgnoreDeadCK->isChecked();
    if (m_ui->paramLocationCB->currentIndex() >= 0)
        parameters.playlist = m_ui->paramLocationCB->currentText().toStdString();
    return parameters;
}

void ParametersDialog::dropField() {
    for (QCheckBox* field :
         {m_ui->paramSameAlbumCK, m_ui->paramSameTimeCK, m_ui->paramSameArtistCK, m_ui->paramSameNameCK}) {
        if (!field->isChecked()) continue;
        m_atOpening = parameters();
        field->setChecked(false);
        m_dropped = field;
        return;
    }
}

void ParametersDialog::showParamWindow() { bringToFront(*this); }
void ParametersDialog::closeParamWindow() { hide(); }
void ParametersDialog::setPlaylistsPending(bool pending) {
    m_ui->paramLocationCB->setEnabled(!pending);
    m_ui->paramLocationCB->setPlaceholderText(pending ? ParametersDialog::tr("Reading the library...")
                                                      : QString());
    findChild<QPushButton*>(QStringLiteral("paramSearchButton"))->setEnabled(!pending);
}

void ParametersDialog::clearPlaylists() { m_ui->paramLocationCB->clear(); }

void ParametersDialog::addPlaylist(const std::string& name) {
    const int selected = m_ui->paramLocationCB->currentIndex();
    const QString text = QString::fromStdString(name);
    m_ui->paramLocationCB->addItem(text);
    m_ui->paramLocationCB->setItemData(m_ui->paramLocationCB->count() - 1, text, Qt::ToolTipRole);
    m_ui->paramLocationCB->setCurrentIndex(selected); // a first item selects itself
}

void ParametersDialog::selectPlaylist(int index) { m_ui->paramLocationCB->setCurrentIndex(index); }

void ParametersDialog::showEvent(QShowEvent* event) {
    (m_dropped != nullptr ? m_dropped : m_ui->paramSameNameCK)->setFocus();
    if (!event->spontaneous() && m_dropped == nullptr) m_atOpening = parameters();
    m_dropped = nullptr;
    QDialog::showEvent(event);
}

void ParametersDialog::putBack() {
    m_ui->paramSameNameCK->setChecked(m_atOpening.issamename);
    m_ui->paramSameArtistCK->setChecked(m_atOpening.issameartist);
    m_ui->paramSameAlbumCK->setChecked(m_atOpening.issamealbum);
    m_ui->paramSameTimeCK->setChecked(m_atOpening.issametime);
    m_ui->paramSimilarCK->setChecked(m_atOpening.issimilar);
    m_ui->paramIgnoreDeadCK->setChecked(m_atOpening.isignoredead);
    if (m_atOpening.playlist)
        m_ui->paramLocationCB->setCurrentText(QString::fromStdString(*m_atOpening.playlist));
}

void ParametersDialog::setUpButtons() {
    auto* cancel =
        m_ui->paramButtons->addButton(ParametersDialog::tr("&Cancel"), QDialogButtonBox::RejectRole);
    auto* search =
        m_ui->paramButtons->addButton(ParametersDialog::tr("&Search"), QDialogButtonBox::AcceptRole);
    cancel->setObjectName(QStringLiteral("paramCancelButton"));
    cancel->setAutoDefault(false);
    search->setObjectName(QStringLiteral("paramSearchButton"));
    search->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &ParametersDialog::reject);
    connect(search, &QPushButton::clicked, this, [this] { Q_EMIT searchRequested(parameters()); });
}

void ParametersDialog::updateWarning() {
    const SearchParameters chosen = parameters();
    const bool anyField = chosen.issamename || chosen.issameartist || chosen.issamealbum || chosen.issametime;
    m_ui->paramWarningLabel->setVisible(!anyField);
    if (anyField) return;
    announce(*m_ui->paramWarningLabel, m_ui->paramWarningLabel->text());
}

} // namespace songsweep
