// SPDX-License-Identifier: MIT
#include "app/ProgressSheet.h"

#include "app/Progress.h"
#include "ui_ProgressSheet.h"

#include <QPushButton>

namespace songsweep {

ProgressSheet::ProgressSheet(QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_ui(std::make_unique<Ui::ProgressSheet>()) {
    m_ui->setupUi(this);
    setFocusPolicy(Qt::StrongFocus);
    auto* cancel = m_ui->progressButtons->addButton(QStringLiteral("&Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("progressCancelButton"));
    cancel->setAccessibleName(QStringLiteral("Cancel deletion"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &ProgressSheet::reject);
}

ProgressSheet::~ProgressSheet() = default;

void ProgressSheet::beginProgress() { open(); }

void ProgressSheet::endProgress() {
    hide();
    Q_EMIT ended();
}

void ProgressSheet::setProgressText(const std::string& title) {
    m_ui->progressLabel->setText(QString::fromStdString(title));
}

void ProgressSheet::setProgressValue(double percent) { m_ui->progress->setValue(wholePercent(percent)); }

void ProgressSheet::showEvent(QShowEvent* event) {
    setFocus(); // so that no key but Escape cancels by accident
    QDialog::showEvent(event);
}

} // namespace songsweep
