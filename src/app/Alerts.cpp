// SPDX-License-Identifier: MIT
#include "app/Alerts.h"

#include "app/AlertBox.h"

#include <QPushButton>

namespace songsweep::alerts {

namespace {

QPushButton* addOkButton(QMessageBox& box) {
    QPushButton* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    return ok;
}

QMessageBox* openWarning(QWidget* parent, const QString& message, const QString& reason) {
    auto* box = new AlertBox(QMessageBox::Warning, message, parent);
    box->setInformativeText(reason);
    addOkButton(*box);
    box->open();
    return box;
}

} // namespace

QMessageBox* openNoDuplicates(QWidget* parent, const QString& explanation) {
    auto* box = new AlertBox(QMessageBox::NoIcon, QStringLiteral("No duplicates found."), parent);
    box->setInformativeText(explanation);
    addOkButton(*box);
    box->open();
    return box;
}

QMessageBox* openCantAccess(QWidget* parent, const QString& message, const QString& reason,
                            std::function<void(int)> ended) {
    auto* box = new AlertBox(QMessageBox::Warning, message, parent);
    box->setInformativeText(reason);
    addOkButton(*box);
    QPushButton* help = box->addButton(QStringLiteral("&Help"), QMessageBox::ActionRole);
    help->setAutoDefault(false);
    QObject::connect(box, &QMessageBox::finished, box, [box, help, ended = std::move(ended)] {
        ended(box->clickedButton() == help ? secondButton : firstButton);
    });
    box->open();
    return box;
}

QMessageBox* openCantOpenLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QStringLiteral("Can't open the library."), reason);
}

QMessageBox* openCantWriteLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QStringLiteral("Can't write the library."), reason);
}

} // namespace songsweep::alerts
