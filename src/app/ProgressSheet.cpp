// SPDX-License-Identifier: MIT
#include "app/ProgressSheet.h"

#include "app/Progress.h"
#include "app/ProgressTexts.h"
#include "theme/DialogFrame.h"
#include "ui_ProgressSheet.h"

#include <QEvent>
#include <QPushButton>

namespace songsweep {

namespace {

/// How long a window server may take to activate a window; one whose user is in another program never does.
constexpr int activationMilliseconds = 500;

} // namespace

ProgressSheet::ProgressSheet(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Sheet))
    , m_ui(std::make_unique<Ui::ProgressSheet>()) {
    m_ui->setupUi(this);
    setFocusPolicy(Qt::StrongFocus);
    auto* cancel =
        m_ui->progressButtons->addButton(ProgressSheet::tr("&Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("progressCancelButton"));
    cancel->setAccessibleName(ProgressSheet::tr("Cancel deletion"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &ProgressSheet::reject);
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &ProgressSheet::putAway);
}

ProgressSheet::~ProgressSheet() = default;

void ProgressSheet::beginProgress() {
    m_end.stop();
    open();
}

void ProgressSheet::endProgress() {
    if (isVisible() && !isActiveWindow()) {
        m_end.start(activationMilliseconds);
        return;
    }
    putAway();
}

void ProgressSheet::putAway() {
    m_end.stop();
    hide();
    Q_EMIT ended();
}

/// What has ended already has nothing to cancel.
void ProgressSheet::reject() {
    if (m_end.isActive()) {
        putAway();
        return;
    }
    QDialog::reject();
}

void ProgressSheet::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && m_end.isActive() && isActiveWindow()) m_end.start(0);
}

void ProgressSheet::setProgressText(const std::string& title) {
    m_ui->progressLabel->setText(QString::fromStdString(title));
}

void ProgressSheet::setProgressCounts(const ProgressCounts& counts) {
    m_ui->progressCountLabel->setText(progressText(counts));
}

void ProgressSheet::setProgressValue(double percent) { m_ui->progress->setValue(wholePercent(percent)); }

void ProgressSheet::showEvent(QShowEvent* event) {
    setFocus(); // so that no key but Escape cancels by accident
    QDialog::showEvent(event);
}

} // namespace songsweep
