// SPDX-License-Identifier: MIT
#include "dupes/MarkDialog.h"

#include "dupes/MarkingRules.h"
#include "dupes/UpperCaseValidator.h"
#include "theme/Announcement.h"
#include "theme/CountedText.h"
#include "theme/DialogFrame.h"
#include "theme/Metrics.h"
#include "ui_MarkDialog.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>

#include <array>
#include <utility>

namespace songsweep {

namespace {

/// The controls of a field that has one rule for the first item of its list and one for any other.
struct FieldControls {
    MarkField field;
    QRadioButton* Ui::MarkDialog::*radio;
    QComboBox* Ui::MarkDialog::*combo;
};

constexpr std::array fieldControls = {
    FieldControls{MarkField::bitrate, &Ui::MarkDialog::markBitrateRB, &Ui::MarkDialog::markBitrateCMB},
    FieldControls{MarkField::time, &Ui::MarkDialog::markTimeRB, &Ui::MarkDialog::markTimeCMB},
    FieldControls{MarkField::size, &Ui::MarkDialog::markSizeRB, &Ui::MarkDialog::markSizeCMB},
    FieldControls{MarkField::rating, &Ui::MarkDialog::markRatingRB, &Ui::MarkDialog::markRatingCMB},
    FieldControls{MarkField::playCount, &Ui::MarkDialog::markPlayCountRB, &Ui::MarkDialog::markPlayCountCMB},
    FieldControls{MarkField::dateAdded, &Ui::MarkDialog::markDateAddedRB, &Ui::MarkDialog::markDateAddedCMB},
    FieldControls{MarkField::artwork, &Ui::MarkDialog::markArtworkRB, &Ui::MarkDialog::markArtworkCMB},
};

void addItems(QComboBox* combo, MarkField field) {
    for (const MarkRule& rule : markRules())
        if (rule.field == field) combo->addItem(QCoreApplication::translate("MarkRule", rule.item));
}

/// The rule of a field that the item of its list stands for: the first for the first item, the last for any
/// other and for none.
MarkType ruleOfItem(MarkField field, int item) {
    MarkType type = MarkType::none;
    for (const MarkRule& rule : markRules()) {
        if (rule.field != field) continue;
        type = rule.type;
        if (item == 0) break;
    }
    return type;
}

void setTag(const Ui::MarkDialog& ui, QRadioButton* radio, MarkField field) {
    ui.markRadioGroup->setId(radio, static_cast<int>(field));
}

QString previewText(const MarkPreview& preview, const MarkChoice& choice) {
    if (preview.total == 0) return MarkDialog::tr("No tracks to mark");
    if (choice.markType == MarkType::folder && choice.text.empty() && !preview.inForce)
        return MarkDialog::tr("No folder chosen");
    const QString none = preview.matches ? QString() : MarkDialog::tr("No track matches.") + QLatin1Char(' ');
    const QString counts =
        preview.inForce ? MarkDialog::tr("Marked %L1 of %L2") : MarkDialog::tr("Would mark %L1 of %L2");
    const QString lost =
        preview.inForce || preview.byHand == 0
            ? QString()
            : QStringLiteral(",\n") + countedText("MarkDialog", "replaces %1 marks made by hand",
                                                  "replaces 1 mark made by hand", preview.byHand);
    return none + counts.arg(preview.marked).arg(preview.total) + lost;
}

QString recordingsText(bool exceptOne) {
    return exceptOne ? MarkDialog::tr("One copy of each recording stays, a working one if there is one.")
                     : MarkDialog::tr("Copies that tie all stay. No recording loses every copy.");
}

QString helperText(MarkType markType, bool exceptOne) {
    if (exceptOne) return MarkDialog::tr("One copy of each song stays, a working one if there is one.");
    if (markType >= MarkType::kind)
        return MarkDialog::tr("A song can lose every copy. Missing files are marked too.");
    return MarkDialog::tr("Copies that tie all stay. Missing files are marked too.");
}

} // namespace

MarkDialog::MarkDialog(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Dialog))
    , m_ui(std::make_unique<Ui::MarkDialog>()) {
    m_ui->setupUi(this);
    for (const auto& [field, radio, combo] : fieldControls) {
        addItems((*m_ui).*combo, field);
        setTag(*m_ui, (*m_ui).*radio, field);
        connectRule((*m_ui).*radio, (*m_ui).*combo);
    }
    connectKind();
    connectFolder();
    setUpButtons();
    connect(m_ui->markRadioGroup, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked) Q_EMIT choiceChanged();
    });
    connect(m_ui->markExceptOneCK, &QCheckBox::toggled, this, &MarkDialog::choiceChanged);
    connect(this, &MarkDialog::choiceChanged, this, &MarkDialog::updateHelper);
    connect(m_ui->markSoundButton, &QPushButton::clicked, this, &MarkDialog::compareSoundRequested);
}

MarkDialog::~MarkDialog() = default;

MarkChoice MarkDialog::choice() const {
    MarkChoice choice;
    choice.exceptOne = m_ui->markExceptOneCK->checkState() != Qt::Unchecked;
    const auto checked = static_cast<MarkField>(m_ui->markRadioGroup->checkedId());
    int item = 0;
    for (const FieldControls& controls : fieldControls)
        if (controls.field == checked) item = ((*m_ui).*controls.combo)->currentIndex();
    choice.markType = ruleOfItem(checked, item);
    if (choice.markType == MarkType::kind) choice.text = m_ui->markKindCMB->currentText().toStdString();
    if (choice.markType == MarkType::folder) choice.text = m_ui->markFolderTF->text().toStdString();
    return choice;
}

void MarkDialog::selectMissingItems() {
    for (const FieldControls& controls : fieldControls) {
        QComboBox* combo = (*m_ui).*controls.combo;
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
    showLive(*m_ui->markLiveLabel, previewText(preview, choice()));
    if (std::exchange(m_byRecordings, preview.byRecordings) != preview.byRecordings) updateHelper();
}

void MarkDialog::setSoundAvailable(bool available) { m_ui->markSoundRow->setVisible(available); }

void MarkDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        if (QAbstractButton* chosen = m_ui->markRadioGroup->checkedButton()) chosen->setFocus();
        Q_EMIT opening();
        fitIntoScreen();
    }
    QDialog::showEvent(event);
}

/// Large fonts on a low screen: the rows move together before the buttons leave it.
void MarkDialog::fitIntoScreen() {
    constexpr int frame = 40; // of the window manager, and more
    constexpr int tightMargin = 8;
    const int room = screen()->availableGeometry().height() - frame;
    if (layout()->totalSizeHint().height() <= room) return;
    for (QWidget* const each : findChildren<QWidget*>())
        if (each->property("baseHeight").isValid()) each->setMinimumHeight(0);
    const int margin = scaledLength(tightMargin, this);
    const QMargins sides = layout()->contentsMargins();
    layout()->setContentsMargins(sides.left(), margin, sides.right(), margin);
    layout()->activate();
}

void MarkDialog::connectRule(QRadioButton* radio, QComboBox* combo) {
    connect(combo, &QComboBox::activated, radio, [radio] { radio->setChecked(true); });
    connect(combo, &QComboBox::currentIndexChanged, this, &MarkDialog::choiceChanged);
}

void MarkDialog::connectKind() {
    setTag(*m_ui, m_ui->markKindRB, MarkField::kind);
    connectRule(m_ui->markKindRB, m_ui->markKindCMB);
    m_ui->markKindCMB->setCompleter(nullptr); // it would finish kinds that nobody typed
    m_ui->markKindCMB->setValidator(new UpperCaseValidator(this));
    connect(m_ui->markKindCMB->lineEdit(), &QLineEdit::textEdited, this,
            [this] { m_ui->markKindRB->setChecked(true); });
    connect(m_ui->markKindCMB, &QComboBox::editTextChanged, this, &MarkDialog::choiceChanged);
    connect(m_ui->markKindCMB, &QComboBox::editTextChanged, m_ui->markKindCMB, &QWidget::setToolTip);
}

void MarkDialog::connectFolder() {
    setTag(*m_ui, m_ui->markFolderRB, MarkField::folder);
    connect(m_ui->markFolderTF, &QLineEdit::textEdited, this, [this](const QString& folder) {
        m_ui->markFolderTF->setToolTip(folder);
        m_ui->markFolderRB->setChecked(true);
        Q_EMIT choiceChanged();
    });
    connect(m_ui->markFolderButton, &QPushButton::clicked, this, &MarkDialog::folderRequested);
}

void MarkDialog::setUpButtons() {
    auto* close = m_ui->markButtons->addButton(MarkDialog::tr("&Close"), QDialogButtonBox::RejectRole);
    auto* mark = m_ui->markButtons->addButton(MarkDialog::tr("&Mark"), QDialogButtonBox::AcceptRole);
    close->setObjectName(QStringLiteral("markCancelButton"));
    close->setAutoDefault(false);
    mark->setObjectName(QStringLiteral("markMarkButton"));
    mark->setDefault(true);
    mark->setToolTip(MarkDialog::tr("Replaces all present marks"));
    connect(mark, &QPushButton::clicked, this, &MarkDialog::markRequested);
    connect(close, &QPushButton::clicked, this, &MarkDialog::reject);
}

void MarkDialog::openFolderChooser() {
    auto* chooser = new QFileDialog(this, MarkDialog::tr("Select a folder"));
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    chooser->setLabelText(QFileDialog::Accept, MarkDialog::tr("Select"));
    connect(chooser, &QFileDialog::fileSelected, this, &MarkDialog::folderChosen);
    chooser->open();
}

void MarkDialog::updateHelper() {
    const MarkChoice now = choice();
    showLive(*m_ui->markExceptOneLabel,
             m_byRecordings ? recordingsText(now.exceptOne) : helperText(now.markType, now.exceptOne));
    m_ui->markKeepLabel->setText(m_byRecordings ? MarkDialog::tr("Keep of each recording")
                                                : MarkDialog::tr("Keep in each group"));
    m_ui->markSoundLabel->setText(m_byRecordings
                                      ? MarkDialog::tr("Recordings were told apart by their sound.")
                                      : MarkDialog::tr("Equal tags can be different recordings."));
}

} // namespace songsweep
