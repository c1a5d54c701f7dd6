// SPDX-License-Identifier: MIT
#include "app/AboutDialog.h"

#include "theme/DialogFrame.h"
#include "ui_AboutDialog.h"

#include <QKeyEvent>

namespace songsweep {

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Dialog))
    , m_ui(std::make_unique<Ui::AboutDialog>()) {
    m_ui->setupUi(this);
    setFocusPolicy(Qt::StrongFocus);
    connect(m_ui->aboutWebsiteButton, &QPushButton::clicked, this, &AboutDialog::websiteRequested);
    connect(m_ui->aboutHelpButton, &QPushButton::clicked, this, &AboutDialog::helpRequested);
    connect(m_ui->aboutContactButton, &QPushButton::clicked, this, &AboutDialog::contactRequested);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::setLabel(const std::string& nameAndVersion) {
    m_ui->aboutLabel->setText(QString::fromStdString(nameAndVersion));
}

void AboutDialog::showEvent(QShowEvent* event) {
    setFocus(); // and not the first button, which nobody asked for
    QDialog::showEvent(event);
}

void AboutDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
    else
        QDialog::keyPressEvent(event);
}

} // namespace songsweep
