// SPDX-License-Identifier: MIT
#include "dupes/MarkDialog.h"

#include "dupes/MarkingRules.h"
#include "dupes/UpperCaseValidator.h"
#include "theme/Announcement.h"
#include "ui_MarkDialog.h"

#include <QFileDialog>
#include <QPushButton>
#include <QShowEvent>

#include <array>

namespace songsweep {

namespace {

/// The values of the radio buttons, in their order from the top.
enum class RadioTag { bitrate, time, size, rating, playCount, dateAdded, artwork, kind, folder };

/// The mark types of a value rule: for the first item of its combo box and for any other.
struct ValueRule {
    RadioTag tag;
    QRadioButton* Ui::MarkDialog::*radio;
    QComboBox* Ui::MarkDialog::*combo;
    std::int32_t ofFirstItem;
    std::int32_t ofOtherItem;
};

constexpr std::array valueRules = {
    ValueRule{RadioTag::bitrate, &Ui::MarkDialog::markBitrateRB, &Ui::MarkDialog::markBitrateCMB,
              markType::highestBitrate, markType::lowestBitrate},
    ValueRule{RadioTag::time, &Ui::MarkDialog::markTimeRB, &Ui::MarkDialog::markTimeCMB, markType::longest,
              markType::shortest},
    ValueRule{RadioTag::size, &Ui::MarkDialog::markSizeRB, &Ui::MarkDialog::markSizeCMB, markType::largest,
              markType::smallest},
    ValueRule{RadioTag::rating, &Ui::MarkDialog::markRatingRB, &Ui::MarkDialog::markRatingCMB,
              markType::highestRating, markType::lowestRating},
    ValueRule{RadioTag::playCount, &Ui::MarkDialog::markPlayCountRB, &Ui::MarkDialog::markPlayCountCMB,
              markType::mostPlayed, markType::leastPlayed},
    ValueRule{RadioTag::dateAdded, &Ui::MarkDialog::markDateAddedRB, &Ui::MarkDialog::markDateAddedCMB,
              markType::earliestAdded, markType::latestAdded},
    ValueRule{RadioTag::artwork, &Ui::MarkDialog::markArtworkRB, &Ui::MarkDialog::markArtworkCMB,
              markType::withArtwork, markType::withoutArtwork},
};

void setTag(const Ui::MarkDialog& ui, QRadioButton* radio, RadioTag tag) {
    ui.markRadioGroup->setId(radio, static_cast<int>(tag));
}

QString previewText(const MarkPreview& preview) {
    if (preview.total == 0) return QStringLiteral("No tracks to mark");
    const QString counts = QStringLiteral(" %1 of %2").arg(preview.marked).arg(preview.total);
    return (preview.inForce ? QStringLiteral("Marked") : QStringLiteral("Would mark")) + counts;
}

QString helperText(int markType, bool exceptOne) {
    if (exceptOne) return QStringLiteral("One copy of each song stays, a working one if there is one.");
    if (markType >= markType::kind)
        return QStringLiteral("A song can lose every copy. Missing files are marked too.");
    return QStringLiteral("Copies that tie all stay. Missing files are marked too.");
}

} // namespace

MarkDialog::MarkDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::MarkDialog>()) {
    m_ui->setupUi(this);
    for (const ValueRule& rule : valueRules) {
        setTag(*m_ui, (*m_ui).*rule.radio, rule.tag);
        connectRule((*m_ui).*rule.radio, (*m_ui).*rule.combo);
    }
    connectKind();
    connectFolder();
    setUpButtons();
    connect(m_ui->markRadioGroup, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked) Q_EMIT choiceChanged();
    });
    connect(m_ui->markExceptOneCK, &QCheckBox::toggled, this, &MarkDialog::choiceChanged);
    connect(this, &MarkDialog::choiceChanged, this, &MarkDialog::updateHelper);
}

MarkDialog::~MarkDialog() = default;

MarkChoice MarkDialog::choice() const {
    MarkChoice choice;
    choice.exceptOne = m_ui->markExceptOneCK->checkState() != Qt::Unchecked;
    const int checked = m_ui->markRadioGroup->checkedId();
    for (const ValueRule& rule : valueRules) {
        if (checked != static_cast<int>(rule.tag)) continue;
        const bool first = ((*m_ui).*rule.combo)->currentIndex() == 0;
        choice.markType = first ? rule.ofFirstItem : rule.ofOtherItem;
    }
    if (checked == static_cast<int>(RadioTag::kind)) {
        choice.markType = markType::kind;
        choice.text = m_ui->markKindCMB->currentText().toStdString();
    } else if (checked == static_cast<int>(RadioTag::folder)) {
        choice.markType = markType::folder;
        choice.text = m_ui->markFolderTF->text().toStdString();
    }
    return choice;
}

void MarkDialog::selectMissingItems() {
    for (const ValueRule& rule : valueRules) {
        QComboBox* combo = (*m_ui).*rule.combo;
        if (combo->currentIndex() < 0) combo->setCurrentIndex(0);
    }
}

void MarkDialog::fillKinds(const std::vector<std::string>& kinds) {
    QComboBox* list = m_ui->markKindCMB;
    for (const std::string& kind : kinds) {
        const QString text = QString::fromStdString(kind);
        if (list->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0) list->addItem(text);
    }
    if (list->count() == 0) return;
    const int mp3 = list->findText(QStringLiteral("MP3"), Qt::MatchFixedString | Qt::MatchCaseSensitive);
    list->setCurrentIndex(mp3 < 0 ? 0 : mp3);
}

void MarkDialog::setFolder(const QString& folder) {
    m_ui->markFolderTF->setText(folder);
    m_ui->markFolderTF->setToolTip(folder);
    m_ui->markFolderRB->setChecked(true);
    Q_EMIT choiceChanged();
}

void MarkDialog::setPreview(const MarkPreview& preview) {
    showLive(*m_ui->markLiveLabel, previewText(preview));
}

void MarkDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        if (QAbstractButton* chosen = m_ui->markRadioGroup->checkedButton()) chosen->setFocus();
        Q_EMIT opening();
    }
    QDialog::showEvent(event);
}

void MarkDialog::connectRule(QRadioButton* radio, QComboBox* combo) {
    connect(combo, &QComboBox::activated, radio, [radio] { radio->setChecked(true); });
    connect(combo, &QComboBox::currentIndexChanged, this, &MarkDialog::choiceChanged);
}

void MarkDialog::connectKind() {
    setTag(*m_ui, m_ui->markKindRB, RadioTag::kind);
    connectRule(m_ui->markKindRB, m_ui->markKindCMB);
    m_ui->markKindCMB->setCompleter(nullptr); // it would finish kinds that nobody typed
    m_ui->markKindCMB->setValidator(new UpperCaseValidator(this));
    connect(m_ui->markKindCMB->lineEdit(), &QLineEdit::textEdited, this,
            [this] { m_ui->markKindRB->setChecked(true); });
    connect(m_ui->markKindCMB, &QComboBox::editTextChanged, this, &MarkDialog::choiceChanged);
    connect(m_ui->markKindCMB, &QComboBox::editTextChanged, m_ui->markKindCMB, &QWidget::setToolTip);
}

void MarkDialog::connectFolder() {
    setTag(*m_ui, m_ui->markFolderRB, RadioTag::folder);
    connect(m_ui->markFolderTF, &QLineEdit::textEdited, this, [this](const QString& folder) {
        m_ui->markFolderTF->setToolTip(folder);
        m_ui->markFolderRB->setChecked(true);
        Q_EMIT choiceChanged();
    });
    connect(m_ui->markFolderButton, &QPushButton::clicked, this, &MarkDialog::folderRequested);
}

void MarkDialog::setUpButtons() {
    auto* close = m_ui->markButtons->addButton(QStringLiteral("&Close"), QDialogButtonBox::RejectRole);
    auto* mark = m_ui->markButtons->addButton(QStringLiteral("&Mark"), QDialogButtonBox::AcceptRole);
    close->setObjectName(QStringLiteral("markCancelButton"));
    close->setAutoDefault(false);
    mark->setObjectName(QStringLiteral("markMarkButton"));
    mark->setDefault(true);
    mark->setToolTip(QStringLiteral("Replaces all present marks"));
    connect(mark, &QPushButton::clicked, this, &MarkDialog::markRequested);
    connect(close, &QPushButton::clicked, this, &MarkDialog::reject);
}

void MarkDialog::openFolderChooser() {
    auto* chooser = new QFileDialog(this, QStringLiteral("Select a folder"));
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    chooser->setLabelText(QFileDialog::Accept, QStringLiteral("Select"));
    connect(chooser, &QFileDialog::fileSelected, this, &MarkDialog::setFolder);
    chooser->open();
}

void MarkDialog::updateHelper() {
    const MarkChoice now = choice();
    showLive(*m_ui->markExceptOneLabel, helperText(now.markType, now.exceptOne));
}

} // namespace songsweep
