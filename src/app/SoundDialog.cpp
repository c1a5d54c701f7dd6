// SPDX-License-Identifier: MIT
#include "app/SoundDialog.h"

#include "theme/CountedText.h"
#include "theme/DialogFrame.h"
#include "ui_SoundDialog.h"

#include <QPushButton>

namespace songsweep {

namespace {

QString choiceText(const QString& choice, int copies) {
    return QStringLiteral("%1 (%2)").arg(choice, countedText("SoundDialog", "%1 copies", "1 copy", copies));
}

} // namespace

SoundDialog::SoundDialog(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Sheet))
    , m_ui(std::make_unique<Ui::SoundDialog>()) {
    m_ui->setupUi(this);
    auto* cancel = m_ui->soundButtons->addButton(SoundDialog::tr("&Cancel"), QDialogButtonBox::RejectRole);
    auto* compare = m_ui->soundButtons->addButton(SoundDialog::tr("Co&mpare"), QDialogButtonBox::AcceptRole);
    cancel->setObjectName(QStringLiteral("soundCancelButton"));
    cancel->setAutoDefault(false);
    compare->setObjectName(QStringLiteral("soundCompareButton"));
    compare->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &SoundDialog::reject);
    connect(compare, &QPushButton::clicked, this, [this] {
        accept();
        Q_EMIT compareRequested(m_ui->soundSelectedRB->isChecked() ? Scope::selected : Scope::listed);
    });
}

SoundDialog::~SoundDialog() = default;

void SoundDialog::ask(int listedCopies, int selectedCopies) {
    m_ui->soundListedRB->setText(choiceText(SoundDialog::tr("&All songs"), listedCopies));
    m_ui->soundSelectedRB->setText(selectedCopies == 0
                                       ? SoundDialog::tr("&Selected songs")
                                       : choiceText(SoundDialog::tr("&Selected songs"), selectedCopies));
    m_ui->soundSelectedRB->setEnabled(selectedCopies > 0);
    QRadioButton* const chosen = selectedCopies > 0 ? m_ui->soundSelectedRB : m_ui->soundListedRB;
    chosen->setChecked(true);
    chosen->setFocus();
    open();
}

} // namespace songsweep
